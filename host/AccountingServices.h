#pragma once

#include "HostAccounting.h"
#include "HostExport.h"

/// Codes of the chart of accounts. Everything but CompleteCode throws EServiceNotOffered.
class HOST_EXPORT THostAccounting : public IAccounting
{
public:
    QString CompleteCode(const QString& code, int length) override;
    QString AccGroupsToString(TSelectGroups groups) override;
    QString GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                         THesabType kind, bool& found) override;
    bool VoucherConflicts() override;
    bool ExistRefreshAutoVoucher() override;
    void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                               int number) override;
    void VoucherConflictThread_Start(QWidget* control) override;
};
