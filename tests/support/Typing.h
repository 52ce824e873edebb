#pragma once

#include <QString>
#include <QWidget>

/// Real key and mouse events as a user makes them.
namespace Typing {

/// Types a text of any script, one key stroke per character. Control characters and halves of surrogate pairs
/// that belong together come as one stroke.
void Type(QWidget* widget, const QString& text);
/// Presses and releases a key.
void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// The controls that have the focus after each of so many strokes of Tab.
QWidgetList TabStops(qsizetype strokes);
/// Shows a window and waits until it is active, so that focus and shortcuts work.
bool ShowActive(QWidget* window);

} // namespace Typing
