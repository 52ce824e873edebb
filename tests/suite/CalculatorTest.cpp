#include "Calculator.h"
#include "DecimalText.h"

#include <QRandomGenerator>
#include <QTest>

class CalculatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysGiveTheResult_data();
    void keysGiveTheResult();
    void thePendingOperationIsShown();
    void aDivisionByZeroIsToldAndTheNextKeyStartsAnew();
    void aResultThatIsTooLongIsTold();
    void keysThatMeanNothingAreLeftAlone();
    void decimalsAreExact_data();
    void decimalsAreExact();
    void quotientsAgreeWithTheirProducts();
};

void CalculatorTest::keysGiveTheResult_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("display");
    const auto row = [](const char* name, const QString& start, const QString& keys, const QString& display) {
        QTest::newRow(name) << start << keys << display;
    };
    const QString zero = QStringLiteral("0");
    row("nothing", QStringLiteral("1250"), QString(), QStringLiteral("1,250"));
    row("the first digit replaces the start", QStringLiteral("1250"), QStringLiteral("7"),
        QStringLiteral("7"));
    row("an operation goes on with the start", QStringLiteral("1250"), QStringLiteral("+50="),
        QStringLiteral("1,300"));
    row("tenths are exact", zero, QStringLiteral("0.1+0.2="), QStringLiteral("0.3"));
    row("all scripts", zero, QStringLiteral("۱۲٫۵×٤="), QStringLiteral("50"));
    row("in the order typed", zero, QStringLiteral("2+3*4="), QStringLiteral("20"));
    row("a third", zero, QStringLiteral("1/3="), QStringLiteral("0.333333333"));
    row("two thirds round up", zero, QStringLiteral("2÷3="), QStringLiteral("0.666666667"));
    row("subtraction below zero", zero, QStringLiteral("5-7.25="), QStringLiteral("-2.25"));
    row("change of mind", zero, QStringLiteral("8+-*2="), QStringLiteral("16"));
    row("percent of a sum", zero, QStringLiteral("200+10%="), QStringLiteral("220"));
    row("percent of a difference", zero, QStringLiteral("200-10٪="), QStringLiteral("180"));
    row("percent of a product", zero, QStringLiteral("200*10%="), QStringLiteral("20"));
    row("percent alone", zero, QStringLiteral("50%"), QStringLiteral("0.5"));
    row("percent, then on", zero, QStringLiteral("200+10%+5="), QStringLiteral("225"));
    row("sign", zero, QStringLiteral("5±+2="), QStringLiteral("-3"));
    row("backspace", zero, QStringLiteral("123\b\b"), QStringLiteral("1"));
    row("backspace to zero", zero, QStringLiteral("5±\b"), QStringLiteral("0"));
    row("a result is not edited digit by digit", zero, QStringLiteral("12+3=\b"), QStringLiteral("0"));
    row("a digit after the result starts anew", zero, QStringLiteral("12+3=4"), QStringLiteral("4"));
    row("an operation goes on with the result", zero, QStringLiteral("12+3=*2="), QStringLiteral("30"));
    row("second point", zero, QStringLiteral("1.2.5"), QStringLiteral("1.25"));
    row("nine decimals", zero, QStringLiteral("0.1234567891"), QStringLiteral("0.123456789"));
    row("nineteen digits", zero, QStringLiteral("12345678901234567899"),
        QStringLiteral("1,234,567,890,123,456,789"));
    row("large money", zero, QStringLiteral("922337203685477.5807-0.5807="),
        QStringLiteral("922,337,203,685,477"));
    row("digits beyond a double", zero, QStringLiteral("9007199254740993*3="),
        QStringLiteral("27,021,597,764,222,979"));
}

void CalculatorTest::keysGiveTheResult()
{
    QFETCH(QString, start);
    QFETCH(QString, keys);
    TCalculator calculator;
    calculator.Start(start);
    for (const QChar key : keys)
        QVERIFY(calculator.Press(key));
    QTEST(calculator.Display(), "display");
    QCOMPARE(calculator.Result(), calculator.Display().remove(u','));
}

void CalculatorTest::thePendingOperationIsShown()
{
    TCalculator calculator;
    for (const QChar key : QStringLiteral("1200*"))
        calculator.Press(key);
    QCOMPARE(calculator.Pending(), QStringLiteral("1,200 ×"));
    calculator.Press(u'3');
    QCOMPARE(calculator.Display(), QStringLiteral("3"));
    calculator.Finish();
    QCOMPARE(calculator.Pending(), QString());
    QCOMPARE(calculator.Result(), QStringLiteral("3600"));
}

void CalculatorTest::aDivisionByZeroIsToldAndTheNextKeyStartsAnew()
{
    TCalculator calculator;
    for (const QChar key : QStringLiteral("5/0="))
        calculator.Press(key);
    QCOMPARE(calculator.Error(), QStringLiteral("تقسیم بر صفر ممکن نیست؛ عدد دیگری بنویسید."));
    QCOMPARE(calculator.Result(), QString());
    calculator.Press(u'7');
    QCOMPARE(calculator.Error(), QString());
    QCOMPARE(calculator.Result(), QStringLiteral("7"));
}

void CalculatorTest::aResultThatIsTooLongIsTold()
{
    TCalculator calculator;
    for (const QChar key : QStringLiteral("9999999999*9999999999="))
        calculator.Press(key);
    QVERIFY(!calculator.Error().isEmpty());
    calculator.Clear();
    for (const QChar key : QStringLiteral("999999999999999.5*10="))
        calculator.Press(key);
    QCOMPARE(calculator.Result(), QStringLiteral("9999999999999995"));
}

void CalculatorTest::keysThatMeanNothingAreLeftAlone()
{
    TCalculator calculator;
    calculator.Start(QStringLiteral("12"));
    for (const QChar key : QStringLiteral("aش,\r\x1B "))
        QVERIFY(!calculator.Press(key));
    QCOMPARE(calculator.Result(), QStringLiteral("12"));
}

void CalculatorTest::decimalsAreExact_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("sum");
    QTest::addColumn<QString>("difference");
    QTest::addColumn<QString>("product");
    const auto row = [](const char* left, const char* right, const char* sum, const char* difference,
                        const char* product) {
        QTest::addRow("%s and %s", left, right)
            << QString::fromLatin1(left) << QString::fromLatin1(right) << QString::fromLatin1(sum)
            << QString::fromLatin1(difference) << QString::fromLatin1(product);
    };
    row("0", "0", "0", "0", "0");
    row("0.1", "0.2", "0.3", "-0.1", "0.02");
    row("-1.5", "1.5", "0", "-3", "-2.25");
    row("-0.01", "-99.99", "-100", "99.98", "0.9999");
    row("100", "0.001", "100.001", "99.999", "0.1");
    row("123456789012345678901234567890", "1", "123456789012345678901234567891",
        "123456789012345678901234567889", "123456789012345678901234567890");
    row("99999999999999999999", "99999999999999999999", "199999999999999999998", "0",
        "9999999999999999999800000000000000000001");
}

void CalculatorTest::decimalsAreExact()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST((TDecimal(left) + TDecimal(right)).ToString(), "sum");
    QTEST((TDecimal(left) - TDecimal(right)).ToString(), "difference");
    QTEST((TDecimal(left) * TDecimal(right)).ToString(), "product");
    QTEST((TDecimal(right) * TDecimal(left)).ToString(), "product");
}

void CalculatorTest::quotientsAgreeWithTheirProducts()
{
    QVERIFY(!TDecimal::Quotient(TDecimal(QStringLiteral("1")), TDecimal(QStringLiteral("0.00")), 9));
    QRandomGenerator random(1405);
    const auto number = [&random] {
        const qint64 digits = static_cast<qint64>(random.generate64() >> (1 + random.bounded(60)));
        return QStringLiteral("%1%2.%3")
            .arg(random.bounded(2) == 0 ? QStringLiteral("-") : QString())
            .arg(digits)
            .arg(random.bounded(1, 100000));
    };
    for (int i = 0; i < 2000; ++i) {
        const TDecimal factor(number());
        const TDecimal divisor(number());
        const std::optional<TDecimal> quotient = TDecimal::Quotient(factor * divisor, divisor, 9);
        QVERIFY(quotient);
        QCOMPARE(quotient->ToString(), factor.ToString());
    }
}

QTEST_GUILESS_MAIN(CalculatorTest)
#include "CalculatorTest.moc"
