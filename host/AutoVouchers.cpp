#include "AutoVouchers.h"

#include "AccountNames.h"
#include "QueryOpening.h"
#include "ServiceRefused.h"
#include "StockLedger.h"

namespace {

constexpr int AutomaticKind = 2;

constexpr char16_t MissingCondition[] = u"t.SanadId IS NULL";
constexpr char16_t AwaitingCondition[] = u"t.SanadId IS NOT NULL AND t.NeedsRefresh = 1";

QString TradesWhere(const QString& columns, bool closedYears, const QString& condition)
{
    return QStringLiteral(
               "SELECT %1 FROM dbo.Trades AS t INNER JOIN dbo.FiscalYears AS y ON y.Code = t.FiscalYear "
               "LEFT JOIN dbo.Sanad AS s ON s.Id = t.SanadId WHERE y.Closed = %2 AND %3")
        .arg(columns, closedYears ? QStringLiteral("1") : QStringLiteral("0"), condition);
}

bool HasRows(TADOConnection& connection, const QString& condition)
{
    TADOQuery query;
    OpenQuery(query, connection, TradesWhere(QStringLiteral("TOP 1 t.Id"), false, condition));
    return !query.IsEmpty();
}

int Integer(TADOQuery& query, const QString& field)
{
    return query.FieldByName(field)->AsInteger();
}

/// An operation gets no voucher; the message says why.
class EOperationAtFault : public std::runtime_error
{
public:
    explicit EOperationAtFault(const QString& message)
        : std::runtime_error(message.toStdString()), Message(message)
    {
    }
    QString Message;
};

/// The scope as a condition on operations, with its parameters.
QString ScopeCondition(const TAutoVoucherScope& scope, QVariantList& parameters)
{
    QString condition;
    const auto restrict = [&](const QString& text, const QVariant& value) {
        condition += QStringLiteral(" AND ") + text;
        parameters.append(value);
    };
    if (!scope.From.isEmpty())
        restrict(QStringLiteral("t.TradeDate >= ?"), scope.From);
    if (!scope.To.isEmpty())
        restrict(QStringLiteral("t.TradeDate <= ?"), scope.To);
    if (scope.Number != 0)
        restrict(QStringLiteral("s.Number = ?"), scope.Number);
    if (scope.Kinds.isEmpty())
        return condition;
    QStringList kinds;
    for (const QString& kind : scope.Kinds.split(u',')) {
        bool isNumber = false;
        kinds.append(QString::number(kind.trimmed().toInt(&isNumber)));
        if (!isNumber)
            throw std::invalid_argument("kinds of operations are ordinals between commas: " +
                                        scope.Kinds.toStdString());
    }
    return condition + QStringLiteral(" AND t.Kind IN (%1)").arg(kinds.join(u','));
}

} // namespace

TAutoVouchers::TAutoVouchers(TADOConnection& connection, const TAutoVoucherEntry& entry)
    : connection_(&connection), entry_(entry)
{
}

bool TAutoVouchers::AnyMissing(TADOConnection& connection)
{
    return HasRows(connection, QString::fromUtf16(MissingCondition));
}

bool TAutoVouchers::AnyAwaiting(TADOConnection& connection)
{
    return HasRows(connection, QString::fromUtf16(AwaitingCondition));
}

TAutoVoucherResult TAutoVouchers::SaveMissing(const TProgress& progress)
{
    Prepare();
    return WriteAll(QString::fromUtf16(MissingCondition), {}, &TAutoVouchers::WriteNew, progress);
}

TAutoVoucherResult TAutoVouchers::SaveAgain(const TAutoVoucherScope& scope, const TProgress& progress)
{
    QVariantList parameters;
    const QString condition = QString::fromUtf16(AwaitingCondition) + ScopeCondition(scope, parameters);
    Prepare();
    return WriteAll(condition, parameters, &TAutoVouchers::WriteAgain, progress);
}

void TAutoVouchers::Prepare()
{
    if (entry_.UserCode == 0)
        throw EServiceRefused(
            QStringLiteral("کاربری وارد نشده است؛ با نام یک کاربر وارد شوید تا سندها ثبت شوند."));
    TADOQuery query;
    OpenQuery(
        query, *connection_,
        QStringLiteral("SELECT Operation, Total, Assistant, Detail FROM dbo.AutoVoucherSetting ORDER BY Id"));
    for (query.First(); !query.Eof(); query.Next())
        accounts_.insert(query.FieldByName(QStringLiteral("Operation"))->AsString(),
                         {Integer(query, QStringLiteral("Total")),
                          Integer(query, QStringLiteral("Assistant")),
                          Integer(query, QStringLiteral("Detail"))});
    for (const int kind : {TTradeFacts::tkSale, TTradeFacts::tkPurchase}) {
        for (const QString& operation : AutoVoucherLines::Operations(kind)) {
            if (!accounts_.contains(operation))
                throw EServiceRefused(
                    QStringLiteral(
                        "حساب «%1» در تنظیمات سندهای خودکار تعیین نشده است؛ نخست آن را تعیین کنید.")
                        .arg(operation));
        }
    }
}

TAutoVoucherResult TAutoVouchers::WriteAll(const QString& condition, const QVariantList& parameters,
                                           TWrite write, const TProgress& progress)
{
    TAutoVoucherResult result;
    QVector<std::pair<int, int>> operations;
    {
        TADOQuery query;
        OpenQuery(query, *connection_,
                  TradesWhere(QStringLiteral("t.Id, t.FiscalYear"), false, condition) +
                      QStringLiteral(" ORDER BY t.TradeDate, t.Id"),
                  parameters);
        for (query.First(); !query.Eof(); query.Next())
            operations.append({query.Field(0)->AsInteger(), query.Field(1)->AsInteger()});
        query.Close();
        OpenQuery(query, *connection_, TradesWhere(QStringLiteral("COUNT(*) AS Trades"), true, condition),
                  parameters);
        result.InClosedYears = query.Field(0)->AsInteger();
    }
    for (int index = 0; index < operations.size(); ++index) {
        if (progress && !progress(index, static_cast<int>(operations.size()))) {
            result.Stopped = true;
            break;
        }
        try {
            result.Written += (this->*write)(operations.at(index).first, operations.at(index).second) ? 1 : 0;
        } catch (const EOperationAtFault& fault) {
            result.Faults.append(fault.Message);
        }
    }
    return result;
}

// False where another user has written the voucher meanwhile or has closed the year.
bool TAutoVouchers::WriteNew(int tradeId, int fiscalYear)
{
    TTransaction transaction(*connection_);
    const bool isHeld =
        HoldYear(fiscalYear) &&
        connection_->Execute(
            QStringLiteral("UPDATE dbo.Trades SET NeedsRefresh = 0 WHERE Id = ? AND SanadId IS NULL"),
            {tradeId}) == 1;
    if (!isHeld)
        return false;
    const TOperation operation = ReadOperation(tradeId);
    const QVector<TAutoLine> lines = LinesOf(operation);
    const int voucherId = InsertVoucher(operation);
    InsertLines(voucherId, lines);
    FinishTrade(tradeId, voucherId);
    transaction.Commit();
    return true;
}

bool TAutoVouchers::WriteAgain(int tradeId, int fiscalYear)
{
    TTransaction transaction(*connection_);
    const bool isHeld =
        HoldYear(fiscalYear) &&
        connection_->Execute(QStringLiteral("UPDATE dbo.Trades SET NeedsRefresh = 0 WHERE Id = ? "
                                            "AND SanadId IS NOT NULL AND NeedsRefresh = 1"),
                             {tradeId}) == 1;
    if (!isHeld)
        return false;
    const TOperation operation = ReadOperation(tradeId);
    const QVector<TAutoLine> lines = LinesOf(operation);
    connection_->Execute(QStringLiteral("DELETE FROM dbo.Sanad_Detail WHERE SanadId = ?"),
                         {operation.SanadId});
    InsertLines(operation.SanadId, lines);
    transaction.Commit();
    return true;
}

// All who save into a year come one after the other, so that each finds the last number of the one before.
bool TAutoVouchers::HoldYear(int fiscalYear)
{
    return connection_->Execute(
               QStringLiteral("UPDATE dbo.FiscalYears SET Title = Title WHERE Code = ? AND Closed = 0"),
               {fiscalYear}) == 1;
}

TAutoVouchers::TOperation TAutoVouchers::ReadOperation(int tradeId)
{
    TOperation operation;
    {
        TADOQuery query;
        OpenQuery(query, *connection_,
                  QStringLiteral("SELECT Kind, FiscalYear, Number, TradeDate, PersonCode, Amount, SanadId "
                                 "FROM dbo.Trades WHERE Id = ?"),
                  {tradeId});
        operation.Id = tradeId;
        operation.FiscalYear = Integer(query, QStringLiteral("FiscalYear"));
        operation.SanadId = Integer(query, QStringLiteral("SanadId"));
        operation.Date = query.FieldByName(QStringLiteral("TradeDate"))->AsString();
        operation.Trade.Kind = Integer(query, QStringLiteral("Kind"));
        operation.Trade.Number = Integer(query, QStringLiteral("Number"));
        operation.Trade.Person = Integer(query, QStringLiteral("PersonCode"));
        operation.Trade.Amount = TDecimal(query.FieldByName(QStringLiteral("Amount"))->AsString());
    }
    if (operation.Trade.Kind == TTradeFacts::tkSale)
        operation.Trade.Cost = TStockLedger(*connection_).CostOfSale(tradeId, operation.Date);
    return operation;
}

QVector<TAutoLine> TAutoVouchers::LinesOf(const TOperation& operation)
{
    const QString title = AutoVoucherLines::Title(operation.Trade);
    const bool isKnown =
        operation.Trade.Kind == TTradeFacts::tkSale || operation.Trade.Kind == TTradeFacts::tkPurchase;
    if (!isKnown)
        throw EOperationAtFault(
            QStringLiteral("عملیات شماره %1 از نوعی است که سند خودکار ندارد.").arg(operation.Id));
    if (operation.Trade.Amount.IsZero() || operation.Trade.Amount.ToString().startsWith(u'-'))
        throw EOperationAtFault(QStringLiteral("«%1»: مبلغ باید بیش از صفر باشد.").arg(title));
    QVector<TAutoLine> lines = AutoVoucherLines::Of(operation.Trade, accounts_);
    for (const TAutoLine& line : qAsConst(lines)) {
        const TAccountCodes codes{line.Account.Total, line.Account.Assistant, line.Account.Detail};
        if (!ReadAccountNames(*connection_, codes))
            throw EOperationAtFault(QStringLiteral("«%1»: حساب %2/%3/%4 تعریف نشده است.")
                                        .arg(title)
                                        .arg(codes.Total)
                                        .arg(codes.Assistant)
                                        .arg(codes.Detail));
    }
    return lines;
}

int TAutoVouchers::InsertVoucher(const TOperation& operation)
{
    TADOQuery query;
    OpenQuery(
        query, *connection_,
        QStringLiteral("SELECT ISNULL(MAX(Number), 0) + 1 AS Number FROM dbo.Sanad WHERE FiscalYear = ?"),
        {operation.FiscalYear});
    const int number = query.Field(0)->AsInteger();
    query.Close();
    connection_->Execute(
        QStringLiteral("INSERT INTO dbo.Sanad (FiscalYear, Number, VoucherDate, RegisteredAt, Kind, Title, "
                       "UserCode, Confirmed) VALUES (?, ?, ?, CAST(? AS datetime), ?, ?, ?, 0)"),
        {operation.FiscalYear, number, operation.Date, entry_.Moment, AutomaticKind,
         AutoVoucherLines::Title(operation.Trade), entry_.UserCode});
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT Id FROM dbo.Sanad WHERE FiscalYear = ? AND Number = ?"),
              {operation.FiscalYear, number});
    return query.Field(0)->AsInteger();
}

void TAutoVouchers::InsertLines(int voucherId, const QVector<TAutoLine>& lines)
{
    const QString statement =
        QStringLiteral("INSERT INTO dbo.Sanad_Detail (SanadId, RowNo, Kol, Moin, Tafzili, Sharh, Bed, Bes) "
                       "VALUES (?, ?, ?, ?, ?, ?, CAST(? AS money), CAST(? AS money))");
    int row = 0;
    for (const TAutoLine& line : lines)
        connection_->Execute(statement,
                             {voucherId, ++row, line.Account.Total, line.Account.Assistant,
                              line.Account.Detail, line.Text, line.Debit.ToString(), line.Credit.ToString()});
}

void TAutoVouchers::FinishTrade(int tradeId, int voucherId)
{
    connection_->Execute(QStringLiteral("UPDATE dbo.Trades SET SanadId = ? WHERE Id = ?"),
                         {voucherId, tradeId});
}
