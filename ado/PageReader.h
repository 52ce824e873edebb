#pragma once

#include "PagedList.h"

/// Reads a paged list on a connection: each call runs one or two statements to their end. Throws EADOError.
class ADO_EXPORT TPageReader
{
public:
    TPageReader(TADOConnection& connection, const TPageStatements& statements)
        : connection_(connection), statements_(statements)
    {
    }

    /// The rows of a plan, in the order of the list whatever its direction.
    TPageRows Read(const TPagePlan& plan);
    /// How many rows stand before a place.
    int CountBefore(const TSortKey& place);
    int Count();
    /// The keys of up to `count` rows, in no order.
    QVariantList SomeKeys(int count);
    /// The place of the row that has the key; none when the list does not hold it.
    std::optional<TSortKey> Find(const QVariant& key);
    /// A row and the page around it.
    struct TAround
    {
        int Row = 0;
        TPageRows Rows;
    };
    /// Finds the row at a place; where it has gone, the one that now stands there.
    TAround ReadAround(const TSortKey& place, int pageSize);

    /// The length of the list and the places between its pages.
    struct TSurvey
    {
        int Count = 0;
        TPageBoundaries Boundaries;
    };
    /// Reads the places of all rows once, forward-only. (Numbering the rows in the statement delivers fewer
    /// rows but takes the embedded engine two to eight times as long.)
    TSurvey Survey(int pageSize);

private:
    int CountOf(const TStatement& statement);

    TADOConnection& connection_;
    const TPageStatements& statements_;
};
