#include "AutoVoucherLines.h"

namespace {

// Operations as dbo.AutoVoucherSetting names them.
constexpr char16_t OnCreditSale[] = u"فروش نسیه";
constexpr char16_t Sale[] = u"فروش کالا";
constexpr char16_t SaleTax[] = u"مالیات ارزش افزوده فروش";
constexpr char16_t CostOfSales[] = u"بهای تمام شده کالای فروش رفته";
constexpr char16_t Stock[] = u"موجودی کالا";
constexpr char16_t OnCreditPurchase[] = u"خرید نسیه";
constexpr char16_t PurchaseTax[] = u"مالیات ارزش افزوده خرید";

QString Text(const char16_t* operation)
{
    return QString::fromUtf16(operation);
}

bool IsSale(const TTradeFacts& trade)
{
    return trade.Kind == TTradeFacts::tkSale;
}

QString Reference(const TTradeFacts& trade)
{
    const QString document =
        IsSale(trade) ? QStringLiteral("فاکتور فروش شماره %1") : QStringLiteral("فاکتور خرید شماره %1");
    return document.arg(trade.Number);
}

/// In whole units of the base currency.
TDecimal Tax(const TDecimal& amount)
{
    const TDecimal percents = amount * TDecimal(QString::number(AutoVoucherLines::ValueAddedTaxPercent));
    return TDecimal::Quotient(percents, TDecimal(QStringLiteral("100")), 0).value_or(TDecimal());
}

TAutoAccount WithPerson(TAutoAccount account, int person)
{
    if (account.Detail == 0)
        account.Detail = person;
    return account;
}

class TLines
{
public:
    void Debit(const TAutoAccount& account, const TDecimal& amount, const QString& text)
    {
        if (!amount.IsZero())
            lines_.append({account, text, amount, {}});
    }
    void Credit(const TAutoAccount& account, const TDecimal& amount, const QString& text)
    {
        if (!amount.IsZero())
            lines_.append({account, text, {}, amount});
    }
    QVector<TAutoLine> Take() { return std::move(lines_); }

private:
    QVector<TAutoLine> lines_;
};

} // namespace

QStringList AutoVoucherLines::Operations(int kind)
{
    if (kind == TTradeFacts::tkSale)
        return {Text(OnCreditSale), Text(Sale), Text(SaleTax), Text(CostOfSales), Text(Stock)};
    return {Text(Stock), Text(PurchaseTax), Text(OnCreditPurchase)};
}

QString AutoVoucherLines::Title(const TTradeFacts& trade)
{
    const QString what = IsSale(trade) ? QStringLiteral("فروش کالا - ") : QStringLiteral("خرید کالا - ");
    return what + Reference(trade);
}

QVector<TAutoLine> AutoVoucherLines::Of(const TTradeFacts& trade, const TAutoAccounts& accounts)
{
    const QString text = Reference(trade);
    const QString taxText = QStringLiteral("مالیات ارزش افزوده ") + text;
    const TDecimal tax = Tax(trade.Amount);
    TLines lines;
    if (IsSale(trade)) {
        lines.Debit(WithPerson(accounts.value(Text(OnCreditSale)), trade.Person), trade.Amount + tax, text);
        lines.Credit(accounts.value(Text(Sale)), trade.Amount, text);
        lines.Credit(accounts.value(Text(SaleTax)), tax, taxText);
        lines.Debit(accounts.value(Text(CostOfSales)), trade.Cost,
                    QStringLiteral("بهای تمام‌شده ") + text);
        lines.Credit(accounts.value(Text(Stock)), trade.Cost, QStringLiteral("خروج کالا ") + text);
    } else {
        lines.Debit(accounts.value(Text(Stock)), trade.Amount, text);
        lines.Debit(accounts.value(Text(PurchaseTax)), tax, taxText);
        lines.Credit(WithPerson(accounts.value(Text(OnCreditPurchase)), trade.Person), trade.Amount + tax,
                     text);
    }
    return lines.Take();
}
