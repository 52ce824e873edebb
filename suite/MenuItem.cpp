#include "MenuItem.h"

#include "PersianText.h"

namespace {

/// The text of an action that shows the caption as it stands, on one line.
QString ShownAsItStands(const QString& caption)
{
    return PersianText::SingleLine(caption).replace(u'&', QLatin1String("&&"));
}

} // namespace

TMenuItem::TMenuItem(const QString& caption, QObject* parent, THotKeys hotKeys)
    : QAction(hotKeys == THotKeys::Manual ? ShownAsItStands(caption) : caption, parent), caption_(caption)
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
