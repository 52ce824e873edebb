#include "AdvListEditorPrivate.h"

#include <QKeyEvent>

void TAdvListEditorPer::TPrivate::BeginStroke(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return;
    strokeKey = event.key();
    stroke = {values.Count(), -1, {}};
    held.insert(strokeKey, stroke);
}

void TAdvListEditorPer::TPrivate::EndStroke(const QKeyEvent& event)
{
    if (!event.isAutoRepeat() && held.contains(event.key()))
        stroke = held.take(event.key());
}

void TAdvListEditorPer::TPrivate::MoveCaret(int place, bool selecting)
{
    caret = qBound(0, place, values.Count());
    if (!selecting)
        anchor = caret;
    Invalidate();
}

void TAdvListEditorPer::TPrivate::Remove(int first, int last)
{
    const TAdvListValueItem removed = values[first];
    if (stroke.RemovedIndex < 0 || first < stroke.RemovedIndex) {
        stroke.RemovedIndex = first;
        stroke.RemovedItem = removed.DisplayText + u',' + removed.Value;
        if (held.contains(strokeKey))
            held.insert(strokeKey, stroke);
    }
    values.DeleteRange(first, last);
    MoveCaret(first, false);
}

bool TAdvListEditorPer::TPrivate::HandleKey(QKeyEvent* event)
{
    const bool atStart = line->cursorPosition() == 0 && !line->hasSelectedText();
    const bool atEnd = line->cursorPosition() == line->text().size() && !line->hasSelectedText();
    if (event->key() == Qt::Key_Backspace && atStart) {
        if (CanChange() && caret > 0)
            Remove(caret - 1, caret);
        return true;
    }
    if (event->key() == Qt::Key_Delete && atEnd) {
        if (CanChange() && caret < values.Count())
            Remove(caret, caret + 1);
        return true;
    }
    const bool forward =
        event->key() == (editor->layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right);
    const bool back =
        event->key() == (editor->layoutDirection() == Qt::RightToLeft ? Qt::Key_Right : Qt::Key_Left);
    if ((forward && atEnd) || (back && atStart)) {
        MoveCaret(caret + (forward ? 1 : -1), false);
        return true;
    }
    return false;
}
