#include "HostCommon.h"

#include "ADOQuery.h"
#include "CodeLocks.h"
#include "Codes.h"
#include "HostServices.h"
#include "Lookups.h"

#include <QWidget>

namespace {

void TellInUse(const QString& code)
{
    Host().Messages.MSGInUse(QStringLiteral("کد ") + code);
}

} // namespace

QString THostCommonLibrary::CompleteCode(const QString& code, int length)
{
    return Codes::Complete(code, length);
}

QString THostCommonLibrary::FloatToStr_TRV(long double value)
{
    return Codes::AmountText(value);
}

void THostCommonLibrary::ResetDataset(TADOQuery* query)
{
    if (query != nullptr && query->Active())
        query->Requery();
}

void THostCommonLibrary::SetWinControlRightAlign(QWidget* control)
{
    if (control != nullptr)
        control->setLayoutDirection(Qt::RightToLeft);
}

QVariant THostCommonLibrary::LookupDBs(const QString& code, const QString& fields, LocateDBsOptions option,
                                       QWidget* /*control*/, PerLocateOptions persons)
{
    return Lookups::Find(*Host().DM.ADOConnection1(), code, fields, option, persons);
}

bool THostCommonLibrary::LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                                     bool showMessage)
{
    locks_->SetLifetime(option);
    const bool isHeld = locks_->OtherHolder(code, part).has_value();
    if (isHeld && showMessage)
        TellInUse(code);
    return isHeld;
}

bool THostCommonLibrary::OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                                          TOperationType operation, bool showMessage)
{
    locks_->SetLifetime(option);
    switch (operation) {
    case TOperationType::otRefresh:
        return locks_->Renew(code, part);
    case TOperationType::otUnlock:
        return locks_->Release(code, part);
    case TOperationType::otLock:
        break;
    }
    const bool isTaken = locks_->Take(code, part);
    if (!isTaken && showMessage)
        TellInUse(code);
    return isTaken;
}
