#include "EnterChain.h"

#include "ControlEvents.h"

#include <QKeyEvent>
#include <QLineEdit>

TEnterChain::TEnterChain(const QVector<QWidget*>& controls, QObject* parent) : QObject(parent)
{
    for (QWidget* control : controls) {
        controls_.append(control);
        control->installEventFilter(this);
    }
}

bool TEnterChain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isEnter || (key.modifiers() & ~Qt::KeypadModifier) != 0)
        return false;
    Advance(controls_.indexOf(static_cast<QWidget*>(watched)));
    return true;
}

void TEnterChain::Advance(qsizetype place)
{
    for (qsizetype next = place + 1; next < controls_.size(); ++next) {
        QWidget* control = controls_.at(next);
        if (!CanFocus(control) || (Skips && Skips(control)))
            continue;
        control->setFocus(Qt::TabFocusReason);
        return;
    }
    Q_EMIT finished();
}
