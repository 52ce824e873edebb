#pragma once

#include "SuiteExport.h"

#include <QColor>
#include <QFont>
#include <QString>

class QApplication;
class QPainter;
class QPalette;
class QRect;

/// The one visual language: font, palettes, measures. Installed once on the application, before the first
/// widget.
namespace Look {

/// The palette: that of the desktop, or one of the two whatever the desktop has.
enum class TScheme { FollowSystem, Light, Dark };
/// The shape in which the fonts draw the ASCII digits; texts keep them.
enum class TDigits { Persian, Latin };

/// Everything that has a colour of its own. Values in docs/look.md and in the palettes' test.
enum class TRole {
    Window,
    Band,
    Text,
    BandText,
    SecondaryText,
    DisabledText,
    Base,
    AlternateBase,
    Accent,
    Selection,
    SelectionText,
    Wrong,
    Warning,
    Good,
    Grid,
    EditorActive,
    EditorActiveText,
    Balloon,
    BalloonText,
};

/// Fusion style, embedded fonts, palette, right-to-left layout on the whole application.
SUITE_EXPORT void Install(QApplication& application, TScheme scheme = TScheme::FollowSystem,
                          TDigits digits = TDigits::Persian);
SUITE_EXPORT void SetScheme(TScheme scheme); ///< takes effect at once
SUITE_EXPORT bool IsDark();                  ///< whether the dark palette is in force
SUITE_EXPORT void SetDigits(TDigits digits); ///< takes effect at once
SUITE_EXPORT TDigits Digits();               ///< in force

SUITE_EXPORT QColor Color(TRole role);              ///< in the palette in force
SUITE_EXPORT QColor ColorOf(TRole role, bool dark); ///< in either palette
SUITE_EXPORT QPalette Palette(bool dark);           ///< of the whole application
SUITE_EXPORT QFont BodyFont();                      ///< 14 px
SUITE_EXPORT QFont SmallFont();                     ///< 13 px: grids and hints
SUITE_EXPORT QFont BoldFont();                      ///< 14 px bold: labels over a band

constexpr int Unit = 4; ///< everything is a multiple of it, in pixels at scale 1
constexpr int ControlHeight = 28;
constexpr int Margin = 8;
constexpr int LineGap = 6;
constexpr int GroupGap = 16;
constexpr int GridRowHeight = 30;

/// Thickness in pixels of the ring that shows the focus or an error.
constexpr int RingWidth = 2;
/// Paints the ring just inside `rect`; `color` is usually Accent or Wrong.
SUITE_EXPORT void PaintRing(QPainter& painter, const QRect& rect, const QColor& color);
/// The colour of the focus ring on a ground: the accent, or the ground's text colour where the accent would
/// vanish.
SUITE_EXPORT QColor RingColor(const QPalette& palette);

/// Colour of the toolkit notation: a name (clRed, ...) or a number 0x00BBGGRR, decimal or $-hexadecimal.
/// Invalid where the text is neither.
SUITE_EXPORT QColor StringToColor(const QString& text);
/// 0x00BBGGRR as a colour (65535 is yellow).
SUITE_EXPORT QColor FromColorValue(quint32 value);

/// The contrast of two colours, 1 to 21 (WCAG 2.1 relative luminance).
SUITE_EXPORT double Contrast(const QColor& first, const QColor& second);

} // namespace Look
