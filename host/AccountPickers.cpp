#include "AccountPickers.h"

#include "AccountLevels.h"
#include "AccountPickerDialog.h"

#include <memory>
#include <QApplication>
#include <QPointer>

namespace {

/// The code to begin with; 0 where the text is none.
int CodeOf(const QString& text)
{
    return AccountLevels::CodeOf(text).value_or(0);
}

} // namespace

TAccountPickers::TAccountPickers(TADOConnection& connection, THostSettings& settings)
    : connection_(&connection), settings_(&settings)
{
}

THCSelectedCode TAccountPickers::Pick(const TAccountPicking& picking)
{
    // The window that the dialog stands on may go while it is open, and takes it along.
    auto dialog = std::make_unique<TAccountPickerDialog>(*connection_, *settings_, picking,
                                                         QApplication::activeWindow());
    const QPointer<TAccountPickerDialog> living(dialog.get());
    dialog->Begin();
    dialog->exec();
    if (living == nullptr) {
        static_cast<void>(dialog.release());
        return {};
    }
    return dialog->Picked();
}

THCSelectedCode TAccountPickers::Select_AccountCodes(TSelectGroups groups, const QString& total,
                                                     const QString& assistant, const QString& detail,
                                                     quint8 focusLevel)
{
    TAccountPicking picking;
    picking.Scope.Groups = AccountLevels::GroupsText(groups);
    picking.Begin = {CodeOf(total), CodeOf(assistant), CodeOf(detail)};
    picking.FocusLevel = focusLevel;
    return Pick(picking);
}

int TAccountPickers::Select_AccTotals1(const QString& groups, const QString& code)
{
    TAccountPicking picking;
    picking.Levels = TAccountPicking::TotalsOnly;
    picking.Scope.Groups = groups;
    picking.Begin.Total = CodeOf(code);
    return Pick(picking).Total;
}

int TAccountPickers::Select_AccAssistants1(int total, const QString& code)
{
    TAccountPicking picking;
    picking.Levels = TAccountPicking::AssistantsOnly;
    picking.Scope.OnlyTotal = total;
    picking.Begin = {total, CodeOf(code), 0};
    return Pick(picking).Assistant;
}

int TAccountPickers::Select_AccDetails1(int total, int assistant, const QString& code)
{
    TAccountPicking picking;
    picking.Levels = TAccountPicking::DetailsOnly;
    picking.Scope.OnlyTotal = total;
    picking.Begin = {total, assistant, CodeOf(code)};
    return Pick(picking).Detail;
}
