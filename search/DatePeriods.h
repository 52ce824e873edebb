#pragma once

#include "PackageExport.h"

#include <array>
#include <QDate>
#include <QString>

/// Which current period is meant.
enum currentTime { Crmonth = 0, crweek = 1 };

/// The position of a day in the Persian week, which begins on Saturday, by the toolkit's day of the week less
/// one: Sunday is the first entry, Saturday the last.
constexpr std::array<qint32, 7> DAYNUMM = {2, 3, 4, 5, 6, 7, 1};

/// Periods around a day, as date texts of the Persian or of the Gregorian calendar.
class BASEFRAME_EXPORT TDatePeriods
{
public:
    /// `gregorian` chooses the calendar of the periods and of their texts.
    TDatePeriods(const QDate& today, bool gregorian) : today_(today), gregorian_(gregorian) {}

    QString Today() const { return TextOf(today_); } ///< the day itself
    /// A day so many days earlier.
    QString DaysBefore(int days) const { return TextOf(today_.addDays(-days)); }
    /// The first day of the month. A week begins the day before its first day: for the Persian week that is
    /// the Friday before, for the Gregorian week the Saturday before.
    QString StartOf(currentTime period) const;
    /// The last day of the month; month and day of the Persian one have no leading zeros.
    QString EndOfMonth() const;
    /// The Friday that ends the Persian week. The Gregorian week ends on the day it starts with.
    QString EndOfWeek() const;

private:
    QString TextOf(const QDate& date) const;
    QDate StartOfWeek() const;

    QDate today_;
    bool gregorian_;
};

namespace ConditionText {

/// The condition without one of its parts: the first occurrence goes, with the " AND " or the " ," behind it
/// where there is one. Blanks around both texts do not count.
BASEFRAME_EXPORT QString WithoutPart(const QString& condition, const QString& part);

} // namespace ConditionText
