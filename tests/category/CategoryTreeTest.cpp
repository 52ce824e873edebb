#include "CategoryTree.h"
#include "CategoryTables.h"
#include "TestCase.h"

#include <QtTest>
#include <stdexcept>

using namespace CategoryTexts;

namespace {

QStringList Shown(const QVector<TCategoryRow>& categories)
{
    QStringList result;
    for (const TCategoryRow& category : categories)
        result.append(TCategoryTree::PathText(category));
    return result;
}

} // namespace

/// The tree by itself: what it asks, and what it makes of the answers.
class CategoryTreeTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theChildrenAreAskedForInTwoStatements_data();
    void theChildrenAreAskedForInTwoStatements();
    void aListThatIsNoneIsNotSentOn_data();
    void aListThatIsNoneIsNotSentOn();
    void theListOfAllHasOneRowForEachName();
    void allNamesAreThoseOfEveryRow();
    void aNameIsSoughtAsAQuotedLiteral_data();
    void aNameIsSoughtAsAQuotedLiteral();
    void theClimbAsksForEachAncestor();
    void theClimbEndsAtAMissingAncestor();
    void theClimbEndsAtAnAncestorBelowZero();
    void aCircleEndsTheClimbWithAMessage_data();
    void aCircleEndsTheClimbWithAMessage();
    void aMissingCategoryIsNothing();
    void theFilteredListIsRefusedByTheDatabase();
    void theFilteredListTakesDigitsOnly_data();
    void theFilteredListTakesDigitsOnly();
    void aPathTextSplitsAtItsCommas_data();
    void aPathTextSplitsAtItsCommas();
    void aCommaInANameShiftsTheBubble_data();
    void aCommaInANameShiftsTheBubble();
    void onlyDigitsAreANumber_data();
    void onlyDigitsAreANumber();
    void theTreeWithoutAConnectionSaysSo();

private:
    void Prepare() override
    {
        tables_ = std::make_unique<TCategoryTables>();
        tree_ = std::make_unique<TCategoryTree>(tables_->Query);
    }
    void Finish() override
    {
        tree_.reset();
        tables_.reset();
    }

    std::unique_ptr<TCategoryTables> tables_;
    std::unique_ptr<TCategoryTree> tree_;
};

void CategoryTreeTest::theChildrenAreAskedForInTwoStatements_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("ids");
    QTest::addColumn<QStringList>("children");
    QTest::newRow("top level") << 0 << "(1,4)" << QStringList({"کالا,1,0", "خدمات,4,0"});
    QTest::newRow("second level") << 1 << "(2,3)" << QStringList({"ابزار,2,1", "رنگ,3,1"});
    QTest::newRow("a name that a smaller id has too is not offered") << 3 << "(9)" << QStringList();
    QTest::newRow("no children") << 4 << "(-1)" << QStringList();
    QTest::newRow("no such category") << 99 << "(-1)" << QStringList();
    QTest::newRow("below zero") << -5 << "(-1)" << QStringList();
}

void CategoryTreeTest::theChildrenAreAskedForInTwoStatements()
{
    QFETCH(int, code);
    QFETCH(QString, ids);
    QFETCH(QStringList, children);
    QCOMPARE(Shown(tree_->Children(code)), children);
    QCOMPARE(tables_->Statements, Menu(code, ids));
    QVERIFY(tables_->Query.Active());
}

void CategoryTreeTest::aListThatIsNoneIsNotSentOn_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<bool>("isList");
    QTest::newRow("blanks") << QVariant("( 2 , 3 )") << true;
    QTest::newRow("null") << QVariant() << false;
    QTest::newRow("empty") << QVariant("") << false;
    QTest::newRow("no parentheses") << QVariant("2,3") << false;
    QTest::newRow("a statement") << QVariant("(2) DELETE FROM category") << false;
    QTest::newRow("a selection") << QVariant("(SELECT 1)") << false;
    QTest::newRow("digits of another script") << QVariant("(۲,۳)") << false;
    QTest::newRow("a comma too much") << QVariant("(2,)") << false;
    QTest::newRow("a line after it") << QVariant("(2)\n") << false;
}

void CategoryTreeTest::aListThatIsNoneIsNotSentOn()
{
    QFETCH(QVariant, answer);
    QFETCH(bool, isList);
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection.RegisterFunction(QStringLiteral("Category_SubNodes"), 3,
                                [answer](IFunctionContext&, const QVariantList&) { return answer; });
    connection.Open();
    connection.Execute(QStringLiteral(
        "CREATE TABLE dbo.category (id int NOT NULL, parent_code int NOT NULL, name nvarchar(100))"));
    int count = 0;
    connection.OnWillExecute = [&count](TADOConnection*, const QString&) { ++count; };
    TADOQuery query;
    query.SetConnection(&connection);
    const TCategoryTree tree(query);
    if (isList)
        QCOMPARE(tree.Children(1).size(), 0);
    else
        QVERIFY_THROWS_EXCEPTION(EADOError, tree.Children(1));
    QCOMPARE(count, isList ? 2 : 1);
}

void CategoryTreeTest::theListOfAllHasOneRowForEachName()
{
    QCOMPARE(Shown(tree_->All()), QStringList({"کالا,1,0", "ابزار,2,1", "رنگ,3,1", "خدمات,4,0", "چکش,7,2",
                                               "استاد'کار,8,2", "چکش چوبی,12,7"}));
    QCOMPARE(tables_->Statements, QStringList(CategoryTexts::All()));
}

void CategoryTreeTest::allNamesAreThoseOfEveryRow()
{
    QCOMPARE(tree_->AllNames(),
             QStringList({"کالا", "ابزار", "رنگ", "خدمات", "چکش", "استاد'کار", "چکش", "چکش چوبی"}));
    QCOMPARE(tables_->Statements, QStringList("SELECT * from category"));
}

void CategoryTreeTest::aNameIsSoughtAsAQuotedLiteral_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("literal");
    QTest::addColumn<int>("id");
    QTest::newRow("once") << "ابزار"
                          << "'ابزار'" << 2;
    QTest::newRow("twice, the smaller id") << "چکش"
                                           << "'چکش'" << 7;
    QTest::newRow("quote") << "استاد'کار"
                           << "'استاد''کار'" << 8;
    QTest::newRow("unknown") << "میخ"
                             << "'میخ'" << 0;
    QTest::newRow("empty") << ""
                           << "''" << 0;
    QTest::newRow("out of the literal") << "' OR 1=1 --"
                                        << "''' OR 1=1 --'" << 0;
    QTest::newRow("only quotes") << "''"
                                 << "''''''" << 0;
    QTest::newRow("wildcards") << "%]"
                               << "'%]'" << 20;
    QTest::newRow("emoji") << "🔨 چکش"
                           << "'🔨 چکش'" << 21;
    QTest::newRow("marks of direction") << "\u200Fچپ\u2067راست\u2069"
                                        << "'\u200Fچپ\u2067راست\u2069'" << 22;
}

void CategoryTreeTest::aNameIsSoughtAsAQuotedLiteral()
{
    QFETCH(QString, name);
    QFETCH(QString, literal);
    QFETCH(int, id);
    tables_->Add(20, 0, QStringLiteral("%]"));
    tables_->Add(21, 0, QStringLiteral("🔨 چکش"));
    tables_->Add(22, 0, QStringLiteral("\u200Fچپ\u2067راست\u2069"));
    const std::optional<TCategoryRow> found = tree_->Named(name);
    QCOMPARE(found ? found->Id : 0, id);
    if (found)
        QCOMPARE(found->Name, name);
    QCOMPARE(tables_->Statements, QStringList(CategoryTexts::Named(literal)));
}

void CategoryTreeTest::theClimbAsksForEachAncestor()
{
    QCOMPARE(Shown(tree_->PathTo({12, 7, QStringLiteral("چکش چوبی")})),
             QStringList({"کالا,1,0", "ابزار,2,1", "چکش,7,2", "چکش چوبی,12,7"}));
    QCOMPARE(tables_->Statements, QStringList({CategoryTexts::Category(7), CategoryTexts::Category(2),
                                               CategoryTexts::Category(1)}));
    tables_->Statements.clear();
    QCOMPARE(Shown(tree_->PathTo({4, 0, QStringLiteral("خدمات")})), QStringList("خدمات,4,0"));
    QCOMPARE(Shown(tree_->PathTo({4, -1, QStringLiteral("خدمات")})), QStringList("خدمات,4,-1"));
    QCOMPARE(tables_->Statements, QStringList());
}

void CategoryTreeTest::theClimbEndsAtAMissingAncestor()
{
    QCOMPARE(Shown(tree_->PathTo({50, 49, QStringLiteral("یتیم")})), QStringList("یتیم,50,49"));
    QCOMPARE(tables_->Statements, QStringList(CategoryTexts::Category(49)));
}

void CategoryTreeTest::theClimbEndsAtAnAncestorBelowZero()
{
    tables_->Add(30, -1, QStringLiteral("ریشه"));
    QCOMPARE(Shown(tree_->PathTo({31, 30, QStringLiteral("شاخه")})),
             QStringList({"ریشه,30,-1", "شاخه,31,30"}));
    QCOMPARE(tables_->Statements, QStringList({CategoryTexts::Category(30), CategoryTexts::Category(-1)}));
}

void CategoryTreeTest::aCircleEndsTheClimbWithAMessage_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("statements");
    QTest::newRow("of itself") << "UPDATE category SET parent_code = 12 WHERE id = 12" << 0;
    QTest::newRow("of two") << "UPDATE category SET parent_code = 12 WHERE id = 7" << 1;
    QTest::newRow("of all") << "UPDATE category SET parent_code = 12 WHERE id = 1" << 3;
    QTest::newRow("of its ancestors only") << "UPDATE category SET parent_code = 2 WHERE id = 1" << 3;
}

void CategoryTreeTest::aCircleEndsTheClimbWithAMessage()
{
    QFETCH(QString, change);
    QFETCH(int, statements);
    tables_->Execute(change);
    const TCategoryRow category = tree_->Category(12).value();
    tables_->Statements.clear();
    try {
        tree_->PathTo(category);
        QFAIL("the climb came to an end");
    } catch (const EADOError& error) {
        QVERIFY(error.Message().contains(QStringLiteral("«چکش چوبی»")));
        QCOMPARE(error.Kind(), TAdoErrorKind::Other);
    }
    QCOMPARE(tables_->Statements.size(), statements);
}

void CategoryTreeTest::aMissingCategoryIsNothing()
{
    QVERIFY(!tree_->Category(99));
    QCOMPARE(tables_->Statements, QStringList(CategoryTexts::Category(99)));
    QVERIFY(!tree_->FirstId(QStringLiteral("select * from kala_category where kala_code=99"),
                            QStringLiteral("category_code")));
    QCOMPARE(tree_->FirstId(QStringLiteral("select * from kala_category where kala_code=15"),
                            QStringLiteral("category_code")),
             std::optional(8));
}

void CategoryTreeTest::theFilteredListIsRefusedByTheDatabase()
{
    QVERIFY_THROWS_EXCEPTION(EADOError, tree_->Filtered(QStringLiteral("2")));
    QCOMPARE(tables_->Statements, QStringList(Base() + QStringLiteral(" where id1= ORDER BY ID1 where id1 in "
                                                                      "category_Subnodes(2,0,1)")));
}

void CategoryTreeTest::theFilteredListTakesDigitsOnly_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << "";
    QTest::newRow("sign") << "-1";
    QTest::newRow("statement") << "1,0,1) DROP TABLE category --";
    QTest::newRow("digits of another script") << "۱";
}

void CategoryTreeTest::theFilteredListTakesDigitsOnly()
{
    QFETCH(QString, id);
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, tree_->Filtered(id));
    QCOMPARE(tables_->Statements, QStringList());
}

void CategoryTreeTest::aPathTextSplitsAtItsCommas_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("name, id, parent") << "چکش,7,2" << QStringList({"چکش", "7", "2"});
    QTest::newRow("comma in the name") << "پیچ,مهره,7,2" << QStringList({"پیچ", "مهره", "7,2"});
    QTest::newRow("two fields") << "چکش,7" << QStringList({"چکش", "7", ""});
    QTest::newRow("one field") << "چکش" << QStringList({"چکش", "", ""});
    QTest::newRow("empty") << "" << QStringList({"", "", ""});
    QTest::newRow("only commas") << ",,,," << QStringList({"", "", ",,"});
    QTest::newRow("comma at the end") << "چکش,7," << QStringList({"چکش", "7", ""});
}

void CategoryTreeTest::aPathTextSplitsAtItsCommas()
{
    QFETCH(QString, text);
    QFETCH(QStringList, fields);
    for (quint8 field = 1; field <= 3; ++field)
        QCOMPARE(TCategoryTree::splitter(text, field), fields.at(field - 1));
    QCOMPARE(TCategoryTree::splitter(text, 0), QString());
    QCOMPARE(TCategoryTree::splitter(text, 4), QString());
}

void CategoryTreeTest::aCommaInANameShiftsTheBubble_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("value");
    QTest::newRow("none") << "چکش"
                          << "چکش"
                          << "7";
    QTest::newRow("before a word") << "پیچ,مهره"
                                   << "پیچ"
                                   << "مهره";
    QTest::newRow("before a number") << "پیچ,5"
                                     << "پیچ"
                                     << "5";
    QTest::newRow("in front") << ",پیچ"
                              << ""
                              << "پیچ";
    QTest::newRow("the Persian one is a letter like others") << "پیچ، مهره"
                                                             << "پیچ، مهره"
                                                             << "7";
}

void CategoryTreeTest::aCommaInANameShiftsTheBubble()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QFETCH(QString, value);
    const TCategoryBubble bubble = TCategoryTree::BubbleOf({7, 2, name});
    QCOMPARE(bubble.Name, shown);
    QCOMPARE(bubble.Id, value);
    QCOMPARE(bubble.ParentId, 2);
}

void CategoryTreeTest::onlyDigitsAreANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("isNumber");
    QTest::newRow("digits") << "12" << 12 << true;
    QTest::newRow("zeros in front") << "007" << 7 << true;
    QTest::newRow("sign") << "-1" << -1 << true;
    QTest::newRow("plus") << "+1" << 0 << false;
    QTest::newRow("only a sign") << "-" << 0 << false;
    QTest::newRow("blank") << " 1" << 0 << false;
    QTest::newRow("empty") << "" << 0 << false;
    QTest::newRow("too large") << "2147483648" << 0 << false;
    QTest::newRow("digits of another script") << "۱۲" << 0 << false;
    QTest::newRow("word") << "مهره" << 0 << false;
}

void CategoryTreeTest::onlyDigitsAreANumber()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QFETCH(bool, isNumber);
    const std::optional<int> found = TCategoryTree::NumberIn(text);
    QCOMPARE(found.has_value(), isNumber);
    QCOMPARE(found.value_or(0), number);
}

void CategoryTreeTest::theTreeWithoutAConnectionSaysSo()
{
    TADOQuery query;
    const TCategoryTree tree(query);
    QVERIFY_THROWS_EXCEPTION(EADOError, tree.All());
}

QTEST_MAIN(CategoryTreeTest)
#include "CategoryTreeTest.moc"
