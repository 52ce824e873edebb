#include "MenuItem.h"

TMenuItem::TMenuItem(const QString& caption, QObject* parent) : QAction(caption, parent)
{
    connect(this, &QAction::triggered, this, [this] {
        // A copy, because the handler may replace itself or destroy the item.
        if (const TNotifyEvent running = OnClick)
            running(this);
    });
}

void TMenuItem::Click()
{
    trigger();
}
