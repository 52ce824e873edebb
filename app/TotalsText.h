#pragma once

#include "Decimal.h"

/// Totals of debit and credit in words and figures, as they stand below vouchers and reports.
namespace TotalsText {

/// The amount without its sign, grouped by the sign of the digits in force.
QString Amount(const TDecimal& amount);
/// What is missing to the balance, and on which side; that nothing is missing where it is 0.
QString Balance(const TDecimal& balance);

} // namespace TotalsText
