#pragma once

#include "SuiteExport.h"

#include <optional>
#include <QString>

/// Year, month and day as numbers, not yet known to be a day of any calendar.
struct TDateNumbers
{
    int Year = 0;  ///< as it is written
    int Month = 0; ///< counted from 1
    int Day = 0;   ///< counted from 1
    friend bool operator==(const TDateNumbers&, const TDateNumbers&) = default;
};

/// Dates as people write them.
namespace DateText {

/// The numbers of a text in digits of any script: year first or, where the last number is the one of four
/// digits, day first; any signs, blanks or words between them and around them; eight digits in a row too.
/// None where the text holds anything but one date.
SUITE_EXPORT std::optional<TDateNumbers> Read(const QString& text);
/// Year in four digits, month and day in two, ASCII.
SUITE_EXPORT QString Write(const TDateNumbers& date, const QString& separator = QStringLiteral("/"));

} // namespace DateText
