#pragma once

#include "AdoError.h"

#include <QStringView>

/// How the dialect layer says no: each function throws EADOError.
namespace Dialect {

/// A construct that the embedded engine is not taught. `piece` is the offending piece as the caller wrote it,
/// `reason` a short English explanation for the developer.
[[noreturn]] void Refuse(QStringView statement, QStringView piece, const char* reason);
/// A text that no engine would understand.
[[noreturn]] void RefuseMalformed(QStringView statement, QStringView piece, const char* reason);

} // namespace Dialect
