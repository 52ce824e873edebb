#include "OffscreenMessages.h"

#include <QString>
#include <QtGlobal>

namespace {

QtMessageHandler handlerBefore = nullptr;

void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool sizeHints =
        type == QtWarningMsg && message == QLatin1String("This plugin does not support propagateSizeHints()");
    if (!sizeHints)
        handlerBefore(type, context, message);
}

} // namespace

void HideSizeHintMessage()
{
    if (handlerBefore == nullptr)
        handlerBefore = qInstallMessageHandler(PassOn);
}
