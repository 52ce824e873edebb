#include "DecimalText.h"
#include "PersianText.h"

#include <clocale>
#include <cmath>
#include <limits>
#include <QTest>

/// The texts behind the edits, without widgets.
class NumberTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreRoundedHalfAwayFromZero_data();
    void numbersAreRoundedHalfAwayFromZero();
    void thousandsAreSetApart_data();
    void thousandsAreSetApart();
    void valuesHaveTheirShortestText_data();
    void valuesHaveTheirShortestText();
    void valuesAreReadWhateverTheLocale();
    void digitsOfThreeScriptsAreKnown();
    void numbersAreReadFromAnyScript();
    void foldedTextsAreEqualToAPersianReader();
};

void NumberTextsTest::numbersAreRoundedHalfAwayFromZero_data()
{
    QTest::addColumn<QString>("plain");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("rounded");
    const auto row = [](const char* plain, int decimals, const char* rounded) {
        QTest::addRow("%s to %d", plain, decimals)
            << QString::fromLatin1(plain) << decimals << QString::fromLatin1(rounded);
    };
    row("0.5", 0, "1");
    row("-0.5", 0, "-1");
    row("0.49", 0, "0");
    row("-0.49", 0, "0");
    row("1.005", 2, "1.01");
    row("9.995", 2, "10");
    row("999999999999999999.95", 1, "1000000000000000000");
    row("12.3400", 4, "12.34");
    row("12", 4, "12");
    row("0.000", 2, "0");
}

void NumberTextsTest::numbersAreRoundedHalfAwayFromZero()
{
    QFETCH(QString, plain);
    QFETCH(int, decimals);
    QTEST(DecimalText::Rounded(plain, decimals), "rounded");
}

void NumberTextsTest::thousandsAreSetApart_data()
{
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("grouped");
    const auto row = [](const char* plain, const char* grouped) {
        QTest::newRow(plain) << QString::fromLatin1(plain) << QString::fromLatin1(grouped);
    };
    row("0", "0");
    row("123", "123");
    row("-123", "-123");
    row("1234", "1,234");
    row("-123456", "-123,456");
    row("1234567.8901", "1,234,567.8901");
    row("1234.", "1,234.");
}

void NumberTextsTest::thousandsAreSetApart()
{
    QFETCH(QString, plain);
    QTEST(DecimalText::Grouped(plain), "grouped");
}

void NumberTextsTest::valuesHaveTheirShortestText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("a tenth") << 0.1 << QStringLiteral("0.1");
    QTest::newRow("sum of tenths") << 0.1 + 0.2 << QStringLiteral("0.30000000000000004");
    QTest::newRow("money") << 42500.75 << QStringLiteral("42500.75");
    QTest::newRow("large") << 1e18 << QStringLiteral("1000000000000000000");
    QTest::newRow("exact whole number") << 1234567890123456768.0 << QStringLiteral("1234567890123456768");
    QTest::newRow("negative zero") << -0.0 << QStringLiteral("0");
    QTest::newRow("no number") << std::nan("") << QStringLiteral("0");
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << QStringLiteral("0");
}

void NumberTextsTest::valuesHaveTheirShortestText()
{
    QFETCH(double, value);
    QTEST(DecimalText::FromValue(value, 18), "text");
}

void NumberTextsTest::valuesAreReadWhateverTheLocale()
{
    const QByteArray before = std::setlocale(LC_NUMERIC, nullptr);
    // Where one of these is installed, its decimal comma must not matter.
    for (const char* locale : {"fa_IR.UTF-8", "de_DE.UTF-8", "C.UTF-8"}) {
        std::setlocale(LC_NUMERIC, locale);
        QCOMPARE(DecimalText::ToValue(QStringLiteral("1.5")), 1.5L);
        QCOMPARE(DecimalText::FromValue(1.5L, 9), QStringLiteral("1.5"));
    }
    std::setlocale(LC_NUMERIC, before.constData());
    QCOMPARE(DecimalText::ToValue(QStringLiteral("1,5")), 0.0L);
    QCOMPARE(DecimalText::ToValue(QString()), 0.0L);
    QCOMPARE(DecimalText::FromValue(std::numeric_limits<long double>::max(), 2).size(),
             static_cast<qsizetype>(std::numeric_limits<long double>::max_exponent10 + 1));
    QCOMPARE(DecimalText::FromValue(std::numeric_limits<long double>::denorm_min(), 2), QStringLiteral("0"));
}

void NumberTextsTest::digitsOfThreeScriptsAreKnown()
{
    QCOMPARE(PersianText::AsciiDigits(QStringLiteral("۰۹٠٩09")), QStringLiteral("090909"));
    QCOMPARE(PersianText::PersianDigits(QStringLiteral("0a9")), QStringLiteral("۰a۹"));
    QCOMPARE(PersianText::DigitValue(u'۷'), 7);
    QCOMPARE(PersianText::DigitValue(u'x'), -1);
}

void NumberTextsTest::numbersAreReadFromAnyScript()
{
    QCOMPARE(PersianText::NumberFromAnyScript(QStringLiteral(" ۱٬۲۳۴٫۵ ")), QStringLiteral("1234.5"));
    QCOMPARE(PersianText::NumberFromAnyScript(QStringLiteral("−1,234.5")), QStringLiteral("-1234.5"));
    QCOMPARE(PersianText::NumberFromAnyScript(QStringLiteral("12a")), QString());
    QCOMPARE(PersianText::NumberFromAnyScript(QString()), QString());
}

void NumberTextsTest::foldedTextsAreEqualToAPersianReader()
{
    QCOMPARE(PersianText::Fold(QStringLiteral("كتابي مي\u200Cشود ۱۲ ABC كـــاغذ")),
             PersianText::Fold(QStringLiteral("کتابی میشود 12 abc کاغذ")));
}

QTEST_GUILESS_MAIN(NumberTextsTest)
#include "NumberTextsTest.moc"
