#pragma once

#include <QIcon>
#include <QPainter>

/// An icon of 48 by 48 pixels that `draw` draws with the pen on nothing.
template <typename TDraw> QIcon DrawnIcon(const QPen& pen, TDraw draw)
{
    constexpr int side = 48;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    draw(painter);
    painter.end();
    return QIcon(picture);
}
