#pragma once

#include "AccountingServices.h"
#include "CodeLocks.h"
#include "HostCommon.h"
#include "HostDataModule.h"
#include "HostExport.h"
#include "HostMessageBoxes.h"
#include "HostServices.h"
#include "HostSettingsFile.h"
#include "HostSystemClock.h"
#include "PickerDialogs.h"
#include "PictureServices.h"
#include "RunTimeLibraries.h"

/// The reference host: every service that frames need, installed while it lives.
class HOST_EXPORT TReferenceHost
{
public:
    /// Both must outlive the host, and the host every frame.
    TReferenceHost(TADOConnection& connection, THostSettings& settings);
    TReferenceHost(const TReferenceHost&) = delete;
    TReferenceHost& operator=(const TReferenceHost&) = delete;
    ~TReferenceHost();

    /// The host's own parts, for the application. All live as long as the host.
    THostSettings& Settings() { return *settings_; }
    const THostSettings& Settings() const { return *settings_; }
    TADOConnection& Connection() { return *dataModule_.ADOConnection1(); }
    THostClock& Clock() { return clock_; }
    THostMessages& Messages() { return messages_; }
    TCodeLocks& CodeLocks() { return codeLocks_; }
    TVoucherConflictCheck& VoucherConflictCheck() { return accounting_.ConflictCheck(); }

private:
    THostSettings* settings_;
    THostDataModule dataModule_;
    TCodeLocks codeLocks_;
    THostCommonLibrary commonLibrary_;
    THostAccounting accounting_;
    THostPickers pickers_;
    THostLibraries libraries_;
    THostMessages messages_;
    THostPictures pictures_;
    THostClock clock_;
    THostServices services_;
};
