#pragma once

#include "ADOQuery.h"
#include "PagedDataSet.h"

#include <QTemporaryDir>

/// A table of goods in a database file of its own, as a query and as a paged list.
class TGoodsTable
{
public:
    explicit TGoodsTable(int rows);

    TADOConnection& Connection() { return connection_; }
    /// All goods by code, open.
    std::unique_ptr<TADOQuery> Query();
    /// The same as a large list, open, with its first page and its exact count.
    std::unique_ptr<TPagedDataSet> Paged();

    /// Goods no. 3 costs less than nothing, no. 4 has neither price nor name.
    static QString NameOf(int code);

private:
    QTemporaryDir folder_;
    TADOConnection connection_;
};
