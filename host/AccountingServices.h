#pragma once

#include "HostAccounting.h"
#include "HostExport.h"

class TADOConnection;

/// Codes of the chart of accounts. The services around automatic vouchers throw EServiceNotOffered.
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
    void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                               int number) override;
    void VoucherConflictThread_Start(QWidget* control) override;

private:
    TADOConnection* connection_;
};
