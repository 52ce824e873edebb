#include "ColorSwatches.h"

#include "Look.h"

#include <algorithm>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int swatchesPerRow = 9;
constexpr int swatchSide = 28;
constexpr int swatchGap = 6;
constexpr int swatchMargin = 4;
constexpr int swatchStep = swatchSide + swatchGap;

struct TNamedColor
{
    QRgb Color;
    const char16_t* Name;
};

constexpr TNamedColor namedColors[] = {
    {0xFFFF0000, u"قرمز"},
    {0xFFFF8000, u"نارنجی"},
    {0xFFF0C800, u"زرد"},
    {0xFF008000, u"سبز"},
    {0xFF00A0B4, u"فیروزه‌ای"},
    {0xFF0000FF, u"آبی"},
    {0xFF8028A0, u"بنفش"},
    {0xFFE65A8C, u"صورتی"},
    {0xFF707070, u"خاکستری"},
    {0xFF800000, u"زرشکی"},
    {0xFF808000, u"زیتونی"},
    {0xFF00A0E0, u"آبی آسمانی"},
    {0xFF008C3C, u"سبز تیره"},
    {0xFF00C080, u"سبز نعنایی"},
    {0xFFB080FF, u"یاسی"},
    {0xFFC89090, u"گلبهی"},
    {0xFF9C6040, u"قهوه‌ای"},
    {0xFF4682B4, u"آبی فولادی"},
    {0xFF000000, u"سیاه"},
    {0xFFFFFFFF, u"سفید"},
};

int Distance(const QColor& first, QRgb second)
{
    const int red = first.red() - qRed(second);
    const int green = first.green() - qGreen(second);
    const int blue = first.blue() - qBlue(second);
    return red * red + green * green + blue * blue;
}

void PaintTick(QPainter& painter, const QRectF& box, const QColor& ground)
{
    constexpr qreal stroke = 2.2;
    const bool isDarkBetter = Look::Contrast(ground, Qt::black) > Look::Contrast(ground, Qt::white);
    painter.setPen(
        QPen(isDarkBetter ? Qt::black : Qt::white, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    const QPointF tick[] = {at(0.28, 0.52), at(0.44, 0.68), at(0.73, 0.34)};
    painter.drawPolyline(tick, 3);
}

} // namespace

TColorSwatches::TColorSwatches(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void TColorSwatches::SetColors(const QVector<QColor>& colors)
{
    colors_ = colors;
    current_ = -1;
    SetCurrent(0);
    updateGeometry();
    update();
}

void TColorSwatches::SetCurrent(int index)
{
    if (index < 0 || index >= Count() || index == current_)
        return;
    current_ = index;
    DescribeCurrent();
    update();
    Q_EMIT currentChanged(index);
}

void TColorSwatches::DescribeCurrent()
{
    setAccessibleName(QStringLiteral("رنگ %1").arg(NameOf(colors_.at(current_))));
    setAccessibleDescription(QStringLiteral("%1 از %2").arg(current_ + 1).arg(Count()));
}

QString TColorSwatches::NameOf(const QColor& color)
{
    const auto* nearest =
        std::min_element(std::begin(namedColors), std::end(namedColors),
                         [&color](const TNamedColor& first, const TNamedColor& second) {
                             return Distance(color, first.Color) < Distance(color, second.Color);
                         });
    return QString::fromUtf16(nearest->Name);
}

QRect TColorSwatches::SwatchRect(int index) const
{
    const int column = index % swatchesPerRow;
    const int row = index / swatchesPerRow;
    const QRect unturned(swatchMargin + column * swatchStep, swatchMargin + row * swatchStep, swatchSide,
                         swatchSide);
    return QStyle::visualRect(layoutDirection(), rect(), unturned);
}

QSize TColorSwatches::sizeHint() const
{
    const int rows = qMax(1, (Count() + swatchesPerRow - 1) / swatchesPerRow);
    const int border = 2 * swatchMargin - swatchGap;
    return {swatchesPerRow * swatchStep + border, rows * swatchStep + border};
}

int TColorSwatches::IndexAt(const QPoint& position) const
{
    for (int index = 0; index < Count(); ++index) {
        if (SwatchRect(index).contains(position))
            return index;
    }
    return -1;
}

bool TColorSwatches::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<const QHelpEvent*>(event);
    const int index = IndexAt(help->pos());
    QToolTip::showText(help->globalPos(), index < 0 ? QString() : NameOf(colors_.at(index)), this);
    return true;
}

void TColorSwatches::keyPressEvent(QKeyEvent* event)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right;
    const int back = layoutDirection() == Qt::RightToLeft ? Qt::Key_Right : Qt::Key_Left;
    const int key = event->key();
    if (key == forward)
        SetCurrent(current_ + 1);
    else if (key == back)
        SetCurrent(current_ - 1);
    else if (key == Qt::Key_Down)
        SetCurrent(current_ + swatchesPerRow);
    else if (key == Qt::Key_Up)
        SetCurrent(current_ - swatchesPerRow);
    else if (key == Qt::Key_Home)
        SetCurrent(0);
    else if (key == Qt::Key_End)
        SetCurrent(Count() - 1);
    else
        QWidget::keyPressEvent(event);
}

void TColorSwatches::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        SetCurrent(IndexAt(event->position().toPoint()));
}

void TColorSwatches::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal radius = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < Count(); ++index) {
        const QRect box = SwatchRect(index);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colors_.at(index));
        painter.drawRoundedRect(box, radius, radius);
        if (index != current_)
            continue;
        PaintTick(painter, box, colors_.at(index));
        const int outset = Look::RingWidth + 1;
        const QColor ring = hasFocus() ? Look::RingColor(palette()) : Look::Color(Look::TRole::SecondaryText);
        Look::PaintRing(painter, box.adjusted(-outset, -outset, outset, outset), ring);
    }
}
