#include "ServerDatabase.h"

#include "ADOConnection.h"
#include "DatabaseFile.h"
#include "DatabaseSchema.h"

#include <QTest>

namespace {

/// What a server says to a statement: one row, or an error.
struct TAnswer
{
    QVariantList Row;
    std::optional<EADOError> Error = {};
};

class TAnswerRows final : public IEngineRows
{
public:
    explicit TAnswerRows(const QVariantList& row) : row_(row), columns_(row.size()) {}

    const QVector<TColumnInfo>& Columns() const override { return columns_; }
    bool Next() override { return !row_.isEmpty() && !std::exchange(read_, true); }
    bool IsNull(int column) override { return !row_[column].isValid(); }
    qint64 Int64(int column) override { return row_[column].toLongLong(); }
    double Double(int column) override { return row_[column].toDouble(); }
    QString Text(int column) override { return row_[column].toString(); }
    QByteArray Blob(int column) override { return row_[column].toByteArray(); }
    QVariant Value(int column) override { return row_[column]; }
    qint64 AffectedRows() override { return 0; }

private:
    QVariantList row_;
    QVector<TColumnInfo> columns_;
    bool read_ = false;
};

using TAnswers = QMap<QString, TAnswer>; ///< by a piece of the statement

class TAnsweringEngine final : public IEngine
{
public:
    explicit TAnsweringEngine(TAnswers answers) : answers_(std::move(answers)) {}

    std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList&) override
    {
        for (auto answer = answers_.cbegin(); answer != answers_.cend(); ++answer) {
            if (!text.contains(answer.key()))
                continue;
            if (answer->Error)
                throw EADOError(*answer->Error);
            return std::make_unique<TAnswerRows>(answer->Row);
        }
        throw EADOError(TAdoErrorKind::Syntax, QStringLiteral("نادرست"), text);
    }
    void Begin() override {}
    void Commit() override {}
    void Rollback() override {}
    bool InTransaction() const override { return false; }
    void Cancel() override {}
    bool IsDead() const override { return false; }
    void RegisterFunction(const QString&, int, TDatabaseFunction) override {}

private:
    TAnswers answers_;
};

const QString tables = QStringLiteral("dbo.SchemaInfo");
const QString functions = QStringLiteral("dbo.Category_SubNodes");
const QString collation = QStringLiteral("COLLATIONPROPERTY");

EADOError ServerError(int code, TAdoErrorKind kind = TAdoErrorKind::Syntax)
{
    return {kind, QStringLiteral("خطا"), {}, QStringLiteral("the server's words"), QStringLiteral("42S02"),
            code};
}

TAnswers ReadyServer()
{
    return {{tables, {{DatabaseSchema::Version}}}, {functions, {{QStringLiteral("()")}}}};
}

void Serve(TADOConnection& connection, const TAnswers& answers)
{
    connection.SetEngineFactory([answers](const QString&, const TEngineOptions&) {
        return std::make_unique<TAnsweringEngine>(answers);
    });
}

/// The refusal that the user reads; empty when the database opens.
QString Refusal(const TAnswers& answers, TAdoErrorKind* kind = nullptr)
{
    TADOConnection connection;
    Serve(connection, answers);
    try {
        OpenDatabase(connection, QStringLiteral("odbc:Driver=None"), {});
    } catch (const EADOError& error) {
        if (kind != nullptr)
            *kind = error.Kind();
        return connection.Connected() ? QStringLiteral("still connected") : error.Message();
    }
    return connection.Connected() ? QString() : QStringLiteral("not connected");
}

QString Warning(const TAnswers& answers)
{
    TADOConnection connection;
    Serve(connection, answers);
    connection.SetConnectionString(QStringLiteral("odbc:Driver=None"));
    connection.Open();
    return ServerDatabase::CollationWarning(connection);
}

} // namespace

class ServerDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aServerThatIsReadyOpens();
    void aServerThatIsNotReadySaysWhatToDo_data();
    void aServerThatIsNotReadySaysWhatToDo();
    void tablesOfAnotherVersionAreRefused_data();
    void tablesOfAnotherVersionAreRefused();
    void aLossOnTheWayIsALoss();
    void aCollationWithoutThePersianLettersIsWarnedOf_data();
    void aCollationWithoutThePersianLettersIsWarnedOf();
    void aServerThatDoesNotTellItsCollationIsNotWarnedOf();
    void theEmbeddedEngineIsNotAsked();
};

void ServerDatabaseTest::aServerThatIsReadyOpens()
{
    QCOMPARE(Refusal(ReadyServer()), QString());
}

void ServerDatabaseTest::aServerThatIsNotReadySaysWhatToDo_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("words");
    QTest::newRow("no tables") << tables << 208 << QStringLiteral("database/schema.sql");
    QTest::newRow("no functions") << functions << 4121 << QStringLiteral("database/functions.sql");
    QTest::newRow("no permission") << tables << 229 << QStringLiteral("اجازهٔ خواندن");
}

void ServerDatabaseTest::aServerThatIsNotReadySaysWhatToDo()
{
    QFETCH(const QString, statement);
    QFETCH(const int, code);
    QFETCH(const QString, words);
    TAnswers answers = ReadyServer();
    answers[statement] = {{}, ServerError(code)};
    TAdoErrorKind kind = TAdoErrorKind::Other;
    const QString refusal = Refusal(answers, &kind);
    QVERIFY2(refusal.contains(words), qPrintable(refusal));
    QCOMPARE(kind, TAdoErrorKind::CannotOpen);
}

void ServerDatabaseTest::tablesOfAnotherVersionAreRefused_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("words");
    QTest::newRow("newer") << DatabaseSchema::Version + 1 << QStringLiteral("تازه‌تری");
    QTest::newRow("older") << 1 << QStringLiteral("database/upgrades/2.sql");
    QTest::newRow("none") << 0 << QStringLiteral("نمی‌خواند");
}

void ServerDatabaseTest::tablesOfAnotherVersionAreRefused()
{
    QFETCH(const int, version);
    QFETCH(const QString, words);
    TAnswers answers = ReadyServer();
    answers[tables] = {{version}};
    const QString refusal = Refusal(answers);
    QVERIFY2(refusal.contains(words), qPrintable(refusal));
}

void ServerDatabaseTest::aLossOnTheWayIsALoss()
{
    TAnswers answers = ReadyServer();
    answers[functions] = {{}, ServerError(20017, TAdoErrorKind::ConnectionLost)};
    TAdoErrorKind kind = TAdoErrorKind::Other;
    QCOMPARE(Refusal(answers, &kind), QStringLiteral("خطا"));
    QCOMPARE(kind, TAdoErrorKind::ConnectionLost);
}

void ServerDatabaseTest::aCollationWithoutThePersianLettersIsWarnedOf_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("codePage");
    QTest::addColumn<QString>("loss");
    const QString oneLetter = QStringLiteral("حرف «ی»");
    const QString allLetters = QStringLiteral("حرف‌های فارسی");
    QTest::newRow("Persian") << QStringLiteral("Persian_100_CI_AS") << 1256 << oneLetter;
    QTest::newRow("Arabic") << QStringLiteral("Arabic_CI_AS") << 1256 << oneLetter;
    QTest::newRow("UTF-8") << QStringLiteral("Persian_100_CI_AS_SC_UTF8") << 65001 << QString();
    QTest::newRow("Western") << QStringLiteral("SQL_Latin1_General_CP1_CI_AS") << 1252 << allLetters;
    QTest::newRow("Unicode only") << QStringLiteral("Indic_General_100_CI_AS") << 0 << allLetters;
}

void ServerDatabaseTest::aCollationWithoutThePersianLettersIsWarnedOf()
{
    QFETCH(const QString, name);
    QFETCH(const int, codePage);
    QFETCH(const QString, loss);
    const QString warning = Warning({{collation, {{name, codePage}}}});
    QCOMPARE(warning.isEmpty(), loss.isEmpty());
    QVERIFY(warning.isEmpty() || (warning.contains(name) && warning.contains(loss)));
}

void ServerDatabaseTest::aServerThatDoesNotTellItsCollationIsNotWarnedOf()
{
    QCOMPARE(Warning({}), QString());
    QCOMPARE(Warning({{collation, {{QVariant(), QVariant()}}}}), QString());
    QCOMPARE(Warning({{collation, {{}}}}), QString());
}

void ServerDatabaseTest::theEmbeddedEngineIsNotAsked()
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection.Open();
    bool asked = false;
    connection.OnWillExecute = [&asked](TADOConnection*, const QString&) { asked = true; };
    QCOMPARE(ServerDatabase::CollationWarning(connection), QString());
    QVERIFY(!asked);
}

QTEST_GUILESS_MAIN(ServerDatabaseTest)
#include "ServerDatabaseTest.moc"
