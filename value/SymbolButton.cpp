#include "SymbolButton.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr qreal HalfHeight = 5;
constexpr qreal TipLength = 6;

/// A triangle from its base at `x` to a tip, on a line through the origin; towards the left for a negative
/// length.
void AddTriangle(QPainterPath& path, qreal x, qreal length)
{
    path.moveTo(x, -HalfHeight);
    path.lineTo(x + length, 0);
    path.lineTo(x, HalfHeight);
    path.closeSubpath();
}

/// Centred on the origin; empty where the letter is no symbol.
QPainterPath SymbolPath(const QString& letter)
{
    QPainterPath path;
    if (letter == u"7") {
        AddTriangle(path, 0, -TipLength);
        AddTriangle(path, TipLength, -TipLength);
    } else if (letter == u"8") {
        AddTriangle(path, -TipLength, TipLength);
        AddTriangle(path, 0, TipLength);
    } else if (letter == u"|") {
        AddTriangle(path, TipLength / 2, -TipLength);
    } else if (letter == u"}") {
        AddTriangle(path, -TipLength / 2, TipLength);
    }
    return path;
}

} // namespace

TSymbolButton::TSymbolButton(QWidget* parent) : QPushButton(parent)
{
}

TSymbolButton::~TSymbolButton() = default;

void TSymbolButton::paintEvent(QPaintEvent* event)
{
    const QPainterPath symbol = SymbolPath(text());
    if (symbol.isEmpty()) {
        QPushButton::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.fillPath(symbol, palette().buttonText());
}
