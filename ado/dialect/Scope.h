#pragma once

#include "Types.h"

#include <optional>
#include <QVector>

namespace Dialect {

/// A column of a table in FROM or of a result.
struct TColumn
{
    QString Name;
    TType Type;
};

/// One table, view or subquery in FROM.
struct TSource
{
    QString Name; ///< its alias, or its own name when it has none
    QVector<TColumn> Columns;
    bool IsKnown = true; ///< false when nobody could name the columns
};

/// What the names in an expression can stand for; subqueries see the scopes around them.
struct TScope
{
    QVector<TSource> Sources;
    const TScope* Outer = nullptr;

    /// The type of a column; Unknown when it is found nowhere. `qualifier` may be empty.
    TType TypeOf(const QString& qualifier, const QString& column) const;
    const TSource* Find(const QString& name) const;
};

} // namespace Dialect
