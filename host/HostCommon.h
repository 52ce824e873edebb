#pragma once

#include "HostCommonLibrary.h"
#include "HostExport.h"

class TCodeLocks;

/// The common library of the reference host.
class HOST_EXPORT THostCommonLibrary : public ICommonLibrary
{
public:
    /// `locks` must outlive the library.
    explicit THostCommonLibrary(TCodeLocks& locks) : locks_(&locks) {}

    QString CompleteCode(const QString& code, int length) override;
    QString FloatToStr_TRV(long double value) override;
    void ResetDataset(TADOQuery* query) override;
    void SetWinControlRightAlign(QWidget* control) override;

    /// See Lookups::Find.
    QVariant LookupDBs(const QString& code, const QString& fields, LocateDBsOptions option, QWidget* control,
                       PerLocateOptions persons) override;
    /// `option` is the lifetime of holds in seconds, 0 for TCodeLocks::DefaultLifetime.
    bool LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                     bool showMessage) override;
    bool OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                          TOperationType operation, bool showMessage) override;

private:
    TCodeLocks* locks_;
};
