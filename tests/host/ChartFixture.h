#pragma once

#include "DatabaseFile.h"
#include "ReferenceHost.h"

#include <QTemporaryDir>

/// A sample database with a chart of accounts, a host over it, and every statement that is run, those of
/// lists read in the background too.
class TChartFixture
{
public:
    explicit TChartFixture(const TSampleSize& size = TSampleSize::Small())
    {
        TDatabaseOptions options;
        options.Size = size;
        OpenDatabase(Connection, QStringLiteral("sqlite:") + Folder.filePath(QStringLiteral("chart.db")),
                     options);
        QObject::connect(&Connection, &TADOConnection::willExecute, &Connection,
                         [this](const QString& text) { Statements.append(text); });
    }

    void AddDetail(int kind, int code, const QString& name, int uniqueCode, bool active = true)
    {
        Connection.Execute(
            QStringLiteral("INSERT INTO dbo.AccDetails ([Type], Code, Name, UniqueCode, Active) "
                           "VALUES (?, ?, ?, ?, ?)"),
            {kind, code, name, uniqueCode, active});
        Statements.clear();
    }

    QTemporaryDir Folder;
    TADOConnection Connection;
    THostSettings Settings{Folder.filePath(QStringLiteral("settings.ini"))};
    TReferenceHost Host{Connection, Settings};
    QStringList Statements;
};
