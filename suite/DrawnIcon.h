#pragma once

#include <QPainter>
#include <QPixmap>

/// The picture of an icon, 48 by 48 pixels, that `draw` draws with the pen on nothing.
template <typename TDraw> QPixmap DrawnIcon(const QPen& pen, TDraw draw)
{
    constexpr int side = 48;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    draw(painter);
    painter.end();
    return picture;
}
