#include "Typing.h"

#include <QApplication>
#include <QTest>

namespace {

int KeyOf(const QString& character)
{
    const char16_t unit = character.at(0).toUpper().unicode();
    return unit >= u' ' && unit <= u'~' ? unit : static_cast<int>(Qt::Key_unknown);
}

} // namespace

void Typing::Type(QWidget* widget, const QString& text)
{
    for (qsizetype position = 0; position < text.size();) {
        const bool isPair = text.at(position).isHighSurrogate() && position + 1 < text.size() &&
                            text.at(position + 1).isLowSurrogate();
        const QString character = text.mid(position, isPair ? 2 : 1);
        position += character.size();
        QTest::sendKeyEvent(QTest::Click, widget, static_cast<Qt::Key>(KeyOf(character)), character,
                            Qt::NoModifier);
    }
}

void Typing::Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(widget, key, modifiers);
}

QWidgetList Typing::TabStops(qsizetype strokes)
{
    QWidgetList stops;
    for (qsizetype stroke = 0; stroke < strokes; ++stroke) {
        Press(QApplication::focusWidget(), Qt::Key_Tab);
        stops.append(QApplication::focusWidget());
    }
    return stops;
}

bool Typing::ShowActive(QWidget* window)
{
    window->show();
    window->activateWindow();
    QApplication::setActiveWindow(window);
    return QTest::qWaitForWindowActive(window);
}
