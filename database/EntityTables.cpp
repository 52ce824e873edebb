#include "EntityTables.h"

namespace {

TEntityTable Row(int entityType, int lookupOption, int softwarePart, const QString& table,
                 const QString& fields, const QString& title)
{
    return {entityType, lookupOption, softwarePart, QStringLiteral("dbo.") + table, fields, title};
}

const TEntityTable* Find(int TEntityTable::*member, int value)
{
    for (const TEntityTable& table : EntityTables::All()) {
        if (table.*member == value)
            return &table;
    }
    return nullptr;
}

} // namespace

const QVector<TEntityTable>& EntityTables::All()
{
    static const QString name = QStringLiteral("Name");
    static const QString title = QStringLiteral("Title");
    static const QVector<TEntityTable> tables{
        Row(1, 6, 106, QStringLiteral("Projects"), name, QStringLiteral("پروژه")),
        Row(2, 0, 101, QStringLiteral("Persons"), QStringLiteral("fullname"), QStringLiteral("شخص")),
        Row(3, 8, 103, QStringLiteral("BankAccounts"), QStringLiteral("Name;Shobe;SH_H"),
            QStringLiteral("حساب بانکی")),
        Row(4, 3, 109, QStringLiteral("Stores"), name, QStringLiteral("انبار")),
        Row(5, 2, 110, QStringLiteral("Services"), name, QStringLiteral("خدمت")),
        Row(6, 1, 102, QStringLiteral("kala"), name, QStringLiteral("کالا")),
        Row(7, 5, 105, QStringLiteral("OtherDetails"), name, QStringLiteral("تفصیلی")),
        Row(8, 13, 0, QStringLiteral("ExpenseCenters"), title, QStringLiteral("مرکز هزینه")),
        Row(9, 14, 116, QStringLiteral("ExpenseCenterGroups"), title, QStringLiteral("گروه مراکز هزینه")),
        Row(10, 15, 117, QStringLiteral("WorkKinds"), title, QStringLiteral("نوع فعالیت")),
        Row(11, 16, 118, QStringLiteral("WorkPlaces"), title, QStringLiteral("محل فعالیت")),
        Row(12, 17, 119, QStringLiteral("Contracts"), title, QStringLiteral("قرارداد")),
        Row(13, 4, 104, QStringLiteral("CashDesks"), name, QStringLiteral("صندوق")),
        Row(14, 19, 806, QStringLiteral("Employees"), QStringLiteral("FullName"), QStringLiteral("کارمند")),
        Row(15, 20, 900, QStringLiteral("users"), name, QStringLiteral("کاربر")),
        Row(16, 12, 122, QStringLiteral("PersonGroups"), name, QStringLiteral("گروه اشخاص")),
        Row(18, 9, 611, QStringLiteral("Visitors"), name, QStringLiteral("بازاریاب")),
        Row(19, 22, 612, QStringLiteral("VisitorGroups"), name,
            QStringLiteral("گروه بازاریاب‌ها")),
        Row(20, 18, 114, QStringLiteral("KalaGroups"), name, QStringLiteral("گروه کالا")),
        Row(21, 23, 815, QStringLiteral("EmployeeGroups"), name, QStringLiteral("گروه کارکنان")),
        Row(22, 24, 101, QStringLiteral("ActivePersons"), name, QStringLiteral("شخص فعال")),
        Row(23, 25, 125, QStringLiteral("Banks"), name, QStringLiteral("بانک")),
        Row(24, 26, 124, QStringLiteral("CashDeskGroups"), name,
            QStringLiteral("گروه صندوق‌ها")),
        Row(25, 27, 128, QStringLiteral("Currencies"), QStringLiteral("TitleCountry"), QStringLiteral("ارز")),
        Row(26, 28, 139, QStringLiteral("StoreGroups"), name, QStringLiteral("گروه انبارها")),
        Row(27, 29, 137, QStringLiteral("ServiceGroups"), name, QStringLiteral("گروه خدمات")),
        Row(28, 30, 138, QStringLiteral("ProjectGroups"), name, QStringLiteral("گروه پروژه‌ها")),
    };
    return tables;
}

const TEntityTable* EntityTables::ByLookupOption(int lookupOption)
{
    return Find(&TEntityTable::LookupOption, lookupOption);
}

const TEntityTable* EntityTables::ByEntityType(int entityType)
{
    return Find(&TEntityTable::EntityType, entityType);
}
