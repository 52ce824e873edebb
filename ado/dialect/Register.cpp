#include "Collation.h"
#include "Dialect.h"
#include "SqlDecimal.h"
#include "SqlValue.h"

namespace Dialect {

namespace {

std::string_view Bytes(int size, const void* text)
{
    return {static_cast<const char*>(text), static_cast<std::size_t>(size)};
}

int ComparePersianTexts(void*, int firstSize, const void* first, int secondSize, const void* second)
{
    return ComparePersian(Bytes(firstSize, first), Bytes(secondSize, second));
}

int CompareDecimalTexts(void*, int firstSize, const void* first, int secondSize, const void* second)
{
    return CompareDecimals(Bytes(firstSize, first), Bytes(secondSize, second));
}

} // namespace

void ResultConversionError(sqlite3_context* context, std::string_view value, const char* type)
{
    std::string message = "Conversion failed when converting the value '";
    message += value;
    message += "' to data type ";
    message += type;
    message += '.';
    sqlite3_result_error(context, message.c_str(), static_cast<int>(message.size()));
}

void RegisterEntry(sqlite3* connection, const TFunctionEntry& entry)
{
    const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS | (entry.IsDeterministic ? SQLITE_DETERMINISTIC : 0);
    sqlite3_create_function_v2(connection, entry.Name, entry.ArgumentCount, flags, nullptr, entry.Function,
                               nullptr, nullptr, nullptr);
}

void Register(sqlite3* connection)
{
    sqlite3_create_collation_v2(connection, TextCollation, SQLITE_UTF8, nullptr, ComparePersianTexts,
                                nullptr);
    sqlite3_create_collation_v2(connection, DecimalCollation, SQLITE_UTF8, nullptr, CompareDecimalTexts,
                                nullptr);
    // A name in quotes that is no column would otherwise silently become a text.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    RegisterTextFunctions(connection);
    RegisterNumberFunctions(connection);
    RegisterMomentFunctions(connection);
    RegisterExactSums(connection);
}

} // namespace Dialect
