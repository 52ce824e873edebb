#include "PickerDialogs.h"

#include "HostSettingsFile.h"
#include "TagDialog.h"

#include <QApplication>

THostPickers::THostPickers(TADOConnection& connection, THostSettings& settings)
    : connection_(&connection), settings_(&settings), accounts_(connection, settings),
      entities_(connection, settings)
{
}

int THostPickers::Select_Entity(TSoftwarePart part, const QString& argument, bool all)
{
    return entities_.Select_Entity(part, argument, all);
}

int THostPickers::Select_GroupList(TSoftwarePart part, const QString& argument)
{
    return entities_.Select_GroupList(part, argument);
}

THCSelectedCode THostPickers::Select_AccountCodes(TSelectGroups groups, const QString& total,
                                                  const QString& assistant, const QString& detail,
                                                  quint8 focusLevel)
{
    return accounts_.Select_AccountCodes(groups, total, assistant, detail, focusLevel);
}

int THostPickers::Select_AccTotals1(const QString& groups, const QString& code)
{
    return accounts_.Select_AccTotals1(groups, code);
}

int THostPickers::Select_AccAssistants1(int total, const QString& code)
{
    return accounts_.Select_AccAssistants1(total, code);
}

int THostPickers::Select_AccDetails1(int total, int assistant, const QString& code)
{
    return accounts_.Select_AccDetails1(total, assistant, code);
}

int THostPickers::Call_insert_tags(const QString& name, quint8 /*mode*/)
{
    TTagDefinition definition(*connection_, settings_->TagLimit());
    if (!definition.HasRoom())
        return TTagDefinition::LimitReached;
    TTagDialog dialog(definition, name, QApplication::activeWindow());
    return dialog.Define();
}
