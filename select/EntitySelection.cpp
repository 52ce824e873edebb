#include "EntitySelection.h"

#include <array>

namespace {

using enum TSoftwarePart;
using enum LocateDBsOptions;
using TPicker = TEntitySelection::TPicker;
using TArgument = TEntitySelection::TArgument;

constexpr TEntitySelection List(QStringView fields, LocateDBsOptions locate, TSoftwarePart part,
                                TArgument argument = TArgument::Parameters)
{
    return {.LookupFields = fields,
            .Locate = locate,
            .Picker = TPicker::EntityList,
            .Part = part,
            .Argument = argument};
}

constexpr TEntitySelection Groups(LocateDBsOptions locate, TSoftwarePart part)
{
    return {.LookupFields = u"Name", .Locate = locate, .Picker = TPicker::GroupList, .Part = part};
}

constexpr TEntitySelection WithAll(TEntitySelection row)
{
    row.All = true;
    return row;
}

constexpr TEntitySelection Padded(TEntitySelection row, int exitPad, int pickPad)
{
    row.ExitPad = exitPad;
    row.PickPad = pickPad;
    return row;
}

// By ordinal of TEntityType. A picked code of etExpenseLevel3 is not completed, unlike its neighbours:
// leaving the box, with which every pick ends, does that.
constexpr std::array<TEntitySelection, EntityTypeCount> Rows = {{
    {},
    List(u"Name", ldStores, spStores),
    List(u"fullname", ldPersonals, spPersonals, TArgument::TypedCode),
    List(u"Name;Shobe;SH_H", ldBankAccounts, spBankAccounts, TArgument::TypedCode),
    List(u"Name", ldIncomes, spIncomes, TArgument::TypedCode),
    List(u"Name", ldCosts, spCosts, TArgument::TypedCode),
    List(u"Name", ldCashDesks, spCashDesks, TArgument::TypedCode),
    List(u"Name", ldGoods, spGoods, TArgument::OtherParameters),
    {.LookupFields = u"Title",
     .Locate = ldExpenseCenters,
     .Picker = TPicker::ExpenseCenterLibrary,
     .Argument = TArgument::Parameters},
    Padded(List(u"Title", ldExpenseLevel1, spExpenseLevel1), 3, 3),
    Padded(List(u"Title", ldExpenseLevel2, spExpenseLevel2), 3, 3),
    Padded(List(u"Title", ldExpenseLevel3, spExpenseLevel3), 3, 0),
    Padded(List(u"Title", ldExpenseLevel4, spExpenseLevel4), 4, 4),
    List(u"Name", ldPettyCash, spPettyCash),
    List(u"FullName", ldEmployees, spEmployees),
    List(u"Name", ldAssets, spAssets),
    Groups(ldPersonGroups, spPersonGroups),
    {},
    List(u"Name", ldWorkshops, spWorkshops),
    Groups(ldWorkshopGroups, spWorkshopGroups),
    Groups(ldGoodsGroups, spGoodsGroups),
    Groups(ldEmployeeGroups, spEmployeeGroups),
    WithAll(List(u"Name", ldAllPersonals, spPersonals)),
    Groups(ldStoreGroups, spStoreGroups),
    Groups(ldCashDeskGroups, spCashDeskGroups),
    List(u"TitleCountry", ldCountries, spCountries),
    Groups(ldDistricts, spDistricts),
    Groups(ldProvinces, spProvinces),
    Groups(ldCities, spCities),
}};

} // namespace

const TEntitySelection& EntitySelection(TEntityType type)
{
    const auto ordinal = static_cast<std::size_t>(type);
    return Rows[ordinal < Rows.size() ? ordinal : 0];
}
