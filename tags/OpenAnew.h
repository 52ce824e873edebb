#pragma once

#include "ADOQuery.h"

#include <QScopeGuard>

/// Reads a statement's result into a query, which controls hear of once.
inline void OpenAnew(TADOQuery& query, const QString& statement)
{
    query.DisableControls();
    const QScopeGuard enable([&query] { query.EnableControls(); });
    query.Close();
    query.SQL.SetText(statement);
    query.Open();
}
