#include "BusySign.h"

#include "Look.h"

#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int diameter = 16;
constexpr int stepTime = 60;
constexpr int stepAngle = 30;

} // namespace

TBusySign::TBusySign(QWidget* parent) : QWidget(parent)
{
    setFixedSize(diameter, diameter);
}

QSize TBusySign::sizeHint() const
{
    return {diameter, diameter};
}

void TBusySign::showEvent(QShowEvent* event)
{
    timer_.start(stepTime, this);
    QWidget::showEvent(event);
}

void TBusySign::hideEvent(QHideEvent* event)
{
    timer_.stop();
    QWidget::hideEvent(event);
}

void TBusySign::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != timer_.timerId())
        return;
    angle_ = (angle_ + stepAngle) % 360;
    update();
}

void TBusySign::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int degree = 16; // QPainter counts sixteenths
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect circle = rect().adjusted(2, 2, -2, -2);
    painter.setPen(QPen(Look::Color(Look::TRole::Grid), 2));
    painter.drawEllipse(circle);
    painter.setPen(QPen(Look::Color(Look::TRole::Accent), 2));
    painter.drawArc(circle, angle_ * degree, 100 * degree);
}
