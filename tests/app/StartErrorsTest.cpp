#include "WorkbenchProcess.h"

#include "ADOConnection.h"
#include "DatabaseFile.h"
#include "OrdinaryUser.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

QByteArray BytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

bool IsPersian(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.script() == QChar::Script_Arabic; });
}

} // namespace

class StartErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { workbench_ = std::make_unique<TWorkbenchProcess>(); }

    void helpIsPrintedAndEndsWell()
    {
        QCOMPARE(workbench_->Run({QStringLiteral("--help")}), 0);
        QVERIFY(workbench_->Output.contains(QStringLiteral("--tour")));
        QVERIFY(workbench_->Errors.isEmpty());
    }

    void badUsageEndsWithTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("unknown option") << QStringList{"--verbose"};
        QTest::newRow("missing value") << QStringList{"--database"};
        QTest::newRow("unknown engine") << QStringList{"--database", "shop.db"};
        QTest::newRow("unknown scheme") << QStringList{"--scheme", "blue"};
    }

    void badUsageEndsWithTwo()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(workbench_->Run(arguments), 2);
        QVERIFY(IsPersian(workbench_->Errors));
    }

    void aFileThatIsNoDatabaseIsRefusedAndLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("text") << QByteArray("این یک پایگاه داده نیست\n").repeated(500);
        QTest::newRow("short") << QByteArray("x");
        QTest::newRow("cut-off database") << QByteArray("SQLite format 3\0", 16) + QByteArray(500, '\0');
    }

    void aFileThatIsNoDatabaseIsRefusedAndLeftAlone()
    {
        QFETCH(QByteArray, bytes);
        Write(workbench_->File(QStringLiteral("shop.db")), bytes);
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), workbench_->Database(QStringLiteral("shop.db"))}),
            3);
        QVERIFY2(IsPersian(workbench_->Errors), qPrintable(workbench_->Errors));
        QCOMPARE(BytesOf(workbench_->File(QStringLiteral("shop.db"))), bytes);
    }

    void aDatabaseOfAnotherProgramIsRefusedAndLeftAlone()
    {
        {
            TADOConnection connection;
            connection.SetConnectionString(workbench_->Database(QStringLiteral("other.db")));
            TEngineOptions options;
            options.CreateMissing = true;
            connection.SetOptions(options);
            connection.Open();
            connection.Execute(QStringLiteral("CREATE TABLE notes (id int NOT NULL PRIMARY KEY)"));
        }
        const QByteArray before = BytesOf(workbench_->File(QStringLiteral("other.db")));
        QVERIFY(!before.isEmpty());
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), workbench_->Database(QStringLiteral("other.db"))}),
            3);
        QVERIFY2(IsPersian(workbench_->Errors), qPrintable(workbench_->Errors));
        QCOMPARE(BytesOf(workbench_->File(QStringLiteral("other.db"))), before);
    }

    void aPlaceWhereNoFileCanBeIsSaid()
    {
        QCOMPARE(workbench_->Run(
                     {QStringLiteral("--database"), QStringLiteral("sqlite:") + workbench_->Home.path()}),
                 3);
        QVERIFY(IsPersian(workbench_->Errors));
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), QStringLiteral("sqlite:/nowhere/at/all/shop.db")}),
            3);
        QVERIFY(IsPersian(workbench_->Errors));
    }

    void anUnreadableFileIsSaid()
    {
        const QString file = workbench_->File(QStringLiteral("shop.db"));
        Write(file, "secret");
        QVERIFY(QFile::setPermissions(file, QFileDevice::Permissions()));
        int code = 0;
        AsOrdinaryUser([&] {
            code = workbench_->Run(
                {QStringLiteral("--database"), workbench_->Database(QStringLiteral("shop.db"))});
        });
        QCOMPARE(code, 3);
        QVERIFY(workbench_->Errors.contains(file));
        QVERIFY(IsPersian(workbench_->Errors));
    }

    void aWrongConnectionStringIsSaid()
    {
        QCOMPARE(workbench_->Run(
                     {QStringLiteral("--database"), QStringLiteral("odbc:Driver=None;Server=nowhere")}),
                 3);
        QVERIFY(IsPersian(workbench_->Errors));
    }

    void aFileThatAnotherProgramHoldsIsSaidAndLeftAlone()
    {
#ifdef Q_OS_UNIX
        MakeSmallDatabase();
        const QString file = workbench_->File(QStringLiteral("shop.db"));
        const QByteArray before = BytesOf(file);
        // The whole lock region of the embedded engine, as a program that writes holds it.
        const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDWR);
        QVERIFY(descriptor >= 0);
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = 0x40000000;
        lock.l_len = 512;
        QCOMPARE(::fcntl(descriptor, F_SETLK, &lock), 0);
        const int code =
            workbench_->Run({QStringLiteral("--database"), workbench_->Database(QStringLiteral("shop.db"))});
        ::close(descriptor);
        QCOMPARE(code, 3);
        QVERIFY(IsPersian(workbench_->Errors));
        QCOMPARE(BytesOf(file), before);
#else
        QSKIP("The engine's lock is held from outside by fcntl, which only POSIX systems have.");
#endif
    }

    void aUserWhoIsNotThereIsBadUsage()
    {
        MakeSmallDatabase();
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), workbench_->Database(QStringLiteral("shop.db")),
                             QStringLiteral("--user"), QStringLiteral("هیچ‌کس' OR 1=1 --")}),
            2);
        QVERIFY(workbench_->Errors.contains(QStringLiteral("هیچ‌کس")));
    }

    void filesThatCannotBeWrittenAreSaid()
    {
        MakeSmallDatabase();
        const QString database = workbench_->Database(QStringLiteral("shop.db"));
        const QString underFile = workbench_->File(QStringLiteral("shop.db/pictures"));
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), database, QStringLiteral("--tour"), underFile}),
            3);
        QVERIFY(IsPersian(workbench_->Errors));
        QCOMPARE(
            workbench_->Run({QStringLiteral("--database"), database, QStringLiteral("--log-sql"), underFile}),
            3);
        QVERIFY(IsPersian(workbench_->Errors));
    }

private:
    void MakeSmallDatabase()
    {
        TADOConnection connection;
        TDatabaseOptions options;
        options.Size = TSampleSize::Small();
        OpenDatabase(connection, workbench_->Database(QStringLiteral("shop.db")), options);
    }

    std::unique_ptr<TWorkbenchProcess> workbench_;
};

QTEST_GUILESS_MAIN(StartErrorsTest)
#include "StartErrorsTest.moc"
