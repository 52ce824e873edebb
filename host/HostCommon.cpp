#include "HostCommon.h"

#include "ADOQuery.h"
#include "Codes.h"
#include "HostServices.h"
#include "Lookups.h"
#include "NotOffered.h"

#include <QWidget>

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

bool THostCommonLibrary::LocateLockCode_SoftwarePart(const QString& /*code*/, TSoftwarePart /*part*/,
                                                     int /*option*/, bool /*showMessage*/)
{
    throw EServiceNotOffered("LocateLockCode_SoftwarePart");
}

bool THostCommonLibrary::OperationOnLockCode_SoftwarePart(const QString& /*code*/, TSoftwarePart /*part*/,
                                                          int /*option*/, TOperationType /*operation*/,
                                                          bool /*showMessage*/)
{
    throw EServiceNotOffered("OperationOnLockCode_SoftwarePart");
}
