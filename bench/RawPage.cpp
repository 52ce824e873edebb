#include "RawPage.h"

#include "Dialect.h"
#include "SqliteSchema.h"

#include <sqlite3.h>

TRawPage::TRawPage(const QString& file, const QString& statement,
                   const std::function<void(sqlite3*)>& prepare)
{
    if (sqlite3_open_v2(file.toUtf8().constData(), &handle_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(handle_));
    Dialect::Register(handle_);
    if (prepare)
        prepare(handle_);
    const Dialect::TSqliteSchema schema(handle_);
    sql_ = Dialect::Translate(statement, schema).toUtf8();
}

TRawPage::~TRawPage()
{
    sqlite3_close_v2(handle_);
}

int TRawPage::Read()
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql_.constData(), -1, &statement, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sqlite3_errmsg(handle_), sql_.constData());
    const int columns = sqlite3_column_count(statement);
    int rows = 0;
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
        for (int column = 0; column < columns; ++column)
            sqlite3_column_text(statement, column);
    }
    if (sqlite3_finalize(statement) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(handle_));
    return rows;
}
