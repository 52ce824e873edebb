#pragma once

#include "ADOQuery.h"
#include "DatabaseFunctions.h"

#include <QStringList>

/// A small tree of categories in a database in memory, and every statement that is sent to it:
///
///     1 کالا
///         2 ابزار
///             7 چکش
///                 12 چکش چوبی
///             8 استاد'کار
///         3 رنگ
///             9 چکش           (as 7)
///     4 خدمات
struct TCategoryTables
{
    TADOConnection Connection;
    TADOQuery Query;
    QStringList Statements;

    TCategoryTables()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        RegisterDatabaseFunctions(Connection);
        Connection.Open();
        for (
            const char* const statement : {
                "CREATE TABLE dbo.category (id int NOT NULL PRIMARY KEY, parent_code int NOT NULL, name nvarchar(100) "
                "NOT NULL)",
                "CREATE TABLE dbo.DefaultUserCategory (user_code int NOT NULL, Code_category int NOT NULL, Person "
                "bit NOT NULL, Good bit NOT NULL)",
                "CREATE TABLE dbo.kala_category (kala_code int NOT NULL PRIMARY KEY, category_code int NOT NULL)",
                "CREATE TABLE dbo.Person_category (person_code int NOT NULL PRIMARY KEY, category_code int NOT NULL)",
                "INSERT INTO DefaultUserCategory (user_code, Code_category, Person, Good) VALUES (1, 7, 1, 0)",
                "INSERT INTO DefaultUserCategory (user_code, Code_category, Person, Good) VALUES (1, 3, 0, 1)",
                "INSERT INTO kala_category (kala_code, category_code) VALUES (15, 8)",
                "INSERT INTO Person_category (person_code, category_code) VALUES (15, 4)",
            })
            Connection.Execute(QString::fromUtf8(statement));
        Add(1, 0, QStringLiteral("کالا"));
        Add(2, 1, QStringLiteral("ابزار"));
        Add(3, 1, QStringLiteral("رنگ"));
        Add(4, 0, QStringLiteral("خدمات"));
        Add(7, 2, QStringLiteral("چکش"));
        Add(8, 2, QStringLiteral("استاد'کار"));
        Add(9, 3, QStringLiteral("چکش"));
        Add(12, 7, QStringLiteral("چکش چوبی"));
        Query.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }

    void Add(int id, int parent, const QString& name)
    {
        Connection.Execute(QStringLiteral("INSERT INTO category (id, parent_code, name) VALUES (?, ?, ?)"),
                           {id, parent, name});
        Statements.clear();
    }

    void Execute(const QString& statement)
    {
        Connection.Execute(statement);
        Statements.clear();
    }
};

/// The statements as they must go out.
namespace CategoryTexts {

inline QString Base()
{
    return QStringLiteral(
        "SELECT *,(SELECT parent_code FROM category WHERE id=ID1) AS parent_id FROM( SELECT NAME, "
        "MIN(ID) AS ID1 FROM category group BY NAME) AS t1");
}

inline QString All()
{
    return Base() + QStringLiteral(" ORDER BY ID1");
}

inline QString Named(const QString& quotedName)
{
    return Base() + QStringLiteral(" where name=N") + quotedName + QStringLiteral(" ORDER BY ID1");
}

inline QString Category(int id)
{
    return QStringLiteral("select * from category where id = %1").arg(id);
}

/// The two statements of a menu.
inline QStringList Menu(int code, const QString& ids)
{
    return {QStringLiteral("select dbo.Category_SubNodes(%1,0,1) as value").arg(code),
            Base() + QStringLiteral(" where ID1 in ") + ids + QStringLiteral(" ORDER BY ID1")};
}

} // namespace CategoryTexts
