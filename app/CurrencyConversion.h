#pragma once

#include "VoucherDraft.h"

namespace CurrencyConversion {

/// Digits behind the point that the money columns keep.
constexpr int MoneyDecimals = 4;

/// An amount in the base currency: exact, rounded half away from zero only where money has no more decimals.
QString InBase(const QString& amount, const QString& rate);
/// A line whose debit or credit is typed in its currency, with the base currency's amounts in their place and
/// the typed one beside them. A line in the base currency stays as it is.
TVoucherLine InBase(const TVoucherLine& typed);
/// The opposite: a line as it would be typed.
TVoucherLine AsTyped(const TVoucherLine& line);

} // namespace CurrencyConversion
