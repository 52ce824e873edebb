#pragma once

#include "ADOQuery.h"

/// Reads the result of a statement into a query of the caller's own, so that the data module's shared one
/// keeps what frames have in it.
inline void OpenQuery(TADOQuery& query, TADOConnection& connection, const QString& statement,
                      const QVariantList& parameters = {})
{
    query.SetConnection(&connection);
    query.SQL.SetText(statement);
    query.Parameters = parameters;
    query.Open();
}
