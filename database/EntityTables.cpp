#include "EntityTables.h"

namespace {

TEntityTable Row(int entityType, int lookupOption, int softwarePart, const QString& table,
                 const QString& fields, const QString& title)
{
    return {entityType, lookupOption, softwarePart, QStringLiteral("dbo.") + table, fields, title};
}

} // namespace

const QVector<TEntityTable>& EntityTables::All()
{
    static const QString name = QStringLiteral("Name");
    static const QString title = QStringLiteral("Title");
    static const QVector<TEntityTable> tables{
        Row(1, 6, 106, QStringLiteral("Stores"), name, QStringLiteral("انبار")),
        Row(2, 0, 101, QStringLiteral("Persons"), QStringLiteral("fullname"), QStringLiteral("شخص")),
        Row(3, 8, 103, QStringLiteral("BankAccounts"), QStringLiteral("Name;Shobe;SH_H"),
            QStringLiteral("حساب بانکی")),
        Row(4, 3, 109, QStringLiteral("Incomes"), name, QStringLiteral("درآمد")),
        Row(5, 2, 110, QStringLiteral("Costs"), name, QStringLiteral("هزینه")),
        Row(6, 1, 102, QStringLiteral("CashDesks"), name, QStringLiteral("صندوق")),
        Row(7, 5, 105, QStringLiteral("kala"), name, QStringLiteral("کالا")),
        Row(8, 13, 115, QStringLiteral("ExpenseCenters"), title, QStringLiteral("مرکز هزینه")),
        Row(9, 14, 116, QStringLiteral("ExpenseLevel1"), title, QStringLiteral("سطح اول هزینه")),
        Row(10, 15, 117, QStringLiteral("ExpenseLevel2"), title, QStringLiteral("سطح دوم هزینه")),
        Row(11, 16, 118, QStringLiteral("ExpenseLevel3"), title, QStringLiteral("سطح سوم هزینه")),
        Row(12, 17, 119, QStringLiteral("ExpenseLevel4"), title, QStringLiteral("سطح چهارم هزینه")),
        Row(13, 4, 104, QStringLiteral("PettyCash"), name, QStringLiteral("تنخواه‌گردان")),
        Row(14, 19, 806, QStringLiteral("Employees"), QStringLiteral("FullName"), QStringLiteral("کارمند")),
        Row(15, 20, 900, QStringLiteral("Assets"), name, QStringLiteral("دارایی")),
        Row(16, 12, 122, QStringLiteral("PersonGroups"), name, QStringLiteral("گروه اشخاص")),
        Row(18, 9, 611, QStringLiteral("Workshops"), name, QStringLiteral("کارگاه")),
        Row(19, 22, 612, QStringLiteral("WorkshopGroups"), name,
            QStringLiteral("گروه کارگاه‌ها")),
        Row(20, 18, 114, QStringLiteral("KalaGroups"), name, QStringLiteral("گروه کالا")),
        Row(21, 23, 815, QStringLiteral("EmployeeGroups"), name, QStringLiteral("گروه کارکنان")),
        Row(22, 24, 101, QStringLiteral("Persons"), name, QStringLiteral("شخص")),
        Row(23, 25, 125, QStringLiteral("StoreGroups"), name, QStringLiteral("گروه انبارها")),
        Row(24, 26, 124, QStringLiteral("CashDeskGroups"), name,
            QStringLiteral("گروه صندوق‌ها")),
        Row(25, 27, 128, QStringLiteral("Countries"), QStringLiteral("TitleCountry"), QStringLiteral("کشور")),
        Row(26, 28, 139, QStringLiteral("Districts"), name, QStringLiteral("منطقه")),
        Row(27, 29, 137, QStringLiteral("Provinces"), name, QStringLiteral("استان")),
        Row(28, 30, 138, QStringLiteral("Cities"), name, QStringLiteral("شهر")),
    };
    return tables;
}

const TEntityTable* EntityTables::ByLookupOption(int lookupOption)
{
    for (const TEntityTable& table : All()) {
        if (table.LookupOption == lookupOption)
            return &table;
    }
    return nullptr;
}
