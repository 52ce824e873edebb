#include "OdbcEngine.h"

#include "OdbcParameters.h"
#include "OdbcRows.h"

#include <array>

namespace {

EADOError DriverManagerError()
{
    return EADOError(
        TAdoErrorKind::CannotOpen,
        QStringLiteral(
            "مدیر راه‌اندازهای ODBC روی این دستگاه در دسترس نیست."));
}

} // namespace

QString CompleteOdbcConnectionString(const QString& connectionString)
{
    QString result = connectionString.trimmed();
    if (!result.endsWith(u';'))
        result += u';';
    const bool overTds = result.contains(QLatin1String("FreeTDS"), Qt::CaseInsensitive) ||
                         result.contains(QLatin1String("tdsodbc"), Qt::CaseInsensitive);
    if (overTds && !result.contains(QLatin1String("Encryption="), Qt::CaseInsensitive))
        result += QLatin1String("Encryption=request;");
    return result;
}

QString SqlServerSession(int busyTimeout)
{
    return QStringLiteral("SET ANSI_NULLS, ANSI_PADDING, ANSI_WARNINGS, ARITHABORT, CONCAT_NULL_YIELDS_NULL, "
                          "QUOTED_IDENTIFIER ON\n"
                          "SET NUMERIC_ROUNDABORT OFF\n"
                          "SET DATEFORMAT ymd\n"
                          "SET TEXTSIZE 2147483647\n"
                          "SET LOCK_TIMEOUT %1")
        .arg(qMax(0, busyTimeout));
}

std::unique_ptr<IEngine> OpenOdbcEngine(const QString& connectionString, const TEngineOptions& options)
{
    return std::make_unique<TOdbcEngine>(connectionString, options);
}

TOdbcEngine::TOdbcEngine(const QString& connectionString, const TEngineOptions& options)
    : environment_(SQL_NULL_HANDLE)
{
    if (!environment_)
        throw DriverManagerError();
    // Attributes that are numbers travel in the pointer's place.
    const auto number = [](quintptr value) { return reinterpret_cast<SQLPOINTER>(value); };
    SQLSetEnvAttr(environment_.Get(), SQL_ATTR_ODBC_VERSION, number(SQL_OV_ODBC3), 0);
    connection_ = TOdbcConnection(environment_.Get());
    if (!connection_)
        throw DriverManagerError();
    SQLSetConnectAttrW(connection_.Get(), SQL_ATTR_LOGIN_TIMEOUT,
                       number(static_cast<quintptr>(options.LoginTimeout)), SQL_IS_UINTEGER);
    if (options.ReadOnly)
        SQLSetConnectAttrW(connection_.Get(), SQL_ATTR_ACCESS_MODE, number(SQL_MODE_READ_ONLY),
                           SQL_IS_UINTEGER);

    const QString text = CompleteOdbcConnectionString(connectionString);
    const SQLRETURN result = SQLDriverConnectW(connection_.Get(), nullptr, OdbcText(text), SQL_NTS, nullptr,
                                               0, nullptr, SQL_DRIVER_NOPROMPT);
    if (!Succeeded(result))
        throw OdbcOpeningError(ReadDiagnostics(SQL_HANDLE_DBC, connection_.Get()));
    try {
        if (IsSqlServer())
            Execute(SqlServerSession(options.BusyTimeout), {});
    } catch (...) {
        SQLDisconnect(connection_.Get());
        throw;
    }
}

bool TOdbcEngine::IsSqlServer() const
{
    std::array<SQLWCHAR, 128> name{};
    SQLSMALLINT bytes = 0;
    const SQLRETURN result = SQLGetInfoW(connection_.Get(), SQL_DBMS_NAME, name.data(),
                                         static_cast<SQLSMALLINT>(sizeof name), &bytes);
    return Succeeded(result) && QString::fromUtf16(reinterpret_cast<const char16_t*>(name.data()))
                                    .contains(QLatin1String("SQL Server"), Qt::CaseInsensitive);
}

TOdbcEngine::~TOdbcEngine()
{
    openRows_.ConnectionCloses();
    if (inTransaction_)
        SQLEndTran(SQL_HANDLE_DBC, connection_.Get(), SQL_ROLLBACK);
    SQLDisconnect(connection_.Get());
}

std::unique_ptr<IEngineRows> TOdbcEngine::Execute(const QString& text, const QVariantList& parameters)
{
    TOdbcStatement statement(connection_.Get());
    if (!statement)
        FailConnection();
    const SQLHANDLE handle = statement.Get();
    // The rows own the statement from here on and tell when it is closed, also when running it fails.
    auto rows = std::make_unique<TOdbcRows>(*this, std::move(statement), text);
    TOdbcParameters bound(parameters);
    SQLRETURN result = bound.Bind(handle);
    if (Succeeded(result))
        result = SQLExecDirectW(handle, OdbcText(text), static_cast<SQLINTEGER>(text.size()));
    // "No data" is how a statement answers that wrote no row, or that writes none, as DDL.
    if (!Succeeded(result) && result != SQL_NO_DATA)
        FailStatement(handle, text);
    rows->FindResult();
    return rows;
}

void TOdbcEngine::Begin()
{
    if (inTransaction_)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنش پیشین هنوز باز است."));
    openRows_.RefuseWhileOpen({});
    SetAutoCommit(false);
    inTransaction_ = true;
}

void TOdbcEngine::Commit()
{
    openRows_.RefuseWhileOpen({});
    EndTransaction(SQL_COMMIT);
}

void TOdbcEngine::Rollback()
{
    EndTransaction(SQL_ROLLBACK);
}

void TOdbcEngine::EndTransaction(SQLSMALLINT completion)
{
    if (!inTransaction_)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنشی باز نیست."));
    if (!Succeeded(SQLEndTran(SQL_HANDLE_DBC, connection_.Get(), completion)))
        FailConnection();
    inTransaction_ = false;
    SetAutoCommit(true);
}

void TOdbcEngine::SetAutoCommit(bool on)
{
    const auto value = static_cast<quintptr>(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    const SQLRETURN result = SQLSetConnectAttrW(connection_.Get(), SQL_ATTR_AUTOCOMMIT,
                                                reinterpret_cast<SQLPOINTER>(value), SQL_IS_UINTEGER);
    if (!Succeeded(result))
        FailConnection();
}

void TOdbcEngine::Cancel()
{
    const std::lock_guard lock(running_);
    if (!openStatement_)
        return;
    cancelRequested_ = true;
    SQLCancel(openStatement_);
}

void TOdbcEngine::RegisterFunction(const QString&, int, TDatabaseFunction)
{
}

void TOdbcEngine::StatementOpens(IOpenRows* rows, SQLHANDLE statement, const QString& text)
{
    openRows_.Take(rows, text);
    const std::lock_guard lock(running_);
    openStatement_ = statement;
    cancelRequested_ = false;
}

void TOdbcEngine::StatementCloses(const IOpenRows* rows)
{
    openRows_.Release(rows);
    const std::lock_guard lock(running_);
    openStatement_ = nullptr;
}

bool TOdbcEngine::ConnectionSaysDead() const
{
    SQLUINTEGER dead = SQL_CD_FALSE;
    const SQLRETURN result =
        SQLGetConnectAttrW(connection_.Get(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER, nullptr);
    return Succeeded(result) && dead == SQL_CD_TRUE;
}

void TOdbcEngine::FailStatement(SQLHANDLE statement, const QString& text)
{
    TOdbcDiagnostics diagnostics = ReadDiagnostics(SQL_HANDLE_STMT, statement);
    dead_ = dead_ || diagnostics.Dead || ConnectionSaysDead();
    diagnostics.Dead = dead_;
    bool cancelled = false;
    {
        const std::lock_guard lock(running_);
        cancelled = cancelRequested_ && !dead_;
    }
    throw OdbcError(diagnostics, text, cancelled ? TAdoErrorKind::Cancelled : TAdoErrorKind::Other);
}

void TOdbcEngine::FailConnection()
{
    const TOdbcDiagnostics diagnostics = ReadDiagnostics(SQL_HANDLE_DBC, connection_.Get());
    dead_ = dead_ || diagnostics.Dead;
    throw OdbcError(diagnostics, {});
}
