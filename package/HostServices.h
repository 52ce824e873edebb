#pragma once

#include "HostAccounting.h"
#include "HostClock.h"
#include "HostCommonLibrary.h"
#include "HostData.h"
#include "HostLibraries.h"
#include "HostMessages.h"
#include "HostPickers.h"
#include "HostPictures.h"
#include "HostSettings.h"
#include "PackageExport.h"

/// Everything that frames need from the application, one of each. The application owns the services and keeps
/// them until the last frame is gone. All operations are called on the user-interface thread.
struct THostServices
{
    IDataModule& DM;               ///< connection and shared statements
    ISettings& Settings;           ///< installation and user
    ICommonLibrary& CommonLibrary; ///< codes, amounts, lookups, the code lock
    IAccounting& Accounting;       ///< chart of accounts and automatic vouchers
    IPickers& Pickers;             ///< selection dialogs
    ILibraries& Libraries;         ///< libraries loaded at run time
    IMessages& Messages;           ///< message boxes and balloons
    IPictures& Pictures;           ///< picture routines
    IClock& Clock;                 ///< what time it is
};

/// Makes the services known to the frames, before the first of them is created. The reference is kept, not
/// copied. Throws std::logic_error where a host is installed already.
BASEFRAME_EXPORT void InstallHost(THostServices& services);
/// Takes the installed host away, after the last frame; does nothing where there is none.
BASEFRAME_EXPORT void RemoveHost();
BASEFRAME_EXPORT bool HasHost(); ///< whether one is installed
/// The installed services. Throws std::logic_error with a text that says what to do where there are none; so
/// does the constructor of every frame.
BASEFRAME_EXPORT THostServices& Host();
