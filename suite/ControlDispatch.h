#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

class QEvent;
class QFocusEvent;
class QKeyEvent;

/// Raises a control's TControlEvents from its event overrides, so that each override is one line:
///
///     bool T::event(QEvent* e) { return ControlDispatch::Event(this, *this, e) || QCheckBox::event(e); }
///     void T::keyPressEvent(QKeyEvent* e)
///     {
///         ControlDispatch::KeyPress(this, *this, e, [this](QKeyEvent* own) { QCheckBox::keyPressEvent(own);
///         });
///     }
///     void T::keyReleaseEvent(QKeyEvent* e)
///     {
///         ControlDispatch::KeyRelease(this, *this, e, [this](QKeyEvent* own) {
///         QCheckBox::keyReleaseEvent(own); });
///     }
///     void T::focusInEvent(QFocusEvent* e) { QCheckBox::focusInEvent(e); ControlDispatch::FocusIn(this,
///     *this, e); } void T::focusOutEvent(QFocusEvent* e) { QCheckBox::focusOutEvent(e);
///     ControlDispatch::FocusOut(this, *this, e); }
///
/// A handler may destroy the control; nothing of it is touched afterwards.
namespace ControlDispatch {

using TOwnHandling = std::function<void(QKeyEvent* event)>;

/// OnKeyDown, then OnKeyPress for each character, then the control's own handling with the characters that
/// are left.
SUITE_EXPORT void KeyPress(QWidget* control, TControlEvents& events, QKeyEvent* event,
                           const TOwnHandling& own);
/// OnKeyPress for each character of a text that an input method gives; what is left of it.
SUITE_EXPORT QString Characters(QWidget* control, const TControlEvents& events, const QString& text);
/// OnKeyUp, then the control's own handling; a repeated key counts as still held.
SUITE_EXPORT void KeyRelease(QWidget* control, TControlEvents& events, QKeyEvent* event,
                             const TOwnHandling& own);
/// Raises the key events of Tab, which a widget handles before its keyPressEvent. True where the key was
/// swallowed.
SUITE_EXPORT bool Event(QWidget* control, TControlEvents& events, QEvent* event);
/// OnEnter, unless the focus was here before a window switch, a popup or a menu took it away for a while.
SUITE_EXPORT void FocusIn(QWidget* control, TControlEvents& events, const QFocusEvent* event);
/// OnExit, unless the focus only goes to another window, a popup or a menu.
SUITE_EXPORT void FocusOut(QWidget* control, TControlEvents& events, const QFocusEvent* event);
/// Whether a focus event moves the focus between controls.
SUITE_EXPORT bool MovesBetweenControls(const QFocusEvent* event);

} // namespace ControlDispatch
