#include "AdvListPainter.h"

#include "Look.h"
#include "PersianText.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QPalette>
#include <QStyle>

namespace {

constexpr qreal CornerRadius = 5;

QColor Mixed(const QColor& ground, const QColor& over, double share)
{
    const auto channel = [share](int below, int above) {
        return static_cast<int>(below + (above - below) * share);
    };
    return {channel(ground.red(), over.red()), channel(ground.green(), over.green()),
            channel(ground.blue(), over.blue())};
}

} // namespace

TAdvListColors TAdvListColors::OfPalette(const QPalette& palette)
{
    constexpr double Fill = 0.16;
    constexpr double Line = 0.5;
    const QColor ground = palette.color(QPalette::Base);
    const bool enabled = palette.currentColorGroup() != QPalette::Disabled;
    const QColor tint = enabled ? Look::Color(Look::TRole::Accent) : palette.color(QPalette::Text);
    return {ground, palette.color(QPalette::Text), palette.color(QPalette::PlaceholderText),
            Mixed(ground, tint, Fill), Mixed(ground, tint, Line)};
}

TAdvListColors TAdvListColors::OnGround(const QColor& ground)
{
    constexpr double Fill = 0.75;
    constexpr double Line = 0.45;
    constexpr double Faint = 0.65;
    const QColor dark = Look::ColorOf(Look::TRole::Text, false);
    const QColor light = Look::ColorOf(Look::TRole::Text, true);
    const bool isLight = Look::Contrast(ground, dark) >= Look::Contrast(ground, light);
    const QColor text = isLight ? dark : light;
    return {ground, text, Mixed(ground, text, Faint), Mixed(ground, isLight ? Qt::white : Qt::black, Fill),
            Mixed(ground, text, Line)};
}

int TAdvListBubble::WidthFor(const QString& text, const QFontMetrics& metrics, bool hasPicture, bool hasMark,
                             int widest)
{
    // No glyph is narrower than a pixel or two: of a long text only the beginning is measured.
    const QString measured = text.left(qMax(0, widest));
    const int other =
        2 * Padding + (hasPicture ? PictureSide + Gap : 0) + (hasMark ? MarkSide + Gap - Padding / 2 : 0);
    const int least = other + 2 * Gap;
    return qBound(least, metrics.horizontalAdvance(AdvListPainter::Shown(measured)) + 1 + other,
                  qMax(least, widest));
}

QRect TAdvListBubble::Visual(const QRect& reading) const
{
    return QStyle::visualRect(FromRight ? Qt::RightToLeft : Qt::LeftToRight, Rect, reading);
}

QRect TAdvListBubble::MarkRect() const
{
    if (!HasMark)
        return {};
    const int left = Rect.right() + 1 - Padding / 2 - MarkSide;
    return Visual({left, Rect.top() + (Rect.height() - MarkSide) / 2, MarkSide, MarkSide});
}

QRect TAdvListBubble::TextRect() const
{
    const int before = Padding + (Picture.isNull() ? 0 : PictureSide + Gap);
    const int behind = HasMark ? Padding / 2 + MarkSide + Gap : Padding;
    return Visual(Rect.adjusted(before, 0, -behind, 0));
}

bool TAdvListBubble::IsElided(const QFontMetrics& metrics) const
{
    const int room = TextRect().width();
    return metrics.horizontalAdvance(AdvListPainter::Shown(Text.left(room + 1))) > room;
}

void TAdvListBubble::PaintPicture(QPainter& painter) const
{
    if (Picture.isNull())
        return;
    const QSize size = Picture.deviceIndependentSize().toSize();
    const QRect room = Visual(
        {Rect.left() + Padding, Rect.top() + (Rect.height() - PictureSide) / 2, PictureSide, PictureSide});
    constexpr double Faint = 0.4;
    painter.setOpacity(IsEnabled ? 1 : Faint);
    painter.drawPixmap(room.left() + (room.width() - size.width()) / 2,
                       room.top() + (room.height() - size.height()) / 2, Picture);
    painter.setOpacity(1);
}

void TAdvListBubble::PaintText(QPainter& painter, const QColor& color) const
{
    const QRect rect = TextRect();
    const QString beginning = Text.left(qMax(1, rect.width()));
    const QString shown =
        painter.fontMetrics().elidedText(AdvListPainter::Shown(beginning), Qt::ElideRight, rect.width());
    painter.setPen(color);
    painter.setLayoutDirection(Text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const int side = FromRight ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(rect, side | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

void TAdvListBubble::PaintMark(QPainter& painter, const QColor& color) const
{
    if (!HasMark)
        return;
    const QRectF mark = MarkRect();
    constexpr qreal Arm = 3.5;
    const QPointF middle = mark.center();
    QColor ink = color;
    if (IsMarkHot) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::ColorOf(Look::TRole::Wrong, false));
        painter.drawEllipse(mark);
        ink = Qt::white;
    }
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-Arm, -Arm), middle + QPointF(Arm, Arm));
    painter.drawLine(middle + QPointF(-Arm, Arm), middle + QPointF(Arm, -Arm));
}

void TAdvListBubble::Paint(QPainter& painter, const QPalette& palette, const TAdvListColors& colors) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(IsSelected ? palette.color(QPalette::Highlight) : colors.BubbleLine);
    painter.setBrush(IsSelected ? palette.color(QPalette::Highlight) : colors.Bubble);
    painter.drawRoundedRect(QRectF(Rect).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
    const QColor ink = IsSelected ? palette.color(QPalette::HighlightedText) : colors.Text;
    PaintPicture(painter);
    PaintText(painter, ink);
    PaintMark(painter, IsSelected ? ink : Mixed(colors.Bubble, ink, 0.75));
    painter.restore();
}

QString AdvListPainter::Shown(const QString& name)
{
    return PersianText::WithIsolatedNumbers(name);
}

void AdvListPainter::PaintFade(QPainter& painter, const QRect& inner, bool atLeft, const QColor& ground)
{
    constexpr int Width = 5 * Look::Unit;
    QRect edge = inner;
    if (atLeft)
        edge.setWidth(Width);
    else
        edge.setLeft(inner.right() + 1 - Width);
    QColor clear = ground;
    clear.setAlpha(0);
    QLinearGradient fade(edge.topLeft(), edge.topRight());
    fade.setColorAt(0, atLeft ? ground : clear);
    fade.setColorAt(1, atLeft ? clear : ground);
    painter.fillRect(edge, fade);
}

void AdvListPainter::PaintDropLine(QPainter& painter, const QRect& gap, const QColor& color)
{
    painter.fillRect(gap.center().x(), gap.top() + 1, Look::RingWidth, gap.height() - 2, color);
}
