#include "ExactDecimal.h"

#include <QTest>

class ExactDecimalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberHasOneSpelling_data();
    void aNumberHasOneSpelling();
    void whatIsNoNumberStays_data();
    void whatIsNoNumberStays();
};

void ExactDecimalTest::aNumberHasOneSpelling_data()
{
    QTest::addColumn<QString>("spelling");
    const auto row = [](const char* text, const char* spelling) {
        QTest::newRow(text) << QString::fromLatin1(spelling);
    };
    row("0", "0");
    row("-0", "0");
    row("-0.00", "0");
    row("+5", "5");
    row("12.50", "12.5");
    row("12.", "12");
    row(".5", "0.5");
    row("-.50", "-0.5");
    row("007.070", "7.07");
    row("100", "100");
    row("10.01", "10.01");
    row("0.5", "0.5");
    row("00", "0");
    row("-12.75", "-12.75");
    row("922337203685477.5807", "922337203685477.5807");
    row("-922337203685477.5808", "-922337203685477.5808");
    row("1000000000000000000000000000000000000.000", "1000000000000000000000000000000000000");
}

void ExactDecimalTest::aNumberHasOneSpelling()
{
    QFETCH(QString, spelling);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(IsDecimal(text));
    QCOMPARE(IsCanonicalDecimal(text), text == spelling);
    QCOMPARE(CanonicalDecimal(text), spelling);
}

void ExactDecimalTest::whatIsNoNumberStays_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "-", ".", "1.2.3", "1e5", "--1", "12,5", "1 2", "x", "5-"})
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("Persian digits") << QStringLiteral("۱۲");
}

void ExactDecimalTest::whatIsNoNumberStays()
{
    QFETCH(QString, text);
    QVERIFY(!IsDecimal(text));
    QVERIFY(!IsCanonicalDecimal(text));
    QCOMPARE(CanonicalDecimal(text), text);
}

QTEST_APPLESS_MAIN(ExactDecimalTest)
#include "ExactDecimalTest.moc"
