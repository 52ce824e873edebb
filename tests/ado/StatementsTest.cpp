#include "AdoTestCase.h"
#include "Engine.h"
#include "SqliteFile.h"

class StatementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowsComeInOrderAndEnd();
    void columnsReadAsNullBehindTheLastRow();
    void theRowsWrittenAreCounted();
    void aTextRunsAgainWithOtherValues();
    void manyTextsAreKeptAndTheOldestLeave();
    void longTextsComeAndGo();
    void aSecondStatementInATextIsRefused_data();
    void aSecondStatementInATextIsRefused();
    void anEmptyTextIsRefused();
    void anErrorCarriesTheStatementAndTheEnginesWords_data();
    void anErrorCarriesTheStatementAndTheEnginesWords();
    void aConnectionWorksAfterAnError();
    void anUnfinishedReadIsClosedWithItsRows();
    void columnsAddedMeanwhileAreSeen();
    void aColumnThatAnotherUserAddsCanBeReckonedWith();
    void aFunctionAnswersWithinStatements();
    void aFunctionReadsTheSameDatabase();
    void aFunctionsErrorIsTheStatementsError();
    void aFunctionTakesAndGivesEveryKindOfValue();

private:
    QVariantList Column(const QString& text, const QVariantList& parameters = {});

    std::unique_ptr<TSqliteFile> file_;
    std::unique_ptr<IEngine> engine_;
};

void StatementsTest::init()
{
    engine_.reset();
    file_ = std::make_unique<TSqliteFile>();
    file_->Run(
        QStringLiteral("CREATE TABLE Goods(Code INT NOT NULL PRIMARY KEY, Name NVARCHAR(50) NOT NULL UNIQUE,"
                       "Stock INT CHECK(Stock >= 0));"
                       "INSERT INTO Goods VALUES (1, 'مداد', 5), (2, 'خودکار', 7), (3, 'دفتر', NULL)"));
    engine_ = OpenEngine(file_->ConnectionString(), {});
}

QVariantList StatementsTest::Column(const QString& text, const QVariantList& parameters)
{
    QVariantList values;
    const auto rows = engine_->Execute(text, parameters);
    while (rows->Next())
        values.append(rows->Value(0));
    return values;
}

void StatementsTest::rowsComeInOrderAndEnd()
{
    const auto rows = engine_->Execute(QStringLiteral("SELECT Code FROM Goods ORDER BY Code DESC"), {});
    for (int code = 3; code >= 1; --code) {
        QVERIFY(rows->Next());
        QCOMPARE(rows->Int64(0), code);
    }
    QVERIFY(!rows->Next());
    QVERIFY(!rows->Next());
    QCOMPARE(rows->AffectedRows(), 0);
}

void StatementsTest::columnsReadAsNullBehindTheLastRow()
{
    const auto rows = engine_->Execute(QStringLiteral("SELECT Code, Name FROM Goods WHERE Code = 1"), {});
    QVERIFY(rows->Next());
    QVERIFY(!rows->Next());
    QVERIFY(rows->IsNull(1));
    QVERIFY(!rows->Value(0).isValid());
    QCOMPARE(rows->Columns().size(), 2);
}

void StatementsTest::theRowsWrittenAreCounted()
{
    const auto affected = [this](const char* text) {
        const auto rows = engine_->Execute(QString::fromUtf8(text), {});
        return rows->AffectedRows();
    };
    QCOMPARE(affected("UPDATE Goods SET Stock = 1"), 3);
    QCOMPARE(affected("UPDATE Goods SET Stock = 2 WHERE Code > 100"), 0);
    QCOMPARE(affected("INSERT INTO Goods (Code, Name) VALUES (4, 'پاک‌کن')"), 1);
    QCOMPARE(affected("CREATE TABLE Others (Code int)"), 0);
    QCOMPARE(affected("DELETE FROM Goods WHERE Code IN (1, 2)"), 2);
}

void StatementsTest::aTextRunsAgainWithOtherValues()
{
    const QString text = QStringLiteral("SELECT Name FROM Goods WHERE Code = ?");
    QCOMPARE(Column(text, {1}), QVariantList{QStringLiteral("مداد")});
    QCOMPARE(Column(text, {2}), QVariantList{QStringLiteral("خودکار")});
    QCOMPARE(Column(text, {99}), QVariantList{});
    QCOMPARE(Column(text, {QVariant()}), QVariantList{});
    QCOMPARE(Column(text, {1}), QVariantList{QStringLiteral("مداد")});
}

void StatementsTest::manyTextsAreKeptAndTheOldestLeave()
{
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 250; ++i) {
            const QString text = QStringLiteral("SELECT Code FROM Goods WHERE Code = %1").arg(i);
            QCOMPARE(Column(text).size(), i >= 1 && i <= 3 ? 1 : 0);
        }
    }
}

void StatementsTest::longTextsComeAndGo()
{
    QStringList keys;
    for (int code = 1; code <= 100000; ++code)
        keys.append(QString::number(code));
    const QString all = keys.join(u',');
    const QString text = QStringLiteral("SELECT Code FROM Goods WHERE Code IN(%1) ORDER BY Code");
    // More than are kept together, and one that alone is too long for that.
    for (const QString& list : {all, QStringLiteral("7,") + all, all + u',' + all, all}) {
        const QVariantList codes = Column(text.arg(list));
        QCOMPARE(codes, (QVariantList{1, 2, 3}));
    }
}

void StatementsTest::aSecondStatementInATextIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("another statement") << QStringLiteral("SELECT Code FROM Goods; DELETE FROM Goods");
    QTest::newRow("nonsense") << QStringLiteral("SELECT Code FROM Goods; nonsense");
}

void StatementsTest::aSecondStatementInATextIsRefused()
{
    QFETCH(QString, text);
    const EADOError error = ErrorOf([&] { engine_->Execute(text, {}); });
    QVERIFY(error.Kind() == TAdoErrorKind::Syntax || error.Kind() == TAdoErrorKind::Unsupported);
    QCOMPARE(file_->Value(QStringLiteral("SELECT count(*) FROM Goods")), QStringLiteral("3"));
    QCOMPARE(Column(QStringLiteral("SELECT Code FROM Goods WHERE Code = 1;  ")), QVariantList{1});
}

void StatementsTest::anEmptyTextIsRefused()
{
    QCOMPARE(ErrorOf([&] { engine_->Execute(QString(), {}); }).Kind(), TAdoErrorKind::Syntax);
    QCOMPARE(ErrorOf([&] { engine_->Execute(QStringLiteral("  \r\n "), {}); }).Kind(), TAdoErrorKind::Syntax);
}

void StatementsTest::anErrorCarriesTheStatementAndTheEnginesWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<TAdoErrorKind>("kind");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const char* text, TAdoErrorKind kind, const char* words) {
        QTest::newRow(name) << QString::fromUtf8(text) << kind << QString::fromUtf8(words);
    };
    row("no table", "SELECT Code FROM Missing", TAdoErrorKind::Syntax, "Missing");
    row("key", "INSERT INTO Goods (Code, Name) VALUES (1, 'x')", TAdoErrorKind::Constraint, "UNIQUE");
    row("unique", "INSERT INTO Goods (Code, Name) VALUES (9, 'مداد')", TAdoErrorKind::Constraint,
        "Goods.Name");
    row("null", "INSERT INTO Goods (Code, Name) VALUES (9, NULL)", TAdoErrorKind::Constraint, "NOT NULL");
    row("check", "UPDATE Goods SET Stock = -1", TAdoErrorKind::Constraint, "CHECK");
}

void StatementsTest::anErrorCarriesTheStatementAndTheEnginesWords()
{
    QFETCH(QString, text);
    QFETCH(TAdoErrorKind, kind);
    QFETCH(QString, words);
    const EADOError error = ErrorOf([&] { engine_->Execute(text, {}); });
    QCOMPARE(error.Kind(), kind);
    QCOMPARE(error.Statement(), text);
    QVERIFY2(error.ServerMessage().contains(words), qPrintable(error.ServerMessage()));
    QVERIFY(!error.Message().isEmpty());
    QVERIFY(error.Code() != 0);
}

void StatementsTest::aConnectionWorksAfterAnError()
{
    const QString text = QStringLiteral("INSERT INTO Goods (Code, Name) VALUES (?, ?)");
    QCOMPARE(ErrorOf([&] {
                 engine_->Execute(text, {1, QStringLiteral("x")});
             }).Kind(),
             TAdoErrorKind::Constraint);
    engine_->Execute(text, {4, QStringLiteral("x")});
    QCOMPARE(Column(QStringLiteral("SELECT COUNT(*) FROM Goods")).first().toInt(), 4);
}

void StatementsTest::anUnfinishedReadIsClosedWithItsRows()
{
    engine_.reset();
    file_->Run(QStringLiteral("PRAGMA journal_mode = DELETE"));
    engine_ = OpenEngine(file_->ConnectionString(), {});
    TEngineOptions impatient;
    impatient.BusyTimeout = 0;
    const auto other = OpenEngine(file_->ConnectionString(), impatient);
    const QString write = QStringLiteral("UPDATE Goods SET Stock = 1 WHERE Code = 1");
    auto rows = engine_->Execute(QStringLiteral("SELECT Code FROM Goods"), {});
    QVERIFY(rows->Next());
    QCOMPARE(ErrorOf([&] { other->Execute(write, {}); }).Kind(), TAdoErrorKind::Busy);
    rows.reset();
    QCOMPARE(other->Execute(write, {})->AffectedRows(), 1);
}

void StatementsTest::columnsAddedMeanwhileAreSeen()
{
    const QString text = QStringLiteral("SELECT * FROM Goods WHERE Code = 1");
    QCOMPARE(engine_->Execute(text, {})->Columns().size(), 3);
    file_->Run(QStringLiteral("ALTER TABLE Goods ADD COLUMN Price MONEY_TEXT"));
    const auto rows = engine_->Execute(text, {});
    QCOMPARE(rows->Columns().size(), 4);
    QCOMPARE(rows->Columns()[3].Type, TFieldType::ftBCD);
}

void StatementsTest::aColumnThatAnotherUserAddsCanBeReckonedWith()
{
    QCOMPARE(Column(QStringLiteral("SELECT Stock + Code FROM Goods WHERE Code = 1")).first().toInt(), 6);
    file_->Run(QStringLiteral("ALTER TABLE Goods ADD COLUMN Weight INT; UPDATE Goods SET Weight = 40"));
    QCOMPARE(Column(QStringLiteral("SELECT Stock + Weight FROM Goods WHERE Code = 1")).first().toInt(), 45);
}

void StatementsTest::aFunctionAnswersWithinStatements()
{
    engine_->RegisterFunction(
        QStringLiteral("TwoTimes"), 1, [](IFunctionContext&, const QVariantList& arguments) {
            return arguments[0].isValid() ? QVariant(arguments[0].toLongLong() * 2) : QVariant();
        });
    QCOMPARE(Column(QStringLiteral("SELECT dbo.TwoTimes(Stock) FROM Goods ORDER BY Code")).first(),
             QVariant(qint64(10)));
}

void StatementsTest::aFunctionReadsTheSameDatabase()
{
    engine_->RegisterFunction(
        QStringLiteral("NameOf"), 1, [](IFunctionContext& context, const QVariantList& codes) {
            const QVariantList names = context.FirstColumn("SELECT Name FROM Goods WHERE Code = ?", codes);
            return names.isEmpty() ? QVariant() : names.first();
        });
    QCOMPARE(Column(QStringLiteral("SELECT dbo.NameOf(Code) FROM Goods ORDER BY Code")),
             (QVariantList{QStringLiteral("مداد"), QStringLiteral("خودکار"), QStringLiteral("دفتر")}));
}

void StatementsTest::aFunctionsErrorIsTheStatementsError()
{
    engine_->RegisterFunction(QStringLiteral("Broken"), 0,
                              [](IFunctionContext& context, const QVariantList&) -> QVariant {
                                  return context.FirstColumn("SELECT Code FROM nowhere", {});
                              });
    const EADOError error = ErrorOf([&] { engine_->Execute(QStringLiteral("SELECT dbo.Broken()"), {}); });
    QVERIFY2(error.ServerMessage().contains(QStringLiteral("nowhere")), qPrintable(error.ServerMessage()));
    QCOMPARE(Column(QStringLiteral("SELECT Code FROM Goods WHERE Code = 2")), QVariantList{2});
}

void StatementsTest::aFunctionTakesAndGivesEveryKindOfValue()
{
    engine_->RegisterFunction(QStringLiteral("Same"), 1,
                              [](IFunctionContext&, const QVariantList& arguments) { return arguments[0]; });
    const QVariantList values{qint64(5),        2.5,       QStringLiteral("متن"), QStringLiteral(""),
                              QByteArray("ab"), QVariant()};
    for (const QVariant& value : values)
        QCOMPARE(Column(QStringLiteral("SELECT dbo.Same(?)"), {value}), QVariantList{value});
}

QTEST_APPLESS_MAIN(StatementsTest)
#include "StatementsTest.moc"
