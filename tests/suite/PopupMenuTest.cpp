#include "PopupMenu.h"

#include "ActiveWindow.h"
#include "Look.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QStringList>
#include <QTest>

namespace {

constexpr int Thousand = 1000;

QStringList ShownCaptions(const TPopupMenu& menu)
{
    QStringList captions;
    for (int index = 0; index < menu.Count(); ++index) {
        if (menu.Item(index)->isVisible())
            captions.append(menu.Item(index)->Caption());
    }
    return captions;
}

void Type(QWidget& menu, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &menu, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

} // namespace

class PopupMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window_ = std::make_unique<QWidget>();
        window_->resize(300, 200);
        window_->show();
        QVERIFY(ActiveWindow::Activate(window_.get()));
        menu_ = new TPopupMenu(window_.get());
        chosen_.clear();
    }

    void cleanup() { window_.reset(); }

    void aChosenItemTellsItsHandler()
    {
        Add(QStringLiteral("یک"), 5);
        Add(QStringLiteral("دو"), 7);
        Open();
        QTest::keyClick(menu_, Qt::Key_Down);
        QTest::keyClick(menu_, Qt::Key_Down);
        QTest::keyClick(menu_, Qt::Key_Return);
        QCOMPARE(chosen_, QStringList{QStringLiteral("دو:7")});
        QVERIFY(!menu_->isVisible());
        Open();
        QTest::mouseClick(menu_, Qt::LeftButton, Qt::NoModifier,
                          menu_->actionGeometry(menu_->Item(0)).center());
        QCOMPARE(chosen_.last(), QStringLiteral("یک:5"));
    }

    void aCentredMenuLiesUnderItsPointAndOnTheScreen()
    {
        Add(QStringLiteral("یک دستهٔ بسیار بلند"), 1);
        menu_->SetCentred(true);
        const QRect room = menu_->screen()->availableGeometry();
        menu_->Popup(room.center());
        QVERIFY(qAbs(menu_->geometry().center().x() - room.center().x()) <= 1);
        menu_->close();
        menu_->Popup(room.topLeft());
        QCOMPARE(menu_->geometry().left(), room.left());
        menu_->close();
        menu_->Popup(room.topRight());
        QCOMPARE(menu_->geometry().right(), room.right());
        menu_->close();
    }

    void aMenuWithoutItemsStaysClosed()
    {
        menu_->Popup(window_->mapToGlobal(QPoint(10, 10)));
        QVERIFY(!menu_->isVisible());
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void anAmpersandIsASignAndNoHotKey()
    {
        Add(QStringLiteral("R&D"), 1);
        QCOMPARE(menu_->Item(0)->text(), QStringLiteral("\u2068R&&D\u2069"));
        QCOMPARE(menu_->Item(0)->Caption(), QStringLiteral("R&D"));
        Add(QStringLiteral("یک\tدو\nسه"), 2);
        QVERIFY(!menu_->Item(1)->text().contains(u'\t'));
        QVERIFY(!menu_->Item(1)->text().contains(u'\n'));
        Open();
        Type(*menu_, QStringLiteral("d"));
        QVERIFY(chosen_.isEmpty());
        QVERIFY(menu_->isVisible());
    }

    void anItemShowsThePictureOfItsIndex()
    {
        QImage red(16, 16, QImage::Format_ARGB32);
        red.fill(Qt::red);
        menu_->SetImages({QImage(), red});
        Add(QStringLiteral("بی‌تصویر"), 1, 7);
        Add(QStringLiteral("سرخ"), 2, 1);
        QVERIFY(menu_->Item(0)->icon().isNull());
        Open();
        QImage picture = menu_->grab().toImage();
        const QRect row = menu_->actionGeometry(menu_->Item(1));
        int reds = 0;
        for (int x = row.left(); x <= row.right(); ++x)
            reds += picture.pixelColor(x, row.center().y()) == QColor(Qt::red) ? 1 : 0;
        QCOMPARE(reds, 16);
        QCOMPARE(picture.pixelColor(row.right() - 20, row.center().y()), QColor(Qt::red));
    }

    void typingNarrowsTheMenuAsAPersianReaderCompares()
    {
        Add(QStringLiteral("شیر پرچرب"), 1);
        Add(QStringLiteral("پنیر"), 2);
        Add(QStringLiteral("نان شيرمال"), 3);
        Open();
        Type(*menu_, QStringLiteral("شیر"));
        QCOMPARE(ShownCaptions(*menu_),
                 (QStringList{QStringLiteral("شیر پرچرب"), QStringLiteral("نان شيرمال")}));
        QCOMPARE(menu_->activeAction(), menu_->Item(0));
        Type(*menu_, QStringLiteral("م"));
        QCOMPARE(ShownCaptions(*menu_), QStringList{QStringLiteral("نان شيرمال")});
        QTest::keyClick(menu_, Qt::Key_Return);
        QCOMPARE(chosen_, QStringList{QStringLiteral("نان شيرمال:3")});
        Open();
        QCOMPARE(ShownCaptions(*menu_).size(), 3);
        QCOMPARE(menu_->FindText(), QString());
    }

    void backspaceWidensAndEscapeFirstEmptiesWhatWasTyped()
    {
        Add(QStringLiteral("سیب"), 1);
        Add(QStringLiteral("سیر"), 2);
        Open();
        Type(*menu_, QStringLiteral("سیر"));
        QCOMPARE(ShownCaptions(*menu_).size(), 1);
        QTest::keyClick(menu_, Qt::Key_Backspace);
        QCOMPARE(menu_->FindText(), QStringLiteral("سی"));
        QCOMPARE(ShownCaptions(*menu_).size(), 2);
        QTest::keyClick(menu_, Qt::Key_Escape);
        QVERIFY(menu_->isVisible());
        QCOMPARE(menu_->FindText(), QString());
        QCOMPARE(menu_->activeAction(), nullptr);
        QTest::keyClick(menu_, Qt::Key_Escape);
        QVERIFY(!menu_->isVisible());
    }

    void whatIsNotThereIsSaidAndChoosesNothing()
    {
        Add(QStringLiteral("سیب"), 1);
        Open();
        Type(*menu_, QStringLiteral("گیلاس"));
        QVERIFY(ShownCaptions(*menu_).isEmpty());
        const auto* label = menu_->findChild<QLabel*>();
        QVERIFY(label->isVisible());
        QVERIFY(label->text().contains(QStringLiteral("پیدا نشد")));
        QTest::keyClick(menu_, Qt::Key_Return);
        QVERIFY(chosen_.isEmpty());
    }

    void aMenuIsAsWideAndItsItemsAsHighAsThoseThatAreMeasuredSingly()
    {
        const QStringList captions{QStringLiteral("میوه"), QStringLiteral("لباس زمستانی 12"),
                                   QStringLiteral("ششششششش"), QStringLiteral("اااااااااا"),
                                   QStringLiteral("WWWWWWW")};
        int widest = 0;
        for (const QString& caption : captions) {
            Add(caption, 0);
            Open();
            widest = qMax(widest, menu_->width());
            QCOMPARE(menu_->actionGeometry(menu_->Item(0)).height(), menu_->fontMetrics().height() + 8);
            menu_->close();
            menu_->Clear();
        }
        for (int copy = 0; copy < 20; ++copy) {
            for (const QString& caption : captions)
                Add(caption, 0);
        }
        Open();
        QCOMPARE(menu_->width(), widest);
        for (int index = 1; index < menu_->Count(); ++index)
            QCOMPARE(menu_->actionGeometry(menu_->Item(index)).size(),
                     menu_->actionGeometry(menu_->Item(0)).size());
    }

    void aThousandItemsScrollInOneColumn()
    {
        AddThousand();
        Open();
        const QRect screen = window_->screen()->geometry();
        QVERIFY(menu_->height() <= screen.height());
        QVERIFY(menu_->width() < screen.width() / 2);
        QTest::keyClick(menu_, Qt::Key_Up);
        QCOMPARE(menu_->activeAction(), menu_->Item(Thousand - 1));
        QVERIFY(ShowsSelection());
        QTest::keyClick(menu_, Qt::Key_Return);
        QCOMPARE(chosen_, QStringList{QStringLiteral("برچسب 999:999")});
    }

    void typingFindsOneOfAThousandFromAnywhere()
    {
        AddThousand();
        Open();
        const int right = menu_->geometry().right();
        QTest::keyClick(menu_, Qt::Key_Up);
        Type(*menu_, QStringLiteral("۷۳۵"));
        QCOMPARE(ShownCaptions(*menu_), QStringList{QStringLiteral("برچسب 735")});
        QVERIFY(menu_->height() < 120);
        QCOMPARE(menu_->geometry().right(), right);
        QVERIFY(menu_->rect().contains(menu_->actionGeometry(menu_->Item(735))));
        QTest::mouseClick(menu_, Qt::LeftButton, Qt::NoModifier,
                          menu_->actionGeometry(menu_->Item(735)).center());
        QCOMPARE(chosen_, QStringList{QStringLiteral("برچسب 735:735")});
    }

    void aHandlerMayFillTheMenuAnew()
    {
        TMenuItem* first = Add(QStringLiteral("یک"), 1);
        first->OnClick = [this](QObject* /*Sender*/) {
            menu_->Clear();
            Add(QStringLiteral("تازه"), 9);
        };
        Open();
        QTest::keyClick(menu_, Qt::Key_Down);
        QTest::keyClick(menu_, Qt::Key_Return);
        QCOMPARE(menu_->Count(), 1);
        QCOMPARE(menu_->Item(0)->Tag, 9);
        Open();
        QTest::keyClick(menu_, Qt::Key_Down);
        QTest::keyClick(menu_, Qt::Key_Return);
        QCOMPARE(chosen_, QStringList{QStringLiteral("تازه:9")});
    }

    void anIndexOutsideTheItemsIsAnError()
    {
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, menu_->Item(0));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, menu_->Item(-1));
    }

private:
    TMenuItem* Add(const QString& caption, int tag, int image = -1)
    {
        TMenuItem* item = menu_->AddItem(caption, tag, image);
        item->OnClick = [this](QObject* Sender) {
            const auto* clicked = qobject_cast<TMenuItem*>(Sender);
            chosen_.append(clicked->Caption() + u':' + QString::number(clicked->Tag));
        };
        return item;
    }

    void AddThousand()
    {
        for (int index = 0; index < Thousand; ++index)
            Add(QStringLiteral("برچسب %1").arg(index), index);
    }

    bool ShowsSelection() const
    {
        const QImage picture = menu_->grab().toImage();
        const QRgb selection = Look::Color(Look::TRole::Selection).rgb();
        int pixels = 0;
        for (int y = 0; y < picture.height(); ++y)
            pixels += picture.pixel(picture.width() / 4, y) == selection ? 1 : 0;
        return pixels >= Look::GroupGap;
    }

    void Open()
    {
        menu_->Popup(window_->mapToGlobal(QPoint(10, 10)));
        QVERIFY(QTest::qWaitForWindowExposed(menu_));
    }

    std::unique_ptr<QWidget> window_;
    TPopupMenu* menu_ = nullptr;
    QStringList chosen_;
};

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Look::Install(application, Look::TScheme::Light);
    PopupMenuTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PopupMenuTest.moc"
