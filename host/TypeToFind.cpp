#include "TypeToFind.h"

#include "SmartEdit_TRV.h"

#include <memory>
#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool MovesRows(const QKeyEvent& event)
{
    const int key = event.key();
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
           (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp);
}

bool IsTyped(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste))
        return true;
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (event.key() == Qt::Key_Backspace)
        return (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) == 0;
    if ((event.modifiers() & commands) != 0 || event.text().isEmpty())
        return false;
    constexpr QChar halfSpace(0x200C);
    constexpr QChar joiner(0x200D);
    const QChar typed = event.text().front();
    return typed.isPrint() || typed.isSurrogate() || typed == halfSpace || typed == joiner;
}

void Forward(const QKeyEvent& event, QObject* receiver)
{
    const std::unique_ptr<QKeyEvent> stroke(event.clone());
    QCoreApplication::sendEvent(receiver, stroke.get());
}

} // namespace

TTypeToFind::TTypeToFind(TSmartEdit_TRV* edit, QAbstractItemView* list, QObject* parent)
    : QObject(parent), edit_(edit), list_(list)
{
    edit->installEventFilter(this);
    list->installEventFilter(this);
}

bool TTypeToFind::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || edit_ == nullptr || list_ == nullptr)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsEnter(key)) {
        Q_EMIT chosen();
        return true;
    }
    return watched == list_ ? ListKey(key) : EditKey(key);
}

bool TTypeToFind::EditKey(const QKeyEvent& event)
{
    if (!MovesRows(event))
        return false;
    list_->setFocus(Qt::OtherFocusReason);
    Forward(event, list_);
    return true;
}

bool TTypeToFind::ListKey(const QKeyEvent& event)
{
    if (!IsTyped(event))
        return false;
    edit_->end(false);
    Forward(event, edit_);
    return true;
}
