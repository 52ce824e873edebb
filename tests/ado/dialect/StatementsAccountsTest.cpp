#include "StatementFixture.h"

#include <QtTest>

/// The texts that the account code selector and the unique code frame send.
class StatementsAccountsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLookUpDeliversItsRow_data();
    void aLookUpDeliversItsRow();
    void theInUseTextFindsEveryUseOfAUniqueCode();
    void theInUseTextFindsNothingForAnUnusedCode();
    void savingAUniqueCodeChangesThatDetailOnly();

private:
    static QString InUseText(int type, int code);

    TStatementDatabase database_;
};

void StatementsAccountsTest::aLookUpDeliversItsRow_data()
{
    StatementColumns();
    StatementRow("detail type of a total", QStringLiteral("SELECT DetailType FROM AccTotals WHERE Code=205"),
                 {"10"});
    StatementRow("detail type of no total", QStringLiteral("SELECT DetailType FROM AccTotals WHERE Code=0"),
                 {});
    StatementRow("nature of a total", QStringLiteral("SELECT Nature FROM AccTotals WHERE Code=101"), {"1"});
    StatementRow(
        "group type of a total",
        QStringLiteral("SELECT [Type] FROM dbo.AccGroups WHERE  Code = (SELECT GroupCode FROM dbo.AccTotals "
                       "WHERE Code = 205)"),
        {"2"});
    StatementRow("group of a total",
                 QStringLiteral(
                     "SELECT Type FROM AccGroups WHERE Code IN (SELECT GroupCode FROM AccTotals WHERE Code = "
                     "101)"),
                 {"1"});
    StatementRow("properties of a total", QStringLiteral("Select Properties From AccTotals Where Code = 101"),
                 {"7"});
    StatementRow("properties of total zero",
                 QStringLiteral("Select Properties From AccTotals Where Code = 0"), {});
    StatementRow("currency of a detail without one",
                 QStringLiteral("SELECT ISNULL(CurrCode, 0) FROM AccDetails WHERE Code=12 AND [Type] = 3"),
                 {"0"});
    StatementRow("currency of a detail",
                 QStringLiteral("SELECT ISNULL(CurrCode, 0) FROM AccDetails WHERE Code=13 AND [Type] = 3"),
                 {"2"});
    StatementRow("title of an expense center", QStringLiteral("SELECT dbo.GetExpCenterName(0007) AS Title"),
                 {"مرکز 7"});
    StatementRow("next unique code", QStringLiteral("SELECT dbo.GetUinqueCode_FNC(4)"), {"1004"});
    StatementRow("unique code of a detail",
                 QStringLiteral("SELECT UniqueCode FROM AccDetails WHERE Code= 12 AND [Type] = 4"), {"1014"});
    StatementRow("holder of a unique code",
                 QStringLiteral("SELECT Code FROM AccDetails WHERE UniqueCode = 1013"), {"13"});
    StatementRow("holder of a free unique code",
                 QStringLiteral("SELECT Code FROM AccDetails WHERE UniqueCode = 99"), {});
}

void StatementsAccountsTest::aLookUpDeliversItsRow()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_.ComparableRows(statement), rows);
}

QString StatementsAccountsTest::InUseText(int type, int code)
{
    struct TUse
    {
        const char* Total;
        const char* Table;
        const char* Detail;
    };
    constexpr TUse uses[] = {{"Kol", "Sanad_Detail", "Tafzili"},
                             {"Kol", "FinancialReport", "Tafsili"},
                             {"Kol", "FinancialReportDetail", "Tafsili"},
                             {"Total", "AutoVoucherSetting", "Detail"},
                             {"Per_Kol", "Recruitment", "Per_Tafsili"},
                             {"Kol", "Deduction", "Tafzili"},
                             {"Kol", "fiscal", "Tafzili"}};
    QStringList selects;
    for (const TUse& use : uses) {
        selects.append(
            QStringLiteral("SELECT %1 FROM %2 WHERE %1 IN(SELECT Code FROM AccTotals WHERE DetailType = 10) "
                           "AND %3 = (SELECT UniqueCode FROM AccDetails WHERE [Type] = %4 AND Code = %5)")
                .arg(QLatin1String(use.Total), QLatin1String(use.Table), QLatin1String(use.Detail))
                .arg(type)
                .arg(code));
    }
    return selects.join(QLatin1String("\n\r UNION ALL "));
}

void StatementsAccountsTest::theInUseTextFindsEveryUseOfAUniqueCode()
{
    // Two voucher rows, one report, one fiscal row; the automatic voucher's total holds no unique codes.
    QCOMPARE(database_.Rows(InUseText(3, 12)), QStringList({"205", "205", "205", "205"}));
}

void StatementsAccountsTest::theInUseTextFindsNothingForAnUnusedCode()
{
    QCOMPARE(database_.Rows(InUseText(4, 12)), QStringList());
}

void StatementsAccountsTest::savingAUniqueCodeChangesThatDetailOnly()
{
    TStatementDatabase database;
    QCOMPARE(database.Rows(
                 QStringLiteral("UPDATE AccDetails SET UniqueCode = 2000 WHERE [Type] = 3 AND Code= 12")),
             QStringList());
    QCOMPARE(database.Rows(
                 QStringLiteral("SELECT [Type], Code, UniqueCode FROM AccDetails ORDER BY [Type], Code")),
             QStringList({"3|12|2000", "3|13|1013", "4|12|1014"}));
}

QTEST_APPLESS_MAIN(StatementsAccountsTest)
#include "StatementsAccountsTest.moc"
