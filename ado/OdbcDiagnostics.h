#pragma once

#include "AdoError.h"
#include "OdbcHandles.h"

#include <QVector>

/// Everything that a handle has to say about its last call.
struct TOdbcDiagnostics
{
    QString State;     ///< SQLSTATE of the first record
    int Code = 0;      ///< native error of the first record
    QString Message;   ///< the texts of all records, one a line
    bool Dead = false; ///< a record tells that the connection is gone

    struct TRecord
    {
        QString State;
        int Code = 0;
    };
    QVector<TRecord> Records; ///< all of them, the first one too
};

ADO_EXPORT TOdbcDiagnostics ReadDiagnostics(SQLSMALLINT handleType, SQLHANDLE handle);

/// What the diagnostics mean to a caller.
ADO_EXPORT TAdoErrorKind KindOf(const TOdbcDiagnostics& diagnostics);

/// The exception for a connection that could not be made: says which of its parts the user has to look after.
ADO_EXPORT EADOError OdbcOpeningError(const TOdbcDiagnostics& diagnostics);

/// The exception for a failed call. `kind` overrides what the diagnostics say where it is not Other.
ADO_EXPORT EADOError OdbcError(const TOdbcDiagnostics& diagnostics, const QString& statement,
                               TAdoErrorKind kind = TAdoErrorKind::Other);
