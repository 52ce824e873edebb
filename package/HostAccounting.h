#pragma once

#include "AccountTypes.h"

#include <QString>

class QWidget;

/// The host's accounting unit: codes of the chart of accounts and automatic vouchers.
class IAccounting
{
public:
    virtual ~IAccounting() = default;

    /// As ICommonLibrary::CompleteCode, for codes of the chart of accounts.
    virtual QString CompleteCode(const QString& code, int length) = 0;

    /// The ordinals of the set between commas ("1,4"), for an IN list; empty for the empty set, which filters
    /// nothing.
    virtual QString AccGroupsToString(TSelectGroups groups) = 0;

    /// The name of an account. `total`, `assistant` and `detail` are decimal texts, empty where no code is
    /// chosen. `found` tells whether there is such an account; the name of one that is not found is empty.
    virtual QString GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                                 THesabType kind, bool& found) = 0;

    /// True when there are operations without vouchers, as the last check has found.
    virtual bool VoucherConflicts() = 0;
    /// True when vouchers await being generated again.
    virtual bool ExistRefreshAutoVoucher() = 0;
    /// Generates automatic vouchers again. Empty texts and 0 mean no restriction, which is what frames pass.
    virtual void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                                       int number) = 0;
    /// Starts the check for operations without vouchers in the background and returns at once. Afterwards the
    /// host sets the control's visibility by the result, on the user-interface thread; the control may have
    /// been destroyed by then, so the host keeps a guarded pointer.
    virtual void VoucherConflictThread_Start(QWidget* control) = 0;
};
