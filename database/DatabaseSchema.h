#pragma once

#include "DatabaseExport.h"

#include <QString>
#include <QStringList>

/// The tables of the accounting database, as schema.sql defines them.
namespace DatabaseSchema {

/// The version that SchemaInfo and, on the embedded engine, the file's header carry. A higher one is refused.
constexpr int Version = 1;
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

} // namespace DatabaseSchema
