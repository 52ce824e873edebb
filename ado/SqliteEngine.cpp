#include "SqliteEngine.h"

#include "SqliteRows.h"

TSqliteEngine::TSqliteEngine(std::unique_ptr<TSqliteSession> session) : session_(std::move(session))
{
}

TSqliteEngine::~TSqliteEngine() = default;

std::unique_ptr<IEngineRows> TSqliteEngine::Execute(const QString& text, const QVariantList& parameters)
{
    return std::make_unique<TSqliteRows>(*session_, text, parameters);
}

void TSqliteEngine::Begin()
{
    if (InTransaction())
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنش پیشین هنوز باز است."));
    session_->OpenRows().RefuseWhileOpen({});
    // The write lock is taken now: a reader that turns writer later may be refused without a wait.
    session_->StatementStarts();
    try {
        session_->RunNative("BEGIN IMMEDIATE");
    } catch (...) {
        session_->StatementEnds();
        throw;
    }
    session_->StatementEnds();
}

void TSqliteEngine::Commit()
{
    if (!InTransaction())
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنشی باز نیست."));
    session_->OpenRows().RefuseWhileOpen({});
    session_->RunNative("COMMIT");
}

void TSqliteEngine::Rollback()
{
    if (!InTransaction())
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنشی باز نیست."));
    session_->RunNative("ROLLBACK");
    // Tables made within the transaction are gone.
    session_->SchemaChanged();
}

bool TSqliteEngine::InTransaction() const
{
    return sqlite3_get_autocommit(session_->Handle()) == 0;
}

void TSqliteEngine::Cancel()
{
    session_->RequestCancel();
}

void TSqliteEngine::RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function)
{
    session_->RegisterFunction(name, argumentCount, std::move(function));
}
