#pragma once

#include "OpenRows.h"
#include "SqliteError.h"
#include "SqliteSchema.h"
#include "SqliteStatementCache.h"

#include <atomic>
#include <mutex>
#include <QElapsedTimer>

/// What the engine, its rows and its functions share: the handle, the statements, the abandoning of
/// statements.
class TSqliteSession
{
public:
    /// Takes the handle over, be it open or the remains of a failed opening.
    TSqliteSession(sqlite3* handle, int busyTimeout);
    TSqliteSession(const TSqliteSession&) = delete;
    TSqliteSession& operator=(const TSqliteSession&) = delete;
    ~TSqliteSession();

    sqlite3* Handle() const { return handle_; }
    TSqliteStatementCache& Statements() { return statements_; }
    /// Statements in SQLite's own words, used by registered functions.
    TSqliteStatementCache& NativeStatements() { return nativeStatements_; }

    /// Bracket a statement. A request between two statements finds none to abandon and leaves no trace.
    void StatementStarts();
    void StatementEnds();
    /// From any thread.
    void RequestCancel();

    TOpenRows& OpenRows() { return openRows_; }

    /// Tables or columns are others than before: translations made for the old ones are forgotten.
    void SchemaChanged();
    void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function);
    /// The exception for a result code of a running statement.
    EADOError Failure(int code, const QString& text) const;
    /// Runs words of the engine's own; throws EADOError.
    void RunNative(const char* words);

private:
    std::unique_ptr<TSqliteStatement> PrepareTranslated(const QString& text);
    std::unique_ptr<TSqliteStatement> PrepareNative(const QString& text) const;
    /// Notices tables that another connection has changed.
    void RefreshSchema();
    qint64 SchemaVersion();
    static int OnBusy(void* session, int count);
    static int OnProgress(void* session);

    sqlite3* handle_;
    int busyTimeout_;
    QElapsedTimer busyTime_;
    TSqliteStatementCache statements_;
    TSqliteStatementCache nativeStatements_;
    TOpenRows openRows_;
    Dialect::TSqliteSchema schema_;
    qint64 schemaVersion_ = -1;

    std::mutex cancelMutex_;
    int running_ = 0;
    std::atomic<bool> cancelRequested_ = false;
};
