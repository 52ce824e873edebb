#include "AdoError.h"
#include "GoodsFile.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int rowCount = 3000;
const QString lostMessage = QStringLiteral("ارتباط با سرور قطع شد.");
const QString refusedMessage = QStringLiteral("سرور پاسخ نمی‌دهد.");

/// The server behind the connections of a test: an embedded database that can go away.
struct TServer
{
    std::atomic<bool> Gone = false;
    std::atomic<int> Connections = 0; ///< opened so far
    std::atomic<int> Statements = 0;  ///< run so far

    void Check(const QString& text) const
    {
        if (Gone)
            throw EADOError(TAdoErrorKind::ConnectionLost, lostMessage, text,
                            QStringLiteral("Read from the server failed"), QStringLiteral("08S01"), 20004);
    }
};

/// Notices that the server has gone when it reads on.
class TRemoteRows final : public IEngineRows
{
public:
    TRemoteRows(const TServer& server, std::unique_ptr<IEngineRows> rows, QString text)
        : server_(server), rows_(std::move(rows)), text_(std::move(text))
    {
    }

    const QVector<TColumnInfo>& Columns() const override { return rows_->Columns(); }
    bool Next() override
    {
        server_.Check(text_);
        return rows_->Next();
    }
    bool IsNull(int column) override { return rows_->IsNull(column); }
    qint64 Int64(int column) override { return rows_->Int64(column); }
    double Double(int column) override { return rows_->Double(column); }
    QString Text(int column) override { return rows_->Text(column); }
    QByteArray Blob(int column) override { return rows_->Blob(column); }
    QVariant Value(int column) override { return rows_->Value(column); }
    qint64 AffectedRows() override { return rows_->AffectedRows(); }

private:
    const TServer& server_;
    std::unique_ptr<IEngineRows> rows_;
    QString text_;
};

/// A connection to the server; dead for good once it has met that the server is gone.
class TRemoteEngine final : public IEngine
{
public:
    TRemoteEngine(TServer& server, std::unique_ptr<IEngine> engine)
        : server_(server), engine_(std::move(engine))
    {
    }

    std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList& parameters) override
    {
        dead_ = dead_ || server_.Gone;
        server_.Check(text);
        ++server_.Statements;
        return std::make_unique<TRemoteRows>(server_, engine_->Execute(text, parameters), text);
    }
    void Begin() override { engine_->Begin(); }
    void Commit() override { engine_->Commit(); }
    void Rollback() override { engine_->Rollback(); }
    bool InTransaction() const override { return engine_->InTransaction(); }
    void Cancel() override { engine_->Cancel(); }
    bool IsDead() const override { return dead_; }
    void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function) override
    {
        engine_->RegisterFunction(name, argumentCount, std::move(function));
    }

private:
    TServer& server_;
    std::unique_ptr<IEngine> engine_;
    std::atomic<bool> dead_ = false;
};

} // namespace

/// A list whose server goes away: it says so once, keeps what it shows, and comes back when it is told to.
class PagedDataSetLossTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aNewConditionTellsTheLossAndKeepsTheRows_data();
    void aNewConditionTellsTheLossAndKeepsTheRows();
    void nothingIsOpenedAgainWithoutTheUsersWord();
    void refreshOpensAgain();
    void refreshOfAServerThatStaysAwayTellsItAndKeepsTheRows();
    void scrollingTellsTheLossOnce();
    void aLossWhileCountingKeepsTheKnownRows();
    void openingTellsTheLoss();
    void closingAndDestroyingAfterTheLossAreQuiet();

private:
    void OpenCounted();
    void ShowAll();

    TGoodsFile goods_{rowCount};
    TServer server_;
    std::unique_ptr<TADOConnection> connection_;
    std::unique_ptr<TPagedDataSet> dataSet_;
    std::unique_ptr<QSignalSpy> failed_;
};

void PagedDataSetLossTest::initTestCase()
{
    goods_.RegisterTick();
}

void PagedDataSetLossTest::init()
{
    server_.Gone = false;
    connection_ = goods_.Connection.Clone();
    connection_->SetEngineFactory([this](const QString& connectionString, const TEngineOptions& options) {
        if (server_.Gone)
            throw EADOError(TAdoErrorKind::CannotOpen, refusedMessage);
        ++server_.Connections;
        return std::make_unique<TRemoteEngine>(server_, OpenEngine(connectionString, options));
    });
    connection_->Open();
    dataSet_ = goods_.DataSet();
    dataSet_->SetConnection(connection_.get());
    failed_ = std::make_unique<QSignalSpy>(dataSet_.get(), &TPagedDataSet::failed);
}

void PagedDataSetLossTest::cleanup()
{
    failed_.reset();
    dataSet_.reset();
    connection_.reset();
}

void PagedDataSetLossTest::OpenCounted()
{
    dataSet_->Open();
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    QCOMPARE(failed_->size(), 0);
}

void PagedDataSetLossTest::ShowAll()
{
    QVERIFY(dataSet_->WaitForFirstPage());
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    for (const int row : {1, 1500, rowCount}) {
        dataSet_->SetRecNo(row);
        QVERIFY(dataSet_->WaitForCurrentRow());
        QCOMPARE(dataSet_->CurrentKey(), QVariant(row));
    }
}

void PagedDataSetLossTest::aNewConditionTellsTheLossAndKeepsTheRows_data()
{
    QTest::addColumn<QString>("orderField");
    QTest::newRow("by key") << QStringLiteral("Code");
    // Two threads meet the loss there.
    QTest::newRow("by another field") << QStringLiteral("Price");
}

void PagedDataSetLossTest::aNewConditionTellsTheLossAndKeepsTheRows()
{
    QFETCH(const QString, orderField);
    dataSet_->SetOrder(orderField, Qt::AscendingOrder);
    OpenCounted();
    const QVariant firstKey = dataSet_->CurrentKey();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 10"));
    QVERIFY(!dataSet_->WaitForFirstPage());
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(failed_->size(), 1);
    QCOMPARE(failed_->first()[0].toString(), lostMessage);
    QCOMPARE(failed_->first()[1].toString(), QStringLiteral("Read from the server failed"));
    QVERIFY(dataSet_->Active());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    QCOMPARE(dataSet_->CurrentKey(), firstKey);
    QVERIFY(dataSet_->ValueAt(50, 0).isValid());
}

void PagedDataSetLossTest::nothingIsOpenedAgainWithoutTheUsersWord()
{
    OpenCounted();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 10"));
    QTRY_COMPARE(failed_->size(), 1);
    server_.Gone = false;
    const int connections = server_.Connections;
    const int statements = server_.Statements;
    dataSet_->SetCondition(QStringLiteral("Code > 20"));
    QTRY_COMPARE(failed_->size(), 2);
    QCOMPARE(failed_->last()[0].toString(), lostMessage);
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(server_.Connections, connections);
    QCOMPARE(server_.Statements, statements);
}

void PagedDataSetLossTest::refreshOpensAgain()
{
    OpenCounted();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 0"));
    QTRY_COMPARE(failed_->size(), 1);
    server_.Gone = false;
    dataSet_->Refresh();
    ShowAll();
    QCOMPARE(failed_->size(), 1);
    QCOMPARE(dataSet_->Condition(), QStringLiteral("Code > 0"));
}

void PagedDataSetLossTest::refreshOfAServerThatStaysAwayTellsItAndKeepsTheRows()
{
    OpenCounted();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 0"));
    QTRY_COMPARE(failed_->size(), 1);
    dataSet_->Refresh();
    QTRY_COMPARE(failed_->size(), 2);
    QCOMPARE(failed_->last()[0].toString(), refusedMessage);
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    QVERIFY(dataSet_->ValueAt(50, 0).isValid());

    server_.Gone = false;
    const int connections = server_.Connections;
    dataSet_->SetCondition(QStringLiteral("Code > 20"));
    QTRY_COMPARE(failed_->size(), 3);
    QCOMPARE(server_.Connections, connections);
    dataSet_->SetCondition({});
    QTRY_COMPARE(failed_->size(), 4);
    dataSet_->Refresh();
    ShowAll();
    QCOMPARE(failed_->size(), 4);
}

void PagedDataSetLossTest::scrollingTellsTheLossOnce()
{
    OpenCounted();
    server_.Gone = true;
    dataSet_->SetRecNo(1500);
    QVERIFY(!dataSet_->WaitForCurrentRow(1000));
    QTRY_COMPARE(failed_->size(), 1);
    QCOMPARE(failed_->first()[0].toString(), lostMessage);
    for (int row = 1000; row < 2000; row += 50)
        QVERIFY(!dataSet_->ValueAt(row, 0).isValid());
    QTest::qWait(100);
    QCOMPARE(failed_->size(), 1);
    QVERIFY(!dataSet_->CurrentKey().isValid());
    server_.Gone = false;
    dataSet_->Refresh();
    ShowAll();
}

void PagedDataSetLossTest::aLossWhileCountingKeepsTheKnownRows()
{
    goods_.Ticks = 0;
    // A page takes a tenth of a second, the count three seconds.
    dataSet_->SetCondition(QStringLiteral("dbo.Tick(Code) > 0"));
    dataSet_->Open();
    QVERIFY(dataSet_->WaitForFirstPage());
    QTRY_VERIFY(goods_.Ticks > 200);
    server_.Gone = true;
    QTRY_COMPARE(failed_->size(), 1);
    QCOMPARE(failed_->first()[0].toString(), lostMessage);
    QTRY_VERIFY(!dataSet_->Busy());
    QVERIFY(!dataSet_->CountIsExact());
    QCOMPARE(dataSet_->RecordCount(), 100);
    QCOMPARE(dataSet_->ValueAt(99, 0), QVariant(100));
    server_.Gone = false;
    dataSet_->SetCondition({});
    dataSet_->Refresh();
    ShowAll();
}

void PagedDataSetLossTest::openingTellsTheLoss()
{
    server_.Gone = true;
    QVERIFY_THROWS_EXCEPTION(EADOError, dataSet_->Open());
    QVERIFY(!dataSet_->Active());
    server_.Gone = false;
    QVERIFY_THROWS_EXCEPTION(EADOError, dataSet_->Open());
    connection_->Reopen();
    dataSet_->Open();
    ShowAll();
}

void PagedDataSetLossTest::closingAndDestroyingAfterTheLossAreQuiet()
{
    OpenCounted();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 10"));
    QTRY_COMPARE(failed_->size(), 1);
    dataSet_->Close();
    QVERIFY(!dataSet_->Active());
    server_.Gone = false;
    connection_->Reopen();
    dataSet_->SetCondition({});
    dataSet_->Open();
    ShowAll();
    server_.Gone = true;
    dataSet_->SetCondition(QStringLiteral("Code > 10"));
    failed_.reset();
    dataSet_.reset();
}

QTEST_GUILESS_MAIN(PagedDataSetLossTest)
#include "PagedDataSetLossTest.moc"
