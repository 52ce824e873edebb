#include "RecordFacts.h"
#include "QueryOpening.h"

namespace {

constexpr QLatin1String goodsListKey("Goods");
constexpr QLatin1String personsListKey("Persons");

TRecordFact ListFact(TRecordFact::TPlace place, const QString& caption, const QString& name,
                     TGridColumn::TKind kind = TGridColumn::ckText)
{
    return {place, caption, name, true, kind, false};
}

TRecordFact ReadFact(TRecordFact::TPlace place, const QString& caption, const QString& name,
                     TGridColumn::TKind kind = TGridColumn::ckText, bool isPurchasePrice = false)
{
    return {place, caption, name, false, kind, isPurchasePrice};
}

QVector<TRecordFact> GoodsFacts()
{
    return {
        ListFact(TRecordFact::Fixed, QStringLiteral("نام کالا"), QStringLiteral("Name")),
        ListFact(TRecordFact::Fixed, QStringLiteral("بارکد"), QStringLiteral("Barcode"), TGridColumn::ckCode),
        ListFact(TRecordFact::Fixed, QStringLiteral("گروه"), QStringLiteral("GroupName")),
        ListFact(TRecordFact::Fixed, QStringLiteral("موجودی"), QStringLiteral("Stock"),
                 TGridColumn::ckNumber),
        ReadFact(TRecordFact::LargeTop, QStringLiteral("آخرین خریدار"), QStringLiteral("Buyer")),
        ReadFact(TRecordFact::LargeTop, QStringLiteral("تاریخ آخرین فروش"), QStringLiteral("SoldAt"),
                 TGridColumn::ckDate),
        ReadFact(TRecordFact::SmallTop, QStringLiteral("قیمت آخرین فروش"), QStringLiteral("SoldFor"),
                 TGridColumn::ckMoney),
        ReadFact(TRecordFact::SmallTop, QStringLiteral("مقدار فروخته‌شده"),
                 QStringLiteral("Sold"), TGridColumn::ckNumber),
        ReadFact(TRecordFact::LargeBottom, QStringLiteral("آخرین فروشنده"), QStringLiteral("Seller")),
        ReadFact(TRecordFact::LargeBottom, QStringLiteral("تاریخ آخرین خرید"), QStringLiteral("BoughtAt"),
                 TGridColumn::ckDate),
        ReadFact(TRecordFact::SmallBottom, QStringLiteral("قیمت آخرین خرید"), QStringLiteral("BoughtFor"),
                 TGridColumn::ckMoney, true),
        ReadFact(TRecordFact::SmallBottom, QStringLiteral("مقدار خریداری‌شده"),
                 QStringLiteral("Bought"), TGridColumn::ckNumber),
        ReadFact(TRecordFact::SmallBottom, QStringLiteral("جمع اصلاح موجودی"), QStringLiteral("Corrected"),
                 TGridColumn::ckNumber),
    };
}

QVector<TRecordFact> PersonFacts()
{
    return {
        ListFact(TRecordFact::Fixed, QStringLiteral("نام کامل"), QStringLiteral("FullName")),
        ListFact(TRecordFact::Fixed, QStringLiteral("تلفن"), QStringLiteral("Phone"), TGridColumn::ckCode),
        ListFact(TRecordFact::Fixed, QStringLiteral("کد ملی"), QStringLiteral("NationalCode"),
                 TGridColumn::ckCode),
        ListFact(TRecordFact::LargeTop, QStringLiteral("نشانی"), QStringLiteral("Address")),
        ListFact(TRecordFact::LargeTop, QStringLiteral("گروه"), QStringLiteral("GroupName")),
        ListFact(TRecordFact::SmallTop, QStringLiteral("مانده"), QStringLiteral("Balance"),
                 TGridColumn::ckMoney),
        ListFact(TRecordFact::SmallTop, QStringLiteral("شهر"), QStringLiteral("City")),
        ReadFact(TRecordFact::LargeBottom, QStringLiteral("تاریخ آخرین معامله"), QStringLiteral("DealAt"),
                 TGridColumn::ckDate),
        ReadFact(TRecordFact::LargeBottom, QStringLiteral("شمار معامله‌ها"),
                 QStringLiteral("Deals"), TGridColumn::ckNumber),
        ReadFact(TRecordFact::SmallBottom, QStringLiteral("جمع فروش به شخص"), QStringLiteral("SoldAmount"),
                 TGridColumn::ckMoney),
        ReadFact(TRecordFact::SmallBottom, QStringLiteral("جمع خرید از شخص"), QStringLiteral("BoughtAmount"),
                 TGridColumn::ckMoney, true),
    };
}

/// The last trade of goods: when, with whom, for how much.
QString LastTrade(int kind, const QString& date, const QString& person, const QString& price)
{
    return QStringLiteral(
               "SELECT TOP 1 t.TradeDate AS %2, p.FullName AS %3, r.Price AS %4 FROM dbo.TradeRows AS r "
               "INNER JOIN dbo.Trades AS t ON t.Id = r.TradeId INNER JOIN dbo.Persons AS p "
               "ON p.Code = t.PersonCode WHERE r.KalaCode = ? AND t.Kind = %1 "
               "ORDER BY t.TradeDate DESC, t.Id DESC")
        .arg(kind)
        .arg(date, person, price);
}

QStringList Statements(const QString& listKey)
{
    if (listKey == goodsListKey)
        return {
            LastTrade(1, QStringLiteral("SoldAt"), QStringLiteral("Buyer"), QStringLiteral("SoldFor")),
            LastTrade(2, QStringLiteral("BoughtAt"), QStringLiteral("Seller"), QStringLiteral("BoughtFor")),
            QStringLiteral(
                "SELECT SUM(CASE WHEN t.Kind = 1 THEN r.Quantity END) AS Sold, SUM(CASE WHEN t.Kind = 2 "
                "THEN r.Quantity END) AS Bought FROM dbo.TradeRows AS r INNER JOIN dbo.Trades AS t "
                "ON t.Id = r.TradeId WHERE r.KalaCode = ?"),
            QStringLiteral("SELECT SUM(Quantity) AS Corrected FROM dbo.StockCorrections WHERE KalaCode = ?"),
        };
    if (listKey == personsListKey)
        return {QStringLiteral(
            "SELECT MAX(t.TradeDate) AS DealAt, COUNT(*) AS Deals, SUM(CASE WHEN t.Kind = 1 THEN t.Amount END) AS "
            "SoldAmount, SUM(CASE WHEN t.Kind = 2 THEN t.Amount END) AS BoughtAmount FROM dbo.Trades AS t "
            "WHERE t.PersonCode = ?")};
    return {};
}

} // namespace

QVector<TRecordFact> RecordFacts::Of(const QString& listKey)
{
    if (listKey == goodsListKey)
        return GoodsFacts();
    return listKey == personsListKey ? PersonFacts() : QVector<TRecordFact>();
}

QHash<QString, QVariant> RecordFacts::Read(TADOConnection& connection, const QString& listKey, int code)
{
    QHash<QString, QVariant> values;
    for (const QString& statement : Statements(listKey)) {
        TADOQuery query;
        OpenQuery(query, connection, statement, {code});
        if (query.IsEmpty())
            continue;
        for (int field = 0; field < query.FieldCount(); ++field)
            values.insert(query.Field(field)->FieldName(), query.FieldValue(field));
    }
    return values;
}

bool RecordFacts::HidesPurchasePrices(TADOConnection& connection, int user)
{
    TADOQuery query;
    OpenQuery(query, connection,
              QStringLiteral("SELECT Value FROM dbo.Settings WHERE UserCode = ? AND Name = ?"),
              {user, QStringLiteral("HidePurchasePrices")});
    return !query.IsEmpty() && query.Field(0)->AsString() == u"1";
}
