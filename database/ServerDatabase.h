#pragma once

#include "DatabaseExport.h"

#include <QString>

class TADOConnection;

/// A database that stands on a server, where its administrator has run schema.sql and functions.sql.
namespace ServerDatabase {

/// Opens the connection and makes sure that the tables and functions are there, in the version of this
/// program. Throws EADOError with a sentence that says what the user or the administrator has to do.
DATABASE_EXPORT void Open(TADOConnection& connection, const QString& connectionString);

/// What the user should know about the collation of the open database: texts that are not marked as Unicode
/// keep every Persian letter only under a UTF-8 collation. Code page 1256 turns ی into ي, others lose all of
/// them. Empty where all is well, where the server does not tell, and for the embedded engine.
DATABASE_EXPORT QString CollationWarning(TADOConnection& connection);

} // namespace ServerDatabase
