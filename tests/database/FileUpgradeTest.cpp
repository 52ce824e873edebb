#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseCheck.h"
#include "DatabaseFile.h"
#include "DatabaseSchema.h"
#include "OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

namespace {

constexpr int VersionOffset = 60;
constexpr int ApplicationIdOffset = 68;

/// What a file of version 1 may hold besides the oldest tables.
enum TLayout { Oldest, WithUniqueCodes, WithUniqueColors, WithCorrections };

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

quint32 HeaderVersion(const QString& path)
{
    return qFromBigEndian<quint32>(Bytes(path).constData() + VersionOffset);
}

QString Embedded(const QString& path)
{
    return QStringLiteral("sqlite:") + path;
}

QStringList OldStatements(TLayout layout)
{
    QFile file(QStringLiteral(OLD_SCHEMA));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the old schema is missing");
    QString script = QString::fromUtf8(file.readAll());
    if (layout >= WithUniqueColors)
        script.replace(QStringLiteral("cl_code nvarchar(50) NOT NULL,"),
                       QStringLiteral("cl_code nvarchar(50) NOT NULL UNIQUE,"));
    QStringList statements = DatabaseSchema::Batches(script);
    if (layout >= WithUniqueCodes)
        statements.append(QStringLiteral("CREATE UNIQUE INDEX UX_AccDetails_UniqueCode ON dbo.AccDetails "
                                         "(UniqueCode) WHERE UniqueCode <> 0"));
    if (layout >= WithCorrections) {
        statements.append(QStringLiteral(
            "CREATE TABLE dbo.StockCorrections (Id int IDENTITY(1,1) NOT NULL PRIMARY KEY, KalaCode int NOT "
            "NULL REFERENCES dbo.kala (Code), CorrectionDate nvarchar(10) NOT NULL, Quantity decimal(18,3) "
            "NOT NULL, Sharh nvarchar(200) NULL, UserCode int NOT NULL REFERENCES dbo.users (Code), "
            "RegisteredAt datetime NOT NULL)"));
        statements.append(QStringLiteral(
            "CREATE INDEX IX_StockCorrections_Kala ON dbo.StockCorrections (KalaCode, CorrectionDate)"));
    }
    return statements;
}

/// A file as the program made it when the tables were of version 1, with `statements` run in it.
void MakeOldFile(const QString& path, const QStringList& statements, TLayout layout = Oldest)
{
    TADOConnection connection;
    TEngineOptions options;
    options.CreateMissing = true;
    connection.SetOptions(options);
    connection.SetConnectionString(Embedded(path));
    connection.Open();
    const QString kinds =
        QStringLiteral("INSERT INTO dbo.AccDetailTypes (Code, Name) VALUES (2, N'a'), (3, N'b'), (5, N'c')");
    TTransaction transaction(connection);
    for (const QString& statement : OldStatements(layout) + QStringList(kinds) + statements)
        connection.Execute(statement);
    transaction.Commit();
    connection.Close();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    for (const auto& [offset, number] :
         {std::pair(VersionOffset, 1U), std::pair(ApplicationIdOffset, DatabaseSchema::ApplicationId)}) {
        char bytes[4];
        qToBigEndian(number, bytes);
        QVERIFY(file.seek(offset));
        QCOMPARE(file.write(bytes, 4), 4);
    }
}

void Open(TADOConnection& connection, const QString& path)
{
    TDatabaseOptions options;
    options.CreateMissing = false;
    OpenDatabase(connection, Embedded(path), options);
}

/// The rows of a query as texts, with commas between the columns.
QStringList Rows(TADOConnection& connection, const QString& query)
{
    QStringList result;
    const std::unique_ptr<IEngineRows> rows = connection.Run(query);
    while (rows->Next()) {
        QStringList values;
        for (int column = 0; column < rows->Columns().size(); ++column)
            values.append(rows->IsNull(column) ? QStringLiteral("NULL") : rows->Text(column));
        result.append(values.join(u','));
    }
    return result;
}

QStringList RowsOf(const QString& path, const QString& query)
{
    TADOConnection connection;
    Open(connection, path);
    return Rows(connection, query);
}

/// Tables, indexes and views as the engine keeps them.
QSet<QString> Definitions(const QString& path)
{
    TADOConnection connection;
    Open(connection, path);
    connection.RegisterFunction(
        QStringLiteral("Definitions"), 0, [](IFunctionContext& context, const QVariantList&) -> QVariant {
            QStringList lines;
            for (const QVariant& line : context.FirstColumn(
                     "SELECT type || ' ' || name || ': ' || sql FROM sqlite_master WHERE sql IS NOT NULL",
                     {}))
                lines.append(line.toString());
            return lines.join(u'\x1f');
        });
    const QStringList lines =
        Rows(connection, QStringLiteral("SELECT dbo.Definitions() AS lines")).constFirst().split(u'\x1f');
    return {lines.begin(), lines.end()};
}

QString Refusal(const QString& path, TAdoErrorKind* kind = nullptr)
{
    TADOConnection connection;
    try {
        Open(connection, path);
    } catch (const EADOError& error) {
        if (kind != nullptr)
            *kind = error.Kind();
        return connection.Connected() ? QStringLiteral("still connected") : error.Message();
    }
    return {};
}

const QString addDetail =
    QStringLiteral("INSERT INTO dbo.AccDetails ([Type], Code, Name, UniqueCode) VALUES (%1, %2, N'a', %3)");
const QString addColor =
    QStringLiteral("INSERT INTO dbo.colors (cl_code, [h-img], [l-img]) VALUES ('%1', NULL, NULL)");
const QString addTag = QStringLiteral("INSERT INTO dbo.TagS (Name, color_code) VALUES (N'%1', %2)");
const QString addTotal =
    QStringLiteral("INSERT INTO dbo.AccTotals (Code, Name, GroupCode, DetailType, Nature, "
                   "Properties) VALUES (%1, N'%2', 8, 4, 1, 4)");

} // namespace

/// How a file of an older version comes up to this program's.
class FileUpgradeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { folder_.reset(); }
    void eachVersionHasItsScript();
    void anOlderFileGetsTheTablesOfANewOne_data();
    void anOlderFileGetsTheTablesOfANewOne();
    void anUpgradedFileIsUpgradedOnce();
    void whatTheUserWroteStays();
    void correctionsThatAreThereStay();
    void sharedUniqueCodesAreSetApart();
    void coloursThatAreThereTwiceBecomeOne();
    void theSampleChartIsCompleted();
    void aChartOfOnesOwnStaysAsItIs();
    void aFailedUpgradeLeavesTheFileAsItWas();
    void aFileThatCannotBeWrittenIsLeftAlone_data();
    void aFileThatCannotBeWrittenIsLeftAlone();
    void severalProgramsUpgradeTheSameFileOnce();
    void whoHasTheFileOpenSeesItWhole();

private:
    QString path_;
    QSet<QString> fresh_; ///< the definitions of a new file
    std::unique_ptr<QTemporaryDir> folder_;
};

void FileUpgradeTest::initTestCase()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new.db"));
    TDatabaseOptions options;
    options.Size = TSampleSize::Small();
    {
        TADOConnection connection;
        OpenDatabase(connection, Embedded(path), options);
    }
    fresh_ = Definitions(path);
}

void FileUpgradeTest::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    path_ = folder_->filePath(QStringLiteral("old.db"));
}

void FileUpgradeTest::eachVersionHasItsScript()
{
    for (int version = DatabaseSchema::OldestVersion + 1; version <= DatabaseSchema::Version; ++version) {
        const QVector<DatabaseSchema::TUpgradeStatement> statements =
            DatabaseSchema::UpgradeStatements(version);
        QVERIFY(!statements.isEmpty());
        for (const DatabaseSchema::TUpgradeStatement& statement : statements)
            QVERIFY2(!statement.Text.contains(QStringLiteral("TRANSACTION")), qPrintable(statement.Text));
        QCOMPARE(statements.constLast().Text,
                 QStringLiteral("UPDATE dbo.SchemaInfo SET Version = %1 WHERE Version = %2")
                     .arg(version)
                     .arg(version - 1));
    }
}

void FileUpgradeTest::anOlderFileGetsTheTablesOfANewOne_data()
{
    QTest::addColumn<int>("layout");
    QTest::newRow("the oldest") << static_cast<int>(Oldest);
    QTest::newRow("with unique codes") << static_cast<int>(WithUniqueCodes);
    QTest::newRow("with unique colours") << static_cast<int>(WithUniqueColors);
    QTest::newRow("with corrections") << static_cast<int>(WithCorrections);
}

void FileUpgradeTest::anOlderFileGetsTheTablesOfANewOne()
{
    QFETCH(int, layout);
    MakeOldFile(path_, {}, static_cast<TLayout>(layout));
    const QSet<QString> upgraded = Definitions(path_);
    const QSet<QString> missing = fresh_ - upgraded;
    const QSet<QString> surplus = upgraded - fresh_;
    // The column's own constraint, which the index repeats.
    if (layout >= WithUniqueColors) {
        QCOMPARE(missing.size(), 1);
        QVERIFY(missing.constBegin()->startsWith(QStringLiteral("table colors")));
        QCOMPARE(surplus.size(), 1);
        QVERIFY(surplus.constBegin()->startsWith(QStringLiteral("table colors")));
    } else {
        QCOMPARE(missing.values(), QStringList());
        QCOMPARE(surplus.values(), QStringList());
    }
    QCOMPARE(HeaderVersion(path_), quint32(DatabaseSchema::Version));
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Version FROM dbo.SchemaInfo")),
             QStringList(QString::number(DatabaseSchema::Version)));
    TADOConnection connection;
    Open(connection, path_);
    QCOMPARE(DatabaseCheck::FindDamagedPages(connection), QStringList());
}

void FileUpgradeTest::anUpgradedFileIsUpgradedOnce()
{
    MakeOldFile(path_, {});
    QCOMPARE(Refusal(path_), QString());
    const QByteArray upgraded = Bytes(path_);
    QCOMPARE(Refusal(path_), QString());
    QCOMPARE(Bytes(path_), upgraded);
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("old.db")));
}

void FileUpgradeTest::whatTheUserWroteStays()
{
    MakeOldFile(path_, {QStringLiteral("INSERT INTO dbo.KalaGroups (Code, Name) VALUES (3, N'گروه')"),
                        QStringLiteral("INSERT INTO dbo.kala (Code, Name, UnitName, GroupCode, Price, Stock) "
                                       "VALUES (7, N'شیر', N'عدد', 3, 12345.6789, 0.125)"),
                        addDetail.arg(2).arg(5).arg(2000005), addDetail.arg(3).arg(5).arg(0),
                        addDetail.arg(3).arg(6).arg(0)});
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Code, Name, SearchName, Price, Stock FROM dbo.kala")),
             QStringList(QStringLiteral("7,شیر,شیر,12345.6789,0.125")));
    // No code at all is not a shared one.
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT [Type], Code, UniqueCode FROM dbo.AccDetails "
                                          "ORDER BY [Type], Code")),
             QStringList({QStringLiteral("2,5,2000005"), QStringLiteral("3,5,0"), QStringLiteral("3,6,0")}));
}

void FileUpgradeTest::correctionsThatAreThereStay()
{
    MakeOldFile(
        path_,
        {QStringLiteral("INSERT INTO dbo.users (Code, Name, LoginName) VALUES (1, N'a', N'a')"),
         QStringLiteral("INSERT INTO dbo.kala (Code, Name, UnitName) VALUES (7, N'شیر', N'عدد')"),
         QStringLiteral("INSERT INTO dbo.StockCorrections (KalaCode, CorrectionDate, Quantity, UserCode, "
                        "RegisteredAt) VALUES (7, N'1403/01/01', -2.5, 1, '2024-03-20T10:00:00')")},
        WithCorrections);
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT KalaCode, Quantity FROM dbo.StockCorrections")),
             QStringList(QStringLiteral("7,-2.5")));
}

void FileUpgradeTest::sharedUniqueCodesAreSetApart()
{
    MakeOldFile(path_, {addDetail.arg(2).arg(1).arg(2000001), addDetail.arg(2).arg(2).arg(2000001),
                        addDetail.arg(2).arg(3).arg(2000001), addDetail.arg(2).arg(4).arg(2000009),
                        addDetail.arg(5).arg(1).arg(2000001), addDetail.arg(5).arg(2).arg(2000009)});
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT [Type], Code, UniqueCode FROM dbo.AccDetails "
                                          "ORDER BY [Type], Code")),
             QStringList({QStringLiteral("2,1,2000001"), QStringLiteral("2,2,2000010"),
                          QStringLiteral("2,3,2000011"), QStringLiteral("2,4,2000009"),
                          QStringLiteral("5,1,5000001"), QStringLiteral("5,2,5000002")}));
}

void FileUpgradeTest::coloursThatAreThereTwiceBecomeOne()
{
    MakeOldFile(path_, {addColor.arg(QStringLiteral("clRed")), addColor.arg(QStringLiteral("clBlue")),
                        addColor.arg(QStringLiteral("clRed")), addColor.arg(QStringLiteral("clRed")),
                        addTag.arg(QStringLiteral("یک")).arg(1), addTag.arg(QStringLiteral("دو")).arg(3),
                        addTag.arg(QStringLiteral("سه")).arg(4), addTag.arg(QStringLiteral("چهار")).arg(2)});
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT code, cl_code FROM dbo.colors ORDER BY code")),
             QStringList({QStringLiteral("1,clRed"), QStringLiteral("2,clBlue")}));
    QCOMPARE(
        RowsOf(path_, QStringLiteral("SELECT color_code FROM dbo.TagS ORDER BY Code")),
        QStringList({QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2")}));
}

void FileUpgradeTest::theSampleChartIsCompleted()
{
    MakeOldFile(
        path_,
        {QStringLiteral("INSERT INTO dbo.AccGroups (Code, Name, [Type]) VALUES (8, N'هزینه‌ها', 5)"),
         addTotal.arg(801).arg(QStringLiteral("هزینه‌های حقوق و دستمزد")),
         addTotal.arg(701).arg(QStringLiteral("بهای تمام‌شده کالای فروش‌رفته")),
         QStringLiteral("INSERT INTO dbo.AccAssistants (TotalCode, Code, Name) "
                        "VALUES (701, 1, N'بهای کالای فروش‌رفته')")});
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Name, GroupCode, DetailType, Nature, Properties "
                                          "FROM dbo.AccTotals WHERE Code = 7")),
             QStringList(QStringLiteral("هزینه‌های تعمیر و نگهداری,8,4,1,4")));
    QCOMPARE(RowsOf(path_, QStringLiteral(
                               "SELECT Code, Name FROM dbo.AccAssistants WHERE TotalCode = 7 ORDER BY Code")),
             QStringList({QStringLiteral("1,تعمیر ساختمان"), QStringLiteral("2,تعمیر وسایل نقلیه"),
                          QStringLiteral("3,تعمیر تجهیزات")}));
    QCOMPARE(RowsOf(path_,
                    QStringLiteral("SELECT Operation, Total, Assistant, Detail FROM dbo.AutoVoucherSetting")),
             QStringList(QStringLiteral("بهای تمام شده کالای فروش رفته,701,1,0")));
}

void FileUpgradeTest::aChartOfOnesOwnStaysAsItIs()
{
    MakeOldFile(path_,
                {QStringLiteral("INSERT INTO dbo.AccGroups (Code, Name, [Type]) VALUES (8, N'هزینه', 5)"),
                 addTotal.arg(801).arg(QStringLiteral("هزینه‌های حقوق و دستمزد")),
                 addTotal.arg(7).arg(QStringLiteral("از خودم"))});
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Code, Name FROM dbo.AccTotals ORDER BY Code")),
             QStringList({QStringLiteral("7,از خودم"),
                          QStringLiteral("801,هزینه‌های حقوق و دستمزد")}));
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Code FROM dbo.AccAssistants")), QStringList());
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT Operation FROM dbo.AutoVoucherSetting")), QStringList());
}

void FileUpgradeTest::aFailedUpgradeLeavesTheFileAsItWas()
{
    // The last statements fail: the version is written by a row that a rule of the user's own refuses.
    MakeOldFile(path_,
                {addDetail.arg(2).arg(1).arg(2000001), addDetail.arg(2).arg(2).arg(2000001),
                 QStringLiteral("DROP TABLE dbo.SchemaInfo"),
                 QStringLiteral("CREATE TABLE dbo.SchemaInfo (Version int NOT NULL CHECK (Version < 2))"),
                 QStringLiteral("INSERT INTO dbo.SchemaInfo (Version) VALUES (1)")});
    const QByteArray before = Bytes(path_);
    TAdoErrorKind kind = TAdoErrorKind::Other;
    const QString message = Refusal(path_, &kind);
    QVERIFY2(message.contains(QStringLiteral("به‌روز نشد")), qPrintable(message));
    QVERIFY2(message.contains(path_), qPrintable(message));
    QCOMPARE(kind, TAdoErrorKind::Constraint);
    QCOMPARE(Bytes(path_), before);
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("old.db")));
}

void FileUpgradeTest::aFileThatCannotBeWrittenIsLeftAlone_data()
{
    QTest::addColumn<bool>("folderTakesFiles");
    QTest::addColumn<QString>("words");
    QTest::newRow("file") << true << QStringLiteral("به‌روز نشد");
    QTest::newRow("folder") << false << QStringLiteral("فقط خواندنی");
}

void FileUpgradeTest::aFileThatCannotBeWrittenIsLeftAlone()
{
    QFETCH(const bool, folderTakesFiles);
    QFETCH(const QString, words);
    MakeOldFile(path_, {});
    const QByteArray before = Bytes(path_);
    const QFile::Permissions reading = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    const QFile::Permissions passing = reading | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    const QFile::Permissions writing = QFile::WriteOwner | QFile::WriteOther;
    QVERIFY(QFile::setPermissions(path_, reading));
    QVERIFY(QFile::setPermissions(folder_->path(), folderTakesFiles ? passing | writing : passing));
    QString message;
    AsOrdinaryUser([&] { message = Refusal(path_); });
    QVERIFY(QFile::setPermissions(folder_->path(), passing | writing));
    QVERIFY2(message.contains(words), qPrintable(message));
    QCOMPARE(Bytes(path_), before);
}

void FileUpgradeTest::severalProgramsUpgradeTheSameFileOnce()
{
    MakeOldFile(path_, {addDetail.arg(2).arg(1).arg(2000001), addDetail.arg(2).arg(2).arg(2000001)});
    QProcess programs[3];
    for (QProcess& program : programs)
        program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/" DATABASE_TOOL),
                      {QStringLiteral("open"), path_});
    for (QProcess& program : programs) {
        QVERIFY(program.waitForFinished(60000));
        QVERIFY2(program.exitCode() == 0, program.readAllStandardError().constData());
    }
    QCOMPARE(RowsOf(path_, QStringLiteral("SELECT UniqueCode FROM dbo.AccDetails ORDER BY Code")),
             QStringList({QStringLiteral("2000001"), QStringLiteral("2000002")}));
    QCOMPARE(HeaderVersion(path_), quint32(DatabaseSchema::Version));
}

/// The header of the file itself is behind until the last connection closes.
void FileUpgradeTest::whoHasTheFileOpenSeesItWhole()
{
    MakeOldFile(path_, {});
    {
        TADOConnection other;
        other.SetConnectionString(Embedded(path_));
        other.Open();
        QCOMPARE(Rows(other, QStringLiteral("SELECT Version FROM dbo.SchemaInfo")), QStringList("1"));
        QCOMPARE(Refusal(path_), QString());
        QCOMPARE(Refusal(path_), QString());
        QCOMPARE(Rows(other, QStringLiteral("SELECT COUNT(*) FROM dbo.StockCorrections")), QStringList("0"));
        other.Execute(QStringLiteral("UPDATE dbo.SchemaInfo SET Version = Version + 1"));
        QVERIFY(Refusal(path_).contains(QStringLiteral("تازه‌تری")));
    }
    QCOMPARE(HeaderVersion(path_), quint32(DatabaseSchema::Version));
}

QTEST_GUILESS_MAIN(FileUpgradeTest)

#include "FileUpgradeTest.moc"
