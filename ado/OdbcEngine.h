#pragma once

#include "Engine.h"
#include "OdbcDiagnostics.h"
#include "OdbcHandles.h"
#include "OpenRows.h"

#include <mutex>

/// One connection through the driver manager: unixODBC here, the system's own on Windows.
class TOdbcEngine final : public IEngine
{
public:
    TOdbcEngine(const QString& connectionString, const TEngineOptions& options);
    ~TOdbcEngine() override;

    std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList& parameters) override;
    void Begin() override;
    void Commit() override;
    void Rollback() override;
    bool InTransaction() const override { return inTransaction_; }
    void Cancel() override;
    bool IsDead() const override { return dead_; }
    /// The server owns its functions.
    void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function) override;

    /// Throws the exception for a failed call on a statement of this connection.
    [[noreturn]] void FailStatement(SQLHANDLE statement, const QString& text);
    /// Called by the rows when they take up their statement and when they are done with it. The first throws
    /// EADOError (WrongState) while other rows are open.
    void StatementOpens(IOpenRows* rows, SQLHANDLE statement, const QString& text);
    void StatementCloses(const IOpenRows* rows);

private:
    [[noreturn]] void FailConnection();
    bool IsSqlServer() const;
    void EndTransaction(SQLSMALLINT completion);
    void SetAutoCommit(bool on);
    bool ConnectionSaysDead() const;

    TOdbcEnvironment environment_;
    TOdbcConnection connection_;
    TOpenRows openRows_;
    bool inTransaction_ = false;
    bool dead_ = false;

    std::mutex running_; ///< guards the two below, which Cancel reads from another thread
    SQLHANDLE openStatement_ = nullptr;
    bool cancelRequested_ = false;
};

/// The connection string as the drivers want it: closed by ";" (a driver over TDS takes the last value with
/// whatever follows it otherwise), and for that driver with the encryption said explicitly.
ADO_EXPORT QString CompleteOdbcConnectionString(const QString& connectionString);

/// What a session on SQL Server begins with, whatever its driver and the server's settings prefer: the
/// options that the computed columns and their indexes ask for, dates read as year, month, day, long values
/// not cut off (a driver over TDS has the server cut them to some ten thousand bytes), and an end to waiting
/// for another user's lock after `busyTimeout` milliseconds.
ADO_EXPORT QString SqlServerSession(int busyTimeout);
