#include "EmbeddedDatabase.h"

#include <QtTest>

/// What a SELECT means: names, joins, subqueries, order, limits.
class TDialectSelectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aStatementDeliversTheRowsOfTheServer_data();
    void aStatementDeliversTheRowsOfTheServer();

private:
    std::unique_ptr<TEmbeddedDatabase> database_;
};

void TDialectSelectTest::init()
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

void TDialectSelectTest::aStatementDeliversTheRowsOfTheServer_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("rows");
    const auto row = [](const char* name, const QString& statement, const QStringList& rows) {
        QTest::newRow(name) << statement << rows;
    };
    row("bracketed Persian name", QStringLiteral("SELECT [نام دوم] FROM kala WHERE [نام دوم] = N'دوم'"),
        {"دوم"});
    row("prefix and alias", QStringLiteral("select k.Name from [db].[dbo].[kala] as k where K.CODE=1"),
        {"پیچ"});
    row("case and trailing blanks do not count",
        QStringLiteral("SELECT Code FROM kala WHERE Name = N'BRUSH' ORDER BY Code"), {"2", "3"});
    row("top", QStringLiteral("SELECT TOP 1 Code FROM kala ORDER BY Code DESC"), {"3"});
    row("top in brackets", QStringLiteral("SELECT TOP (2) Code FROM kala ORDER BY Code DESC;"), {"3", "2"});
    row("exact money", QStringLiteral("SELECT Price + 0.0001 FROM kala WHERE Code = 2"), {"100000000000000"});
    row("exact sum", QStringLiteral("SELECT SUM(Price) FROM kala"), {"100000000001250.4999"});
}

void TDialectSelectTest::aStatementDeliversTheRowsOfTheServer()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_->Rows(statement), rows);
}

QTEST_APPLESS_MAIN(TDialectSelectTest)
#include "test_dialect_select.moc"
