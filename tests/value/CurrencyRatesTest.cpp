#include "CurrencyRates.h"
#include "CurrencyForm.h"
#include "TestCase.h"

class CurrencyRatesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void statementsAreToTheLetter()
    {
        TCurrencyDatabase database;
        const TCurrencyRates rates(database.Query);
        QCOMPARE(rates.BaseCountry(), QStringLiteral("ایران"));
        QVERIFY(!database.Query.Active());
        QCOMPARE(rates.BaseTitle(), QStringLiteral("ریال"));
        QCOMPARE(rates.Currencies().size(), 3);
        rates.RateOn(2, QStringLiteral("1404/01/31"));
        QCOMPARE(database.Sent(),
                 (QStringList{QStringLiteral("Select * from  AccCurrency where CurCode = 1"),
                              QStringLiteral("Select * from  AccCurrency where CurCode = 1"),
                              QStringLiteral(" Select *, a.CurTitle + '-' + a.CurCountry as CurTitleCountry  "
                                             "  from     AccCurrency  a  "),
                              QStringLiteral("SELECT TOP 1 * FROM AccCrConvRate WHERE AccCurrencyID = 2 AND "
                                             "CrRateDate <= '1404/01/31' ORDER BY CrRateDate DESC, "
                                             "CrRateCode DESC")}));
        QVERIFY(database.Query.Active());
    }

    void currenciesCarryTitleAndCountry()
    {
        TCurrencyDatabase database;
        const auto currencies = TCurrencyRates(database.Query).Currencies();
        QCOMPARE(currencies.at(0).Code, 1);
        QCOMPARE(currencies.at(0).TitleCountry, QStringLiteral("ریال-ایران"));
        QCOMPARE(currencies.at(2).Code, 4);
        QCOMPARE(currencies.at(2).TitleCountry, QStringLiteral("درهم-امارات"));
    }

    void theRateInForceIsTheLatestUntilTheDay_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("enteredFor");
        QTest::newRow("before the first") << QStringLiteral("1404/01/04") << QStringLiteral("0") << QString();
        QTest::newRow("on its day") << QStringLiteral("1404/01/05") << QStringLiteral("480000")
                                    << QStringLiteral("1404/01/05");
        QTest::newRow("between two") << QStringLiteral("1404/01/19") << QStringLiteral("480000")
                                     << QStringLiteral("1404/01/05");
        QTest::newRow("with decimals")
            << QStringLiteral("1404/01/20") << QStringLiteral("481000.5") << QStringLiteral("1404/01/20");
        QTest::newRow("two of one day: the one entered last")
            << QStringLiteral("1405/01/01") << QStringLiteral("0.123456789") << QStringLiteral("1404/02/01");
    }

    void theRateInForceIsTheLatestUntilTheDay()
    {
        QFETCH(const QString, date);
        QFETCH(const QString, rate);
        QFETCH(const QString, enteredFor);
        TCurrencyDatabase database;
        const TCurrencyRates::TRate found = TCurrencyRates(database.Query).RateOn(2, date);
        QCOMPARE(found.Text, rate);
        QCOMPARE(found.Date, enteredFor);
    }

    void aRateOfAnotherCurrencyDoesNotCount()
    {
        TCurrencyDatabase database;
        QCOMPARE(TCurrencyRates(database.Query).RateOn(4, QStringLiteral("1404/12/29")).Text,
                 QStringLiteral("0"));
    }

    void aTextThatIsNoDayStaysInsideItsLiteral()
    {
        TCurrencyDatabase database;
        const TCurrencyRates rates(database.Query);
        QCOMPARE(rates.RateOn(2, QStringLiteral("'; DELETE FROM AccCrConvRate; --")).Text,
                 QStringLiteral("0"));
        QVERIFY(database.Sent().constFirst().contains(u"'''; DELETE FROM AccCrConvRate; --'"));
        QCOMPARE(rates.RateOn(2, QStringLiteral("1404/01/05")).Text, QStringLiteral("480000"));
    }

    void aFloatingPointRateIsReadToNineDecimals()
    {
        TCurrencyDatabase database;
        for (const QString& statement :
             {QStringLiteral("DROP TABLE AccCrConvRate"),
              QStringLiteral("CREATE TABLE AccCrConvRate (CrRateCode int NOT NULL PRIMARY KEY, AccCurrencyID "
                             "int NOT NULL, CrRateDate nvarchar(10) NOT NULL, CrRateConvRate float)"),
              QStringLiteral("INSERT INTO AccCrConvRate (CrRateCode, AccCurrencyID, CrRateDate, "
                             "CrRateConvRate) VALUES (1, 2, N'1404/01/05', 0.000012345)")})
            database.Execute(statement);
        QCOMPARE(TCurrencyRates(database.Query).RateOn(2, QStringLiteral("1404/01/05")).Text,
                 QStringLiteral("0.000012345"));
    }

    void anEmptyTableHasNoCurrencyAndNoBase()
    {
        TCurrencyDatabase database;
        database.Execute(QStringLiteral("DELETE FROM AccCurrency"));
        const TCurrencyRates rates(database.Query);
        QCOMPARE(rates.BaseCountry(), QString());
        QCOMPARE(rates.BaseTitle(), QString());
        QVERIFY(rates.Currencies().isEmpty());
    }
};

QTEST_MAIN(CurrencyRatesTest)
#include "CurrencyRatesTest.moc"
