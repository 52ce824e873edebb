#include "CalendarPopup.h"

#include "DrawnIcon.h"
#include "Look.h"
#include "MonthPage.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int MonthsOfYear = 12;

/// One sign for a month, two for a year; what was lies to the right.
QIcon ChevronIcon(int months)
{
    constexpr int Middle = 24;
    constexpr int Step = 12;
    return DrawnIcon(QPen(Look::Color(Look::TRole::Text), 4), [months](QPainter& painter) {
        const int tip = months < 0 ? Step : -Step;
        const int signs = qAbs(months) == 1 ? 1 : 2;
        for (int sign = 0; sign < signs; ++sign) {
            const int x = Middle + Step * (2 * sign - signs + 1) / 2;
            const QPoint points[] = {
                {x - tip / 2, Middle - Step}, {x + tip / 2, Middle}, {x - tip / 2, Middle + Step}};
            painter.drawPolyline(points, 3);
        }
    });
}

} // namespace

TCalendarPopup::TCalendarPopup(QWidget* edit, TCalendarKind calendar, const QDate& date, const QDate& today,
                               TTake take)
    : QFrame(edit, Qt::Popup), edit_(edit), calendar_(calendar), today_(today), take_(std::move(take))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(int{QFrame::StyledPanel} | int{QFrame::Plain});
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("تقویم"));
    page_ = new TMonthPage(calendar, today, this);
    page_->OnChosen = [this](const QDate& chosen) { Choose(chosen); };
    other_ = new QLabel(this);
    other_->setFont(Look::SmallFont());
    other_->setAlignment(Qt::AlignCenter);
    auto* todayButton = new QPushButton(QStringLiteral("امروز (T)"), this);
    todayButton->setFocusPolicy(Qt::NoFocus);
    connect(todayButton, &QPushButton::clicked, this, [this] { Choose(today_); });

    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    lines->setSpacing(Look::Unit);
    lines->addLayout(MakeHeader());
    lines->addWidget(page_, 0, Qt::AlignCenter);
    lines->addWidget(other_);
    lines->addWidget(todayButton);
    Mark(date);
}

TCalendarPopup::~TCalendarPopup() = default;

QHBoxLayout* TCalendarPopup::MakeHeader()
{
    title_ = new QLabel(this);
    title_->setFont(Look::BoldFont());
    title_->setAlignment(Qt::AlignCenter);
    auto* header = new QHBoxLayout;
    header->setSpacing(Look::Unit);
    // What was lies to the right, where reading begins.
    header->addWidget(MakeButton(QStringLiteral("سال پیش"), -MonthsOfYear));
    header->addWidget(MakeButton(QStringLiteral("ماه پیش"), -1));
    header->addWidget(title_, 1);
    header->addWidget(MakeButton(QStringLiteral("ماه بعد"), 1));
    header->addWidget(MakeButton(QStringLiteral("سال بعد"), MonthsOfYear));
    return header;
}

QToolButton* TCalendarPopup::MakeButton(const QString& name, int months)
{
    auto* button = new QToolButton(this);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    button->setFixedSize(Look::ControlHeight, Look::ControlHeight);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setIcon(ChevronIcon(months));
    connect(button, &QToolButton::clicked, this,
            [this, months] { Mark(calendar_.AddMonths(page_->Marked(), months)); });
    return button;
}

void TCalendarPopup::Open()
{
    adjustSize();
    const QRect screen = edit_->screen()->availableGeometry();
    const QPoint corner = edit_->mapToGlobal(QPoint(edit_->width(), edit_->height()));
    const bool fits = corner.y() + height() <= screen.bottom();
    const int top = fits ? corner.y() : edit_->mapToGlobal(QPoint(0, 0)).y() - height();
    move(qBound(screen.left(), corner.x() - width(), qMax(screen.left(), screen.right() - width())),
         qMax(screen.top(), top));
    show();
    setFocus(Qt::PopupFocusReason);
}

void TCalendarPopup::Mark(const QDate& date)
{
    if (!date.isValid() || !calendar_.IsUsualYear(calendar_.Of(date).Year))
        return;
    page_->Mark(date);
    title_->setText(page_->Title());
    other_->setText(calendar_.Other().InWords(date));
}

void TCalendarPopup::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Choose(page_->Marked());
        return;
    case Qt::Key_Escape:
    case Qt::Key_F4:
        Leave();
        return;
    default:
        Mark(Reached(event));
    }
}

QDate TCalendarPopup::Reached(const QKeyEvent* event) const
{
    const QDate date = page_->Marked();
    const int months = event->modifiers().testFlag(Qt::ControlModifier) ? MonthsOfYear : 1;
    switch (event->key()) {
    case Qt::Key_Right:
        return date.addDays(-1);
    case Qt::Key_Left:
        return date.addDays(1);
    case Qt::Key_Up:
        return date.addDays(-TMonthPage::DaysOfWeek);
    case Qt::Key_Down:
        return date.addDays(TMonthPage::DaysOfWeek);
    case Qt::Key_PageUp:
        return calendar_.AddMonths(date, -months);
    case Qt::Key_PageDown:
        return calendar_.AddMonths(date, months);
    case Qt::Key_Home:
        return DayOfMonth(1);
    case Qt::Key_End:
        return DayOfMonth(calendar_.DaysInMonth(calendar_.Of(date).Year, calendar_.Of(date).Month));
    default:
        return event->key() == Qt::Key_T || event->text() == QStringLiteral("ف") ? today_ : date;
    }
}

QDate TCalendarPopup::DayOfMonth(int day) const
{
    TDateNumbers date = calendar_.Of(page_->Marked());
    date.Day = day;
    return calendar_.DateOf(date);
}

void TCalendarPopup::wheelEvent(QWheelEvent* event)
{
    if (const int turned = event->angleDelta().y(); turned != 0)
        Mark(calendar_.AddMonths(page_->Marked(), turned > 0 ? -1 : 1));
    event->accept();
}

void TCalendarPopup::Choose(const QDate& date)
{
    // The edit's handlers run in between and may destroy it, and this with it.
    const QPointer<TCalendarPopup> alive = this;
    take_(date);
    if (alive)
        Leave();
}

void TCalendarPopup::Leave()
{
    // Some platforms make a popup the active window and forget which one was before.
    edit_->activateWindow();
    close();
}
