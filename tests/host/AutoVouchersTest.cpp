#include "ServiceRefused.h"
#include "TestCase.h"
#include "TradeFixture.h"

class AutoVouchersTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSaleGetsItsBalancedVoucher();
    void aPurchaseGetsItsBalancedVoucher();
    void oddAmountsStayExact();
    void numbersFollowTheLastOneOfTheYear();
    void operationsWithVouchersAreLeftAlone();
    void closedYearsAreLeftAloneAndCounted();
    void aFaultyOperationIsToldAndTheOthersGoOn_data();
    void aFaultyOperationIsToldAndTheOthersGoOn();
    void withoutAUserNothingIsWritten();
    void aMissingAccountIsNamedBeforeAnythingIsWritten();
    void stoppingKeepsWhatIsWritten();
    void anErrorInTheMiddleLeavesNoHalfVoucher();
    void aCorrectionMarksLaterSalesOnly();
    void regenerationReplacesTheLinesAndKeepsNumberAndDate();
    void regenerationOfClosedYearsIsLeft();
    void theScopeRestricts_data();
    void theScopeRestricts();
    void aScopeThatIsNoListOfKindsIsRefused();
};

void AutoVouchersTest::aSaleGetsItsBalancedVoucher()
{
    TTradeFixture shop;
    QVERIFY(!TAutoVouchers::AnyMissing(*shop.Connection));
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 700}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 3, 1000}}, 7);
    QVERIFY(TAutoVouchers::AnyMissing(*shop.Connection));
    const TAutoVoucherResult result = shop.SaveMissing();
    QCOMPARE(result.Written, 2);
    QCOMPARE(result.Faults, QStringList());
    QCOMPARE(shop.Lines(sale), (QStringList{"104/1/7 3300 0", "601/1/0 0 3000", "303/1/0 0 300",
                                            "701/1/0 2100 0", "106/1/0 0 2100"}));
    QVERIFY(shop.Head(sale).endsWith(
        QStringLiteral("|%1/02/02|فروش کالا - فاکتور فروش شماره 900002|2").arg(shop.OpenYear)));
    QVERIFY(!TAutoVouchers::AnyMissing(*shop.Connection));
    QCOMPARE(shop.Damage(), QStringList());
}

void AutoVouchersTest::aPurchaseGetsItsBalancedVoucher()
{
    TTradeFixture shop;
    const int purchase =
        shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 700}, {90001, 1, 5}}, 3);
    QCOMPARE(shop.SaveMissing().Written, 1);
    QCOMPARE(shop.Lines(purchase), (QStringList{"106/1/0 7005 0", "109/1/0 701 0", "301/1/3 0 7706"}));
    QCOMPARE(shop.Damage(), QStringList());
}

void AutoVouchersTest::oddAmountsStayExact()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 3, 333333333333}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 7, 123456789012345}});
    shop.Run(QStringLiteral("UPDATE dbo.Trades SET Amount = 864197523086415.1234 WHERE Id = %1").arg(sale));
    QCOMPARE(shop.SaveMissing().Written, 2);
    QCOMPARE(shop.Lines(sale),
             (QStringList{"104/1/1 950617275395057.1234 0", "601/1/0 0 864197523086415.1234",
                          "303/1/0 0 86419752308642", "701/1/0 2333333333331 0", "106/1/0 0 2333333333331"}));
    QCOMPARE(shop.Damage(), QStringList());
}

void AutoVouchersTest::numbersFollowTheLastOneOfTheYear()
{
    TTradeFixture shop;
    const int last = shop.Number(
        QStringLiteral("SELECT MAX(Number) FROM dbo.Sanad WHERE FiscalYear = %1").arg(shop.OpenYear));
    const int later = shop.Add(TTradeFixture::Purchase, shop.Date("03/01"), {{90001, 1, 10}});
    const int earlier = shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 1, 10}});
    shop.SaveMissing();
    QVERIFY(shop.Head(earlier).startsWith(QString::number(last + 1) + u'|'));
    QVERIFY(shop.Head(later).startsWith(QString::number(last + 2) + u'|'));
}

void AutoVouchersTest::operationsWithVouchersAreLeftAlone()
{
    TTradeFixture shop;
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 1, 1000}});
    shop.SaveMissing();
    const int voucher = shop.VoucherOf(sale);
    QCOMPARE(shop.SaveMissing().Written, 0);
    QCOMPARE(shop.SaveAgain().Written, 0);
    QCOMPARE(shop.VoucherOf(sale), voucher);
}

void AutoVouchersTest::closedYearsAreLeftAloneAndCounted()
{
    TTradeFixture shop;
    const int closedYear = shop.Number(QStringLiteral("SELECT MIN(Code) FROM dbo.FiscalYears"));
    shop.Run(QStringLiteral("UPDATE dbo.FiscalYears SET Closed = 1 WHERE Code = %1").arg(closedYear));
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/02", closedYear), {{90001, 1, 1000}});
    QVERIFY(!TAutoVouchers::AnyMissing(*shop.Connection));
    const TAutoVoucherResult result = shop.SaveMissing();
    QCOMPARE(result.Written, 0);
    QCOMPARE(result.InClosedYears, 1);
    QCOMPARE(shop.VoucherOf(sale), 0);
}

void AutoVouchersTest::aFaultyOperationIsToldAndTheOthersGoOn_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("told");
    QTest::newRow("no amount") << "Amount = 0"
                               << "مبلغ باید بیش از صفر باشد";
    QTest::newRow("less than nothing") << "Amount = -5"
                                       << "مبلغ باید بیش از صفر باشد";
    QTest::newRow("a kind of its own") << "Kind = 9"
                                       << "سند خودکار ندارد";
    QTest::newRow("a person without an account") << "PersonCode = 99999"
                                                 << "104/1/99999";
}

void AutoVouchersTest::aFaultyOperationIsToldAndTheOthersGoOn()
{
    QFETCH(const QString, damage);
    QFETCH(const QString, told);
    TTradeFixture shop;
    shop.Run(
        QStringLiteral("INSERT INTO dbo.Persons (Code, Name, FullName) VALUES (99999, N'تازه', N'تازه')"));
    const int faulty = shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 1, 1000}});
    const int sound = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    shop.Run(QStringLiteral("UPDATE dbo.Trades SET %1 WHERE Id = %2").arg(damage).arg(faulty));
    const int vouchers = shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad"));
    const TAutoVoucherResult result = shop.SaveMissing();
    QCOMPARE(result.Written, 1);
    QCOMPARE(result.Faults.size(), 1);
    QVERIFY2(result.Faults.constFirst().contains(told), qPrintable(result.Faults.constFirst()));
    QCOMPARE(shop.VoucherOf(faulty), 0);
    QVERIFY(shop.VoucherOf(sound) != 0);
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad")), vouchers + 1);
}

void AutoVouchersTest::withoutAUserNothingIsWritten()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Sale, shop.Date("02/02"), {{90001, 1, 1000}});
    TAutoVouchers nobody(*shop.Connection, {0, QStringLiteral("2026-01-02T03:04:05")});
    QVERIFY_THROWS_EXCEPTION(EServiceRefused, nobody.SaveMissing());
    QVERIFY(TAutoVouchers::AnyMissing(*shop.Connection));
}

void AutoVouchersTest::aMissingAccountIsNamedBeforeAnythingIsWritten()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/02"), {{90001, 1, 1000}});
    shop.Run(QStringLiteral("DELETE FROM dbo.AutoVoucherSetting WHERE Operation = N'فروش نسیه'"));
    try {
        shop.SaveMissing();
        QFAIL("vouchers are generated without their accounts");
    } catch (const EServiceRefused& refused) {
        QVERIFY(refused.Message().contains(QStringLiteral("«فروش نسیه»")));
    }
    QVERIFY(TAutoVouchers::AnyMissing(*shop.Connection));
}

void AutoVouchersTest::stoppingKeepsWhatIsWritten()
{
    TTradeFixture shop;
    for (int day = 1; day <= 5; ++day)
        shop.Add(TTradeFixture::Purchase, shop.Date(QStringLiteral("02/0%1").arg(day)), {{90001, 1, 1000}});
    QStringList told;
    const TAutoVoucherResult result = shop.Generator().SaveMissing([&told](int done, int count) {
        told << QStringLiteral("%1/%2").arg(done).arg(count);
        return done < 2;
    });
    QVERIFY(result.Stopped);
    QCOMPARE(result.Written, 2);
    QCOMPARE(told, (QStringList{"0/5", "1/5", "2/5"}));
    QCOMPARE(shop.SaveMissing().Written, 3);
}

void AutoVouchersTest::anErrorInTheMiddleLeavesNoHalfVoucher()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 1, 1000}});
    const int vouchers = shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad"));
    const int lines = shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail"));
    int inserted = 0;
    shop.Connection->OnWillExecute = [&inserted](TADOConnection*, const QString& text) {
        if (text.startsWith(QStringLiteral("INSERT INTO dbo.Sanad_Detail")) && ++inserted == 2)
            throw EADOError(TAdoErrorKind::Other, QStringLiteral("قطع"));
    };
    QVERIFY_THROWS_EXCEPTION(EADOError, shop.SaveMissing());
    shop.Connection->OnWillExecute = nullptr;
    QVERIFY(!shop.Connection->InTransaction());
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad")), vouchers);
    QCOMPARE(shop.Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail")), lines);
    QCOMPARE(shop.SaveMissing().Written, 1);
}

void AutoVouchersTest::aCorrectionMarksLaterSalesOnly()
{
    TTradeFixture shop;
    const int before = shop.Add(TTradeFixture::Sale, shop.Date("02/01"), {{90001, 1, 1000}});
    const int after = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{90001, 1, 1000}});
    const int other = shop.Add(TTradeFixture::Sale, shop.Date("02/03"), {{1, 1, 1000}});
    const int bought = shop.Add(TTradeFixture::Purchase, shop.Date("02/03"), {{90001, 1, 1000}});
    shop.SaveMissing();
    const int bare = shop.Add(TTradeFixture::Sale, shop.Date("02/04"), {{90001, 1, 1000}});
    QVERIFY(!TAutoVouchers::AnyAwaiting(*shop.Connection));
    QCOMPARE(shop.Correct(shop.Date("02/02"), QStringLiteral("-2")), 1);
    QVERIFY(TAutoVouchers::AnyAwaiting(*shop.Connection));
    const auto awaits = [&shop](int trade) {
        return shop.Number(
                   QStringLiteral("SELECT COUNT(*) FROM dbo.Trades WHERE NeedsRefresh = 1 AND Id = %1")
                       .arg(trade)) == 1;
    };
    QVERIFY(awaits(after));
    for (const int trade : {before, other, bought, bare})
        QVERIFY(!awaits(trade));
}

void AutoVouchersTest::regenerationReplacesTheLinesAndKeepsNumberAndDate()
{
    TTradeFixture shop;
    shop.Add(TTradeFixture::Purchase, shop.Date("02/01"), {{90001, 10, 700}});
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/05"), {{90001, 3, 1000}});
    shop.SaveMissing();
    const QString head = shop.Head(sale);
    const int voucher = shop.VoucherOf(sale);
    QCOMPARE(shop.Lines(sale).at(3), QStringLiteral("701/1/0 2100 0"));
    shop.Correct(shop.Date("02/02"), QStringLiteral("-3"));
    QCOMPARE(shop.SaveAgain().Written, 1);
    QCOMPARE(shop.Lines(sale).at(3), QStringLiteral("701/1/0 3000 0"));
    QCOMPARE(shop.Lines(sale).at(4), QStringLiteral("106/1/0 0 3000"));
    QCOMPARE(shop.Lines(sale).size(), 5);
    QCOMPARE(shop.Head(sale), head);
    QCOMPARE(shop.VoucherOf(sale), voucher);
    QVERIFY(!TAutoVouchers::AnyAwaiting(*shop.Connection));
    QCOMPARE(shop.Damage(), QStringList());
}

void AutoVouchersTest::regenerationOfClosedYearsIsLeft()
{
    TTradeFixture shop;
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date("02/05"), {{90001, 3, 1000}});
    shop.SaveMissing();
    const QStringList lines = shop.Lines(sale);
    shop.Correct(shop.Date("02/02"), QStringLiteral("-3"));
    shop.Run(QStringLiteral("UPDATE dbo.FiscalYears SET Closed = 1 WHERE Code = %1").arg(shop.OpenYear));
    const TAutoVoucherResult result = shop.SaveAgain();
    QCOMPARE(result.Written, 0);
    QCOMPARE(result.InClosedYears, 1);
    QCOMPARE(shop.Lines(sale), lines);
    QVERIFY(!TAutoVouchers::AnyAwaiting(*shop.Connection));
}

void AutoVouchersTest::theScopeRestricts_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("kinds");
    QTest::addColumn<bool>("byNumber");
    QTest::addColumn<int>("written");
    QTest::newRow("no restriction") << ""
                                    << ""
                                    << "" << false << 3;
    QTest::newRow("from") << "02/04"
                          << ""
                          << "" << false << 2;
    QTest::newRow("to") << ""
                        << "02/04"
                        << "" << false << 2;
    QTest::newRow("from and to") << "02/04"
                                 << "02/04"
                                 << "" << false << 1;
    QTest::newRow("sales") << ""
                           << ""
                           << "1" << false << 3;
    QTest::newRow("purchases") << ""
                               << ""
                               << "2" << false << 0;
    QTest::newRow("both") << ""
                          << ""
                          << "2, 1" << false << 3;
    QTest::newRow("one voucher") << ""
                                 << ""
                                 << "" << true << 1;
}

void AutoVouchersTest::theScopeRestricts()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const QString, kinds);
    QFETCH(const bool, byNumber);
    QFETCH(const int, written);
    TTradeFixture shop;
    int sale = 0;
    for (int day = 3; day <= 5; ++day)
        sale =
            shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/0%1").arg(day)), {{90001, 1, 1000}});
    shop.SaveMissing();
    shop.Correct(shop.Date("02/02"), QStringLiteral("1"));
    const auto date = [&shop](const QString& day) { return day.isEmpty() ? day : shop.Date(day); };
    const int number = byNumber ? shop.Head(sale).section(u'|', 0, 0).toInt() : 0;
    QCOMPARE(shop.SaveAgain({date(from), date(to), kinds, number}).Written, written);
}

void AutoVouchersTest::aScopeThatIsNoListOfKindsIsRefused()
{
    TTradeFixture shop;
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                             shop.SaveAgain({{}, {}, QStringLiteral("1) OR (1=1"), 0}));
}

QTEST_GUILESS_MAIN(AutoVouchersTest)
#include "AutoVouchersTest.moc"
