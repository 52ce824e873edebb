#include "Dialect.h"
#include "SqliteEngine.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr QLatin1StringView MemoryName(":memory:");

constexpr qint64 SmallestDatabase = 512;

/// What SQLite is asked to open.
struct TTarget
{
    QByteArray Name;
    int Flags = 0;
    bool IsNewFile = false;
};

[[noreturn]] void Refuse(const QString& message, const QString& file)
{
    throw EADOError(TAdoErrorKind::CannotOpen, message.arg(QDir::toNativeSeparators(file)));
}

void CheckFile(const QFileInfo& file, const TEngineOptions& options)
{
    const QString path = file.absoluteFilePath();
    if (file.isDir())
        Refuse(QStringLiteral("«%1» پوشه است، نه پروندهٔ پایگاه داده."), path);
    if (file.exists()) {
        if (!file.isReadable())
            Refuse(QStringLiteral("اجازهٔ خواندن پروندهٔ پایگاه دادهٔ «%1» داده نشده است."), path);
        // SQLite takes a file shorter than its smallest page for an empty database and would write over it.
        if (file.size() > 0 && file.size() < SmallestDatabase)
            throw SqliteError(nullptr, SQLITE_NOTADB, TSqlitePhase::Opening);
        return;
    }
    if (!options.CreateMissing || options.ReadOnly)
        Refuse(QStringLiteral("پروندهٔ پایگاه دادهٔ «%1» پیدا نشد."), path);
    if (!file.absoluteDir().exists())
        Refuse(QStringLiteral("پوشهٔ «%1» پیدا نشد."), file.absolutePath());
}

TTarget FileTarget(const QString& name, const TEngineOptions& options)
{
    const QFileInfo file(name);
    CheckFile(file, options);
    TTarget target;
    // An absolute path is never taken for a URI.
    target.Name = QDir::toNativeSeparators(file.absoluteFilePath()).toUtf8();
    target.IsNewFile = !file.exists();
    target.Flags = options.ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (target.IsNewFile)
        target.Flags |= SQLITE_OPEN_CREATE;
    return target;
}

/// `:memory:` is a database of its own; `:memory:NAME` is shared by the connections of the program that name
/// it, and lives as long as one of them.
TTarget MemoryTarget(const QString& name)
{
    constexpr int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const QString shared = name.mid(MemoryName.size());
    if (shared.isEmpty())
        return {name.toUtf8(), Flags | SQLITE_OPEN_MEMORY};
    return {"file:/" + shared.toUtf8().toPercentEncoding() + "?vfs=memdb", Flags | SQLITE_OPEN_URI};
}

std::unique_ptr<TSqliteSession> OpenSession(const TTarget& target, const TEngineOptions& options)
{
    sqlite3* handle = nullptr;
    // One thread at a time uses a connection, so SQLite needs no locks of its own in it.
    const int code =
        sqlite3_open_v2(target.Name.constData(), &handle, target.Flags | SQLITE_OPEN_NOMUTEX, nullptr);
    auto session = std::make_unique<TSqliteSession>(handle, options.BusyTimeout);
    if (code != SQLITE_OK)
        throw SqliteError(handle, code, TSqlitePhase::Opening);
    return session;
}

} // namespace

std::unique_ptr<IEngine> OpenSqliteEngine(const QString& file, const TEngineOptions& options)
{
    if (file.trimmed().isEmpty())
        throw EADOError(TAdoErrorKind::CannotOpen, QStringLiteral("نام پروندهٔ پایگاه داده خالی است."));
    const TTarget target = file.startsWith(MemoryName) ? MemoryTarget(file) : FileTarget(file, options);
    std::unique_ptr<TSqliteSession> session = OpenSession(target, options);
    // Reading the schema shows a file that is no database, before anything could be written into it.
    session->RunNative("SELECT count(*) FROM sqlite_master");
    session->RunNative("PRAGMA foreign_keys = ON");
    if (target.IsNewFile)
        session->RunNative("PRAGMA journal_mode = WAL");
    Dialect::Register(session->Handle());
    return std::make_unique<TSqliteEngine>(std::move(session));
}
