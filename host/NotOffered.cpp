#include "NotOffered.h"

EServiceNotOffered::EServiceNotOffered(const std::string& service)
    : std::logic_error("The service " + service + " is not offered by this host yet.")
{
}

EServiceNotOffered::~EServiceNotOffered() = default;
