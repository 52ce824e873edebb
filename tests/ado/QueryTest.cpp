#include "ADOQuery.h"
#include "AdoTestCase.h"
#include "SqliteFile.h"

#include <QSignalSpy>

class QueryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void linesAddedAreJoinedByCarriageReturnAndLineFeed();
    void aClosedQueryIsEmpty();
    void aQueryNeedsAConnection();
    void aQueryWalksFromItsBeginningToItsEnd();
    void walkingBeyondTheEndsStays();
    void anEmptyResultIsAtItsBeginningAndItsEnd();
    void aRowNumberOutsideGoesToTheNearestRow();
    void openingAgainReadsOnlyWhenTheTextIsAnother();
    void requeryReadsAgainAndKeepsTheRowNumber();
    void requeryOfFewerRowsGoesToTheLastOne();
    void aFailedOpeningLeavesTheQueryClosed();
    void theResultIsReadToItsEndSoThatOthersMayWrite();
    void theResultOutlivesItsConnection();
    void fieldsAreFoundInAnyLetterCase();
    void aFieldThatIsNotThereIsNamed();
    void valuesOfAnyRowAreReadWithoutMoving();
    void parametersAreHandedOver();
    void execSqlTellsTheRowsWritten();
    void afterOpenComesWhenTheRowsAreHere();
    void changesAreAnnounced();
    void whileControlsAreDisabledNothingIsAnnounced();
    void enablingOnceTooOftenIsHarmless();

private:
    QVariantList Walk();

    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<TADOConnection> connection_;
    std::unique_ptr<TADOQuery> query_;
};

void QueryTest::init()
{
    query_.reset();
    connection_.reset();
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(
        QStringLiteral("CREATE TABLE Goods(Code INT PRIMARY KEY, Name NVARCHAR(50), Price MONEY_TEXT);"
                       "INSERT INTO Goods VALUES (1,'مداد','1200'), (2,'خودکار','3500.5'), (3,NULL,NULL)"));
    connection_ = std::make_unique<TADOConnection>();
    connection_->SetConnectionString(file_->ConnectionString());
    connection_->Open();
    query_ = std::make_unique<TADOQuery>();
    query_->SetConnection(connection_.get());
    query_->SQL.SetText(QStringLiteral("SELECT Code, Name, Price FROM Goods ORDER BY Code"));
}

QVariantList QueryTest::Walk()
{
    QVariantList codes;
    for (query_->First(); !query_->Eof(); query_->Next())
        codes.append(query_->FieldValue(0));
    return codes;
}

void QueryTest::linesAddedAreJoinedByCarriageReturnAndLineFeed()
{
    QSignalSpy announced(connection_.get(), &TADOConnection::willExecute);
    query_->SQL.Clear();
    query_->SQL.Add(QStringLiteral("SELECT Code"));
    query_->SQL.Add(QStringLiteral("FROM Goods "));
    query_->Open();
    QCOMPARE(announced[0][0].toString(), QStringLiteral("SELECT Code\r\nFROM Goods "));
    query_->SQL.SetText(QStringLiteral("SELECT Name\nFROM Goods"));
    QCOMPARE(query_->SQL.Text(), QStringLiteral("SELECT Name\nFROM Goods"));
    query_->SQL.Add(QStringLiteral("WHERE Code = 1"));
    QCOMPARE(query_->SQL.Text(), QStringLiteral("SELECT Name\nFROM Goods\r\nWHERE Code = 1"));
}

void QueryTest::aClosedQueryIsEmpty()
{
    QVERIFY(!query_->Active());
    QVERIFY(query_->IsEmpty());
    QVERIFY(query_->Bof());
    QVERIFY(query_->Eof());
    QCOMPARE(query_->RecordCount(), 0);
    QCOMPARE(query_->FieldCount(), 0);
    QCOMPARE(query_->RecNo(), 0);
    QVERIFY(!query_->FieldValue(0).isValid());
    QCOMPARE(query_->FindField(QStringLiteral("Code")), nullptr);
    QCOMPARE(ErrorOf([this] { query_->Next(); }).Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(ErrorOf([this] { query_->FieldByName(QStringLiteral("Code")); }).Kind(),
             TAdoErrorKind::WrongState);
    query_->Open();
    query_->Close();
    QVERIFY(query_->IsEmpty());
    QCOMPARE(query_->RecNo(), 0);
}

void QueryTest::aQueryNeedsAConnection()
{
    TADOQuery alone;
    alone.SQL.SetText(QStringLiteral("SELECT Code FROM Goods"));
    const EADOError error = ErrorOf([&] { alone.Open(); });
    QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(error.Statement(), alone.SQL.Text());
    QCOMPARE(ErrorOf([&] { alone.ExecSQL(); }).Kind(), TAdoErrorKind::WrongState);
}

void QueryTest::aQueryWalksFromItsBeginningToItsEnd()
{
    query_->Open();
    QVERIFY(query_->Bof());
    QVERIFY(!query_->Eof());
    QCOMPARE(query_->RecNo(), 1);
    query_->Next();
    QVERIFY(!query_->Bof());
    QCOMPARE(query_->RecNo(), 2);
    query_->Next();
    QVERIFY(!query_->Eof());
    query_->Next();
    QVERIFY(query_->Eof());
    QCOMPARE(query_->RecNo(), 3);
    QCOMPARE(Walk(), (QVariantList{1, 2, 3}));
}

void QueryTest::walkingBeyondTheEndsStays()
{
    query_->Open();
    query_->Last();
    QVERIFY(query_->Eof());
    QVERIFY(!query_->Bof());
    QCOMPARE(query_->RecNo(), 3);
    query_->Next();
    query_->Next();
    QCOMPARE(query_->RecNo(), 3);
    query_->Prior();
    QVERIFY(!query_->Eof());
    QCOMPARE(query_->RecNo(), 2);
    query_->Prior();
    QVERIFY(!query_->Bof());
    query_->Prior();
    QVERIFY(query_->Bof());
    QCOMPARE(query_->RecNo(), 1);
}

void QueryTest::anEmptyResultIsAtItsBeginningAndItsEnd()
{
    query_->SQL.Add(QStringLiteral("DESC"));
    query_->SQL.SetText(QStringLiteral("SELECT Code FROM Goods WHERE Code = 99"));
    query_->Open();
    QVERIFY(query_->Active());
    QVERIFY(query_->IsEmpty());
    QVERIFY(query_->Bof());
    QVERIFY(query_->Eof());
    QCOMPARE(query_->RecNo(), 0);
    QCOMPARE(query_->FieldCount(), 1);
    query_->Next();
    query_->Prior();
    query_->Last();
    query_->SetRecNo(1);
    QCOMPARE(query_->RecNo(), 0);
    QVERIFY(query_->FieldByName(QStringLiteral("Code"))->IsNull());
}

void QueryTest::aRowNumberOutsideGoesToTheNearestRow()
{
    query_->Open();
    query_->SetRecNo(2);
    QCOMPARE(query_->RecNo(), 2);
    QVERIFY(!query_->Bof() && !query_->Eof());
    query_->SetRecNo(50);
    QCOMPARE(query_->RecNo(), 3);
    query_->SetRecNo(-7);
    QCOMPARE(query_->RecNo(), 1);
}

void QueryTest::openingAgainReadsOnlyWhenTheTextIsAnother()
{
    QSignalSpy announced(connection_.get(), &TADOConnection::willExecute);
    query_->Open();
    query_->Open();
    QCOMPARE(announced.size(), 1);
    query_->SQL.SetText(QStringLiteral("SELECT Name FROM Goods"));
    query_->Open();
    QCOMPARE(announced.size(), 2);
    QCOMPARE(query_->Field(0)->FieldName(), QStringLiteral("Name"));
}

void QueryTest::requeryReadsAgainAndKeepsTheRowNumber()
{
    query_->Open();
    query_->SetRecNo(2);
    file_->Run(QStringLiteral("INSERT INTO Goods (Code) VALUES (0)"));
    QCOMPARE(query_->RecordCount(), 3);
    query_->Requery();
    QCOMPARE(query_->RecordCount(), 4);
    QCOMPARE(query_->RecNo(), 2);
    QCOMPARE(query_->FieldValue(0), QVariant(1));
}

void QueryTest::requeryOfFewerRowsGoesToTheLastOne()
{
    query_->Open();
    query_->Last();
    file_->Run(QStringLiteral("DELETE FROM Goods WHERE Code = 3"));
    query_->Requery();
    QCOMPARE(query_->RecNo(), 2);
    file_->Run(QStringLiteral("DELETE FROM Goods"));
    query_->Requery();
    QCOMPARE(query_->RecNo(), 0);
}

void QueryTest::aFailedOpeningLeavesTheQueryClosed()
{
    query_->Open();
    query_->SQL.SetText(QStringLiteral("SELECT Code FROM Missing"));
    const EADOError error = ErrorOf([this] { query_->Open(); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Syntax);
    QCOMPARE(error.Statement(), query_->SQL.Text());
    QVERIFY(!query_->Active());
    QVERIFY(query_->IsEmpty());
}

void QueryTest::theResultIsReadToItsEndSoThatOthersMayWrite()
{
    connection_->Close();
    file_->Run(QStringLiteral("PRAGMA journal_mode = DELETE"));
    connection_->Open();
    query_->Open();
    file_->Run(QStringLiteral("DELETE FROM Goods"));
    QCOMPARE(query_->RecordCount(), 3);
}

void QueryTest::theResultOutlivesItsConnection()
{
    query_->Open();
    connection_.reset();
    QCOMPARE(query_->Connection(), nullptr);
    QCOMPARE(Walk(), (QVariantList{1, 2, 3}));
    QCOMPARE(ErrorOf([this] { query_->Requery(); }).Kind(), TAdoErrorKind::WrongState);
    QVERIFY(!query_->ControlsDisabled());
}

void QueryTest::fieldsAreFoundInAnyLetterCase()
{
    query_->Open();
    TField* field = query_->FieldByName(QStringLiteral("PRICE"));
    QCOMPARE(field, query_->Field(2));
    QCOMPARE(field->FieldName(), QStringLiteral("Price"));
    QCOMPARE(field->DataType(), TFieldType::ftBCD);
    QCOMPARE(field->DataSet(), query_.get());
    QCOMPARE(query_->Field(1)->Size(), 50);
}

void QueryTest::aFieldThatIsNotThereIsNamed()
{
    query_->Open();
    QCOMPARE(query_->FindField(QStringLiteral("Weight")), nullptr);
    const EADOError error = ErrorOf([this] { query_->FieldByName(QStringLiteral("Weight")); });
    QCOMPARE(error.Kind(), TAdoErrorKind::WrongState);
    QVERIFY(error.Message().contains(QStringLiteral("Weight")));
    QCOMPARE(ErrorOf([this] { query_->Field(3); }).Kind(), TAdoErrorKind::WrongState);
    QCOMPARE(ErrorOf([this] { query_->Field(-1); }).Kind(), TAdoErrorKind::WrongState);
}

void QueryTest::valuesOfAnyRowAreReadWithoutMoving()
{
    query_->Open();
    QCOMPARE(query_->ValueAt(1, 2), QVariant(QStringLiteral("3500.5")));
    QVERIFY(!query_->ValueAt(2, 1).isValid());
    QVERIFY(!query_->ValueAt(3, 0).isValid());
    QVERIFY(!query_->ValueAt(-1, 0).isValid());
    QVERIFY(!query_->ValueAt(0, 9).isValid());
    QCOMPARE(query_->TextAt(1, 1), QStringView(u"خودکار"));
    QVERIFY(query_->TextAt(2, 1).isNull());
    QVERIFY(query_->TextAt(1, 0).isNull()); // a number
    QVERIFY(query_->TextAt(3, 1).isNull());
    QCOMPARE(query_->RecNo(), 1);
}

void QueryTest::parametersAreHandedOver()
{
    query_->SQL.SetText(QStringLiteral("SELECT Code FROM Goods WHERE Name = ? AND Code < ?"));
    query_->Parameters = {QStringLiteral("خودکار"), 10};
    query_->Open();
    QCOMPARE(Walk(), QVariantList{2});
}

void QueryTest::execSqlTellsTheRowsWritten()
{
    query_->SQL.SetText(QStringLiteral("UPDATE Goods SET Name = ? WHERE Code > 1"));
    query_->Parameters = {QStringLiteral("نو")};
    QCOMPARE(query_->ExecSQL(), 2);
    QVERIFY(!query_->Active());
    QCOMPARE(file_->Value(QStringLiteral("SELECT Name FROM Goods WHERE Code = 3")), QStringLiteral("نو"));
}

void QueryTest::afterOpenComesWhenTheRowsAreHere()
{
    QList<int> counts;
    query_->AfterOpen = [&](QObject* sender) {
        QCOMPARE(sender, query_.get());
        counts.append(query_->RecordCount());
    };
    query_->Open();
    query_->Open();
    query_->Requery();
    QCOMPARE(counts, (QList<int>{3, 3}));
}

void QueryTest::changesAreAnnounced()
{
    QSignalSpy data(query_.get(), &TDataSet::dataChanged);
    QSignalSpy scrolled(query_.get(), &TDataSet::scrolled);
    query_->Open();
    QCOMPARE(data.size(), 1);
    query_->Next();
    query_->Last();
    query_->Next();
    query_->First();
    query_->First();
    query_->SetRecNo(1);
    QCOMPARE(scrolled.size(), 3);
    query_->Requery();
    QCOMPARE(data.size(), 2);
    query_->Close();
    query_->Close();
    QCOMPARE(data.size(), 3);
    QCOMPARE(scrolled.size(), 3);
}

void QueryTest::whileControlsAreDisabledNothingIsAnnounced()
{
    query_->Open();
    QSignalSpy data(query_.get(), &TDataSet::dataChanged);
    QSignalSpy scrolled(query_.get(), &TDataSet::scrolled);
    query_->DisableControls();
    query_->DisableControls();
    Walk();
    query_->EnableControls();
    QVERIFY(query_->ControlsDisabled());
    QCOMPARE(scrolled.size(), 0);
    query_->EnableControls();
    QCOMPARE(scrolled.size(), 1);
    QCOMPARE(data.size(), 0);
    query_->DisableControls();
    query_->Requery();
    query_->Last();
    query_->EnableControls();
    QCOMPARE(data.size(), 1);
    QCOMPARE(scrolled.size(), 1);
}

void QueryTest::enablingOnceTooOftenIsHarmless()
{
    query_->EnableControls();
    query_->DisableControls();
    QVERIFY(query_->ControlsDisabled());
    query_->EnableControls();
    QVERIFY(!query_->ControlsDisabled());
}

QTEST_GUILESS_MAIN(QueryTest)
#include "QueryTest.moc"
