#include "ADOConnection.h"
#include "AdoTestCase.h"
#include "SqliteFile.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>
#include <thread>

namespace {

/// An engine whose server goes away when the test says so.
class TFragileEngine final : public IEngine
{
public:
    explicit TFragileEngine(const bool* gone) : gone_(gone) {}
    void Die() { dead_ = true; }

    std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList&) override
    {
        if (*gone_) {
            dead_ = true;
            throw EADOError(TAdoErrorKind::ConnectionLost, QStringLiteral("ارتباط با سرور قطع شد."), text,
                            QStringLiteral("Communication link failure"), QStringLiteral("08S01"), 11);
        }
        throw EADOError(TAdoErrorKind::Syntax, QStringLiteral("نادرست"), text);
    }
    void Begin() override {}
    void Commit() override {}
    void Rollback() override {}
    bool InTransaction() const override { return false; }
    void Cancel() override {}
    bool IsDead() const override { return dead_; }
    void RegisterFunction(const QString&, int, TDatabaseFunction) override {}

private:
    const bool* gone_;
    bool dead_ = false;
};

class TFragileConnection : public TADOConnection
{
public:
    TFragileConnection()
    {
        SetEngineFactory([this](const QString&, const TEngineOptions&) { return MakeEngine(); });
    }

    bool Gone = false;
    bool Closed = false; ///< to new connections
    int Opened = 0;

    /// As rows under way see it, past the connection.
    void DieSilently() { engine_->Die(); }

private:
    std::unique_ptr<IEngine> MakeEngine()
    {
        if (Closed)
            throw EADOError(TAdoErrorKind::CannotOpen, QStringLiteral("سرور پاسخ نمی‌دهد."));
        ++Opened;
        auto engine = std::make_unique<TFragileEngine>(&Gone);
        engine_ = engine.get();
        return engine;
    }

    TFragileEngine* engine_ = nullptr;
};

} // namespace

class ConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aStatementNeedsAnOpenConnection();
    void openingTwiceAndClosingTwiceIsHarmless();
    void aFailedOpeningLeavesTheConnectionClosed();
    void eachStatementIsAnnouncedBeforeItRunsAsItWasWritten();
    void aStatementThatFailsHasBeenAnnounced();
    void aHandlerMayRefuseTheStatement();
    void aHandlerMayCloseTheConnection();
    void executeReadsAStatementToItsEnd();
    void aClonesStatementsAreAnnouncedByTheOriginal();
    void aCloneInAnotherThreadIsAnnouncedInTheOriginalsThread();
    void aCloneSeesTheSameDatabaseInMemory();
    void twoDatabasesInMemoryAreStrangers();
    void aCloneOutlivesItsOriginal();
    void functionsStayOverReopeningAndCloning();
    void aLostConnectionIsToldOnceAndRepeatsNothing();
    void aLostConnectionComesBackOnTheUsersWord();
    void aConnectionThatDoesNotComeBackStaysLost();
    void aReaderThatFindsTheConnectionDeadIsNoticedAtTheNextStatement();
    void anOrdinaryErrorLosesNothing();

private:
    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<TADOConnection> connection_;
};

void ConnectionTest::init()
{
    connection_.reset();
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(QStringLiteral("CREATE TABLE Goods(Code INT PRIMARY KEY, Name NVARCHAR(50))"));
    connection_ = std::make_unique<TADOConnection>();
    connection_->SetConnectionString(file_->ConnectionString());
    connection_->Open();
}

void ConnectionTest::aStatementNeedsAnOpenConnection()
{
    connection_->Close();
    const QString text = QStringLiteral("SELECT Code FROM Goods");
    const EADOError error = ErrorOf([&] { connection_->Run(text); });
    QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(error.Statement(), text);
    QCOMPARE(ErrorOf([&] { connection_->BeginTrans(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(!connection_->InTransaction());
    QVERIFY(!connection_->IsLost());
}

void ConnectionTest::openingTwiceAndClosingTwiceIsHarmless()
{
    connection_->Open();
    QVERIFY(connection_->Connected());
    connection_->Close();
    connection_->Close();
    QVERIFY(!connection_->Connected());
    connection_->Open();
    QCOMPARE(connection_->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)")), 1);
}

void ConnectionTest::aFailedOpeningLeavesTheConnectionClosed()
{
    connection_->Close();
    connection_->SetConnectionString(QStringLiteral("sqlite:") + file_->PathOf(QStringLiteral("missing.db")));
    QCOMPARE(ErrorOf([&] { connection_->Open(); }).Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(!connection_->Connected());
    connection_->SetConnectionString(file_->ConnectionString());
    connection_->Open();
    QVERIFY(connection_->Connected());
}

void ConnectionTest::eachStatementIsAnnouncedBeforeItRunsAsItWasWritten()
{
    QStringList log;
    connection_->OnWillExecute = [&](TADOConnection* sender, const QString& text) {
        QCOMPARE(sender, connection_.get());
        log.append(text + u'/' + file_->Value(QStringLiteral("SELECT count(*) FROM Goods")));
    };
    QSignalSpy spy(connection_.get(), &TADOConnection::willExecute);
    const QString insert = QStringLiteral(" INSERT  INTO Goods (Code, Name)\r\nVALUES (?, N'مداد') ");
    const QString select = QStringLiteral("SELECT Code FROM Goods");
    connection_->Execute(insert, {1});
    connection_->Run(select);
    QCOMPARE(log, (QStringList{insert + QStringLiteral("/0"), select + QStringLiteral("/1")}));
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[0][0].toString(), insert);
    QCOMPARE(spy[1][0].toString(), select);
}

void ConnectionTest::aStatementThatFailsHasBeenAnnounced()
{
    QSignalSpy spy(connection_.get(), &TADOConnection::willExecute);
    const QString text = QStringLiteral("SELECT Code FROM Missing");
    QCOMPARE(ErrorOf([&] { connection_->Run(text); }).Kind(), TAdoErrorKind::Syntax);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy[0][0].toString(), text);
}

void ConnectionTest::aHandlerMayRefuseTheStatement()
{
    connection_->OnWillExecute = [](TADOConnection*, const QString& text) {
        throw EADOError(TAdoErrorKind::Other, QStringLiteral("نه"), text);
    };
    const EADOError error =
        ErrorOf([&] { connection_->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)")); });
    QCOMPARE(error.Message(), QStringLiteral("نه"));
    QCOMPARE(file_->Value(QStringLiteral("SELECT count(*) FROM Goods")), QStringLiteral("0"));
}

void ConnectionTest::aHandlerMayCloseTheConnection()
{
    connection_->OnWillExecute = [](TADOConnection* sender, const QString&) { sender->Close(); };
    QCOMPARE(ErrorOf([&] { connection_->Run(QStringLiteral("SELECT Code FROM Goods")); }).Kind(),
             TAdoErrorKind::WrongState);
}

void ConnectionTest::executeReadsAStatementToItsEnd()
{
    QCOMPARE(connection_->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (1), (2), (3)")), 3);
    QCOMPARE(connection_->Execute(QStringLiteral("UPDATE Goods SET Name = ? WHERE Code > ?"),
                                  {QStringLiteral("x"), 1}),
             2);
    QCOMPARE(connection_->Execute(QStringLiteral("SELECT Code FROM Goods")), 0);
}

void ConnectionTest::aClonesStatementsAreAnnouncedByTheOriginal()
{
    QStringList log;
    connection_->OnWillExecute = [&](TADOConnection*, const QString& text) { log.append(text); };
    QSignalSpy spy(connection_.get(), &TADOConnection::willExecute);
    const auto clone = connection_->Clone();
    QVERIFY(!clone->Connected());
    clone->Open();
    const QString text = QStringLiteral("SELECT Code FROM Goods WHERE Code = 5");
    clone->Run(text);
    QCOMPARE(log, QStringList{text});
    QCOMPARE(spy.size(), 1);
}

void ConnectionTest::aCloneInAnotherThreadIsAnnouncedInTheOriginalsThread()
{
    QList<QThread*> threads;
    connection_->OnWillExecute = [&](TADOConnection*, const QString&) {
        threads.append(QThread::currentThread());
    };
    const auto clone = connection_->Clone();
    QThread worker;
    clone->moveToThread(&worker);
    QMetaObject::invokeMethod(clone.get(), [&] {
        clone->Open();
        clone->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)"));
        clone->Close();
        clone->moveToThread(connection_->thread());
    });
    worker.start();
    QTRY_COMPARE(threads.size(), 1);
    QCOMPARE(threads.first(), QThread::currentThread());
    worker.quit();
    QVERIFY(worker.wait());
    QCOMPARE(file_->Value(QStringLiteral("SELECT count(*) FROM Goods")), QStringLiteral("1"));
}

void ConnectionTest::aCloneSeesTheSameDatabaseInMemory()
{
    TADOConnection memory;
    memory.SetConnectionString(QStringLiteral("sqlite::memory:"));
    memory.Open();
    memory.Execute(QStringLiteral("CREATE TABLE Things (Code int)"));
    memory.Execute(QStringLiteral("INSERT INTO Things (Code) VALUES (7)"));
    const auto clone = memory.Clone();
    clone->Open();
    const auto rows = clone->Run(QStringLiteral("SELECT Code FROM Things"));
    QVERIFY(rows->Next());
    QCOMPARE(rows->Int64(0), 7);
    QCOMPARE(memory.ConnectionString(), QStringLiteral("sqlite::memory:"));
}

void ConnectionTest::twoDatabasesInMemoryAreStrangers()
{
    TADOConnection first;
    TADOConnection second;
    for (TADOConnection* memory : {&first, &second}) {
        memory->SetConnectionString(QStringLiteral("sqlite::memory:"));
        memory->Open();
        memory->Execute(QStringLiteral("CREATE TABLE Things (Code int)"));
    }
    QVERIFY(second.Connected());
}

void ConnectionTest::aCloneOutlivesItsOriginal()
{
    const auto clone = connection_->Clone();
    clone->Open();
    connection_.reset();
    QCOMPARE(clone->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)")), 1);
}

void ConnectionTest::functionsStayOverReopeningAndCloning()
{
    const auto answer = [](int number) {
        return [number](IFunctionContext&, const QVariantList&) { return QVariant(number); };
    };
    connection_->RegisterFunction(QStringLiteral("Answer"), 0, answer(41));
    connection_->RegisterFunction(QStringLiteral("ANSWER"), 0, answer(42));
    const auto value = [](TADOConnection& connection) {
        const auto rows = connection.Run(QStringLiteral("SELECT dbo.Answer()"));
        return rows->Next() ? rows->Int64(0) : -1;
    };
    QCOMPARE(value(*connection_), 42);
    connection_->Reopen();
    QCOMPARE(value(*connection_), 42);
    const auto clone = connection_->Clone();
    clone->Open();
    QCOMPARE(value(*clone), 42);
}

void ConnectionTest::aLostConnectionIsToldOnceAndRepeatsNothing()
{
    TFragileConnection fragile;
    fragile.Open();
    QSignalSpy lost(&fragile, &TADOConnection::connectionLost);
    QSignalSpy announced(&fragile, &TADOConnection::willExecute);
    fragile.Gone = true;
    const EADOError error = ErrorOf([&] { fragile.Run(QStringLiteral("SELECT 1")); });
    QCOMPARE(error.Kind(), TAdoErrorKind::ConnectionLost);
    QCOMPARE(error.State(), QStringLiteral("08S01"));
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost[0][0].toString(), QStringLiteral("ارتباط با سرور قطع شد."));
    QVERIFY(fragile.IsLost());
    QVERIFY(!fragile.Connected());

    fragile.Gone = false;
    QCOMPARE(ErrorOf([&] { fragile.Run(QStringLiteral("SELECT 2")); }).Kind(), TAdoErrorKind::ConnectionLost);
    QCOMPARE(ErrorOf([&] { fragile.Open(); }).Kind(), TAdoErrorKind::ConnectionLost);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(fragile.Opened, 1);
}

void ConnectionTest::aLostConnectionComesBackOnTheUsersWord()
{
    TFragileConnection fragile;
    fragile.Open();
    fragile.Gone = true;
    QCOMPARE(ErrorOf([&] { fragile.Run(QStringLiteral("SELECT 1")); }).Kind(), TAdoErrorKind::ConnectionLost);
    fragile.Gone = false;
    fragile.Reopen();
    QCOMPARE(fragile.Opened, 2);
    QVERIFY(fragile.Connected());
    QVERIFY(!fragile.IsLost());
}

void ConnectionTest::aConnectionThatDoesNotComeBackStaysLost()
{
    TFragileConnection fragile;
    fragile.Open();
    fragile.Gone = fragile.Closed = true;
    QCOMPARE(ErrorOf([&] { fragile.Run(QStringLiteral("SELECT 1")); }).Kind(), TAdoErrorKind::ConnectionLost);
    QCOMPARE(ErrorOf([&] { fragile.Reopen(); }).Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(fragile.IsLost());
    fragile.Gone = fragile.Closed = false;
    QCOMPARE(ErrorOf([&] { fragile.Open(); }).Kind(), TAdoErrorKind::ConnectionLost);
    fragile.Reopen();
    QVERIFY(fragile.Connected());
}

void ConnectionTest::aReaderThatFindsTheConnectionDeadIsNoticedAtTheNextStatement()
{
    TFragileConnection fragile;
    fragile.Open();
    fragile.DieSilently();
    QVERIFY(fragile.IsLost());
    QSignalSpy lost(&fragile, &TADOConnection::connectionLost);
    QSignalSpy announced(&fragile, &TADOConnection::willExecute);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(ErrorOf([&] { fragile.Run(QStringLiteral("SELECT 1")); }).Kind(),
                 TAdoErrorKind::ConnectionLost);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(announced.size(), 0);
}

void ConnectionTest::anOrdinaryErrorLosesNothing()
{
    TFragileConnection fragile;
    fragile.Open();
    QSignalSpy lost(&fragile, &TADOConnection::connectionLost);
    QCOMPARE(ErrorOf([&] { fragile.Run(QStringLiteral("SELECT")); }).Kind(), TAdoErrorKind::Syntax);
    QVERIFY(fragile.Connected());
    QCOMPARE(lost.size(), 0);
}

QTEST_GUILESS_MAIN(ConnectionTest)
#include "ConnectionTest.moc"
