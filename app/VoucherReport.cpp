#include "VoucherReport.h"

#include "AccountTypes.h"

namespace {

QString Padded(const QString& column)
{
    return QStringLiteral("RIGHT(N'00' + CAST(r.%1 AS nvarchar(3)), 3)").arg(column);
}

QString DetailOf(const QString& condition, const QString& name)
{
    return QStringLiteral("CASE WHEN %1 THEN r.Tafzili END AS %2").arg(condition, name);
}

QString KindIs(TFloatingAccountsType kind)
{
    // 128 more says that a detail account must be given.
    return QStringLiteral("t.DetailType % 128 = ") + QString::number(static_cast<int>(kind));
}

/// Of accounts with details of both kinds, assistant 1 has incomes and the others have costs.
QString KindIsEither(TFloatingAccountsType kind, const QString& assistant)
{
    return QStringLiteral("%1 OR %2 AND r.Moin %3")
        .arg(KindIs(kind), KindIs(TFloatingAccountsType::fatIncomesAndCosts), assistant);
}

QStringList FilterColumns()
{
    return {
        QStringLiteral("r.Tafsili"),
        Padded(QStringLiteral("Kol")) + QStringLiteral(" + ") + Padded(QStringLiteral("Moin")) +
            QStringLiteral(" AS AccountCode"),
        DetailOf(KindIs(TFloatingAccountsType::fatPersonals), QStringLiteral("PersonCode")),
        DetailOf(KindIs(TFloatingAccountsType::fatBankAccounts), QStringLiteral("BankCode")),
        DetailOf(KindIs(TFloatingAccountsType::fatCashDesks), QStringLiteral("CashDeskCode")),
        DetailOf(KindIs(TFloatingAccountsType::fatPettyCash), QStringLiteral("PettyCashCode")),
        DetailOf(KindIsEither(TFloatingAccountsType::fatIncomes, QStringLiteral("= 1")),
                 QStringLiteral("IncomeCode")),
        DetailOf(KindIsEither(TFloatingAccountsType::fatCosts, QStringLiteral("<> 1")),
                 QStringLiteral("CostCode")),
    };
}

QStringList ShownFields()
{
    return {
        QStringLiteral("Id"),        QStringLiteral("FiscalYear"),  QStringLiteral("Number"),
        QStringLiteral("RowNo"),     QStringLiteral("VoucherDate"), QStringLiteral("Kol"),
        QStringLiteral("KolName"),   QStringLiteral("Moin"),        QStringLiteral("MoinName"),
        QStringLiteral("Tafzili"),   QStringLiteral("Tafsili2"),    QStringLiteral("Sharh"),
        QStringLiteral("Bed"),       QStringLiteral("Bes"),         QStringLiteral("RegisteredAt"),
        QStringLiteral("Confirmed"),
    };
}

} // namespace

TPagedSource VoucherReport::Source()
{
    QStringList columns;
    for (const QString& field : ShownFields())
        columns.append(QStringLiteral("r.") + field);
    columns += FilterColumns();
    const QString from = QStringLiteral("(SELECT ") + columns.join(QStringLiteral(", ")) +
                         QStringLiteral(" FROM dbo.VoucherRows AS r INNER JOIN dbo.AccTotals AS t "
                                        "ON t.Code = r.Kol) AS v");
    return {ShownFields(), from, QStringLiteral("Id")};
}

QVector<TGridColumn> VoucherReport::Columns()
{
    constexpr auto Code = TGridColumn::ckCode;
    constexpr int TotalDigits = 3;
    return {
        {QStringLiteral("Number"), QStringLiteral("سند"), 62, Code},
        {QStringLiteral("VoucherDate"), QStringLiteral("تاریخ"), 88, TGridColumn::ckDate},
        {QStringLiteral("Kol"), QStringLiteral("کل"), 44, Code, true, TotalDigits},
        {QStringLiteral("KolName"), QStringLiteral("نام کل"), 130},
        {QStringLiteral("Moin"), QStringLiteral("معین"), 48, Code, true, TotalDigits},
        {QStringLiteral("MoinName"), QStringLiteral("نام معین"), 120},
        {QStringLiteral("Tafzili"), QStringLiteral("تفصیلی"), 66, Code},
        {QStringLiteral("Tafsili2"), QStringLiteral("مرکز هزینه"), 76, Code},
        {QStringLiteral("Sharh"), QStringLiteral("شرح"), 170},
        {QStringLiteral("Bed"), QStringLiteral("بدهکار"), 122, TGridColumn::ckMoney},
        {QStringLiteral("Bes"), QStringLiteral("بستانکار"), 122, TGridColumn::ckMoney},
        {QStringLiteral("RegisteredAt"), QStringLiteral("زمان ثبت"), 126, TGridColumn::ckDate},
        {QStringLiteral("Confirmed"), QStringLiteral("تأیید"), 52},
        {QStringLiteral("FiscalYear"), QStringLiteral("سال"), 48, Code},
        {QStringLiteral("RowNo"), QStringLiteral("ردیف"), 44, Code},
    };
}

int VoucherReport::FieldIndex(const QString& field)
{
    return static_cast<int>(ShownFields().indexOf(field));
}
