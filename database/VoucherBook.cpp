#include "VoucherBook.h"

#include "SampleCalendar.h"

#include <QDateTime>

namespace {

/// Totals from here on are incomes and costs: a year begins without them, and what they leave goes into the
/// profit.
constexpr int FirstResultTotal = 600;
/// Totals from here on stand outside the balance sheet.
constexpr int FirstMemorandumTotal = 900;
constexpr TAccount RetainedProfit{503, 1, 0};

bool StaysOverTheYear(const TAccount& account)
{
    return account.Total < FirstResultTotal || account.Total >= FirstMemorandumTotal;
}

/// A plausible moment in office hours, the same for every run.
QString RegisteredAt(int year, int day, int number)
{
    const int minutes = 8 * 60 + number * 37 % (9 * 60);
    const QDateTime moment(SampleCalendar::Gregorian(year, day), QTime(minutes / 60, minutes % 60));
    return moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

} // namespace

void TVoucher::Debit(const TAccount& account, qint64 amount, const QString& text, int expenseCenter,
                     const TForeignAmount& foreign)
{
    Rows.append({account, expenseCenter, text, amount, 0, foreign});
}

void TVoucher::Credit(const TAccount& account, qint64 amount, const QString& text,
                      const TForeignAmount& foreign)
{
    Rows.append({account, 0, text, 0, amount, foreign});
}

TVoucherBook::TVoucherBook(TADOConnection& connection)
    : vouchers_(connection, QStringLiteral("dbo.Sanad"),
                {QStringLiteral("FiscalYear"), QStringLiteral("Number"), QStringLiteral("VoucherDate"),
                 QStringLiteral("RegisteredAt"), QStringLiteral("Kind"), QStringLiteral("Title"),
                 QStringLiteral("UserCode"), QStringLiteral("Confirmed")}),
      rows_(connection, QStringLiteral("dbo.Sanad_Detail"),
            {QStringLiteral("SanadId"), QStringLiteral("RowNo"), QStringLiteral("Kol"),
             QStringLiteral("Moin"), QStringLiteral("Tafzili"), QStringLiteral("Tafsili2"),
             QStringLiteral("Sharh"), QStringLiteral("Bed"), QStringLiteral("Bes"),
             QStringLiteral("CurrCode"), QStringLiteral("CurrRate"), QStringLiteral("CurrAmount")}),
      openings_(connection, QStringLiteral("dbo.fiscal"),
                {QStringLiteral("FiscalYear"), QStringLiteral("Kol"), QStringLiteral("Moin"),
                 QStringLiteral("Tafzili"), QStringLiteral("Bed"), QStringLiteral("Bes")})
{
}

void TVoucherBook::OpenYear(int year)
{
    year_ = year;
    number_ = 0;
    std::map<TAccount, qint64> opening;
    for (const auto& [account, balance] : balances_)
        opening[StaysOverTheYear(account) ? account : RetainedProfit] += balance;
    std::erase_if(opening, [](const auto& entry) { return entry.second == 0; });
    for (const auto& [account, balance] : opening) {
        openings_.Add({year, account.Total, account.Assistant, account.Detail, qMax<qint64>(0, balance),
                       qMax<qint64>(0, -balance)});
    }
    balances_ = std::move(opening);
}

int TVoucherBook::Write(const TVoucher& voucher, int day, int user)
{
    ++number_;
    ++lastId_;
    vouchers_.Add({year_, number_, SampleCalendar::DateText(year_, day), RegisteredAt(year_, day, number_),
                   voucher.Kind, voucher.Title, user, number_ % 7 != 0});
    int rowNumber = 0;
    for (const TVoucher::TRow& row : voucher.Rows)
        WriteRow(row, ++rowNumber);
    return lastId_;
}

void TVoucherBook::Flush()
{
    vouchers_.Flush();
    rows_.Flush();
    openings_.Flush();
}

void TVoucherBook::WriteRow(const TVoucher::TRow& row, int rowNumber)
{
    // A row must not be sent before its voucher.
    if (rows_.NextAddSends())
        vouchers_.Flush();
    rows_.Add({lastId_, rowNumber, row.Account.Total, row.Account.Assistant, row.Account.Detail,
               row.ExpenseCenter, row.Text, row.Debit, row.Credit, row.Foreign.Currency, row.Foreign.Rate,
               row.Foreign.Amount});
    balances_[row.Account] += row.Debit - row.Credit;
}
