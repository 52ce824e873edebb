#pragma once

#include "EntityArgument.h"
#include "EntityTypes.h"
#include "HostExport.h"
#include "PagedDataSet.h"
#include "SmartDBGrid_TRV.h"
#include "TarvaSearch.h"

#include <QStringList>
#include <QVector>

/// A column of a list of entities.
struct HOST_EXPORT TEntityColumn
{
    QString Field;      ///< its name in the list
    QString Expression; ///< what it is made of; `e` is the kind's own table
    QString Title;
    int Width = 100; ///< pixels at scale 1
    TGridColumn::TKind Kind = TGridColumn::ckText;
};

/// The list from which the codes of one kind of entity are picked. All texts are the host's own words.
struct HOST_EXPORT TEntityList
{
    TSoftwarePart Part = TSoftwarePart::spNone;
    QString Table;                  ///< with its schema
    QString Title;                  ///< Persian, singular: what one of the kind is called
    QVector<TEntityColumn> Columns; ///< the code and the name first
    QString SoughtName;             ///< what is searched beside the code; `e` is the kind's own table
    bool SoughtNameIsFolded = false;
    QString Joins;            ///< further tables of the columns
    QStringList Restrictable; ///< whole-number columns of the kind's own table that a caller may restrict by

    bool HasActive() const;
    /// Whether only rows that are switched on are listed: where the kind knows that, unless all rows are
    /// wanted or the caller restricts by Active himself.
    bool ShowsOnlyActive(const QVector<TEntityRestriction>& restrictions, bool all) const;
    QVector<TGridColumn> GridColumns() const;
    /// The first one seeks in the code and the name alike; the others in one text column each.
    QVector<TSearchItem> SearchItems() const;
    /// Throws std::invalid_argument for a restriction by a column that is not Restrictable.
    TPagedSource Source(const QVector<TEntityRestriction>& restrictions, bool all) const;

private:
    QString Where(const QVector<TEntityRestriction>& restrictions, bool all) const;
    QString RestrictionText(const TEntityRestriction& restriction) const;
};

namespace EntityLists {

/// One list for each part by which an entity or a group is picked.
HOST_EXPORT const QVector<TEntityList>& All();
/// Throws std::logic_error for a part without a list.
HOST_EXPORT const TEntityList& Of(TSoftwarePart part);

} // namespace EntityLists
