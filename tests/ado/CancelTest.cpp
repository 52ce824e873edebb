#include "ADOConnection.h"
#include "AdoTestCase.h"
#include "SqliteFile.h"

#include <atomic>
#include <QElapsedTimer>
#include <thread>

namespace {

const QString Endless =
    QStringLiteral("SELECT COUNT(*) FROM Digits a CROSS JOIN Digits b CROSS JOIN Digits c "
                   "CROSS JOIN Digits d CROSS JOIN Digits e CROSS JOIN Digits f "
                   "CROSS JOIN Digits g CROSS JOIN Digits h CROSS JOIN Digits i");

/// Cancels again and again while it lives, as an impatient user does.
class TCanceller
{
public:
    explicit TCanceller(TADOConnection& connection)
        : thread_([this, &connection] {
              while (!stop_) {
                  std::this_thread::sleep_for(std::chrono::milliseconds(5));
                  connection.Cancel();
              }
          })
    {
    }
    ~TCanceller()
    {
        stop_ = true;
        thread_.join();
    }

private:
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

} // namespace

class CancelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRunningStatementIsAbandoned();
    void rowsUnderWayAreAbandoned();
    void aCancelBetweenTwoStatementsIsForgotten();
    void aStatementThatWaitsForALockIsAbandoned();
    void aClosedConnectionTakesACancelQuietly();
    void cancelMayComeAtAnyMoment();

private:
    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<TADOConnection> connection_;
};

void CancelTest::init()
{
    connection_.reset();
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(QStringLiteral("CREATE TABLE Digits(Digit INT);"
                              "WITH n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 99)"
                              "INSERT INTO Digits SELECT i FROM n"));
    connection_ = std::make_unique<TADOConnection>();
    connection_->SetConnectionString(file_->ConnectionString());
    connection_->Open();
}

void CancelTest::aRunningStatementIsAbandoned()
{
    const TCanceller canceller(*connection_);
    const EADOError error = ErrorOf([&] { connection_->Run(Endless); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Cancelled);
    QCOMPARE(error.Statement(), Endless);
}

void CancelTest::rowsUnderWayAreAbandoned()
{
    const auto rows = connection_->Run(QStringLiteral("SELECT a.Digit FROM Digits a CROSS JOIN Digits b"));
    QVERIFY(rows->Next());
    connection_->Cancel();
    const EADOError error = ErrorOf([&] {
        while (rows->Next()) {
        }
    });
    QCOMPARE(error.Kind(), TAdoErrorKind::Cancelled);
    QVERIFY(!rows->Next());
}

void CancelTest::aCancelBetweenTwoStatementsIsForgotten()
{
    connection_->Cancel();
    QCOMPARE(connection_->Execute(QStringLiteral("UPDATE Digits SET Digit = Digit")), 100);
    connection_->Cancel();
    const auto rows = connection_->Run(QStringLiteral("SELECT COUNT(*) FROM Digits a CROSS JOIN Digits b"));
    QVERIFY(rows->Next());
    QCOMPARE(rows->Int64(0), 10000);
}

void CancelTest::aStatementThatWaitsForALockIsAbandoned()
{
    TEngineOptions patient;
    patient.BusyTimeout = 120000;
    connection_->Close();
    connection_->SetOptions(patient);
    connection_->Open();
    const TForeignWriter writer(*file_);
    const TCanceller canceller(*connection_);
    const QString text = QStringLiteral("DELETE FROM Digits");
    QCOMPARE(ErrorOf([&] { connection_->Execute(text); }).Kind(), TAdoErrorKind::Cancelled);
    QCOMPARE(ErrorOf([&] { connection_->BeginTrans(); }).Kind(), TAdoErrorKind::Cancelled);
    QVERIFY(!connection_->InTransaction());
}

void CancelTest::aClosedConnectionTakesACancelQuietly()
{
    connection_->Close();
    connection_->Cancel();
    connection_->Open();
    QCOMPARE(connection_->Execute(QStringLiteral("UPDATE Digits SET Digit = 1")), 100);
}

void CancelTest::cancelMayComeAtAnyMoment()
{
    std::atomic<bool> stop = false;
    std::thread hammer([&] {
        while (!stop)
            connection_->Cancel();
    });
    int finished = 0;
    int cancelled = 0;
    QString unexpected;
    for (int i = 0; i < 300; ++i) {
        try {
            connection_->Execute(QStringLiteral("SELECT COUNT(*) FROM Digits a CROSS JOIN Digits b"));
            ++finished;
        } catch (const EADOError& error) {
            if (error.Kind() == TAdoErrorKind::Cancelled)
                ++cancelled;
            else
                unexpected = QString::fromUtf8(error.what());
        }
        if (i % 50 == 0)
            connection_->Reopen();
    }
    stop = true;
    hammer.join();
    QCOMPARE(unexpected, QString());
    QCOMPARE(finished + cancelled, 300);
    QCOMPARE(connection_->Execute(QStringLiteral("UPDATE Digits SET Digit = 1")), 100);
}

QTEST_APPLESS_MAIN(CancelTest)
#include "CancelTest.moc"
