#pragma once

#include "HostAccounting.h"
#include "HostExport.h"
#include "VoucherConflictCheck.h"

class TADOConnection;

/// Codes of the chart of accounts, and automatic vouchers.
class HOST_EXPORT THostAccounting : public IAccounting
{
public:
    /// `connection` must outlive the services.
    explicit THostAccounting(TADOConnection& connection);

    QString CompleteCode(const QString& code, int length) override;
    QString AccGroupsToString(TSelectGroups groups) override;
    /// An account exists when all its given levels do and belong together, whichever of them names it: the
    /// assistant account under the total account, the detail account of the kind that these two take. Without
    /// any code there is nothing that could be missing: found, without a name. Texts that are no codes are
    /// not found, and the database is not asked. The full name reads "total - assistant - detail". A detail
    /// account that is switched off has its name still, because old vouchers show it.
    QString GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                         THesabType kind, bool& found) override;
    bool VoucherConflicts() override;
    bool ExistRefreshAutoVoucher() override;
    /// `from` and `to` are dates of the operations, yyyy/mm/dd; `kinds` their ordinals between commas;
    /// `number` that of the voucher. The user sees progress where it takes long, and a message about what was
    /// left.
    void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                               int number) override;
    void VoucherConflictThread_Start(QWidget* control) override;

    TVoucherConflictCheck& ConflictCheck() { return conflictCheck_; } ///< in the background; belongs to this

private:
    TADOConnection* connection_;
    TVoucherConflictCheck conflictCheck_;
};
