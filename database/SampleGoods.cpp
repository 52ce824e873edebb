#include "GoodsMaker.h"
#include "RowWriter.h"
#include "SampleContext.h"

namespace {

/// An empty text is NULL.
QVariant TextOrNull(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

} // namespace

void SampleParts::FillGoods(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("کالاها"));
    const TGoodsMaker maker(context.Categories);
    TRowWriter goods(context.Connection, QStringLiteral("dbo.kala"),
                     {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Barcode"),
                      QStringLiteral("UnitName"), QStringLiteral("GroupCode"), QStringLiteral("Price"),
                      QStringLiteral("Stock"), QStringLiteral("tags"), QStringLiteral("Active")});
    TRowWriter categories(context.Connection, QStringLiteral("dbo.kala_category"),
                          {QStringLiteral("kala_code"), QStringLiteral("category_code")});
    for (int code = 1; code <= context.Size.Goods; ++code) {
        const TGoods item = maker.Make(code);
        goods.Add({code, item.Name, item.Barcode, item.UnitName, item.GroupCode, item.Price, item.Stock,
                   TextOrNull(item.Tags), item.Active});
        context.Progress.Advance();
    }
    goods.Flush();
    // Behind the goods that they refer to.
    for (int code = 1; code <= context.Size.Goods; ++code)
        categories.Add({code, maker.CategoryOf(code)});
    categories.Flush();
}
