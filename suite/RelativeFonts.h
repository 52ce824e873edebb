#pragma once

#include "Look.h"

#include <QFont>

/// Fonts that name only how they differ from the application's, so that a change of its digits reaches them.
namespace RelativeFonts {

inline QFont Small()
{
    QFont font;
    font.setPixelSize(Look::SmallFont().pixelSize());
    return font;
}

inline QFont Bold()
{
    QFont font;
    font.setBold(true);
    return font;
}

inline QFont SmallBold()
{
    QFont font = Small();
    font.setBold(true);
    return font;
}

} // namespace RelativeFonts
