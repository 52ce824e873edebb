#include "DatabaseFile.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseCheck.h"
#include "DatabaseSchema.h"
#include "OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

/// How the application comes to its database.
class DatabaseFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aMissingFileIsMadeAndFilled();
    void nothingElseIsLeftInTheFolder();
    void aMissingFileIsOnlyMadeWhenThatIsWanted();
    void aGoodFileIsOpenedAndNotChanged();
    void whatTheUserWroteIsThereAgain();
    void aFileThatIsNotOursIsRefusedAndNotTouched_data();
    void aFileThatIsNotOursIsRefusedAndNotTouched();
    void aFolderIsRefused();
    void aMissingFolderIsRefused();
    void aFolderThatTakesNoFilesIsRefused_data();
    void aFolderThatTakesNoFilesIsRefused();
    void abandoningLeavesNothingBehind();
    void whatADeadProgramLeftBehindIsClearedAway();
    void aKilledProgramLeavesNoHalfMadeFile();
    void severalProgramsMakeTheSameFileOnce();
    void damageInsideAFileIsFound();
    void aDatabaseInMemoryIsMadeAndFilled();
    void theMakersStatementsAreNotAnnounced();
    void aServerWithoutTheTablesIsRefusedWithTheScriptsName();
    void aMeaninglessNameIsRefused_data();
    void aMeaninglessNameIsRefused();

private:
    QString Path(const QString& name) const { return folder_->filePath(name); }
    QStringList Entries() const
    {
        return QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QByteArray sample_; ///< the bytes of a good file
    std::unique_ptr<QTemporaryDir> folder_;
};

namespace {

TDatabaseOptions SmallOptions()
{
    TDatabaseOptions options;
    options.Size = TSampleSize::Small();
    return options;
}

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray WithNumber(QByteArray bytes, int offset, quint32 number)
{
    qToBigEndian(number, bytes.data() + offset);
    return bytes;
}

/// The error of opening; no message when it opened.
QString Refusal(const QString& connectionString, const TDatabaseOptions& options = SmallOptions())
{
    TADOConnection connection;
    try {
        OpenDatabase(connection, connectionString, options);
    } catch (const EADOError& error) {
        return connection.Connected() ? QStringLiteral("still connected") : error.Message();
    }
    return {};
}

QString SqliteString(const QString& path)
{
    return QStringLiteral("sqlite:") + path;
}

/// A database of the embedded engine that another application has made.
QByteArray ForeignDatabase(const QString& path)
{
    TADOConnection connection;
    TEngineOptions options;
    options.CreateMissing = true;
    connection.SetOptions(options);
    connection.SetConnectionString(SqliteString(path));
    connection.Open();
    connection.Execute(QStringLiteral("CREATE TABLE notes (id int NOT NULL)"));
    connection.Close();
    return Bytes(path);
}

} // namespace

void DatabaseFileTest::initTestCase()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample.db"));
    {
        TADOConnection connection;
        OpenDatabase(connection, SqliteString(path), SmallOptions());
    }
    sample_ = Bytes(path);
    QVERIFY(sample_.size() > 100000);
}

void DatabaseFileTest::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
}

void DatabaseFileTest::cleanup()
{
    folder_.reset();
}

void DatabaseFileTest::aMissingFileIsMadeAndFilled()
{
    TADOConnection connection;
    OpenDatabase(connection, SqliteString(Path(QStringLiteral("دفتر.db"))), SmallOptions());
    QVERIFY(connection.Connected());
    QCOMPARE(DatabaseCheck::RowCount(connection, QStringLiteral("dbo.kala")), TSampleSize::Small().Goods);
    QCOMPARE(DatabaseCheck::FindDamage(connection), QStringList());
    const std::unique_ptr<IEngineRows> rows =
        connection.Run(QStringLiteral("SELECT dbo.GetExpCenterName(0001) AS Title"));
    QVERIFY(rows->Next());
    QCOMPARE(rows->Text(0), QStringLiteral("مدیریت"));
}

void DatabaseFileTest::nothingElseIsLeftInTheFolder()
{
    {
        TADOConnection connection;
        OpenDatabase(connection, SqliteString(Path(QStringLiteral("a.db"))), SmallOptions());
    }
    QCOMPARE(Entries(), QStringList(QStringLiteral("a.db")));
    QCOMPARE(qFromBigEndian<quint32>(Bytes(Path(QStringLiteral("a.db"))).constData() + 68), 0x42465047U);
}

void DatabaseFileTest::aMissingFileIsOnlyMadeWhenThatIsWanted()
{
    TDatabaseOptions options = SmallOptions();
    options.CreateMissing = false;
    QVERIFY(
        Refusal(SqliteString(Path(QStringLiteral("a.db"))), options).contains(QStringLiteral("پیدا نشد")));
    QCOMPARE(Entries(), QStringList());
}

void DatabaseFileTest::aGoodFileIsOpenedAndNotChanged()
{
    WriteBytes(Path(QStringLiteral("a.db")), sample_);
    QCOMPARE(Refusal(SqliteString(Path(QStringLiteral("a.db")))), QString());
    QCOMPARE(Bytes(Path(QStringLiteral("a.db"))), sample_);
    QCOMPARE(Entries(), QStringList(QStringLiteral("a.db")));
}

void DatabaseFileTest::whatTheUserWroteIsThereAgain()
{
    const QString name = SqliteString(Path(QStringLiteral("a.db")));
    {
        TADOConnection connection;
        OpenDatabase(connection, name, SmallOptions());
        connection.Execute(QStringLiteral("UPDATE dbo.kala SET Price = 12345.6789 WHERE Code = 7"));
    }
    TADOConnection connection;
    OpenDatabase(connection, name, SmallOptions());
    const std::unique_ptr<IEngineRows> rows =
        connection.Run(QStringLiteral("SELECT Price FROM dbo.kala WHERE Code = 7"));
    QVERIFY(rows->Next());
    QCOMPARE(rows->Text(0), QStringLiteral("12345.6789"));
}

void DatabaseFileTest::aFileThatIsNotOursIsRefusedAndNotTouched_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QTemporaryDir folder;
    const QString notADatabase = QStringLiteral("پایگاه داده نیست");
    QTest::newRow("empty") << QByteArray() << notADatabase;
    QTest::newRow("text") << QByteArray("Dear accountant,\n") << notADatabase;
    QTest::newRow("zeros") << QByteArray(50000, '\0') << notADatabase;
    QTest::newRow("only the first words") << QByteArray("SQLite format 3\0", 16) << notADatabase;
    QTest::newRow("another application's")
        << ForeignDatabase(folder.filePath(QStringLiteral("foreign.db"))) << QStringLiteral("برنامهٔ دیگری");
    QTest::newRow("another application's mark")
        << WithNumber(sample_, 68, 0x0F055112) << QStringLiteral("برنامهٔ دیگری");
    QTest::newRow("a newer version") << WithNumber(sample_, 60, DatabaseSchema::Version + 1)
                                     << QStringLiteral("تازه‌تری");
    QTest::newRow("an unknown version") << WithNumber(sample_, 60, 0) << QStringLiteral("شناخته نیست");
    QTest::newRow("cut short") << sample_.left(sample_.size() / 2) << QStringLiteral("ناقص");
    QTest::newRow("damaged inside") << QByteArray(sample_.left(100) + QByteArray(sample_.size() - 100, 'x'))
                                    << QStringLiteral("آسیب دیده");
}

void DatabaseFileTest::aFileThatIsNotOursIsRefusedAndNotTouched()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    const QString path = Path(QStringLiteral("a.db"));
    WriteBytes(path, bytes);
    const QString message = Refusal(SqliteString(path));
    QVERIFY2(message.contains(reason), qPrintable(message));
    QCOMPARE(Bytes(path), bytes);
    QCOMPARE(Entries(), QStringList(QStringLiteral("a.db")));
}

void DatabaseFileTest::aFolderIsRefused()
{
    QVERIFY(Refusal(SqliteString(folder_->path())).contains(QStringLiteral("پوشه است")));
    QCOMPARE(Entries(), QStringList());
}

void DatabaseFileTest::aMissingFolderIsRefused()
{
    const QString message = Refusal(SqliteString(Path(QStringLiteral("none/a.db"))));
    QVERIFY(message.contains(QStringLiteral("پوشهٔ")) && message.contains(QStringLiteral("پیدا نشد")));
    QCOMPARE(Entries(), QStringList());
}

void DatabaseFileTest::aFolderThatTakesNoFilesIsRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("without permission") << QString();
#ifdef Q_OS_LINUX
    QTest::newRow("of the system") << QStringLiteral("/proc");
#endif
}

void DatabaseFileTest::aFolderThatTakesNoFilesIsRefused()
{
    QFETCH(QString, folder);
    if (folder.isEmpty())
        folder = folder_->path();
    const QFile::Permissions before = QFile::permissions(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    QString message;
    AsOrdinaryUser([&] { message = Refusal(SqliteString(folder + QStringLiteral("/a.db"))); });
    QFile::setPermissions(folder, before);
    QVERIFY2(message.contains(QStringLiteral("نمی‌توان پروندهٔ تازه ساخت")),
             qPrintable(message));
}

void DatabaseFileTest::abandoningLeavesNothingBehind()
{
    TDatabaseOptions options = SmallOptions();
    options.Progress = [](int, const QString& stage) { return stage != QStringLiteral("سندها"); };
    QVERIFY(Refusal(SqliteString(Path(QStringLiteral("a.db"))), options)
                .contains(QStringLiteral("به خواست شما")));
    QCOMPARE(Entries(), QStringList());
}

void DatabaseFileTest::whatADeadProgramLeftBehindIsClearedAway()
{
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("a.db.new-Xy12Zz")));
    WriteBytes(Path(QStringLiteral("a.db.new-Xy12Zz/database")), QByteArray(1000, 'x'));
    WriteBytes(Path(QStringLiteral("a.db.new-letter")), QByteArray("a file of the user's"));
    QCOMPARE(Refusal(SqliteString(Path(QStringLiteral("a.db")))), QString());
    QCOMPARE(Entries(), QStringList({QStringLiteral("a.db"), QStringLiteral("a.db.new-letter")}));
}

void DatabaseFileTest::aKilledProgramLeavesNoHalfMadeFile()
{
    const QString path = Path(QStringLiteral("a.db"));
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/" DATABASE_TOOL),
                  {QStringLiteral("create"), path, QStringLiteral("--goods"), QStringLiteral("500000")});
    QTRY_VERIFY_WITH_TIMEOUT(
        !QDir(folder_->path()).entryList({QStringLiteral("a.db.new-*")}, QDir::Dirs).isEmpty(), 30000);
    QTest::qWait(200);
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished(30000));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(Refusal(SqliteString(path)), QString());
    QCOMPARE(Entries(), QStringList(QStringLiteral("a.db")));
}

void DatabaseFileTest::damageInsideAFileIsFound()
{
    const QString path = Path(QStringLiteral("a.db"));
    WriteBytes(path, sample_);
    {
        TADOConnection connection;
        OpenDatabase(connection, SqliteString(path), SmallOptions());
        QCOMPARE(DatabaseCheck::FindDamagedPages(connection), QStringList());
    }
    // The indexes are made last.
    QByteArray damaged = sample_;
    damaged.replace(damaged.size() - 40960, 4096, QByteArray(4096, 'x'));
    WriteBytes(path, damaged);
    TADOConnection connection;
    OpenDatabase(connection, SqliteString(path), SmallOptions());
    QVERIFY(!DatabaseCheck::FindDamagedPages(connection).isEmpty());
}

void DatabaseFileTest::severalProgramsMakeTheSameFileOnce()
{
    const QString path = Path(QStringLiteral("a.db"));
    constexpr int ProgramCount = 3;
    QProcess programs[ProgramCount];
    for (QProcess& program : programs) {
        program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/" DATABASE_TOOL),
                      {QStringLiteral("open"), path, QStringLiteral("--size"), QStringLiteral("small")});
    }
    int made = 0;
    for (QProcess& program : programs) {
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY2(program.exitCode() == 0, program.readAllStandardError().constData());
        made += program.readAllStandardOutput().contains("made") ? 1 : 0;
    }
    QCOMPARE(made, 1);
    QCOMPARE(Entries(), QStringList(QStringLiteral("a.db")));
    QCOMPARE(Refusal(SqliteString(path)), QString());
}

void DatabaseFileTest::aDatabaseInMemoryIsMadeAndFilled()
{
    TADOConnection first;
    TADOConnection second;
    OpenDatabase(first, QStringLiteral("sqlite::memory:"), SmallOptions());
    OpenDatabase(second, QStringLiteral("sqlite::memory:"), SmallOptions());
    first.Execute(QStringLiteral("UPDATE dbo.kala SET Name = N'تازه' WHERE Code = 1"));
    const QString changed = QStringLiteral("dbo.kala WHERE Name = N'تازه'");
    QCOMPARE(DatabaseCheck::RowCount(first, changed), 1);
    QCOMPARE(DatabaseCheck::RowCount(second, changed), 0);
    const std::unique_ptr<TADOConnection> clone = first.Clone();
    clone->Open();
    QCOMPARE(DatabaseCheck::RowCount(*clone, changed), 1);
}

void DatabaseFileTest::theMakersStatementsAreNotAnnounced()
{
    TADOConnection connection;
    QStringList announced;
    connection.OnWillExecute = [&announced](TADOConnection*, const QString& text) { announced.append(text); };
    OpenDatabase(connection, SqliteString(Path(QStringLiteral("a.db"))), SmallOptions());
    OpenDatabase(connection, QStringLiteral("sqlite::memory:"), SmallOptions());
    for (const QString& text : announced)
        QVERIFY2(text.startsWith(QStringLiteral("SELECT")), qPrintable(text));
}

void DatabaseFileTest::aServerWithoutTheTablesIsRefusedWithTheScriptsName()
{
    const QString path = Path(QStringLiteral("server.db"));
    ForeignDatabase(path);
    const QString message = Refusal(QStringLiteral("odbc:DRIVER=SQLite3;Database=") + path);
    QVERIFY2(message.contains(QStringLiteral("schema.sql")), qPrintable(message));
}

void DatabaseFileTest::aMeaninglessNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("no file") << QStringLiteral("sqlite:");
    QTest::newRow("blanks") << QStringLiteral("sqlite:  ");
    QTest::newRow("no engine") << QStringLiteral("a.db");
    QTest::newRow("another engine") << QStringLiteral("oracle:db");
}

void DatabaseFileTest::aMeaninglessNameIsRefused()
{
    QFETCH(const QString, name);
    QVERIFY(!Refusal(name).isEmpty());
    QCOMPARE(Entries(), QStringList());
}

QTEST_GUILESS_MAIN(DatabaseFileTest)

#include "DatabaseFileTest.moc"
