#include "AccountingServices.h"

#include "Codes.h"
#include "NotOffered.h"

QString THostAccounting::CompleteCode(const QString& code, int length)
{
    return Codes::Complete(code, length);
}

QString THostAccounting::AccGroupsToString(TSelectGroups /*groups*/)
{
    throw EServiceNotOffered("AccGroupsToString");
}

QString THostAccounting::GetHesabName(const QString& /*total*/, const QString& /*assistant*/,
                                      const QString& /*detail*/, THesabType /*kind*/, bool& /*found*/)
{
    throw EServiceNotOffered("GetHesabName");
}

bool THostAccounting::VoucherConflicts()
{
    throw EServiceNotOffered("VoucherConflicts");
}

bool THostAccounting::ExistRefreshAutoVoucher()
{
    throw EServiceNotOffered("ExistRefreshAutoVoucher");
}

void THostAccounting::SaveAutoVouchersAgain(const QString& /*from*/, const QString& /*to*/,
                                            const QString& /*kinds*/, int /*number*/)
{
    throw EServiceNotOffered("SaveAutoVouchersAgain");
}

void THostAccounting::VoucherConflictThread_Start(QWidget* /*control*/)
{
    throw EServiceNotOffered("VoucherConflictThread_Start");
}
