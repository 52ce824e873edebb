#include "StatementFixture.h"

#include "AdoError.h"

#include <QtTest>

/// What the layer does not know it refuses, and names the piece.
class DialectRefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anUnknownConstructIsRefusedByName_data();
    void anUnknownConstructIsRefusedByName();
    void aMalformedTextIsASyntaxError_data();
    void aMalformedTextIsASyntaxError();
    void aRefusalSpeaksPersianToTheUserAndNamesThePieceToTheDeveloper();
    void aNameThatIsNoColumnIsNotTakenForAText();
    void aTextOfTenThousandBracketsIsRefused();
    void noUnicodeTextLeavesItsLiteral();

private:
    TEmbeddedDatabase database_;
};

void DialectRefusalsTest::initTestCase()
{
    database_.Prepare(
        {QStringLiteral(
             "CREATE TABLE t (a int NOT NULL PRIMARY KEY, b nvarchar(50), p varbinary(max), day date)"),
         QStringLiteral("INSERT INTO t (a, b) VALUES (1, N'x')")});
}

void DialectRefusalsTest::anUnknownConstructIsRefusedByName_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("piece");
    const auto row = [](const char* name, const char16_t* statement, const char16_t* piece) {
        QTest::newRow(name) << QString::fromUtf16(statement) << QString::fromUtf16(piece);
    };
    row("second statement", u"SELECT 1; DROP TABLE t", u"DROP");
    row("second statement without a mark", u"SELECT a FROM t DELETE FROM t", u"DELETE");
    row("EXEC", u"EXEC sp_who", u"EXEC");
    row("MERGE", u"MERGE INTO t USING t AS s ON 1=1", u"MERGE");
    row("variable", u"SELECT @x", u"@x");
    row("temporary table", u"SELECT * FROM #x", u"#x");
    row("hint", u"SELECT * FROM t WITH (NOLOCK)", u"WITH");
    row("old hint", u"SELECT * FROM t (NOLOCK)", u"t");
    row("PIVOT", u"SELECT * FROM t PIVOT (SUM(a) FOR b IN ([x])) AS p", u"PIVOT");
    row("cross apply", u"SELECT * FROM t CROSS APPLY t AS x", u"APPLY");
    row("table function", u"SELECT * FROM dbo.f(1)", u"f");
    row("unknown function", u"SELECT STUFF(b, 1, 1, N'') FROM t", u"STUFF");
    row("function of the database that is not there", u"SELECT dbo.Missing(1)", u"dbo.Missing");
    row("function of another schema", u"SELECT sys.f(1)", u"f");
    row("other schema", u"SELECT * FROM sys.tables", u"sys.tables");
    row("alias before the value", u"SELECT x = a FROM t", u"x = a");
    row("undecided plus", u"SELECT ? + ?", u"?1 + ?2");
    row("plus of unknown columns", u"SELECT c + d FROM nowhere", u"\"c\" + \"d\"");
    row("date arithmetic", u"SELECT day + 1 FROM t", u"+");
    row("SELECT INTO", u"SELECT a INTO x FROM t", u"INTO");
    row("FOR XML", u"SELECT a FROM t FOR XML PATH", u"FOR");
    row("TOP PERCENT", u"SELECT TOP 5 PERCENT a FROM t", u"PERCENT");
    row("update from", u"UPDATE t SET a = 1 FROM t", u"FROM");
    row("output", u"INSERT INTO t (a) OUTPUT inserted.a VALUES (2)", u"OUTPUT");
    row("delete top", u"DELETE TOP (1) FROM t", u"TOP");
    row("all rows of a subquery", u"SELECT a FROM t WHERE a > ALL (SELECT a FROM t)", u"ALL");
    row("unknown collation", u"SELECT b COLLATE French_CI_AI FROM t", u"French_CI_AI");
    row("unknown type", u"CREATE TABLE x (a uniqueidentifier)", u"uniqueidentifier");
    row("identity of another start", u"CREATE TABLE x (a int IDENTITY(5,1) PRIMARY KEY)", u"IDENTITY");
    row("dropping a database", u"DROP DATABASE x", u"DATABASE");
    row("transaction", u"BEGIN TRANSACTION", u"BEGIN");
    row("Persian digit", u"SELECT ۱", u"۱");
    row("binary data as text", u"SELECT a FROM t WHERE p LIKE N'x'", u"\"p\"");
    row("too many values", u"INSERT INTO t (a, b) VALUES (1, N'x', 3)", u"t");
}

void DialectRefusalsTest::anUnknownConstructIsRefusedByName()
{
    QFETCH(QString, statement);
    QFETCH(QString, piece);
    try {
        database_.Translated(statement);
        QFAIL("not refused");
    } catch (const EADOError& error) {
        QCOMPARE(error.Kind(), TAdoErrorKind::Unsupported);
        QCOMPARE(error.ServerMessage().section(QLatin1String(": "), -1), piece);
        QCOMPARE(error.Statement(), statement);
    }
}

void DialectRefusalsTest::aMalformedTextIsASyntaxError_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("literal not closed") << QStringLiteral("SELECT 'abc");
    QTest::newRow("name not closed") << QStringLiteral("SELECT [abc");
    QTest::newRow("comment not closed") << QStringLiteral("SELECT 1 /* abc");
    QTest::newRow("bracket not closed") << QStringLiteral("SELECT (1 + 2");
    QTest::newRow("nothing") << QString();
    QTest::newRow("ends too early") << QStringLiteral("SELECT a FROM t WHERE a =");
    QTest::newRow("letters behind a number") << QStringLiteral("SELECT 12abc");
}

void DialectRefusalsTest::aMalformedTextIsASyntaxError()
{
    QFETCH(QString, statement);
    try {
        database_.Translated(statement);
        QFAIL("not refused");
    } catch (const EADOError& error) {
        QCOMPARE(error.Kind(), TAdoErrorKind::Syntax);
    }
}

void DialectRefusalsTest::aRefusalSpeaksPersianToTheUserAndNamesThePieceToTheDeveloper()
{
    try {
        database_.Translated(QStringLiteral("SELECT STUFF(1)"));
        QFAIL("not refused");
    } catch (const EADOError& error) {
        QCOMPARE(
            error.Message(),
            QStringLiteral(
                "این دستور در پایگاه دادهٔ محلی پشتیبانی نمی‌شود: «STUFF»"));
        QCOMPARE(error.ServerMessage(), QStringLiteral("unknown function: STUFF"));
    }
}

void DialectRefusalsTest::aNameThatIsNoColumnIsNotTakenForAText()
{
    QCOMPARE(database_.Rows(QStringLiteral("SELECT [missing] FROM t")),
             QStringList({"error: no such column: missing"}));
}

void DialectRefusalsTest::aTextOfTenThousandBracketsIsRefused()
{
    const QStringList rows =
        database_.Rows(QLatin1String("SELECT ") + QString(10000, u'(') + u'1' + QString(10000, u')'));
    QCOMPARE(rows, QStringList({"refused: nested too deeply: ("}));
}

void DialectRefusalsTest::noUnicodeTextLeavesItsLiteral()
{
    QString text;
    for (char16_t unit = 0; unit < 0x3000; ++unit)
        text += QChar(unit);
    QCOMPARE(database_.Rows(QLatin1String("SELECT N") + Q(text)), QStringList({text}));
}

QTEST_APPLESS_MAIN(DialectRefusalsTest)
#include "DialectRefusalsTest.moc"
