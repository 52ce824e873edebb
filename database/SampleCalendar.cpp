#include "SampleCalendar.h"

namespace {

constexpr int DaysOfFirstHalf = 6 * 31;

} // namespace

bool SampleCalendar::IsLeap(int year)
{
    return (25 * year + 11) % 33 < 8;
}

int SampleCalendar::DaysIn(int year)
{
    return IsLeap(year) ? 366 : 365;
}

QString SampleCalendar::DateText(int year, int day)
{
    const bool firstHalf = day < DaysOfFirstHalf;
    const int month = firstHalf ? day / 31 : 6 + (day - DaysOfFirstHalf) / 30;
    const int dayOfMonth = firstHalf ? day % 31 : (day - DaysOfFirstHalf) % 30;
    return QStringLiteral("%1/%2/%3")
        .arg(year, 4, 10, QLatin1Char('0'))
        .arg(month + 1, 2, 10, QLatin1Char('0'))
        .arg(dayOfMonth + 1, 2, 10, QLatin1Char('0'));
}

QDate SampleCalendar::Gregorian(int year, int day)
{
    QDate date(2023, 3, 21); // 1402/01/01
    for (int before = FirstYear; before < year; ++before)
        date = date.addDays(DaysIn(before));
    return date.addDays(day);
}
