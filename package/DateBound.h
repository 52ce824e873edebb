#pragma once

#include "PackageExport.h"

#include <optional>
#include <QDateTime>
#include <QString>

/// Bounds of date ranges as frames write them: year/month/day texts, with "-hours:minutes" behind for a
/// moment.
namespace DateBound {

/// Empty, "0000/00/00" and "9999/99/99" (whatever time of day stands behind) leave the range open.
BASEFRAME_EXPORT bool IsOpen(const QString& value);

/// A Gregorian moment as the column of a date-and-time item stores it.
struct TMoment
{
    QDateTime Begin; ///< the first instant that belongs to the value
    QDateTime End;   ///< the first instant behind it: a minute later, or a day where no time of day was given
};
/// None where the text is no date. Years before 1753 begin with 1753, the first that the server knows.
BASEFRAME_EXPORT std::optional<TMoment> Moment(const QString& value);
/// As date-and-time columns compare it: `2024-01-02T00:00:00`.
BASEFRAME_EXPORT QString Text(const QDateTime& moment);

} // namespace DateBound
