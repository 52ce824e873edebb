#pragma once

#include "ADOQuery.h"
#include "DatabaseFile.h"
#include "ReferenceHost.h"

#include <QTemporaryDir>

/// A sample database in a file of its own.
class TSampleShop
{
public:
    explicit TSampleShop(const TSampleSize& size = TSampleSize::Small())
    {
        TDatabaseOptions options;
        options.Size = size;
        OpenDatabase(Connection, QStringLiteral("sqlite:") + Folder.filePath(QStringLiteral("shop.db")),
                     options);
    }

    /// The first field of the first row that a statement answers; empty where there is none.
    QString Text(const QString& statement)
    {
        TADOQuery query;
        query.SetConnection(&Connection);
        query.SQL.SetText(statement);
        query.Open();
        return query.IsEmpty() ? QString() : query.Field(0)->AsString();
    }
    int Number(const QString& statement) { return Text(statement).toInt(); }

    QTemporaryDir Folder;
    TADOConnection Connection;
};

/// A sample database and a host over it.
class THostedShop : public TSampleShop
{
public:
    using TSampleShop::TSampleShop;

    THostSettings Settings{Folder.filePath(QStringLiteral("settings.ini"))};
    TReferenceHost Host{Connection, Settings};
};
