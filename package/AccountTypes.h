#pragma once

#include "EntityTypes.h"

#include <QFlags>
#include <QtGlobal>

/// The kind of a group of accounts; the ordinal is what AccGroups.Type stores.
enum class THCSelectGroups : quint8 {
    sgNone = 0,
    sgAssets = 1,
    sgLiabilities = 2,
    sgEquity = 3,
    sgIncomes = 4,
    sgCosts = 5,
    sgCostOfSales = 6,
    sgMemorandum = 7, ///< off the balance sheet
};

/// A set of group kinds, one bit per ordinal; the empty set lets every group through.
class TSelectGroups
{
public:
    constexpr TSelectGroups() = default;
    constexpr explicit TSelectGroups(quint32 bits) : bits_(bits) {} ///< one bit per ordinal
    /// Adds a kind; returns the set.
    constexpr TSelectGroups& Include(THCSelectGroups kind)
    {
        bits_ |= 1U << static_cast<unsigned>(kind);
        return *this;
    }
    /// Takes a kind out; returns the set.
    constexpr TSelectGroups& Exclude(THCSelectGroups kind)
    {
        bits_ &= ~(1U << static_cast<unsigned>(kind));
        return *this;
    }
    /// Whether the kind itself is in the set.
    constexpr bool Contains(THCSelectGroups kind) const
    {
        return (bits_ & 1U << static_cast<unsigned>(kind)) != 0;
    }
    constexpr bool IsEmpty() const { return bits_ == 0; } ///< lets every group through
    constexpr quint32 Bits() const { return bits_; }      ///< one bit per ordinal
    friend constexpr bool operator==(TSelectGroups first, TSelectGroups second) = default;

private:
    quint32 bits_ = 0;
};

/// The codes that the multi-level account picker returns; 0 for a level that was not chosen. A total of 0
/// means that the user cancelled.
struct THCSelectedCode
{
    int Total = 0;     ///< of the total account
    int Assistant = 0; ///< of the assistant account
    int Detail = 0;    ///< of the detail account
};

/// A property of a total account; a set of them is what AccTotals.Properties stores.
enum class TPropertiesItem : quint32 {
    piCurrency = 1,
    piQuantity = 2,
    piExpenseCenter = 4,
    piFollowUp = 8,
    piControlNature = 16,
};
Q_DECLARE_FLAGS(TPropertiesItems, TPropertiesItem)
Q_DECLARE_OPERATORS_FOR_FLAGS(TPropertiesItems)

/// On which side an account's balance belongs; the ordinal is what AccTotals.Nature stores.
enum class TAccountNatureType { antNone = 0, antDebtor = 1, antCreditor = 2 };

/// The kind of a detail account; the ordinal is what AccDetails.[Type] and AccTotals.DetailType store.
enum class TFloatingAccountsType {
    fatNone = 0,
    fatPersonals = 1,
    fatBankAccounts = 2,
    fatIncomes = 3,
    fatCosts = 4,
    fatIncomesAndCosts = 5, ///< of a total account: assistant 1 has details of kind 3, the others of kind 4
    fatCashDesks = 6,
    fatPettyCash = 7,
    fatGoods = 8,
    fatAssets = 9,
    fatUnique = 10, ///< of a total account: its details are unique codes of eight digits
};

/// Which name GetHesabName answers.
enum class THesabType {
    htNone = 0,
    htTotal = 1,
    htAssistant = 2,
    htDetail = 3,
    htExpenseCenter = 4,
    htFull = 5, ///< the names of all given levels, joined
};

/// What is done with the hold on a code.
enum class TOperationType { otLock = 0, otRefresh = 1, otUnlock = 2 };

/// The first number of the code lock's own name space; the kind of the detail account is added to it.
constexpr int CodeLockNameSpace = 1270000;

/// The name space in which unique codes of a kind of detail account are locked.
constexpr TSoftwarePart CodeLockPart(TFloatingAccountsType kind)
{
    return static_cast<TSoftwarePart>(CodeLockNameSpace + static_cast<int>(kind));
}
