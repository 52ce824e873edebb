#include "ADOQuery.h"
#include "AdoTestCase.h"
#include "SqliteFile.h"

#include <QDate>
#include <QSignalSpy>

class LocateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aRowIsFoundByItsValues_data();
    void aRowIsFoundByItsValues();
    void aSearchInVainStays();
    void aFoundRowIsAnnounced();
    void aWrongRequestIsRefused();
    void aFilterShowsOnlyWhatItLetsThrough();
    void aFilterKeepsTheCurrentRowWhereItStaysVisible();
    void aFilterThatHidesEverythingLeavesAnEmptyQuery();
    void locateSearchesTheVisibleRowsOnly();
    void aFilterStaysOverRequery();
    void aFilterMayBeSetBeforeOpening();

private:
    QVariantList Codes();

    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<TADOConnection> connection_;
    std::unique_ptr<TADOQuery> query_;
};

void LocateTest::initTestCase()
{
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(QStringLiteral(
        "CREATE TABLE Goods(Code INT, Name NVARCHAR(50), Price MONEY_TEXT, Weight FLOAT, Active BIT, Large "
        "BIGINT,"
        "Day DATE_TEXT, Picture BLOB);"
        "INSERT INTO Goods VALUES (1,'Pen','1200',1.5,1,9223372036854775807,'2024-03-20',x'0102');"
        "INSERT INTO Goods VALUES "
        "(2,'pencil','922337203685477.5807',2,0,9223372036854775806,'2024-03-21',x'03');"
        "INSERT INTO Goods VALUES (3,'مداد رنگی','0.5',0.1,0,0,NULL,NULL);"
        "INSERT INTO Goods VALUES (4,NULL,NULL,NULL,NULL,NULL,NULL,NULL)"));
    connection_ = std::make_unique<TADOConnection>();
    connection_->SetConnectionString(file_->ConnectionString());
    connection_->Open();
}

void LocateTest::init()
{
    query_ = std::make_unique<TADOQuery>();
    query_->SetConnection(connection_.get());
    query_->SQL.SetText(QStringLiteral("SELECT * FROM Goods ORDER BY Code"));
    query_->Open();
}

QVariantList LocateTest::Codes()
{
    QVariantList codes;
    for (int row = 0; row < query_->RecordCount(); ++row)
        codes.append(query_->ValueAt(row, 0));
    return codes;
}

void LocateTest::aRowIsFoundByItsValues_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("recNo");
    const int insensitive = static_cast<int>(TLocateOption::loCaseInsensitive);
    const int partial = static_cast<int>(TLocateOption::loPartialKey);
    const auto row = [](const char* name, const char* fields, const QVariantList& values, int options,
                        int recNo) {
        QTest::newRow(name) << QString::fromLatin1(fields) << values << options << recNo;
    };
    row("int", "Code", {2}, 0, 2);
    row("int as text", "code", {QStringLiteral("2")}, 0, 2);
    row("int as float", "Code", {3.0}, 0, 3);
    row("largest bigint", "Large", {std::numeric_limits<qint64>::max()}, 0, 1);
    row("one below the largest", "Large", {std::numeric_limits<qint64>::max() - 1}, 0, 2);
    row("money to the last digit", "Price", {QStringLiteral("922337203685477.5807")}, 0, 2);
    row("money in another spelling", "Price", {QStringLiteral("1200.00")}, 0, 1);
    row("money as float", "Price", {0.5}, 0, 3);
    row("float", "Weight", {0.1}, 0, 3);
    row("float as int", "Weight", {2}, 0, 2);
    row("bit", "Active", {true}, 0, 1);
    row("bit as number", "Active", {0}, 0, 2);
    row("text", "Name", {QStringLiteral("pencil")}, 0, 2);
    row("text in another letter case", "Name", {QStringLiteral("PENCIL")}, insensitive, 2);
    row("text, letter case matters", "Name", {QStringLiteral("PENCIL")}, 0, 0);
    row("beginning of a text", "Name", {QStringLiteral("penc")}, partial, 2);
    row("beginning in another letter case", "Name", {QStringLiteral("PEN")}, insensitive | partial, 1);
    row("beginning of a Persian text", "Name", {QStringLiteral("مداد")}, partial, 3);
    row("a part is not the whole", "Name", {QStringLiteral("مداد")}, 0, 0);
    row("null", "Name", {QVariant()}, 0, 4);
    row("a date", "Day", {QDate(2024, 3, 21)}, 0, 2);
    row("bytes", "Picture", {QByteArray("\x03")}, 0, 2);
    row("two fields", "Active; Price", {false, QStringLiteral("0.5")}, 0, 3);
    row("two fields that are not together", "Code;Name", {1, QStringLiteral("pencil")}, 0, 0);
    row("no number", "Code", {QStringLiteral("abc")}, 0, 0);
}

void LocateTest::aRowIsFoundByItsValues()
{
    QFETCH(QString, fields);
    QFETCH(QVariantList, values);
    QFETCH(int, options);
    QFETCH(int, recNo);
    query_->Last();
    query_->Prior();
    QCOMPARE(query_->Locate(fields, values, TLocateOptions::fromInt(options)), recNo != 0);
    QCOMPARE(query_->RecNo(), recNo == 0 ? 3 : recNo);
    QVERIFY(!query_->Bof() && !query_->Eof());
}

void LocateTest::aSearchInVainStays()
{
    query_->Last();
    QSignalSpy scrolled(query_.get(), &TDataSet::scrolled);
    QVERIFY(!query_->Locate(QStringLiteral("Code"), {77}));
    QCOMPARE(query_->RecNo(), 4);
    QVERIFY(query_->Eof());
    QCOMPARE(scrolled.size(), 0);
}

void LocateTest::aFoundRowIsAnnounced()
{
    QSignalSpy scrolled(query_.get(), &TDataSet::scrolled);
    QVERIFY(query_->Locate(QStringLiteral("Code"), {3}));
    QCOMPARE(scrolled.size(), 1);
}

void LocateTest::aWrongRequestIsRefused()
{
    QCOMPARE(ErrorOf([this] { query_->Locate(QStringLiteral("Nothing"), {1}); }).Kind(),
             TAdoErrorKind::WrongState);
    QCOMPARE(ErrorOf([this] { query_->Locate(QStringLiteral("Code;Name"), {1}); }).Kind(),
             TAdoErrorKind::WrongState);
    query_->Close();
    QCOMPARE(ErrorOf([this] { query_->Locate(QStringLiteral("Code"), {1}); }).Kind(),
             TAdoErrorKind::WrongState);
}

void LocateTest::aFilterShowsOnlyWhatItLetsThrough()
{
    QSignalSpy data(query_.get(), &TDataSet::dataChanged);
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() % 2 == 0; });
    QCOMPARE(data.size(), 1);
    QCOMPARE(Codes(), (QVariantList{2, 4}));
    QCOMPARE(query_->RecordCount(), 2);
    QCOMPARE(query_->RecNo(), 1);
    QCOMPARE(query_->FieldByName(QStringLiteral("Code"))->AsInteger(), 2);
    query_->Next();
    QCOMPARE(query_->FieldByName(QStringLiteral("Code"))->AsInteger(), 4);
    query_->Next();
    QVERIFY(query_->Eof());
    query_->SetRowFilter(nullptr);
    QCOMPARE(Codes(), (QVariantList{1, 2, 3, 4}));
}

void LocateTest::aFilterKeepsTheCurrentRowWhereItStaysVisible()
{
    query_->SetRecNo(3);
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() > 1; });
    QCOMPARE(query_->FieldValue(0), QVariant(3));
    QCOMPARE(query_->RecNo(), 2);
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() != 3; });
    QCOMPARE(query_->RecNo(), 1);
    QVERIFY(query_->Bof());
    query_->SetRecNo(3);
    query_->SetRowFilter(nullptr);
    QCOMPARE(query_->RecNo(), 4);
}

void LocateTest::aFilterThatHidesEverythingLeavesAnEmptyQuery()
{
    query_->SetRowFilter([](const TADOQuery&, int) { return false; });
    QVERIFY(query_->IsEmpty());
    QVERIFY(query_->Bof() && query_->Eof());
    QCOMPARE(query_->RecNo(), 0);
    QVERIFY(!query_->FieldValue(0).isValid());
    query_->Next();
    query_->First();
    QVERIFY(!query_->Locate(QStringLiteral("Code"), {1}));
    query_->SetRowFilter(nullptr);
    QCOMPARE(query_->RecordCount(), 4);
    QCOMPARE(query_->RecNo(), 1);
}

void LocateTest::locateSearchesTheVisibleRowsOnly()
{
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() >= 3; });
    QVERIFY(!query_->Locate(QStringLiteral("Code"), {1}));
    QVERIFY(query_->Locate(QStringLiteral("Code"), {4}));
    QCOMPARE(query_->RecNo(), 2);
}

void LocateTest::aFilterStaysOverRequery()
{
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() >= 3; });
    query_->Last();
    query_->Requery();
    QCOMPARE(Codes(), (QVariantList{3, 4}));
    QCOMPARE(query_->RecNo(), 2);
}

void LocateTest::aFilterMayBeSetBeforeOpening()
{
    query_->Close();
    query_->SetRowFilter(
        [](const TADOQuery& query, int row) { return query.SourceValue(row, 0).toInt() == 2; });
    QVERIFY(query_->IsEmpty());
    query_->Open();
    QCOMPARE(Codes(), QVariantList{2});
}

QTEST_GUILESS_MAIN(LocateTest)
#include "LocateTest.moc"
