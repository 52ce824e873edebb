#pragma once

#include "HostExport.h"

#include <QString>

/// Codes and amounts as texts.
namespace Codes {

/// The code trimmed, its digits in ASCII, filled with zeros at the left up to `length` characters. A longer
/// code stays as it is; an empty one stays empty, since it means that no code is chosen.
HOST_EXPORT QString Complete(const QString& code, int length);

/// An amount in decimal ASCII digits, without grouping or exponent, without trailing zeros behind the point.
/// Exact to the fourth decimal of any money value, and up to ten decimals as far as eighteen digits reach.
HOST_EXPORT QString AmountText(long double value);

} // namespace Codes
