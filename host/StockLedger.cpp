#include "StockLedger.h"

#include "DecimalText.h"
#include "QueryOpening.h"
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
    OpenQuery(query, connection, statement, parameters);
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
    Write(correction);
    const int marked = MarkSales(correction.Kala, correction.Date);
    transaction.Commit();
    return marked;
}

int TStockLedger::Change(int id, const TStockCorrection& correction)
{
    TTransaction transaction(*connection_);
    HoldOpenYears();
    const TStockCorrection before = Undo(id);
    if (before.Kala != correction.Kala)
        throw std::invalid_argument("A correction stays one of the same goods.");
    Write(correction);
    const int marked = MarkSales(correction.Kala, qMin(before.Date, correction.Date));
    transaction.Commit();
    return marked;
}

int TStockLedger::Remove(int id, int userCode)
{
    TTransaction transaction(*connection_);
    HoldOpenYears();
    CheckUser(userCode);
    const TStockCorrection before = Undo(id);
    const int marked = MarkSales(before.Kala, before.Date);
    transaction.Commit();
    return marked;
}

// Whoever generates vouchers holds his operation's year: the two come one after the other, so that no voucher
// is generated with a cost that is just changing.
void TStockLedger::HoldOpenYears()
{
    connection_->Execute(QStringLiteral("UPDATE dbo.FiscalYears SET Title = Title WHERE Closed = 0"));
}

void TStockLedger::CheckUser(int userCode)
{
    if (userCode == 0)
        throw EServiceRefused(
            QStringLiteral("کاربری وارد نشده است؛ با نام یک کاربر وارد شوید تا اصلاح موجودی ثبت شود."));
}

void TStockLedger::CheckDate(const QString& date)
{
    const auto years = Read(*connection_,
                            QStringLiteral("SELECT Code FROM dbo.FiscalYears WHERE Closed = 0 "
                                           "AND FromDate <= ? AND ToDate >= ?"),
                            {date, date});
    if (years.isEmpty())
        throw EServiceRefused(
            QStringLiteral("تاریخ %1 در هیچ سال مالی بازی نیست؛ تاریخ دیگری بدهید.").arg(date));
}

void TStockLedger::CheckQuantity(const QString& quantity)
{
    if (TDecimal(quantity).IsZero())
        throw EServiceRefused(QStringLiteral("مقدار اصلاح صفر است؛ مقدار کسری یا اضافی را بنویسید."));
    if (DecimalText::DecimalCount(quantity) > StockDecimals ||
        DecimalText::DigitCount(quantity) > MostStockDigits)
        throw EServiceRefused(
            QStringLiteral("مقدار اصلاح بیش از اندازه بزرگ یا ریز است؛ با حداکثر سه رقم اعشار بنویسید."));
}

void TStockLedger::Write(const TStockCorrection& correction)
{
    const QString quantity = DecimalText::WithoutTrailingZeros(DecimalText::Settled(correction.Quantity));
    CheckQuantity(quantity);
    CheckUser(correction.UserCode);
    CheckDate(correction.Date);
    AddToStock(correction.Kala, TDecimal(quantity));
    connection_->Execute(
        QStringLiteral(
            "INSERT INTO dbo.StockCorrections (KalaCode, CorrectionDate, Quantity, Sharh, UserCode, "
            "RegisteredAt) VALUES (?, ?, CAST(? AS decimal(18,3)), ?, ?, CAST(? AS datetime))"),
        {correction.Kala, correction.Date, quantity, correction.Text.trimmed(), correction.UserCode,
         correction.Moment});
}

TStockCorrection TStockLedger::Undo(int id)
{
    const auto rows = Read(
        *connection_,
        QStringLiteral("SELECT KalaCode, CorrectionDate, Quantity FROM dbo.StockCorrections WHERE Id = ?"),
        {id});
    if (rows.isEmpty())
        throw EServiceRefused(
            QStringLiteral("این اصلاح را کاربر دیگری حذف کرده است؛ فهرست را دوباره بخوانید."));
    TStockCorrection before;
    before.Kala = rows.constFirst().at(0).toInt();
    before.Date = rows.constFirst().at(1).toString();
    CheckDate(before.Date);
    AddToStock(before.Kala, TDecimal() - DecimalOf(rows.constFirst().at(2)));
    connection_->Execute(QStringLiteral("DELETE FROM dbo.StockCorrections WHERE Id = ?"), {id});
    return before;
}

void TStockLedger::AddToStock(int kala, const TDecimal& quantity)
{
    // The row is held before it is read, so that nobody else's change is lost.
    const qint64 held =
        connection_->Execute(QStringLiteral("UPDATE dbo.kala SET Stock = Stock WHERE Code = ?"), {kala});
    if (held == 0)
        throw EServiceRefused(QStringLiteral("کالای %1 تعریف نشده است.").arg(kala));
    const auto rows = Read(*connection_, QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = ?"), {kala});
    const TDecimal stock = DecimalOf(rows.constFirst().constFirst());
    connection_->Execute(
        QStringLiteral("UPDATE dbo.kala SET Stock = CAST(? AS decimal(18,3)) WHERE Code = ?"),
        {(stock + quantity).ToString(), kala});
}

int TStockLedger::MarkSales(int kala, const QString& from)
{
    const qint64 marked = connection_->Execute(
        QStringLiteral(
            "UPDATE dbo.Trades SET NeedsRefresh = 1 WHERE Kind = ? AND SanadId IS NOT NULL "
            "AND TradeDate >= ? AND FiscalYear IN (SELECT Code FROM dbo.FiscalYears WHERE Closed = 0) "
            "AND Id IN (SELECT TradeId FROM dbo.TradeRows WHERE KalaCode = ?)"),
        {1, from, kala});
    return static_cast<int>(marked);
}
