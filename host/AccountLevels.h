#pragma once

#include "AccountTypes.h"
#include "HostExport.h"

#include <optional>
#include <QString>

/// The rules that hold between the levels of the chart of accounts.
namespace AccountLevels {

/// Digits of a code of each level, as boxes and lists show it.
constexpr int TotalDigits = 3;
constexpr int AssistantDigits = 3;
constexpr int DetailDigits = 6;
constexpr int UniqueDigits = 8;

/// The code that a decimal text stands for; 0 for an empty text, none for a text that cannot be a code: other
/// characters than digits (of any script), the value 0, more than an int holds.
HOST_EXPORT std::optional<int> CodeOf(const QString& text);

/// The kind of detail accounts that stand under an assistant account of a total account with this DetailType.
/// The bit that makes a detail account mandatory does not count; `assistant` is 0 where none is chosen.
HOST_EXPORT TFloatingAccountsType DetailKind(int detailType, int assistant);

/// The ordinals of the set between commas.
HOST_EXPORT QString GroupsText(TSelectGroups groups);

} // namespace AccountLevels
