#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>

class QFontMetrics;
class QPainter;
class QPalette;

/// The colours of a token editor on its ground.
struct TAdvListColors
{
    QColor Ground;
    QColor Text;
    QColor Placeholder;
    QColor Bubble;
    QColor BubbleLine;

    /// On the ground that the palette gives to edits.
    static TAdvListColors OfPalette(const QPalette& palette);
    /// On a ground of the owner's.
    static TAdvListColors OnGround(const QColor& ground);
};

/// One bubble and what it consists of. Rectangles are the screen's.
struct TAdvListBubble
{
    static constexpr int Padding = 8;
    static constexpr int PictureSide = 16;
    static constexpr int MarkSide = 14;
    static constexpr int Gap = 4;

    QRect Rect;
    QString Text;
    QPixmap Picture;
    bool FromRight = true;
    bool HasMark = true;
    bool IsSelected = false;
    bool IsMarkHot = false;
    bool IsEnabled = true;

    /// The width of a bubble that shows all of its text, at most `widest`.
    static int WidthFor(const QString& text, const QFontMetrics& metrics, bool hasPicture, bool hasMark,
                        int widest);
    QRect TextRect() const;
    QRect MarkRect() const;
    /// Whether the text does not fit.
    bool IsElided(const QFontMetrics& metrics) const;
    void Paint(QPainter& painter, const QPalette& palette, const TAdvListColors& colors) const;

private:
    QRect Visual(const QRect& reading) const;
    void PaintPicture(QPainter& painter) const;
    void PaintText(QPainter& painter, const QColor& color) const;
    void PaintMark(QPainter& painter, const QColor& color) const;
};

namespace AdvListPainter {

/// A name as a bubble shows it: in one line, its numbers isolated.
QString Shown(const QString& name);
/// Lets what is scrolled out of one side fade away.
void PaintFade(QPainter& painter, const QRect& inner, bool atLeft, const QColor& ground);
/// The line between bubbles where a dragged one would come to stand.
void PaintDropLine(QPainter& painter, const QRect& gap, const QColor& color);

} // namespace AdvListPainter
