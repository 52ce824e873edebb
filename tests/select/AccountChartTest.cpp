#include "AccountChart.h"
#include "ChartTables.h"
#include "RecordingServices.h"
#include "TestCase.h"

#include <stdexcept>

namespace {

struct TChart : TChartTables
{
    TCallLog Log;
    TRecordingDataModule DataModule;
    TRecordingAccounting Accounting{Log};
    TAccountChart Chart{DataModule, Accounting};

    TChart() { DataModule.Query = &Query; }
};

constexpr TCodeItem T = TCodeItem::ctTotal;
constexpr TCodeItem A = TCodeItem::ctAssistant;
constexpr TCodeItem D = TCodeItem::ctDetail;
constexpr TCodeItem E = TCodeItem::ctExpenseCenter;

} // namespace

class AccountChartTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDetailTypeOfATotal()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetTotalDetailType(90), 10);
        QCOMPARE(chart.Chart.GetTotalDetailType(0), 0);
        QCOMPARE(chart.Statements, (QStringList{"SELECT DetailType FROM AccTotals WHERE Code=90",
                                                "SELECT DetailType FROM AccTotals WHERE Code=0"}));
    }

    void theNatureOfATotal()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetTotalNatureType(7), 2);
        QCOMPARE(chart.Statements, QStringList{"SELECT Nature FROM AccTotals WHERE Code=7"});
    }

    void theGroupTypeOfATotalIsAskedWithTwoBlanks()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetTotalGroupType(7), 4);
        QCOMPARE(chart.Statements,
                 QStringList{"SELECT [Type] FROM dbo.AccGroups WHERE  Code = (SELECT GroupCode "
                             "FROM dbo.AccTotals WHERE Code = 7)"});
    }

    void theGroupTypeFallsBackWithoutATotal()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetGroupType(0, THCSelectGroups::sgCosts), THCSelectGroups::sgCosts);
        QVERIFY(chart.Statements.isEmpty());
        QCOMPARE(chart.Chart.GetGroupType(7, THCSelectGroups::sgCosts), THCSelectGroups::sgIncomes);
        QCOMPARE(chart.Statements,
                 QStringList{"SELECT Type FROM AccGroups WHERE Code IN (SELECT GroupCode FROM "
                             "AccTotals WHERE Code = 7)"});
    }

    void thePropertiesOfATotal()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetSelectCodeProperties(7), TPropertiesItems(TPropertiesItem::piCurrency) |
                                                             TPropertiesItem::piExpenseCenter |
                                                             TPropertiesItem::piControlNature);
        QCOMPARE(chart.Chart.GetSelectCodeProperties(0), TPropertiesItems());
        QCOMPARE(chart.Statements, (QStringList{"Select Properties From AccTotals Where Code = 7",
                                                "Select Properties From AccTotals Where Code = 0"}));
    }

    void theCurrencyOfADetail_data()
    {
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("assistant");
        QTest::addColumn<int>("detail");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("currency");
        QTest::newRow("its own") << 7 << 1 << 11 << 1 << 5;
        QTest::newRow("none stored") << 7 << 1 << 12 << 1 << 1;
        QTest::newRow("unknown detail") << 7 << 1 << 999999 << 1 << 1;
        QTest::newRow("unknown total") << 8 << 1 << 11 << 0 << 1;
        QTest::newRow("top bit cleared") << 129 << 1 << 11 << 1 << 5;
        QTest::newRow("incomes without assistant") << 50 << 0 << 11 << 3 << 6;
        QTest::newRow("incomes") << 50 << 1 << 11 << 3 << 6;
        QTest::newRow("costs") << 50 << 2 << 11 << 4 << 7;
    }
    void theCurrencyOfADetail()
    {
        QFETCH(int, total);
        QFETCH(int, assistant);
        QFETCH(int, detail);
        QFETCH(int, kind);
        TChart chart;
        QTEST(chart.Chart.GetCurrCode({total, assistant, detail}), "currency");
        QCOMPARE(chart.Statements,
                 (QStringList{QStringLiteral("SELECT DetailType FROM AccTotals WHERE Code=%1").arg(total),
                              QStringLiteral("SELECT ISNULL(CurrCode, 0) FROM AccDetails WHERE Code=%1 AND "
                                             "[Type] = %2")
                                  .arg(detail)
                                  .arg(kind)}));
    }

    void withoutADetailTheCurrencyIsTheBaseCurrency()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetCurrCode({7, 1, 0}), 1);
        QVERIFY(chart.Statements.isEmpty());
    }

    void theTitleOfAnExpenseCenterIsAskedWithThePaddedText()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetExpCenterTitle(QStringLiteral("0042")), QStringLiteral("کارگاه"));
        QCOMPARE(chart.Chart.GetExpCenterTitle(QStringLiteral("0043")), QString());
        QCOMPARE(chart.Statements, (QStringList{"SELECT dbo.GetExpCenterName(0042) AS Title",
                                                "SELECT dbo.GetExpCenterName(0043) AS Title"}));
    }

    void onlyDigitsReachTheStatement_data()
    {
        QTest::addColumn<QString>("code");
        for (const QStringView code : {u"", u"000'", u"00A", u"1;2", u"-1", u" 1", u"1 ", u"$1", u"0x1",
                                       u"1.5", u"۱۲", u"١٢", u"１２", u"1) AS Title --", u"مرکزهزينه"})
            QTest::newRow(qPrintable(code.toString())) << code.toString();
    }
    void onlyDigitsReachTheStatement()
    {
        QFETCH(QString, code);
        TChart chart;
        QCOMPARE(chart.Chart.GetExpCenterTitle(code), QString());
        QVERIFY(chart.Statements.isEmpty());
    }

    void aNegativeCodeIsRefusedBeforeAnythingIsSent()
    {
        TChart chart;
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, chart.Chart.GetTotalDetailType(-1));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, chart.Chart.GetCurrCode({-7, 1, 11}));
        QVERIFY(chart.Statements.isEmpty());
    }

    void anUnknownTotalAnswersZero()
    {
        TChart chart;
        QCOMPARE(chart.Chart.GetTotalDetailType(999), 0);
        QCOMPARE(chart.Chart.GetTotalNatureType(999), 0);
        QCOMPARE(chart.Chart.GetTotalGroupType(999), 0);
        QCOMPARE(chart.Chart.GetGroupType(999, THCSelectGroups::sgCosts), THCSelectGroups::sgNone);
        QCOMPARE(chart.Chart.GetSelectCodeProperties(999), TPropertiesItems());
    }

    void anOpenSharedQueryIsClosedFirst()
    {
        TChart chart;
        chart.Query.SQL.SetText(QStringLiteral("SELECT Code FROM AccTotals"));
        chart.Query.Open();
        QCOMPARE(chart.Chart.GetExpCenterTitle(QStringLiteral("0042")), QStringLiteral("کارگاه"));
        QCOMPARE(chart.Chart.GetTotalNatureType(7), 2);
    }

    void theLevelsSayWhichNameIsAskedFor_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<THesabType>("kind");
        const auto row = [](const char* name, TCodeItems levels, THesabType kind) {
            QTest::newRow(name) << int{levels.Bits()} << kind;
        };
        row("none", {}, THesabType::htFull);
        row("T", {T}, THesabType::htTotal);
        row("A", {A}, THesabType::htAssistant);
        row("TA", {T, A}, THesabType::htTotal);
        row("D", {D}, THesabType::htDetail);
        row("TD", {T, D}, THesabType::htTotal);
        row("AD", {A, D}, THesabType::htAssistant);
        row("TAD", {T, A, D}, THesabType::htFull);
        row("E", {E}, THesabType::htFull);
        row("TE", {T, E}, THesabType::htTotal);
        row("AE", {A, E}, THesabType::htAssistant);
        row("TAE", {T, A, E}, THesabType::htTotal);
        row("DE", {D, E}, THesabType::htDetail);
        row("TDE", {T, D, E}, THesabType::htTotal);
        row("ADE", {A, D, E}, THesabType::htAssistant);
        row("TADE", {T, A, D, E}, THesabType::htFull);
    }
    void theLevelsSayWhichNameIsAskedFor()
    {
        QFETCH(int, levels);
        QFETCH(THesabType, kind);
        TChart chart;
        const TCodeItems items = TCodeItems::FromBits(static_cast<unsigned>(levels));
        QCOMPARE(TAccountChart::NameKind(items), kind);
        bool found = true;
        chart.Chart.HesabName(items, {7, 0, 3}, found);
        if (kind == THesabType::htAssistant) {
            QVERIFY(found);
            QVERIFY(chart.Log.Lines().isEmpty());
        } else {
            QVERIFY(!found);
            QCOMPARE(chart.Log.Lines(),
                     QStringList{QStringLiteral("GetHesabName(7, , 3, %1)").arg(static_cast<int>(kind))});
        }
    }

    void anEmptySingleLevelCountsAsFoundWithoutAsking()
    {
        TChart chart;
        for (const TCodeItem level : {T, A, D}) {
            bool found = false;
            QCOMPARE(chart.Chart.HesabName({level}, {}, found), QString());
            QVERIFY(found);
        }
        QVERIFY(chart.Log.Lines().isEmpty());
    }

    void theHostNamesTheAccount()
    {
        TChart chart;
        chart.Accounting.Names.insert(QStringLiteral("7/2/11"), QStringLiteral("بانک ملت"));
        bool found = false;
        QCOMPARE(chart.Chart.HesabName({T, A, D}, {7, 2, 11}, found), QStringLiteral("بانک ملت"));
        QVERIFY(found);
    }

    void detailTypeTenHasEightDigits()
    {
        for (int type = 0; type < 256; ++type)
            QCOMPARE(TAccountChart::DetailLength(type), type == 10 ? 8 : 6);
    }

    void theSetHasOneBitPerLevel()
    {
        static_assert(sizeof(TCodeItems) == 1);
        QCOMPARE((TCodeItems{T}).Bits(), quint8(1));
        QCOMPARE((TCodeItems{A}).Bits(), quint8(2));
        QCOMPARE((TCodeItems{D}).Bits(), quint8(4));
        QCOMPARE((TCodeItems{E}).Bits(), quint8(8));
        QCOMPARE(TCodeItems::FromBits(0xFF), (TCodeItems{T, A, D, E}));
        QVERIFY(!(TCodeItems{E}).ContainsAccount());
        QVERIFY((TCodeItems{D, E}).ContainsAccount());
    }
};

QTEST_GUILESS_MAIN(AccountChartTest)
#include "AccountChartTest.moc"
