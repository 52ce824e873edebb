#pragma once

#include "HostClock.h"

#include <QElapsedTimer>

/// A clock that runs on its own, can be put forward, and can be stopped.
class TMovableClock : public IClock
{
public:
    TMovableClock();

    QString NowDate(const QString& separator) override;
    QDate Today() override { return Day; }
    quint32 TickCount() override;

    void Advance(quint32 milliseconds) { tick_ += milliseconds; }
    /// Puts the tick to a number, e.g. shortly before it wraps.
    void SetTickCount(quint32 tick);
    void Stop();  ///< the tick moves by Advance only
    void Start(); ///< the tick runs on from where it stands

    QDate Day{2024, 3, 20};
    QString DateText = QStringLiteral("1403/01/01"); ///< what NowDate answers, with "/" as the separator

private:
    quint32 Elapsed() const;

    QElapsedTimer timer_;
    quint32 tick_ = 1000;
    bool runs_ = true;
};
