#pragma once

#include "MovableClock.h"
#include "RecordingServices.h"

/// A host for tests: installed while it lives, answers from tables that the test fills, and notes every call.
class TRecordingHost
{
public:
    TRecordingHost();
    TRecordingHost(const TRecordingHost&) = delete;
    TRecordingHost& operator=(const TRecordingHost&) = delete;
    ~TRecordingHost();

    TCallLog Log;
    TRecordingDataModule DM;
    TRecordingSettings Settings;
    TRecordingCommonLibrary CommonLibrary{Log};
    TRecordingAccounting Accounting{Log};
    TRecordingPickers Pickers{Log};
    TRecordingLibraries Libraries{Log};
    TRecordingMessages Messages{Log};
    TRecordingPictures Pictures{Log};
    TMovableClock Clock;

private:
    THostServices services_{DM,        Settings, CommonLibrary, Accounting, Pickers,
                            Libraries, Messages, Pictures,      Clock};
};
