#pragma once

#include <QIcon>

class QColor;

/// Line drawings for the usual buttons, in the colour of the text beside them.
namespace ButtonGlyph {

enum class TShape { Tick, Cross, Plus, Pencil, Bin };
constexpr int Size = 16; ///< pixels at scale 1

QIcon Icon(TShape shape, const QColor& color, const QColor& disabledColor, qreal scale);

} // namespace ButtonGlyph
