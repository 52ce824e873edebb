#include "SqlDecimal.h"
#include "SqlValue.h"

#include <type_traits>

namespace Dialect {

namespace {

/// A running exact sum; SQLite hands it out zeroed, which is a sum of nothing.
struct TSum
{
    TDecimal Total;
    std::int64_t Count;
    int Scale;
};
static_assert(std::is_trivially_copyable_v<TSum>);

TSum* SumOf(sqlite3_context* context)
{
    return static_cast<TSum*>(sqlite3_aggregate_context(context, sizeof(TSum)));
}

std::optional<TDecimal> Addend(sqlite3_context* context, sqlite3_value* value)
{
    if (IsNull(value))
        return std::nullopt;
    if (sqlite3_value_type(value) == SQLITE_INTEGER)
        return TDecimal(sqlite3_value_int64(value));
    std::optional<TDecimal> decimal = TDecimal::From(TextOf(value));
    if (!decimal)
        ResultConversionError(context, TextOf(value), "numeric");
    return decimal;
}

void Step(sqlite3_context* context, int count, sqlite3_value** values)
{
    TSum* sum = SumOf(context);
    const std::optional<TDecimal> addend = sum ? Addend(context, values[0]) : std::nullopt;
    if (!addend)
        return;
    sum->Total = sum->Total.Plus(*addend);
    ++sum->Count;
    sum->Scale = count > 1 ? sqlite3_value_int(values[1]) : 0;
}

void Inverse(sqlite3_context* context, int, sqlite3_value** values)
{
    TSum* sum = SumOf(context);
    const std::optional<TDecimal> addend = sum ? Addend(context, values[0]) : std::nullopt;
    if (!addend)
        return;
    sum->Total = sum->Total.Plus(addend->Negated());
    --sum->Count;
}

void Sum(sqlite3_context* context)
{
    const TSum* sum = SumOf(context);
    if (sum && sum->Count != 0)
        ResultText(context, sum->Total.Text());
}

void Average(sqlite3_context* context)
{
    const TSum* sum = SumOf(context);
    if (sum && sum->Count != 0)
        ResultText(context, sum->Total.DividedBy(sum->Count, sum->Scale).Text());
}

} // namespace

void RegisterExactSums(sqlite3* connection)
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_window_function(connection, "ado_sum", 1, flags, nullptr, Step, Sum, Sum, Inverse,
                                   nullptr);
    sqlite3_create_window_function(connection, "ado_average", 2, flags, nullptr, Step, Average, Average,
                                   Inverse, nullptr);
}

} // namespace Dialect
