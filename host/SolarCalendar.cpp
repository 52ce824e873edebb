#include "SolarCalendar.h"

#include <array>

namespace SolarCalendar {
namespace {

constexpr int knownYear = 1404;
constexpr int monthsOf31Days = 6;

qint64 FirstDayOfKnownYear()
{
    return QDate(2025, 3, 21).toJulianDay();
}

// Leap years from the year 1 up to and with `year`: the closed form of the 33-year rule, eight in each cycle.
qint64 LeapYearsThrough(qint64 year)
{
    return (8 * year + 29) / 33;
}

qint64 FirstDayOf(qint64 year)
{
    return FirstDayOfKnownYear() + 365 * (year - knownYear) + LeapYearsThrough(year - 1) -
           LeapYearsThrough(knownYear - 1);
}

int DaysBeforeMonth(int month)
{
    return month <= monthsOf31Days + 1 ? 31 * (month - 1) : 31 * monthsOf31Days + 30 * (month - 7);
}

} // namespace

bool IsLeapYear(int year)
{
    return (25 * year + 11) % 33 < 8;
}

int DaysInMonth(int year, int month)
{
    if (month < 12)
        return month <= monthsOf31Days ? 31 : 30;
    return IsLeapYear(year) ? 30 : 29;
}

TDay FromGregorian(const QDate& date)
{
    const qint64 day = date.toJulianDay();
    qint64 year = knownYear + (day - FirstDayOfKnownYear()) / 366;
    while (FirstDayOf(year + 1) <= day)
        ++year;
    while (FirstDayOf(year) > day)
        --year;
    const int dayOfYear = static_cast<int>(day - FirstDayOf(year));
    int month = 12;
    while (DaysBeforeMonth(month) > dayOfYear)
        --month;
    return {static_cast<int>(year), month, dayOfYear - DaysBeforeMonth(month) + 1};
}

QDate ToGregorian(const TDay& day)
{
    if (day.Year < 1 || day.Month < 1 || day.Month > 12 || day.Day < 1 ||
        day.Day > DaysInMonth(day.Year, day.Month))
        return {};
    return QDate::fromJulianDay(FirstDayOf(day.Year) + DaysBeforeMonth(day.Month) + day.Day - 1);
}

QString Text(const TDay& day, const QString& separator)
{
    const QChar zero = u'0';
    return QStringLiteral("%1").arg(day.Year, 4, 10, zero) + separator +
           QStringLiteral("%1").arg(day.Month, 2, 10, zero) + separator +
           QStringLiteral("%1").arg(day.Day, 2, 10, zero);
}

QString MonthName(int month)
{
    static const std::array<QString, 12> names = {
        QStringLiteral("فروردین"), QStringLiteral("اردیبهشت"), QStringLiteral("خرداد"),
        QStringLiteral("تیر"),     QStringLiteral("مرداد"),    QStringLiteral("شهریور"),
        QStringLiteral("مهر"),     QStringLiteral("آبان"),     QStringLiteral("آذر"),
        QStringLiteral("دی"),      QStringLiteral("بهمن"),     QStringLiteral("اسفند")};
    return month >= 1 && month <= 12 ? names.at(static_cast<size_t>(month - 1)) : QString();
}

} // namespace SolarCalendar
