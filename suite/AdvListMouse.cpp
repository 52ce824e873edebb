#include "AdvListEditorPrivate.h"

#include <QApplication>
#include <QMouseEvent>

// Whether the editor is still there after its owner has heard of the press.
bool TAdvListEditorPer::TPrivate::TellPress(const QMouseEvent& event) const
{
    // A copy, because the handler may replace or clear itself, or destroy the editor.
    const TMouseDownEvent running = editor->OnMouseDown;
    if (!running)
        return true;
    const QPointer<TAdvListEditorPer> alive = editor;
    const QPoint point = editor->mapFromGlobal(event.globalPosition().toPoint());
    running(editor, event.button(), event.modifiers(), point.x(), point.y());
    return alive;
}

void TAdvListEditorPer::TPrivate::Press(const QMouseEvent& event)
{
    const QPoint point = event.position().toPoint();
    const QPointer<TAdvListEditorPer> alive = editor;
    bool onMark = false;
    BubbleAt(point, &onMark);
    onMark = onMark && event.button() == Qt::LeftButton && CanChange();
    if (!onMark && !TellPress(event))
        return;
    if (event.button() != Qt::LeftButton)
        return;
    editor->setFocus(Qt::MouseFocusReason);
    if (!alive)
        return;
    // Looked for again, because the handlers may have changed the items.
    press = {BubbleAt(point), onMark, !onMark, point, -1};
    if (onMark)
        return;
    if (press.Bubble >= 0)
        PressBubble(press.Bubble, event.modifiers().testFlag(Qt::ShiftModifier));
    else
        MoveCaret(layout.PlaceAt(Reading(point)), event.modifiers().testFlag(Qt::ShiftModifier));
}

void TAdvListEditorPer::TPrivate::PressBubble(int bubble, bool extends)
{
    line->deselect();
    if (!extends) {
        MoveCaret(bubble + 1, false);
        anchor = bubble;
    } else if (bubble >= anchor) {
        MoveCaret(bubble + 1, true);
    } else {
        MoveCaret(bubble, true);
    }
    editor->update();
    TellSelection();
}

void TAdvListEditorPer::TPrivate::Drag(const QPoint& point)
{
    if (!press.Selects)
        return;
    const bool drags = allowReorder && CanChange() && press.Bubble >= 0;
    const bool isFar = (point - press.Start).manhattanLength() >= QApplication::startDragDistance();
    Arrange();
    const int place = layout.PlaceAt(Reading(point));
    if (drags) {
        if (isFar || press.DropPlace >= 0) {
            press.DropPlace = place;
            editor->update();
        }
    } else if (isFar && place != caret) {
        if (press.Bubble >= 0)
            anchor = place <= press.Bubble ? press.Bubble + 1 : press.Bubble;
        MoveCaret(place, true);
    }
}

void TAdvListEditorPer::TPrivate::Release(const QMouseEvent& event)
{
    const TPress ended = press;
    press = {};
    if (event.button() != Qt::LeftButton || ended.Bubble < 0 || !CanChange())
        return;
    if (ended.OnMark) {
        bool onMark = false;
        if (BubbleAt(event.position().toPoint(), &onMark) == ended.Bubble && onMark)
            RemoveAsDelete([this, bubble = ended.Bubble] { Remove(bubble, bubble + 1); });
    } else if (ended.DropPlace >= 0) {
        const int to = ended.DropPlace > ended.Bubble ? ended.DropPlace - 1 : ended.DropPlace;
        MoveCaret(to + 1, false);
        values.Move(ended.Bubble, to);
    }
}

void TAdvListEditorPer::TPrivate::Hover(const QPoint& point)
{
    bool onMark = false;
    const int bubble = BubbleAt(point, &onMark);
    const int hot = onMark && CanChange() ? bubble : -1;
    editor->setCursor(hot >= 0 || bubble >= 0 ? Qt::ArrowCursor : Qt::IBeamCursor);
    if (hot == hotMark)
        return;
    hotMark = hot;
    editor->update();
}
