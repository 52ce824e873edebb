#include "Category_Search_UNT.h"
#include "CategoryForm.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "TestCase.h"

#include <QtTest>
#include <stdexcept>

using namespace CategoryTexts;

/// The frame as its owner uses it: its parts, its opening, its operations.
class CategoryFrameTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFrameHasItsParts();
    void openingFillsMenuAndCompletion();
    void openingKeepsTheOwnersBubblesUnlessTold();
    void theListOfNamesIsSharedByAllFrames();
    void aTopLevelCategoryIsOneBubble();
    void aThirdLevelCategoryIsThreeBubblesAndOffersItsChildren();
    void thePathToTheParentOffersTheSiblings();
    void thePathToTheParentOfATopLevelCategoryIsEmpty();
    void aPathHasNoOtherMode();
    void aMissingCategoryLeavesNothing();
    void aMissingAncestorShortensThePath();
    void aCircleLeavesThePathAsItWas();
    void aMenuWithoutChildrenIsEmpty();
    void aMenuListsNamesThatAreAlikeOnceWithTheSmallestId();
    void aCategoryIsChosenByItsName();
    void anUnknownNameChangesNothing();
    void aBubbleIsFoundByItsExactText();
    void theListsOfAllAreReturned();
    void theFilteredListFails();
    void aFrameWithoutItsTableFailsWithAnError();

private:
    using TForm = TCategoryForm<TCategory_frame>;

    void Prepare() override { form_ = std::make_unique<TForm>(); }
    void Finish() override { form_.reset(); }
    TCategory_frame& Frame() { return *form_->Frame; }
    QStringList Sent() const { return form_->Tables.Statements; }

    std::unique_ptr<TForm> form_;
};

void CategoryFrameTest::theFrameHasItsParts()
{
    QCOMPARE(TCategory_frame(nullptr).size(), QSize(500, 34));
    QCOMPARE(Frame().SmartLabel_TRV1->Caption(), QStringLiteral("&دسته :"));
    QVERIFY(Frame().SmartLabel_TRV1->font().bold());
    QCOMPARE(Frame().Editor->Separator(), QChar(u';'));
    QCOMPARE(Frame().Editor->Color(), 0xFFFFFFU);
    QCOMPARE(Frame().Editor->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(Frame().Editor->PopupMenu(), static_cast<QMenu*>(Frame().PopupMenu1));
    QCOMPARE(Frame().PopupMenu1->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(Frame().tmpds->DataSet(), static_cast<TDataSet*>(Frame().tmpqry));
    QCOMPARE(Frame().tmpqry->Connection(), &form_->Tables.Connection);
    QVERIFY(form_->Start());
    QCOMPARE(Frame().Select_btn->width(), 30);
    QVERIFY(Frame().SmartLabel_TRV1->x() > Frame().Editor->geometry().right());
    QVERIFY(Frame().Editor->x() > Frame().Select_btn->geometry().right());
    QVERIFY(!Frame().Select_btn->OnClick);
    QCOMPARE(Sent(), QStringList());
}

void CategoryFrameTest::openingFillsMenuAndCompletion()
{
    Frame().open(true);
    QCOMPARE(Sent(), Menu(0, "(1,4)") + QStringList({CategoryTexts::All(), CategoryTexts::All(),
                                                     QStringLiteral("SELECT * from category")}));
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
    const TAdvListValues& lookup = Frame().Editor->Lookup();
    QCOMPARE(lookup.Count(), 7);
    QCOMPARE(lookup[4].DisplayText, QStringLiteral("چکش"));
    QCOMPARE(lookup[4].Value, QString());
    QCOMPARE(lookup[4].ImageIndex, 2);
    QVERIFY(Frame().tmpqry->Active());
}

void CategoryFrameTest::openingKeepsTheOwnersBubblesUnlessTold()
{
    Frame().Editor->SetRightToLeft(false);
    Frame().Editor->Values().AddPair(QStringLiteral("کالا"), QStringLiteral("1"), 0);
    Frame().open(false);
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
    QCOMPARE(Frame().Editor->layoutDirection(), Qt::RightToLeft);
    Frame().open(true);
    QCOMPARE(form_->Bubbles(), QStringList());
}

void CategoryFrameTest::theListOfNamesIsSharedByAllFrames()
{
    Frame().open(true);
    QVERIFY(Frame().Existinmenu(QStringLiteral("چکش")));
    QVERIFY(!Frame().Existinmenu(QStringLiteral("میخ")));
    form_->Tables.Add(60, 0, QStringLiteral("میخ"));
    TCategory_frame other;
    other.open(true);
    QVERIFY(Frame().Existinmenu(QStringLiteral("میخ")));
    QVERIFY(!Frame().Existinmenu(QStringLiteral("می")));
    form_->Tables.Execute(QStringLiteral("DELETE FROM category WHERE id = 60"));
    QVERIFY(Frame().Existinmenu(QStringLiteral("میخ")));
    Frame().open(true);
    QVERIFY(!other.Existinmenu(QStringLiteral("میخ")));
}

void CategoryFrameTest::aTopLevelCategoryIsOneBubble()
{
    Frame().create_bubble(1, 1);
    QCOMPARE(Sent(), Path({1}) + Menu(1, "(2,3)"));
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
}

void CategoryFrameTest::aThirdLevelCategoryIsThreeBubblesAndOffersItsChildren()
{
    Frame().create_bubble(7, 1);
    QCOMPARE(Sent(),
             QStringList({"select * from category where id = 7", "select * from category where id = 2",
                          "select * from category where id = 1", "select * from category where id = 0",
                          "select * from category where id = 0", "select * from category where id = 0"}) +
                 Menu(7, "(12)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2"}));
    QCOMPARE(form_->Offered(), QStringList("چکش چوبی|12|7"));
}

void CategoryFrameTest::thePathToTheParentOffersTheSiblings()
{
    Frame().create_bubble(7, 2);
    QCOMPARE(Sent(),
             QStringList({"select * from category where id = 7", "select * from category where id = 2",
                          "select * from category where id = 1", "select * from category where id = 0",
                          "select * from category where id = 0"}) +
                 Menu(2, "(7,8)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1"}));
    QCOMPARE(form_->Offered(), QStringList({"چکش|7|2", "استاد'کار|8|2"}));
}

void CategoryFrameTest::thePathToTheParentOfATopLevelCategoryIsEmpty()
{
    Frame().create_bubble(4, 1);
    form_->Forget();
    Frame().create_bubble(1, 2);
    QCOMPARE(Sent(), Path({1}) + Menu(1, "(2,3)"));
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"ابزار|2|1", "رنگ|3|1"}));
}

void CategoryFrameTest::aPathHasNoOtherMode()
{
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().create_bubble(1, 0));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().create_bubble(1, 3));
    QCOMPARE(Sent(), QStringList());
}

void CategoryFrameTest::aMissingCategoryLeavesNothing()
{
    Frame().create_bubble(7, 1);
    form_->Forget();
    Frame().create_bubble(99, 1);
    QCOMPARE(Sent(), QStringList(CategoryTexts::Category(99)) + Menu(0, "(1,4)"));
    QCOMPARE(form_->Bubbles(), QStringList());
}

void CategoryFrameTest::aMissingAncestorShortensThePath()
{
    form_->Tables.Add(50, 49, QStringLiteral("یتیم"));
    form_->Tables.Add(51, 50, QStringLiteral("فرزند"));
    form_->Forget();
    Frame().create_bubble(51, 1);
    QCOMPARE(form_->Bubbles(), QStringList({"یتیم|50|49", "فرزند|51|50"}));
    QCOMPARE(Sent().mid(0, 3), QStringList({CategoryTexts::Category(51), CategoryTexts::Category(50),
                                            CategoryTexts::Category(49)}));
    Frame().create_bubble(50, 2);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList("یتیم|50|49"));
}

void CategoryFrameTest::aCircleLeavesThePathAsItWas()
{
    Frame().create_bubble(8, 1);
    const QStringList bubbles = form_->Bubbles();
    const QStringList offered = form_->Offered();
    form_->Tables.Execute(QStringLiteral("UPDATE category SET parent_code = 7 WHERE id = 1"));
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().create_bubble(12, 1));
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().DrawItem(QStringLiteral("چکش چوبی")));
    QCOMPARE(form_->Bubbles(), bubbles);
    QCOMPARE(form_->Offered(), offered);
}

void CategoryFrameTest::aMenuWithoutChildrenIsEmpty()
{
    Frame().createmenuItemByCode(1);
    QCOMPARE(form_->Offered().size(), 2);
    Frame().createmenuItemByCode(8);
    QCOMPARE(form_->Offered(), QStringList());
    QCOMPARE(Sent().mid(2), Menu(8, "(-1)"));
    form_->Forget();
    Frame().Runfirst();
    QCOMPARE(Sent(), Menu(0, "(1,4)"));
}

void CategoryFrameTest::aMenuListsNamesThatAreAlikeOnceWithTheSmallestId()
{
    for (const int id : {62, 61, 63})
        form_->Tables.Add(id, 4, QStringLiteral("تعمیر"));
    Frame().createmenuItemByCode(4);
    QCOMPARE(form_->Offered(), QStringList("تعمیر|61|4"));
}

void CategoryFrameTest::aCategoryIsChosenByItsName()
{
    Frame().Editor->SetEditText(QStringLiteral("چک"));
    Frame().DrawItem(QStringLiteral("چکش"));
    QCOMPARE(Sent(), QStringList(CategoryTexts::Named("'چکش'")) + Path({7, 2, 1}) + Menu(7, "(12)") +
                         Menu(7, "(12)"));
    QCOMPARE(form_->Bubbles().last(), QStringLiteral("چکش|7|2"));
    QCOMPARE(Frame().Editor->EditText(), QString());
}

void CategoryFrameTest::anUnknownNameChangesNothing()
{
    Frame().create_bubble(2, 1);
    form_->Forget();
    Frame().Editor->SetEditText(QStringLiteral("می"));
    Frame().DrawItem(QStringLiteral("می"));
    QCOMPARE(Sent(), QStringList(CategoryTexts::Named("'می'")));
    QCOMPARE(form_->Bubbles().size(), 2);
    QCOMPARE(Frame().Editor->EditText(), QStringLiteral("می"));
}

void CategoryFrameTest::aBubbleIsFoundByItsExactText()
{
    Frame().Editor->Values().AddPair(QStringLiteral("Paint"), QStringLiteral("1"), 0);
    QVERIFY(Frame().exist(QStringLiteral("Paint")));
    QVERIFY(!Frame().exist(QStringLiteral("paint")));
    QVERIFY(!Frame().exist(QStringLiteral("Pain")));
    QVERIFY(!Frame().exist(QString()));
}

void CategoryFrameTest::theListsOfAllAreReturned()
{
    QCOMPARE(Frame().Fill_allPop(), QStringList({"1", "2", "3", "4", "7", "8", "12"}));
    QCOMPARE(Frame().Fill_allPopname().size(), 8);
    QCOMPARE(TCategory_frame::splitter(QStringLiteral("چکش,7,2"), 2), QStringLiteral("7"));
}

void CategoryFrameTest::theFilteredListFails()
{
    Frame().open(true);
    form_->Forget();
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().fill_pop(QStringLiteral("2")));
    QCOMPARE(Sent(), QStringList(Base() + QStringLiteral(" where id1= ORDER BY ID1 where id1 in "
                                                         "category_Subnodes(2,0,1)")));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().fill_pop(QStringLiteral("2) --")));
    QCOMPARE(Sent().size(), 1);
    QCOMPARE(Frame().Editor->Lookup().Count(), 7);
}

void CategoryFrameTest::aFrameWithoutItsTableFailsWithAnError()
{
    form_->Tables.Execute(QStringLiteral("DROP TABLE category"));
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().open(true));
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().create_bubble(1, 1));
}

QTEST_MAIN(CategoryFrameTest)
#include "CategoryFrameTest.moc"
