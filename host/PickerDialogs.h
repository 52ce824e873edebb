#pragma once

#include "AccountPickers.h"
#include "EntityPickers.h"
#include "HostExport.h"
#include "HostPickers.h"

/// The selection dialogs: those of accounts are TAccountPickers, those of entities TEntityPickers, that
/// of tags is TTagDialog.
class HOST_EXPORT THostPickers : public IPickers
{
public:
    /// Both must outlive the dialogs.
    THostPickers(TADOConnection& connection, THostSettings& settings);

    int Select_Entity(TSoftwarePart part, const QString& argument, bool all) override;
    int Select_GroupList(TSoftwarePart part, const QString& argument) override;
    THCSelectedCode Select_AccountCodes(TSelectGroups groups, const QString& total, const QString& assistant,
                                        const QString& detail, quint8 focusLevel) override;
    int Select_AccTotals1(const QString& groups, const QString& code) override;
    int Select_AccAssistants1(int total, const QString& code) override;
    int Select_AccDetails1(int total, int assistant, const QString& code) override;
    /// Whatever the mode, a tag is created; there is no other use of the dialog.
    int Call_insert_tags(const QString& name, quint8 mode) override;

private:
    TADOConnection* connection_;
    const THostSettings* settings_;
    TAccountPickers accounts_;
    TEntityPickers entities_;
};
