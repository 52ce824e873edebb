#pragma once

#include "FieldType.h"

#include <memory>
#include <QStringList>
#include <QVector>
#include <sqlite3.h>

/// A prepared statement and what is known about it without running it.
struct TSqliteStatement
{
    TSqliteStatement() = default;
    TSqliteStatement(const TSqliteStatement&) = delete;
    TSqliteStatement& operator=(const TSqliteStatement&) = delete;
    ~TSqliteStatement() { sqlite3_finalize(Handle); }

    /// Reads names and declared types of the result columns, again after SQLite has prepared anew by itself.
    void ReadColumns();
    /// True once after the schema has changed under the statement.
    bool WasReprepared() const;
    /// Gives the columns that are expressions the type of the current row's value.
    void TypeExpressionsByCurrentRow();

    sqlite3_stmt* Handle = nullptr;
    QVector<TColumnInfo> Columns;
    QVector<int> Expressions; ///< indexes of the columns that nothing describes before they are read
    QStringList ColumnTypes;  ///< declared types that the translation knows, for columns that are expressions
    int ParameterCount = 0;
    bool ReadOnly = true;
    bool ChangesSchema = false;
    bool InUse = false;
    bool Kept = false; ///< stays in the cache when it is given back
    quint64 LastUse = 0;
};

/// Prepares SQLite's words for a statement that its caller wrote as `text`. `columnTypes` are the declared
/// types of the result columns as far as they are known. Throws EADOError.
std::unique_ptr<TSqliteStatement> PrepareSqlite(sqlite3* handle, const QString& text, const QString& words,
                                                const QStringList& columnTypes, bool changesSchema);
