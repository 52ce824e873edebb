#include "EmbeddedDatabase.h"

#include <QtTest>

namespace {

void Row(const char* name, const QString& statement, const QStringList& rows)
{
    QTest::newRow(name) << statement << rows;
}

void AddNamesAndJoins()
{
    Row("bracketed Persian name", QStringLiteral("SELECT [نام دوم] FROM kala WHERE [نام دوم] = N'دوم'"),
        {"دوم"});
    Row("prefix and alias", QStringLiteral("select k.Name from [db].[dbo].[kala] as k where K.CODE=1"),
        {"پیچ"});
    Row("case and trailing blanks do not count",
        QStringLiteral("SELECT Code FROM kala WHERE Name = N'BRUSH' ORDER BY Code"), {"2", "3"});
    Row("top", QStringLiteral("SELECT TOP 1 Code FROM kala ORDER BY Code DESC"), {"3"});
    Row("top in brackets", QStringLiteral("SELECT TOP (2) Code FROM kala ORDER BY Code DESC;"), {"3", "2"});
    Row("inner join",
        QStringLiteral("SELECT k.Code, g.Title FROM kala k INNER JOIN dbo.groups g ON g.Code = k.GroupCode "
                       "ORDER BY 1"),
        {"1|ابزار", "2|Paint"});
    Row("left join",
        QStringLiteral("SELECT k.Code, g.Title FROM kala k LEFT OUTER JOIN groups g ON g.Code = k.GroupCode "
                       "ORDER BY k.Code"),
        {"1|ابزار", "2|Paint", "3|NULL"});
    Row("right join",
        QStringLiteral(
            "SELECT g.Code, COUNT(k.Code) FROM kala k RIGHT JOIN groups g ON g.Code = k.GroupCode AND "
            "k.Code < 2 GROUP BY g.Code ORDER BY g.Code"),
        {"1|1", "2|0"});
    Row("cross join", QStringLiteral("SELECT COUNT(*) FROM kala, groups CROSS JOIN groups AS h"), {"12"});
    Row("subquery in FROM",
        QStringLiteral("SELECT q.n + N'!' AS x FROM (SELECT Name AS n FROM kala WHERE Code = 1) q"),
        {"پیچ!"});
    Row("subquery as value",
        QStringLiteral("SELECT (SELECT Title FROM groups WHERE Code = GroupCode) AS t FROM kala ORDER BY "
                       "kala.Code"),
        {"ابزار", "Paint", "NULL"});
}

void AddGroupsAndOrders()
{
    Row("distinct without regard to case", QStringLiteral("SELECT COUNT(DISTINCT Name) FROM kala"), {"2"});
    Row("group by text", QStringLiteral("SELECT COUNT(*) AS c FROM kala GROUP BY Name HAVING COUNT(*) > 1"),
        {"2"});
    Row("group by joined text",
        QStringLiteral("SELECT COUNT(*) AS c FROM kala GROUP BY RTRIM(Name) + N'.' ORDER BY c"), {"1", "2"});
    Row("order by alias", QStringLiteral("SELECT Code AS c FROM kala ORDER BY c DESC"), {"3", "2", "1"});
    Row("order by a value of a column", QStringLiteral("SELECT Code FROM kala ORDER BY Code * -1"),
        {"3", "2", "1"});
    Row("order by code points",
        QStringLiteral("SELECT Code FROM kala ORDER BY Name COLLATE Latin1_General_BIN2"), {"2", "3", "1"});
    Row("order by money is by value", QStringLiteral("SELECT Code FROM kala ORDER BY Price"),
        {"3", "1", "2"});
    Row("order puts Latin before Persian", QStringLiteral("SELECT Title FROM groups ORDER BY Title"),
        {"Paint", "ابزار"});
    Row("union drops equal texts",
        QStringLiteral("SELECT COUNT(*) FROM (SELECT N'a' AS x UNION SELECT N'A' UNION SELECT N'b') AS q"),
        {"2"});
    Row("union all with line ends", QStringLiteral("SELECT 1\n\r UNION ALL SELECT 2\r\nUNION ALL\tSELECT 3"),
        {"1", "2", "3"});
    Row("top of a part of a union",
        QStringLiteral(
            "SELECT TOP 1 Code FROM kala WHERE Code > 1 UNION ALL SELECT Code FROM groups WHERE Code = 1"),
        {"2", "1"});
    Row("offset and fetch",
        QStringLiteral("SELECT Code FROM kala ORDER BY Code OFFSET 1 ROWS FETCH NEXT 1 ROWS ONLY"), {"2"});
}

void AddWindowsAndLiterals()
{
    Row("row number",
        QStringLiteral("SELECT ROW_NUMBER() OVER (ORDER BY Code DESC) AS n FROM kala ORDER BY Code"),
        {"3", "2", "1"});
    Row("sum over a window",
        QStringLiteral("SELECT SUM(Price) OVER (ORDER BY Code) AS s FROM kala ORDER BY Code"),
        {"1250.5", "100000000001250.4999", "100000000001250.4999"});
    Row("exact average", QStringLiteral("SELECT AVG(Stock) FROM kala"), {"6.0625"});
    Row("average of whole numbers is whole",
        QStringLiteral("SELECT AVG(Code + 1 - 1) FROM kala WHERE Code < 3"), {"1"});
    Row("smallest and largest by value", QStringLiteral("SELECT MIN(Stock), MAX(Stock) FROM kala"),
        {"2.125|10"});
    Row("comments", QStringLiteral("SELECT /* a /* b */ ; */ Code -- x\n FROM kala WHERE Code = 1 -- ; end"),
        {"1"});
    Row("quoted names", QStringLiteral("SELECT k.\"Code\" AS [a]]b] FROM \"kala\" AS k WHERE k.[Code] = 1"),
        {"1"});
    Row("quote and quotes in a text", QStringLiteral("SELECT N'it''s \"so\"', '', N''''"),
        {"it's \"so\"||'"});
    Row("binary literal", QStringLiteral("SELECT 0xABC"), {"0abc"});
    Row("exact money", QStringLiteral("SELECT Price + 0.0001 FROM kala WHERE Code = 2"), {"100000000000000"});
    Row("exact sum", QStringLiteral("SELECT SUM(Price) FROM kala"), {"100000000001250.4999"});
}

} // namespace

/// What a SELECT means: names, joins, subqueries, order, limits.
class DialectSelectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aStatementDeliversTheRowsOfTheServer_data();
    void aStatementDeliversTheRowsOfTheServer();

private:
    std::unique_ptr<TEmbeddedDatabase> database_;
};

void DialectSelectTest::init()
{
    database_ = std::make_unique<TEmbeddedDatabase>();
    database_->Prepare({
        QStringLiteral(
            "CREATE TABLE dbo.kala (Code int NOT NULL PRIMARY KEY, Name nvarchar(200) NOT NULL, "
            "[نام دوم] nvarchar(50) NULL, Price money NULL, Stock decimal(18,3) NULL, GroupCode int NULL)"),
        QStringLiteral("CREATE TABLE dbo.groups (Code int NOT NULL PRIMARY KEY, Title nvarchar(50))"),
        QStringLiteral("INSERT INTO dbo.groups (Code, Title) VALUES (1, N'ابزار'), (2, N'Paint')"),
        QStringLiteral(
            "INSERT INTO dbo.kala (Code, Name, [نام دوم], Price, Stock, GroupCode) VALUES "
            "(1, N'پیچ', N'دوم', 1250.5, 10, 1), (2, N'Brush', NULL, 99999999999999.9999, 2.125, 2), "
            "(3, N'brush ', NULL, NULL, NULL, NULL)"),
    });
}

void DialectSelectTest::aStatementDeliversTheRowsOfTheServer_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("rows");
    AddNamesAndJoins();
    AddGroupsAndOrders();
    AddWindowsAndLiterals();
}

void DialectSelectTest::aStatementDeliversTheRowsOfTheServer()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_->Rows(statement), rows);
}

QTEST_APPLESS_MAIN(DialectSelectTest)
#include "DialectSelectTest.moc"
