#include "Workbench.h"

#include "AdoError.h"
#include "DatabaseFile.h"
#include "HostApplication.h"
#include "Look.h"
#include "MainWindow.h"
#include "OffscreenMessages.h"
#include "PersianText.h"
#include "ProgressWindow.h"
#include "QueryOpening.h"
#include "ReferenceHost.h"
#include "ServerDatabase.h"
#include "StartMessages.h"
#include "StatementLog.h"
#include "Tour.h"

#include <cstdio>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

constexpr QSize tourWindow{1180, 720};

// Where the sample database stands that is opened when no other one is named.
QString SampleDatabaseFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("sample.db"));
}

QString ConnectionStringOf(const TCommandLine& line)
{
    if (!line.Database.isEmpty())
        return line.Database;
    const QString file = SampleDatabaseFile();
    if (!QDir().mkpath(QFileInfo(file).path()))
        throw EStartError(ExitCode::CannotOpen,
                          QStringLiteral("پوشهٔ %1 ساخته نشد. دسترسی به آن را بررسی کنید.")
                              .arg(PersianText::Isolated(QFileInfo(file).path())));
    return QStringLiteral("sqlite:") + file;
}

// What the status bar calls the database: never the whole connection string, which may hold a password.
QString NameOf(const QString& connectionString)
{
    if (connectionString.startsWith(QLatin1String("sqlite:")))
        return QFileInfo(connectionString.section(u':', 1)).fileName();
    const QStringList parts = connectionString.section(u':', 1).split(u';');
    for (const QString& key :
         {QStringLiteral("Database="), QStringLiteral("DSN="), QStringLiteral("Server=")}) {
        for (const QString& part : parts) {
            if (part.trimmed().startsWith(key, Qt::CaseInsensitive))
                return part.section(u'=', 1).trimmed();
        }
    }
    return QStringLiteral("ODBC");
}

TUserInfo SignIn(TADOConnection& connection, const QString& name)
{
    TADOQuery query;
    if (name.isEmpty())
        OpenQuery(query, connection,
                  QStringLiteral("SELECT TOP 1 Code, Name FROM dbo.users WHERE Active = 1 ORDER BY Code"));
    else
        OpenQuery(query, connection,
                  QStringLiteral(
                      "SELECT Code, Name FROM dbo.users WHERE Active = 1 AND (LoginName = ? OR Name = ?)"),
                  {name, name});
    if (!query.IsEmpty())
        return {query.FieldByName(QStringLiteral("Code"))->AsInteger(),
                query.FieldByName(QStringLiteral("Name"))->AsString()};
    if (!name.isEmpty())
        throw EStartError(
            ExitCode::BadUsage,
            QStringLiteral("کاربری به نام «%1» در این بانک اطلاعاتی نیست.").arg(PersianText::Isolated(name)));
    return {0, QStringLiteral("بی‌نام")};
}

void OpenWithProgress(TADOConnection& connection, const QString& connectionString)
{
    TProgressWindow progress(QStringLiteral("ساختن بانک اطلاعاتی نمونه"));
    TDatabaseOptions options;
    options.Progress = [&progress](int percent, const QString& stage) {
        return progress.Tell(percent, stage);
    };
    OpenDatabase(connection, connectionString, options);
}

void WarnOfCollation(TADOConnection& connection)
{
    const QString warning = ServerDatabase::CollationWarning(connection);
    if (!warning.isEmpty())
        StartMessages::Tell(warning);
}

void MakeFolder(const QString& folder)
{
    if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable())
        throw EStartError(ExitCode::CannotOpen,
                          QStringLiteral("در پوشهٔ %1 نمی‌توان نوشت.")
                              .arg(PersianText::Isolated(folder)));
}

void StartLog(TStatementLog& log, const QString& fileName)
{
    QString error;
    if (!fileName.isEmpty() && !log.Open(fileName, error))
        throw EStartError(
            ExitCode::CannotOpen,
            QStringLiteral("پروندهٔ %1 برای نوشتن دستورها باز نشد.").arg(PersianText::Isolated(fileName)),
            error);
}

Look::TScheme SchemeOf(const TCommandLine& line, const TReferenceHost& host)
{
    if (line.Scheme.isEmpty())
        return TMainWindow::SavedScheme(host);
    return line.Scheme == QLatin1String("dark") ? Look::TScheme::Dark : Look::TScheme::Light;
}

} // namespace

EStartError::EStartError(int exitCode, const QString& message, const QString& details)
    : std::runtime_error(message.toStdString()), exitCode_(exitCode), message_(message), details_(details)
{
}

EStartError::~EStartError() = default;

int TWorkbench::Run(const QStringList& arguments)
{
    try {
        const TCommandLine line = ParseCommandLine(arguments);
        if (line.Help) {
            std::printf("%s", CommandLineHelp().toUtf8().constData());
            return ExitCode::Ok;
        }
        return Start(line);
    } catch (const EUsageError& error) {
        StartMessages::Tell(error.Message());
        return ExitCode::BadUsage;
    } catch (const EStartError& error) {
        StartMessages::Tell(error.Message(), error.Details());
        return error.ExitCode();
    } catch (const EADOError& error) {
        StartMessages::Tell(error.Message(), error.ServerMessage());
        return ExitCode::CannotOpen;
    }
}

int TWorkbench::Start(const TCommandLine& line)
{
    // The tour neither sees nor changes how the user has set his window up.
    QTemporaryDir tourSettings;
    const bool tour = !line.TourFolder.isEmpty();
    THostSettings settings(tour ? tourSettings.filePath(QStringLiteral("settings.ini")) : QString());
    if (!settings.IsReadable())
        StartMessages::PrintError(
            QStringLiteral(
                "پروندهٔ تنظیمات %1 خوانده نشد و دست‌نخورده ماند؛ برنامه با تنظیمات نخستین باز می‌شود.")
                .arg(PersianText::Isolated(THostSettings::DefaultFileName())));
    if (tour) {
        HideOffscreenMessages();
        MakeFolder(line.TourFolder);
    }
    TStatementLog log;
    StartLog(log, line.LogFile);
    const QString connectionString = ConnectionStringOf(line);
    TADOConnection connection;
    log.Follow(connection);
    OpenWithProgress(connection, connectionString);
    WarnOfCollation(connection);
    settings.SetUserInfo(SignIn(connection, line.User));
    TReferenceHost host(connection, settings);
    application_->SetConnection(&connection);
    return ShowWindow(line, host, NameOf(connectionString));
}

int TWorkbench::ShowWindow(const TCommandLine& line, TReferenceHost& host, const QString& databaseName)
{
    Look::SetScheme(SchemeOf(line, host));
    Look::SetDigits(TMainWindow::SavedDigits(host));
    TMainWindow window(host, databaseName);
    QObject::connect(application_, &THostApplication::connectionReopened, &window, &TMainWindow::Reconnect);
    window.show();
    window.OpenPage(QStringLiteral("Goods"));
    if (line.TourFolder.isEmpty())
        return QCoreApplication::exec();
    window.resize(tourWindow);
    return PlayTour(window, line.TourFolder);
}
