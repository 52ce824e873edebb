#include "ADOConnection.h"

#include "AdoError.h"

#include <atomic>
#include <mutex>

namespace {

constexpr QLatin1StringView MemoryConnection("sqlite::memory:");

/// A database in memory gets a name of its own, by which a clone finds the same one.
QString NamedIfInMemory(const QString& connectionString)
{
    static std::atomic<quint64> lastNumber{0};
    if (connectionString.compare(MemoryConnection, Qt::CaseInsensitive) != 0)
        return connectionString;
    return MemoryConnection + QString::number(++lastNumber);
}

} // namespace

struct TADOConnection::TPrivate
{
    struct TRegisteredFunction
    {
        QString Name;
        int ArgumentCount;
        TDatabaseFunction Function;
    };

    QString ConnectionString;
    QString OpenedString; ///< as the engine got it
    TEngineOptions Options;
    std::vector<TRegisteredFunction> Functions;
    TEngineFactory CreateEngine = OpenEngine;
    std::unique_ptr<IEngine> Engine;
    std::mutex EngineMutex; ///< between Cancel() of another thread and the engine's coming and going
    QString LostMessage;    ///< not empty once the connection has been found dead

    QString LostWords() const
    {
        return LostMessage.isEmpty() ? QStringLiteral("ارتباط با پایگاه داده قطع شد.") : LostMessage;
    }

    void ExchangeEngine(std::unique_ptr<IEngine> engine)
    {
        const std::unique_lock lock(EngineMutex);
        Engine.swap(engine);
    }
};

TADOConnection::TADOConnection(QObject* parent) : QObject(parent), d(std::make_unique<TPrivate>())
{
}

TADOConnection::~TADOConnection()
{
    d->ExchangeEngine(nullptr);
}

void TADOConnection::SetConnectionString(const QString& connectionString)
{
    d->ConnectionString = connectionString;
}

QString TADOConnection::ConnectionString() const
{
    return d->ConnectionString;
}

void TADOConnection::SetOptions(const TEngineOptions& options)
{
    d->Options = options;
}

TEngineOptions TADOConnection::Options() const
{
    return d->Options;
}

void TADOConnection::SetEngineFactory(TEngineFactory factory)
{
    d->CreateEngine = std::move(factory);
}

void TADOConnection::Open()
{
    if (IsLost())
        throw EADOError(TAdoErrorKind::ConnectionLost, d->LostWords());
    if (d->Engine)
        return;
    d->OpenedString = NamedIfInMemory(d->ConnectionString);
    std::unique_ptr<IEngine> engine = d->CreateEngine(d->OpenedString, d->Options);
    for (const TPrivate::TRegisteredFunction& function : d->Functions)
        engine->RegisterFunction(function.Name, function.ArgumentCount, function.Function);
    d->ExchangeEngine(std::move(engine));
}

void TADOConnection::Close()
{
    d->ExchangeEngine(nullptr);
    d->LostMessage.clear();
}

bool TADOConnection::Connected() const
{
    return d->Engine != nullptr && !IsLost();
}

bool TADOConnection::IsLost() const
{
    return !d->LostMessage.isEmpty() || (d->Engine && d->Engine->IsDead());
}

void TADOConnection::Reopen()
{
    const QString lostMessage = IsLost() ? d->LostWords() : QString();
    Close();
    try {
        Open();
    } catch (const EADOError&) {
        d->LostMessage = lostMessage;
        throw;
    }
}

IEngine& TADOConnection::LiveEngine(const QString& statement)
{
    if (IsLost()) {
        const EADOError error(TAdoErrorKind::ConnectionLost, d->LostWords(), statement);
        NoteError(error);
        throw EADOError(error);
    }
    if (!d->Engine)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("اتصال پایگاه داده باز نیست."), statement);
    return *d->Engine;
}

void TADOConnection::Announce(const QString& text)
{
    if (OnWillExecute)
        OnWillExecute(this, text);
    Q_EMIT willExecute(text);
}

void TADOConnection::NoteError(const EADOError& error)
{
    const bool dead = error.Kind() == TAdoErrorKind::ConnectionLost || (d->Engine && d->Engine->IsDead());
    if (!dead || !d->LostMessage.isEmpty())
        return;
    d->LostMessage = error.Kind() == TAdoErrorKind::ConnectionLost ? error.Message() : d->LostWords();
    Q_EMIT connectionLost(d->LostMessage);
}

std::unique_ptr<IEngineRows> TADOConnection::Run(const QString& text, const QVariantList& parameters)
{
    LiveEngine(text);
    Announce(text);
    // A handler may have closed the connection.
    IEngine& engine = LiveEngine(text);
    return Noting([&] { return engine.Execute(text, parameters); });
}

qint64 TADOConnection::Execute(const QString& text, const QVariantList& parameters)
{
    const std::unique_ptr<IEngineRows> rows = Run(text, parameters);
    return Noting([&] {
        while (rows->Next()) {
        }
        return rows->AffectedRows();
    });
}

void TADOConnection::BeginTrans()
{
    IEngine& engine = LiveEngine({});
    Noting([&] { engine.Begin(); });
}

void TADOConnection::CommitTrans()
{
    IEngine& engine = LiveEngine({});
    Noting([&] { engine.Commit(); });
}

void TADOConnection::RollbackTrans()
{
    IEngine& engine = LiveEngine({});
    Noting([&] { engine.Rollback(); });
}

bool TADOConnection::InTransaction() const
{
    return d->Engine && d->Engine->InTransaction();
}

void TADOConnection::Cancel()
{
    const std::lock_guard lock(d->EngineMutex);
    if (d->Engine)
        d->Engine->Cancel();
}

void TADOConnection::RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function)
{
    if (d->Engine)
        d->Engine->RegisterFunction(name, argumentCount, function);
    std::erase_if(d->Functions, [&](const TPrivate::TRegisteredFunction& known) {
        return known.ArgumentCount == argumentCount && known.Name.compare(name, Qt::CaseInsensitive) == 0;
    });
    d->Functions.push_back({name, argumentCount, std::move(function)});
}

std::unique_ptr<TADOConnection> TADOConnection::Clone()
{
    auto clone = std::make_unique<TADOConnection>();
    clone->d->ConnectionString = d->Engine ? d->OpenedString : d->ConnectionString;
    clone->d->Options = d->Options;
    clone->d->Options.CreateMissing = false;
    clone->d->Functions = d->Functions;
    clone->d->CreateEngine = d->CreateEngine;
    connect(clone.get(), &TADOConnection::willExecute, this, &TADOConnection::Announce);
    return clone;
}

TTransaction::TTransaction(TADOConnection& connection) : connection_(&connection)
{
    connection.BeginTrans();
}

TTransaction::~TTransaction()
{
    if (!connection_ || !connection_->InTransaction())
        return;
    try {
        connection_->RollbackTrans();
    } catch (const EADOError&) {
        // Rolling back fails only when the connection is dead, and the server has rolled back itself then.
        // The error that leads here is already on its way.
        return;
    }
}

void TTransaction::Commit()
{
    if (!connection_)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("تراکنشی باز نیست."));
    connection_->CommitTrans();
    connection_ = nullptr;
}
