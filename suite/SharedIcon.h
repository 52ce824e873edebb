#pragma once

#include "SuiteExport.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

/// Icons that are drawn by the program, once for each colour and not for each control that shows them.
namespace SharedIcon {

using TDraw = QPixmap (*)(const QColor& color);

/// What `draw` gives for the colour; `name` tells one drawing from the other.
SUITE_EXPORT QIcon Of(const QString& name, const QColor& color, TDraw draw);

} // namespace SharedIcon
