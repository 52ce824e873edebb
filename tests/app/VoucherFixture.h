#pragma once

#include "SampleShop.h"
#include "VoucherStore.h"

#include <QTest>

/// A sample database and a store over it. The open year of the sample is 1403, the closed one 1402.
class TVoucherFixture : public TSampleShop
{
public:
    static constexpr int OpenYear = 1403;
    static constexpr int ClosedYear = 1402;

    static TVoucherLine Line(const TAccountCode& account, const QString& debit, const QString& credit)
    {
        TVoucherLine line;
        line.Account = account;
        line.Description = QStringLiteral("شرح");
        line.Debit = debit;
        line.Credit = credit;
        return line;
    }
    /// From the cash desk into the bank.
    static TVoucherDraft Draft(const QString& amount = QStringLiteral("1500000"))
    {
        TVoucherDraft draft;
        TVoucherHead head;
        head.FiscalYear = OpenYear;
        head.Date = QStringLiteral("1403/02/03");
        head.Title = QStringLiteral("واریز به بانک");
        draft.Load(head, {});
        draft.Append(Line({102, 1, 1, 0}, amount, QStringLiteral("0")));
        draft.Append(Line({101, 1, 2, 0}, QStringLiteral("0"), amount));
        return draft;
    }
    static TVoucherEntry Entry() { return {1, QStringLiteral("2024-05-01T10:11:12"), false}; }

    /// Number of vouchers, of lines and the last number: what a failed saving must not change.
    QStringList State()
    {
        return {Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad")),
                Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail")),
                Text(QStringLiteral("SELECT MAX(Id) FROM dbo.Sanad_Detail")),
                Text(QStringLiteral("SELECT MAX(Number) FROM dbo.Sanad WHERE FiscalYear = 1403"))};
    }

    TVoucherStore Store{Connection};
};
