#pragma once

#include "EntityType.h"

/// The part of the product that a code or a list belongs to. Pickers take the parts named here; the code lock
/// also takes numbers of its own name space (CodeLockPart), so any int is a valid value.
enum class TSoftwarePart : int {
    spNone = 0,
    spPersonals = 101,
    spCashDesks = 102,
    spBankAccounts = 103,
    spPettyCash = 104,
    spGoods = 105,
    spStores = 106,
    spIncomes = 109,
    spCosts = 110,
    spGoodsGroups = 114,
    spExpenseCenters = 115,
    spExpenseLevel1 = 116,
    spExpenseLevel2 = 117,
    spExpenseLevel3 = 118,
    spExpenseLevel4 = 119,
    spPersonGroups = 122,
    spCashDeskGroups = 124,
    spStoreGroups = 125,
    spCountries = 128,
    spProvinces = 137,
    spCities = 138,
    spDistricts = 139,
    spWorkshops = 611,
    spWorkshopGroups = 612,
    spEmployees = 806,
    spEmployeeGroups = 815,
    spAssets = 900,
};

/// The lookup table in which LookupDBs seeks a code.
enum class LocateDBsOptions {
    ldPersonals = 0,
    ldCashDesks = 1,
    ldCosts = 2,
    ldIncomes = 3,
    ldPettyCash = 4,
    ldGoods = 5,
    ldStores = 6,
    ldReserved7 = 7,
    ldBankAccounts = 8,
    ldWorkshops = 9,
    ldReserved10 = 10,
    ldReserved11 = 11,
    ldPersonGroups = 12,
    ldExpenseCenters = 13,
    ldExpenseLevel1 = 14,
    ldExpenseLevel2 = 15,
    ldExpenseLevel3 = 16,
    ldExpenseLevel4 = 17,
    ldGoodsGroups = 18,
    ldEmployees = 19,
    ldAssets = 20,
    ldReserved21 = 21,
    ldWorkshopGroups = 22,
    ldEmployeeGroups = 23,
    ldAllPersonals = 24,
    ldStoreGroups = 25,
    ldCashDeskGroups = 26,
    ldCountries = 27,
    ldDistricts = 28,
    ldProvinces = 29,
    ldCities = 30,
};

/// Which persons a lookup of persons answers; other lookups ignore it. Frames pass the first value.
enum class PerLocateOptions { plAll = 0, plActive = 1 };
