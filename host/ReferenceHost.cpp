#include "ReferenceHost.h"

#include "CodeHolderText.h"

TReferenceHost::TReferenceHost(TADOConnection& connection, THostSettings& settings)
    : settings_(&settings), dataModule_(connection), codeLocks_(connection, settings),
      commonLibrary_(codeLocks_), accounting_(connection), pickers_(connection, settings),
      clock_(settings), services_{dataModule_, settings,  commonLibrary_, accounting_, pickers_,
                                  libraries_,  messages_, pictures_,      clock_}
{
    messages_.SetHolderSource([this] {
        const std::optional<TCodeHolder> holder = codeLocks_.TakeLastRefusal();
        return holder ? CodeHolderText::Phrase(*holder, settings_->UserInfo(), clock_) : QString();
    });
    InstallHost(services_);
}

TReferenceHost::~TReferenceHost()
{
    RemoveHost();
}
