#include "HostSystemClock.h"
#include "HostSettings.h"

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

class HostSystemClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_GUILESS_MAIN(HostSystemClockTest)
#include "HostSystemClockTest.moc"
