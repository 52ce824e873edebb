#include "PageStatements.h"
#include "AdoError.h"

#include <QTest>

namespace {

TPagedSource Goods()
{
    return {{QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("[Price]")},
            QStringLiteral("dbo.kala"),
            QStringLiteral("Code")};
}

TPageStatements Statements(int orderIndex, Qt::SortOrder order, const QString& condition = {})
{
    return {Goods(), condition, orderIndex, order};
}

const TSortKey somewhere{QStringLiteral("چای"), 7};
const TSortKey withoutName{QVariant(), 7};

const QString firstTen = QStringLiteral("SELECT TOP 10 Code, Name, [Price] FROM dbo.kala");
const QVariant name = somewhere.Order;
const QVariant key = somewhere.Key;
constexpr Qt::SortOrder up = Qt::AscendingOrder;
constexpr Qt::SortOrder down = Qt::DescendingOrder;

// The texts of a reading of 10 rows, one per line, and the values of their marks.
QString Texts(const TPageStatements& statements, const TPageStart& start, QVariantList* parameters)
{
    QStringList texts;
    for (const TPageSegment& segment : statements.Segments(start)) {
        const TStatement statement = statements.Select(segment, 10);
        texts.append(statement.Text);
        *parameters += statement.Parameters;
    }
    return texts.join(u'\n');
}

void AddStartsWithoutName()
{
    QTest::newRow("after a row without a name, then the rows with one")
        << 1 << up << TPageStart{withoutName, false, false}
        << firstTen + " WHERE Name IS NULL AND Code > ? ORDER BY Code\n" + firstTen +
               " WHERE Name IS NOT NULL ORDER BY Name, Code"
        << QVariantList{key};
    QTest::newRow("up to a row without a name")
        << 1 << up << TPageStart{withoutName, true, true}
        << firstTen + " WHERE Name IS NULL AND Code <= ? ORDER BY Code DESC" << QVariantList{key};
    QTest::newRow("after a row without a name, descending")
        << 1 << down << TPageStart{withoutName, false, false}
        << firstTen + " WHERE Name IS NULL AND Code < ? ORDER BY Code DESC" << QVariantList{key};
    QTest::newRow("before a row without a name, descending, then the rows with one")
        << 1 << down << TPageStart{withoutName, false, true}
        << firstTen + " WHERE Name IS NULL AND Code > ? ORDER BY Code\n" + firstTen +
               " WHERE Name IS NOT NULL ORDER BY Name, Code"
        << QVariantList{key};
}

} // namespace

class PageStatementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsPagesByTheSortKeyOfARow_data();
    void readsPagesByTheSortKeyOfARow();
    void theConditionStandsInBracketsBesideTheKey();
    void countsRowsWithTheSameCondition();
    void findsTheSortKeyOfAKey();
    void listsThePlacesOfAllRows();
    void listsThePlacesOfAnotherOrderByTheKeysThatMatch();
    void readsFewRowsByTheirKeys();
    void gathersTheKeysBeforeItOrders();
    void gathersNothingWhereTheScanIsTheReading();
    void asksForTheColumnsWithoutRows();
    void findsFieldsWhateverTheLetterCaseAndBrackets();
    void refusesASourceWithoutItsKey();
};

void PageStatementsTest::readsPagesByTheSortKeyOfARow_data()
{
    QTest::addColumn<int>("orderIndex");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<TPageStart>("start");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QVariantList>("parameters");

    QTest::newRow("first page by key")
        << 0 << up << TPageStart{} << firstTen + " ORDER BY Code" << QVariantList{};
    QTest::newRow("last page by key")
        << 0 << up << TPageStart{{}, false, true} << firstTen + " ORDER BY Code DESC" << QVariantList{};
    QTest::newRow("after a key") << 0 << up << TPageStart{somewhere, false, false}
                                 << firstTen + " WHERE Code > ? ORDER BY Code" << QVariantList{key};
    QTest::newRow("up to a key") << 0 << up << TPageStart{somewhere, true, true}
                                 << firstTen + " WHERE Code <= ? ORDER BY Code DESC" << QVariantList{key};
    QTest::newRow("after a key, descending")
        << 0 << down << TPageStart{somewhere, false, false} << firstTen + " WHERE Code < ? ORDER BY Code DESC"
        << QVariantList{key};
    QTest::newRow("first page by name")
        << 1 << up << TPageStart{} << firstTen + " ORDER BY Name, Code" << QVariantList{};
    QTest::newRow("first page by name, descending")
        << 1 << down << TPageStart{} << firstTen + " ORDER BY Name DESC, Code DESC" << QVariantList{};
    QTest::newRow("after a name") << 1 << up << TPageStart{somewhere, false, false}
                                  << firstTen +
                                         " WHERE Name >= ? AND (Name > ? OR Code > ?) ORDER BY Name, Code"
                                  << QVariantList{name, name, key};
    QTest::newRow("from a name on") << 1 << up << TPageStart{somewhere, true, false}
                                    << firstTen +
                                           " WHERE Name >= ? AND (Name > ? OR Code >= ?) ORDER BY Name, Code"
                                    << QVariantList{name, name, key};
    QTest::newRow("before a name, then the rows without one")
        << 1 << up << TPageStart{somewhere, false, true}
        << firstTen + " WHERE Name <= ? AND (Name < ? OR Code < ?) ORDER BY Name DESC, Code DESC\n" +
               firstTen + " WHERE Name IS NULL ORDER BY Code DESC"
        << QVariantList{name, name, key};
    QTest::newRow("after a name, descending, then the rows without one")
        << 1 << down << TPageStart{somewhere, false, false}
        << firstTen + " WHERE Name <= ? AND (Name < ? OR Code < ?) ORDER BY Name DESC, Code DESC\n" +
               firstTen + " WHERE Name IS NULL ORDER BY Code DESC"
        << QVariantList{name, name, key};
    AddStartsWithoutName();
}

void PageStatementsTest::readsPagesByTheSortKeyOfARow()
{
    QFETCH(const int, orderIndex);
    QFETCH(const Qt::SortOrder, order);
    QFETCH(const TPageStart, start);
    QFETCH(const QString, texts);
    QFETCH(const QVariantList, parameters);
    QVariantList built;
    QCOMPARE(Texts(Statements(orderIndex, order), start, &built), texts);
    QCOMPARE(built, parameters);
}

void PageStatementsTest::theConditionStandsInBracketsBesideTheKey()
{
    const auto statements = Statements(0, Qt::AscendingOrder, QStringLiteral("Name = N'آ' OR Price > 5"));
    QVariantList parameters;
    QCOMPARE(
        Texts(statements, {somewhere, false, false}, &parameters),
        QStringLiteral("SELECT TOP 10 Code, Name, [Price] FROM dbo.kala WHERE (Name = N'آ' OR Price > 5) AND "
                       "Code > ? ORDER BY Code"));
    QCOMPARE(Texts(statements, {}, &parameters),
             QStringLiteral(
                 "SELECT TOP 10 Code, Name, [Price] FROM dbo.kala WHERE Name = N'آ' OR Price > 5 ORDER BY "
                 "Code"));
}

void PageStatementsTest::countsRowsWithTheSameCondition()
{
    QCOMPARE(Statements(1, Qt::AscendingOrder).CountAll().Text,
             QStringLiteral("SELECT COUNT(*) FROM dbo.kala"));
    const auto statements = Statements(0, Qt::AscendingOrder, QStringLiteral("Active = 1"));
    QCOMPARE(statements.CountAll().Text, QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE Active = 1"));
    const TStatement before = statements.Count(statements.Segments({somewhere, false, true}).first());
    QCOMPARE(before.Text, QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE (Active = 1) AND Code < ?"));
    QCOMPARE(before.Parameters, QVariantList{7});
}

void PageStatementsTest::findsTheSortKeyOfAKey()
{
    const TStatement find = Statements(1, Qt::AscendingOrder, QStringLiteral("Active = 1")).Find(7);
    QCOMPARE(find.Text, QStringLiteral("SELECT Name, Code FROM dbo.kala WHERE (Active = 1) AND Code = ?"));
    QCOMPARE(find.Parameters, QVariantList{7});
}

void PageStatementsTest::listsThePlacesOfAllRows()
{
    QCOMPARE(Statements(0, Qt::DescendingOrder, QStringLiteral("Active = 1")).Places().Text,
             QStringLiteral("SELECT Code FROM dbo.kala WHERE Active = 1 ORDER BY Code DESC"));
    QCOMPARE(Statements(1, Qt::AscendingOrder).Places().Text,
             QStringLiteral("SELECT Name, Code FROM dbo.kala ORDER BY Name, Code"));
}

void PageStatementsTest::listsThePlacesOfAnotherOrderByTheKeysThatMatch()
{
    QCOMPARE(
        Statements(2, Qt::DescendingOrder, QStringLiteral("Active = 1")).Places().Text,
        QStringLiteral("SELECT [Price], Code FROM dbo.kala WHERE Code IN (SELECT Code FROM dbo.kala WHERE "
                       "Active = 1) ORDER BY [Price] DESC, Code DESC"));
}

void PageStatementsTest::readsFewRowsByTheirKeys()
{
    const auto statements = Statements(1, Qt::AscendingOrder, QStringLiteral("Active = 1"));
    QCOMPARE(statements.SomeKeys(11).Text,
             QStringLiteral("SELECT TOP 11 Code FROM dbo.kala WHERE Active = 1"));
    QVariantList parameters;
    QCOMPARE(Texts(statements.Narrowed({3, 7, 9}), {somewhere, false, false}, &parameters),
             QStringLiteral(
                 "SELECT TOP 10 Code, Name, [Price] FROM dbo.kala WHERE ((Active = 1) AND Code IN (?, ?, ?)) "
                 "AND Name >= ? AND (Name > ? OR Code > ?) ORDER BY Name, Code"));
    QCOMPARE(parameters, (QVariantList{3, 7, 9, somewhere.Order, somewhere.Order, somewhere.Key}));
}

void PageStatementsTest::gathersTheKeysBeforeItOrders()
{
    const auto gathered =
        Statements(1, Qt::AscendingOrder, QStringLiteral("Active = 1 OR Code = 3")).Gathered();
    QVariantList parameters;
    QCOMPARE(Texts(gathered, {}, &parameters),
             QStringLiteral("SELECT TOP 10 Code, Name, [Price] FROM dbo.kala WHERE Code IN (SELECT Code FROM "
                            "dbo.kala WHERE Active = 1 OR Code = 3) ORDER BY Name, Code"));
    QCOMPARE(parameters, QVariantList());
}

void PageStatementsTest::gathersNothingWhereTheScanIsTheReading()
{
    const auto byKey = Statements(0, Qt::AscendingOrder, QStringLiteral("Active = 1"));
    QCOMPARE(byKey.Gathered().CountAll().Text, byKey.CountAll().Text);
    const auto all = Statements(1, Qt::AscendingOrder);
    QCOMPARE(all.Gathered().CountAll().Text, all.CountAll().Text);
    const auto few = Statements(1, Qt::AscendingOrder, QStringLiteral("Active = 1")).Narrowed({3, 7});
    QCOMPARE(few.Gathered().CountAll().Text, few.CountAll().Text);
    QCOMPARE(few.Gathered().CountAll().Parameters, (QVariantList{3, 7}));
}

void PageStatementsTest::asksForTheColumnsWithoutRows()
{
    QCOMPARE(Statements(0, Qt::AscendingOrder, QStringLiteral("Active = 1")).Columns().Text,
             QStringLiteral("SELECT TOP 0 Code, Name, [Price] FROM dbo.kala"));
}

void PageStatementsTest::findsFieldsWhateverTheLetterCaseAndBrackets()
{
    QCOMPARE(TPageStatements::IndexOf(Goods(), QStringLiteral("name")), 1);
    QCOMPARE(TPageStatements::IndexOf(Goods(), QStringLiteral("[CODE]")), 0);
    QCOMPARE(TPageStatements::IndexOf(Goods(), QStringLiteral("Price")), 2);
    QCOMPARE(TPageStatements::IndexOf(Goods(), QStringLiteral("Name; DROP TABLE kala")), -1);
}

void PageStatementsTest::refusesASourceWithoutItsKey()
{
    TPagedSource source = Goods();
    source.KeyField = QStringLiteral("Id");
    QVERIFY_THROWS_EXCEPTION(EADOError, TPageStatements(source, {}, 0, Qt::AscendingOrder));
    QVERIFY_THROWS_EXCEPTION(EADOError, Statements(3, Qt::AscendingOrder));
}

QTEST_GUILESS_MAIN(PageStatementsTest)
#include "PageStatementsTest.moc"
