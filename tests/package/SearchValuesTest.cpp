#include "AdoError.h"
#include "DateBound.h"
#include "ExactNumber.h"
#include "FieldName.h"
#include "TestCase.h"
#include "TextPattern.h"

#include <limits>

class SearchValuesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfAllKindsHaveOneText_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("int") << QVariant(12) << "12";
        QTest::newRow("negative") << QVariant(-12) << "-12";
        QTest::newRow("64 bits") << QVariant(std::numeric_limits<qint64>::min()) << "-9223372036854775808";
        QTest::newRow("whole double") << QVariant(12.0) << "12";
        QTest::newRow("fraction") << QVariant(0.1) << "0.1";
        QTest::newRow("large double") << QVariant(1e15) << "1000000000000000";
        QTest::newRow("small double") << QVariant(1e-7) << "0.0000001";
        QTest::newRow("true") << QVariant(true) << "1";
        QTest::newRow("false") << QVariant(false) << "0";
        QTest::newRow("zeros") << QVariant(QStringLiteral("007.500")) << "7.5";
        QTest::newRow("point only in front") << QVariant(QStringLiteral(".5")) << "0.5";
        QTest::newRow("point behind") << QVariant(QStringLiteral("5.")) << "5";
        QTest::newRow("minus nothing") << QVariant(QStringLiteral("-0.0")) << "0";
        QTest::newRow("Persian") << QVariant(QStringLiteral("۱٬۲۳۴٫۵")) << "1234.5";
        QTest::newRow("Arabic-Indic") << QVariant(QStringLiteral("١٢")) << "12";
        QTest::newRow("grouped") << QVariant(QStringLiteral(" 1,234 ")) << "1234";
        QTest::newRow("money") << QVariant(QStringLiteral("922337203685477.5807")) << "922337203685477.5807";
        QTest::newRow("38 digits") << QVariant(QString(38, u'9')) << QString(38, u'9');
    }
    void numbersOfAllKindsHaveOneText()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        QCOMPARE(ExactNumber::Of(value), expected);
    }

    void whatIsNoNumberHasNone_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("null") << QVariant();
        QTest::newRow("empty") << QVariant(QString());
        QTest::newRow("letters") << QVariant(QStringLiteral("12a"));
        QTest::newRow("statement") << QVariant(QStringLiteral("1; drop table kala; --"));
        QTest::newRow("or") << QVariant(QStringLiteral("1 or 1=1"));
        QTest::newRow("exponent") << QVariant(QStringLiteral("1e5"));
        QTest::newRow("hexadecimal") << QVariant(QStringLiteral("0x10"));
        QTest::newRow("two points") << QVariant(QStringLiteral("1.2.3"));
        QTest::newRow("two signs") << QVariant(QStringLiteral("--1"));
        QTest::newRow("sign behind") << QVariant(QStringLiteral("1-"));
        QTest::newRow("sign alone") << QVariant(QStringLiteral("-"));
        QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity());
        QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN());
        QTest::newRow("39 digits") << QVariant(QString(39, u'9'));
    }
    void whatIsNoNumberHasNone()
    {
        QFETCH(QVariant, value);
        QCOMPARE(ExactNumber::Of(value), QString());
    }

    void numbersCompareByValue_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("sign");
        QTest::newRow("equal") << "12"
                               << "12" << 0;
        QTest::newRow("length") << "9"
                                << "10" << -1;
        QTest::newRow("fraction") << "1.5"
                                  << "1.45" << 1;
        QTest::newRow("whole and fraction") << "1"
                                            << "1.5" << -1;
        QTest::newRow("signs") << "-1"
                               << "1" << -1;
        QTest::newRow("negative") << "-10"
                                  << "-9" << -1;
        QTest::newRow("negative fraction") << "-1.5"
                                           << "-1" << -1;
        QTest::newRow("19 digits") << "9223372036854775807"
                                   << "9223372036854775806" << 1;
    }
    void numbersCompareByValue()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(int, sign);
        const auto signOf = [](int order) { return (order > 0) - (order < 0); };
        QCOMPARE(signOf(ExactNumber::Compare(first, second)), sign);
        QCOMPARE(signOf(ExactNumber::Compare(second, first)), -sign);
    }

    void fieldNamesAreBracketed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("bracketed");
        QTest::addColumn<QString>("column");
        QTest::newRow("bare") << "Name"
                              << "[Name]"
                              << "Name";
        QTest::newRow("alias") << "k.Name"
                               << "[k].[Name]"
                               << "Name";
        QTest::newRow("bracketed") << "[k].[Item Name]"
                                   << "[k].[Item Name]"
                                   << "Item Name";
        QTest::newRow("mixed") << "dbo.[kala].Code"
                               << "[dbo].[kala].[Code]"
                               << "Code";
        QTest::newRow("bracket inside") << "[a]]b]"
                                        << "[a]]b]"
                                        << "a]b";
        QTest::newRow("dot inside") << "[a.b]"
                                    << "[a.b]"
                                    << "a.b";
        QTest::newRow("Persian") << QStringLiteral("نام") << QStringLiteral("[نام]") << QStringLiteral("نام");
        QTest::newRow("blanks around") << " tags "
                                       << "[tags]"
                                       << "tags";
        QTest::newRow("underscore and digits") << "_h_2"
                                               << "[_h_2]"
                                               << "_h_2";
    }
    void fieldNamesAreBracketed()
    {
        QFETCH(QString, name);
        QFETCH(QString, bracketed);
        QFETCH(QString, column);
        QCOMPARE(FieldName::Bracketed(name), bracketed);
        QCOMPARE(FieldName::Column(name), column);
    }

    void whatIsNoFieldNameIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"", ".", "a.", ".a", "a..b", "[a", "a]", "[]", "a b", "a;b", "1a", "a--",
                                 "f(x)", "'a'", "[a]b", "a/**/"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void whatIsNoFieldNameIsRefused()
    {
        QFETCH(QString, name);
        QVERIFY_THROWS_EXCEPTION(EADOError, FieldName::Bracketed(name));
    }

    void openDatesAreRecognised_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("open");
        QTest::newRow("empty") << "" << true;
        QTest::newRow("lowest") << "0000/00/00" << true;
        QTest::newRow("highest") << "9999/99/99" << true;
        QTest::newRow("highest in Persian digits") << QStringLiteral("۹۹۹۹/۹۹/۹۹") << true;
        QTest::newRow("highest with time") << "9999/99/99-23:59" << true;
        QTest::newRow("time only") << "-23:59" << true;
        QTest::newRow("empty mask") << "    /  /  " << true;
        QTest::newRow("a day") << "2024/01/02" << false;
        QTest::newRow("a moment") << "2024/01/02-00:00" << false;
        QTest::newRow("letters") << "abc" << false;
    }
    void openDatesAreRecognised()
    {
        QFETCH(QString, value);
        QFETCH(bool, open);
        QCOMPARE(DateBound::IsOpen(value), open);
    }

    void momentsEndWithTheirMinuteOrTheirDay_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("begin");
        QTest::addColumn<QString>("end");
        QTest::newRow("minute") << "2024/01/02-00:00"
                                << "2024-01-02T00:00:00"
                                << "2024-01-02T00:01:00";
        QTest::newRow("last minute") << "2024/12/31-23:59"
                                     << "2024-12-31T23:59:00"
                                     << "2025-01-01T00:00:00";
        QTest::newRow("day") << "2024/02/29"
                             << "2024-02-29T00:00:00"
                             << "2024-03-01T00:00:00";
        QTest::newRow("empty time") << "2024/02/29-"
                                    << "2024-02-29T00:00:00"
                                    << "2024-03-01T00:00:00";
        QTest::newRow("Persian digits") << QStringLiteral("۲۰۲۴/۰۱/۰۲-۱۰:۳۰") << "2024-01-02T10:30:00"
                                        << "2024-01-02T10:31:00";
        QTest::newRow("before the first year") << "1403/01/01-00:00"
                                               << "1753-01-01T00:00:00"
                                               << "1753-01-01T00:00:00";
    }
    void momentsEndWithTheirMinuteOrTheirDay()
    {
        QFETCH(QString, value);
        const auto moment = DateBound::Moment(value);
        QVERIFY(moment);
        QTEST(DateBound::Text(moment->Begin), "begin");
        QTEST(DateBound::Text(moment->End), "end");
    }

    void whatIsNoMomentIsRefused_data()
    {
        QTest::addColumn<QString>("value");
        for (const char* value : {"", "abc", "2024/13/01", "2023/02/29", "2024/01/02-24:00",
                                  "2024/01/02-10:61", "2024/01/02'--", "2024/01", "20240102"})
            QTest::newRow(value) << QString::fromLatin1(value);
    }
    void whatIsNoMomentIsRefused()
    {
        QFETCH(QString, value);
        QVERIFY(!DateBound::Moment(value));
    }

    void wildcardsStandForThemselves()
    {
        const TTextPattern pattern(QStringLiteral("50%_[a]'"));
        QCOMPARE(pattern.FoldedLike(), QStringLiteral("50[%][_][[]a]''"));
        QCOMPARE(pattern.PlainLike(), QStringLiteral("[5٥۵][0٠۰][%][_][[][aA]]''"));
        QVERIFY(pattern.FoundIn(QStringLiteral("x50%_[A]'y")));
        QVERIFY(!pattern.FoundIn(QStringLiteral("50abca'")));
    }

    void lettersThatReadAlikeAreFoundInEachOther()
    {
        const QStringList spellings{QStringLiteral("کیک"), QStringLiteral("كيك"), QStringLiteral("كىک"),
                                    QStringLiteral("ک‌یـــک")};
        for (const QString& typed : spellings) {
            for (const QString& stored : spellings)
                QVERIFY(TTextPattern(typed).FoundIn(stored));
            QCOMPARE(TTextPattern(typed).FoldedLike(), spellings.first());
        }
    }

    void whatNoColumnCanContainIsImpossible()
    {
        QVERIFY(!TTextPattern(QString(QChar(0xD800))).IsPossible());
        QVERIFY(!TTextPattern(QString(QChar(u'\0'))).IsPossible());
        QVERIFY(!TTextPattern(QString(TTextPattern::MaxLength + 1, u'a')).IsPossible());
        QVERIFY(TTextPattern(QString(TTextPattern::MaxLength, u'a')).IsPossible());
        QVERIFY(TTextPattern(QStringLiteral("😀")).IsPossible());
        QVERIFY(TTextPattern(QStringLiteral("😀")).FoundIn(QStringLiteral("a😀b")));
    }

    void thePatternStaysWithinWhatTheServerTakes()
    {
        const qsizetype serverLimit = 4000;
        for (char32_t code = 1; code < 0xD800; ++code) {
            const TTextPattern pattern{QString(QChar(static_cast<char16_t>(code)))};
            const qsizetype longest = pattern.PlainLike().size() * TTextPattern::MaxLength + 2;
            QVERIFY2(longest <= serverLimit, qPrintable(QString::number(code, 16)));
        }
    }

    void nothingIsLeftOfZwnjAndKashida()
    {
        QVERIFY(TTextPattern(QStringLiteral("\u200Cـ")).IsEmpty());
        QVERIFY(!TTextPattern(QStringLiteral(" ")).IsEmpty());
    }
};

QTEST_MAIN(SearchValuesTest)
#include "SearchValuesTest.moc"
