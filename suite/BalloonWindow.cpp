#include "BalloonWindow.h"

#include "Balloon.h"
#include "Look.h"
#include "PersianText.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace {

constexpr int WidestText = 90 * Look::Unit;
constexpr int Padding = 2 * Look::Unit;
constexpr int TipHeight = 2 * Look::Unit;
constexpr int TipInset = 5 * Look::Unit;
constexpr int TextFlags = Qt::AlignRight | Qt::AlignAbsolute | Qt::TextWordWrap | Qt::TextForceRightToLeft;

} // namespace

TBalloonWindow::TBalloonWindow(QWidget* control, const QString& text, const QString& title)
    : QWidget(control->window(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      control_(control), text_(text), title_(title)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(title.isEmpty() ? text : title + u'\n' + text);
    life_.setSingleShot(true);
    connect(&life_, &QTimer::timeout, this, &Balloon::Hide);
    connect(control, &QObject::destroyed, this, &Balloon::Hide);
    // A control also moves when one of its parents does.
    for (QWidget* widget = control; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        widget->installEventFilter(this);
}

void TBalloonWindow::Appear(int milliseconds)
{
    Place();
    show();
    if (milliseconds > 0)
        life_.start(milliseconds);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QSize TBalloonWindow::TextSize(const QString& text, const QFont& font) const
{
    if (text.isEmpty())
        return {0, 0};
    const QRect room(0, 0, WidestText, QWIDGETSIZE_MAX);
    return QFontMetrics(font).boundingRect(room, TextFlags, PersianText::WithIsolatedCodes(text)).size() +
           QSize(2, 0);
}

QRect TBalloonWindow::ControlOnScreen() const
{
    return {control_->mapToGlobal(QPoint(0, 0)), control_->size()};
}

void TBalloonWindow::Place()
{
    const QSize title = TextSize(title_, Look::BoldFont());
    const QSize text = TextSize(text_, Look::SmallFont());
    const QSize body(qMax(title.width(), text.width()) + 2 * Padding,
                     title.height() + text.height() + (title_.isEmpty() ? 0 : Look::Unit) + 2 * Padding);
    placedFor_ = ControlOnScreen();
    const QRect control = placedFor_;
    const QRect screen = control_->screen()->availableGeometry();

    // Reading starts at the right, so the tip stands near the right end of the control and of the balloon.
    const int tip = control.right() - qMin(TipInset, control.width() / 2);
    const int left = qBound(screen.left(), tip + TipInset - body.width(),
                            qMax(screen.left(), screen.right() - body.width()));
    above_ = control.top() - body.height() - TipHeight >= screen.top();
    const int top = above_ ? control.top() - body.height() - TipHeight : control.bottom() + 1;
    setGeometry(left, top, body.width(), body.height() + TipHeight);
    body_ = QRect(QPoint(0, above_ ? 0 : TipHeight), body);
    tip_ = QPoint(qBound(TipInset / 2, tip - left, body.width() - TipInset / 2), above_ ? height() - 1 : 0);

    QPainterPath outline;
    outline.addRoundedRect(body_, Look::Unit, Look::Unit);
    setMask(QRegion(outline.toFillPolygon().toPolygon()) + QRegion(Tip()));
}

QPolygon TBalloonWindow::Tip() const
{
    const int base = above_ ? body_.bottom() : body_.top();
    return QPolygon({tip_, QPoint(tip_.x() - TipHeight, base), QPoint(tip_.x() + TipHeight, base)});
}

void TBalloonWindow::PaintText(QPainter& painter, QRect rect, const QString& text, const QFont& font) const
{
    painter.setFont(font);
    painter.drawText(rect, TextFlags, PersianText::WithIsolatedCodes(text));
}

void TBalloonWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Look::Color(Look::TRole::Balloon));
    painter.setPen(Look::Color(Look::TRole::BalloonText));
    QRect rest = body_.adjusted(Padding, Padding, -Padding, -Padding);
    if (!title_.isEmpty()) {
        PaintText(painter, rest, title_, Look::BoldFont());
        rest.setTop(rest.top() + TextSize(title_, Look::BoldFont()).height() + Look::Unit);
    }
    PaintText(painter, rest, text_, Look::SmallFont());
}

void TBalloonWindow::mousePressEvent(QMouseEvent*)
{
    Balloon::Hide();
}

bool TBalloonWindow::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (watched == control_ && !static_cast<QKeyEvent*>(event)->text().isEmpty())
            Balloon::Hide();
        break;
    case QEvent::InputMethod:
        if (watched == control_)
            Balloon::Hide();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        // A window that has just been shown is told its place without having moved.
        if (ControlOnScreen() != placedFor_)
            Balloon::Hide();
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        Balloon::Hide();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
