#include "SqliteSession.h"

#include "SqliteFunction.h"

#include <algorithm>
#include <array>
#include <QThread>
#include <utility>

namespace {

constexpr int KeptStatements = 100;
constexpr int KeptNativeStatements = 16;
/// Virtual machine steps between two looks at a cancel request: often enough for a person, too seldom to
/// cost.
constexpr int StepsBetweenLooks = 4000;

} // namespace

TSqliteSession::TSqliteSession(sqlite3* handle, int busyTimeout)
    : handle_(handle), busyTimeout_(busyTimeout),
      statements_(KeptStatements, [this](const QString& text) { return PrepareTranslated(text); }),
      nativeStatements_(KeptNativeStatements, [this](const QString& text) { return PrepareNative(text); }),
      schema_(handle)
{
    if (handle_ == nullptr)
        return;
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_handler(handle_, &TSqliteSession::OnBusy, this);
    sqlite3_progress_handler(handle_, StepsBetweenLooks, &TSqliteSession::OnProgress, this);
}

TSqliteSession::~TSqliteSession()
{
    openRows_.ConnectionCloses();
    statements_.Clear();
    nativeStatements_.Clear();
    sqlite3_close_v2(handle_);
}

void TSqliteSession::StatementStarts()
{
    const std::lock_guard lock(cancelMutex_);
    ++running_;
}

void TSqliteSession::StatementEnds()
{
    const std::lock_guard lock(cancelMutex_);
    if (--running_ == 0)
        cancelRequested_.store(false, std::memory_order_relaxed);
}

void TSqliteSession::RequestCancel()
{
    const std::lock_guard lock(cancelMutex_);
    if (running_ == 0)
        return;
    // SQLite forgets an interruption that comes before the first step of a statement; the flag, which the
    // progress and busy handlers read, does not.
    cancelRequested_.store(true, std::memory_order_relaxed);
    sqlite3_interrupt(handle_);
}

int TSqliteSession::OnBusy(void* session, int count)
{
    // Short to the end: who waits long must not be overtaken again and again by those who have just come.
    static constexpr std::array<unsigned long, 3> Pauses{1, 2, 5};
    auto* self = static_cast<TSqliteSession*>(session);
    if (count == 0)
        self->busyTime_.start();
    if (self->cancelRequested_.load(std::memory_order_relaxed) ||
        self->busyTime_.elapsed() >= self->busyTimeout_)
        return 0;
    QThread::msleep(Pauses[std::min<std::size_t>(static_cast<std::size_t>(count), Pauses.size() - 1)]);
    return 1;
}

int TSqliteSession::OnProgress(void* session)
{
    return static_cast<TSqliteSession*>(session)->cancelRequested_.load(std::memory_order_relaxed) ? 1 : 0;
}

void TSqliteSession::SchemaChanged()
{
    statements_.Clear();
    schema_.Forget();
}

void TSqliteSession::RefreshSchema()
{
    const qint64 version = SchemaVersion();
    if (std::exchange(schemaVersion_, version) != version)
        SchemaChanged();
}

qint64 TSqliteSession::SchemaVersion()
{
    const QString words = QStringLiteral("PRAGMA schema_version");
    TSqliteStatement* statement = nativeStatements_.Take(words);
    const int code = sqlite3_step(statement->Handle);
    const qint64 version = sqlite3_column_int64(statement->Handle, 0);
    nativeStatements_.Give(statement);
    if (code != SQLITE_ROW)
        throw Failure(code, words);
    return version;
}

std::unique_ptr<TSqliteStatement> TSqliteSession::PrepareTranslated(const QString& text)
{
    try {
        RefreshSchema();
        const Dialect::TTranslation translation = Dialect::TranslateStatement(text, schema_);
        return PrepareSqlite(handle_, text, translation.Text, translation.ColumnTypes,
                             translation.ChangesSchema);
    } catch (const EADOError& error) {
        // SQLite's parser reports an interruption as one error or another.
        if (!cancelRequested_.load(std::memory_order_relaxed))
            throw;
        throw EADOError(TAdoErrorKind::Cancelled, QStringLiteral("دستور لغو شد."), text,
                        error.ServerMessage(), {}, SQLITE_INTERRUPT);
    }
}

std::unique_ptr<TSqliteStatement> TSqliteSession::PrepareNative(const QString& text) const
{
    return PrepareSqlite(handle_, text, text, {}, false);
}

void TSqliteSession::RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function)
{
    RegisterSqliteFunction(*this, name, argumentCount, std::move(function));
    // A translation may have been refused, or made, for want of this function.
    SchemaChanged();
}

EADOError TSqliteSession::Failure(int code, const QString& text) const
{
    const bool gaveUpWaiting =
        (code & 0xff) == SQLITE_BUSY && cancelRequested_.load(std::memory_order_relaxed);
    return SqliteError(handle_, gaveUpWaiting ? SQLITE_INTERRUPT : code, TSqlitePhase::Running, text);
}

void TSqliteSession::RunNative(const char* words)
{
    const int code = sqlite3_exec(handle_, words, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throw Failure(code, QString::fromLatin1(words));
}
