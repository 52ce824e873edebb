#pragma once

#include "PackageExport.h"

#include <QChar>

/// Which keys the boxes of an account code take.
namespace CodeKeys {

/// Above "A": all Latin letters but "A" itself, and every letter of another script.
BASEFRAME_EXPORT bool IsCharacter(QChar key);
/// ASCII punctuation without the apostrophe, the full stop and the braces.
BASEFRAME_EXPORT bool IsSymbol(QChar key);
BASEFRAME_EXPORT bool IsPoint(QChar key);
/// What is left: digits, control characters, and, on purpose, "A" and the apostrophe, which read as the code
/// 0.
BASEFRAME_EXPORT bool ValidateKey(QChar key);

} // namespace CodeKeys
