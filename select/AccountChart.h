#pragma once

#include "AccountTypes.h"
#include "CodeItem.h"
#include "PackageExport.h"

#include <optional>
#include <QString>

class IAccounting;
class IDataModule;
class TField;

/// The chart of accounts as the account code selector asks for it: statements on the data module's shared
/// query, and the rules between the levels. Codes go into the statements as decimal digits and as nothing
/// else. An account that does not exist answers 0 or the empty text.
class BASEFRAME_EXPORT TAccountChart
{
public:
    /// The services are kept, not owned.
    TAccountChart(IDataModule& dataModule, IAccounting& accounting);

    // A negative code throws std::invalid_argument before anything is sent.
    int GetTotalDetailType(int total) const; ///< what AccTotals.DetailType stores
    int GetTotalNatureType(int total) const; ///< what AccTotals.Nature stores
    int GetTotalGroupType(int total) const;  ///< what AccGroups.Type stores for the account
    /// The kind of the group of a total account; `fallback` where `total` is 0.
    THCSelectGroups GetGroupType(int total, THCSelectGroups fallback) const;
    TPropertiesItems GetSelectCodeProperties(int total) const; ///< what AccTotals.Properties stores
    /// The currency of a detail account; 1, the base currency, where it has none or `code` has no detail.
    int GetCurrCode(const THCSelectedCode& code) const;
    /// The title of an expense center; empty, without asking, where `code` is not made of ASCII digits only.
    QString GetExpCenterTitle(const QString& code) const;
    /// The name of the account as far as the levels show it; a single level without a code counts as found.
    QString HesabName(TCodeItems levels, const THCSelectedCode& code, bool& found) const;

    /// Which name a selector with these levels asks for.
    static THesabType NameKind(TCodeItems levels);
    /// The kind of the detail accounts under an assistant of a total with this DetailType.
    static int DetailKind(int detailType, int assistant);
    /// How many digits a detail account has under a total with this DetailType.
    static int DetailLength(int detailType);
    /// Zero reads as no code: the empty text.
    static QString CodeText(int code);

private:
    int AskNumber(const QString& statement) const;
    TField* Ask(const QString& statement) const;

    IDataModule& dataModule_;
    IAccounting& accounting_;
};
