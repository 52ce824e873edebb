#pragma once

#include "ADOCommand.h"
#include "ADOConnection.h"
#include "ADOQuery.h"

#include <QBuffer>
#include <QColor>
#include <QFileInfo>
#include <QImage>
#include <utility>

/// A small database with three colours (1 red, 2 blue, 3 green), tags, and a table of records that carry
/// tags.
struct TTagTables
{
    TADOConnection Connection;
    TADOQuery Query;
    TADOCommand Command;
    QStringList Statements; ///< what has been sent since the last time that Sent() was called

    /// In memory, or in a file, which is made where it is missing.
    explicit TTagTables(const QString& file = QString())
    {
        TEngineOptions options;
        options.CreateMissing = true;
        Connection.SetOptions(options);
        const bool isNew = file.isEmpty() || !QFileInfo::exists(file);
        Connection.SetConnectionString(QStringLiteral("sqlite:") +
                                       (file.isEmpty() ? QStringLiteral(":memory:") : file));
        Connection.Open();
        if (isNew)
            MakeTables();
        Query.SetConnection(&Connection);
        Command.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }

    QStringList Sent() { return std::exchange(Statements, {}); }

    /// A colour whose pictures are squares of it, `size` pixels wide; the light one
    /// is half transparent.
    void AddColor(int code, const QString& text, const QColor& color, int size = 16)
    {
        QColor light = color;
        light.setAlpha(128);
        Connection.Execute(
            QStringLiteral("INSERT INTO colors (code, cl_code, [h-img], [l-img]) VALUES (?, ?, ?, ?)"),
            {code, text, Png(color, size), Png(light, size)});
    }
    void AddTag(int code, const QString& name, int color)
    {
        Connection.Execute(QStringLiteral("INSERT INTO TagS (Code, Name, color_code) VALUES (?, ?, ?)"),
                           {code, name, color});
    }
    void AddGoods(int key, const QVariant& tags)
    {
        Connection.Execute(QStringLiteral("INSERT INTO Goods (Id, tags) VALUES (?, ?)"), {key, tags});
    }
    /// The tags of one of the goods; "NULL" where there are none.
    QString TagsOf(int key)
    {
        const auto rows = Connection.Run(QStringLiteral("SELECT tags FROM Goods WHERE Id = ?"), {key});
        if (!rows->Next())
            return QStringLiteral("no such goods");
        return rows->IsNull(0) ? QStringLiteral("NULL") : rows->Value(0).toString();
    }
    /// The same of all goods, in the order of their keys.
    QStringList AllTags()
    {
        QStringList result;
        const auto rows = Connection.Run(QStringLiteral("SELECT tags FROM Goods ORDER BY Id"));
        while (rows->Next())
            result.append(rows->IsNull(0) ? QStringLiteral("NULL") : rows->Value(0).toString());
        return result;
    }

    static QByteArray Png(const QColor& color, int size)
    {
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(color);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
    }

private:
    void MakeTables()
    {
        for (const QString& statement :
             {QStringLiteral(
                  "CREATE TABLE colors (code int NOT NULL PRIMARY KEY, cl_code nvarchar(50) NOT NULL, "
                  "[h-img] varbinary(max) NULL, [l-img] varbinary(max) NULL)"),
              QStringLiteral("CREATE TABLE TagS (Code int NOT NULL PRIMARY KEY, Name nvarchar(50) NOT NULL, "
                             "color_code int NOT NULL)"),
              QStringLiteral("CREATE TABLE Goods (Id int NOT NULL PRIMARY KEY, tags nvarchar(max) NULL)")})
            Connection.Execute(statement);
        AddColor(1, QStringLiteral("clRed"), QColor(208, 48, 48));
        AddColor(2, QStringLiteral("$00C06020"), QColor(32, 96, 192));
        AddColor(3, QStringLiteral("32768"), QColor(0, 128, 0));
    }
};
