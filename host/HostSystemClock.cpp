#include "HostSystemClock.h"

#include "HostSettings.h"
#include "SmartFaDate.h"

#include <chrono>

QString THostClock::NowDate(const QString& separator)
{
    return DateText(Today(), separator);
}

QDate THostClock::Today()
{
    return QDate::currentDate();
}

quint32 THostClock::TickCount()
{
    using namespace std::chrono;
    return static_cast<quint32>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

QString THostClock::DateText(const QDate& date, const QString& separator) const
{
    const TFaDate day = TFaDate::CreateByGregorianDate(date);
    const bool gregorian = settings_->SettingRecord().IsGregorian();
    return (gregorian ? day.GetGregorianDateString() : day.ToDateString()).replace(u'/', separator);
}
