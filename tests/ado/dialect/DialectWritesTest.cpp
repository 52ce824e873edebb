#include "StatementFixture.h"

#include <QtTest>

/// Tables as they are created and rows as they are written.
class DialectWritesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void identityNumbersTheRowsAndIsTold();
    void anInsertWithoutColumnsLeavesIdentityAndComputedColumnsOut();
    void aValueTakesTheFormOfItsColumn();
    void aTextThatIsTooLongIsRefused();
    void aNumberThatIsNoneIsRefused();
    void insertFromSelectConvertsItsColumns();
    void updateJoinsTexts();
    void deleteTakesItsConditionsRowsOnly();
    void aComputedColumnFollowsItsSource();
    void constraintsHold_data();
    void constraintsHold();
    void aViewTellsTheTypesOfItsColumns();
    void aColumnCanBeAdded();
    void indexesAndTablesComeAndGo();

private:
    std::unique_ptr<TEmbeddedDatabase> database_;
};

void DialectWritesTest::init()
{
    database_ = std::make_unique<TEmbeddedDatabase>();
    database_->Prepare({
        QStringLiteral("CREATE TABLE [dbo].[goods] (\r\n"
                       "  [Id] [int] IDENTITY(1,1) NOT NULL,\r\n"
                       "  Name nvarchar(10) NOT NULL, -- as printed\r\n"
                       "  Folded AS LOWER(Name COLLATE Latin1_General_BIN2) PERSISTED,\r\n"
                       "  Price money NOT NULL CONSTRAINT DF_Price DEFAULT (0) CHECK (Price >= 0),\r\n"
                       "  Weight decimal(9,2) NULL,\r\n"
                       "  Bought date NULL, Changed datetime NULL, Active bit NOT NULL DEFAULT 1,\r\n"
                       "  CONSTRAINT PK_goods PRIMARY KEY CLUSTERED ([Id] ASC),\r\n"
                       "  CONSTRAINT UQ_goods_Name UNIQUE (Name)\r\n"
                       ") ON [PRIMARY]"),
        QStringLiteral(
            "CREATE TABLE sales (Good int NOT NULL REFERENCES goods (Id) ON DELETE CASCADE, No int NOT NULL, Note "
            "nvarchar(max), PRIMARY KEY (Good, No))"),
    });
}

void DialectWritesTest::identityNumbersTheRowsAndIsTold()
{
    database_->Prepare({QStringLiteral("INSERT INTO goods (Name) VALUES (N'پیچ'), (N'مهره')")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT SCOPE_IDENTITY() AS id, @@IDENTITY")),
             QStringList({"2|2"}));
    database_->Prepare({QStringLiteral("DELETE FROM goods WHERE Id = 2"),
                        QStringLiteral("INSERT INTO goods (Name) VALUES (N'میخ')")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Id FROM goods ORDER BY Id")), QStringList({"1", "3"}));
}

void DialectWritesTest::anInsertWithoutColumnsLeavesIdentityAndComputedColumnsOut()
{
    database_->Prepare({QStringLiteral("insert goods values (N'پیچ', 1, 2, NULL, NULL, 0)")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT * FROM goods")),
             QStringList({"1|پیچ|پیچ|1|2|NULL|NULL|0"}));
}

void DialectWritesTest::aValueTakesTheFormOfItsColumn()
{
    database_->Prepare({QStringLiteral(
        "INSERT INTO goods (Name, Price, Weight, Bought, Changed, Active) VALUES (N'O''Neil', "
        "99999999999999.99990, 1.005, '20240131', '2024-01-31 08:00:00.5', 5)")});
    QCOMPARE(
        database_->Rows(QStringLiteral("SELECT Name, Price, Weight, Bought, Changed, Active FROM goods")),
        QStringList({"O'Neil|99999999999999.9999|1.01|2024-01-31|2024-01-31T08:00:00.500|1"}));
}

void DialectWritesTest::aTextThatIsTooLongIsRefused()
{
    QCOMPARE(database_->Rows(QStringLiteral("INSERT INTO goods (Name) VALUES (N'12345678901')")),
             QStringList({"error: String or binary data would be truncated."}));
    QCOMPARE(database_->Rows(QStringLiteral("INSERT INTO goods (Name) VALUES (?)"), {"1234567890   "}),
             QStringList());
}

void DialectWritesTest::aNumberThatIsNoneIsRefused()
{
    QCOMPARE(database_->Rows(QStringLiteral("INSERT INTO goods (Name, Price) VALUES (N'x', N'12a')")),
             QStringList({"error: Conversion failed when converting the value '12a' to data type numeric."}));
}

void DialectWritesTest::insertFromSelectConvertsItsColumns()
{
    database_->Prepare(
        {QStringLiteral("INSERT INTO goods (Name, Price) SELECT N'a', '1.50' UNION ALL SELECT N'b', N'2'")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Name, Price FROM goods ORDER BY Name")),
             QStringList({"a|1.5", "b|2"}));
}

void DialectWritesTest::updateJoinsTexts()
{
    database_->Prepare(
        {QStringLiteral("INSERT INTO goods (Name, Price) VALUES (N'a', 1)"),
         QStringLiteral(
             "UPDATE dbo.goods SET Name += N'b', Price = Price + 0.1, Weight = Id WHERE name = N'A'")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Name, Price, Weight FROM goods")),
             QStringList({"ab|1.1|1"}));
}

void DialectWritesTest::deleteTakesItsConditionsRowsOnly()
{
    database_->Prepare({QStringLiteral("INSERT INTO goods (Name) VALUES (N'a'), (N'b'), (N'c')"),
                        QStringLiteral("DELETE goods WHERE Name IN (N'A', N'c')")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Name FROM goods")), QStringList({"b"}));
}

void DialectWritesTest::aComputedColumnFollowsItsSource()
{
    database_->Prepare({QStringLiteral("INSERT INTO goods (Name) VALUES (N'ABC')")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Folded FROM goods WHERE Folded LIKE N'%bc'")),
             QStringList({"abc"}));
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Folded FROM goods WHERE Folded LIKE N'%BC'")),
             QStringList());
}

void DialectWritesTest::constraintsHold_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("rule");
    QTest::newRow("unique without regard to case")
        << QStringLiteral("INSERT INTO goods (Name) VALUES (N'FIRST')") << QStringLiteral("UNIQUE");
    QTest::newRow("not null") << QStringLiteral("INSERT INTO goods (Name) VALUES (NULL)")
                              << QStringLiteral("NOT NULL");
    QTest::newRow("check by value") << QStringLiteral("UPDATE goods SET Price = -0.5")
                                    << QStringLiteral("CHECK");
    QTest::newRow("key without null")
        << QStringLiteral("INSERT INTO sales (Good, No) VALUES (1, NULL)") << QStringLiteral("NOT NULL");
}

void DialectWritesTest::constraintsHold()
{
    QFETCH(QString, statement);
    QFETCH(QString, rule);
    database_->Prepare({QStringLiteral("INSERT INTO goods (Name) VALUES (N'first')")});
    const QString answer = database_->Rows(statement).value(0);
    QVERIFY2(answer.startsWith(QLatin1String("error: ") + rule + QLatin1String(" constraint failed")),
             qPrintable(answer));
}

void DialectWritesTest::aViewTellsTheTypesOfItsColumns()
{
    database_->Prepare(
        {QStringLiteral("INSERT INTO goods (Name, Price) VALUES (N'Abc', 2.5)"),
         QStringLiteral(
             "CREATE VIEW dbo.list AS SELECT g.Id, g.Folded, g.Name + N'!' AS Title, g.Price + 1 AS "
             "Total FROM dbo.goods AS g")});
    const QString all = QStringLiteral("SELECT * FROM list");
    QCOMPARE(database_->Rows(all), QStringList({"1|abc|Abc!|3.5"}));
    QCOMPARE(database_->ColumnTypes(all), QStringList({"INT", "NVARCHAR(10)", "NVARCHAR(11)", "MONEY_TEXT"}));
    QCOMPARE(
        database_->Rows(QStringLiteral("SELECT Title + N'?' FROM list WHERE Title = N'ABC!' AND Total < 10")),
        QStringList({"Abc!?"}));
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Id FROM list WHERE Folded = N'ABC'")), QStringList());
}

void DialectWritesTest::aColumnCanBeAdded()
{
    database_->Prepare(
        {QStringLiteral("INSERT INTO goods (Name) VALUES (N'a')"),
         QStringLiteral("ALTER TABLE dbo.goods ADD Note nvarchar(20) NOT NULL DEFAULT N'بی‌نام'")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT Note FROM goods")), QStringList({"بی‌نام"}));
}

void DialectWritesTest::indexesAndTablesComeAndGo()
{
    database_->Prepare(
        {QStringLiteral(
             "CREATE UNIQUE NONCLUSTERED INDEX IX_a ON dbo.goods (Folded, Price DESC) INCLUDE (Weight)"),
         QStringLiteral("CREATE INDEX IX_b ON goods (Weight) WHERE Weight IS NOT NULL"),
         QStringLiteral("DROP INDEX IX_a ON dbo.goods"), QStringLiteral("DROP TABLE IF EXISTS dbo.missing"),
         QStringLiteral("DROP TABLE sales")});
    QCOMPARE(database_->Rows(QStringLiteral("SELECT * FROM sales")),
             QStringList({"error: no such table: sales"}));
}

QTEST_APPLESS_MAIN(DialectWritesTest)
#include "DialectWritesTest.moc"
