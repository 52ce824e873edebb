#include "AdvListLine.h"

#include "AdvListEditorPrivate.h"
#include "ControlDispatch.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>

TAdvListLine::TAdvListLine(TAdvListEditorPer* editor) : QLineEdit(editor), editor_(editor)
{
    setFrame(false);
    setAutoFillBackground(false);
    setCursorMoveStyle(Qt::VisualMoveStyle);
    StandAtBeginning();
}

void TAdvListLine::StandAtBeginning()
{
    const Qt::Alignment side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void TAdvListLine::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        StandAtBeginning();
}

bool TAdvListLine::TakeKey(QKeyEvent* event)
{
    event->accept();
    QLineEdit::keyPressEvent(event);
    return event->isAccepted();
}

int TAdvListLine::NeededWidth() const
{
    constexpr int Margins = 8;
    return QFontMetrics(font()).horizontalAdvance(text() + composed_) + Margins;
}

bool TAdvListLine::event(QEvent* event)
{
    // Left to the parent, which is the control that its owner knows.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        event->ignore();
        return false;
    }
    // Screen readers meet the line, and its owner names the editor.
    if (event->type() == QEvent::Polish || event->type() == QEvent::FocusIn)
        setAccessibleName(editor_->accessibleName());
    return QLineEdit::event(event);
}

void TAdvListLine::TakeInputMethod(QInputMethodEvent* event)
{
    composed_ = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

void TAdvListLine::inputMethodEvent(QInputMethodEvent* event)
{
    editor_->d->Compose(event);
}

void TAdvListLine::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // The caret comes to a text to go on with it, not to replace it.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        deselect();
    editor_->update();
    ControlDispatch::FocusIn(editor_, *editor_, event);
}

void TAdvListLine::focusOutEvent(QFocusEvent* event)
{
    const QPointer<TAdvListLine> alive = this;
    QLineEdit::focusOutEvent(event);
    if (!alive)
        return;
    TAdvListEditorPer::TPrivate& d = *editor_->d;
    d.HideCompletion();
    if (ControlDispatch::MovesBetweenControls(event)) {
        d.held.clear();
        d.MoveCaret(d.caret, false);
    }
    editor_->update();
    ControlDispatch::FocusOut(editor_, *editor_, event);
}

void TAdvListLine::mousePressEvent(QMouseEvent* event)
{
    if (!editor_->d->TellPress(*event))
        return;
    if (event->button() == Qt::LeftButton)
        editor_->d->MoveCaret(editor_->d->caret, event->modifiers().testFlag(Qt::ShiftModifier));
    QLineEdit::mousePressEvent(event);
}

void TAdvListLine::mouseReleaseEvent(QMouseEvent* event)
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    editor_->d->Paste(clipboard->text(QClipboard::Selection));
}

void TAdvListLine::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void TAdvListLine::contextMenuEvent(QContextMenuEvent* event)
{
    event->ignore();
}

void TAdvListLine::dropEvent(QDropEvent* event)
{
    QDragLeaveEvent leave;
    QLineEdit::dragLeaveEvent(&leave);
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    // Always a copy: where the text is refused it must not vanish from where it came.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    editor_->d->Paste(event->mimeData()->text());
}
