#include "EntityLists.h"

#include "EntityTables.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace {

using TColumnKind = TGridColumn::TKind;

constexpr QLatin1String codeField("Code");
constexpr QLatin1String activeField("Active");
constexpr QLatin1String groupField("GroupCode");
constexpr QLatin1String soughtField("SearchText");

/// A code and a name, as every kind has them.
TEntityList Plain(TSoftwarePart part, const QString& nameTitle = QStringLiteral("نام"))
{
    const QVector<TEntityTable>& tables = EntityTables::All();
    const auto table = std::find_if(tables.begin(), tables.end(), [part](const TEntityTable& one) {
        return one.SoftwarePart == static_cast<int>(part);
    });
    TEntityList list;
    list.Part = part;
    list.Table = table->Table;
    list.Title = table->Title;
    const QString name = table->Fields.section(u';', 0, 0);
    list.SoughtName = QStringLiteral("e.") + name;
    list.Columns = {{codeField, QStringLiteral("e.Code"), QStringLiteral("کد"), 80, TColumnKind::ckCode},
                    {name, list.SoughtName, nameTitle, 280}};
    list.Restrictable = QStringList{codeField};
    return list;
}

/// The kind's rows can be switched off.
TEntityList Switched(TEntityList list)
{
    list.Restrictable.append(activeField);
    return list;
}

TEntityList With(TEntityList list, const QVector<TEntityColumn>& columns)
{
    list.Columns += columns;
    return list;
}

/// A column of the kind's table holds the code of a row of another, whose name is shown.
TEntityList Naming(TEntityList list, const QString& column, const QString& table, const QString& name,
                   const TEntityColumn& shown)
{
    const QString alias = QStringLiteral("t%1").arg(list.Columns.size());
    list.Joins += QStringLiteral(" LEFT JOIN dbo.%1 AS %2 ON %2.Code = e.%3").arg(table, alias, column);
    list.Columns.append(shown);
    list.Columns.last().Expression = alias + u'.' + name;
    list.Restrictable.append(column);
    return list;
}

TEntityList Grouped(const TEntityList& list, const QString& groupTable)
{
    return Naming(list, groupField, groupTable, QStringLiteral("Name"),
                  {QStringLiteral("GroupName"), {}, QStringLiteral("گروه"), 150});
}

TEntityList Folded(TEntityList list)
{
    list.SoughtName = QStringLiteral("e.SearchName");
    list.SoughtNameIsFolded = true;
    return list;
}

TEntityList Persons()
{
    return Grouped(With(Folded(Switched(Plain(TSoftwarePart::spPersonals))),
                        {{QStringLiteral("City"), QStringLiteral("e.City"), QStringLiteral("شهر"), 110},
                         {QStringLiteral("Phone"), QStringLiteral("e.Phone"), QStringLiteral("تلفن"), 120,
                          TColumnKind::ckCode}}),
                   QStringLiteral("PersonGroups"));
}

TEntityList Goods()
{
    return With(
        Grouped(With(Folded(Switched(Plain(TSoftwarePart::spGoods, QStringLiteral("نام کالا")))),
                     {{QStringLiteral("UnitName"), QStringLiteral("e.UnitName"), QStringLiteral("واحد"), 80},
                      {QStringLiteral("Stock"), QStringLiteral("e.Stock"), QStringLiteral("موجودی"), 100,
                       TColumnKind::ckNumber},
                      {QStringLiteral("Price"), QStringLiteral("e.Price"), QStringLiteral("قیمت"), 120,
                       TColumnKind::ckMoney}}),
                QStringLiteral("KalaGroups")),
        {{QStringLiteral("Barcode"), QStringLiteral("e.Barcode"), QStringLiteral("بارکد"), 130,
          TColumnKind::ckCode}});
}

TEntityList BankAccounts()
{
    TEntityList list =
        Naming(With(Switched(Plain(TSoftwarePart::spBankAccounts, QStringLiteral("نام حساب"))),
                    {{QStringLiteral("Shobe"), QStringLiteral("e.Shobe"), QStringLiteral("شعبه"), 140},
                     {QStringLiteral("SH_H"), QStringLiteral("e.SH_H"), QStringLiteral("شماره حساب"), 150,
                      TColumnKind::ckCode}}),
               QStringLiteral("BankCode"), QStringLiteral("Banks"), QStringLiteral("Name"),
               {QStringLiteral("BankName"), {}, QStringLiteral("بانک"), 130});
    list.Restrictable.append(QStringLiteral("CurrCode"));
    return list;
}

TEntityList ExpenseCenters()
{
    static const QStringList levels{QStringLiteral("سطح اول"), QStringLiteral("سطح دوم"),
                                    QStringLiteral("سطح سوم"), QStringLiteral("سطح چهارم")};
    TEntityList list = Switched(Plain(TSoftwarePart::spExpenseCenters, QStringLiteral("عنوان")));
    list.Columns.last().Width = 200;
    for (int level = 1; level <= levels.size(); ++level)
        list = Naming(list, QStringLiteral("Level%1Code").arg(level),
                      QStringLiteral("ExpenseLevel%1").arg(level), QStringLiteral("Title"),
                      {QStringLiteral("Level%1Title").arg(level), {}, levels.at(level - 1), 120});
    return list;
}

TEntityList Employees()
{
    return Grouped(With(Switched(Plain(TSoftwarePart::spEmployees)),
                        {{QStringLiteral("NationalCode"), QStringLiteral("e.NationalCode"),
                          QStringLiteral("کد ملی"), 120, TColumnKind::ckCode}}),
                   QStringLiteral("EmployeeGroups"));
}

TEntityList Assets()
{
    return With(Switched(Plain(TSoftwarePart::spAssets)),
                {{QStringLiteral("PurchaseDate"), QStringLiteral("e.PurchaseDate"),
                  QStringLiteral("تاریخ خرید"), 110, TColumnKind::ckDate},
                 {QStringLiteral("Value"), QStringLiteral("e.Value"), QStringLiteral("ارزش"), 130,
                  TColumnKind::ckMoney}});
}

TEntityList InPlace(TSoftwarePart part, const QString& column, const QString& table, const QString& title)
{
    return Naming(Plain(part), column, table, QStringLiteral("Name"),
                  {QStringLiteral("PlaceName"), {}, title, 160});
}

QVector<TEntityList> MakeAll()
{
    using enum TSoftwarePart;
    const QString title = QStringLiteral("عنوان");
    return {
        Persons(),
        Goods(),
        BankAccounts(),
        ExpenseCenters(),
        Employees(),
        Assets(),
        Grouped(Switched(Plain(spStores)), QStringLiteral("StoreGroups")),
        Grouped(Switched(Plain(spCashDesks)), QStringLiteral("CashDeskGroups")),
        Grouped(Switched(Plain(spWorkshops)), QStringLiteral("WorkshopGroups")),
        Switched(Plain(spIncomes)),
        Switched(Plain(spCosts)),
        Switched(Plain(spPettyCash)),
        Plain(spExpenseLevel1, title),
        Plain(spExpenseLevel2, title),
        Plain(spExpenseLevel3, title),
        Plain(spExpenseLevel4, title),
        Plain(spGoodsGroups),
        Plain(spPersonGroups),
        Plain(spCashDeskGroups),
        Plain(spStoreGroups),
        Plain(spWorkshopGroups),
        Plain(spEmployeeGroups),
        Plain(spCountries),
        Plain(spProvinces),
        InPlace(spCities, QStringLiteral("ProvinceCode"), QStringLiteral("Provinces"),
                QStringLiteral("استان")),
        InPlace(spDistricts, QStringLiteral("CityCode"), QStringLiteral("Cities"), QStringLiteral("شهر")),
    };
}

QString Numbers(const QVector<int>& values)
{
    QStringList texts;
    for (const int value : values)
        texts.append(QString::number(value));
    return texts.join(QStringLiteral(", "));
}

} // namespace

bool TEntityList::HasActive() const
{
    return Restrictable.contains(activeField);
}

bool TEntityList::ShowsOnlyActive(const QVector<TEntityRestriction>& restrictions, bool all) const
{
    return !all && HasActive() &&
           std::none_of(restrictions.begin(), restrictions.end(), [](const TEntityRestriction& one) {
               return one.Column.compare(activeField, Qt::CaseInsensitive) == 0;
           });
}

QVector<TGridColumn> TEntityList::GridColumns() const
{
    QVector<TGridColumn> columns;
    for (const TEntityColumn& column : Columns)
        columns.append({column.Field, column.Title, column.Width, column.Kind});
    return columns;
}

QVector<TSearchItem> TEntityList::SearchItems() const
{
    TSearchItem both;
    both.Title = QStringLiteral("کد یا نام");
    both.FiledName = soughtField;
    if (SoughtNameIsFolded)
        both.FoldedName = soughtField;
    QVector<TSearchItem> items{both};
    constexpr int afterName = 2;
    for (const TEntityColumn& column : Columns.mid(afterName)) {
        if (column.Kind != TColumnKind::ckText && column.Kind != TColumnKind::ckCode)
            continue;
        TSearchItem item;
        item.Title = column.Title;
        item.FiledName = column.Field;
        items.append(item);
    }
    return items;
}

// The zeros in front let a code be found by what it looks like in boxes of any width; a digit typed after a
// zero is then the first one of the code.
TPagedSource TEntityList::Source(const QVector<TEntityRestriction>& restrictions, bool all) const
{
    TPagedSource source;
    QStringList columns;
    for (const TEntityColumn& column : Columns) {
        source.Fields.append(column.Field);
        columns.append(column.Expression + QStringLiteral(" AS ") + column.Field);
    }
    columns.append(QStringLiteral("RIGHT(N'0000000000' + CAST(e.Code AS nvarchar(10)), 10) + N' ' + ") +
                   SoughtName + QStringLiteral(" AS ") + soughtField);
    source.From = QStringLiteral("(SELECT ") + columns.join(QStringLiteral(", ")) + QStringLiteral(" FROM ") +
                  Table + QStringLiteral(" AS e") + Joins + Where(restrictions, all) +
                  QStringLiteral(") AS entities");
    source.KeyField = codeField;
    return source;
}

QString TEntityList::Where(const QVector<TEntityRestriction>& restrictions, bool all) const
{
    QStringList conditions;
    if (ShowsOnlyActive(restrictions, all))
        conditions.append(QStringLiteral("e.Active = 1"));
    for (const TEntityRestriction& restriction : restrictions)
        conditions.append(RestrictionText(restriction));
    return conditions.isEmpty() ? QString()
                                : QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND "));
}

QString TEntityList::RestrictionText(const TEntityRestriction& restriction) const
{
    const auto column = std::find_if(Restrictable.begin(), Restrictable.end(), [&](const QString& one) {
        return one.compare(restriction.Column, Qt::CaseInsensitive) == 0;
    });
    if (column == Restrictable.end())
        throw std::invalid_argument("The list of " + Table.toStdString() + " is not restricted by \"" +
                                    restriction.Column.toStdString() + "\" but by " +
                                    Restrictable.join(QStringLiteral(", ")).toStdString() + ".");
    return QStringLiteral("e.") + *column + QStringLiteral(" IN (") + Numbers(restriction.Values) + u')';
}

const QVector<TEntityList>& EntityLists::All()
{
    static const QVector<TEntityList> lists = MakeAll();
    return lists;
}

const TEntityList& EntityLists::Of(TSoftwarePart part)
{
    const QVector<TEntityList>& lists = All();
    const auto list =
        std::find_if(lists.begin(), lists.end(), [part](const TEntityList& one) { return one.Part == part; });
    if (list == lists.end())
        throw std::logic_error("There is no list of the software part " +
                               std::to_string(static_cast<int>(part)) + ".");
    return *list;
}
