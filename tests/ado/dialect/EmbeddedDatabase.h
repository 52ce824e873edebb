#pragma once

#include "SqliteSchema.h"

#include <memory>
#include <QString>
#include <QStringList>

/// An in-memory database behind the dialect layer, for tests: texts go in as T-SQL, rows come out as texts.
class TEmbeddedDatabase
{
public:
    TEmbeddedDatabase();
    TEmbeddedDatabase(const TEmbeddedDatabase&) = delete;
    TEmbeddedDatabase& operator=(const TEmbeddedDatabase&) = delete;
    ~TEmbeddedDatabase();

    /// Translates and runs one text. Each row is its values joined by `|`, NULL is written as NULL.
    /// A failure is one row: "refused: detail" of the translation, "error: words" of the engine.
    QStringList Rows(const QString& tsql, const QStringList& parameters = {});
    /// Several texts of which none may fail.
    void Prepare(const QStringList& texts);
    QString Translated(const QString& tsql);
    QStringList ColumnNames(const QString& tsql);
    QStringList ColumnTypes(const QString& tsql);
    sqlite3* Connection() const { return connection_; }

private:
    QStringList RunTranslated(const QString& text, const QStringList& parameters);

    sqlite3* connection_ = nullptr;
    std::unique_ptr<Dialect::TSqliteSchema> schema_;
};
