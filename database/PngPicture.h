#pragma once

#include <functional>
#include <QByteArray>
#include <QtGlobal>

/// Small pictures without a window system.
namespace PngPicture {

/// Parts of 255.
struct TPixel
{
    int Red = 0;
    int Green = 0;
    int Blue = 0;
    int Alpha = 0;
};

/// The colour at a point; both coordinates from 0 to 1, the origin at the upper left.
using TPainter = std::function<TPixel(double x, double y)>;

/// A square PNG picture with smooth edges, `size` pixels wide.
QByteArray Draw(int size, const TPainter& painter);

/// A tag's mark in a colour.
QByteArray Tag(const TPixel& color);
/// The same colour with white, for a tag that only some of the chosen records carry.
TPixel Lighter(const TPixel& color);
/// A box before a coloured ground; `number` chooses the colours.
QByteArray Goods(quint64 number);
/// Head and shoulders before a coloured ground; `number` chooses the colours.
QByteArray Person(quint64 number);

} // namespace PngPicture
