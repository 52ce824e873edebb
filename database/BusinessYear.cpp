#include "BusinessYear.h"

#include "DatabaseSchema.h"
#include "SampleCalendar.h"
#include "SampleContext.h"

namespace {

constexpr quint64 OperationStream = 40;
constexpr int PersonDetailKind = 1;
constexpr int ValueAddedTaxPercent = 10;
/// Days of the open year that have passed: up to the end of the seventh month.
constexpr int DaysOfOpenYear = 216;
constexpr int DaysWithoutVouchers = 4;
constexpr int ManualKind = 1;
constexpr int AutomaticKind = 2;
constexpr int OpeningKind = 3;
constexpr int SaleTrade = 1;
constexpr int PurchaseTrade = 2;

qint64 Rounded(qint64 amount)
{
    return amount / 1000 * 1000;
}

qint64 ValueAddedTax(qint64 amount)
{
    return amount * ValueAddedTaxPercent / 100;
}

} // namespace

TBusinessYear::TBusinessYear(TSampleContext& context, TVoucherBook& book)
    : context_(context), book_(book), goods_(context.Categories),
      trades_(context.Connection, QStringLiteral("dbo.Trades"),
              {QStringLiteral("Kind"), QStringLiteral("FiscalYear"), QStringLiteral("Number"),
               QStringLiteral("TradeDate"), QStringLiteral("PersonCode"), QStringLiteral("StoreCode"),
               QStringLiteral("Amount"), QStringLiteral("SanadId"), QStringLiteral("NeedsRefresh")}),
      tradeRows_(context.Connection, QStringLiteral("dbo.TradeRows"),
                 {QStringLiteral("TradeId"), QStringLiteral("RowNo"), QStringLiteral("KalaCode"),
                  QStringLiteral("Quantity"), QStringLiteral("Price"), QStringLiteral("Amount")})
{
}

void TBusinessYear::Run(int year, bool last)
{
    saleNumber_ = 0;
    purchaseNumber_ = 0;
    if (year == SampleCalendar::FirstYear)
        Capital();
    const int days = last ? DaysOfOpenYear : SampleCalendar::DaysIn(year);
    const int operations = context_.Size.VouchersPerYear;
    for (int index = 0; index < operations; ++index) {
        TSampleRandom random(OperationStream,
                             static_cast<quint64>(year) * 10000000 + static_cast<quint64>(index));
        const int day = static_cast<int>(static_cast<qint64>(index) * days / operations);
        Operation({year, day, last && day >= days - DaysWithoutVouchers}, random);
        context_.Progress.Advance();
    }
}

void TBusinessYear::Flush()
{
    trades_.Flush();
    tradeRows_.Flush();
}

void TBusinessYear::Capital()
{
    const QString text = QStringLiteral("افتتاح حساب‌ها");
    TVoucher voucher(QStringLiteral("سند افتتاحیه"), OpeningKind);
    voucher.Debit({101, 1, 1}, 850000000, text);
    voucher.Debit({102, 1, 1}, 12400000000, text);
    voucher.Debit({102, 1, 2}, 7350000000, text);
    voucher.Debit({106, 1, 0}, 38600000000, text);
    voucher.Debit({201, 1, 1}, 18500000000, text);
    voucher.Debit({201, 2, 2}, 2900000000, text);
    voucher.Debit({201, 3, 3}, 640000000, text);
    voucher.Credit({401, 1, 3}, 6000000000, QStringLiteral("مانده تسهیلات بانکی"));
    voucher.Credit({501, 1, 1}, 75240000000, QStringLiteral("سرمایه شرکا"));
    book_.Write(voucher, 0, 1);
}

void TBusinessYear::Operation(const TDay& day, TSampleRandom& random)
{
    const int choice = random.Below(100);
    const int user = 1 + random.Below(3);
    if (choice < 38) {
        Trade(true, day, random);
    } else if (choice < 58) {
        Trade(false, day, random);
    } else {
        const TVoucher voucher = choice < 60   ? ForeignPurchase(random)
                                 : choice < 76 ? Receipt(random)
                                 : choice < 86 ? Payment(random)
                                 : choice < 95 ? Expense(random)
                                 : choice < 97 ? Salaries(random)
                                               : Sundry(random);
        book_.Write(voucher, day.Day, user);
    }
}

void TBusinessYear::Trade(bool sale, const TDay& day, TSampleRandom& random)
{
    const int person = AnyPerson(random);
    const int number = sale ? ++saleNumber_ : ++purchaseNumber_;
    const int rowCount = 1 + random.Below(5);
    ++lastTradeId_;
    qint64 total = 0;
    QVector<QVariantList> rows;
    for (int row = 1; row <= rowCount; ++row) {
        const int code = 1 + random.Below(context_.Size.Goods);
        const qint64 quantity = random.Between(1, 24);
        const qint64 price = sale ? goods_.Price(code) : Rounded(goods_.Price(code) * 85 / 100);
        rows.append({lastTradeId_, row, code, quantity, price, quantity * price});
        total += quantity * price;
    }
    QVariant voucherId;
    if (!day.TradesLackVouchers)
        voucherId = book_.Write(
            sale ? SaleVoucher(number, person, total) : PurchaseVoucher(number, person, total), day.Day, 2);
    const bool needsRefresh = voucherId.isValid() && random.Chance(1);
    // Vouchers must be there before the trade that names one, trades before their rows.
    if (trades_.NextAddSends())
        book_.Flush();
    trades_.Add({sale ? SaleTrade : PurchaseTrade, day.Year, number,
                 SampleCalendar::DateText(day.Year, day.Day), person, 1 + random.Below(2), total, voucherId,
                 needsRefresh});
    for (const QVariantList& row : rows) {
        if (tradeRows_.NextAddSends()) {
            book_.Flush();
            trades_.Flush();
        }
        tradeRows_.Add(row);
    }
}

TVoucher TBusinessYear::SaleVoucher(int number, int person, qint64 amount) const
{
    const QString text = QStringLiteral("فاکتور فروش شماره %1").arg(number);
    const qint64 tax = ValueAddedTax(amount);
    const qint64 cost = Rounded(amount * 82 / 100);
    TVoucher voucher(QStringLiteral("فروش کالا - ") + text, AutomaticKind);
    voucher.Debit({104, 1, person}, amount + tax, text);
    voucher.Credit({601, 1, 0}, amount, text);
    voucher.Credit({303, 1, 0}, tax, QStringLiteral("مالیات ارزش افزوده ") + text);
    voucher.Debit({701, 1, 0}, cost, QStringLiteral("بهای تمام‌شده ") + text);
    voucher.Credit({106, 1, 0}, cost, QStringLiteral("خروج کالا ") + text);
    return voucher;
}

TVoucher TBusinessYear::PurchaseVoucher(int number, int person, qint64 amount) const
{
    const QString text = QStringLiteral("فاکتور خرید شماره %1").arg(number);
    const qint64 tax = ValueAddedTax(amount);
    TVoucher voucher(QStringLiteral("خرید کالا - ") + text, AutomaticKind);
    voucher.Debit({106, 1, 0}, amount, text);
    voucher.Debit({109, 1, 0}, tax, QStringLiteral("مالیات ارزش افزوده ") + text);
    voucher.Credit({301, 1, person}, amount + tax, text);
    return voucher;
}

TVoucher TBusinessYear::ForeignPurchase(TSampleRandom& random) const
{
    TForeignAmount foreign;
    foreign.Currency = 2 + random.Below(2);
    foreign.Amount = random.Between(5, 90) * 100;
    foreign.Rate = random.Between(480, 620) * 1000;
    const qint64 amount = foreign.Amount * foreign.Rate;
    const QString text = QStringLiteral("پروفرمای شماره %1").arg(random.Between(100, 999));
    TVoucher voucher(QStringLiteral("خرید خارجی - ") + text, ManualKind);
    voucher.Debit({106, 3, 0}, amount, text, 0, foreign);
    voucher.Credit({301, 2, AnyPerson(random)}, amount, text, foreign);
    return voucher;
}

TVoucher TBusinessYear::Receipt(TSampleRandom& random) const
{
    const qint64 amount = Rounded(random.Between(2000000, 480000000));
    const int person = AnyPerson(random);
    const QString text = QStringLiteral("دریافت از مشتری، رسید %1").arg(random.Between(1000, 9999));
    TVoucher voucher(text, ManualKind);
    if (random.Chance(35))
        voucher.Debit({101, 1, 1 + random.Below(3)}, amount, text);
    else
        voucher.Debit({102, 1, 1 + random.Below(4)}, amount, text);
    voucher.Credit({104, 1, person}, amount, text);
    return voucher;
}

TVoucher TBusinessYear::Payment(TSampleRandom& random) const
{
    const qint64 amount = Rounded(random.Between(5000000, 700000000));
    const qint64 fee = Rounded(amount / 20000) + 5000;
    const int bank = 1 + random.Below(4);
    const QString text = QStringLiteral("پرداخت به فروشنده، حواله %1").arg(random.Between(10000, 99999));
    TVoucher voucher(text, ManualKind);
    voucher.Debit({301, 1, AnyPerson(random)}, amount, text);
    voucher.Debit({804, 1, bank}, fee, QStringLiteral("کارمزد حواله"));
    voucher.Credit({102, 1, bank}, amount + fee, text);
    return voucher;
}

TVoucher TBusinessYear::Expense(TSampleRandom& random) const
{
    static constexpr int Centers[] = {1, 2, 3, 10, 11, 12, 20, 21, 30};
    const qint64 amount = Rounded(random.Between(500000, 65000000));
    const int cost = 4 + random.Below(9);
    const bool distribution = cost > 10;
    const QString text = QStringLiteral("هزینه‌های جاری، صورت‌حساب %1")
                             .arg(random.Between(100, 9999));
    TVoucher voucher(text, ManualKind);
    voucher.Debit({distribution ? 803 : 802, distribution ? 1 : 1 + random.Below(2), cost}, amount, text,
                  Centers[random.Below(std::size(Centers))]);
    voucher.Credit({103, 1, 1 + random.Below(2)}, amount, text);
    return voucher;
}

TVoucher TBusinessYear::Salaries(TSampleRandom& random) const
{
    static constexpr int Centers[] = {1, 2, 10, 20};
    const QString text = QStringLiteral("حقوق و دستمزد کارکنان");
    TVoucher voucher(text, ManualKind);
    qint64 gross = 0;
    for (const int center : Centers) {
        const qint64 amount = Rounded(random.Between(90000000, 260000000));
        voucher.Debit({801, 1, 1}, amount, text, center);
        gross += amount;
    }
    const qint64 insurance = Rounded(gross * 7 / 100);
    const qint64 tax = Rounded(gross * 4 / 100);
    voucher.Credit({303, 3, 0}, insurance, QStringLiteral("بیمه سهم کارکنان"));
    voucher.Credit({303, 2, 0}, tax, QStringLiteral("مالیات حقوق"));
    voucher.Credit({304, 1, 0}, gross - insurance - tax, QStringLiteral("خالص حقوق پرداختنی"));
    return voucher;
}

TVoucher TBusinessYear::Sundry(TSampleRandom& random) const
{
    const qint64 amount = Rounded(random.Between(3000000, 90000000));
    TVoucher voucher(QStringLiteral("عملیات متفرقه"), ManualKind);
    if (random.Chance(40)) {
        const int asset = 1 + random.Below(2);
        voucher.Debit({604, 2, 13}, amount, QStringLiteral("زیان فروش دارایی"));
        voucher.Credit({102, 1, asset}, amount, QStringLiteral("تسویه فروش دارایی"));
    } else {
        // A unique code names the person whatever kind of account he has.
        const int person = PersonDetailKind * DatabaseSchema::UniqueCodesPerKind + 1 + random.Below(20);
        voucher.Debit({108, 2, person}, amount, QStringLiteral("پرداخت وام"));
        voucher.Credit({102, 1, 1}, amount, QStringLiteral("پرداخت وام"));
    }
    return voucher;
}

int TBusinessYear::AnyPerson(TSampleRandom& random) const
{
    // Some trade every week, most now and then.
    const int persons = context_.Size.Persons;
    return 1 + (random.Chance(50) ? random.Below(qMax(1, persons / 10)) : random.Below(persons));
}
