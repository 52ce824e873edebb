#pragma once

#include <QString>

struct TDatabaseOptions;

/// Makes the database file under a name of its own and brings it to `path` when it is complete. Returns with
/// the file in place, made here or by another program meanwhile. Throws EADOError; nothing stands under
/// `path` then.
void CreateDatabaseFile(const QString& path, const TDatabaseOptions& options);
