#pragma once

#include "SuiteExport.h"

#include <QString>

/// Exact decimal numbers as plain text: an optional minus, ASCII digits, an optional point with digits behind
/// it.
namespace DecimalText {

/// As many digits behind the point as a long double can give.
constexpr int MostDecimals = 18;

enum class TFinding { Nothing, One, Several };

/// Looks for the one number in a text of any origin: "۱٬۲۳۴٬۵۰۰ ریال", "(1,234)", "1 234.5", "1,200-".
/// Grouping signs and blanks count only between groups of three digits, so that nothing ambiguous becomes an
/// amount.
SUITE_EXPORT TFinding Find(const QString& text, QString& number);
/// A half-typed number as a number: "" and "-" are 0, "1." is 1, ".5" is 0.5, "007" is 7, "-0.0" is 0.0.
SUITE_EXPORT QString Settled(const QString& typed);
/// Thousands set apart with commas.
SUITE_EXPORT QString Grouped(const QString& plain);
/// Rounded half away from zero to at most `decimals` digits behind the point, without trailing zeros there.
SUITE_EXPORT QString Rounded(const QString& plain, int decimals);
/// The shortest text that reads back as the value, to at most `decimals` digits behind the point; 0 for no
/// number.
SUITE_EXPORT QString FromValue(long double value, int decimals);
/// 0 where the text is no number; the decimal point is "." in every locale.
SUITE_EXPORT long double ToValue(const QString& plain);
SUITE_EXPORT int DigitCount(const QString& plain);
/// Digits behind the point.
SUITE_EXPORT int DecimalCount(const QString& plain);
/// Without zeros at the end of the decimals, and without a point that has nothing behind it.
SUITE_EXPORT QString WithoutTrailingZeros(const QString& plain);

} // namespace DecimalText
