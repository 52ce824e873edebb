#include "RecordPictures.h"
#include "ADOQuery.h"
#include "ATImageBox.h"
#include "ListFormFixture.h"
#include "MessageDialog.h"
#include "Pic_Get_UNT.h"
#include "Pic_Show_UNT.h"
#include "PictureCard.h"
#include "SmartButton_TRV.h"
#include "SymbolButton.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

/// The pictures on the card of a goods item and of a person, looked at, added and removed by keyboard.
class RecordPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TListFormFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void cleanup() { shop_->List.reset(); }

    void theCardShowsThePicturesOfItsRecord_data()
    {
        QTest::addColumn<bool>("goods");
        QTest::newRow("goods") << true;
        QTest::newRow("persons") << false;
    }

    void theCardShowsThePicturesOfItsRecord()
    {
        QFETCH(const bool, goods);
        TRecordPictures& pictures = OpenCard(goods ? GoodsList() : PersonsList());
        const TADOQuery& rows = *pictures.Viewer().Display_QRY;
        QTRY_VERIFY(rows.Active());
        QVERIFY(rows.SQL.Text().contains(goods ? u"GRPCode=1" : u"GRPCode=2"));
        QVERIFY(rows.SQL.Text().endsWith(QStringLiteral(" And Id_Pic=") + Code(0)));
        QVERIFY(!pictures.Viewer().Pic_IMG->Picture().isNull());
    }

    void leafingThroughRecordsTakesThePicturesAlong()
    {
        TRecordPictures& pictures = OpenCard(GoodsList());
        QTRY_VERIFY(pictures.Viewer().Display_QRY->Active());
        QTest::keyClick(shop_->List->Card(), Qt::Key_PageDown);
        QTRY_VERIFY(pictures.Viewer().Display_QRY->SQL.Text().endsWith(QStringLiteral("Id_Pic=") + Code(1)));
    }

    void aListWithoutPicturesHasNoneOnItsCard()
    {
        TListForm& list = shop_->OpenList(GoodsList());
        TListDescription description = GoodsList();
        description.PictureGroup = 0;
        list.DataSet().First();
        TRecordCard card(description, list.DataSet());
        QVERIFY(card.Pictures() == nullptr);
    }

    void aPictureIsAddedExchangedAndRemoved()
    {
        const QString red = NewPicture(QStringLiteral("قرمز.jpg"), Qt::red);
        const QString blue = NewPicture(QStringLiteral("آبی.jpg"), Qt::blue);
        TRecordPictures& pictures = OpenCard(PersonsList());
        TADOQuery& rows = *pictures.Viewer().Display_QRY;
        QTRY_VERIFY(rows.Active());
        const int before = rows.RecordCount();
        TPictureCard& added = OpenPictureCard(pictures, QStringLiteral("AddPicture_BTN"));
        Choose(added, red);
        QTest::keyClick(&added, Qt::Key_F2);
        QTRY_COMPARE(rows.RecordCount(), before + 1);
        QVERIFY(pictures.Viewer().Pic_IMG->Picture().pixelColor(5, 5).red() > 240);

        TPictureCard& changed = OpenPictureCard(pictures, QStringLiteral("ChangePicture_BTN"));
        QVERIFY(!changed.Picture().Picture().isNull());
        Choose(changed, blue);
        changed.findChild<TSmartButton_TRV*>(QStringLiteral("Save_BTN"))->Click();
        QTRY_COMPARE(Stored(QStringLiteral("آبی.jpg")), 1);
        QCOMPARE(Stored(QStringLiteral("قرمز.jpg")), 0);

        pictures.Viewer().Last();
        TPictureCard& removed = OpenPictureCard(pictures, QStringLiteral("ChangePicture_BTN"));
        removed.Picture().PicDelete_BTN->Click();
        QTest::keyClick(&removed, Qt::Key_F2);
        QTRY_COMPARE(rows.RecordCount(), before);
        QCOMPARE(Stored(QStringLiteral("آبی.jpg")), 0);
    }

    void whatIsNoPictureIsToldAndCannotBeSaved()
    {
        TRecordPictures& pictures = OpenCard(PersonsList());
        QTRY_VERIFY(pictures.Viewer().Display_QRY->Active());
        TPictureCard& card = OpenPictureCard(pictures, QStringLiteral("AddPicture_BTN"));
        const auto* save = card.findChild<TSmartButton_TRV*>(QStringLiteral("Save_BTN"));
        QVERIFY(!save->isEnabled());
        Choose(card, NewPicture(QStringLiteral("a.jpeg"), Qt::red));
        QVERIFY2(card.Note().contains(QStringLiteral(".jpg")), qPrintable(card.Note()));
        const QString corrupt = shop_->Folder.filePath(QStringLiteral("corrupt.jpg"));
        QFile file(corrupt);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("corrupt") > 0);
        file.close();
        Choose(card, corrupt);
        QVERIFY2(card.Note().contains(QStringLiteral("عکس درستی نیست")), qPrintable(card.Note()));
        QVERIFY(!save->isEnabled());
        QVERIFY(!card.Save());
        // A file that goes away between choosing and saving.
        const QString gone = NewPicture(QStringLiteral("gone.jpg"), Qt::red);
        Choose(card, gone);
        QVERIFY(save->isEnabled());
        QVERIFY(QFile::remove(gone));
        QVERIFY(!card.Save());
        QVERIFY2(card.Note().contains(QStringLiteral("خوانده نشد")), qPrintable(card.Note()));
        card.Picture().ClearPic();
        card.reject();
    }

    void closingWithAChangedPictureAsks()
    {
        TRecordPictures& pictures = OpenCard(PersonsList());
        QTRY_VERIFY(pictures.Viewer().Display_QRY->Active());
        TPictureCard& card = OpenPictureCard(pictures, QStringLiteral("AddPicture_BTN"));
        Choose(card, NewPicture(QStringLiteral("d.jpg"), Qt::red));
        QString question;
        QTimer::singleShot(0, &card, [&question] {
            auto* box = qobject_cast<TMessageDialog*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            question = box->Text();
            box->reject();
        });
        QTest::keyClick(&card, Qt::Key_Escape);
        QVERIFY2(question.contains(QStringLiteral("ذخیره نشده")), qPrintable(question));
        QVERIFY(card.isVisible());
        card.Picture().ClearPic();
        card.reject();
    }

private:
    TRecordPictures& OpenCard(const TListDescription& description)
    {
        TListForm& list = shop_->OpenList(description);
        list.DataSet().First();
        shop_->Press(Qt::Key_Return);
        return *shop_->WaitForCard()->Pictures();
    }
    QString Code(int row) const { return shop_->Text(row, QStringLiteral("Code")); }
    QString NewPicture(const QString& name, const QColor& color) const
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(color);
        const QString path = shop_->Folder.filePath(name);
        return image.save(path, "JPG") ? path : QString();
    }
    /// How many pictures of the gallery have a name.
    int Stored(const QString& name)
    {
        TADOQuery query;
        query.SetConnection(&shop_->Connection);
        query.SQL.SetText(QStringLiteral("SELECT COUNT(*) FROM dbo.PhotoGallery WHERE name = ?"));
        query.Parameters = {name};
        query.Open();
        return query.Field(0)->AsInteger();
    }
    TPictureCard& OpenPictureCard(TRecordPictures& pictures, const QString& button)
    {
        auto* opener = pictures.findChild<QPushButton*>(button);
        opener->setFocus();
        QTest::keyClick(opener, Qt::Key_Space);
        const QList<TPictureCard*> cards = pictures.window()->findChildren<TPictureCard*>();
        TPictureCard& card = *cards.constLast();
        TShopFixture::Activate(&card);
        return card;
    }
    /// Presses the button that chooses a picture and types a file's name into the window that opens.
    static void Choose(TPictureCard& card, const QString& file)
    {
        QTimer::singleShot(0, &card, [file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(file);
            QTest::keyClick(name, Qt::Key_Return);
        });
        TSmartButton_TRV* button = card.Picture().PicInsert_BTN;
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        TShopFixture::Activate(&card);
    }

    std::unique_ptr<TListFormFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunFormTest<RecordPicturesTest>(argc, argv);
}
#include "RecordPicturesTest.moc"
