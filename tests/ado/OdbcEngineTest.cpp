#include "OdbcEngine.h"
#include "AdoError.h"
#include "Engine.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <thread>

/// The ODBC engine through the system's driver manager and a driver that every machine can have.
class OdbcEngineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void textsOfAnyLengthComeBackWhole_data();
    void textsOfAnyLengthComeBackWhole();
    void blobsOfAnySizeComeBackWhole_data();
    void blobsOfAnySizeComeBackWhole();
    void nullIsNullInEveryType();
    void numbersKeepTheirLastDigit();
    void aStatementThatWritesNoRowSucceeds();
    void aStatementTellsTheRowsItWrote();
    void columnsMayBeReadInAnyOrderAndTwice();
    void anUnfinishedReadIsClosedWithItsRows();
    void aFailedStatementLeavesTheConnectionUsable();
    void anErrorCarriesTheServersWordsAndTheStatement();
    void aBrokenRuleIsAConstraintError();
    void aTransactionIsRolledBack();
    void aTransactionIsCommitted();
    void anOpenTransactionIsRolledBackWithTheConnection();
    void cancellingEndsARunningStatement();
    void cancellingBetweenStatementsDoesNothing();
    void aFailedOpeningSaysWhatToLookAfter_data();
    void aFailedOpeningSaysWhatToLookAfter();
    void aSessionOnTheServerHasItsOptions();
    void aWrongConnectionStringIsRefused_data();
    void aWrongConnectionStringIsRefused();
    void theConnectionStringIsClosedAndSaysItsEncryption_data();
    void theConnectionStringIsClosedAndSaysItsEncryption();

private:
    std::unique_ptr<IEngine> Open() const;
    void Run(const QString& text, const QVariantList& parameters = {}) const;
    QVariant Scalar(const QString& text, const QVariantList& parameters = {}) const;

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<IEngine> engine_;
};

namespace {

TAdoErrorKind KindThrownBy(const std::function<void()>& action)
{
    try {
        action();
    } catch (const EADOError& error) {
        return error.Kind();
    }
    return TAdoErrorKind::Other;
}

} // namespace

std::unique_ptr<IEngine> OdbcEngineTest::Open() const
{
    return OpenEngine(
        QStringLiteral("odbc:Driver=%1;Database=%2")
            .arg(QStringLiteral(SQLITE_ODBC_DRIVER), folder_->filePath(QStringLiteral("data.db"))),
        {});
}

void OdbcEngineTest::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    engine_ = Open();
}

void OdbcEngineTest::cleanup()
{
    engine_.reset();
    folder_.reset();
}

void OdbcEngineTest::Run(const QString& text, const QVariantList& parameters) const
{
    const auto rows = engine_->Execute(text, parameters);
    while (rows->Next()) {
    }
}

QVariant OdbcEngineTest::Scalar(const QString& text, const QVariantList& parameters) const
{
    const auto rows = engine_->Execute(text, parameters);
    return rows->Next() ? rows->Value(0) : QVariant();
}

void OdbcEngineTest::textsOfAnyLengthComeBackWhole_data()
{
    QTest::addColumn<QString>("text");
    const QString line = QStringLiteral("می‌خواهم ۱۲۳ \"گل\" 'سرخ' 😀 ");
    QTest::newRow("empty") << QString("");
    QTest::newRow("one letter") << QStringLiteral("ی");
    QTest::newRow("a line") << line;
    for (const int length : {4094, 4095, 4096, 4097, 8191, 1000000})
        QTest::addRow("%d characters", length)
            << line.repeated(length / static_cast<int>(line.size()) + 1).left(length);
}

void OdbcEngineTest::textsOfAnyLengthComeBackWhole()
{
    QFETCH(const QString, text);
    Run(QStringLiteral("create table t(a nvarchar(10))"));
    Run(QStringLiteral("insert into t values (?)"), {text});
    const QVariant read = Scalar(QStringLiteral("select a from t"));
    QVERIFY(read.isValid());
    QCOMPARE(read.toString().size(), text.size());
    QVERIFY(read.toString() == text);
}

void OdbcEngineTest::blobsOfAnySizeComeBackWhole_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 8000, 8001, 65535, 65536, 65537, 10 * 1024 * 1024})
        QTest::addRow("%d bytes", size) << size;
}

void OdbcEngineTest::blobsOfAnySizeComeBackWhole()
{
    QFETCH(const int, size);
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 7 + i / 251) & 0xFF);
    Run(QStringLiteral("create table t(a varbinary)"));
    Run(QStringLiteral("insert into t values (?)"), {bytes});
    const QByteArray read = Scalar(QStringLiteral("select a from t")).toByteArray();
    QCOMPARE(read.size(), bytes.size());
    QVERIFY(read == bytes);
}

void OdbcEngineTest::nullIsNullInEveryType()
{
    Run(QStringLiteral(
        "create table t(a int, b bigint, c float, d nvarchar(9), e varbinary, f bit, g date, h timestamp)"));
    Run(QStringLiteral("insert into t values (?,?,?,?,?,?,?,?)"),
        QVariantList(7, QVariant()) << QVariant(QMetaType::fromType<QByteArray>()));
    const auto rows = engine_->Execute(QStringLiteral("select * from t"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Columns().size(), 8);
    for (int column = 0; column < 8; ++column) {
        QVERIFY2(rows->IsNull(column), qPrintable(rows->Columns().at(column).Name));
        QVERIFY(!rows->Value(column).isValid());
    }
}

void OdbcEngineTest::numbersKeepTheirLastDigit()
{
    Run(QStringLiteral("create table t(a bigint, b double, c bit)"));
    Run(QStringLiteral("insert into t values (?,?,?)"), {std::numeric_limits<qint64>::min(), 0.1, true});
    const auto rows = engine_->Execute(QStringLiteral("select a, b, c from t"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Int64(0), std::numeric_limits<qint64>::min());
    QCOMPARE(rows->Double(1), 0.1);
    QCOMPARE(rows->Value(2), QVariant(true));
}

void OdbcEngineTest::aStatementThatWritesNoRowSucceeds()
{
    Run(QStringLiteral("create table t(a int)"));
    const auto rows = engine_->Execute(QStringLiteral("update t set a = 1 where a = 2"), {});
    QCOMPARE(rows->AffectedRows(), 0);
    QVERIFY(rows->Columns().isEmpty());
    QVERIFY(!rows->Next());
}

void OdbcEngineTest::aStatementTellsTheRowsItWrote()
{
    Run(QStringLiteral("create table t(a int)"));
    Run(QStringLiteral("insert into t values (1)"));
    Run(QStringLiteral("insert into t values (2)"));
    QCOMPARE(engine_->Execute(QStringLiteral("update t set a = a * 10"), {})->AffectedRows(), 2);
    QCOMPARE(Scalar(QStringLiteral("select max(a) from t")).toInt(), 20);
}

void OdbcEngineTest::columnsMayBeReadInAnyOrderAndTwice()
{
    const auto rows = engine_->Execute(QStringLiteral("select 1 as a, 'دو' as b, 3 as c"), {});
    QVERIFY(rows->Next());
    QCOMPARE(rows->Int64(2), 3);
    QCOMPARE(rows->Text(1), QStringLiteral("دو"));
    QCOMPARE(rows->Int64(0), 1);
    QCOMPARE(rows->Text(1), QStringLiteral("دو"));
    QVERIFY(!rows->Next());
}

void OdbcEngineTest::anUnfinishedReadIsClosedWithItsRows()
{
    Run(QStringLiteral("create table t(a int)"));
    for (int i = 0; i < 3; ++i)
        Run(QStringLiteral("insert into t values (?)"), {i});
    {
        const auto rows = engine_->Execute(QStringLiteral("select a from t"), {});
        QVERIFY(rows->Next());
    }
    const auto other = Open();
    QCOMPARE(other->Execute(QStringLiteral("insert into t values (9)"), {})->AffectedRows(), 1);
}

void OdbcEngineTest::aFailedStatementLeavesTheConnectionUsable()
{
    QCOMPARE(KindThrownBy([this] { Run(QStringLiteral("selct 1")); }) == TAdoErrorKind::ConnectionLost,
             false);
    QVERIFY(!engine_->IsDead());
    QCOMPARE(Scalar(QStringLiteral("select 5")).toInt(), 5);
}

void OdbcEngineTest::anErrorCarriesTheServersWordsAndTheStatement()
{
    const QString statement = QStringLiteral("select ستون from nowhere");
    try {
        Run(statement);
        QFAIL("the statement has run");
    } catch (const EADOError& error) {
        QCOMPARE(error.Statement(), statement);
        QVERIFY2(error.ServerMessage().contains(QStringLiteral("nowhere")),
                 qPrintable(error.ServerMessage()));
        QCOMPARE(error.State().size(), 5);
        QVERIFY(!error.Message().isEmpty());
        QVERIFY(QString::fromUtf8(error.what()).contains(error.ServerMessage()));
    }
}

void OdbcEngineTest::aBrokenRuleIsAConstraintError()
{
    // This driver reports broken rules under a general state; what servers send is told from the state alone.
    TOdbcDiagnostics diagnostics;
    diagnostics.State = QStringLiteral("23000");
    diagnostics.Code = 2627;
    diagnostics.Message = QStringLiteral("Violation of PRIMARY KEY constraint");
    QCOMPARE(OdbcError(diagnostics, QStringLiteral("insert")).Kind(), TAdoErrorKind::Constraint);
    diagnostics.State = QStringLiteral("42S02");
    QCOMPARE(KindOf(diagnostics), TAdoErrorKind::Syntax);
    diagnostics.State = QStringLiteral("HY000");
    diagnostics.Code = 1222;
    QCOMPARE(KindOf(diagnostics), TAdoErrorKind::Busy);
    diagnostics.Dead = true;
    QCOMPARE(KindOf(diagnostics), TAdoErrorKind::ConnectionLost);
}

void OdbcEngineTest::aTransactionIsRolledBack()
{
    Run(QStringLiteral("create table t(a int)"));
    engine_->Begin();
    QVERIFY(engine_->InTransaction());
    Run(QStringLiteral("insert into t values (1)"));
    engine_->Rollback();
    QVERIFY(!engine_->InTransaction());
    QCOMPARE(Scalar(QStringLiteral("select count(*) from t")).toInt(), 0);
}

void OdbcEngineTest::aTransactionIsCommitted()
{
    Run(QStringLiteral("create table t(a int)"));
    engine_->Begin();
    Run(QStringLiteral("insert into t values (1)"));
    engine_->Commit();
    QCOMPARE(KindThrownBy([this] { engine_->Rollback(); }), TAdoErrorKind::WrongState);
    QCOMPARE(Scalar(QStringLiteral("select count(*) from t")).toInt(), 1);
}

void OdbcEngineTest::anOpenTransactionIsRolledBackWithTheConnection()
{
    Run(QStringLiteral("create table t(a int)"));
    engine_->Begin();
    Run(QStringLiteral("insert into t values (1)"));
    engine_ = Open();
    QCOMPARE(Scalar(QStringLiteral("select count(*) from t")).toInt(), 0);
}

void OdbcEngineTest::cancellingEndsARunningStatement()
{
    std::atomic<bool> done = false;
    // Cancels again and again, since nobody can tell from outside when the statement has begun to run.
    std::thread canceller([this, &done] {
        while (!done) {
            engine_->Cancel();
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    });
    const TAdoErrorKind kind = KindThrownBy([this] {
        Run(QStringLiteral(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 400000000) "
            "select count(*) from n"));
    });
    done = true;
    canceller.join();
    QCOMPARE(kind, TAdoErrorKind::Cancelled);
    QVERIFY(!engine_->IsDead());
}

void OdbcEngineTest::cancellingBetweenStatementsDoesNothing()
{
    engine_->Cancel();
    QCOMPARE(Scalar(QStringLiteral("select 7")).toInt(), 7);
}

void OdbcEngineTest::aFailedOpeningSaysWhatToLookAfter_data()
{
    using TRecord = TOdbcDiagnostics::TRecord;
    QTest::addColumn<QVector<TRecord>>("records");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("words");
    const QString none;
    const auto at = [](const char* state, int code = 0) { return TRecord{QString::fromLatin1(state), code}; };
    QTest::newRow("no such driver") << QVector<TRecord>{at("01000")}
                                    << QStringLiteral("Can't open lib 'None' : file not found")
                                    << QStringLiteral("راه‌انداز ODBC");
    QTest::newRow("no such data source") << QVector<TRecord>{at("IM002")} << none << QStringLiteral("DSN");
    QTest::newRow("no such database, over TDS")
        << QVector<TRecord>{at("42000", 4060), at("28000", 18456), at("08001")} << none
        << QStringLiteral("Database");
    QTest::newRow("no such database, the vendor's driver")
        << QVector<TRecord>{at("42000", 4060), at("42000", 4060)} << none << QStringLiteral("Database");
    QTest::newRow("wrong password, over TDS")
        << QVector<TRecord>{at("42000", 18456), at("08001", 20002)} << none << QStringLiteral("گذرواژه");
    QTest::newRow("wrong password, the vendor's driver")
        << QVector<TRecord>{at("28000", 18456)} << none << QStringLiteral("گذرواژه");
    QTest::newRow("no server, over TDS") << QVector<TRecord>{at("08001"), at("08S01", 20009)} << none
                                         << QStringLiteral("پاسخ نمی‌دهد");
    QTest::newRow("no server in time")
        << QVector<TRecord>{at("HYT00")} << none << QStringLiteral("پاسخ نمی‌دهد");
    QTest::newRow("unknown certificate")
        << QVector<TRecord>{at("08001", -1)}
        << QStringLiteral("SSL Provider: certificate verify failed:self-signed certificate")
        << QStringLiteral("TrustServerCertificate");
    QTest::newRow("anything else") << QVector<TRecord>{at("HY000", 1)} << QStringLiteral("connect failed")
                                   << QStringLiteral("برقرار نشد");
}

void OdbcEngineTest::aFailedOpeningSaysWhatToLookAfter()
{
    QFETCH(const QVector<TOdbcDiagnostics::TRecord>, records);
    QFETCH(const QString, message);
    QFETCH(const QString, words);
    TOdbcDiagnostics diagnostics;
    diagnostics.State = records.first().State;
    diagnostics.Code = records.first().Code;
    diagnostics.Message = message;
    diagnostics.Records = records;
    const EADOError error = OdbcOpeningError(diagnostics);
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QCOMPARE(error.ServerMessage(), message);
    QVERIFY2(error.Message().contains(words), qPrintable(error.Message()));
}

void OdbcEngineTest::aSessionOnTheServerHasItsOptions()
{
    const QString session = SqlServerSession(2500);
    QVERIFY(session.endsWith(QStringLiteral("\nSET LOCK_TIMEOUT 2500")));
    QVERIFY(SqlServerSession(-1).endsWith(QStringLiteral("\nSET LOCK_TIMEOUT 0")));
    const QStringList lines = session.split(u'\n');
    for (const QString& line : lines)
        QVERIFY2(line.startsWith(QStringLiteral("SET ")), qPrintable(line));
}

void OdbcEngineTest::aWrongConnectionStringIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no driver of that name") << QStringLiteral("odbc:Driver=NoSuchDriver;Server=nowhere");
    QTest::newRow("no driver at that path") << QStringLiteral("odbc:Driver=/nowhere/libdriver.so");
    QTest::newRow("rubbish") << QStringLiteral("odbc:rubbish");
    QTest::newRow("empty") << QStringLiteral("odbc:");
}

void OdbcEngineTest::aWrongConnectionStringIsRefused()
{
    QFETCH(const QString, text);
    try {
        OpenEngine(text, {});
        QFAIL("it has opened");
    } catch (const EADOError& error) {
        QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
        QVERIFY(!error.ServerMessage().isEmpty());
        QVERIFY(!error.Message().isEmpty());
    }
}

void OdbcEngineTest::theConnectionStringIsClosedAndSaysItsEncryption_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("sent");
    QTest::newRow("closed") << QStringLiteral("DSN=shop") << QStringLiteral("DSN=shop;");
    QTest::newRow("already closed") << QStringLiteral("DSN=shop; ") << QStringLiteral("DSN=shop;");
    QTest::newRow("over TDS") << QStringLiteral("Driver=FreeTDS;Server=s")
                              << QStringLiteral("Driver=FreeTDS;Server=s;Encryption=request;");
    QTest::newRow("over TDS, said") << QStringLiteral("Driver=/x/libtdsodbc.so;encryption=off")
                                    << QStringLiteral("Driver=/x/libtdsodbc.so;encryption=off;");
}

void OdbcEngineTest::theConnectionStringIsClosedAndSaysItsEncryption()
{
    QFETCH(const QString, given);
    QFETCH(const QString, sent);
    QCOMPARE(CompleteOdbcConnectionString(given), sent);
}

QTEST_GUILESS_MAIN(OdbcEngineTest)
#include "OdbcEngineTest.moc"
