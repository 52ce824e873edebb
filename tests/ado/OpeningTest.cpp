#include "ADOConnection.h"
#include "AdoTestCase.h"
#include "OrdinaryUser.h"
#include "SqliteFile.h"

#include <optional>
#include <QFile>

namespace {

EADOError OpeningError(const QString& connectionString, const TEngineOptions& options = {})
{
    return ErrorOf([&] { OpenEngine(connectionString, options); });
}

} // namespace

class OpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAddressOfNoEngineIsRefused_data();
    void anAddressOfNoEngineIsRefused();
    void aMissingFileIsNotCreated();
    void aMissingFileIsCreatedOnRequest();
    void aFolderThatDoesNotExistIsNamed();
    void aFolderIsNoDatabase();
    void anUnreadableFileIsSaid();
    void aForeignFileIsRefusedAndStaysAsItIs_data();
    void aForeignFileIsRefusedAndStaysAsItIs();
    void aBrokenDatabaseIsRefusedAndStaysAsItIs();
    void anotherProgramsDatabaseStaysAsItIs();
    void aReadOnlyConnectionRefusesToWrite();
    void anAddressWithPersianLettersAndBlanksOpens();
    void aNameThatLooksLikeAnAddressIsAFileName();
    void foreignKeysAreWatched();
};

void OpeningTest::anAddressOfNoEngineIsRefused_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a file alone") << QStringLiteral("/tmp/data.db");
    QTest::newRow("another engine") << QStringLiteral("access:data.mdb");
    QTest::newRow("no file") << QStringLiteral("sqlite:");
    QTest::newRow("a blank file") << QStringLiteral("sqlite:  ");
}

void OpeningTest::anAddressOfNoEngineIsRefused()
{
    QFETCH(QString, address);
    const EADOError error = OpeningError(address);
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(!error.Message().isEmpty());
}

void OpeningTest::aMissingFileIsNotCreated()
{
    const TSqliteFile file;
    const QString path = file.PathOf(QStringLiteral("missing.db"));
    const EADOError error = OpeningError(QStringLiteral("sqlite:") + path);
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(error.Message().contains(path));
    QVERIFY(!QFile::exists(path));
}

void OpeningTest::aMissingFileIsCreatedOnRequest()
{
    const TSqliteFile file;
    const QString path = file.PathOf(QStringLiteral("new.db"));
    TEngineOptions options;
    options.CreateMissing = true;
    {
        const auto engine = OpenEngine(QStringLiteral("sqlite:") + path, options);
        engine->Execute(QStringLiteral("CREATE TABLE Things (Code int)"), {});
        QVERIFY(QFile::exists(path + QStringLiteral("-wal")));
    }
    QVERIFY(BytesOf(path).startsWith("SQLite format 3"));
}

void OpeningTest::aFolderThatDoesNotExistIsNamed()
{
    const TSqliteFile file;
    TEngineOptions options;
    options.CreateMissing = true;
    const QString folder = file.PathOf(QStringLiteral("nowhere"));
    const EADOError error = OpeningError(QStringLiteral("sqlite:%1/new.db").arg(folder), options);
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(error.Message().contains(folder));
}

void OpeningTest::aFolderIsNoDatabase()
{
    const EADOError error = OpeningError(QStringLiteral("sqlite:") + QDir::tempPath());
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(error.Message().contains(QStringLiteral("پوشه")));
}

void OpeningTest::anUnreadableFileIsSaid()
{
    const TSqliteFile file;
    QVERIFY(QFile::setPermissions(file.Path(), {}));
    std::optional<EADOError> refusal;
    AsOrdinaryUser([&] { refusal = OpeningError(file.ConnectionString()); });
    const EADOError& error = *refusal;
    QCOMPARE(error.Kind(), TAdoErrorKind::CannotOpen);
    QVERIFY(error.Message().contains(file.Path()));
}

void OpeningTest::aForeignFileIsRefusedAndStaysAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a text") << QByteArray("این یک نامه است، نه پایگاه داده. ").repeated(200);
    QTest::newRow("a short text") << QByteArray("x");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n").append(QByteArray(5000, '\x7f'));
    QTest::newRow("zeros") << QByteArray(8192, '\0');
}

void OpeningTest::aForeignFileIsRefusedAndStaysAsItIs()
{
    QFETCH(QByteArray, bytes);
    const TSqliteFile folder;
    const QString path = folder.PathOf(QStringLiteral("foreign.db"));
    WriteBytes(path, bytes);
    TEngineOptions options;
    options.CreateMissing = true;
    const EADOError error = OpeningError(QStringLiteral("sqlite:") + path, options);
    QCOMPARE(error.Kind(), TAdoErrorKind::NotADatabase);
    QVERIFY(!error.ServerMessage().isEmpty());
    QVERIFY(error.Code() != 0);
    QVERIFY(BytesOf(path) == bytes);
}

void OpeningTest::aBrokenDatabaseIsRefusedAndStaysAsItIs()
{
    const TSqliteFile file;
    file.Run(QStringLiteral("PRAGMA journal_mode = DELETE; CREATE TABLE t(a); CREATE TABLE u(a)"));
    QByteArray bytes = BytesOf(file.Path());
    bytes.truncate(bytes.size() / 2 + 100);
    WriteBytes(file.Path(), bytes);
    const EADOError error = OpeningError(file.ConnectionString());
    QCOMPARE(error.Kind(), TAdoErrorKind::NotADatabase);
    QVERIFY(BytesOf(file.Path()) == bytes);
}

void OpeningTest::anotherProgramsDatabaseStaysAsItIs()
{
    const TSqliteFile file;
    file.Run(QStringLiteral("PRAGMA journal_mode = DELETE; PRAGMA application_id = 77; CREATE TABLE t(a)"));
    const QByteArray bytes = BytesOf(file.Path());
    {
        const auto engine = OpenEngine(file.ConnectionString(), {});
        const auto rows = engine->Execute(QStringLiteral("SELECT a FROM t"), {});
        QVERIFY(!rows->Next());
    }
    QVERIFY(BytesOf(file.Path()) == bytes);
}

void OpeningTest::aReadOnlyConnectionRefusesToWrite()
{
    const TSqliteFile file;
    file.Run(QStringLiteral("CREATE TABLE t(Code INT)"));
    TEngineOptions options;
    options.ReadOnly = true;
    const auto engine = OpenEngine(file.ConnectionString(), options);
    const QString text = QStringLiteral("INSERT INTO t (Code) VALUES (1)");
    const EADOError error = ErrorOf([&] { engine->Execute(text, {}); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Other);
    QVERIFY(error.Message().contains(QStringLiteral("فقط خواندنی")));
    QCOMPARE(error.Statement(), text);
    QCOMPARE(file.Value(QStringLiteral("SELECT count(*) FROM t")), QStringLiteral("0"));
}

void OpeningTest::anAddressWithPersianLettersAndBlanksOpens()
{
    const TSqliteFile file;
    QVERIFY(file.Path().contains(QStringLiteral("داده ها")));
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("SQLite:") + file.Path());
    connection.Open();
    QVERIFY(connection.Connected());
}

void OpeningTest::aNameThatLooksLikeAnAddressIsAFileName()
{
    const TSqliteFile file;
    const QString path = file.PathOf(QStringLiteral("a?mode=memory&x=%41#1.db"));
    TEngineOptions options;
    options.CreateMissing = true;
    OpenEngine(QStringLiteral("sqlite:") + path, options);
    QVERIFY(QFile::exists(path));
}

void OpeningTest::foreignKeysAreWatched()
{
    const TSqliteFile file;
    file.Run(QStringLiteral("CREATE TABLE Groups(Code INT PRIMARY KEY);"
                            "CREATE TABLE Goods(Code INT, GroupCode INT REFERENCES Groups(Code))"));
    const auto engine = OpenEngine(file.ConnectionString(), {});
    const EADOError error = ErrorOf(
        [&] { engine->Execute(QStringLiteral("INSERT INTO Goods (Code, GroupCode) VALUES (1, 5)"), {}); });
    QCOMPARE(error.Kind(), TAdoErrorKind::Constraint);
    QVERIFY(error.Message().contains(QStringLiteral("پیوند")));
}

QTEST_APPLESS_MAIN(OpeningTest)
#include "OpeningTest.moc"
