#pragma once

#include "AccountTypes.h"
#include "PackageExport.h"

#include <QString>

/// The statements on the unique codes of detail accounts. Numbers are whole and stand in them bare.
namespace DetailUniqueCode {

BASEFRAME_EXPORT QString NextFree(TFloatingAccountsType kind); ///< the next free number of the kind
BASEFRAME_EXPORT QString Stored(TFloatingAccountsType kind, int detailCode); ///< the number of an account
/// The accounts that have a unique code, of all kinds.
BASEFRAME_EXPORT QString AccountsOf(int uniqueCode);
/// Writes the number of an account that is there.
BASEFRAME_EXPORT QString Save(TFloatingAccountsType kind, int detailCode, int uniqueCode);
/// A row for every use of a detail account's unique code in posted data and in settings.
BASEFRAME_EXPORT QString Uses(TFloatingAccountsType kind, int detailCode);

} // namespace DetailUniqueCode

/// The hold of a frame on one number of the host's code lock.
class BASEFRAME_EXPORT TUniqueCodeHold
{
public:
    /// True when another user holds the number.
    static bool IsHeldByAnother(TFloatingAccountsType kind, const QString& code);

    /// Takes a number; true when that has happened. It is released by Release() whatever the answer was. One
    /// that is held already is to be released first.
    bool Take(TFloatingAccountsType kind, const QString& code);
    /// Makes a number the one that Release() releases, without taking it.
    void Adopt(TFloatingAccountsType kind, int code);
    /// Does nothing where there is no number, or it is released already.
    void Release();
    bool IsTaken() const { return taken_; } ///< Take has got the number, and it is not released

private:
    void Remember(TFloatingAccountsType kind, int code);

    TFloatingAccountsType kind_ = TFloatingAccountsType::fatNone;
    int code_ = 0;
    bool releasable_ = false;
    bool taken_ = false;
};
