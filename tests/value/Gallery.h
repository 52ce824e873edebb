#pragma once

#include "ADOConnection.h"
#include "ADOQuery.h"
#include "RecordingHost.h"

#include <memory>
#include <QTemporaryDir>
#include <utility>

/// A host whose database in memory has a gallery, and a folder for pictures.
struct TGallery
{
    TRecordingHost Host;
    TADOConnection Connection;
    TADOQuery Query;
    QStringList Statements; ///< what has been sent
    QTemporaryDir Folder;

    TGallery()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Connection.Execute(QStringLiteral(
            "CREATE TABLE PhotoGallery (Id int NOT NULL PRIMARY KEY, GRPCode int NOT NULL, Id_Pic int NOT NULL, "
            "address nvarchar(400), name nvarchar(200) NOT NULL, picture varbinary(max))"));
        Query.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
        Host.DM.Connection = &Connection;
        Host.DM.Query = &Query;
    }
    /// A null address or picture is NULL.
    void Add(int group, int item, const QString& name, const QVariant& picture, const QVariant& address = {})
    {
        Connection.Execute(
            QStringLiteral("INSERT INTO PhotoGallery (Id, GRPCode, Id_Pic, name, picture, address) "
                           "VALUES (?, ?, ?, ?, ?, ?)"),
            {++rows_, group, item, name, picture, address});
        Statements.clear();
    }
    QString Path(const QString& name) const { return Folder.filePath(name); }
    QStringList Sent() { return std::exchange(Statements, {}); }
    /// The query on all pictures, at the first one.
    TADOQuery& All()
    {
        Query.Close();
        Query.SQL.SetText(QStringLiteral("SELECT * FROM PhotoGallery ORDER BY Id"));
        Query.Open();
        return Query;
    }

private:
    int rows_ = 0;
};
