#include "SampleData.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseSchema.h"
#include "SampleContext.h"

namespace {

constexpr int TellEveryMilliseconds = 100;
/// Steps of the work beside one for each goods item, person and voucher.
constexpr int IndexSteps = 1000;

TSampleSize Bounded(const TSampleSize& size)
{
    // Codes have six digits on forms, except those of goods.
    TSampleSize result = size;
    result.Goods = qMax(1, size.Goods);
    result.Persons = qBound(20, size.Persons, 999999);
    result.VouchersPerYear = qMax(1, size.VouchersPerYear);
    result.FiscalYears = qBound(1, size.FiscalYears, 4);
    result.PicturedRecords = qBound(0, size.PicturedRecords, qMin(result.Goods, result.Persons));
    return result;
}

qint64 StepCount(const TSampleSize& size)
{
    return IndexSteps + size.Goods + size.Persons + size.PicturedRecords +
           static_cast<qint64>(size.VouchersPerYear) * size.FiscalYears;
}

void Fill(TSampleContext& context)
{
    SampleParts::FillFixedRows(context);
    SampleParts::FillRates(context);
    SampleParts::FillChartOfAccounts(context);
    SampleParts::FillCategories(context);
    SampleParts::FillGoods(context);
    SampleParts::FillPersons(context);
    SampleParts::FillPictures(context);
    SampleParts::FillVouchers(context);
}

} // namespace

TSampleSize TSampleSize::Small()
{
    TSampleSize size;
    size.Goods = 300;
    size.Persons = 80;
    size.VouchersPerYear = 60;
    size.FiscalYears = 2;
    size.PicturedRecords = 5;
    return size;
}

TSampleSize TSampleSize::Normal()
{
    return {};
}

TSampleSize TSampleSize::Large()
{
    TSampleSize size;
    size.Goods = 100000;
    size.Persons = 20000;
    size.VouchersPerYear = 5000;
    return size;
}

TSampleProgress::TSampleProgress(const TProgressHandler& handler, qint64 total)
    : handler_(handler), total_(total)
{
    sinceTold_.start();
}

void TSampleProgress::Begin(const QString& stage)
{
    stage_ = stage;
    Tell();
}

void TSampleProgress::Advance(qint64 steps)
{
    done_ += steps;
    if (sinceTold_.elapsed() >= TellEveryMilliseconds)
        Tell();
}

void TSampleProgress::Tell()
{
    sinceTold_.restart();
    if (handler_ && !handler_(static_cast<int>(qMin<qint64>(100, done_ * 100 / total_)), stage_))
        throw EADOError(
            TAdoErrorKind::Cancelled,
            QStringLiteral(
                "ساخت پایگاه داده به خواست شما نیمه‌کاره رها شد."));
}

void CreateSampleDatabase(TADOConnection& connection, const TSampleSize& size,
                          const TProgressHandler& progress)
{
    const TSampleSize bounded = Bounded(size);
    const TSampleCategories categories;
    TSampleProgress meter(progress, StepCount(bounded));
    TSampleContext context{connection, bounded, meter, categories};

    TTransaction transaction(connection);
    meter.Begin(QStringLiteral("ساخت جدول‌ها"));
    for (const QString& statement : DatabaseSchema::TableStatements())
        connection.Execute(statement);
    Fill(context);
    meter.Begin(QStringLiteral("ساخت نمایه‌ها"));
    const QStringList last = DatabaseSchema::IndexAndViewStatements();
    for (const QString& statement : last) {
        connection.Execute(statement);
        meter.Advance(IndexSteps / last.size());
    }
    transaction.Commit();
}
