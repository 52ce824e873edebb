#pragma once

#include "AdoError.h"

#include <sqlite3.h>

/// When an error arose: a plain SQLITE_ERROR while a statement is prepared means that it is not understood.
enum class TSqlitePhase { Opening, Preparing, Running };

/// The exception for a result code of `handle` (which may be null); `statement` is the caller's own text.
EADOError SqliteError(sqlite3* handle, int code, TSqlitePhase phase, const QString& statement = {});
