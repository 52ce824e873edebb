#include "SqliteStatement.h"

#include "SqliteError.h"
#include "SqliteTypes.h"

namespace {

TFieldType TypeOfStorageClass(int storageClass)
{
    switch (storageClass) {
    case SQLITE_INTEGER:
        return TFieldType::ftLargeint;
    case SQLITE_FLOAT:
        return TFieldType::ftFloat;
    case SQLITE_BLOB:
        return TFieldType::ftBlob;
    default:
        return TFieldType::ftWideString;
    }
}

/// Blanks, semicolons and comments may follow the one statement of a text; anything else would be lost
/// silently.
void RefuseSecondStatement(sqlite3* handle, const char* tail, const QString& text)
{
    if (*tail == '\0')
        return;
    TSqliteStatement rest;
    const int code = sqlite3_prepare_v3(handle, tail, -1, 0, &rest.Handle, nullptr);
    if (code != SQLITE_OK || rest.Handle != nullptr) {
        throw EADOError(TAdoErrorKind::Syntax, QStringLiteral("هر متن باید فقط یک دستور داشته باشد."), text,
                        QString::fromUtf8(tail));
    }
}

} // namespace

void TSqliteStatement::ReadColumns()
{
    const int count = sqlite3_column_count(Handle);
    Columns.clear();
    Columns.reserve(count);
    Expressions.clear();
    for (int i = 0; i < count; ++i) {
        TColumnInfo column = SqliteColumnInfo(sqlite3_column_decltype(Handle, i));
        if (column.Type == TFieldType::ftUnknown && count == ColumnTypes.size())
            column = SqliteColumnInfo(ColumnTypes[i].toLatin1().constData());
        column.Name = QString::fromUtf8(sqlite3_column_name(Handle, i));
        if (column.Type == TFieldType::ftUnknown) {
            column.Type = TFieldType::ftWideString;
            Expressions.append(i);
        }
        Columns.append(column);
    }
}

bool TSqliteStatement::WasReprepared() const
{
    return sqlite3_stmt_status(Handle, SQLITE_STMTSTATUS_REPREPARE, 1) > 0;
}

void TSqliteStatement::TypeExpressionsByCurrentRow()
{
    for (const int index : std::as_const(Expressions)) {
        const TFieldType type = TypeOfStorageClass(sqlite3_column_type(Handle, index));
        // Written only where it differs: readers of earlier runs share the list.
        if (std::as_const(Columns)[index].Type != type)
            Columns[index].Type = type;
    }
}

std::unique_ptr<TSqliteStatement> PrepareSqlite(sqlite3* handle, const QString& text, const QString& words,
                                                const QStringList& columnTypes, bool changesSchema)
{
    const QByteArray utf8 = words.toUtf8();
    auto statement = std::make_unique<TSqliteStatement>();
    const char* tail = nullptr;
    int code = sqlite3_prepare_v3(handle, utf8.constData(), static_cast<int>(utf8.size()) + 1,
                                  SQLITE_PREPARE_PERSISTENT, &statement->Handle, &tail);
    if (code != SQLITE_OK)
        throw SqliteError(handle, code, TSqlitePhase::Preparing, text);
    if (statement->Handle == nullptr)
        throw EADOError(TAdoErrorKind::Syntax, QStringLiteral("متن دستور خالی است."), text);
    RefuseSecondStatement(handle, tail, text);
    statement->ColumnTypes = columnTypes;
    statement->ChangesSchema = changesSchema;
    statement->ReadOnly = sqlite3_stmt_readonly(statement->Handle) != 0;
    statement->ParameterCount = sqlite3_bind_parameter_count(statement->Handle);
    statement->ReadColumns();
    return statement;
}
