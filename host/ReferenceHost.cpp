#include "ReferenceHost.h"

TReferenceHost::TReferenceHost(TADOConnection& connection, THostSettings& settings)
    : settings_(&settings), dataModule_(connection), accounting_(connection), pickers_(connection, settings),
      clock_(settings), services_{dataModule_, settings,  commonLibrary_, accounting_, pickers_,
                                  libraries_,  messages_, pictures_,      clock_}
{
    InstallHost(services_);
}

TReferenceHost::~TReferenceHost()
{
    RemoveHost();
}
