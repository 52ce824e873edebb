#include "HostApplication.h"
#include "Look.h"
#include "StartMessages.h"
#include "Workbench.h"

#include <algorithm>

namespace {

// Without a screen the toolkit would abort; the tour and the help do without one.
bool IsWithoutScreen()
{
#ifdef Q_OS_UNIX
    return !qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
           !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

bool NeedsScreen(const QStringList& arguments)
{
    return std::none_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        return argument.startsWith(QLatin1String("--tour")) || argument == QLatin1String("--help") ||
               argument == QLatin1String("-h");
    });
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const bool withoutScreen = IsWithoutScreen();
    if (withoutScreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    THostApplication application(argumentCount, arguments);
    QCoreApplication::setOrganizationName(QStringLiteral("BaseFrame"));
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("میز کار حسابداری"));
    Look::Install(application);
    const QStringList options = QCoreApplication::arguments().mid(1);
    if (withoutScreen && NeedsScreen(options)) {
        StartMessages::PrintError(QStringLiteral(
            "نمایشگری پیدا نشد. با گزینهٔ --tour DIR نمایش خودکار بی‌نمایشگر اجرا می‌شود."));
        return ExitCode::CannotOpen;
    }
    return TWorkbench(application).Run(options);
}
