#include "Frame.h"

#include "HostServices.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

QEvent::Type LoadEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

QWidget* OwnerWithHost(QWidget* owner)
{
    Host();
    return owner;
}

} // namespace

TFrame::TFrame(QWidget* owner) : QWidget(OwnerWithHost(owner))
{
    setLayoutDirection(Qt::RightToLeft);
}

TFrame::~TFrame() = default;

void TFrame::Loaded()
{
}

bool TFrame::Showing() const
{
    return isVisible();
}

void TFrame::FormReady()
{
    formIsReady_ = true;
    QCoreApplication::postEvent(this, new QEvent(LoadEvent()));
}

bool TFrame::event(QEvent* event)
{
    const bool loads = event->type() == LoadEvent();
    if ((loads || event->type() == QEvent::Polish || event->type() == QEvent::Show) && formIsReady_) {
        formIsReady_ = false;
        Loaded();
    }
    return loads || QWidget::event(event);
}
