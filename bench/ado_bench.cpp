// Data access beside SQLite's own C calls: what the engine, the connection and the query cost on top of them.

#include "ADOConnection.h"
#include "ADOQuery.h"
#include "Measure.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <stdexcept>

namespace {

constexpr int RowCount = 1000000;
constexpr int Lookups = 20000;
const char* const LookupText = "SELECT Code, Name, Barcode, Price, GroupCode FROM Goods WHERE Code = ?";
const char* const ReadText = "SELECT Code, Name, Barcode, Price, GroupCode FROM Goods";

enum TColumn { Code, Name, Barcode, Price, GroupCode };

class TRawDatabase
{
public:
    explicit TRawDatabase(const QString& path)
    {
        constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
        if (sqlite3_open_v2(path.toUtf8().constData(), &handle_, flags, nullptr) != SQLITE_OK)
            throw std::runtime_error("the benchmark's database does not open");
    }
    TRawDatabase(const TRawDatabase&) = delete;
    TRawDatabase& operator=(const TRawDatabase&) = delete;
    ~TRawDatabase() { sqlite3_close_v2(handle_); }

    void Run(const QString& words)
    {
        if (sqlite3_exec(handle_, words.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(handle_));
    }

    sqlite3_stmt* Prepared(const char* text)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, text, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(handle_));
        return statement;
    }

private:
    sqlite3* handle_ = nullptr;
};

void MakeDatabase(const QString& path)
{
    TRawDatabase database(path);
    database.Run(
        QStringLiteral(
            "PRAGMA journal_mode = WAL;"
            "CREATE TABLE Goods(Code INTEGER PRIMARY KEY, Name NVARCHAR(200),"
            "Barcode VARCHAR(20), Price MONEY_TEXT, GroupCode INT);"
            "WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1)"
            "INSERT INTO Goods SELECT i, 'کالای شمارهٔ ' || i || ' بسته‌بندی بزرگ',"
            "6260000000000 + i, (i * 250) || '.5', i / 40 FROM n")
            .arg(RowCount));
}

/// Text as a caller gets it: a text object of his own.
qint64 Length(const QString& text)
{
    return text.size() + text.back().unicode();
}

enum class TRawText { Utf16InPlace, Utf16Copied, Utf8Converted };

QString RawText(sqlite3_stmt* statement, int column, TRawText way)
{
    if (way == TRawText::Utf8Converted) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
    }
    const auto* text = static_cast<const QChar*>(sqlite3_column_text16(statement, column));
    return QString(text, sqlite3_column_bytes16(statement, column) / 2);
}

qint64 RawLength(sqlite3_stmt* statement, int column, TRawText way)
{
    if (way != TRawText::Utf16InPlace)
        return Length(RawText(statement, column, way));
    const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(statement, column));
    const int length = sqlite3_column_bytes16(statement, column) / 2;
    return length + text[length - 1];
}

qint64 RawRow(sqlite3_stmt* statement, TRawText way)
{
    return sqlite3_column_int64(statement, Code) + RawLength(statement, Name, way) +
           RawLength(statement, Barcode, way) + RawLength(statement, Price, way) +
           sqlite3_column_int64(statement, GroupCode);
}

qint64 EngineRow(IEngineRows& rows)
{
    return rows.Int64(Code) + Length(rows.Text(Name)) + Length(rows.Text(Barcode)) +
           Length(rows.Text(Price)) + rows.Int64(GroupCode);
}

qint64 QueryRow(const TADOQuery& query)
{
    return query.FieldValue(Code).toLongLong() + Length(query.FieldValue(Name).toString()) +
           Length(query.FieldValue(Barcode).toString()) + Length(query.FieldValue(Price).toString()) +
           query.FieldValue(GroupCode).toLongLong();
}

int CodeOfLookup(int lookup)
{
    return 1 + static_cast<int>(static_cast<qint64>(lookup) * 7919 % RowCount);
}

template <typename TLookup> qint64 AllLookups(TLookup lookup)
{
    qint64 sum = 0;
    for (int i = 0; i < Lookups; ++i)
        sum += lookup(CodeOfLookup(i));
    return sum;
}

bool CompareLookups(TRawDatabase& raw, TADOConnection& connection, IEngine& engine)
{
    sqlite3_stmt* kept = raw.Prepared(LookupText);
    const auto runRaw = [](sqlite3_stmt* statement, int code, TRawText way) {
        sqlite3_bind_int64(statement, 1, code);
        const qint64 sum = sqlite3_step(statement) == SQLITE_ROW ? RawRow(statement, way) : 0;
        sqlite3_reset(statement);
        return sum;
    };
    const QString text = QString::fromLatin1(LookupText);
    TADOQuery query;
    query.SetConnection(&connection);
    query.SQL.SetText(text);
    const auto readRow = [](IEngineRows& rows) { return rows.Next() ? EngineRow(rows) : 0; };
    const auto rawKept = [&](TRawText way) {
        return AllLookups([&](int code) { return runRaw(kept, code, way); });
    };
    const std::vector<TContender> contenders{
        {"raw, prepared once, UTF-8 converted", [&] { return rawKept(TRawText::Utf8Converted); }},
        {"raw, prepared once, UTF-16 read in place", [&] { return rawKept(TRawText::Utf16InPlace); }},
        {"raw, prepared once, UTF-16 copied", [&] { return rawKept(TRawText::Utf16Copied); }},
        {"raw, prepared each time, UTF-16 in place",
         [&] {
             return AllLookups([&](int code) {
                 sqlite3_stmt* statement = raw.Prepared(LookupText);
                 const qint64 sum = runRaw(statement, code, TRawText::Utf16InPlace);
                 sqlite3_finalize(statement);
                 return sum;
             });
         }},
        {"engine rows",
         [&] { return AllLookups([&](int code) { return readRow(*engine.Execute(text, {code})); }); }},
        {"connection",
         [&] { return AllLookups([&](int code) { return readRow(*connection.Run(text, {code})); }); }},
        {"query (open, read, close)",
         [&] {
             return AllLookups([&](int code) {
                 query.Parameters = {code};
                 query.Open();
                 const qint64 sum = QueryRow(query);
                 query.Close();
                 return sum;
             });
         }},
    };
    const bool equal = Compare("One row by its key", 7, Lookups, "nanoseconds a statement", contenders);
    sqlite3_finalize(kept);
    return equal;
}

bool CompareReading(TRawDatabase& raw, IEngine& engine, TADOConnection& connection)
{
    const auto readRaw = [&](TRawText way) {
        sqlite3_stmt* statement = raw.Prepared(ReadText);
        qint64 sum = 0;
        while (sqlite3_step(statement) == SQLITE_ROW)
            sum += RawRow(statement, way);
        sqlite3_finalize(statement);
        return sum;
    };
    const QString text = QString::fromLatin1(ReadText);
    const std::vector<TContender> contenders{
        {"raw, UTF-8 converted", [&] { return readRaw(TRawText::Utf8Converted); }},
        {"raw, UTF-16 read in place", [&] { return readRaw(TRawText::Utf16InPlace); }},
        {"raw, UTF-16 copied", [&] { return readRaw(TRawText::Utf16Copied); }},
        {"engine rows",
         [&] {
             const auto rows = engine.Execute(text, {});
             qint64 sum = 0;
             while (rows->Next())
                 sum += EngineRow(*rows);
             return sum;
         }},
        {"query (open, walk, close)",
         [&] {
             TADOQuery query;
             query.SetConnection(&connection);
             query.SQL.SetText(text);
             qint64 sum = 0;
             for (query.Open(); !query.Eof(); query.Next())
                 sum += QueryRow(query);
             return sum;
         }},
    };
    return Compare("All of 1,000,000 rows of five columns", 5, 1e6, "milliseconds", contenders);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.db"));
    MakeDatabase(path);
    TRawDatabase raw(path);
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite:") + path);
    connection.Open();
    const auto engine = OpenEngine(connection.ConnectionString(), {});
    const bool lookupsEqual = CompareLookups(raw, connection, *engine);
    const bool readingEqual = CompareReading(raw, *engine, connection);
    return lookupsEqual && readingEqual ? 0 : 1;
}
