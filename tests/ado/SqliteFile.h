#pragma once

#include <QString>
#include <QTemporaryDir>

struct sqlite3;

/// A database file in a folder of its own, made and looked at past the engine under test.
class TSqliteFile
{
public:
    TSqliteFile();

    QString Path() const { return folder_.filePath(QStringLiteral("داده ها.db")); }
    QString PathOf(const QString& name) const { return folder_.filePath(name); }
    QString ConnectionString() const { return QStringLiteral("sqlite:") + Path(); }
    /// Runs SQLite's own words on the file.
    void Run(const QString& words) const;
    /// The first value that SQLite's own words deliver.
    QString Value(const QString& words) const;

private:
    QTemporaryDir folder_;
};

/// Another user of a database file who holds the write lock while this object lives.
class TForeignWriter
{
public:
    explicit TForeignWriter(const TSqliteFile& file);
    TForeignWriter(const TForeignWriter&) = delete;
    TForeignWriter& operator=(const TForeignWriter&) = delete;
    ~TForeignWriter();

private:
    sqlite3* handle_ = nullptr;
};

QByteArray BytesOf(const QString& path);
void WriteBytes(const QString& path, const QByteArray& bytes);
