#pragma once

#include "SqliteSession.h"

/// Makes the function known to SQLite as `dbo_` and the name in lower case.
void RegisterSqliteFunction(TSqliteSession& session, const QString& name, int argumentCount,
                            TDatabaseFunction function);
