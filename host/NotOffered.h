#pragma once

#include "HostExport.h"

#include <stdexcept>
#include <string>

/// A frame asked for a service that this host does not offer yet.
class HOST_EXPORT EServiceNotOffered : public std::logic_error
{
public:
    explicit EServiceNotOffered(const std::string& service);
    ~EServiceNotOffered() override;
};
