#pragma once

#include "SuiteExport.h"

#include <QRect>
#include <QVector>

/// Where the bubbles of a token editor and the box for typing come to stand. All rectangles are in reading
/// coordinates: x grows from where a line begins to where it ends, whichever side of the screen that is.
class SUITE_EXPORT TAdvListLayout
{
public:
    /// The width of a box that stands over a gap.
    static constexpr int CaretRoom = 8;

    struct TRow
    {
        QVector<int> Widths;   ///< of the bubbles
        int Place = 0;         ///< how many bubbles stand before the box
        int BoxWidth = 0;      ///< what the box needs; 0 stands it over the gap, where only its caret is seen
        bool BoxFills = false; ///< the box takes the rest of its line
        int LineWidth = 0;
        int LineHeight = 0;
        int Spacing = 0;    ///< between neighbours in a line
        bool Wraps = false; ///< or all in one line, however long
    };

    void Arrange(const TRow& row);

    QRect Bubble(int index) const;
    QRect Box() const { return box_; }
    int LineCount() const { return lines_; }
    QSize Size() const { return {width_, lines_ * height_}; }
    /// The bubbles that stand at least partly inside a rectangle: the first of them and the one behind the
    /// last.
    std::pair<int, int> Within(const QRect& rect) const;
    /// The bubble under a point; -1 where there is none.
    int BubbleAt(const QPoint& point) const;
    /// The place between bubbles that is nearest to a point.
    int PlaceAt(const QPoint& point) const;

private:
    struct TPiece
    {
        int Line = 0;
        int Start = 0;
        int Width = 0;
    };

    TPiece Put(int width, const TRow& row);
    void PutBox(const TRow& row);

    QVector<TPiece> bubbles_;
    QRect box_;
    int end_ = 0;
    int lines_ = 1;
    int width_ = 0;
    int height_ = 0;
};
