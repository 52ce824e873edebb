#include "TabControl.h"

#include "Look.h"

#include <QPainter>
#include <QScopedValueRollback>

TTabControl::TTabControl(QWidget* parent) : QTabBar(parent)
{
    setExpanding(false);
    setDrawBase(true);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    connect(this, &QTabBar::currentChanged, this, [this] {
        // A copy, because the handler may replace itself or destroy the tabs.
        if (const TNotifyEvent running = writing_ ? TNotifyEvent() : OnChange)
            running(this);
    });
}

TTabControl::~TTabControl() = default;

void TTabControl::AddTab(const QString& caption)
{
    const QScopedValueRollback<bool> writing(writing_, true);
    addTab(caption);
}

void TTabControl::Clear()
{
    const QScopedValueRollback<bool> writing(writing_, true);
    while (count() > 0)
        removeTab(count() - 1);
}

void TTabControl::SetTabIndex(int index)
{
    const QScopedValueRollback<bool> writing(writing_, true);
    setCurrentIndex(index);
}

void TTabControl::SetTabHeight(int height)
{
    tabHeight_ = qMax(0, height);
    // The tabs are measured again when the icon's size is set.
    setIconSize(iconSize());
    updateGeometry();
}

QSize TTabControl::tabSizeHint(int index) const
{
    const QSize size = QTabBar::tabSizeHint(index);
    return tabHeight_ > 0 ? QSize(size.width(), tabHeight_) : size;
}

QSize TTabControl::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

// In the dark palette the chosen tab hardly differs from the others without this line.
void TTabControl::paintEvent(QPaintEvent* event)
{
    QTabBar::paintEvent(event);
    if (currentIndex() < 0 || !isEnabled())
        return;
    constexpr int lineHeight = 2;
    QRect line = tabRect(currentIndex()).adjusted(1, 0, -1, 0);
    line.setHeight(lineHeight);
    QPainter(this).fillRect(line, Look::Color(Look::TRole::Accent));
}
