#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

/// What the registered functions share.
namespace Dialect {

inline std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                : std::string_view();
}

inline bool IsNull(sqlite3_value* value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

inline bool IsAnyNull(int count, sqlite3_value** values)
{
    for (int i = 0; i < count; ++i) {
        if (IsNull(values[i]))
            return true;
    }
    return false;
}

inline void ResultText(sqlite3_context* context, std::string_view text)
{
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// The server's words and number for a value that does not convert.
void ResultConversionError(sqlite3_context* context, std::string_view value, const char* type);

struct TFunctionEntry
{
    const char* Name;
    int ArgumentCount;
    void (*Function)(sqlite3_context*, int, sqlite3_value**);
    bool IsDeterministic = true;
};

/// Made of a constant argument once and kept for the statement's run.
template <typename T, typename TMake> const T& KeptWith(sqlite3_context* context, int argument, TMake&& make)
{
    if (auto* kept = static_cast<T*>(sqlite3_get_auxdata(context, argument)))
        return *kept;
    auto made = std::make_unique<T>(make());
    T* raw = made.release();
    sqlite3_set_auxdata(context, argument, raw, [](void* data) { delete static_cast<T*>(data); });
    return *raw;
}

void RegisterEntry(sqlite3* connection, const TFunctionEntry& entry);
void RegisterTextFunctions(sqlite3* connection);
void RegisterNumberFunctions(sqlite3* connection);
void RegisterMomentFunctions(sqlite3* connection);
void RegisterExactSums(sqlite3* connection);

} // namespace Dialect
