// What putting a tag on 100,000 selected records costs, and listing the tags that all of them carry, beside
// SQLite's own C interface running the same statements in the same run.

#include "ADOCommand.h"
#include "ADOQuery.h"
#include "Dialect.h"
#include "Measure.h"
#include "SqliteSchema.h"
#include "TagStore.h"

#include <cstring>
#include <QStringList>
#include <QTemporaryDir>
#include <sqlite3.h>

namespace {

constexpr int Records = 100000;
constexpr int Rounds = 15;
constexpr int FirstTag = 70;

/// The statements on SQLite's own C interface, as a program would write them that has nothing else between
/// itself and the database. Their translation is not part of what is measured.
class TRawDatabase
{
public:
    explicit TRawDatabase(const QString& file)
    {
        if (sqlite3_open_v2(file.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(handle_));
        Dialect::Register(handle_);
    }
    TRawDatabase(const TRawDatabase&) = delete;
    TRawDatabase& operator=(const TRawDatabase&) = delete;
    ~TRawDatabase() { sqlite3_close_v2(handle_); }

    QByteArray Translated(const QString& statement) const
    {
        const Dialect::TSqliteSchema schema(handle_);
        return Dialect::Translate(statement, schema).toUtf8();
    }
    /// The rows written.
    int Execute(const QByteArray& sql)
    {
        Run(sql, [](sqlite3_stmt*) {});
        return sqlite3_changes(handle_);
    }
    template <typename TRow> void Run(const QByteArray& sql, TRow row)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr) !=
            SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(handle_));
        while (sqlite3_step(statement) == SQLITE_ROW)
            row(statement);
        if (sqlite3_finalize(statement) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(handle_));
    }

private:
    sqlite3* handle_ = nullptr;
};

void MakeGoods(TADOConnection& connection)
{
    connection.Execute(
        QStringLiteral("CREATE TABLE kala (Code int NOT NULL PRIMARY KEY, Name nvarchar(200) NOT "
                       "NULL, tags nvarchar(max) NULL)"));
    TTransaction transaction(connection);
    for (int code = 1; code <= Records; ++code) {
        // Two tags are common, others change.
        const QString tags = QStringLiteral(",5,%1,12,").arg(20 + code % 13);
        connection.Execute(QStringLiteral("INSERT INTO kala (Code, Name, tags) VALUES (?, ?, ?)"),
                           {code, QStringLiteral("کالای شمارهٔ %1").arg(code), tags});
    }
    transaction.Commit();
}

TTaggedRecords AllGoods()
{
    QStringList keys;
    for (int code = 1; code <= Records; ++code)
        keys.append(QString::number(code));
    return {QStringLiteral("kala"), QStringLiteral("Code"), keys.join(u',')};
}

/// Puts a tag on all records and takes that back, so that every round finds the same records. Each round has
/// another tag, so that no statement is met a second time.
bool MeasureTagging(TADOConnection& connection, TRawDatabase& raw, const TTaggedRecords& goods)
{
    QStringList statements;
    QList<QByteArray> rawStatements;
    for (int round = 0; round <= Rounds; ++round) {
        statements.append(TagStatements::AddUnshown(goods, QString::number(FirstTag + round)));
        rawStatements.append(raw.Translated(statements.constLast()));
    }
    int round = 0;
    int rawRound = 0;
    TADOCommand command;
    command.SetConnection(&connection);
    return Compare("A tag put on 100,000 records", Rounds, 1e6, "milliseconds",
                   {{"raw, prepared and stepped",
                     [&] {
                         raw.Execute("BEGIN IMMEDIATE");
                         const int written = raw.Execute(rawStatements[rawRound++]);
                         raw.Execute("ROLLBACK");
                         return written;
                     }},
                    {"command with the store's statement", [&] {
                         connection.BeginTrans();
                         command.CommandText =
                             TagStatements::AddUnshown(goods, QString::number(FirstTag + round++));
                         const qint64 written = command.Execute();
                         connection.RollbackTrans();
                         return written;
                     }}});
}

/// The codes that all rows carry, without any toolkit.
qint64 RawCommonTags(TRawDatabase& raw, const QByteArray& sql)
{
    std::vector<std::string> common;
    bool first = true;
    raw.Run(sql, [&](sqlite3_stmt* statement) {
        const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        if (first) {
            for (const char* code = text + 1; *code != 0;) {
                const char* const comma = std::strchr(code, ',');
                common.push_back(',' + std::string(code, comma) + ',');
                code = comma + 1;
            }
            first = false;
            return;
        }
        std::erase_if(common,
                      [text](const std::string& code) { return std::strstr(text, code.c_str()) == nullptr; });
    });
    qint64 checksum = 0;
    for (const std::string& code : common)
        checksum += std::stoi(code.substr(1));
    return checksum;
}

qint64 CommonTags(TADOQuery& query)
{
    TSelectedTags tags;
    tags.ReadCommon(query);
    query.Close();
    qint64 checksum = 0;
    for (const QString& code : tags.Common())
        checksum += code.toInt();
    return checksum;
}

bool MeasureListing(TADOConnection& connection, TRawDatabase& raw, const TTaggedRecords& goods)
{
    const QString statement = QStringLiteral("select tags from kala where Code in(%1)").arg(goods.Keys);
    const QByteArray sql = raw.Translated(statement);
    const auto readRaw = [&] { return RawCommonTags(raw, sql); };
    int round = 0;
    TADOQuery query;
    query.SetConnection(&connection);
    const bool first = Compare(
        "The common tags of 100,000 records, another statement each time", Rounds, 1e6, "milliseconds",
        {{"raw, prepared and stepped", readRaw}, {"query and the store's reading", [&] {
                                                      query.SQL.SetText(statement + QString(++round, u' '));
                                                      return CommonTags(query);
                                                  }}});
    query.SQL.SetText(statement);
    const bool again = Compare("The same, read again by one statement", Rounds, 1e6, "milliseconds",
                               {{"raw, prepared and stepped", readRaw},
                                {"query and the store's reading", [&] { return CommonTags(query); }}});
    return first && again;
}

} // namespace

int main()
{
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("tagging.db"));
    TADOConnection connection;
    TEngineOptions options;
    options.CreateMissing = true;
    connection.SetOptions(options);
    connection.SetConnectionString(QStringLiteral("sqlite:") + file);
    connection.Open();
    MakeGoods(connection);
    TRawDatabase raw(file);
    const TTaggedRecords goods = AllGoods();
    const bool tagging = MeasureTagging(connection, raw, goods);
    const bool listing = MeasureListing(connection, raw, goods);
    return tagging && listing ? 0 : 1;
}
