#pragma once

#include "NotifyEvent.h"
#include "SuiteExport.h"

#include <functional>
#include <QChar>
#include <Qt>

class QKeyEvent;
class QWidget;

/// Virtual key codes of OnKeyDown and OnKeyUp.
namespace VirtualKey {
enum : quint16 {
    Back = 8,
    Tab = 9,
    Enter = 13,
    Escape = 27,
    Space = 32,
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40,
    Insert = 45,
    Delete = 46,
    Digit0 = 48,
    Digit9 = 57,
    KeyA = 65,
    Numpad0 = 96,
    Numpad9 = 105,
    Multiply = 106,
    Add = 107,
    Subtract = 109,
    Decimal = 110,
    Divide = 111,
    F1 = 112,
};
}

/// `Key` is a virtual key code; writing 0 swallows the key.
using TKeyEvent = std::function<void(QObject* Sender, quint16& Key, Qt::KeyboardModifiers Shift)>;
/// `Key` is the character; writing the null character swallows it. Enter is 13, Backspace 8, Tab 9,
/// Escape 27.
using TKeyPressEvent = std::function<void(QObject* Sender, QChar& Key)>;

/// The handlers that every focusable control of the suite has. OnEnter and OnExit follow the focus from
/// control to control: a window that is switched, a popup or a menu that opens raises neither.
struct SUITE_EXPORT TControlEvents
{
    TNotifyEvent OnEnter;      ///< the control has got the focus
    TNotifyEvent OnExit;       ///< the control has lost the focus to another one
    TKeyEvent OnKeyDown;       ///< before the control handles the key
    TKeyEvent OnKeyUp;         ///< after the control has handled the key
    TKeyPressEvent OnKeyPress; ///< between them, for keys that make a character
};

/// Virtual key code of a Qt key event, keypad keys apart from the main row; 0 where there is none.
SUITE_EXPORT quint16 VirtualKeyOf(const QKeyEvent& event);
/// Character that OnKeyPress gets for the event; null where there is none.
SUITE_EXPORT QChar CharacterOf(const QKeyEvent& event);
/// Posts a press and a release of Tab to the widget that has the focus.
SUITE_EXPORT void PostTabStroke();
/// Posts only the press of Tab to the widget that has the focus.
SUITE_EXPORT void PostTabDown();
/// Visible and enabled up to the window, and of a kind that takes the focus.
SUITE_EXPORT bool CanFocus(const QWidget* widget);
