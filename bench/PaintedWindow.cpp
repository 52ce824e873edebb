#include "PaintedWindow.h"

#include <QEvent>

bool TPaintedWindow::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    // The window's backing store has been painted and handed to the screen.
    if (event->type() == QEvent::UpdateRequest && OnPainted)
        OnPainted();
    return handled;
}
