#pragma once

#include "AdoExport.h"
#include "FieldType.h"

#include <functional>
#include <memory>
#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVector>
#include <string>

/// The rows of one executed statement, forward-only. One statement is open on a connection at a time: another
/// one, and the beginning and the commit of a transaction, are refused (WrongState) from its execution until
/// Next() has returned false or the rows are destroyed. A statement without columns is not open.
/// Column indexes count from 0; reading a column twice is allowed until Next() is called.
class ADO_EXPORT IEngineRows
{
public:
    IEngineRows() = default;
    IEngineRows(const IEngineRows&) = delete;
    IEngineRows& operator=(const IEngineRows&) = delete;
    virtual ~IEngineRows(); ///< closes the statement, read to its end or not

    /// Empty for a statement that delivers no rows.
    virtual const QVector<TColumnInfo>& Columns() const = 0;
    /// Moves to the next row; false behind the last one. Before the first call there is no current row.
    virtual bool Next() = 0;
    /// The values of a column in the current row, converted where its type is another one; NULL reads as 0,
    /// as empty text or as no bytes.
    virtual bool IsNull(int column) = 0;
    virtual qint64 Int64(int column) = 0;
    virtual double Double(int column) = 0;
    virtual QString Text(int column) = 0;
    /// Puts the text of a column, which is not NULL, behind what is in `buffer`: for callers that keep many.
    virtual void AppendText(int column, std::u16string& buffer);
    virtual QByteArray Blob(int column) = 0;
    /// The value in the variant that the column's type asks for: bool, int, qint64, double, QString,
    /// QByteArray; an invalid variant for NULL.
    virtual QVariant Value(int column) = 0;
    /// Rows written by the statement; -1 where the engine cannot tell.
    virtual qint64 AffectedRows() = 0;
};

/// What a registered database function may do while it runs: read the same database.
class ADO_EXPORT IFunctionContext
{
public:
    virtual ~IFunctionContext();
    /// First column of each row of an engine-native statement; `?` marks take the arguments in order.
    virtual QVariantList FirstColumn(const char* statement, const QVariantList& arguments) = 0;
};

/// A scalar function offered to statements as `dbo.NAME(...)`. NULL arguments are invalid variants.
using TDatabaseFunction = std::function<QVariant(IFunctionContext& context, const QVariantList& arguments)>;

/// One open connection of one engine. Used by one thread at a time; only Cancel() may come from another.
class ADO_EXPORT IEngine
{
public:
    IEngine() = default;
    IEngine(const IEngine&) = delete;
    IEngine& operator=(const IEngine&) = delete;
    virtual ~IEngine(); ///< closes the connection; an open transaction is rolled back

    /// Runs a T-SQL text. `parameters` fill its `?` marks in order: QString, QByteArray, bool, int, qint64,
    /// double, or an invalid variant for NULL. Throws EADOError.
    virtual std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList& parameters) = 0;
    virtual void Begin() = 0; ///< throws EADOError; transactions do not nest
    virtual void Commit() = 0;
    virtual void Rollback() = 0;
    virtual bool InTransaction() const = 0;
    /// Abandons the statement now running on this connection, from any thread; it then throws
    /// TAdoErrorKind::Cancelled. Does nothing when none runs.
    virtual void Cancel() = 0;
    /// True once the connection has been seen to be lost.
    virtual bool IsDead() const = 0;
    /// Makes a function known to statements. Engines whose server owns its functions ignore it.
    virtual void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function) = 0;
};

/// How a connection string opens: `sqlite:FILE`, `sqlite::memory:` or `odbc:CONNECTION STRING`.
struct TEngineOptions
{
    bool ReadOnly = false;      ///< writes are refused by the engine
    bool CreateMissing = false; ///< embedded engine only: create the file when there is none
    int BusyTimeout = 5000;     ///< milliseconds to wait for another user's lock
    int LoginTimeout = 15;      ///< seconds; ODBC only
};

/// Opens an engine; throws EADOError where it cannot.
using TEngineFactory =
    std::function<std::unique_ptr<IEngine>(const QString& connectionString, const TEngineOptions& options)>;

/// Opens the engine that the string's prefix names. Throws EADOError (CannotOpen, NotADatabase, Busy).
ADO_EXPORT std::unique_ptr<IEngine> OpenEngine(const QString& connectionString,
                                               const TEngineOptions& options);
/// The engines that OpenEngine chooses from; the strings come without the prefix.
std::unique_ptr<IEngine> OpenSqliteEngine(const QString& file, const TEngineOptions& options);
std::unique_ptr<IEngine> OpenOdbcEngine(const QString& connectionString, const TEngineOptions& options);
