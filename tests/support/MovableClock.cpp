#include "MovableClock.h"

TMovableClock::TMovableClock()
{
    timer_.start();
}

QString TMovableClock::NowDate(const QString& separator)
{
    return QString(DateText).replace(QLatin1Char('/'), separator);
}

quint32 TMovableClock::TickCount()
{
    return tick_ + Elapsed();
}

void TMovableClock::SetTickCount(quint32 tick)
{
    tick_ = tick;
    timer_.restart();
}

void TMovableClock::Stop()
{
    tick_ += Elapsed();
    runs_ = false;
}

void TMovableClock::Start()
{
    runs_ = true;
    timer_.restart();
}

quint32 TMovableClock::Elapsed() const
{
    return runs_ ? static_cast<quint32>(timer_.elapsed()) : 0;
}
