#include "StartMessages.h"

#include "MessageDialog.h"

#include <cstdio>
#include <QGuiApplication>

namespace StartMessages {

void PrintError(const QString& message, const QString& details)
{
    std::fprintf(stderr, "workbench: %s\n", message.toUtf8().constData());
    if (!details.isEmpty())
        std::fprintf(stderr, "%s\n", details.toUtf8().constData());
}

bool HasDisplay()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

void Tell(const QString& message, const QString& details)
{
    PrintError(message, details);
    if (!HasDisplay())
        return;
    TMessageDialog box(TMessageDialog::TKind::Error, message, {TMessageDialog::OkButton()}, nullptr);
    box.SetDetails(details);
    box.Ask();
}

} // namespace StartMessages
