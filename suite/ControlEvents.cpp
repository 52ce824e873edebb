#include "ControlEvents.h"

#include "PersianText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

// What a key that only carries characters is called: it has no place of its own on the keyboard, but a
// handler that lets a few keys pass must see it.
constexpr quint16 CharacterPacket = 231;

struct TKeyCode
{
    int key;
    quint16 code;
};

constexpr TKeyCode NamedKeys[] = {
    {Qt::Key_Backspace, VirtualKey::Back},
    {Qt::Key_Tab, VirtualKey::Tab},
    {Qt::Key_Backtab, VirtualKey::Tab},
    {Qt::Key_Return, VirtualKey::Enter},
    {Qt::Key_Enter, VirtualKey::Enter},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, VirtualKey::Escape},
    {Qt::Key_Space, VirtualKey::Space},
    {Qt::Key_PageUp, VirtualKey::PageUp},
    {Qt::Key_PageDown, VirtualKey::PageDown},
    {Qt::Key_End, VirtualKey::End},
    {Qt::Key_Home, VirtualKey::Home},
    {Qt::Key_Left, VirtualKey::Left},
    {Qt::Key_Up, VirtualKey::Up},
    {Qt::Key_Right, VirtualKey::Right},
    {Qt::Key_Down, VirtualKey::Down},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, VirtualKey::Insert},
    {Qt::Key_Delete, VirtualKey::Delete},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

// The keys of the main row's punctuation, each by the character it gives without and with Shift.
struct TSignKey
{
    char16_t plain;
    char16_t shifted;
    quint16 code;
};

constexpr TSignKey SignKeys[] = {
    {u'1', u'!', 49},   {u'2', u'@', 50},  {u'3', u'#', 51},  {u'4', u'$', 52},   {u'5', u'%', 53},
    {u'6', u'^', 54},   {u'7', u'&', 55},  {u'8', u'*', 56},  {u'9', u'(', 57},   {u'0', u')', 48},
    {u';', u':', 186},  {u'=', u'+', 187}, {u',', u'<', 188}, {u'-', u'_', 189},  {u'.', u'>', 190},
    {u'/', u'?', 191},  {u'`', u'~', 192}, {u'[', u'{', 219}, {u'\\', u'|', 220}, {u']', u'}', 221},
    {u'\'', u'"', 222},
};

quint16 NamedKeyOf(int key)
{
    for (const TKeyCode& named : NamedKeys) {
        if (named.key == key)
            return named.code;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return static_cast<quint16>(VirtualKey::F1 + (key - Qt::Key_F1));
    return 0;
}

quint16 SignKeyOf(int key)
{
    for (const TSignKey& sign : SignKeys) {
        if (sign.plain == key || sign.shifted == key)
            return sign.code;
    }
    return 0;
}

int DigitOf(int key)
{
    return key > 0 && key <= 0xFFFF ? PersianText::DigitValue(QChar(key)) : -1;
}

quint16 KeypadKeyOf(int key)
{
    switch (key) {
    case Qt::Key_Asterisk:
        return VirtualKey::Multiply;
    case Qt::Key_Plus:
        return VirtualKey::Add;
    case Qt::Key_Minus:
        return VirtualKey::Subtract;
    case Qt::Key_Period:
    case Qt::Key_Comma:
    case 0x066B: // the keypad of a Persian layout
        return VirtualKey::Decimal;
    case Qt::Key_Slash:
        return VirtualKey::Divide;
    default:
        const int digit = DigitOf(key);
        return digit < 0 ? 0 : static_cast<quint16>(VirtualKey::Numpad0 + digit);
    }
}

quint16 MainKeyOf(int key)
{
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return static_cast<quint16>(VirtualKey::KeyA + (key - Qt::Key_A));
    if (const int digit = DigitOf(key); digit >= 0)
        return static_cast<quint16>(VirtualKey::Digit0 + digit);
    return SignKeyOf(key);
}

void PostTab(QEvent::Type type)
{
    if (QWidget* widget = QApplication::focusWidget()) {
        const QString text = type == QEvent::KeyPress ? QStringLiteral("\t") : QString();
        QCoreApplication::postEvent(widget, new QKeyEvent(type, Qt::Key_Tab, Qt::NoModifier, text));
    }
}

} // namespace

quint16 VirtualKeyOf(const QKeyEvent& event)
{
    const int key = event.key();
    if (event.modifiers() & Qt::KeypadModifier) {
        if (const quint16 code = KeypadKeyOf(key))
            return code;
    }
    if (const quint16 code = NamedKeyOf(key))
        return code;
    if (const quint16 code = MainKeyOf(key))
        return code;
    return CharacterOf(event).isNull() ? 0 : CharacterPacket;
}

QChar CharacterOf(const QKeyEvent& event)
{
    switch (const int key = event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QChar(13);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return QChar(9);
    case Qt::Key_Backspace:
        return QChar(8);
    case Qt::Key_Escape:
        return QChar(27);
    case Qt::Key_Delete:
        return {};
    default:
        const Qt::KeyboardModifiers held =
            event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (held == Qt::ControlModifier)
            return key >= Qt::Key_A && key <= Qt::Key_Z ? QChar(key - Qt::Key_A + 1) : QChar();
        if (held == Qt::AltModifier || held & Qt::MetaModifier || event.text().isEmpty())
            return {};
        return event.text().front();
    }
}

void PostTabStroke()
{
    PostTabDown();
    // The press moves the focus, and the key is released where the focus has gone.
    QMetaObject::invokeMethod(
        qApp, [] { PostTab(QEvent::KeyRelease); }, Qt::QueuedConnection);
}

void PostTabDown()
{
    PostTab(QEvent::KeyPress);
}

bool CanFocus(const QWidget* widget)
{
    return widget && widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}
