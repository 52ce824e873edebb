#include "FormFixture.h"

#include "Balloon.h"
#include "CategoryCard.h"
#include "CategoryDetails.h"
#include "CategoryForm.h"
#include "MirroredTreeView.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

class CategoryFormTest : public TFormTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeShowsTheTopLevelAndOpensByMirroredArrows()
    {
        QVERIFY(form_->Tree().hasFocus());
        QCOMPARE(form_->Model().rowCount(), Number(QStringLiteral("SELECT COUNT(*) FROM dbo.category WHERE "
                                                                  "parent_code = 0")));
        form_->Show(IdOf(QStringLiteral("کالاها")));
        shop_->Press(Qt::Key_Left);
        QCOMPARE(Field(form_->CurrentId(), QStringLiteral("parent_code")).toInt(),
                 IdOf(QStringLiteral("کالاها")));
        shop_->Press(Qt::Key_Right);
        QCOMPARE(form_->CurrentId(), IdOf(QStringLiteral("کالاها")));
    }

    void aSubcategoryIsAddedByKeys()
    {
        const int parent = IdOf(QStringLiteral("مواد غذایی"));
        form_->Show(parent);
        TCategoryCard* card = OpenCard(Qt::Key_Insert);
        QVERIFY(card->Name().hasFocus());
        Type(card, QStringLiteral("سبزی, میوه"));
        QCOMPARE(card->Name().Text(), QStringLiteral("سبزی، میوه"));
        Press(card, Qt::Key_Return);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Field(form_->CurrentId(), QStringLiteral("name")), QStringLiteral("سبزی، میوه"));
        QCOMPARE(Field(form_->CurrentId(), QStringLiteral("parent_code")).toInt(), parent);
        QVERIFY(form_->Tree().isExpanded(IndexOf(parent)));
    }

    void aPastedCommaBecomesThePersianOneToo()
    {
        TCategoryCard* card = OpenCard(Qt::Key_N, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(QStringLiteral("الف,ب"));
        QTest::keyClick(card->focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(card->Name().Text(), QStringLiteral("الف،ب"));
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        Press(card, Qt::Key_Escape);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(IdOf(QStringLiteral("الف،ب")), 0);
    }

    void anEmptyNameIsToldAtTheEditAndNothingIsWritten()
    {
        const int before = Number(QStringLiteral("SELECT COUNT(*) FROM dbo.category"));
        TCategoryCard* card = OpenCard(Qt::Key_N, Qt::ControlModifier);
        Press(card, Qt::Key_Return);
        QVERIFY(form_->Card() != nullptr);
        QVERIFY(card->Name().HasError());
        QVERIFY(Balloon::ShownText().contains(QStringLiteral("نام")));
        Type(card, QString(150, u'ب'));
        QCOMPARE(card->Name().Text().size(), 100);
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        Press(card, Qt::Key_Escape);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.category")), before);
    }

    void aCategoryIsRenamed()
    {
        const int id = NewTop(QStringLiteral("نام پیشین"));
        TCategoryCard* card = OpenCard(Qt::Key_F2);
        QCOMPARE(card->Name().Text(), QStringLiteral("نام پیشین"));
        Type(card, QStringLiteral("نام پسین"));
        Press(card, Qt::Key_F2);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Field(id, QStringLiteral("name")), QStringLiteral("نام پسین"));
        QCOMPARE(form_->CurrentId(), id);
    }

    void repeatedNamesAreToldApart()
    {
        const int first = NewTop(QStringLiteral("دوقلو"));
        const int second = NewTop(QStringLiteral("دوقلو"));
        QVERIFY(first != second);
        QCOMPARE(IndexOf(first).siblingAtColumn(TCategoryTreeModel::IdColumn).data().toInt(), first);
        QTRY_VERIFY(form_->Details().NamesakeText().contains(u'1'));
        form_->Show(IdOf(QStringLiteral("مواد غذایی")));
        QTRY_VERIFY(form_->Details().NamesakeText().isEmpty());
    }

    void aCategoryIsMovedByKeysAfterTheUserHasSaidSo()
    {
        const int id = NewTop(QStringLiteral("رونده"));
        const int target = IdOf(QStringLiteral("مواد غذایی"));
        shop_->Press(Qt::Key_X, Qt::ControlModifier);
        QVERIFY(form_->HintText().contains(QStringLiteral("رونده")));
        form_->Show(target);
        shop_->Answers = {QStringLiteral("خیر")};
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shop_->Told.size(), 1);
        QCOMPARE(Field(id, QStringLiteral("parent_code")), QStringLiteral("0"));
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Field(id, QStringLiteral("parent_code")).toInt(), target);
        QCOMPARE(Field(id, QStringLiteral("path")),
                 Field(target, QStringLiteral("path")) + QString::number(id) + u',');
        QCOMPARE(form_->CurrentId(), id);
        shop_->Press(Qt::Key_X, Qt::ControlModifier);
        shop_->Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Field(id, QStringLiteral("parent_code")), QStringLiteral("0"));
    }

    void escapePutsAPickedUpCategoryBack()
    {
        const int id = NewTop(QStringLiteral("برداشته"));
        shop_->Press(Qt::Key_X, Qt::ControlModifier);
        shop_->Press(Qt::Key_Escape);
        form_->Show(IdOf(QStringLiteral("مواد غذایی")));
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(shop_->Told.isEmpty());
        QCOMPARE(Field(id, QStringLiteral("parent_code")), QStringLiteral("0"));
    }

    void aMoveUnderItselfIsRefused()
    {
        const int root = IdOf(QStringLiteral("کالاها"));
        form_->Show(root);
        shop_->Press(Qt::Key_X, Qt::ControlModifier);
        form_->Show(IdOf(QStringLiteral("برنج ایرانی")));
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shop_->Told.size(), 1);
        QVERIFY2(shop_->Told.constFirst().contains(QStringLiteral("خودش")),
                 qPrintable(shop_->Told.constFirst()));
        QCOMPARE(Field(root, QStringLiteral("parent_code")), QStringLiteral("0"));
    }

    void aCategoryIsMovedByTheMouse()
    {
        const int id = NewTop(QStringLiteral("کشیده"));
        const int target = IdOf(QStringLiteral("اشخاص"));
        Drop(id, form_->Tree().visualRect(IndexOf(target)).center());
        QTRY_COMPARE(Field(id, QStringLiteral("parent_code")).toInt(), target);
        QCOMPARE(shop_->Told.size(), 1);
        Drop(id, {form_->Tree().viewport()->width() / 2, form_->Tree().viewport()->height() - 5});
        QTRY_COMPARE(Field(id, QStringLiteral("parent_code")), QStringLiteral("0"));
    }

    void aCategoryIsNotDroppedUnderItself()
    {
        const int root = IdOf(QStringLiteral("کالاها"));
        const int child = IdOf(QStringLiteral("مواد غذایی"));
        form_->Show(child);
        Drop(root, form_->Tree().visualRect(IndexOf(child)).center());
        QTest::qWait(50);
        QVERIFY(shop_->Told.isEmpty());
        QCOMPARE(Field(root, QStringLiteral("parent_code")), QStringLiteral("0"));
    }

    void deletingIsAskedAboutAndRefusedWhileUsed()
    {
        const int id = NewTop(QStringLiteral("رفتنی"));
        shop_->Answers = {QStringLiteral("خیر")};
        shop_->Press(Qt::Key_Delete);
        QCOMPARE(IdOf(QStringLiteral("رفتنی")), id);
        shop_->Press(Qt::Key_Delete);
        QCOMPARE(IdOf(QStringLiteral("رفتنی")), 0);
        QVERIFY(form_->CurrentId() > 0);
        const int used = IdOf(QStringLiteral("برنج ایرانی"));
        form_->Show(used);
        shop_->Told.clear();
        shop_->Press(Qt::Key_Delete);
        QTRY_COMPARE(shop_->Told.size(), 2);
        QVERIFY2(shop_->Told.constLast().contains(QStringLiteral("کالا")),
                 qPrintable(shop_->Told.constLast()));
        QCOMPARE(IdOf(QStringLiteral("برنج ایرانی")), used);
    }

    void theSearchKeepsTheMatchesWithWhatIsAboveThem()
    {
        form_->Show(IdOf(QStringLiteral("اشخاص")));
        shop_->Type(QStringLiteral("برنج"));
        QCOMPARE(form_->SearchEdit().Text(), QStringLiteral("برنج"));
        const int first = form_->CurrentId();
        QVERIFY(Field(first, QStringLiteral("name")).contains(QStringLiteral("برنج")));
        QVERIFY(form_->HintText().contains(QStringLiteral("پیدا شد")));
        shop_->Press(Qt::Key_Return);
        QVERIFY(form_->CurrentId() != first);
        QVERIFY(Field(form_->CurrentId(), QStringLiteral("name")).contains(QStringLiteral("برنج")));
        shop_->Press(Qt::Key_Escape);
        QCOMPARE(form_->Model().Outline().MatchingPlaces().size(), 0);
        QVERIFY(form_->SearchEdit().Text().isEmpty());
    }

    void theUsersDefaultsAreChosenByTheBoxes()
    {
        form_->Show(IdOf(QStringLiteral("برنج ایرانی")));
        QTRY_VERIFY(form_->Details().UseText().contains(QStringLiteral("کالاها")));
        QTest::mouseClick(&form_->Details().GoodsBox(), Qt::LeftButton, Qt::NoModifier,
                          {form_->Details().GoodsBox().width() - 10, 10});
        QCOMPARE(Default(QStringLiteral("Good")), form_->CurrentId());
        form_->Show(IdOf(QStringLiteral("مشتریان عمده")));
        QTRY_VERIFY(!form_->Details().GoodsBox().Checked());
        form_->Details().PersonsBox().click();
        QCOMPARE(Default(QStringLiteral("Person")), form_->CurrentId());
        QCOMPARE(Default(QStringLiteral("Good")), IdOf(QStringLiteral("برنج ایرانی")));
        form_->Details().PersonsBox().click();
        QCOMPARE(Default(QStringLiteral("Person")), 0);
    }

    void whatIsOpenStaysOpenWhenTheCategoriesAreReadAgain()
    {
        const int leaf = IdOf(QStringLiteral("برنج ایرانی"));
        form_->Show(leaf);
        shop_->Connection.Execute(
            QStringLiteral("INSERT INTO dbo.category (parent_code, name) VALUES (0, N'آآآ')"));
        shop_->Press(Qt::Key_F5);
        QCOMPARE(form_->CurrentId(), leaf);
        QVERIFY(form_->Tree().isExpanded(IndexOf(IdOf(QStringLiteral("مواد غذایی")))));
        QVERIFY(IndexOf(IdOf(QStringLiteral("آآآ"))).isValid());
    }

    void aTableThatIsNoTreeIsShownAndCanBeMended()
    {
        const int one = NewTop(QStringLiteral("حلقه یک"));
        const int two = NewTop(QStringLiteral("حلقه دو"));
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.category SET parent_code = %1 WHERE id = %2").arg(two).arg(one));
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.category SET parent_code = %1 WHERE id = %2").arg(one).arg(two));
        shop_->Press(Qt::Key_F5);
        QVERIFY(IndexOf(one).isValid());
        form_->Show(one);
        shop_->Press(Qt::Key_X, Qt::ControlModifier);
        shop_->Press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Field(one, QStringLiteral("parent_code")), QStringLiteral("0"));
        QCOMPARE(Field(two, QStringLiteral("path")), QStringLiteral(",%1,%2,").arg(one).arg(two));
    }

    void twelveThousandCategoriesAreReadAndShown()
    {
        QVector<TCategoryRow> rows;
        for (int id = 1; id <= 12000; ++id)
            rows.append({id, id / 10, QStringLiteral("دسته %1").arg(id)});
        form_->Model().Fill(rows);
        form_->Show(12000);
        QCOMPARE(form_->CurrentId(), 12000);
        QCOMPARE(form_->Model().Outline().CountUnder(form_->Model().Outline().Find(1)), 1110 + 2001);
        form_->SearchEdit().SetText(QStringLiteral("1199"));
        QCOMPARE(form_->Model().Outline().MatchingPlaces().size(), 12);
    }

private:
    void Prepare() override { form_ = &shop_->Open<TCategoryForm>(); }

    int Number(const QString& statement) { return shop_->Number(statement); }
    QString Field(int id, const QString& column)
    {
        return shop_->Text(QStringLiteral("SELECT %1 FROM dbo.category WHERE id = %2").arg(column).arg(id));
    }
    int IdOf(const QString& name)
    {
        return Number(QStringLiteral("SELECT MAX(id) FROM dbo.category WHERE name = N'%1'").arg(name));
    }
    int Default(const QString& column)
    {
        return Number(
            QStringLiteral(
                "SELECT MAX(Code_category) FROM dbo.DefaultUserCategory WHERE user_code = 1 AND %1 = 1")
                .arg(column));
    }
    QModelIndex IndexOf(int id) { return form_->Model().IndexOf(form_->Model().Outline().Find(id)); }
    TCategoryCard* OpenCard(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        shop_->Press(key, modifiers);
        if (form_->Card() != nullptr)
            TFormFixture::Activate(form_->Card());
        return form_->Card();
    }
    int NewTop(const QString& name)
    {
        TCategoryCard* card = OpenCard(Qt::Key_N, Qt::ControlModifier);
        Type(card, name);
        Press(card, Qt::Key_Return);
        [this] { QTRY_VERIFY(form_->Card() == nullptr); }();
        return form_->CurrentId();
    }
    static void Press(TCategoryCard* card, Qt::Key key)
    {
        QTest::keyClick(card->focusWidget() != nullptr ? card->focusWidget() : card, key);
        QCoreApplication::processEvents();
    }
    static void Type(TCategoryCard* card, const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, card->focusWidget(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }
    /// The events that the toolkit sends when a row is dragged over the tree and let go.
    void Drop(int id, const QPoint& position)
    {
        const std::unique_ptr<QMimeData> data(form_->Model().mimeData({IndexOf(id)}));
        QWidget* viewport = form_->Tree().viewport();
        QDragEnterEvent enter(position, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(position, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        if (!move.isAccepted())
            return;
        QDropEvent drop(QPointF(position), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &drop);
    }

    TCategoryForm* form_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<CategoryFormTest>(argc, argv);
}
#include "CategoryFormTest.moc"
