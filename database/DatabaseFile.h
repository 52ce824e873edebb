#pragma once

#include "DatabaseExport.h"
#include "SampleData.h"

#include <QString>

class TADOConnection;

/// How OpenDatabase makes a database that is not there yet.
struct DATABASE_EXPORT TDatabaseOptions
{
    bool CreateMissing = true;                ///< otherwise a missing file is refused
    TSampleSize Size = TSampleSize::Normal(); ///< of what a new database is filled with
    TProgressHandler Progress; ///< may be called for as long as another program makes the same file
};

/// Opens the application's database with its functions.
///
/// `sqlite:FILE` is opened when it is a database of this application; one of an older version is brought up
/// to this program's first, completely or not at all. Anything else, a newer version too, is refused and
/// stays as it is, to the byte. A missing file is made and filled under another name beside its place and
/// comes there complete or not at all; of several programs that make the same file one does it and the others
/// wait for it. `sqlite::memory:` is made and filled. `odbc:...` must have the tables and functions already.
///
/// Throws EADOError with a Persian message (CannotOpen, NotADatabase, Cancelled and what opening throws);
/// `connection` is closed then.
DATABASE_EXPORT void OpenDatabase(TADOConnection& connection, const QString& connectionString,
                                  const TDatabaseOptions& options = {});
