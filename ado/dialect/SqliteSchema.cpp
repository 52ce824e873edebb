#include "SqliteSchema.h"

#include "SqliteError.h"

#include <sqlite3.h>

#include <cstring>
#include <memory>

namespace Dialect {

namespace {

struct TFinalizer
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using TStatement = std::unique_ptr<sqlite3_stmt, TFinalizer>;

/// Runs a question about the schema to its end. An answer cut short, by a cancel or another user's lock, must
/// not be taken for a table without columns: it throws.
template <typename TRow>
void ForEachRow(sqlite3* connection, const char* text, const QByteArray& argument, TRow row)
{
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(connection, text, -1, &statement, nullptr);
    const TStatement owner(statement);
    if (code == SQLITE_OK) {
        sqlite3_bind_text(statement, 1, argument.constData(), static_cast<int>(argument.size()),
                          SQLITE_TRANSIENT);
        while ((code = sqlite3_step(statement)) == SQLITE_ROW)
            row(statement);
    }
    if (code != SQLITE_DONE)
        throw SqliteError(connection, code, TSqlitePhase::Preparing, QString::fromLatin1(text));
}

QString ColumnText(sqlite3_stmt* statement, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                             sqlite3_column_bytes(statement, column));
}

void AddMetadata(sqlite3* connection, const QByteArray& table, TSchemaColumn& column)
{
    const char* collation = nullptr;
    int autoIncrement = 0;
    sqlite3_table_column_metadata(connection, nullptr, table.constData(), column.Name.toUtf8().constData(),
                                  nullptr, &collation, nullptr, nullptr, &autoIncrement);
    column.Identity = autoIncrement != 0;
    column.Binary = collation && sqlite3_stricmp(collation, BinaryCollation) == 0;
}

} // namespace

TSqliteSchema::TSqliteSchema(sqlite3* connection) : connection_(connection)
{
}

QVector<TSchemaColumn> TSqliteSchema::Columns(const QString& table) const
{
    const QString key = table.toLower();
    const auto known = tables_.constFind(key);
    if (known != tables_.constEnd())
        return *known;
    const QByteArray name = table.toUtf8();
    QVector<TSchemaColumn> columns;
    ForEachRow(connection_, "SELECT name, type, hidden FROM pragma_table_xinfo(?1)", name,
               [&](sqlite3_stmt* row) {
                   TSchemaColumn column;
                   column.Name = ColumnText(row, 0);
                   column.DeclaredType = ColumnText(row, 1);
                   // table_xinfo marks generated columns by 2 and 3 and keeps their declaration's words in
                   // the type.
                   column.Computed = sqlite3_column_int(row, 2) >= 2;
                   column.DeclaredType.remove(QStringLiteral(" GENERATED ALWAYS"));
                   AddMetadata(connection_, name, column);
                   columns.append(column);
               });
    ReadViewTypes(name, columns);
    // A table that is not there may be created by another connection at any moment.
    if (!columns.isEmpty())
        tables_.insert(key, columns);
    return columns;
}

void TSqliteSchema::ReadViewTypes(const QByteArray& view, QVector<TSchemaColumn>& columns) const
{
    QString text;
    ForEachRow(connection_, "SELECT sql FROM sqlite_master WHERE type = 'view' AND name = ?1 COLLATE NOCASE",
               view, [&](sqlite3_stmt* row) { text = ColumnText(row, 0); });
    const qsizetype opening = text.indexOf(QLatin1String(ViewTypesOpening));
    const qsizetype start = opening + static_cast<qsizetype>(std::strlen(ViewTypesOpening));
    const qsizetype end = text.indexOf(QLatin1String(ViewTypesClosing), start);
    const QStringList types =
        opening < 0 || end < 0 ? QStringList() : text.mid(start, end - start).split(u';');
    for (qsizetype i = 0; types.size() == columns.size() && i < types.size(); ++i) {
        const qsizetype blank = types[i].indexOf(u' ');
        columns[i].DeclaredType = types[i].left(blank);
        columns[i].Binary = blank >= 0;
    }
}

bool TSqliteSchema::HasFunction(const QString& name, int argumentCount) const
{
    const QString key = name.toLower() + u'/' + QString::number(argumentCount);
    if (functions_.contains(key))
        return true;
    bool found = false;
    ForEachRow(connection_, "SELECT narg FROM pragma_function_list WHERE name = ?1", name.toLower().toUtf8(),
               [&](sqlite3_stmt* row) {
                   const int accepted = sqlite3_column_int(row, 0);
                   found = found || accepted == argumentCount || accepted < 0;
               });
    if (found)
        functions_.insert(key);
    return found;
}

void TSqliteSchema::Forget()
{
    tables_.clear();
    functions_.clear();
}

} // namespace Dialect
