#include "Look.h"

#include "LookStyle.h"
#include "StandardTexts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QToolTip>

#ifdef Q_OS_WIN
#include <QSettings>
#endif

namespace {

constexpr int BodyPixels = 14;
constexpr int SmallPixels = 13;

struct TLookState
{
    bool systemIsDark = false;
    bool dark = false;
    bool installed = false;
    Look::TDigits digits = Look::TDigits::Persian;
};

TLookState& State()
{
    static TLookState state;
    return state;
}

/// The toolkit of this version does not tell the system's choice; its palette does, until ours replaces it.
bool SystemIsDark()
{
#ifdef Q_OS_WIN
    const QSettings personal(
        QStringLiteral(
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
        QSettings::NativeFormat);
    return personal.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#else
    constexpr int MiddleLightness = 128;
    return QGuiApplication::palette().color(QPalette::Window).lightness() < MiddleLightness;
#endif
}

void LoadFonts()
{
    for (const char* face :
         {"UI-FD-Regular", "UI-FD-Medium", "UI-FD-Bold", "UI-Regular", "UI-Medium", "UI-Bold"}) {
        const QString file = QStringLiteral(":/suite/fonts/Vazirmatn-%1.ttf").arg(QLatin1String(face));
        if (QFontDatabase::addApplicationFont(file) < 0)
            qFatal("The embedded font %s cannot be loaded", qUtf8Printable(file));
    }
}

QFont ProductFont(int pixels)
{
    const bool persian = State().digits == Look::TDigits::Persian;
    QFont font(persian ? QStringLiteral("Vazirmatn UI FD") : QStringLiteral("Vazirmatn UI"));
    font.setPixelSize(pixels);
    return font;
}

void ApplyFont()
{
    QApplication::setFont(Look::BodyFont());
    QToolTip::setFont(Look::SmallFont());
}

void ApplyPalette()
{
    const QPalette palette = Look::Palette(State().dark);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace

void Look::Install(QApplication& application, TScheme scheme, TDigits digits)
{
    TLookState& state = State();
    state.digits = digits;
    if (!state.installed) {
        state.systemIsDark = SystemIsDark();
        LoadFonts();
        QApplication::setStyle(new TLookStyle); // the application owns its style
        QCoreApplication::installTranslator(new TStandardTexts(&application));
        state.installed = true;
    }
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    ApplyFont();
    SetScheme(scheme);
}

void Look::SetScheme(TScheme scheme)
{
    TLookState& state = State();
    state.dark = scheme == TScheme::Dark || (scheme == TScheme::FollowSystem && state.systemIsDark);
    ApplyPalette();
}

bool Look::IsDark()
{
    return State().dark;
}

void Look::SetDigits(TDigits digits)
{
    State().digits = digits;
    ApplyFont();
}

Look::TDigits Look::Digits()
{
    return State().digits;
}

QColor Look::Color(TRole role)
{
    return ColorOf(role, State().dark);
}

QFont Look::BodyFont()
{
    return ProductFont(BodyPixels);
}

QFont Look::SmallFont()
{
    return ProductFont(SmallPixels);
}

QFont Look::BoldFont()
{
    QFont font = BodyFont();
    font.setBold(true);
    return font;
}

void Look::PaintRing(QPainter& painter, const QRect& rect, const QColor& color)
{
    constexpr qreal Radius = 3;
    constexpr qreal Half = RingWidth / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, RingWidth));
    painter.drawRoundedRect(QRectF(rect).adjusted(Half, Half, -Half, -Half), Radius, Radius);
    painter.restore();
}

QColor Look::RingColor(const QPalette& palette)
{
    constexpr double Visible = 3.0; // what a line needs to be seen
    const QColor accent = Color(TRole::Accent);
    const bool seen = Contrast(accent, palette.color(QPalette::Window)) >= Visible;
    return seen ? accent : palette.color(QPalette::WindowText);
}
