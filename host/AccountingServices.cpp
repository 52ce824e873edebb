#include "AccountingServices.h"

#include "AccountLevels.h"
#include "AccountNames.h"
#include "Codes.h"
#include "NotOffered.h"

#include <limits>
#include <QStringList>

THostAccounting::THostAccounting(TADOConnection& connection) : connection_(&connection)
{
}

QString THostAccounting::CompleteCode(const QString& code, int length)
{
    return Codes::Complete(code, length);
}

QString THostAccounting::AccGroupsToString(TSelectGroups groups)
{
    QStringList ordinals;
    for (unsigned ordinal = 0; ordinal < std::numeric_limits<quint32>::digits; ++ordinal) {
        if ((groups.Bits() >> ordinal & 1U) != 0)
            ordinals.append(QString::number(ordinal));
    }
    return ordinals.join(u',');
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
