#include "TestCase.h"
#include "TradeFixture.h"

#include <QProcess>

class AutoVoucherContentionTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void severalProgramsAtOnceWriteEachVoucherOnce();
    void aCorrectionMeanwhileIsNotLost();

private:
    static std::unique_ptr<QProcess> Start(const TTradeFixture& shop, int user);
    static int Written(QProcess& worker);
};

std::unique_ptr<QProcess> AutoVoucherContentionTest::Start(const TTradeFixture& shop, int user)
{
    auto worker = std::make_unique<QProcess>();
    worker->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker->start(QCoreApplication::applicationDirPath() + QStringLiteral("/" AUTO_VOUCHER_WORKER),
                  {shop.ConnectionString(), QString::number(user)});
    return worker;
}

int AutoVoucherContentionTest::Written(QProcess& worker)
{
    constexpr int LongestWait = 120000;
    const bool ended = worker.waitForFinished(LongestWait) && worker.exitStatus() == QProcess::NormalExit &&
                       worker.exitCode() == 0;
    return ended ? worker.readAllStandardOutput().trimmed().toInt() : -1;
}

void AutoVoucherContentionTest::severalProgramsAtOnceWriteEachVoucherOnce()
{
    constexpr int trades = 120;
    TTradeFixture shop;
    for (int index = 0; index < trades; ++index)
        shop.Add(index % 3 == 0 ? TTradeFixture::Purchase : TTradeFixture::Sale,
                 shop.Date(QStringLiteral("02/%1").arg(1 + index % 28, 2, 10, QLatin1Char('0'))),
                 {{90001, 1, 1000}});
    const int vouchers = shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad"));
    std::vector<std::unique_ptr<QProcess>> workers;
    for (int user = 1; user <= 3; ++user)
        workers.push_back(Start(shop, user));
    int written = 0;
    for (const auto& worker : workers) {
        const int count = Written(*worker);
        QVERIFY(count >= 0);
        written += count;
    }
    QCOMPARE(written, trades);
    QVERIFY(!TAutoVouchers::AnyMissing(*shop.Connection));
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad")), vouchers + trades);
    QCOMPARE(shop.Number(
                 QStringLiteral("SELECT COUNT(*) FROM (SELECT SanadId FROM dbo.Trades WHERE SanadId IS NOT "
                                "NULL GROUP BY SanadId HAVING COUNT(*) > 1) AS t")),
             0);
    QCOMPARE(shop.Damage(), QStringList());
}

void AutoVoucherContentionTest::aCorrectionMeanwhileIsNotLost()
{
    constexpr int trades = 60;
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date(QStringLiteral("02/01")), {{90001, 10, 700}});
    QVector<int> sales;
    for (int index = 0; index < trades; ++index)
        sales << shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/03")), {{90001, 1, 1000}});
    const auto worker = Start(shop, 1);
    QTRY_VERIFY(shop.VoucherOf(sales.constFirst()) != 0);
    shop.Correct(shop.Date(QStringLiteral("02/02")), QStringLiteral("-3"));
    QVERIFY(Written(*worker) >= trades);
    shop.SaveAgain();
    for (const int sale : qAsConst(sales))
        QCOMPARE(shop.Lines(sale).value(3), QStringLiteral("701/1/0 1000 0"));
    QCOMPARE(shop.Damage(), QStringList());
}

QTEST_GUILESS_MAIN(AutoVoucherContentionTest)
#include "AutoVoucherContentionTest.moc"
