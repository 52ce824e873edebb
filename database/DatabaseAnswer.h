#pragma once

#include "AdoError.h"

/// Whether an error is what the database itself says to a statement, rather than a lost connection, a cancel
/// or another user who is in the way.
inline bool IsAnswerOfTheDatabase(const EADOError& error)
{
    return error.Kind() != TAdoErrorKind::ConnectionLost && error.Kind() != TAdoErrorKind::Cancelled &&
           error.Kind() != TAdoErrorKind::Busy;
}
