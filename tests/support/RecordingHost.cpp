#include "RecordingHost.h"

TRecordingHost::TRecordingHost()
{
    InstallHost(services_);
}

TRecordingHost::~TRecordingHost()
{
    RemoveHost();
}
