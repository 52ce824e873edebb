#pragma once

#include <QColor>
#include <QImage>
#include <QVector>

/// What a test sees in a rendered widget.
namespace Ink {

/// A run of neighbouring pixel columns that carry something other than the ground.
struct TRun
{
    int First = 0;
    int Last = 0;
    int Width() const { return Last - First + 1; }
};

/// The runs from left to right; `ground` is what counts as empty.
QVector<TRun> Runs(const QImage& image, const QColor& ground);
/// The colour that most pixels have.
QColor Ground(const QImage& image);
/// The colour that differs most from the ground: that of the text.
QColor Foreground(const QImage& image);
/// Whether any pixel has nearly the colour.
bool Has(const QImage& image, const QColor& color, int tolerance = 12);

} // namespace Ink
