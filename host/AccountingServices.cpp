#include "AccountingServices.h"

#include "AccountLevels.h"
#include "AccountNames.h"
#include "AutoVoucherRun.h"
#include "Codes.h"

THostAccounting::THostAccounting(TADOConnection& connection)
    : connection_(&connection), conflictCheck_(connection)
{
}

QString THostAccounting::CompleteCode(const QString& code, int length)
{
    return Codes::Complete(code, length);
}

QString THostAccounting::AccGroupsToString(TSelectGroups groups)
{
    return AccountLevels::GroupsText(groups);
}

QString THostAccounting::GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                                      THesabType kind, bool& found)
{
    found = false;
    const auto totalCode = AccountLevels::CodeOf(total);
    const auto assistantCode = AccountLevels::CodeOf(assistant);
    const auto detailCode = AccountLevels::CodeOf(detail);
    if (!totalCode || !assistantCode || !detailCode)
        return {};
    const TAccountCodes codes{*totalCode, *assistantCode, *detailCode};
    if (codes.Total == 0) {
        found = codes.Assistant == 0 && codes.Detail == 0;
        return {};
    }
    const auto names = ReadAccountNames(*connection_, codes);
    found = names.has_value();
    return found ? names->Of(kind) : QString();
}

bool THostAccounting::VoucherConflicts()
{
    return conflictCheck_.Conflicts();
}

bool THostAccounting::ExistRefreshAutoVoucher()
{
    return TAutoVouchers::AnyAwaiting(*connection_);
}

void THostAccounting::SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                                            int number)
{
    AutoVoucherRun::SaveAgain({from, to, kinds, number});
}

void THostAccounting::VoucherConflictThread_Start(QWidget* control)
{
    conflictCheck_.Start(control);
}
