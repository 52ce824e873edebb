#include "Codes.h"

#include <limits>
#include <QTest>

class CodesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCodeIsCompletedWithZerosAtTheLeft_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("completed");
        QTest::newRow("short code") << "12" << 8 << "00000012";
        QTest::newRow("as long as asked") << "123" << 3 << "123";
        QTest::newRow("longer stays") << "12345" << 3 << "12345";
        QTest::newRow("blanks around") << "  7 " << 3 << "007";
        QTest::newRow("Persian digits") << QStringLiteral("۱۲") << 4 << "0012";
        QTest::newRow("Arabic-Indic digits") << QStringLiteral("٧٨") << 3 << "078";
        QTest::newRow("zero") << "0" << 3 << "000";
        QTest::newRow("letters are kept") << "A1" << 4 << "00A1";
        QTest::newRow("nothing chosen") << "" << 8 << "";
        QTest::newRow("only blanks") << "   " << 8 << "";
        QTest::newRow("no length") << "5" << 0 << "5";
        QTest::newRow("negative length") << "5" << -3 << "5";
    }

    void aCodeIsCompletedWithZerosAtTheLeft()
    {
        QFETCH(QString, typed);
        QFETCH(int, length);
        QTEST(Codes::Complete(typed, length), "completed");
    }

    void anAmountIsWrittenInPlainDecimals_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << "0"
                              << "0";
        QTest::newRow("minus zero") << "-0"
                                    << "0";
        QTest::newRow("whole") << "1250000"
                               << "1250000";
        QTest::newRow("negative") << "-3.5"
                                  << "-3.5";
        QTest::newRow("a tenth") << "0.1"
                                 << "0.1";
        QTest::newRow("small rate") << "0.000024"
                                    << "0.000024";
        QTest::newRow("tiny minus") << "-0.00000000001"
                                    << "0";
        // Nineteen digits need the 64 bits of an extended float; where that is a double there is nothing to
        // keep.
        if (std::numeric_limits<long double>::digits >= 64)
            QTest::newRow("largest money") << "922337203685477.5807"
                                           << "922337203685477.5807";
        QTest::newRow("beyond money") << "1e20"
                                      << "100000000000000000000";
        QTest::newRow("hundreds keep their zeros") << "100"
                                                   << "100";
    }

    void anAmountIsWrittenInPlainDecimals()
    {
        QFETCH(QString, written);
        QTEST(Codes::AmountText(strtold(written.toLatin1().constData(), nullptr)), "expected");
    }

    void aDoubleShowsNoBinaryNoise()
    {
        QCOMPARE(Codes::AmountText(static_cast<long double>(12.1)), QStringLiteral("12.1"));
        QCOMPARE(Codes::AmountText(static_cast<long double>(0.3)), QStringLiteral("0.3"));
    }

    void whatIsNoNumberIsWrittenAsZero()
    {
        QCOMPARE(Codes::AmountText(std::numeric_limits<long double>::infinity()), QStringLiteral("0"));
        QCOMPARE(Codes::AmountText(std::numeric_limits<long double>::quiet_NaN()), QStringLiteral("0"));
    }
};

QTEST_APPLESS_MAIN(CodesTest)
#include "CodesTest.moc"
