#pragma once

#include "SampleCategories.h"
#include "SampleData.h"

#include <QElapsedTimer>

class TADOConnection;

/// Tells how far the work has come, about ten times a second at most.
class TSampleProgress
{
public:
    TSampleProgress(const TProgressHandler& handler, qint64 total);

    void Begin(const QString& stage);
    /// Throws EADOError(Cancelled) when the handler does not want any more.
    void Advance(qint64 steps = 1);

private:
    void Tell();

    const TProgressHandler& handler_;
    qint64 total_;
    qint64 done_ = 0;
    QString stage_;
    QElapsedTimer sinceTold_;
};

/// What the makers of sample data share.
struct TSampleContext
{
    TADOConnection& Connection;
    const TSampleSize& Size;
    TSampleProgress& Progress;
    const TSampleCategories& Categories;
};

/// The parts of the sample data, each with its own tables. They run in this order.
namespace SampleParts {

void FillFixedRows(TSampleContext& context); ///< users, currencies, lookups, colours and tags
void FillRates(TSampleContext& context);
void FillChartOfAccounts(TSampleContext& context);
void FillCategories(TSampleContext& context);
void FillGoods(TSampleContext& context);
void FillPersons(TSampleContext& context);
void FillPictures(TSampleContext& context);
void FillVouchers(
    TSampleContext& context); ///< and the trades behind them, balances of persons, opening balances

} // namespace SampleParts
