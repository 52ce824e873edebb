#include "DatePeriods.h"
#include "TestCase.h"

#include <QCalendar>

namespace {

constexpr int FirstYear = 2023; // its spring is the beginning of 1402
constexpr int YearsTested = 4;

/// The toolkit's own solar calendar, which is right in these years.
QString Solar(const QDate& date)
{
    const auto parts = QCalendar(QCalendar::System::Jalali).partsFromDate(date);
    return QString::asprintf("%04d/%02d/%02d", parts.year, parts.month, parts.day);
}

QString Gregorian(const QDate& date)
{
    return date.toString(QStringLiteral("yyyy/MM/dd"));
}

/// The last such day of the week before a date.
QDate Before(QDate date, Qt::DayOfWeek wanted)
{
    do
        date = date.addDays(-1);
    while (date.dayOfWeek() != wanted);
    return date;
}

QDate FromOn(QDate date, Qt::DayOfWeek wanted)
{
    while (date.dayOfWeek() != wanted)
        date = date.addDays(1);
    return date;
}

int SolarMonth(const QDate& date)
{
    return QCalendar(QCalendar::System::Jalali).partsFromDate(date).month;
}

/// The day as far as the month goes in one direction.
QDate EdgeOfSolarMonth(QDate date, int step)
{
    while (SolarMonth(date.addDays(step)) == SolarMonth(date))
        date = date.addDays(step);
    return date;
}

template <typename TCheck> void OnEveryDay(const TCheck& check)
{
    for (QDate day(FirstYear, 3, 21); day < QDate(FirstYear + YearsTested, 3, 21); day = day.addDays(1)) {
        check(day);
        if (QTest::currentTestFailed())
            return;
    }
}

} // namespace

class DatePeriodsTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTableGivesTheDaysOfThePersianWeek();
    void daysBeforeAreRightOnEveryDay();
    void persianMonthsAreRightOnEveryDay();
    void gregorianMonthsAreRightOnEveryDay();
    void persianWeeksRunFromTheFridayBeforeToFriday();
    void gregorianWeeksAreOneDay();
    void examples_data();
    void examples();
    void partsOfConditionsAreDeleted_data();
    void partsOfConditionsAreDeleted();
};

void DatePeriodsTest::theTableGivesTheDaysOfThePersianWeek()
{
    QCOMPARE(DAYNUMM, (std::array<qint32, 7>{2, 3, 4, 5, 6, 7, 1}));
    QCOMPARE(int(Crmonth), 0);
    QCOMPARE(int(crweek), 1);
}

void DatePeriodsTest::daysBeforeAreRightOnEveryDay()
{
    OnEveryDay([](const QDate& day) {
        for (const int days : {0, 1, 7, 30, 365}) {
            QCOMPARE(TDatePeriods(day, false).DaysBefore(days), Solar(day.addDays(-days)));
            QCOMPARE(TDatePeriods(day, true).DaysBefore(days), Gregorian(day.addDays(-days)));
        }
        QCOMPARE(TDatePeriods(day, false).Today(), Solar(day));
        QCOMPARE(TDatePeriods(day, true).Today(), Gregorian(day));
    });
}

void DatePeriodsTest::persianMonthsAreRightOnEveryDay()
{
    OnEveryDay([](const QDate& day) {
        const TDatePeriods periods(day, false);
        QCOMPARE(periods.StartOf(Crmonth), Solar(EdgeOfSolarMonth(day, -1)));
        const QStringList parts = Solar(EdgeOfSolarMonth(day, 1)).split(u'/');
        QCOMPARE(periods.EndOfMonth(), QStringLiteral("%1/%2/%3")
                                           .arg(parts.at(0).toInt())
                                           .arg(parts.at(1).toInt())
                                           .arg(parts.at(2).toInt()));
    });
}

void DatePeriodsTest::gregorianMonthsAreRightOnEveryDay()
{
    OnEveryDay([](const QDate& day) {
        const TDatePeriods periods(day, true);
        QCOMPARE(periods.StartOf(Crmonth), day.toString(QStringLiteral("yyyy/MM/'01'")));
        const QDate nextMonth = QDate(day.year(), day.month(), 1).addMonths(1);
        QCOMPARE(periods.EndOfMonth(), Gregorian(nextMonth.addDays(-1)));
    });
}

void DatePeriodsTest::persianWeeksRunFromTheFridayBeforeToFriday()
{
    OnEveryDay([](const QDate& day) {
        const TDatePeriods periods(day, false);
        QCOMPARE(periods.StartOf(crweek), Solar(Before(day, Qt::Friday)));
        QCOMPARE(periods.EndOfWeek(), Solar(FromOn(day, Qt::Friday)));
    });
}

void DatePeriodsTest::gregorianWeeksAreOneDay()
{
    OnEveryDay([](const QDate& day) {
        const TDatePeriods periods(day, true);
        QCOMPARE(periods.StartOf(crweek), Gregorian(Before(day, Qt::Saturday)));
        QCOMPARE(periods.EndOfWeek(), periods.StartOf(crweek));
    });
}

void DatePeriodsTest::examples_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QStringList>("persian");
    QTest::addColumn<QStringList>("gregorian");
    QTest::newRow("a Saturday") << QDate(2024, 9, 28)
                                << QStringList{"1403/07/01", "1403/7/30", "1403/07/06", "1403/07/13"}
                                << QStringList{"2024/09/01", "2024/09/30", "2024/09/21", "2024/09/21"};
    QTest::newRow("a Friday") << QDate(2024, 9, 27)
                              << QStringList{"1403/07/01", "1403/7/30", "1403/06/30", "1403/07/06"}
                              << QStringList{"2024/09/01", "2024/09/30", "2024/09/21", "2024/09/21"};
    QTest::newRow("the last day of a leap year")
        << QDate(2025, 3, 20) << QStringList{"1403/12/01", "1403/12/30", "1403/12/24", "1404/01/01"}
        << QStringList{"2025/03/01", "2025/03/31", "2025/03/15", "2025/03/15"};
    QTest::newRow("29 February") << QDate(2024, 2, 29)
                                 << QStringList{"1402/12/01", "1402/12/29", "1402/12/04", "1402/12/11"}
                                 << QStringList{"2024/02/01", "2024/02/29", "2024/02/24", "2024/02/24"};
}

void DatePeriodsTest::examples()
{
    QFETCH(QDate, today);
    QFETCH(QStringList, persian);
    QFETCH(QStringList, gregorian);
    const auto all = [&](bool inGregorian) {
        const TDatePeriods periods(today, inGregorian);
        return QStringList{periods.StartOf(Crmonth), periods.EndOfMonth(), periods.StartOf(crweek),
                           periods.EndOfWeek()};
    };
    QCOMPARE(all(false), persian);
    QCOMPARE(all(true), gregorian);
}

void DatePeriodsTest::partsOfConditionsAreDeleted_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("rest");
    QTest::newRow("first") << "a=1 AND b=2"
                           << "a=1"
                           << "b=2";
    QTest::newRow("middle") << "a=1 AND b=2 AND c=3"
                            << "b=2"
                            << "a=1 AND c=3";
    QTest::newRow("last leaves the word before it") << "a=1 AND b=2"
                                                    << "b=2"
                                                    << "a=1 AND ";
    QTest::newRow("alone") << "a=1"
                           << "a=1"
                           << "";
    QTest::newRow("in a list") << "a ,b ,c"
                               << "b"
                               << "a ,c";
    QTest::newRow("the word before the comma") << "a ,b AND a AND c"
                                               << "a"
                                               << "a ,b AND c";
    QTest::newRow("blanks around") << "  a=1 AND b=2  "
                                   << "  a=1 "
                                   << "b=2";
    QTest::newRow("only the first") << "a=1 AND b=2 AND a=1 AND c=3"
                                    << "a=1"
                                    << "b=2 AND a=1 AND c=3";
    QTest::newRow("not there") << " a=1 AND b=2 "
                               << "c=3"
                               << "a=1 AND b=2";
    QTest::newRow("small letters do not join") << "a=1 and b=2"
                                               << "a=1"
                                               << " and b=2";
    QTest::newRow("nothing in nothing") << ""
                                        << ""
                                        << "";
}

void DatePeriodsTest::partsOfConditionsAreDeleted()
{
    QFETCH(QString, condition);
    QFETCH(QString, part);
    QFETCH(QString, rest);
    QCOMPARE(ConditionText::WithoutPart(condition, part), rest);
}

QTEST_GUILESS_MAIN(DatePeriodsTest)
#include "DatePeriodsTest.moc"
