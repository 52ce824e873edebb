#include "CurrencyConversion.h"

#include <QTest>

class CurrencyConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountsAreExactAndRoundedOnlyBehindMoneysDecimals_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("inBase");
        const auto row = [](const char* name, const char* amount, const char* rate, const char* inBase) {
            QTest::newRow(name) << QString::fromLatin1(amount) << QString::fromLatin1(rate)
                                << QString::fromLatin1(inBase);
        };
        row("whole", "12", "480000", "5760000");
        row("decimals of both", "1234.5678", "512300.123456789", "632469236.3558");
        row("a rate of nine decimals", "1000000000", "0.123456789", "123456789");
        row("half away from zero", "0.5", "0.0001", "0.0001");
        row("below half", "0.4", "0.0001", "0");
        row("digits that no floating-point number holds", "99999999999.9999", "1.000000001",
            "100000000099.9999");
        row("nothing", "0", "480000", "0");
        row("without a rate", "12", "0", "0");
    }

    void amountsAreExactAndRoundedOnlyBehindMoneysDecimals()
    {
        QFETCH(const QString, amount);
        QFETCH(const QString, rate);
        QTEST(CurrencyConversion::InBase(amount, rate), "inBase");
    }

    void aForeignLineKeepsItsAmountBesideThatInBase_data()
    {
        QTest::addColumn<bool>("debit");
        QTest::newRow("debit") << true;
        QTest::newRow("credit") << false;
    }

    void aForeignLineKeepsItsAmountBesideThatInBase()
    {
        QFETCH(const bool, debit);
        TVoucherLine typed;
        typed.Currency = {2, QStringLiteral("480000.5"), QStringLiteral("0")};
        (debit ? typed.Debit : typed.Credit) = QStringLiteral("10");
        const TVoucherLine line = CurrencyConversion::InBase(typed);
        QCOMPARE(debit ? line.Debit : line.Credit, QStringLiteral("4800005"));
        QCOMPARE(debit ? line.Credit : line.Debit, QStringLiteral("0"));
        QCOMPARE(line.Currency.Amount, QStringLiteral("10"));
        QCOMPARE(line.Currency.Rate, QStringLiteral("480000.5"));
        const TVoucherLine again = CurrencyConversion::AsTyped(line);
        QCOMPARE(again.Debit, typed.Debit);
        QCOMPARE(again.Credit, typed.Credit);
    }

    void aLineInBaseCurrencyStaysAsItIs()
    {
        TVoucherLine line;
        line.Debit = QStringLiteral("10.50");
        QVERIFY(CurrencyConversion::InBase(line) == line);
        QVERIFY(CurrencyConversion::AsTyped(line) == line);
    }
};

QTEST_MAIN(CurrencyConversionTest)
#include "CurrencyConversionTest.moc"
