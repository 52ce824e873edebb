#pragma once

#include "AccountTypes.h"

#include <optional>
#include <QString>

class TADOConnection;

/// The codes of an account as given, 0 where a level is not.
struct TAccountCodes
{
    int Total = 0;
    int Assistant = 0;
    int Detail = 0;
};

/// The names of an account's levels, empty where a level is not given.
struct TAccountNames
{
    QString Total;
    QString Assistant;
    QString Detail;

    QString Of(THesabType kind) const;
};

/// Reads the names of an account; none where a given level does not exist or does not belong to the ones
/// above it. One statement, and one more where there is a detail account.
std::optional<TAccountNames> ReadAccountNames(TADOConnection& connection, const TAccountCodes& codes);
