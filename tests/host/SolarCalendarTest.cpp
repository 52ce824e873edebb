#include "SolarCalendar.h"
#include "HostSettings.h"
#include "HostSystemClock.h"

#include <chrono>
#include <QTest>

namespace {

class TFixedSettings : public ISettings
{
public:
    const TSettingRecord& SettingRecord() const override { return Record; }
    const TIniOptions& IniOptions() const override { return Options; }
    const TUserInfo& UserInfo() const override { return User; }

    TSettingRecord Record;
    TIniOptions Options;
    TUserInfo User;
};

} // namespace

class SolarCalendarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knownDaysAgreeInBothDirections_data()
    {
        QTest::addColumn<QDate>("gregorian");
        QTest::addColumn<QString>("persian");
        QTest::newRow("first day of 1300") << QDate(1921, 3, 21) << "1300/01/01";
        QTest::newRow("revolution") << QDate(1979, 2, 11) << "1357/11/22";
        QTest::newRow("last day of leap 1375") << QDate(1997, 3, 20) << "1375/12/30";
        QTest::newRow("first day of 1376") << QDate(1997, 3, 21) << "1376/01/01";
        QTest::newRow("last day of leap 1399") << QDate(2021, 3, 20) << "1399/12/30";
        QTest::newRow("last day of leap 1403") << QDate(2025, 3, 20) << "1403/12/30";
        QTest::newRow("first day of 1404") << QDate(2025, 3, 21) << "1404/01/01";
        QTest::newRow("end of Shahrivar") << QDate(2025, 9, 22) << "1404/06/31";
        QTest::newRow("begin of Mehr") << QDate(2025, 9, 23) << "1404/07/01";
        QTest::newRow("last day of 1404") << QDate(2026, 3, 20) << "1404/12/29";
        QTest::newRow("last day of leap 1408") << QDate(2030, 3, 20) << "1408/12/30";
        QTest::newRow("first day of 1437") << QDate(2058, 3, 21) << "1437/01/01";
    }

    void knownDaysAgreeInBothDirections()
    {
        QFETCH(QDate, gregorian);
        QFETCH(QString, persian);
        const SolarCalendar::TDay day = SolarCalendar::FromGregorian(gregorian);
        QCOMPARE(SolarCalendar::Text(day, QStringLiteral("/")), persian);
        QCOMPARE(SolarCalendar::ToGregorian(day), gregorian);
    }

    void everyDayOfThreeHundredYearsFollowsTheOneBefore()
    {
        SolarCalendar::TDay previous = SolarCalendar::FromGregorian(QDate(1827, 3, 20));
        for (QDate date(1827, 3, 21); date.year() < 2120; date = date.addDays(1)) {
            const SolarCalendar::TDay day = SolarCalendar::FromGregorian(date);
            const bool sameMonth = day.Month == previous.Month && day.Day == previous.Day + 1;
            const bool nextMonth =
                day.Day == 1 && previous.Day == SolarCalendar::DaysInMonth(previous.Year, previous.Month);
            QVERIFY2(sameMonth || nextMonth, qPrintable(date.toString(Qt::ISODate)));
            QCOMPARE(SolarCalendar::ToGregorian(day), date);
            previous = day;
        }
    }

    void leapYearsFollowTheThirtyThreeYearRule()
    {
        QList<int> leap;
        for (int year = 1391; year <= 1441; ++year) {
            if (SolarCalendar::IsLeapYear(year))
                leap.append(year);
        }
        QCOMPARE(leap,
                 (QList<int>{1391, 1395, 1399, 1403, 1408, 1412, 1416, 1420, 1424, 1428, 1432, 1436, 1441}));
    }

    void aDayThatDoesNotExistIsInvalid()
    {
        QVERIFY(!SolarCalendar::ToGregorian({1404, 12, 30}).isValid());
        QVERIFY(!SolarCalendar::ToGregorian({1404, 7, 31}).isValid());
        QVERIFY(!SolarCalendar::ToGregorian({1404, 0, 1}).isValid());
        QVERIFY(!SolarCalendar::ToGregorian({1404, 13, 1}).isValid());
        QVERIFY(SolarCalendar::ToGregorian({1403, 12, 30}).isValid());
    }

    void theClockWritesDatesInTheCalendarOfTheSettings()
    {
        TFixedSettings settings;
        THostClock clock(settings);
        const QDate day(2025, 3, 29);
        QCOMPARE(clock.DateText(day, QStringLiteral("/")), QStringLiteral("1404/01/09"));
        QCOMPARE(clock.DateText(day, QStringLiteral("-")), QStringLiteral("1404-01-09"));
        settings.Record.SetGregorian(true);
        QCOMPARE(clock.DateText(day, QStringLiteral("/")), QStringLiteral("2025/03/29"));
        QCOMPARE(clock.Today(), QDate::currentDate());
        QCOMPARE(clock.NowDate(QStringLiteral("/")),
                 clock.DateText(QDate::currentDate(), QStringLiteral("/")));
    }

    void theTickCountsMilliseconds()
    {
        TFixedSettings settings;
        THostClock clock(settings);
        const quint32 before = clock.TickCount();
        QTest::qSleep(30);
        const quint32 passed = clock.TickCount() - before;
        QVERIFY2(passed >= 29 && passed < 20'000, qPrintable(QString::number(passed)));
    }
};

QTEST_GUILESS_MAIN(SolarCalendarTest)
#include "SolarCalendarTest.moc"
