#include "AdvListLine.h"

#include "AdvListEditorPrivate.h"
#include "ControlDispatch.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPointer>

TAdvListLine::TAdvListLine(TAdvListEditorPer* editor) : QLineEdit(editor), editor_(editor)
{
    setFrame(false);
    setAutoFillBackground(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setCursorMoveStyle(Qt::VisualMoveStyle);
    QPalette clear = palette();
    clear.setBrush(QPalette::Base, Qt::transparent);
    setPalette(clear);
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
    return QLineEdit::event(event);
}

void TAdvListLine::inputMethodEvent(QInputMethodEvent* event)
{
    composed_ = event->preeditString();
    editor_->inputMethodEvent(event);
}

void TAdvListLine::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    editor_->update();
    ControlDispatch::FocusIn(editor_, *editor_, event);
}

void TAdvListLine::focusOutEvent(QFocusEvent* event)
{
    const QPointer<TAdvListEditorPer> alive = editor_;
    QLineEdit::focusOutEvent(event);
    if (!alive)
        return;
    editor_->update();
    ControlDispatch::FocusOut(editor_, *editor_, event);
}

void TAdvListLine::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
}

void TAdvListLine::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
}

void TAdvListLine::contextMenuEvent(QContextMenuEvent* event)
{
    event->ignore();
}
