#include "AdoTestCase.h"
#include "Engine.h"

#include <QTemporaryDir>

/// One statement is open on a connection at a time, and each engine keeps to it in the same way.
class OpenRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void aSecondStatementIsRefusedUntilTheFirstIsReadToItsEnd();
    void aSecondStatementIsRefusedUntilTheRowsAreGone();
    void aReadingWithoutRowsIsOpenUntilItSaysSo();
    void aStatementWithoutColumnsIsNotOpen();
    void aTransactionNeitherBeginsNorIsCommittedMeanwhile();
    void aRefusedStatementDoesNotDisturbTheReading();
    void aFailedStatementIsNotOpen();
    void rowsSurviveTheirConnection();

private:
    std::unique_ptr<IEngineRows> Run(const QString& text) { return engine_->Execute(text, {}); }
    TAdoErrorKind RefusalOf(const QString& text)
    {
        return ErrorOf([&] { Run(text); }).Kind();
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<IEngine> engine_;
};

namespace {

const QString all = QStringLiteral("SELECT Code FROM Goods");

} // namespace

void OpenRowsTest::initTestCase_data()
{
    QTest::addColumn<QString>("connection");
    QTest::newRow("embedded") << QStringLiteral("sqlite:%1");
    QTest::newRow("over ODBC") << QStringLiteral("odbc:Driver=" SQLITE_ODBC_DRIVER ";Database=%1");
}

void OpenRowsTest::init()
{
    QFETCH_GLOBAL(const QString, connection);
    folder_ = std::make_unique<QTemporaryDir>();
    TEngineOptions options;
    options.CreateMissing = true;
    engine_ = OpenEngine(connection.arg(folder_->filePath(QStringLiteral("goods.db"))), options);
    Run(QStringLiteral("CREATE TABLE Goods (Code int NOT NULL)"));
    Run(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)"));
    Run(QStringLiteral("INSERT INTO Goods (Code) VALUES (2)"));
}

void OpenRowsTest::cleanup()
{
    engine_.reset();
    folder_.reset();
}

void OpenRowsTest::aSecondStatementIsRefusedUntilTheFirstIsReadToItsEnd()
{
    const auto rows = Run(all);
    QCOMPARE(RefusalOf(all), TAdoErrorKind::WrongState);
    QVERIFY(rows->Next());
    QCOMPARE(RefusalOf(all), TAdoErrorKind::WrongState);
    QVERIFY(rows->Next());
    QCOMPARE(RefusalOf(QStringLiteral("DELETE FROM Goods")), TAdoErrorKind::WrongState);
    QVERIFY(!rows->Next());
    QVERIFY(Run(all)->Next());
    QVERIFY(!rows->Next());
    QVERIFY(rows->IsNull(0));
}

void OpenRowsTest::aSecondStatementIsRefusedUntilTheRowsAreGone()
{
    auto rows = Run(all);
    QVERIFY(rows->Next());
    QCOMPARE(RefusalOf(all), TAdoErrorKind::WrongState);
    rows.reset();
    QVERIFY(Run(all)->Next());
}

void OpenRowsTest::aReadingWithoutRowsIsOpenUntilItSaysSo()
{
    const auto rows = Run(all + QStringLiteral(" WHERE Code = 3"));
    QCOMPARE(RefusalOf(all), TAdoErrorKind::WrongState);
    QVERIFY(!rows->Next());
    QVERIFY(Run(all)->Next());
}

void OpenRowsTest::aStatementWithoutColumnsIsNotOpen()
{
    const auto written = Run(QStringLiteral("UPDATE Goods SET Code = Code + 1"));
    const auto created = Run(QStringLiteral("CREATE TABLE Others (Code int NOT NULL)"));
    QVERIFY(!Run(QStringLiteral("SELECT Code FROM Others"))->Next());
    QCOMPARE(written->AffectedRows(), 2);
    QVERIFY(!written->Next());
    QVERIFY(!created->Next());
}

void OpenRowsTest::aTransactionNeitherBeginsNorIsCommittedMeanwhile()
{
    auto rows = Run(all);
    QCOMPARE(ErrorOf([this] { engine_->Begin(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(!engine_->InTransaction());
    rows.reset();
    engine_->Begin();
    Run(QStringLiteral("DELETE FROM Goods WHERE Code = 1"));
    rows = Run(all);
    QCOMPARE(ErrorOf([this] { engine_->Commit(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(engine_->InTransaction());
    rows.reset();
    engine_->Commit();
    QVERIFY(!engine_->InTransaction());
}

void OpenRowsTest::aRefusedStatementDoesNotDisturbTheReading()
{
    const auto rows = Run(all + QStringLiteral(" ORDER BY Code"));
    QVERIFY(rows->Next());
    QCOMPARE(RefusalOf(all), TAdoErrorKind::WrongState);
    QCOMPARE(rows->Int64(0), 1);
    QVERIFY(rows->Next());
    QCOMPARE(rows->Int64(0), 2);
}

void OpenRowsTest::aFailedStatementIsNotOpen()
{
    QVERIFY(RefusalOf(QStringLiteral("SELECT Code FROM Nowhere")) != TAdoErrorKind::WrongState);
    QVERIFY(Run(all)->Next());
}

void OpenRowsTest::rowsSurviveTheirConnection()
{
    const auto rows = Run(all);
    QVERIFY(rows->Next());
    engine_.reset();
    QCOMPARE(ErrorOf([&rows] { rows->Next(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(rows->IsNull(0));
    QVERIFY(!rows->Value(0).isValid());
    QCOMPARE(rows->Columns().size(), 1);
}

QTEST_GUILESS_MAIN(OpenRowsTest)
#include "OpenRowsTest.moc"
