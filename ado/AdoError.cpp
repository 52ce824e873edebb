#include "AdoError.h"

EADOError::EADOError(TAdoErrorKind kind, const QString& message, const QString& statement,
                     const QString& serverMessage, const QString& state, int code)
    : std::runtime_error((serverMessage.isEmpty() ? message : message + QStringLiteral(" | ") + serverMessage)
                             .toStdString()),
      kind_(kind), message_(message), statement_(statement), serverMessage_(serverMessage), state_(state),
      code_(code)
{
}

EADOError::~EADOError() = default;
