#pragma once

#include "ADOConnection.h"
#include "PagedDataSet.h"

#include <atomic>
#include <QTemporaryDir>

/// A database file with a table `dbo.kala` of generated goods: names repeat and are missing now and then,
/// prices repeat, `Code` is the key and counts up from 1.
class TGoodsFile
{
public:
    explicit TGoodsFile(int rows);

    TADOConnection Connection;
    void Insert(int code, const QVariant& name, const QString& price);
    /// The keys in the order of the raw statement.
    QVariantList Codes(const QString& condition, const QString& orderBy);

    static TPagedSource Source();
    /// A data set on the table, closed.
    std::unique_ptr<TPagedDataSet> DataSet(int pageSize = 100);

    /// Makes dbo.Tick(x) known, which counts its calls, takes a millisecond and returns x: a condition with
    /// it takes as many milliseconds as the table has rows.
    void RegisterTick();
    std::atomic<int> Ticks = 0;

private:
    QTemporaryDir folder_;
};
