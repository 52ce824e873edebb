#pragma once

#include "CalendarKind.h"
#include "SuiteExport.h"

#include <functional>
#include <QFrame>

class QHBoxLayout;
class QLabel;
class QToolButton;
class TMonthPage;

/// The month page under a date edit. The arrows move by days and weeks, PageUp and PageDown by months (with
/// Ctrl by years), Home and End within the month, T goes to today; Enter and a click choose, Escape and a
/// click elsewhere leave the edit as it was.
class SUITE_EXPORT TCalendarPopup : public QFrame
{
    Q_OBJECT

public:
    using TTake = std::function<void(const QDate& date)>;

    TCalendarPopup(QWidget* edit, TCalendarKind calendar, const QDate& date, const QDate& today, TTake take);
    ~TCalendarPopup() override;

    /// Below the edit, or above it where there is no room.
    void Open();
    TMonthPage* Page() const { return page_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QHBoxLayout* MakeHeader();
    QToolButton* MakeButton(const QString& name, int months);
    QDate Reached(const QKeyEvent* event) const;
    QDate DayOfMonth(int day) const;
    void Mark(const QDate& date);
    void Choose(const QDate& date);
    void Leave();

    QWidget* edit_;
    TCalendarKind calendar_;
    QDate today_;
    TTake take_;
    QLabel* title_ = nullptr;
    QLabel* other_ = nullptr;
    TMonthPage* page_ = nullptr;
};
