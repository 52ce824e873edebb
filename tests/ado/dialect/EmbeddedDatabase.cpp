#include "EmbeddedDatabase.h"

#include "AdoError.h"

#include <sqlite3.h>

#include <QtTest>

namespace {

QString TextOf(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return QStringLiteral("NULL");
    case SQLITE_BLOB:
        return QString::fromLatin1(
            QByteArray(static_cast<const char*>(sqlite3_column_blob(statement, column)),
                       sqlite3_column_bytes(statement, column))
                .toHex());
    default:
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                                 sqlite3_column_bytes(statement, column));
    }
}

QString RowOf(sqlite3_stmt* statement)
{
    QStringList values;
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
        values.append(TextOf(statement, column));
    return values.join(u'|');
}

} // namespace

TEmbeddedDatabase::TEmbeddedDatabase()
{
    sqlite3_open(":memory:", &connection_);
    Dialect::Register(connection_);
    schema_ = std::make_unique<Dialect::TSqliteSchema>(connection_);
}

TEmbeddedDatabase::~TEmbeddedDatabase()
{
    sqlite3_close(connection_);
}

QStringList TEmbeddedDatabase::Rows(const QString& tsql, const QStringList& parameters)
{
    try {
        const Dialect::TTranslation translation = Dialect::TranslateStatement(tsql, *schema_);
        QStringList rows = RunTranslated(translation.Text, parameters);
        if (translation.ChangesSchema)
            schema_->Forget();
        return rows;
    } catch (const EADOError& error) {
        return {QLatin1String("refused: ") + error.ServerMessage()};
    }
}

QStringList TEmbeddedDatabase::RunTranslated(const QString& text, const QStringList& parameters)
{
    sqlite3_stmt* statement = nullptr;
    const QByteArray utf8 = text.toUtf8();
    QStringList rows;
    int result = sqlite3_prepare_v2(connection_, utf8.constData(), -1, &statement, nullptr);
    for (int i = 0; statement && i < parameters.size(); ++i) {
        const QByteArray value = parameters[i].toUtf8();
        sqlite3_bind_text(statement, i + 1, value.constData(), static_cast<int>(value.size()),
                          SQLITE_TRANSIENT);
    }
    if (result == SQLITE_OK) {
        while ((result = sqlite3_step(statement)) == SQLITE_ROW)
            rows.append(RowOf(statement));
    }
    if (result != SQLITE_DONE)
        rows = {QLatin1String("error: ") + QString::fromUtf8(sqlite3_errmsg(connection_))};
    sqlite3_finalize(statement);
    return rows;
}

void TEmbeddedDatabase::Prepare(const QStringList& texts)
{
    for (const QString& text : texts) {
        const QStringList rows = Rows(text);
        QVERIFY2(rows.isEmpty(), qPrintable(text + QLatin1String(" -> ") + rows.join(u'\n')));
    }
}

QString TEmbeddedDatabase::Translated(const QString& tsql)
{
    return Dialect::Translate(tsql, *schema_);
}

QStringList TEmbeddedDatabase::ColumnNames(const QString& tsql)
{
    sqlite3_stmt* statement = nullptr;
    QStringList names;
    if (sqlite3_prepare_v2(connection_, Translated(tsql).toUtf8().constData(), -1, &statement, nullptr) ==
        SQLITE_OK) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            names.append(QString::fromUtf8(sqlite3_column_name(statement, column)));
    }
    sqlite3_finalize(statement);
    return names;
}

QStringList TEmbeddedDatabase::ColumnTypes(const QString& tsql)
{
    return Dialect::TranslateStatement(tsql, *schema_).ColumnTypes;
}
