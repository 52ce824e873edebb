#include "SqliteFunction.h"

#include "SqliteValue.h"
#include "Utf8Text.h"

namespace {

/// A statement of NativeStatements() for the time it is read.
class TBorrowedStatement
{
public:
    TBorrowedStatement(TSqliteStatementCache& cache, const QString& words)
        : cache_(cache), statement_(cache.Take(words))
    {
    }
    TBorrowedStatement(const TBorrowedStatement&) = delete;
    TBorrowedStatement& operator=(const TBorrowedStatement&) = delete;
    ~TBorrowedStatement() { cache_.Give(statement_); }

    sqlite3_stmt* Handle() const { return statement_->Handle; }

private:
    TSqliteStatementCache& cache_;
    TSqliteStatement* statement_;
};

class TFunctionContext final : public IFunctionContext
{
public:
    explicit TFunctionContext(TSqliteSession& session) : session_(session) {}

    QVariantList FirstColumn(const char* statement, const QVariantList& arguments) override
    {
        const QString words = QString::fromUtf8(statement);
        const TBorrowedStatement borrowed(session_.NativeStatements(), words);
        BindSqliteParameters(borrowed.Handle(), arguments, words);
        QVariantList values;
        int code = sqlite3_step(borrowed.Handle());
        for (; code == SQLITE_ROW; code = sqlite3_step(borrowed.Handle()))
            values.append(SqliteColumnVariant(borrowed.Handle(), 0));
        if (code != SQLITE_DONE)
            throw SqliteError(session_.Handle(), code, TSqlitePhase::Running, words);
        return values;
    }

private:
    TSqliteSession& session_;
};

struct TRegistration
{
    TSqliteSession& Session;
    TDatabaseFunction Function;
};

QVariant ArgumentValue(sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        return TextOfUtf8(text, sqlite3_value_bytes(value));
    }
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
        return QByteArray(bytes == nullptr ? "" : bytes, sqlite3_value_bytes(value));
    }
    default:
        return {};
    }
}

void SetResult(sqlite3_context* context, const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        sqlite3_result_null(context);
        break;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        sqlite3_result_int64(context, value.toLongLong());
        break;
    case QMetaType::Double:
        sqlite3_result_double(context, value.toDouble());
        break;
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        sqlite3_result_blob64(context, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                              SQLITE_TRANSIENT);
        break;
    }
    default: {
        const QByteArray text = value.toString().toUtf8();
        sqlite3_result_text64(context, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    }
}

void Call(sqlite3_context* context, int count, sqlite3_value** values)
{
    const auto* registration = static_cast<TRegistration*>(sqlite3_user_data(context));
    // No exception may pass through SQLite's frames.
    try {
        QVariantList arguments;
        arguments.reserve(count);
        for (int i = 0; i < count; ++i)
            arguments.append(ArgumentValue(values[i]));
        TFunctionContext functionContext(registration->Session);
        SetResult(context, registration->Function(functionContext, arguments));
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

void Forget(void* registration)
{
    delete static_cast<TRegistration*>(registration);
}

} // namespace

void RegisterSqliteFunction(TSqliteSession& session, const QString& name, int argumentCount,
                            TDatabaseFunction function)
{
    const QByteArray sqliteName = "dbo_" + name.toLower().toUtf8();
    auto registration = std::make_unique<TRegistration>(TRegistration{session, std::move(function)});
    // SQLite owns the registration from here on and forgets it, also when it refuses it.
    const int code =
        sqlite3_create_function_v2(session.Handle(), sqliteName.constData(), argumentCount, SQLITE_UTF8,
                                   registration.release(), &Call, nullptr, nullptr, &Forget);
    if (code != SQLITE_OK)
        throw SqliteError(session.Handle(), code, TSqlitePhase::Opening);
}
