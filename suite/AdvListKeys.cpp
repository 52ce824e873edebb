#include "AdvListEditorPrivate.h"
#include "ControlDispatch.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {

bool IsTextKey(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool plain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    return plain && !event.text().isEmpty() && event.text().front() >= u' ' &&
           event.text().front() != QChar(0x7F);
}

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

void TAdvListEditorPer::TPrivate::BeginStroke(const QKeyEvent& event)
{
    strokeKey = event.key();
    if (event.isAutoRepeat() && held.contains(strokeKey)) {
        stroke = held.value(strokeKey);
    } else {
        stroke = {values.Count(), -1, {}, false};
        held.insert(strokeKey, stroke);
    }
}

void TAdvListEditorPer::TPrivate::KeepStroke()
{
    if (held.contains(strokeKey))
        held.insert(strokeKey, stroke);
}

void TAdvListEditorPer::TPrivate::EndStroke(const QKeyEvent& event)
{
    // A key that was pressed elsewhere has done nothing here.
    if (!event.isAutoRepeat())
        stroke = held.contains(event.key()) ? held.take(event.key()) : TStroke{values.Count(), -1, {}, false};
}

bool TAdvListEditorPer::TPrivate::HandleKey(QKeyEvent* event)
{
    return HandleCompletionKey(*event) || HandleCommand(*event) || HandleMove(event) || HandleErase(event) ||
           HandleText(event);
}

bool TAdvListEditorPer::TPrivate::HandleCompletionKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier) {
        Offer(line->text());
        return true;
    }
    if (event.key() == Qt::Key_Escape && press.DropPlace >= 0) {
        press = {};
        editor->update();
        return true;
    }
    if (!completion || !completion->isVisible())
        return false;
    if (event.key() == Qt::Key_Escape) {
        HideCompletion();
        return true;
    }
    if (IsEnter(event) && completion->Entry() >= 0) {
        Choose(completion->Entry());
        return true;
    }
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && completion->TakeKey(event.key());
}

bool TAdvListEditorPer::TPrivate::HandleCommand(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::SelectAll))
        SelectAll();
    else if (event.matches(QKeySequence::Copy))
        Copy();
    else if (event.matches(QKeySequence::Cut) && event.key() == Qt::Key_Delete)
        // Shift+Delete is a stroke of Delete already: it goes on to erase what is copied here.
        return !Copy();
    else if (event.matches(QKeySequence::Cut))
        Cut();
    else if (event.matches(QKeySequence::Paste))
        Paste(QGuiApplication::clipboard()->text());
    else if (event.key() == Qt::Key_Escape && HasSelection())
        MoveCaret(caret, false);
    else
        // A typed text that waits for its owner's OnKeyUp is not the window's Enter.
        return IsEnter(event) && !line->text().isEmpty();
    return true;
}

// Whether the key has moved the text's caret or its selection.
bool TAdvListEditorPer::TPrivate::MovesInLine(QKeyEvent* event) const
{
    if (line->text().isEmpty())
        return false;
    const int before = line->cursorPosition();
    const QString selected = line->selectedText();
    line->TakeKey(event);
    return line->cursorPosition() != before || line->selectedText() != selected;
}

bool TAdvListEditorPer::TPrivate::HandleMove(QKeyEvent* event)
{
    const bool fromRight = editor->layoutDirection() == Qt::RightToLeft;
    const bool toRow = event->modifiers().testFlag(Qt::ControlModifier);
    const bool selecting = event->modifiers().testFlag(Qt::ShiftModifier);
    int place = caret;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const bool forward = (event->key() == Qt::Key_Left) == fromRight;
        if (HasSelection() && !selecting)
            place = forward ? SelectionEnd() : SelectionStart();
        else if (!HasSelection() && MovesInLine(event))
            return true;
        else
            place += forward ? 1 : -1;
        break;
    }
    case Qt::Key_Home:
    case Qt::Key_End:
        if (!HasSelection() && !toRow && MovesInLine(event))
            return true;
        place = event->key() == Qt::Key_Home ? 0 : values.Count();
        if (toRow)
            line->setCursorPosition(place == 0 ? 0 : static_cast<int>(line->text().size()));
        break;
    default:
        return false;
    }
    MoveCaret(place, selecting);
    return true;
}

bool TAdvListEditorPer::TPrivate::HandleErase(QKeyEvent* event)
{
    const bool back = event->key() == Qt::Key_Backspace;
    if (!back && event->key() != Qt::Key_Delete)
        return false;
    if (!CanChange())
        return true;
    if (HasSelection()) {
        RemoveSelected();
        return true;
    }
    const int edge = back ? 0 : static_cast<int>(line->text().size());
    if (line->hasSelectedText() || line->cursorPosition() != edge) {
        stroke.TookText = true;
        KeepStroke();
        line->TakeKey(event);
        return true;
    }
    // A key that is held to erase a text does not go on into the bubbles.
    if (event->isAutoRepeat() && stroke.TookText)
        return true;
    const int bubble = back ? caret - 1 : caret;
    if (bubble >= 0 && bubble < values.Count())
        Remove(bubble, bubble + 1);
    return true;
}

bool TAdvListEditorPer::TPrivate::HandleText(QKeyEvent* event)
{
    if (!IsTextKey(*event) || !CanChange())
        return line->TakeKey(event);
    if (HasSelection())
        MoveCaret(caret, false);
    if (!separator.isNull() && event->text() == separator && Commit(line->text()))
        return true;
    line->TakeKey(event);
    return true;
}

bool TAdvListEditorPer::TPrivate::LeaveByTab(const QKeyEvent& event)
{
    if (completion && completion->Entry() >= 0) {
        Choose(completion->Entry());
        return true;
    }
    // A copy, because the handler may replace or clear itself.
    const TKeyEvent running = editor->OnKeyUp;
    if (!running || line->text().isEmpty())
        return false;
    EndStroke(event);
    const QPointer<TAdvListEditorPer> alive = editor;
    quint16 key = VirtualKeyOf(event);
    running(editor, key, event.modifiers());
    return !alive || !line->hasFocus();
}

void TAdvListEditorPer::TPrivate::MoveCaret(int place, bool selecting)
{
    const int before = caret;
    const bool selected = HasSelection();
    caret = qBound(0, place, values.Count());
    if (!selecting)
        anchor = caret;
    Invalidate();
    if (selected || HasSelection())
        TellSelection();
    if (caret != before) {
        HideCompletion();
        TellFocus();
    }
}

void TAdvListEditorPer::TPrivate::SelectAll()
{
    line->selectAll();
    MoveCaret(values.Count(), false);
    anchor = 0;
    editor->update();
    TellSelection();
}

void TAdvListEditorPer::TPrivate::Compose(QInputMethodEvent* event)
{
    const QPointer<TAdvListEditorPer> alive = editor;
    const QString text = ControlDispatch::Characters(editor, *editor, event->commitString());
    if (!alive)
        return;
    if (HasSelection() && CanChange())
        MoveCaret(caret, false);
    QInputMethodEvent clean(event->preeditString(), event->attributes());
    clean.setCommitString(text, event->replacementStart(), event->replacementLength());
    line->TakeInputMethod(&clean);
    Invalidate();
    if (!separator.isNull() && text.contains(separator))
        TakeParts(line->text());
}
