#pragma once

#include "HostServices.h"

#include <memory>

/// The host of frames that stand in a form designer, where there is no application: it answers nothing to
/// every question. Installed while it lives, unless the process has a host already.
class TDesignHost
{
public:
    TDesignHost();
    TDesignHost(const TDesignHost&) = delete;
    TDesignHost& operator=(const TDesignHost&) = delete;
    ~TDesignHost();

private:
    struct TServices;
    std::unique_ptr<TServices> services_;
};
