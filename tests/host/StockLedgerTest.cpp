#include "ServiceRefused.h"
#include "TestCase.h"
#include "TradeFixture.h"

class StockLedgerTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void goodsCostTheAverageOfTheirPurchases();
    void laterPurchasesDoNotCount();
    void missingGoodsMakeTheOthersDearer();
    void goodsNeverBoughtCostTheirStandardShare();
    void aCorrectionOfMoreThanWasBoughtDoesNotTurnTheCostRound();
    void aCorrectionChangesTheStockExactly();
    void aChangedCorrectionCountsAsIfItHadAlwaysBeenSo();
    void aRemovedCorrectionIsAsIfItHadNeverBeen();
    void aCorrectionThatIsGoneCannotBeChanged();
    void aCorrectionThatBreaksARuleWritesNothing_data();
    void aCorrectionThatBreaksARuleWritesNothing();
};

namespace {

QString CostOf(TTradeFixture& shop, int trade, const QString& day)
{
    return TStockLedger(*shop.Connection).CostOfSale(trade, shop.Date(day)).ToString();
}

} // namespace

void StockLedgerTest::goodsCostTheAverageOfTheirPurchases()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 1, 100}, {90001, 2, 250}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 2, 1000}, {90001, 1, 900}});
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/02")), QStringLiteral("600"));
}

void StockLedgerTest::laterPurchasesDoNotCount()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 1, 100}});
    shop.Add(TTradeFixture::Purchase, shop.Date("02/03"), {{90001, 1, 900}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 1, 1000}});
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/02")), QStringLiteral("100"));
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("500"));
}

void StockLedgerTest::missingGoodsMakeTheOthersDearer()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 100}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    shop.Correct(shop.Date("02/02"), QStringLiteral("-2.5"));
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("133"));
    shop.Correct(shop.Date("02/03"), QStringLiteral("12.5"));
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("50"));
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/02")), QStringLiteral("133"));
}

void StockLedgerTest::goodsNeverBoughtCostTheirStandardShare()
{
    TTradeFixture shop;
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 2, 1000}});
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("1640"));
}

void StockLedgerTest::aCorrectionOfMoreThanWasBoughtDoesNotTurnTheCostRound()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 100}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    for (const char* quantity : {"-10", "-5"}) {
        shop.Correct(shop.Date("02/02"), QString::fromLatin1(quantity));
        QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("100"));
    }
}

void StockLedgerTest::aCorrectionChangesTheStockExactly()
{
    TTradeFixture shop;
    shop.Run(QStringLiteral("UPDATE dbo.kala SET Stock = 123456789012345.1 WHERE Code = 90001"));
    shop.Correct(shop.Date("02/02"), QStringLiteral("-0.101"));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = 90001")),
             QStringLiteral("123456789012344.999"));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Quantity FROM dbo.StockCorrections")),
             QStringLiteral("-0.101"));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Sharh FROM dbo.StockCorrections")), QStringLiteral("شمارش"));
}

void StockLedgerTest::aChangedCorrectionCountsAsIfItHadAlwaysBeenSo()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 100}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    shop.SaveMissing();
    shop.Correct(shop.Date("02/04"), QStringLiteral("-2"));
    const int id = shop.Number(QStringLiteral("SELECT Id FROM dbo.StockCorrections"));
    QVERIFY(!TAutoVouchers::AnyAwaiting(*shop.Connection));
    const TStockCorrection earlier{
        90001, shop.Date("02/02"), QStringLiteral("-5"), {}, 1, QStringLiteral("2026-01-02T03:04:05")};
    QCOMPARE(TStockLedger(*shop.Connection).Change(id, earlier), 1);
    QCOMPARE(CostOf(shop, sale, QStringLiteral("02/03")), QStringLiteral("200"));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = 90001")),
             QStringLiteral("95"));
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.StockCorrections")), 1);
}

void StockLedgerTest::aRemovedCorrectionIsAsIfItHadNeverBeen()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 100}});
    shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    shop.SaveMissing();
    shop.Correct(shop.Date("02/02"), QStringLiteral("7.25"));
    shop.SaveAgain();
    const int id = shop.Number(QStringLiteral("SELECT Id FROM dbo.StockCorrections"));
    QVERIFY_THROWS_EXCEPTION(EServiceRefused, TStockLedger(*shop.Connection).Remove(id, 0));
    QCOMPARE(TStockLedger(*shop.Connection).Remove(id, 1), 1);
    QVERIFY(TAutoVouchers::AnyAwaiting(*shop.Connection));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = 90001")),
             QStringLiteral("100"));
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.StockCorrections")), 0);
}

void StockLedgerTest::aCorrectionThatIsGoneCannotBeChanged()
{
    TTradeFixture shop;
    TStockLedger ledger(*shop.Connection);
    const TStockCorrection correction{
        90001, shop.Date("02/02"), QStringLiteral("1"), {}, 1, QStringLiteral("2026-01-02T03:04:05")};
    QVERIFY_THROWS_EXCEPTION(EServiceRefused, ledger.Remove(77, 1));
    QVERIFY_THROWS_EXCEPTION(EServiceRefused, ledger.Change(77, correction));
    ledger.Correct(correction);
    TStockCorrection ofOtherGoods = correction;
    ofOtherGoods.Kala = 1;
    const int id = shop.Number(QStringLiteral("SELECT Id FROM dbo.StockCorrections"));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, ledger.Change(id, ofOtherGoods));
    QCOMPARE(shop.Text(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = 90001")),
             QStringLiteral("101"));
}

void StockLedgerTest::aCorrectionThatBreaksARuleWritesNothing_data()
{
    QTest::addColumn<int>("kala");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<int>("user");
    QTest::newRow("nothing") << 90001 << "02/02"
                             << "0" << 2;
    QTest::newRow("no number") << 90001 << "02/02"
                               << "" << 2;
    QTest::newRow("too fine") << 90001 << "02/02"
                              << "0.0001" << 2;
    QTest::newRow("too large") << 90001 << "02/02"
                               << "1234567890123456" << 2;
    QTest::newRow("unknown goods") << 90009 << "02/02"
                                   << "1" << 2;
    QTest::newRow("no such day") << 90001 << "99/99"
                                 << "1" << 2;
    QTest::newRow("nobody") << 90001 << "02/02"
                            << "1" << 0;
}

void StockLedgerTest::aCorrectionThatBreaksARuleWritesNothing()
{
    QFETCH(const int, kala);
    QFETCH(const QString, date);
    QFETCH(const QString, quantity);
    QFETCH(const int, user);
    TTradeFixture shop;
    TStockLedger ledger(*shop.Connection);
    QVERIFY_THROWS_EXCEPTION(
        EServiceRefused,
        ledger.Correct({kala, shop.Date(date), quantity, {}, user, QStringLiteral("2026-01-02T03:04:05")}));
    QVERIFY(!shop.Connection->InTransaction());
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.StockCorrections")), 0);
    QCOMPARE(shop.Text(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = 90001")),
             QStringLiteral("100"));
}

QTEST_GUILESS_MAIN(StockLedgerTest)
#include "StockLedgerTest.moc"
