#include "EntityPickers.h"

#include "ADOConnection.h"
#include "EntityPicker.h"
#include "HostApplication.h"

#include <QPointer>

namespace {

QWidget* WindowBelow()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

// An application without a handler of its own shows the error where the exception ends.
bool StartOrReport(TEntityPicker& picker)
{
    auto* application = qobject_cast<THostApplication*>(qApp);
    if (application == nullptr) {
        picker.StartReading();
        return true;
    }
    try {
        picker.StartReading();
        return true;
    } catch (const EADOError&) {
        application->Report(THostApplication::Describe(std::current_exception()));
    }
    return false;
}

} // namespace

TEntityPickers::TEntityPickers(TADOConnection& connection, THostSettings& settings)
    : connection_(&connection), settings_(&settings)
{
}

int TEntityPickers::Select_Entity(TSoftwarePart part, const QString& argument, bool all)
{
    const TEntityChoice choice{&EntityLists::Of(part), TEntityArgument::Of(argument), all};
    // Not on the stack: the window below may be destroyed while the dialog is open, and the dialog with it.
    const QPointer<TEntityPicker> picker = new TEntityPicker(choice, *connection_, *settings_, WindowBelow());
    const auto destroy = qScopeGuard([&picker] { delete picker; });
    if (!StartOrReport(*picker))
        return 0;
    picker->exec();
    return picker ? picker->Code() : 0;
}

int TEntityPickers::Select_GroupList(TSoftwarePart part, const QString& argument)
{
    return Select_Entity(part, argument, false);
}
