#include "ListKeys.h"

#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"

#include <memory>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool IsTyped(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & commands) != 0 || event.text().isEmpty())
        return false;
    return event.key() == Qt::Key_Backspace || event.text().front().isPrint();
}

bool IsVertical(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Down || event.key() == Qt::Key_Up) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

TListKeys::TListKeys(const QVector<TSmartEdit_TRV*>& edits, TSmartDBGrid_TRV* grid, QObject* parent)
    : QObject(parent), grid_(grid)
{
    for (TSmartEdit_TRV* edit : edits) {
        edits_.append(edit);
        edit->installEventFilter(this);
    }
    grid->installEventFilter(this);
}

TSmartEdit_TRV* TListKeys::CurrentEdit() const
{
    for (const auto& edit : edits_) {
        if (edit != nullptr && !edit->isHidden())
            return edit;
    }
    return nullptr;
}

void TListKeys::FocusEdit() const
{
    TSmartEdit_TRV* edit = CurrentEdit();
    if (edit == nullptr)
        return;
    edit->setFocus(Qt::ShortcutFocusReason);
    edit->deselect();
    edit->end(false);
    if (edit->EditType() != TSmartEdit_TRV::etString && edit->GetValue() == 0)
        edit->selectAll();
}

void TListKeys::FocusGrid() const
{
    if (grid_ != nullptr)
        grid_->setFocus(Qt::ShortcutFocusReason);
}

bool TListKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return watched == grid_ ? GridKey(key) : EditKey(key);
}

bool TListKeys::EditKey(const QKeyEvent& event)
{
    if (!IsVertical(event))
        return false;
    FocusGrid();
    Q_EMIT gridEntered();
    return true;
}

bool TListKeys::GridKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        Q_EMIT rowChosen();
        return true;
    }
    // A space marks the row where rows can be marked.
    const bool marks = event.key() == Qt::Key_Space && grid_->MultiSelect();
    if (marks || !IsTyped(event) || CurrentEdit() == nullptr)
        return false;
    FocusEdit();
    const std::unique_ptr<QKeyEvent> stroke(event.clone());
    QCoreApplication::sendEvent(CurrentEdit(), stroke.get());
    return true;
}
