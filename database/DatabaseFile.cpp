#include "DatabaseFile.h"

#include "ADOConnection.h"
#include "DatabaseAnswer.h"
#include "DatabaseFunctions.h"
#include "DatabaseSchema.h"
#include "FileCreation.h"
#include "FileHeader.h"
#include "FileUpgrade.h"
#include "ServerDatabase.h"

#include <atomic>
#include <QFileInfo>

namespace {

constexpr QLatin1String EmbeddedPrefix("sqlite:");
constexpr QLatin1String MemoryName(":memory:");

[[noreturn]] void Refuse(TAdoErrorKind kind, const QString& message, const QString& path)
{
    throw EADOError(kind, message.arg(path));
}

[[noreturn]] void RefuseNewer(const QString& path)
{
    Refuse(
        TAdoErrorKind::NotADatabase,
        QStringLiteral(
            "پایگاه دادهٔ «%1» را نسخهٔ تازه‌تری از برنامه ساخته است؛ برنامه را به‌روز "
            "کنید."),
        path);
}

void RefuseUnlessGood(const QString& path)
{
    using FileHeader::TVerdict;
    switch (FileHeader::Examine(path)) {
    case TVerdict::Good:
        return;
    case TVerdict::Unreadable:
        Refuse(
            TAdoErrorKind::CannotOpen,
            QStringLiteral(
                "پروندهٔ «%1» را نمی‌توان خواند. اجازهٔ خواندن آن را بررسی "
                "کنید."),
            path);
    case TVerdict::NotADatabase:
        Refuse(
            TAdoErrorKind::NotADatabase,
            QStringLiteral(
                "پروندهٔ «%1» پایگاه داده نیست و دست‌نخورده ماند. نام دیگری برای پایگاه داده "
                "بدهید."),
            path);
    case TVerdict::Incomplete:
        Refuse(
            TAdoErrorKind::NotADatabase,
            QStringLiteral(
                "پایگاه دادهٔ «%1» ناقص است و دست‌نخورده ماند. نسخهٔ پشتیبان آن را "
                "بازگردانید."),
            path);
    case TVerdict::Foreign:
        Refuse(
            TAdoErrorKind::NotADatabase,
            QStringLiteral(
                "«%1» پایگاه دادهٔ برنامهٔ دیگری است و دست‌نخورده ماند. نام دیگری برای پایگاه "
                "داده بدهید."),
            path);
    case TVerdict::UnknownVersion:
        Refuse(
            TAdoErrorKind::NotADatabase,
            QStringLiteral(
                "نسخهٔ پایگاه دادهٔ «%1» شناخته نیست؛ پرونده دست‌نخورده "
                "ماند."),
            path);
    case TVerdict::NewerVersion:
        RefuseNewer(path);
    }
}

/// 0 where there are no tables of this application.
int TablesVersion(TADOConnection& connection)
{
    try {
        return DatabaseSchema::VersionOf(connection);
    } catch (const EADOError& error) {
        if (!IsAnswerOfTheDatabase(error))
            throw;
        return 0;
    }
}

/// Opens a file whose header is good, brought up to this program's version where it is of an older one.
void OpenTables(TADOConnection& connection, const QString& path)
{
    connection.Open();
    const int version = TablesVersion(connection);
    if (version == 0) {
        Refuse(
            TAdoErrorKind::NotADatabase,
            QStringLiteral(
                "پایگاه دادهٔ «%1» آسیب دیده است: جدول‌های برنامه در آن خوانده نمی‌شود. نسخهٔ "
                "پشتیبان آن را "
                "بازگردانید."),
            path);
    }
    // While another program has the file open its header may be behind.
    if (version > DatabaseSchema::Version)
        RefuseNewer(path);
    if (version == DatabaseSchema::Version)
        return;
    connection.Close();
    UpgradeDatabaseFile(path);
    connection.Open();
}

void OpenFile(TADOConnection& connection, const QString& path, const TDatabaseOptions& options)
{
    const QFileInfo file(path);
    if (file.isDir())
        Refuse(TAdoErrorKind::CannotOpen, QStringLiteral("«%1» پوشه است، نه پروندهٔ پایگاه داده."), path);
    if (!file.exists()) {
        if (!options.CreateMissing)
            Refuse(TAdoErrorKind::CannotOpen, QStringLiteral("پروندهٔ پایگاه دادهٔ «%1» پیدا نشد."), path);
        CreateDatabaseFile(path, options);
    }
    RefuseUnlessGood(path);
    connection.SetConnectionString(EmbeddedPrefix + path);
    OpenTables(connection, path);
}

/// The maker's statements are not the business of who listens to the connection, so a connection of its own
/// runs them.
void OpenMemory(TADOConnection& connection, const QString& name, const TDatabaseOptions& options)
{
    static std::atomic<int> lastNumber{0};
    const QString shared =
        name == MemoryName ? MemoryName + QStringLiteral("database-%1").arg(++lastNumber) : name;
    TADOConnection maker;
    maker.SetConnectionString(EmbeddedPrefix + shared);
    maker.Open();
    if (TablesVersion(maker) == 0)
        CreateSampleDatabase(maker, options.Size, options.Progress);
    connection.SetConnectionString(EmbeddedPrefix + shared);
    connection.Open();
}

} // namespace

void OpenDatabase(TADOConnection& connection, const QString& connectionString,
                  const TDatabaseOptions& options)
{
    connection.Close();
    RegisterDatabaseFunctions(connection);
    try {
        if (!connectionString.startsWith(EmbeddedPrefix, Qt::CaseInsensitive)) {
            ServerDatabase::Open(connection, connectionString);
            return;
        }
        const QString name = connectionString.mid(EmbeddedPrefix.size());
        if (name.trimmed().isEmpty())
            throw EADOError(TAdoErrorKind::CannotOpen, QStringLiteral("نام پروندهٔ پایگاه داده خالی است."));
        if (name.startsWith(MemoryName))
            OpenMemory(connection, name, options);
        else
            OpenFile(connection, name, options);
    } catch (...) {
        connection.Close();
        throw;
    }
}
