#pragma once

#include "DatabaseExport.h"

#include <QString>
#include <QVector>

/// Where the codes of one kind of entity stand. The key column is always `Code`.
struct DATABASE_EXPORT TEntityTable
{
    int EntityType;   ///< ordinal of TEntityType, 1 to 28 without 17
    int LookupOption; ///< ordinal of LocateDBsOptions
    int SoftwarePart; ///< ordinal of TSoftwarePart by which the kind is picked
    QString Table;    ///< table or view, with its schema
    QString Fields;   ///< what a lookup shows, names separated by semicolons
    QString Title;    ///< Persian, singular: what one of the kind is called
};

namespace EntityTables {

/// One row for each of the 27 kinds that can be looked up, ordered by entity type.
DATABASE_EXPORT const QVector<TEntityTable>& All();
/// Null where no kind is looked up by the option.
DATABASE_EXPORT const TEntityTable* ByLookupOption(int lookupOption);

} // namespace EntityTables
