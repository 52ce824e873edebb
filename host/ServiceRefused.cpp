#include "ServiceRefused.h"

EServiceRefused::EServiceRefused(const QString& message)
    : std::runtime_error(message.toStdString()), message_(message)
{
}

EServiceRefused::~EServiceRefused() = default;
