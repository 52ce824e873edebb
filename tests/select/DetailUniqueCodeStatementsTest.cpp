#include "DetailUniqueCode.h"
#include "TestCase.h"

using enum TFloatingAccountsType;

class DetailUniqueCodeStatementsTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersStandBareInTheStatements()
    {
        QCOMPARE(DetailUniqueCode::NextFree(fatGoods), QStringLiteral("SELECT dbo.GetUinqueCode_FNC(8)"));
        QCOMPARE(DetailUniqueCode::Stored(fatPersonals, 12),
                 QStringLiteral("SELECT UniqueCode FROM AccDetails WHERE Code= 12 AND [Type] = 1"));
        QCOMPARE(DetailUniqueCode::AccountsOf(1000012),
                 QStringLiteral("SELECT Code FROM AccDetails WHERE UniqueCode = 1000012"));
        QCOMPARE(DetailUniqueCode::Save(fatUnique, 12, 7),
                 QStringLiteral("UPDATE AccDetails SET UniqueCode = 7 WHERE [Type] = 10 AND Code= 12"));
    }

    void theUsesAreLookedForInSevenTables()
    {
        const QString expected = QStringLiteral(
            "SELECT Kol FROM Sanad_Detail WHERE Kol IN(SELECT Code FROM AccTotals WHERE DetailType = 10) AND "
            "Tafzili = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Kol FROM FinancialReport WHERE Kol IN(SELECT Code FROM AccTotals WHERE DetailType = 10) AND "
            "Tafsili = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Kol FROM FinancialReportDetail WHERE Kol IN(SELECT Code FROM AccTotals WHERE DetailType = "
            "10) AND Tafsili = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Total FROM AutoVoucherSetting WHERE Total IN(SELECT Code FROM AccTotals WHERE DetailType = "
            "10) AND Detail = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Per_Kol FROM Recruitment WHERE Per_Kol IN(SELECT Code FROM AccTotals WHERE DetailType = 10) "
            "AND Per_Tafsili = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Kol FROM Deduction WHERE Kol IN(SELECT Code FROM AccTotals WHERE DetailType = 10) AND "
            "Tafzili = (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)"
            "\n\r UNION ALL "
            "SELECT Kol FROM fiscal WHERE Kol IN(SELECT Code FROM AccTotals WHERE DetailType = 10) AND Tafzili "
            "= (SELECT UniqueCode FROM AccDetails WHERE [Type] = 4 AND Code = 31)");
        QCOMPARE(DetailUniqueCode::Uses(fatCosts, 31), expected);
    }
};

QTEST_GUILESS_MAIN(DetailUniqueCodeStatementsTest)
#include "DetailUniqueCodeStatementsTest.moc"
