#include "FileCreation.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseFile.h"
#include "FileHeader.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

namespace {

constexpr int LockPollMilliseconds = 100;

[[noreturn]] void Refuse(const QString& message)
{
    throw EADOError(TAdoErrorKind::CannotOpen, message);
}

[[noreturn]] void RefuseFolder(const QString& path)
{
    Refuse(
        QStringLiteral(
            "در پوشهٔ «%1» نمی‌توان پروندهٔ تازه ساخت. اجازهٔ نوشتن و جای خالی دیسک را بررسی "
            "کنید.")
            .arg(QFileInfo(path).absolutePath()));
}

/// Waits while another program makes the same file.
void TakeLock(QLockFile& lock, const QString& path, const TProgressHandler& progress)
{
    // Only the death of its owner makes a lock stale, not its age: a large database takes its time.
    lock.setStaleLockTime(0);
    while (!lock.tryLock(LockPollMilliseconds)) {
        if (lock.error() != QLockFile::LockFailedError)
            RefuseFolder(path);
        if (progress &&
            !progress(0,
                      QStringLiteral(
                          "برنامهٔ دیگری همین پایگاه داده را می‌سازد")))
            throw EADOError(
                TAdoErrorKind::Cancelled,
                QStringLiteral(
                    "به خواست شما از ساخت پایگاه داده چشم‌پوشی شد."));
    }
}

/// What programs have left behind that died while they made this file. Nobody else is making it now.
void RemoveRemains(const QFileInfo& file)
{
    const QDir folder = file.absoluteDir();
    const QString mask = file.fileName() + QStringLiteral(".new-??????");
    for (const QFileInfo& remains : folder.entryInfoList({mask}, QDir::Dirs | QDir::NoSymLinks)) {
        QDir(remains.absoluteFilePath()).removeRecursively();
    }
}

/// Makes the file in the workshop; what hinders it is told of the path that it is meant for.
void Build(const QString& made, const QString& path, const TDatabaseOptions& options)
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite:") + made);
    TEngineOptions engine;
    engine.CreateMissing = true;
    connection.SetOptions(engine);
    connection.Open();
    connection.Close();
    // Marked while still empty: the engine itself then writes the mark out safely with everything else.
    if (!FileHeader::Stamp(made))
        RefuseFolder(path);
    connection.Open();
    CreateSampleDatabase(connection, options.Size, options.Progress);
    connection.Close();
    // A full disk may have kept the end of the write-ahead log from reaching the file.
    if (QFile::exists(made + QStringLiteral("-wal")) ||
        FileHeader::Examine(made) != FileHeader::TVerdict::Good)
        RefuseFolder(path);
}

} // namespace

void CreateDatabaseFile(const QString& path, const TDatabaseOptions& options)
{
    const QFileInfo file(path);
    if (!file.absoluteDir().exists()) {
        Refuse(QStringLiteral("پوشهٔ «%1» پیدا نشد. نخست آن را بسازید یا نشانی دیگری بدهید.")
                   .arg(file.absolutePath()));
    }
    QLockFile lock(path + QStringLiteral(".lock"));
    TakeLock(lock, path, options.Progress);
    if (QFileInfo::exists(path))
        return;
    RemoveRemains(file);
    const QTemporaryDir workshop(path + QStringLiteral(".new-XXXXXX"));
    if (!workshop.isValid())
        RefuseFolder(path);
    const QString made = workshop.filePath(QStringLiteral("database"));
    Build(made, path, options);
    if (!QFile::rename(made, path) && !QFileInfo::exists(path))
        RefuseFolder(path);
}
