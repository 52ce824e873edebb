#include "SqliteFile.h"

#include <QFile>
#include <sqlite3.h>
#include <stdexcept>

namespace {

sqlite3* Opened(const QString& path)
{
    sqlite3* handle = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &handle) != SQLITE_OK)
        throw std::runtime_error("the test's own database does not open");
    sqlite3_busy_timeout(handle, 5000);
    return handle;
}

int KeepFirstValue(void* value, int, char** texts, char**)
{
    auto* kept = static_cast<QString*>(value);
    if (kept->isNull())
        *kept = texts[0] == nullptr ? QStringLiteral("NULL") : QString::fromUtf8(texts[0]);
    return 0;
}

QString RunIn(sqlite3* handle, const QString& words)
{
    QString value;
    if (sqlite3_exec(handle, words.toUtf8().constData(), &KeepFirstValue, &value, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle));
    return value;
}

} // namespace

TSqliteFile::TSqliteFile()
{
    Run(QStringLiteral("PRAGMA journal_mode = WAL; PRAGMA user_version = 1"));
}

void TSqliteFile::Run(const QString& words) const
{
    Value(words);
}

QString TSqliteFile::Value(const QString& words) const
{
    sqlite3* handle = Opened(Path());
    const QString value = RunIn(handle, words);
    sqlite3_close(handle);
    return value;
}

TForeignWriter::TForeignWriter(const TSqliteFile& file) : handle_(Opened(file.Path()))
{
    RunIn(handle_, QStringLiteral("BEGIN IMMEDIATE"));
}

TForeignWriter::~TForeignWriter()
{
    sqlite3_close(handle_);
}

QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("the test cannot write its file");
}
