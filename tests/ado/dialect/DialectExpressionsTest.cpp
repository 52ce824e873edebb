#include "StatementFixture.h"

#include <QtTest>

/// What `+`, comparisons, LIKE, conversions and functions mean.
class DialectExpressionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aValueIsTheServers_data();
    void aValueIsTheServers();
    void aConditionFindsTheServersRows_data();
    void aConditionFindsTheServersRows();
    void parametersKeepTheOrderInWhichTheyAreWritten();
    void aParameterThatIsComparedWithMoneyIsReadAsANumber();

private:
    void JoinedRows();
    void ConvertedRows();
    void FunctionRows();
    void MomentRows();

    TEmbeddedDatabase database_;
};

void DialectExpressionsTest::initTestCase()
{
    database_.Prepare({
        QStringLiteral(
            "CREATE TABLE one (id int NOT NULL PRIMARY KEY, t nvarchar(50), u nvarchar(50), n int, m money, d "
            "decimal(9,3), f float, b bit, day date, at datetime, e nvarchar(50) NULL)"),
        QStringLiteral("INSERT INTO one VALUES (1, N'متن', N'abc  ', 7, 12.5, 2.250, 1.5, 1, '20240131', "
                       "'2024-01-31 10:20:30', NULL)"),
        QStringLiteral(
            "CREATE TABLE names (id int NOT NULL PRIMARY KEY, name nvarchar(50), code nvarchar(50) COLLATE "
            "Latin1_General_BIN2)"),
        QStringLiteral(
            "INSERT INTO names VALUES (1, N'100%', N'a'), (2, N'a_b', N'A'), (3, N'[x]', N'b'), (4, N'گل', "
            "N'B'), (5, N'کتاب', N'c'), (6, N'كتاب', N'd'), (7, N'پسته ', N'e'), (8, N'علی‌اکبر', N'f'), "
            "(9, N'axb', N'g')"),
    });
}

void DialectExpressionsTest::JoinedRows()
{
    StatementRow("text and text", QStringLiteral("t+u"), {"متنabc  "});
    StatementRow("text and NULL", QStringLiteral("t + e"), {"NULL"});
    StatementRow("NULL word and text", QStringLiteral("NULL + N'x'"), {"NULL"});
    StatementRow("digits in texts join", QStringLiteral("',3,' + '5,'"), {",3,5,"});
    StatementRow("numbers add", QStringLiteral("n + 3"), {"10"});
    StatementRow("number and numeric text add", QStringLiteral("n + '3'"), {"10"});
    StatementRow("number and other text fail", QStringLiteral("n + t"),
                 {"error: Conversion failed when converting the value 'متن' to data type int."});
    StatementRow("money adds exactly", QStringLiteral("m + 0.1"), {"12.6"});
    StatementRow("money subtracts exactly", QStringLiteral("m - 0.0001"), {"12.4999"});
    StatementRow("money times a number", QStringLiteral("m * n"), {"87.5"});
    StatementRow("more digits than a double has", QStringLiteral("m + 900000000000000.0001"),
                 {"900000000000012.5001"});
    StatementRow("product of long decimals", QStringLiteral("123456789012345678.5 * 987654321098765432.25"),
                 {"121932631137021794847203170023472031.625"});
    StatementRow(
        "number of forty digits",
        QStringLiteral("CAST(N'1234567890123456789012345678901234567890' AS decimal(38,0))"),
        {"error: Conversion failed when converting the value '1234567890123456789012345678901234567890' to "
         "data type numeric."});
    StatementRow("joined texts in CASE", QStringLiteral("(case when e is null then t else e+'x' end) + '!'"),
                 {"متن!"});
    StatementRow("whole division", QStringLiteral("n / 2"), {"3"});
    StatementRow("division by zero", QStringLiteral("n / (n - 7)"),
                 {"error: Divide by zero error encountered."});
    StatementRow("remainder", QStringLiteral("n % 4"), {"3"});
    StatementRow("order of operations", QStringLiteral("2 + n * (3 - 1)"), {"16"});
    StatementRow("minus of a bracket", QStringLiteral("-(n + 1)"), {"-8"});
    StatementRow("bits", QStringLiteral("(n & 3) | 8"), {"11"});
}

void DialectExpressionsTest::ConvertedRows()
{
    StatementRow("whole number as varchar", QStringLiteral("Cast(n As Varchar)+'|'"), {"7|"});
    StatementRow("varchar cuts at thirty",
                 QStringLiteral("CAST(N'123456789012345678901234567890xyz' AS varchar)"),
                 {"123456789012345678901234567890"});
    StatementRow("varchar cuts at its length", QStringLiteral("CONVERT(nvarchar(2), t)"), {"مت"});
    StatementRow("money as text has two places", QStringLiteral("CAST(m AS nvarchar(20))"), {"12.50"});
    StatementRow("decimal as text has its places", QStringLiteral("CAST(d AS nvarchar(20))"), {"2.250"});
    StatementRow("fraction as int", QStringLiteral("CAST(-12.9 AS int)"), {"-12"});
    StatementRow("text as int", QStringLiteral("CAST(' 42 ' AS int)"), {"42"});
    StatementRow("rubbish as int", QStringLiteral("CAST(N'4x' AS int)"),
                 {"error: Conversion failed when converting the value '4x' to data type int."});
    StatementRow("fraction in a text as int", QStringLiteral("CAST('1.5' AS int)"),
                 {"error: Conversion failed when converting the value '1.5' to data type int."});
    StatementRow("text as money", QStringLiteral("CAST('12.34567' AS money)"), {"12.3457"});
    StatementRow("decimal rounds away from zero", QStringLiteral("CAST(-2.5 AS decimal(5,0))"), {"-3"});
    StatementRow("decimal overflows", QStringLiteral("CAST(1000 AS decimal(3,0))"),
                 {"error: Arithmetic overflow error converting to data type numeric."});
    StatementRow("date in a style", QStringLiteral("CONVERT(nvarchar(10), day, 111)"), {"2024/01/31"});
    StatementRow("second value of ISNULL takes the first's type", QStringLiteral("ISNULL(e, n)"), {"7"});
}

void DialectExpressionsTest::FunctionRows()
{
    StatementRow("LEN without trailing blanks", QStringLiteral("LEN(u)"), {"3"});
    StatementRow("LEN counts ZWNJ", QStringLiteral("LEN(N'می‌رود')"), {"6"});
    StatementRow("trims", QStringLiteral("LTRIM(RTRIM(N'  x  ')) + '|'"), {"x|"});
    StatementRow("SUBSTRING", QStringLiteral("SUBSTRING(u, 2, 2)"), {"bc"});
    StatementRow("SUBSTRING before the start", QStringLiteral("SUBSTRING(u, 0, 2)"), {"a"});
    StatementRow("LEFT and RIGHT", QStringLiteral("LEFT(t, 1) + RIGHT(t, 1)"), {"من"});
    StatementRow("REPLACE does not mind the case", QStringLiteral("REPLACE(u, N'B', N'x')"), {"axc  "});
    StatementRow("REPLACE byte by byte", QStringLiteral("REPLACE(u COLLATE Latin1_General_BIN2, N'B', N'x')"),
                 {"abc  "});
    StatementRow("REPLACE of ZWNJ", QStringLiteral("REPLACE(N'می‌رود', NCHAR(8204), N'')"), {"میرود"});
    StatementRow("UPPER and LOWER", QStringLiteral("UPPER(N'éa') + LOWER(N'ÉB')"), {"ÉAéb"});
    StatementRow("CHARINDEX", QStringLiteral("CHARINDEX(N'C', u)"), {"3"});
    StatementRow("CHARINDEX of nothing", QStringLiteral("CHARINDEX(N'z', u)"), {"0"});
    StatementRow("TRANSLATE", QStringLiteral("TRANSLATE(N'كتابي۱', N'كي۱', N'کی1')"), {"کتابی1"});
    StatementRow("REPLICATE", QStringLiteral("REPLICATE(N'پ', 3)"), {"پپپ"});
    StatementRow("COALESCE", QStringLiteral("COALESCE(e, NULL, t)"), {"متن"});
    StatementRow("NULLIF", QStringLiteral("ISNULL(NULLIF(u, N'ABC'), N'none')"), {"none"});
    StatementRow("IIF", QStringLiteral("IIF(n > 5, N'large', N'small')"), {"large"});
    StatementRow("CONCAT takes NULL as empty", QStringLiteral("CONCAT(t, e, n)"), {"متن7"});
    StatementRow("ROUND of money", QStringLiteral("ROUND(m, 0)"), {"13"});
    StatementRow("ABS of money", QStringLiteral("ABS(-m)"), {"12.5"});
    StatementRow("FLOOR of a negative decimal", QStringLiteral("FLOOR(-d)"), {"-3"});
}

void DialectExpressionsTest::MomentRows()
{
    StatementRow("date", QStringLiteral("day"), {"2024-01-31"});
    StatementRow("date and time", QStringLiteral("at"), {"2024-01-31T10:20:30"});
    StatementRow("month later is clamped", QStringLiteral("DATEADD(month, 1, day)"), {"2024-02-29"});
    StatementRow("seconds earlier", QStringLiteral("DATEADD(second, -31, at)"), {"2024-01-31T10:19:59"});
    StatementRow("seconds between", QStringLiteral("DATEDIFF(second, at, DATEADD(minute, 2, at))"), {"120"});
    StatementRow("years between count borders", QStringLiteral("DATEDIFF(year, '2023-12-31', '2024-01-01')"),
                 {"1"});
    StatementRow("empty text is the first day", QStringLiteral("CAST('' AS date)"), {"1900-01-01"});
    StatementRow("rubbish as date", QStringLiteral("CAST('1403/13/01' AS date)"),
                 {"error: Conversion failed when converting the value '1403/13/01' to data type datetime."});
    StatementRow("year", QStringLiteral("YEAR(day)"), {"2024"});
    StatementRow("now has just passed",
                 QStringLiteral("CASE WHEN DATEDIFF(second, GETDATE(), GETDATE()) <= 1 THEN 1 ELSE 0 END"),
                 {"1"});
}

void DialectExpressionsTest::aValueIsTheServers_data()
{
    StatementColumns();
    JoinedRows();
    ConvertedRows();
    FunctionRows();
    MomentRows();
}

void DialectExpressionsTest::aValueIsTheServers()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_.Rows(QLatin1String("SELECT ") + statement + QLatin1String(" FROM one")), rows);
}

void DialectExpressionsTest::aConditionFindsTheServersRows_data()
{
    StatementColumns();
    StatementRow("equal in other case", QStringLiteral("name = N'A_B'"), {"2"});
    StatementRow("trailing blanks", QStringLiteral("name = N'پسته'"), {"7"});
    StatementRow("trailing blanks count in LIKE", QStringLiteral("name LIKE N'پسته'"), {});
    StatementRow("kinds of kaf are not equal", QStringLiteral("name = N'کتاب'"), {"5"});
    StatementRow("percent sign", QStringLiteral("name LIKE N'%[%]%'"), {"1"});
    StatementRow("underscore", QStringLiteral("name LIKE N'a[_]b'"), {"2"});
    StatementRow("any letter", QStringLiteral("name LIKE N'A_B'"), {"2", "9"});
    StatementRow("bracket", QStringLiteral("name LIKE N'[[]X]'"), {"3"});
    StatementRow("escape", QStringLiteral("name LIKE N'a!_b' ESCAPE '!'"), {"2"});
    StatementRow("class of letters", QStringLiteral("name LIKE N'[کك]تاب'"), {"5", "6"});
    StatementRow("range follows the alphabet", QStringLiteral("name LIKE N'[ک-ل]%'"), {"4", "5", "6"});
    StatementRow("negated class", QStringLiteral("name LIKE N'a[^x]b'"), {"2"});
    StatementRow("ZWNJ in a literal", QStringLiteral("name LIKE N'%ی‌ا%'"), {"8"});
    StatementRow("not like", QStringLiteral("name NOT LIKE N'%ا%' AND id > 3"), {"4", "7", "9"});
    StatementRow("in", QStringLiteral("name IN (N'گل', N'AXB')"), {"4", "9"});
    StatementRow("not in", QStringLiteral("id NOT IN (1,2,3,4,5,6,7)"), {"8", "9"});
    StatementRow("in among keys with leading zeros", QStringLiteral("id IN (002,3)"), {"2", "3"});
    StatementRow("in among keys and others", QStringLiteral("id IN (2, 3.0, '4', 4+1, 12345678901)"),
                 {"2", "3", "4", "5"});
    StatementRow("in among keys and NULL", QStringLiteral("id IN (2, NULL)"), {"2"});
    StatementRow("text in among keys", QStringLiteral("id < 3 AND '00' + '2' IN (2, 3)"), {"1", "2"});
    StatementRow("number in text", QStringLiteral("id = '4'"), {"4"});
    StatementRow("like on a number", QStringLiteral("id LIKE '[12]'"), {"1", "2"});
    StatementRow("order of letters", QStringLiteral("name > N'ک' AND name < N'ل'"), {"4", "5", "6"});
    StatementRow("between", QStringLiteral("name BETWEEN N'پ' AND N'ت'"), {"7"});
    StatementRow("binary column", QStringLiteral("code = N'A'"), {"2"});
    StatementRow("binary like", QStringLiteral("code LIKE N'[a-b]'"), {"1", "3"});
    StatementRow("binary column in the table's collation",
                 QStringLiteral("code COLLATE Persian_100_CI_AS = N'a'"), {"1", "2"});
    StatementRow("text in binary order", QStringLiteral("name COLLATE Latin1_General_BIN2 = N'A_B'"), {});
    StatementRow("joined texts compare without case", QStringLiteral("name + N'!' = N'AXB!'"), {"9"});
    StatementRow("exists", QStringLiteral("EXISTS (SELECT * FROM one WHERE one.n = names.id)"), {"7"});
    StatementRow("not", QStringLiteral("NOT (id > 1 OR name IS NULL)"), {"1"});
    StatementRow("money in a column compares by value",
                 QStringLiteral("id = 1 AND EXISTS (SELECT 1 FROM one WHERE m > 9)"), {"1"});
    StatementRow("float and decimal",
                 QStringLiteral("id = 1 AND EXISTS (SELECT 1 FROM one WHERE f < d AND f = 1.5)"), {"1"});
    StatementRow(
        "date and text",
        QStringLiteral("id = 1 AND EXISTS (SELECT 1 FROM one WHERE at >= '20240131' AND day = '2024-01-31')"),
        {"1"});
}

void DialectExpressionsTest::aConditionFindsTheServersRows()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_.Rows(QLatin1String("SELECT id FROM names WHERE ") + statement +
                            QLatin1String(" ORDER BY id")),
             rows);
}

void DialectExpressionsTest::parametersKeepTheOrderInWhichTheyAreWritten()
{
    QCOMPARE(
        database_.Rows(QStringLiteral("SELECT TOP (?) id FROM names WHERE id > ? ORDER BY id"), {"2", "3"}),
        QStringList({"4", "5"}));
}

void DialectExpressionsTest::aParameterThatIsComparedWithMoneyIsReadAsANumber()
{
    QCOMPARE(
        database_.Rows(QStringLiteral("SELECT id FROM one WHERE m = ? AND m + 1 = ?"), {"12.50", "13.5"}),
        QStringList({"1"}));
}

QTEST_APPLESS_MAIN(DialectExpressionsTest)
#include "DialectExpressionsTest.moc"
