#pragma once

#include "HostClock.h"
#include "HostExport.h"

class ISettings;

/// The system's clock, with dates in the calendar of the settings.
class HOST_EXPORT THostClock : public IClock
{
public:
    /// `settings` must outlive the clock.
    explicit THostClock(const ISettings& settings) : settings_(&settings) {}

    QString NowDate(const QString& separator) override;
    QDate Today() override;
    quint32 TickCount() override;

    /// A day as text in the calendar of the settings: "1404/01/09" or "2025/03/29".
    QString DateText(const QDate& date, const QString& separator) const;

private:
    const ISettings* settings_;
};
