#include "Look.h"

#include <array>
#include <cmath>
#include <QHash>
#include <QPalette>

namespace {

struct TRoleColors
{
    QRgb Light;
    QRgb Dark;
};

constexpr QRgb GroundOfBand = 0xff174a5e;

TRoleColors ColorsOf(Look::TRole role)
{
    using enum Look::TRole;
    switch (role) {
    case Window:
        return {0xffeef1f4, 0xff1f262d};
    case Band:
        return {GroundOfBand, GroundOfBand};
    case Text:
        return {0xff1d2733, 0xffe6ebf0};
    case SecondaryText:
        return {0xff5f6c7a, 0xff9aa5b1};
    case DisabledText:
        return {0xff9aa5b1, 0xff66717c};
    case Base:
        return {0xffffffff, 0xff171c21};
    case AlternateBase:
        return {0xfff6f8fa, 0xff1c2228};
    case Accent:
        return {0xff1f6f8b, 0xff4aaccd};
    case Selection:
        return {0xff1f6f8b, 0xff1f6f8b};
    case BandText:
    case SelectionText:
        return {0xffffffff, 0xffffffff};
    case Wrong:
        return {0xffb3261e, 0xfff2897f};
    case Warning:
        return {0xff8a5c00, 0xffe0b050};
    case Good:
        return {0xff1e7b4d, 0xff5fc794};
    case Grid:
        return {0xffe4e5e7, 0xff30353a};
    case EditorActive:
        return {0xffffff00, 0xffffff00};
    case EditorActiveText:
    case BalloonText:
        return {0xff1d2733, 0xff1d2733};
    case Balloon:
        return {0xffc0c0c0, 0xffc0c0c0};
    }
    Q_UNREACHABLE();
}

/// Names of the toolkit's colours as 0x00BBGGRR.
const QHash<QString, quint32>& NamedColors()
{
    static const QHash<QString, quint32> colors{
        {QStringLiteral("clblack"), 0x000000},      {QStringLiteral("clmaroon"), 0x000080},
        {QStringLiteral("clgreen"), 0x008000},      {QStringLiteral("clolive"), 0x008080},
        {QStringLiteral("clnavy"), 0x800000},       {QStringLiteral("clpurple"), 0x800080},
        {QStringLiteral("clteal"), 0x808000},       {QStringLiteral("clgray"), 0x808080},
        {QStringLiteral("clsilver"), 0xc0c0c0},     {QStringLiteral("clred"), 0x0000ff},
        {QStringLiteral("cllime"), 0x00ff00},       {QStringLiteral("clyellow"), 0x00ffff},
        {QStringLiteral("clblue"), 0xff0000},       {QStringLiteral("clfuchsia"), 0xff00ff},
        {QStringLiteral("claqua"), 0xffff00},       {QStringLiteral("clwhite"), 0xffffff},
        {QStringLiteral("clltgray"), 0xc0c0c0},     {QStringLiteral("cldkgray"), 0x808080},
        {QStringLiteral("clmoneygreen"), 0xc0dcc0}, {QStringLiteral("clskyblue"), 0xf0caa6},
        {QStringLiteral("clcream"), 0xf0fbff},      {QStringLiteral("clmedgray"), 0xa4a0a0},
    };
    return colors;
}

/// The system colours follow the palette in force.
QColor SystemColor(const QString& name)
{
    static const QHash<QString, Look::TRole> roles{
        {QStringLiteral("clwindow"), Look::TRole::Base},
        {QStringLiteral("clwindowtext"), Look::TRole::Text},
        {QStringLiteral("clbtnface"), Look::TRole::Window},
        {QStringLiteral("clbtntext"), Look::TRole::Text},
        {QStringLiteral("clhighlight"), Look::TRole::Selection},
        {QStringLiteral("clhighlighttext"), Look::TRole::SelectionText},
        {QStringLiteral("clgraytext"), Look::TRole::DisabledText},
    };
    const auto found = roles.constFind(name);
    return found == roles.constEnd() ? QColor() : Look::Color(*found);
}

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

} // namespace

QColor Look::ColorOf(TRole role, bool dark)
{
    const TRoleColors colors = ColorsOf(role);
    return QColor::fromRgb(dark ? colors.Dark : colors.Light);
}

QPalette Look::Palette(bool dark)
{
    const auto color = [dark](TRole role) { return ColorOf(role, dark); };
    const QColor window = color(TRole::Window);
    const QColor button = dark ? window.lighter(130) : QColor(0xfb, 0xfc, 0xfd);
    QPalette palette(color(TRole::Text), button, button.lighter(dark ? 130 : 100),
                     window.darker(dark ? 160 : 140), window.darker(dark ? 130 : 115), color(TRole::Text),
                     color(TRole::SelectionText), color(TRole::Base), window);
    palette.setColor(QPalette::Midlight, window.lighter(dark ? 120 : 104));
    palette.setColor(QPalette::AlternateBase, color(TRole::AlternateBase));
    palette.setColor(QPalette::Highlight, color(TRole::Selection));
    palette.setColor(QPalette::HighlightedText, color(TRole::SelectionText));
    palette.setColor(QPalette::Link, color(TRole::Accent));
    palette.setColor(QPalette::LinkVisited, color(TRole::Accent));
    palette.setColor(QPalette::PlaceholderText, color(TRole::SecondaryText));
    palette.setColor(QPalette::ToolTipBase, color(TRole::Base));
    palette.setColor(QPalette::ToolTipText, color(TRole::Text));
    palette.setColor(QPalette::Shadow, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, color(TRole::DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, color(TRole::Grid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, color(TRole::SecondaryText));
    return palette;
}

QColor Look::StringToColor(const QString& text)
{
    const QString name = text.trimmed().toLower();
    const auto named = NamedColors().constFind(name);
    if (named != NamedColors().constEnd())
        return FromColorValue(*named);
    if (const QColor system = SystemColor(name); system.isValid())
        return system;
    const bool hexadecimal = name.startsWith(u'$');
    bool isNumber = false;
    const quint32 value =
        hexadecimal ? QStringView(name).mid(1).toUInt(&isNumber, 16) : name.toUInt(&isNumber, 10);
    return isNumber && value <= 0xffffffU ? FromColorValue(value) : QColor();
}

QColor Look::FromColorValue(quint32 value)
{
    const auto channel = [value](int shift) { return static_cast<int>(value >> shift & 0xffU); };
    return {channel(0), channel(8), channel(16)};
}

double Look::Contrast(const QColor& first, const QColor& second)
{
    // As a list, because of two temporaries std::minmax would return references.
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}
