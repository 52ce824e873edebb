#include "HostServices.h"

#include <stdexcept>

namespace {

THostServices* installedHost = nullptr;

} // namespace

void InstallHost(THostServices& services)
{
    if (installedHost)
        throw std::logic_error(
            "A host is installed already. Call RemoveHost() before you install another one.");
    installedHost = &services;
}

void RemoveHost()
{
    installedHost = nullptr;
}

bool HasHost()
{
    return installedHost != nullptr;
}

THostServices& Host()
{
    if (!installedHost)
        throw std::logic_error(
            "No host is installed. Fill a THostServices and call InstallHost() with it before the "
            "first frame is created.");
    return *installedHost;
}
