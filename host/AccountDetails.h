#pragma once

#include "AccountTypes.h"
#include "HostExport.h"
#include "PagedDataSet.h"

#include <QString>

/// The list of detail accounts of one kind that entry may choose from: those that are switched on, by the
/// code that boxes take for them. That is the unique code where the kind is fatUnique.
namespace AccountDetails {

HOST_EXPORT TPagedSource Source(TFloatingAccountsType kind);
HOST_EXPORT QString CodeField(TFloatingAccountsType kind);
/// How many digits boxes and lists show of a code.
HOST_EXPORT int CodeDigits(TFloatingAccountsType kind);

/// WHERE text for what the user has typed. Digits are sought at the beginning of the code, with or without
/// its leading zeros, and inside the name; other texts inside the name as a Persian reader compares them.
HOST_EXPORT QString Condition(TFloatingAccountsType kind, const QString& typed);
/// How many rows the whole list has of a code: 1 or 0.
HOST_EXPORT QString PresenceStatement(TFloatingAccountsType kind, int code);
/// How many rows of the whole list stand before a code.
HOST_EXPORT QString PlaceStatement(TFloatingAccountsType kind, int code);

} // namespace AccountDetails
