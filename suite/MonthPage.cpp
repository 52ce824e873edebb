#include "MonthPage.h"

#include "Look.h"

#include <array>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int Weeks = 6;
constexpr QSize Cell(9 * Look::Unit, 8 * Look::Unit);

/// 0 for a Saturday.
int ColumnOf(const QDate& date)
{
    return (date.dayOfWeek() + 1) % TMonthPage::DaysOfWeek;
}

bool IsHoliday(int column)
{
    return column == TMonthPage::DaysOfWeek - 1;
}

} // namespace

TMonthPage::TMonthPage(TCalendarKind calendar, const QDate& today, QWidget* parent)
    : QWidget(parent), calendar_(calendar), today_(today)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFont(Look::BodyFont());
}

TMonthPage::~TMonthPage() = default;

void TMonthPage::Mark(const QDate& date)
{
    marked_ = date;
    TDateNumbers first = calendar_.Of(date);
    first.Day = 1;
    const QDate firstOfMonth = calendar_.DateOf(first);
    first_ = firstOfMonth.addDays(-ColumnOf(firstOfMonth));
    setAccessibleName(calendar_.InWords(date));
    update();
}

QString TMonthPage::Title() const
{
    const TDateNumbers day = calendar_.Of(marked_);
    return QStringLiteral("%1 %2").arg(calendar_.MonthName(day.Month)).arg(day.Year);
}

QSize TMonthPage::sizeHint() const
{
    return {DaysOfWeek * Cell.width(), (Weeks + 1) * Cell.height()};
}

QRect TMonthPage::CellAt(int row, int column) const
{
    return {QPoint(width() - (column + 1) * Cell.width(), row * Cell.height()), Cell};
}

QRect TMonthPage::RectOf(const QDate& date) const
{
    const auto day = static_cast<int>(first_.daysTo(date));
    if (day < 0 || day >= Weeks * DaysOfWeek)
        return {};
    return CellAt(1 + day / DaysOfWeek, day % DaysOfWeek);
}

QDate TMonthPage::DateAt(const QPoint& place) const
{
    const int row = place.y() / Cell.height() - 1;
    const int column = (width() - 1 - place.x()) / Cell.width();
    const bool inside = rect().contains(place) && row >= 0 && row < Weeks && column < DaysOfWeek;
    return inside ? first_.addDays(row * DaysOfWeek + column) : QDate();
}

void TMonthPage::mouseReleaseEvent(QMouseEvent* event)
{
    const QDate date = DateAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !date.isValid())
        return;
    // A copy, because the handler may destroy the page.
    if (const auto handler = OnChosen)
        handler(date);
}

void TMonthPage::paintEvent(QPaintEvent* /*event*/)
{
    static const std::array<QString, DaysOfWeek> names = {
        QStringLiteral("ش"), QStringLiteral("ی"), QStringLiteral("د"), QStringLiteral("س"),
        QStringLiteral("چ"), QStringLiteral("پ"), QStringLiteral("ج")};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(Look::BoldFont());
    for (int column = 0; column < DaysOfWeek; ++column) {
        painter.setPen(Look::Color(IsHoliday(column) ? Look::TRole::Wrong : Look::TRole::SecondaryText));
        painter.drawText(CellAt(0, column), Qt::AlignCenter, names.at(static_cast<size_t>(column)));
    }
    painter.setFont(font());
    for (int day = 0; day < Weeks * DaysOfWeek; ++day)
        PaintDay(painter, first_.addDays(day));
}

void TMonthPage::PaintDay(QPainter& painter, const QDate& date) const
{
    constexpr qreal Radius = Look::Unit;
    const QRectF cell = QRectF(RectOf(date)).adjusted(1, 1, -1, -1);
    const bool ofMonth = calendar_.Of(date).Month == calendar_.Of(marked_).Month;
    const bool holiday = IsHoliday(ColumnOf(date));
    QColor color = Look::Color(holiday ? Look::TRole::Wrong : Look::TRole::Text);
    if (date == marked_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::Color(Look::TRole::Selection));
        painter.drawRoundedRect(cell, Radius, Radius);
        color = Look::Color(Look::TRole::SelectionText);
    } else if (!ofMonth) {
        color = Look::Color(Look::TRole::DisabledText);
    }
    if (date == today_) {
        painter.setPen(QPen(date == marked_ ? color : Look::Color(Look::TRole::Accent), Look::RingWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(cell.adjusted(2, 2, -2, -2), Radius, Radius);
    }
    painter.setPen(color);
    painter.drawText(cell, Qt::AlignCenter, QString::number(calendar_.Of(date).Day));
}
