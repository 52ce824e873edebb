#include "SqlDecimal.h"
#include "SqlValue.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace Dialect {

namespace {

/// The value as an exact number; an empty text is 0. Reports the error when it is none.
std::optional<TDecimal> DecimalOf(sqlite3_context* context, sqlite3_value* value)
{
    if (sqlite3_value_type(value) == SQLITE_INTEGER)
        return TDecimal(sqlite3_value_int64(value));
    const std::string_view text = TextOf(value);
    std::optional<TDecimal> decimal = TDecimal::From(text);
    if (!decimal)
        ResultConversionError(context, text, "numeric");
    return decimal;
}

void ResultDecimal(sqlite3_context* context, const TDecimal& decimal)
{
    ResultText(context, decimal.Text());
}

void Int(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (sqlite3_value_type(values[0]) == SQLITE_INTEGER) {
        sqlite3_result_value(context, values[0]);
        return;
    }
    std::string_view text = Trimmed(TextOf(values[0]));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    // A text of blanks only is 0.
    if (text.empty() || (error == std::errc() && end == text.data() + text.size()))
        sqlite3_result_int64(context, number);
    else
        ResultConversionError(context, TextOf(values[0]), "int");
}

void Truncate(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (sqlite3_value_type(values[0]) == SQLITE_FLOAT) {
        constexpr double limit = 9.2e18;
        const double value = sqlite3_value_double(values[0]);
        if (!(std::abs(value) < limit))
            ResultConversionError(context, TextOf(values[0]), "int");
        else
            sqlite3_result_int64(context, static_cast<std::int64_t>(value));
        return;
    }
    const std::optional<TDecimal> decimal = DecimalOf(context, values[0]);
    if (!decimal)
        return;
    const std::string text = decimal->Truncated(0).Text();
    std::int64_t number = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc())
        sqlite3_result_int64(context, number);
    else
        ResultConversionError(context, TextOf(values[0]), "int");
}

void Float(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    const std::string text(Trimmed(TextOf(values[0])));
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (*end == '\0' && text.find_first_of("xXnN") == std::string::npos)
        sqlite3_result_double(context, value);
    else
        ResultConversionError(context, text, "float");
}

void Bit(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    const std::string text(Trimmed(TextOf(values[0])));
    if (sqlite3_stricmp(text.c_str(), "true") == 0) {
        sqlite3_result_int(context, 1);
    } else if (sqlite3_stricmp(text.c_str(), "false") == 0 || text.empty()) {
        sqlite3_result_int(context, 0);
    } else if (const std::optional<TDecimal> decimal = DecimalOf(context, values[0])) {
        sqlite3_result_int(context, decimal->IsZero() ? 0 : 1);
    }
}

/// ado_decimal(value) and ado_decimal(value, precision, scale).
void Decimal(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    const bool isReady =
        count > 1 && sqlite3_value_type(values[0]) == SQLITE_TEXT &&
        IsShortestDecimal(TextOf(values[0]), sqlite3_value_int(values[1]), sqlite3_value_int(values[2]));
    if (isReady) {
        sqlite3_result_value(context, values[0]);
        return;
    }
    std::optional<TDecimal> decimal = DecimalOf(context, values[0]);
    if (!decimal)
        return;
    if (count > 1) {
        const int scale = sqlite3_value_int(values[2]);
        decimal = decimal->Rounded(scale);
        if (decimal->WholeDigits() > sqlite3_value_int(values[1]) - scale) {
            sqlite3_result_error(context, "Arithmetic overflow error converting to data type numeric.", -1);
            return;
        }
    }
    ResultDecimal(context, *decimal);
}

void DecimalAsText(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (const std::optional<TDecimal> decimal = DecimalOf(context, values[0]))
        ResultText(context, decimal->Text(sqlite3_value_int(values[1])));
}

/// Six digits and an exponent of three, as the server writes a float.
void FloatAsText(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.6g", sqlite3_value_double(values[0]));
    std::string text(buffer);
    const std::size_t exponent = text.find('e');
    if (exponent != std::string::npos && text.size() - exponent == 4)
        text.insert(exponent + 2, 1, '0');
    ResultText(context, text);
}

template <typename TOperation>
void Combine(sqlite3_context* context, int count, sqlite3_value** values, TOperation operation)
{
    if (IsAnyNull(count, values))
        return;
    const std::optional<TDecimal> left = DecimalOf(context, values[0]);
    if (!left)
        return;
    if (const std::optional<TDecimal> right = DecimalOf(context, values[1]))
        ResultDecimal(context, operation(*left, *right));
}

void Add(sqlite3_context* context, int count, sqlite3_value** values)
{
    Combine(context, count, values, [](const TDecimal& a, const TDecimal& b) { return a.Plus(b); });
}

void Subtract(sqlite3_context* context, int count, sqlite3_value** values)
{
    Combine(context, count, values, [](const TDecimal& a, const TDecimal& b) { return a.Plus(b.Negated()); });
}

void Multiply(sqlite3_context* context, int count, sqlite3_value** values)
{
    const int scale = sqlite3_value_int(values[2]);
    Combine(context, count, values,
            [scale](const TDecimal& a, const TDecimal& b) { return a.Times(b).Rounded(scale); });
}

void Absolute(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (const std::optional<TDecimal> decimal = DecimalOf(context, values[0]))
        ResultDecimal(context, decimal->Absolute());
}

void Round(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    if (const std::optional<TDecimal> decimal = DecimalOf(context, values[0]))
        ResultDecimal(context, decimal->Rounded(sqlite3_value_int(values[1])));
}

void RoundFloat(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const double factor = std::pow(10.0, sqlite3_value_int(values[1]));
    sqlite3_result_double(context, std::round(sqlite3_value_double(values[0]) * factor) / factor);
}

/// FLOOR and CEILING keep the type of their number.
void ToWhole(sqlite3_context* context, sqlite3_value* value, bool isUp)
{
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_INTEGER) {
        sqlite3_result_value(context, value);
    } else if (type == SQLITE_FLOAT) {
        const double number = sqlite3_value_double(value);
        sqlite3_result_double(context, isUp ? std::ceil(number) : std::floor(number));
    } else if (type == SQLITE_TEXT) {
        const std::optional<TDecimal> decimal = DecimalOf(context, value);
        if (!decimal)
            return;
        TDecimal whole = decimal->Truncated(0);
        const bool hasFraction = whole.Text() != decimal->Text();
        if (hasFraction && decimal->IsNegative() != isUp)
            whole = whole.Plus(TDecimal(isUp ? 1 : -1));
        ResultDecimal(context, whole);
    }
}

void Floor(sqlite3_context* context, int, sqlite3_value** values)
{
    ToWhole(context, values[0], false);
}

void Ceiling(sqlite3_context* context, int, sqlite3_value** values)
{
    ToWhole(context, values[0], true);
}

bool RefusesZero(sqlite3_context* context, sqlite3_value* divisor)
{
    const bool isZero = sqlite3_value_double(divisor) == 0.0;
    if (isZero)
        sqlite3_result_error(context, "Divide by zero error encountered.", -1);
    return isZero;
}

void Divide(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values) || RefusesZero(context, values[1]))
        return;
    const bool areWhole =
        sqlite3_value_type(values[0]) == SQLITE_INTEGER && sqlite3_value_type(values[1]) == SQLITE_INTEGER;
    const std::int64_t divisor = areWhole ? sqlite3_value_int64(values[1]) : 0;
    // The lowest number has no opposite.
    if (divisor == -1)
        sqlite3_result_int64(context, static_cast<std::int64_t>(
                                          ~static_cast<std::uint64_t>(sqlite3_value_int64(values[0])) + 1));
    else if (areWhole)
        sqlite3_result_int64(context, sqlite3_value_int64(values[0]) / divisor);
    else
        sqlite3_result_double(context, sqlite3_value_double(values[0]) / sqlite3_value_double(values[1]));
}

void Modulo(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values) || RefusesZero(context, values[1]))
        return;
    const std::int64_t divisor = sqlite3_value_int64(values[1]);
    sqlite3_result_int64(context, divisor == -1 ? 0 : sqlite3_value_int64(values[0]) % divisor);
}

} // namespace

void RegisterNumberFunctions(sqlite3* connection)
{
    constexpr TFunctionEntry entries[] = {
        {"ado_int", 1, Int},
        {"ado_truncate", 1, Truncate},
        {"ado_float", 1, Float},
        {"ado_bit", 1, Bit},
        {"ado_decimal", 1, Decimal},
        {"ado_decimal", 3, Decimal},
        {"ado_decimal_text", 2, DecimalAsText},
        {"ado_float_text", 1, FloatAsText},
        {"ado_add", 2, Add},
        {"ado_subtract", 2, Subtract},
        {"ado_multiply", 3, Multiply},
        {"ado_abs", 1, Absolute},
        {"ado_round", 2, Round},
        {"ado_round_float", 2, RoundFloat},
        {"ado_floor", 1, Floor},
        {"ado_ceiling", 1, Ceiling},
        {"ado_divide", 2, Divide},
        {"ado_modulo", 2, Modulo},
    };
    for (const TFunctionEntry& entry : entries)
        RegisterEntry(connection, entry);
}

} // namespace Dialect
