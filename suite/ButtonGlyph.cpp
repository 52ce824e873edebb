#include "ButtonGlyph.h"

#include <QPainter>
#include <QPainterPath>

namespace {

using ButtonGlyph::TShape;

/// In a square of 16 by 16.
QPainterPath Outline(TShape shape)
{
    QPainterPath path;
    const auto line = [&path](qreal x1, qreal y1, qreal x2, qreal y2) {
        path.moveTo(x1, y1);
        path.lineTo(x2, y2);
    };
    switch (shape) {
    case TShape::Tick:
        line(3, 8.5, 6.5, 12);
        path.lineTo(13, 4.5);
        break;
    case TShape::Cross:
        line(4, 4, 12, 12);
        line(12, 4, 4, 12);
        break;
    case TShape::Plus:
        line(8, 3, 8, 13);
        line(3, 8, 13, 8);
        break;
    case TShape::Pencil:
        line(3, 13, 4, 9.5);
        path.lineTo(10.5, 3);
        path.lineTo(13, 5.5);
        path.lineTo(6.5, 12);
        path.closeSubpath();
        break;
    case TShape::Bin:
        line(2.5, 4.5, 13.5, 4.5);
        line(6, 4.5, 6, 2.5);
        path.lineTo(10, 2.5);
        path.lineTo(10, 4.5);
        line(4, 4.5, 4.8, 13.5);
        path.lineTo(11.2, 13.5);
        path.lineTo(12, 4.5);
        break;
    }
    return path;
}

QPixmap Drawn(TShape shape, const QColor& color, qreal scale)
{
    constexpr qreal Stroke = 1.6;
    QPixmap pixmap(QSize(ButtonGlyph::Size, ButtonGlyph::Size) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, Stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(Outline(shape));
    return pixmap;
}

} // namespace

QIcon ButtonGlyph::Icon(TShape shape, const QColor& color, const QColor& disabledColor, qreal scale)
{
    QIcon icon(Drawn(shape, color, scale));
    icon.addPixmap(Drawn(shape, disabledColor, scale), QIcon::Disabled);
    return icon;
}
