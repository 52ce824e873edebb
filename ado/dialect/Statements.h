#pragma once

#include "Select.h"

namespace Dialect {

/// INSERT, UPDATE, DELETE and SET IDENTITY_INSERT; the statement's first word stands next.
QString InsertStatement(TCursor& cursor);
QString UpdateStatement(TCursor& cursor);
QString DeleteStatement(TCursor& cursor);
QString SetStatement(TCursor& cursor);

/// CREATE, ALTER and DROP.
QString CreateStatement(TCursor& cursor);
QString AlterStatement(TCursor& cursor);
QString DropStatement(TCursor& cursor);

/// The scope of a statement that works on one table.
TScope TableScope(const TCursor& cursor, const QString& table);
/// Names in brackets, quoted for SQLite and joined by commas.
QStringList NamesInBrackets(TCursor& cursor);

} // namespace Dialect
