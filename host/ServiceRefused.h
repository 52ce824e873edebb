#pragma once

#include "HostExport.h"

#include <QString>
#include <stdexcept>

/// A service is not carried out because a rule forbids it; nothing has been written.
class HOST_EXPORT EServiceRefused : public std::runtime_error
{
public:
    /// `message` is the Persian sentence for the user.
    explicit EServiceRefused(const QString& message);
    ~EServiceRefused() override;

    QString Message() const { return message_; }

private:
    QString message_;
};
