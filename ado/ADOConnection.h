#pragma once

#include "AdoError.h"
#include "AdoExport.h"
#include "Engine.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QPointer>

class TADOConnection;

/// Raised before each statement with the exact text that the caller wrote.
using TWillExecuteEvent = std::function<void(TADOConnection* Sender, const QString& Text)>;

/// The connection to the host's database. Belongs to one thread; only Cancel() may be called from another.
class ADO_EXPORT TADOConnection : public QObject
{
    Q_OBJECT

public:
    explicit TADOConnection(QObject* parent = nullptr);
    ~TADOConnection() override;

    /// `sqlite:FILE`, `sqlite::memory:` or `odbc:CONNECTION STRING`. Takes effect at the next Open().
    void SetConnectionString(const QString& connectionString);
    QString ConnectionString() const;
    void SetOptions(const TEngineOptions& options); ///< takes effect at the next Open()
    TEngineOptions Options() const;
    /// Opens the engine in the place of OpenEngine(), for a host or a test with an engine of its own. Clones
    /// have it too and call it in their threads. Takes effect at the next Open().
    void SetEngineFactory(TEngineFactory factory);

    void Open();            ///< throws EADOError; an open connection stays as it is
    void Close();           ///< rolls back an open transaction
    bool Connected() const; ///< open, and not found dead since
    /// True after an error has told that the connection is dead. Nothing is reopened or repeated by itself.
    bool IsLost() const;
    /// Close() and Open(), on the user's word. A lost connection that cannot be opened stays a lost one.
    void Reopen();

    /// Runs a statement and delivers its rows; raises OnWillExecute first.
    std::unique_ptr<IEngineRows> Run(const QString& text, const QVariantList& parameters = {});
    /// Runs a statement to its end and returns the rows it wrote (-1 where the engine cannot tell).
    qint64 Execute(const QString& text, const QVariantList& parameters = {});

    /// Transactions do not nest. Each of the three throws EADOError, of the kind WrongState where there is
    /// one already, or none to end, or a result is still being read.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    bool InTransaction() const;

    /// Abandons the running statement, from any thread.
    void Cancel();

    /// Offers a function to statements on engines that do not bring it along; kept over Reopen() and Clone().
    void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function);
    /// A second connection to the same database, with the same options and functions, not yet open. Its
    /// statements are announced by this connection too (willExecute, queued when it works in another thread).
    /// A database in memory is found again while one of the connections is open.
    std::unique_ptr<TADOConnection> Clone();

    TWillExecuteEvent OnWillExecute; ///< in the thread of the statement; null for none

Q_SIGNALS:
    void willExecute(const QString& text); ///< with OnWillExecute
    /// The connection was found dead; `message` is the Persian sentence for the user.
    void connectionLost(const QString& message);

private:
    friend class TADOQuery; // reads rows to their end and tells what went wrong meanwhile

    IEngine& LiveEngine(const QString& statement);
    void Announce(const QString& text);
    void NoteError(const EADOError& error);
    /// Runs `work`; an error that tells of a dead connection is noted on its way.
    template <typename TWork> auto Noting(TWork work)
    {
        try {
            return work();
        } catch (const EADOError& error) {
            NoteError(error);
            throw;
        }
    }

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};

/// Rolls back when it goes out of scope without Commit().
class ADO_EXPORT TTransaction
{
public:
    explicit TTransaction(TADOConnection& connection);
    TTransaction(const TTransaction&) = delete;
    TTransaction& operator=(const TTransaction&) = delete;
    ~TTransaction();
    void Commit(); ///< at most once; throws EADOError, and the transaction is rolled back then

private:
    QPointer<TADOConnection> connection_;
};
