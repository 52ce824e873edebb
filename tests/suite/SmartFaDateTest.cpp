#include "SmartFaDate.h"

#include <array>
#include <QTest>

namespace {

constexpr int FirstYear = 1300;
constexpr int LastYear = 1500;

/// The leap years of the official calendar, as published and by the moment of the spring equinox against
/// noon on the meridian of Tehran.
constexpr std::array LeapYears = {
    1300, 1304, 1309, 1313, 1317, 1321, 1325, 1329, 1333, 1337, 1342, 1346, 1350, 1354, 1358, 1362, 1366,
    1370, 1375, 1379, 1383, 1387, 1391, 1395, 1399, 1403, 1408, 1412, 1416, 1420, 1424, 1428, 1432, 1436,
    1441, 1445, 1449, 1453, 1457, 1461, 1465, 1469, 1474, 1478, 1482, 1486, 1490, 1494, 1498};

/// The day of March, less 20, on which each year begins; twenty years in a line from 1300 on.
constexpr char DaysOfNowruz[] = "12211221112111211121"
                                "11211121112111211121"
                                "11111111111111111111"
                                "11111111111111101110"
                                "11101110111011101110"
                                "11101110011001100110"
                                "01100110011001100110"
                                "00100010001000100010"
                                "00100010001000000001"
                                "11111111111111111111"
                                "11";

QDate Nowruz(int year)
{
    constexpr int YearsBetween = 621;
    return {year + YearsBetween, 3, 20 + DaysOfNowruz[year - FirstYear] - '0'};
}

bool IsOfficialLeapYear(int year)
{
    return std::find(LeapYears.begin(), LeapYears.end(), year) != LeapYears.end();
}

int LengthOfMonth(int year, int month)
{
    static constexpr std::array lengths = {31, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 29};
    return lengths.at(static_cast<size_t>(month - 1)) + (month == 12 && IsOfficialLeapYear(year) ? 1 : 0);
}

} // namespace

class SmartFaDateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTablesAgreeWithEachOther();
    void everyDayOfTwoCenturiesIsRightBothWays();
    void leapYearsAreTheOfficialOnes();
    void everyDayOfTheRangeFollowsTheOneBefore();
    void datesOfHistory_data();
    void datesOfHistory();
    void textsAreRead_data();
    void textsAreRead();
    void whatIsNoDayIsInvalid_data();
    void whatIsNoDayIsInvalid();
    void daysOutsideTheCalendarAreInvalid();
    void namesAreThoseOfTheCalendar();
};

void SmartFaDateTest::theTablesAgreeWithEachOther()
{
    for (int year = FirstYear; year <= LastYear; ++year)
        QCOMPARE(Nowruz(year).daysTo(Nowruz(year + 1)), IsOfficialLeapYear(year) ? 366 : 365);
}

void SmartFaDateTest::everyDayOfTwoCenturiesIsRightBothWays()
{
    int days = 0;
    for (int year = FirstYear; year <= LastYear; ++year) {
        QDate gregorian = Nowruz(year);
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= LengthOfMonth(year, month); ++day, ++days) {
                const QString solar = QString::asprintf("%04d/%02d/%02d", year, month, day);
                const QString western = gregorian.toString(QStringLiteral("yyyy/MM/dd"));
                const TFaDate there = TFaDate::CreateByPersianDate(solar);
                QCOMPARE(there.GetGregorianDateString(), western);
                QCOMPARE(there.GetGregorianDate(), gregorian);
                const TFaDate back = TFaDate::CreateByGregorianDate(gregorian);
                QCOMPARE(back.ToDateString(), solar);
                QCOMPARE(back, there);
                QCOMPARE(back.Year(), year);
                QCOMPARE(back.Month(), month);
                QCOMPARE(back.Day(), day);
                QCOMPARE(back.GetDaysInMonth(), LengthOfMonth(year, month));
                gregorian = gregorian.addDays(1);
            }
        }
        QCOMPARE(gregorian, Nowruz(year + 1));
    }
    QCOMPARE(days, 365 * 201 + static_cast<int>(LeapYears.size()));
}

void SmartFaDateTest::leapYearsAreTheOfficialOnes()
{
    for (int year = FirstYear; year <= LastYear; ++year)
        QCOMPARE(TFaDate::IsLeapYear(year), IsOfficialLeapYear(year));
}

void SmartFaDateTest::everyDayOfTheRangeFollowsTheOneBefore()
{
    TFaDate before = TFaDate::CreateByPersianDate(TFaDate::FirstYear, 1, 1);
    const TFaDate last =
        TFaDate::CreateByPersianDate(TFaDate::LastYear, 12, TFaDate::DaysInMonth(TFaDate::LastYear, 12));
    QVERIFY(before.IsValid());
    QVERIFY(last.IsValid());
    while (before != last) {
        const TFaDate day = TFaDate::CreateByGregorianDate(before.GetGregorianDate().addDays(1));
        const bool nextDay = day.Month() == before.Month() && day.Day() == before.Day() + 1;
        const bool nextMonth = day.Day() == 1 && before.Day() == before.GetDaysInMonth() &&
                               day.Month() == before.Month() % 12 + 1;
        if (!nextDay && !nextMonth)
            QFAIL(qPrintable(day.ToDateString()));
        if (TFaDate::CreateByPersianDate(day.Year(), day.Month(), day.Day()) != day)
            QFAIL(qPrintable(day.ToDateString()));
        before = day;
    }
}

void SmartFaDateTest::datesOfHistory_data()
{
    QTest::addColumn<QString>("solar");
    QTest::addColumn<QString>("gregorian");
    QTest::newRow("the constitution") << "1285/05/14"
                                      << "1906/08/06";
    QTest::newRow("the calendar's first year") << "1304/01/11"
                                               << "1925/03/31";
    QTest::newRow("the epoch") << "1348/10/11"
                               << "1970/01/01";
    QTest::newRow("the revolution") << "1357/11/22"
                                    << "1979/02/11";
    QTest::newRow("the turn of the millennium") << "1378/10/11"
                                                << "2000/01/01";
    QTest::newRow("the last day of a leap year") << "1403/12/30"
                                                 << "2025/03/20";
    QTest::newRow("a leap year that comes after five") << "1408/12/30"
                                                       << "2030/03/20";
    QTest::newRow("where other rules go wrong") << "1437/01/01"
                                                << "2058/03/21";
    QTest::newRow("and again") << "1470/01/01"
                               << "2091/03/21";
}

void SmartFaDateTest::datesOfHistory()
{
    QFETCH(QString, solar);
    QFETCH(QString, gregorian);
    QCOMPARE(TFaDate::CreateByPersianDate(solar).GetGregorianDateString(), gregorian);
    QCOMPARE(TFaDate::CreateByGregorianDate(gregorian).ToDateString(), solar);
}

void SmartFaDateTest::textsAreRead_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"1403/01/09", "1403/1/9", "۱۴۰۳/۰۱/۰۹", "١٤٠٣/٠١/٠٩", "1403-01-09", "1403.1.9",
                             "1403 01 09", "14030109", "09/01/1403", "9-1-1403", "  1403/01/09\n",
                             "تاریخ: ۱۴۰۳/۰۱/۰۹", "1403٫01٫09", "1403/ 1/ 9"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void SmartFaDateTest::textsAreRead()
{
    QFETCH(QString, text);
    QCOMPARE(TFaDate::CreateByPersianDate(text).ToDateString(), QStringLiteral("1403/01/09"));
}

void SmartFaDateTest::whatIsNoDayIsInvalid_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "/  /", "1404/12/30", "1403/07/31", "1403/13/01", "1403/00/01", "1403/01/00",
                             "1403/01/32", "1403/01", "1403/01/09/10", "03/01/09", "14031/01/09",
                             "1403/01/009", "0000/00/00", "9999/99/99", "امروز", "140301091"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void SmartFaDateTest::whatIsNoDayIsInvalid()
{
    QFETCH(QString, text);
    const TFaDate date = TFaDate::CreateByPersianDate(text);
    QVERIFY(!date.IsValid());
    QCOMPARE(date.ToDateString(), QString());
    QCOMPARE(date.GetGregorianDateString(), QString());
    QCOMPARE(date.GetDaysInMonth(), 0);
    QCOMPARE(date.Year(), 0);
}

void SmartFaDateTest::daysOutsideTheCalendarAreInvalid()
{
    QVERIFY(TFaDate::CreateByGregorianDate(QDate(622, 3, 21)).IsValid());
    QVERIFY(!TFaDate::CreateByGregorianDate(QDate(622, 3, 20)).IsValid());
    QVERIFY(!TFaDate::CreateByGregorianDate(QDate(10000, 1, 1)).IsValid());
    QVERIFY(!TFaDate::CreateByGregorianDate(QDate()).IsValid());
    QVERIFY(!TFaDate::CreateByGregorianDate(QStringLiteral("2023/02/29")).IsValid());
    QVERIFY(!TFaDate::CreateByPersianDate(TFaDate::LastYear + 1, 1, 1).IsValid());
    QVERIFY(!TFaDate::CreateByPersianDate(0, 1, 1).IsValid());
}

void SmartFaDateTest::namesAreThoseOfTheCalendar()
{
    QCOMPARE(TFaDate::MonthName(1), QStringLiteral("فروردین"));
    QCOMPARE(TFaDate::MonthName(12), QStringLiteral("اسفند"));
    QCOMPARE(TFaDate::MonthName(0), QString());
    QCOMPARE(TFaDate::MonthName(13), QString());
    QCOMPARE(TFaDate::DayName(QDate(2024, 3, 29)), QStringLiteral("جمعه"));
    QCOMPARE(TFaDate::DayName(QDate(2024, 3, 30)), QStringLiteral("شنبه"));
    QCOMPARE(TFaDate::DayName(QDate()), QString());
}

QTEST_GUILESS_MAIN(SmartFaDateTest)
#include "SmartFaDateTest.moc"
