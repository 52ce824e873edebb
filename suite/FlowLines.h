#pragma once

#include "SuiteExport.h"

#include <QList>
#include <QRect>
#include <QSize>

/// Rectangles one after the other in lines that break where the width ends, each in the middle of its line.
struct SUITE_EXPORT TFlowLines
{
    int Width = 0;          ///< of every line
    int Spacing = 0;        ///< pixels between the rectangles of a line
    int LineSpacing = 0;    ///< pixels between lines
    bool FromRight = false; ///< lines begin at the right

    /// A rectangle that is to be placed.
    struct TPiece
    {
        QSize Size;            ///< in pixels
        bool WithNext = false; ///< no line ends between this one and the next
    };

    /// Where rectangles of these sizes come to stand. What is wider than a line has it for itself.
    QList<QRect> Place(const QList<TPiece>& pieces) const;
    /// The height of all lines.
    int HeightFor(const QList<TPiece>& pieces) const;

private:
    /// The width from a piece on to where a line may end.
    int WidthOfRun(const QList<TPiece>& pieces, qsizetype first) const;
};
