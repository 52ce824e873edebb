#pragma once

#include <QMetaType>

/// The kinds of entity that a selector works on. The ordinals are the contract; data and forms store them.
enum class TEntityType {
    etNone = 0, ///< no kind: no lookup and no picker
    etStores = 1,
    etPersonals = 2,
    etBankAccounts = 3, ///< the one kind whose lookup answers three fields: name, branch, account number
    etIncomes = 4,
    etCosts = 5,
    etCashDesks = 6,
    etGoods = 7,
    etExpenseCenters = 8, ///< picked through the library ExpenseCenter_TRV
    etExpenseLevel1 = 9,  ///< codes of three digits
    etExpenseLevel2 = 10, ///< codes of three digits
    etExpenseLevel3 = 11, ///< codes of three digits
    etExpenseLevel4 = 12, ///< codes of four digits
    etPettyCash = 13,
    etEmployees = 14,
    etAssets = 15,
    etPersonGroups = 16,
    etReserved = 17, ///< no lookup and no picker
    etWorkshops = 18,
    etWorkshopGroups = 19,
    etGoodsGroups = 20,
    etEmployeeGroups = 21,
    etAllPersonals = 22, ///< persons with the ones that are switched off
    etStoreGroups = 23,
    etCashDeskGroups = 24,
    etCountries = 25,
    etDistricts = 26,
    etProvinces = 27,
    etCities = 28,
};
constexpr int EntityTypeCount = 29;

Q_DECLARE_METATYPE(TEntityType)
