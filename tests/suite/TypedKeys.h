#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

/// Real key events with the text that a keyboard of any layout gives; QTest's own clicks know Latin letters
/// only.
namespace TypedKeys {

inline void Stroke(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(widget, &release);
}

/// Each code point as one stroke: Backspace for '<', Delete for '>', and the left and right arrows for '{'
/// and '}'.
inline void Script(QWidget* widget, const QString& script)
{
    for (const QChar character : script) {
        switch (character.unicode()) {
        case u'<':
            Stroke(widget, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
            break;
        case u'>':
            Stroke(widget, Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
            break;
        case u'{':
            Stroke(widget, Qt::Key_Left);
            break;
        case u'}':
            Stroke(widget, Qt::Key_Right);
            break;
        default:
            Stroke(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
        }
    }
}

/// Every character of the text as one stroke, whatever it is.
inline void Text(QWidget* widget, const QString& text)
{
    for (const QChar character : text)
        Stroke(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

} // namespace TypedKeys
