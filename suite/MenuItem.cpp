#include "MenuItem.h"

#include "PersianText.h"

#include <algorithm>

namespace {

/// The text of an action that shows the caption as it stands, on one line. A name that begins in Latin
/// letters keeps its signs at its ends.
QString ShownAsItStands(const QString& caption)
{
    QString line = caption;
    std::replace_if(
        line.begin(), line.end(), [](QChar sign) { return sign.category() == QChar::Other_Control; }, u' ');
    line.replace(u'&', QLatin1String("&&"));
    return line.isRightToLeft() ? line : PersianText::Isolated(line);
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
