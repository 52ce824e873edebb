#include "ServerDatabase.h"

#include "ADOConnection.h"
#include "DatabaseAnswer.h"
#include "DatabaseSchema.h"

namespace {

constexpr int PermissionDenied = 229;
constexpr int PersianCodePage = 1256;
constexpr int Utf8CodePage = 65001;

QString ScriptIsMissing(const QString& script)
{
    return QStringLiteral("پایگاه دادهٔ سرور آماده نیست. نخست دستورهای database/%1 را در آن اجرا کنید.")
        .arg(script);
}

/// The first value of a statement that only works where the script has been run; otherwise the script is
/// named.
qint64 Answer(TADOConnection& connection, const QString& statement, const QString& script)
{
    try {
        const std::unique_ptr<IEngineRows> rows = connection.Run(statement);
        return rows->Next() ? rows->Int64(0) : 0;
    } catch (const EADOError& error) {
        if (!IsAnswerOfTheDatabase(error))
            throw;
        const QString message =
            error.Code() == PermissionDenied
                ? QStringLiteral(
                      "این کاربر اجازهٔ خواندن جدول‌های برنامه را ندارد. "
                      "دسترسی او را در سرور بررسی کنید.")
                : ScriptIsMissing(script);
        throw EADOError(TAdoErrorKind::CannotOpen, message, statement, error.ServerMessage(), error.State(),
                        error.Code());
    }
}

QString VersionProblem(qint64 version)
{
    if (version > DatabaseSchema::Version)
        return QStringLiteral(
            "جدول‌های پایگاه دادهٔ سرور از نسخهٔ تازه‌تری از برنامه است؛ برنامه را به‌روز کنید.");
    if (version >= DatabaseSchema::OldestVersion)
        return QStringLiteral(
                   "جدول‌های پایگاه دادهٔ سرور از نسخهٔ پیشین برنامه است. نخست دستورهای "
                   "database/upgrades/%1.sql را در آن اجرا کنید.")
            .arg(version + 1);
    return QStringLiteral(
        "نسخهٔ جدول‌های پایگاه دادهٔ سرور با این برنامه نمی‌خواند.");
}

} // namespace

void ServerDatabase::Open(TADOConnection& connection, const QString& connectionString)
{
    connection.SetConnectionString(connectionString);
    connection.Open();
    const qint64 version = Answer(connection, QStringLiteral("SELECT Version FROM dbo.SchemaInfo"),
                                  QStringLiteral("schema.sql"));
    Answer(connection, QStringLiteral("SELECT dbo.Category_SubNodes(0,0,1) AS value"),
           QStringLiteral("functions.sql"));
    if (version != DatabaseSchema::Version)
        throw EADOError(TAdoErrorKind::CannotOpen, VersionProblem(version));
}

QString ServerDatabase::CollationWarning(TADOConnection& connection)
{
    if (!connection.ConnectionString().startsWith(QLatin1String("odbc:"), Qt::CaseInsensitive))
        return {};
    const QString statement =
        QStringLiteral("SELECT CAST(DATABASEPROPERTYEX(DB_NAME(), 'Collation') AS nvarchar(128)) AS Name, "
                       "CAST(COLLATIONPROPERTY(CAST(DATABASEPROPERTYEX(DB_NAME(), 'Collation') AS "
                       "nvarchar(128)), 'CodePage') AS int) AS CodePage");
    try {
        const std::unique_ptr<IEngineRows> rows = connection.Run(statement);
        if (!rows->Next() || rows->IsNull(1))
            return {};
        const QString name = rows->Text(0);
        const qint64 codePage = rows->Int64(1);
        if (codePage == Utf8CodePage)
            return {};
        // Code page 1256 has ک, گ, چ, پ and ژ, but of the two letters that look like ی only the Arabic one.
        const QString loss =
            codePage == PersianCodePage
                ? QStringLiteral(
                      "حرف «ی» در بخشی از نوشته‌ها به «ي» بدل می‌شود")
                : QStringLiteral(
                      "حرف‌های فارسی در بخشی از نوشته‌ها به نشانهٔ پرسش بدل می‌شود");
        return QStringLiteral("کولیشن پایگاه دادهٔ سرور «%1» است و %2. پایگاه داده را با کولیشن "
                              "Persian_100_CI_AS_SC_UTF8 بسازید.")
            .arg(name, loss);
    } catch (const EADOError& error) {
        if (!IsAnswerOfTheDatabase(error))
            throw;
        return {};
    }
}
