#pragma once

#include "ADOConnection.h"
#include "DatabaseFile.h"

#include <memory>
#include <QFile>
#include <QTemporaryDir>
#include <QVariant>

/// A database file that several users open, and whose holds on codes can be made older than they are.
class TSharedDatabase
{
public:
    TSharedDatabase() { QFile::copy(Pattern(), File(QStringLiteral("shared.db"))); }

    QString ConnectionString() const { return QStringLiteral("sqlite:") + File(QStringLiteral("shared.db")); }
    QString File(const QString& name) const { return folder_.filePath(name); }

    /// One more user of the file.
    std::unique_ptr<TADOConnection> Connect() const { return Open(ConnectionString()); }

    /// Moves the moments of all holds into the past, as if the time had gone by without a renewal.
    static void LetPass(TADOConnection& connection, int seconds)
    {
        connection.Execute(QStringLiteral("UPDATE dbo.CodeLocks SET TakenAt = DATEADD(second, %1, TakenAt), "
                                          "ExpiresAt = DATEADD(second, %1, ExpiresAt)")
                               .arg(-seconds));
    }

    static QVariant Value(TADOConnection& connection, const QString& statement)
    {
        const std::unique_ptr<IEngineRows> rows = connection.Run(statement);
        return rows->Next() ? rows->Value(0) : QVariant();
    }

private:
    static std::unique_ptr<TADOConnection> Open(const QString& connectionString)
    {
        auto result = std::make_unique<TADOConnection>();
        TDatabaseOptions options;
        options.Size = TSampleSize::Small();
        OpenDatabase(*result, connectionString, options);
        return result;
    }

    /// The file of which each database of the program is a copy: making one takes far longer.
    static QString Pattern()
    {
        static const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("pattern.db"));
        Open(QStringLiteral("sqlite:") + file)->Close();
        return file;
    }

    QTemporaryDir folder_;
};
