#include "ADOConnection.h"
#include "BusinessYear.h"
#include "SampleCalendar.h"
#include "SampleContext.h"

namespace {

/// Totals whose details are persons by code.
bool IsPersonTotal(int total)
{
    return total == 104 || total == 105 || total == 107 || total == 301 || total == 302 || total == 305;
}

void UpdateBalances(TADOConnection& connection, const std::map<TAccount, qint64>& balances)
{
    std::map<int, qint64> persons;
    for (const auto& [account, balance] : balances) {
        if (IsPersonTotal(account.Total) && account.Detail != 0)
            persons[account.Detail] += balance;
    }
    for (const auto& [person, balance] : persons) {
        connection.Execute(QStringLiteral("UPDATE dbo.Persons SET Balance = ? WHERE Code = ?"),
                           {balance, person});
    }
}

} // namespace

void SampleParts::FillVouchers(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("سندها"));
    TVoucherBook book(context.Connection);
    TBusinessYear business(context, book);
    for (int index = 0; index < context.Size.FiscalYears; ++index) {
        const int year = SampleCalendar::FirstYear + index;
        const bool last = index + 1 == context.Size.FiscalYears;
        book.OpenYear(year);
        business.Run(year, last);
    }
    book.Flush();
    business.Flush();
    UpdateBalances(context.Connection, book.Balances());
}
