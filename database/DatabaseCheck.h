#pragma once

#include "DatabaseExport.h"

#include <QString>
#include <QStringList>
#include <QVector>

class TADOConnection;

/// What holds in every sound database.
namespace DatabaseCheck {

/// A rule and the statement that counts what breaks it.
struct TRule
{
    QString Title; ///< Persian: what must hold
    QString Statement;
};

DATABASE_EXPORT const QVector<TRule>& Rules();
/// Persian sentences, one for each rule that is broken, with the number of breaches; empty when all hold.
DATABASE_EXPORT QStringList FindDamage(TADOConnection& connection);
/// Reads the whole file of an embedded database, tables and indexes, and tells in the engine's words what is
/// damaged. Registers a function on the connection for it. Empty when nothing is.
DATABASE_EXPORT QStringList FindDamagedPages(TADOConnection& connection);
/// The number of rows of a table or view.
DATABASE_EXPORT qint64 RowCount(TADOConnection& connection, const QString& table);

} // namespace DatabaseCheck
