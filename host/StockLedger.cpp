#include "StockLedger.h"

#include "ADOQuery.h"
#include "DecimalText.h"
#include "ServiceRefused.h"

namespace {

/// What goods cost that were never bought, of their selling amount.
constexpr char16_t StandardCostPercent[] = u"82";
constexpr int StockDecimals = 3;
constexpr int MostStockDigits = 15;

bool IsNegative(const TDecimal& number)
{
    return number.ToString().startsWith(u'-');
}

TDecimal DecimalOf(const QVariant& value)
{
    return value.isNull() ? TDecimal() : TDecimal(value.toString());
}

QVector<QVariantList> Read(TADOConnection& connection, const QString& statement,
                           const QVariantList& parameters)
{
    TADOQuery query;
    query.SetConnection(&connection);
    query.SQL.SetText(statement);
    query.Parameters = parameters;
    query.Open();
    QVector<QVariantList> rows;
    for (query.First(); !query.Eof(); query.Next()) {
        QVariantList row;
        for (int field = 0; field < query.FieldCount(); ++field)
            row.append(query.FieldValue(field));
        rows.append(row);
    }
    return rows;
}

} // namespace

TDecimal TStockLedger::CostOfSale(int tradeId, const QString& date)
{
    const auto rows =
        Read(*connection_,
             QStringLiteral(
                 "SELECT KalaCode, Quantity, Amount FROM dbo.TradeRows WHERE TradeId = ? ORDER BY RowNo"),
             {tradeId});
    TDecimal cost;
    for (const QVariantList& row : rows)
        cost = cost + CostOfRow(row.at(0).toInt(), date, DecimalOf(row.at(1)), DecimalOf(row.at(2)));
    return cost;
}

TDecimal TStockLedger::CostOfRow(int kala, const QString& date, const TDecimal& quantity,
                                 const TDecimal& amount)
{
    const QVariantList bought =
        Read(*connection_,
             QStringLiteral(
                 "SELECT SUM(r.Amount) AS Amount, SUM(r.Quantity) AS Quantity FROM dbo.TradeRows AS r "
                 "INNER JOIN dbo.Trades AS t ON t.Id = r.TradeId "
                 "WHERE r.KalaCode = ? AND t.Kind = ? AND t.TradeDate <= ?"),
             {kala, 2, date})
            .constFirst();
    const QVariantList corrected =
        Read(*connection_,
             QStringLiteral("SELECT SUM(Quantity) AS Quantity FROM dbo.StockCorrections "
                            "WHERE KalaCode = ? AND CorrectionDate <= ?"),
             {kala, date})
            .constFirst();
    const TDecimal boughtQuantity = DecimalOf(bought.at(1));
    const TDecimal left = boughtQuantity + DecimalOf(corrected.at(0));
    // Where the corrections have left nothing of what was bought, they say nothing about its cost either.
    const TDecimal& divisor = left.IsZero() || IsNegative(left) ? boughtQuantity : left;
    if (const auto average = TDecimal::Quotient(DecimalOf(bought.at(0)) * quantity, divisor, 0))
        return *average;
    return TDecimal::Quotient(amount * TDecimal(QString::fromUtf16(StandardCostPercent)),
                              TDecimal(QStringLiteral("100")), 0)
        .value_or(TDecimal());
}

int TStockLedger::Correct(const TStockCorrection& correction)
{
    TTransaction transaction(*connection_);
    HoldOpenYears();
    Check(correction);
    ChangeStock(correction);
    connection_->Execute(
        QStringLiteral(
            "INSERT INTO dbo.StockCorrections (KalaCode, CorrectionDate, Quantity, Sharh, UserCode, "
            "RegisteredAt) VALUES (?, ?, CAST(? AS decimal(18,3)), ?, ?, CAST(? AS datetime))"),
        {correction.Kala, correction.Date, correction.Quantity, correction.Text.trimmed(),
         correction.UserCode, correction.Moment});
    const qint64 marked = connection_->Execute(
        QStringLiteral(
            "UPDATE dbo.Trades SET NeedsRefresh = 1 WHERE Kind = ? AND SanadId IS NOT NULL "
            "AND TradeDate >= ? AND FiscalYear IN (SELECT Code FROM dbo.FiscalYears WHERE Closed = 0) "
            "AND Id IN (SELECT TradeId FROM dbo.TradeRows WHERE KalaCode = ?)"),
        {1, correction.Date, correction.Kala});
    transaction.Commit();
    return static_cast<int>(marked);
}

// Whoever generates vouchers holds his operation's year: the two come one after the other, so that no voucher
// is generated with a cost that is just changing.
void TStockLedger::HoldOpenYears()
{
    connection_->Execute(QStringLiteral("UPDATE dbo.FiscalYears SET Title = Title WHERE Closed = 0"));
}

void TStockLedger::Check(const TStockCorrection& correction)
{
    const QString plain = DecimalText::WithoutTrailingZeros(DecimalText::Settled(correction.Quantity));
    if (TDecimal(plain).IsZero())
        throw EServiceRefused(
            QStringLiteral("مقدار اصلاح صفر است؛ کسری را با منها و اضافی را بدون علامت بنویسید."));
    if (DecimalText::DecimalCount(plain) > StockDecimals || DecimalText::DigitCount(plain) > MostStockDigits)
        throw EServiceRefused(
            QStringLiteral("مقدار اصلاح بیش از اندازه بزرگ یا ریز است؛ با حداکثر سه رقم اعشار بنویسید."));
    if (correction.UserCode == 0)
        throw EServiceRefused(
            QStringLiteral("کاربری وارد نشده است؛ با نام یک کاربر وارد شوید تا اصلاح موجودی ثبت شود."));
    const auto years = Read(*connection_,
                            QStringLiteral("SELECT Code FROM dbo.FiscalYears WHERE Closed = 0 "
                                           "AND FromDate <= ? AND ToDate >= ?"),
                            {correction.Date, correction.Date});
    if (years.isEmpty())
        throw EServiceRefused(
            QStringLiteral("تاریخ %1 در هیچ سال مالی بازی نیست؛ تاریخ دیگری بدهید.").arg(correction.Date));
}

void TStockLedger::ChangeStock(const TStockCorrection& correction)
{
    // The row is held before it is read, so that no other user's sale is lost.
    const qint64 held = connection_->Execute(
        QStringLiteral("UPDATE dbo.kala SET Stock = Stock WHERE Code = ?"), {correction.Kala});
    if (held == 0)
        throw EServiceRefused(QStringLiteral("کالای %1 تعریف نشده است.").arg(correction.Kala));
    const TDecimal stock = DecimalOf(
        Read(*connection_, QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = ?"), {correction.Kala})
            .constFirst()
            .constFirst());
    connection_->Execute(
        QStringLiteral("UPDATE dbo.kala SET Stock = CAST(? AS decimal(18,3)) WHERE Code = ?"),
        {(stock + TDecimal(DecimalText::Settled(correction.Quantity))).ToString(), correction.Kala});
}
