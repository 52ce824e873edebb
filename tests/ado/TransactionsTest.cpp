#include "ADOCommand.h"
#include "ADOConnection.h"
#include "AdoTestCase.h"
#include "SqliteFile.h"

#include <QThread>

class TransactionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aCommittedTransactionStays();
    void aTransactionLeftWithoutCommitIsUndone();
    void anErrorWithinATransactionUndoesIt();
    void aTransactionInATransactionIsRefused();
    void endingWithoutATransactionIsRefused();
    void closingUndoesAnOpenTransaction();
    void aTransactionSurvivesItsConnectionsEnd();
    void tablesMadeInAnUndoneTransactionAreGone();
    void aLockedDatabaseIsSaidWithinTheTimeout();
    void aShortLockIsWaitedFor();
    void aReadOnlyConnectionMayReadInATransaction();
    void aCommandTellsTheRowsWritten();
    void aCommandNeedsAConnection();

private:
    int Count() const { return file_->Value(QStringLiteral("SELECT count(*) FROM Goods")).toInt(); }
    void Insert(int code)
    {
        connection_->Execute(QStringLiteral("INSERT INTO Goods (Code) VALUES (?)"), {code});
    }
    std::unique_ptr<TADOConnection> Opened(const TEngineOptions& options) const;

    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<TADOConnection> connection_;
};

std::unique_ptr<TADOConnection> TransactionsTest::Opened(const TEngineOptions& options) const
{
    auto connection = std::make_unique<TADOConnection>();
    connection->SetConnectionString(file_->ConnectionString());
    connection->SetOptions(options);
    connection->Open();
    return connection;
}

void TransactionsTest::init()
{
    connection_.reset();
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(QStringLiteral("CREATE TABLE Goods(Code INT PRIMARY KEY)"));
    connection_ = Opened({});
}

void TransactionsTest::aCommittedTransactionStays()
{
    TTransaction transaction(*connection_);
    QVERIFY(connection_->InTransaction());
    Insert(1);
    Insert(2);
    QCOMPARE(Count(), 0);
    transaction.Commit();
    QVERIFY(!connection_->InTransaction());
    QCOMPARE(Count(), 2);
}

void TransactionsTest::aTransactionLeftWithoutCommitIsUndone()
{
    {
        const TTransaction transaction(*connection_);
        Insert(1);
    }
    QVERIFY(!connection_->InTransaction());
    QCOMPARE(Count(), 0);
}

void TransactionsTest::anErrorWithinATransactionUndoesIt()
{
    const EADOError error = ErrorOf([this] {
        TTransaction transaction(*connection_);
        Insert(1);
        Insert(1);
        transaction.Commit();
    });
    QCOMPARE(error.Kind(), TAdoErrorKind::Constraint);
    QCOMPARE(Count(), 0);
    Insert(1);
    QCOMPARE(Count(), 1);
}

void TransactionsTest::aTransactionInATransactionIsRefused()
{
    TTransaction transaction(*connection_);
    Insert(1);
    QCOMPARE(ErrorOf([this] { connection_->BeginTrans(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(connection_->InTransaction());
    transaction.Commit();
    QCOMPARE(Count(), 1);
}

void TransactionsTest::endingWithoutATransactionIsRefused()
{
    QCOMPARE(ErrorOf([this] { connection_->CommitTrans(); }).Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(ErrorOf([this] { connection_->RollbackTrans(); }).Kind(), TAdoErrorKind::WrongState);
    TTransaction transaction(*connection_);
    transaction.Commit();
    QCOMPARE(ErrorOf([&] { transaction.Commit(); }).Kind(), TAdoErrorKind::WrongState);
}

void TransactionsTest::closingUndoesAnOpenTransaction()
{
    connection_->BeginTrans();
    Insert(1);
    connection_->Close();
    QVERIFY(!connection_->InTransaction());
    QCOMPARE(Count(), 0);
    file_->Run(QStringLiteral("INSERT INTO Goods VALUES (5)"));
    QCOMPARE(Count(), 1);
}

void TransactionsTest::aTransactionSurvivesItsConnectionsEnd()
{
    const TTransaction transaction(*connection_);
    Insert(1);
    connection_.reset();
    QCOMPARE(Count(), 0);
}

void TransactionsTest::tablesMadeInAnUndoneTransactionAreGone()
{
    const QString insert = QStringLiteral("INSERT INTO Others (Code) VALUES (1)");
    {
        const TTransaction transaction(*connection_);
        connection_->Execute(QStringLiteral("CREATE TABLE Others (Code int)"));
        QCOMPARE(connection_->Execute(insert), 1);
    }
    QCOMPARE(ErrorOf([&] { connection_->Execute(insert); }).Kind(), TAdoErrorKind::Syntax);
}

void TransactionsTest::aLockedDatabaseIsSaidWithinTheTimeout()
{
    TEngineOptions options;
    options.BusyTimeout = 50;
    const auto impatient = Opened(options);
    const TForeignWriter writer(*file_);
    const QString text = QStringLiteral("INSERT INTO Goods (Code) VALUES (1)");
    const EADOError error = ErrorOf([&] { impatient->Execute(text); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Busy);
    QCOMPARE(error.Statement(), text);
    QVERIFY(!error.Message().isEmpty());
    QCOMPARE(ErrorOf([&] { impatient->BeginTrans(); }).Kind(), TAdoErrorKind::Busy);
    QVERIFY(!impatient->InTransaction());
    QVERIFY(impatient->Run(QStringLiteral("SELECT COUNT(*) FROM Goods"))->Next());
}

void TransactionsTest::aShortLockIsWaitedFor()
{
    auto writer = std::make_unique<TForeignWriter>(*file_);
    std::unique_ptr<QThread> releaser(QThread::create([&] {
        QThread::msleep(100);
        writer.reset();
    }));
    releaser->start();
    Insert(1);
    QVERIFY(releaser->wait());
    QCOMPARE(Count(), 1);
}

void TransactionsTest::aReadOnlyConnectionMayReadInATransaction()
{
    TEngineOptions options;
    options.ReadOnly = true;
    const auto reader = Opened(options);
    Insert(1);
    TTransaction transaction(*reader);
    QVERIFY(reader->Run(QStringLiteral("SELECT Code FROM Goods"))->Next());
    transaction.Commit();
}

void TransactionsTest::aCommandTellsTheRowsWritten()
{
    TADOCommand command;
    command.SetConnection(connection_.get());
    QCOMPARE(command.Connection(), connection_.get());
    command.CommandText = QStringLiteral("INSERT INTO Goods (Code) VALUES (?), (?)");
    command.Parameters = {1, 2};
    QCOMPARE(command.Execute(), 2);
    command.Parameters = {2, 3};
    const EADOError error = ErrorOf([&] { command.Execute(); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Constraint);
    QCOMPARE(error.Statement(), command.CommandText);
    QCOMPARE(Count(), 2);
}

void TransactionsTest::aCommandNeedsAConnection()
{
    TADOCommand command;
    command.CommandText = QStringLiteral("DELETE FROM Goods");
    QCOMPARE(ErrorOf([&] { command.Execute(); }).Kind(), TAdoErrorKind::WrongState);
    command.SetConnection(connection_.get());
    connection_.reset();
    QCOMPARE(ErrorOf([&] { command.Execute(); }).Kind(), TAdoErrorKind::WrongState);
}

QTEST_GUILESS_MAIN(TransactionsTest)
#include "TransactionsTest.moc"
