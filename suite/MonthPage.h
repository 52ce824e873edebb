#pragma once

#include "CalendarKind.h"
#include "SuiteExport.h"

#include <functional>
#include <QWidget>

/// A month as a page of six weeks, Saturday first and at the right, Fridays as holidays. Shows which day is
/// today and which one is marked; a click chooses a day.
class SUITE_EXPORT TMonthPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int DaysOfWeek = 7;

    TMonthPage(TCalendarKind calendar, const QDate& today, QWidget* parent);
    ~TMonthPage() override;

    QDate Marked() const { return marked_; }
    /// Marks a day and shows its month.
    void Mark(const QDate& date);
    /// "مهر 1403"
    QString Title() const;
    /// Where a day of the shown weeks stands; empty for others.
    QRect RectOf(const QDate& date) const;
    /// The day at a place; invalid where there is none.
    QDate DateAt(const QPoint& place) const;

    std::function<void(const QDate& date)> OnChosen; ///< a day was clicked

    QSize sizeHint() const override;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect CellAt(int row, int column) const;
    void PaintDay(QPainter& painter, const QDate& date) const;

    TCalendarKind calendar_;
    QDate today_;
    QDate marked_;
    QDate first_; // the Saturday at which the page begins
};
