#include "FlowLines.h"

namespace {

/// Moves the rectangles from `first` on, which make a line, to the middle of its height.
int CloseLine(QList<QRect>& places, qsizetype first, int top)
{
    int height = 0;
    for (qsizetype index = first; index < places.size(); ++index)
        height = qMax(height, places.at(index).height());
    for (qsizetype index = first; index < places.size(); ++index)
        places[index].moveTop(top + (height - places.at(index).height()) / 2);
    return top + height;
}

} // namespace

int TFlowLines::WidthOfRun(const QList<TPiece>& pieces, qsizetype first) const
{
    int width = pieces.at(first).Size.width();
    while (pieces.at(first).WithNext && first + 1 < pieces.size())
        width += Spacing + pieces.at(++first).Size.width();
    return width;
}

QList<QRect> TFlowLines::Place(const QList<TPiece>& pieces) const
{
    QList<QRect> places;
    int used = 0;
    int top = 0;
    qsizetype firstOfLine = 0;
    for (qsizetype index = 0; index < pieces.size(); ++index) {
        const QSize size = pieces.at(index).Size;
        const bool mayBreak = used > 0 && !pieces.at(index - 1).WithNext;
        const bool runFits = used + WidthOfRun(pieces, index) <= Width;
        if ((mayBreak && !runFits) || (used > 0 && used + size.width() > Width)) {
            top = CloseLine(places, firstOfLine, top) + LineSpacing;
            firstOfLine = places.size();
            used = 0;
        }
        const int left = FromRight ? Width - used - size.width() : used;
        places.append(QRect(QPoint(left, top), size));
        used += size.width() + Spacing;
    }
    CloseLine(places, firstOfLine, top);
    return places;
}

int TFlowLines::HeightFor(const QList<TPiece>& pieces) const
{
    int height = 0;
    for (const QRect& place : Place(pieces))
        height = qMax(height, place.y() + place.height());
    return height;
}
