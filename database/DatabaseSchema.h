#pragma once

#include "DatabaseExport.h"

#include <QString>
#include <QStringList>
#include <QVector>

class TADOConnection;

/// The tables of the accounting database, as schema.sql defines them.
namespace DatabaseSchema {

/// The version that SchemaInfo and, on the embedded engine, the file's header carry. A higher one is refused;
/// a file of a lower one is brought up to it.
constexpr int Version = 2;
constexpr int OldestVersion = 1;
/// What the header of an embedded database carries, so that a foreign file is recognised.
constexpr quint32 ApplicationId = 0x42465047;

/// Every kind of detail account has as many unique codes, beginning behind the kind times this number.
constexpr int UniqueCodesPerKind = 1000000;

/// The statements of a script, cut at the lines that hold nothing but GO, without lines that are comments
/// only.
DATABASE_EXPORT QStringList Batches(const QString& script);

/// The statements that make the empty tables, in order.
DATABASE_EXPORT QStringList TableStatements();
/// The statements that make indexes and views; run after a large database has been filled.
DATABASE_EXPORT QStringList IndexAndViewStatements();

/// A statement of an upgrade.
struct TUpgradeStatement
{
    QString Text;
    QString UnlessThere; ///< table that makes the statement needless; empty where it runs in any case
};
/// What brings the tables of the version before up to `version`, in order, to be run in one transaction. The
/// last one writes the version.
DATABASE_EXPORT QVector<TUpgradeStatement> UpgradeStatements(int version);

/// The version that the tables themselves tell, 0 where they tell none. Throws where there are no such
/// tables.
DATABASE_EXPORT int VersionOf(TADOConnection& connection);

} // namespace DatabaseSchema
