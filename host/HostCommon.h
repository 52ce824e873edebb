#pragma once

#include "HostCommonLibrary.h"
#include "HostExport.h"

/// The common library of the reference host.
class HOST_EXPORT THostCommonLibrary : public ICommonLibrary
{
public:
    QString CompleteCode(const QString& code, int length) override;
    QString FloatToStr_TRV(long double value) override;
    void ResetDataset(TADOQuery* query) override;
    void SetWinControlRightAlign(QWidget* control) override;

    /// See Lookups::Find.
    QVariant LookupDBs(const QString& code, const QString& fields, LocateDBsOptions option, QWidget* control,
                       PerLocateOptions persons) override;
    /// Not offered yet: throws EServiceNotOffered.
    bool LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                     bool showMessage) override;
    /// Not offered yet: throws EServiceNotOffered.
    bool OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                          TOperationType operation, bool showMessage) override;
};
