#pragma once

#include "PackageExport.h"

#include <QString>
#include <QVariant>

/// Exact decimal numbers as texts: `-12.5`. One text per number: no leading or trailing zeros, no `-0`, no
/// plus.
namespace ExactNumber {

/// Most digits that the server takes in one number.
constexpr int MaxDigits = 38;

/// The number of a variant: an integer, a floating-point number, a truth value, or a text in digits of any
/// script. Empty for anything that is no number, and for one of more than MaxDigits digits.
BASEFRAME_EXPORT QString Of(const QVariant& value);
/// Below 0, 0 or above 0 as `first` is less than, equal to or greater than `second`; both come from Of().
BASEFRAME_EXPORT int Compare(const QString& first, const QString& second);

} // namespace ExactNumber
