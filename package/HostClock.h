#pragma once

#include <QDate>
#include <QString>
#include <QtGlobal>

/// What time it is. Frames read no other clock, so that a test can move time.
class IClock
{
public:
    virtual ~IClock() = default;

    /// Today as text in the calendar of the host's settings, year/month/day with two digits for month and
    /// day, joined by `separator`.
    virtual QString NowDate(const QString& separator) = 0;
    virtual QDate Today() = 0; ///< the day of NowDate, whatever the calendar
    /// Milliseconds of a clock that never goes back; wraps at 2^32, so only differences mean anything.
    virtual quint32 TickCount() = 0;
};
