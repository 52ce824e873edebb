#include "ReportItems.h"

#include "EntityTypes.h"

namespace {

constexpr int AccountCodeDigits = 6;

TSearchItem& Add(TSearchCollection& items, const QString& title, const QString& field, TSearchDataType type)
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = field;
    item.DataType = type;
    // The whole condition goes into the statement, and any of them may be turned round.
    item.FilterType = TSearchFilterType::iftQuery;
    return items.Add(item);
}

void AddEntity(TSearchCollection& items, const QString& title, const QString& field, TEntityType type)
{
    Add(items, title, field, TSearchDataType::idtDigit).ItemValue = static_cast<int>(type);
}

QString Confirmed()
{
    return QStringLiteral("تأیید شده");
}

QString Unconfirmed()
{
    return QStringLiteral("تأیید نشده");
}

} // namespace

void ReportItems::AddDates(TSearchCollection& items)
{
    Add(items, QStringLiteral("تاریخ سند"), QStringLiteral("VoucherDate"), TSearchDataType::idtString);
}

void ReportItems::AddTimes(TSearchCollection& items)
{
    Add(items, QStringLiteral("زمان ثبت"), QStringLiteral("RegisteredAt"), TSearchDataType::idtDateTime);
}

void ReportItems::AddAmounts(TSearchCollection& items)
{
    Add(items, QStringLiteral("بدهکار"), QStringLiteral("Bed"), TSearchDataType::idtMoney);
    Add(items, QStringLiteral("بستانکار"), QStringLiteral("Bes"), TSearchDataType::idtMoney);
}

void ReportItems::AddNumbers(TSearchCollection& items)
{
    Add(items, QStringLiteral("شمارهٔ سند"), QStringLiteral("Number"), TSearchDataType::idtDigit);
    Add(items, QStringLiteral("شمارهٔ ردیف"), QStringLiteral("RowNo"), TSearchDataType::idtDigit);
    Add(items, QStringLiteral("سال مالی"), QStringLiteral("FiscalYear"), TSearchDataType::idtDigit);
}

void ReportItems::AddCodes(TSearchCollection& items)
{
    Add(items, QStringLiteral("کل و معین"), QStringLiteral("AccountCode"), TSearchDataType::idtString)
        .MaxLength = AccountCodeDigits;
    Add(items, QStringLiteral("نام کل"), QStringLiteral("KolName"), TSearchDataType::idtString);
}

void ReportItems::AddEntities(TSearchCollection& items)
{
    AddEntity(items, QStringLiteral("شخص"), QStringLiteral("PersonCode"), TEntityType::etPersonals);
    AddEntity(items, QStringLiteral("حساب بانکی"), QStringLiteral("BankCode"), TEntityType::etBankAccounts);
    AddEntity(items, QStringLiteral("صندوق"), QStringLiteral("CashDeskCode"), TEntityType::etCashDesks);
    AddEntity(items, QStringLiteral("تنخواه"), QStringLiteral("PettyCashCode"), TEntityType::etPettyCash);
    AddEntity(items, QStringLiteral("درآمد"), QStringLiteral("IncomeCode"), TEntityType::etIncomes);
    AddEntity(items, QStringLiteral("هزینه"), QStringLiteral("CostCode"), TEntityType::etCosts);
    AddEntity(items, QStringLiteral("مرکز هزینه"), QStringLiteral("Tafsili2"), TEntityType::etExpenseCenters);
}

void ReportItems::AddStates(TSearchCollection& items)
{
    const QString field = QStringLiteral("Confirmed");
    Add(items, QStringLiteral("همهٔ سندها"), field, TSearchDataType::idtDigit);
    Add(items, Confirmed(), field, TSearchDataType::idtDigit).ItemValue = 1;
    Add(items, Unconfirmed(), field, TSearchDataType::idtDigit).ItemValue = 0;
}

QString ReportItems::WithStateInWords(const QString& words)
{
    QString result = words;
    const QString compared = QStringLiteral("%1 برابر %2 باشد");
    const QString told = QStringLiteral("سند %1 باشد");
    result.replace(compared.arg(Confirmed(), QStringLiteral("۱")), told.arg(Confirmed()));
    return result.replace(compared.arg(Unconfirmed(), QStringLiteral("۰")), told.arg(Unconfirmed()));
}
