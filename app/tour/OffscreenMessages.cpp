#include "OffscreenMessages.h"

#include <QString>
#include <QtGlobal>

namespace {

QtMessageHandler handlerBefore = nullptr;

// What a window that nobody sees cannot do, in the platform's own words.
bool IsOfNoMatterOffscreen(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtWarningMsg || !IsOfNoMatterOffscreen(message))
        handlerBefore(type, context, message);
}

} // namespace

void HideOffscreenMessages()
{
    if (handlerBefore == nullptr)
        handlerBefore = qInstallMessageHandler(PassOn);
}
