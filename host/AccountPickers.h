#pragma once

#include "AccountTypes.h"
#include "HostExport.h"

#include <QString>

class TADOConnection;
class THostSettings;
struct TAccountPicking;

/// The pickers of the chart of accounts: what THostPickers answers for accounts. Each opens a modal dialog
/// over the active window; 0 (a total of 0) means that the user cancelled. Texts that are no codes begin
/// where an empty text does. Detail accounts that are switched off are not offered.
class HOST_EXPORT TAccountPickers
{
public:
    /// Both must outlive the pickers.
    TAccountPickers(TADOConnection& connection, THostSettings& settings);

    /// As IPickers says it, the three below too.
    THCSelectedCode Select_AccountCodes(TSelectGroups groups, const QString& total, const QString& assistant,
                                        const QString& detail, quint8 focusLevel);
    /// Throws EADOError(WrongState) where `groups` holds anything else than numbers between commas.
    int Select_AccTotals1(const QString& groups, const QString& code);
    int Select_AccAssistants1(int total, const QString& code);
    /// Of a total account whose details are unique codes it answers the unique code.
    int Select_AccDetails1(int total, int assistant, const QString& code);

private:
    THCSelectedCode Pick(const TAccountPicking& picking);

    TADOConnection* connection_;
    THostSettings* settings_;
};
