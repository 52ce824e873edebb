#pragma once

#include <QString>
#include <QVariant>
#include <sqlite3.h>

/// The text of a column of the current row.
QString SqliteColumnText(sqlite3_stmt* statement, int column);
/// The same, which is not NULL, behind what is in `buffer`.
void AppendSqliteColumnText(sqlite3_stmt* statement, int column, std::u16string& buffer);
/// The bytes of a column of the current row; empty but not null for a value without bytes.
QByteArray SqliteColumnBlob(sqlite3_stmt* statement, int column);
/// The value of a column as it is stored: qint64, double, QString, QByteArray or invalid.
QVariant SqliteColumnVariant(sqlite3_stmt* statement, int column);

/// Fills the parameter marks; throws EADOError (WrongState) when their number or a type does not fit.
void BindSqliteParameters(sqlite3_stmt* statement, const QVariantList& parameters, const QString& text);
