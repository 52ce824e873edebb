#pragma once

#include "HostExport.h"

#include <QDate>
#include <QString>

/// The solar calendar of Iran on the 33-year rule: year y is leap when (25y + 11) mod 33 < 8.
namespace SolarCalendar {

struct TDay
{
    int Year = 0;
    int Month = 0; ///< 1 to 12
    int Day = 0;   ///< 1 to 31
    friend bool operator==(const TDay&, const TDay&) = default;
};

HOST_EXPORT bool IsLeapYear(int year);
HOST_EXPORT int DaysInMonth(int year, int month);
/// `date` must be valid and not before the year 1 of the calendar (22 March 622).
HOST_EXPORT TDay FromGregorian(const QDate& date);
/// Invalid where there is no such day.
HOST_EXPORT QDate ToGregorian(const TDay& day);
/// Year in four digits, month and day in two, ASCII, joined by the separator: "1404/01/09".
HOST_EXPORT QString Text(const TDay& day, const QString& separator);
/// "فروردین" for 1 to "اسفند" for 12.
HOST_EXPORT QString MonthName(int month);

} // namespace SolarCalendar
