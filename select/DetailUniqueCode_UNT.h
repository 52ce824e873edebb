#pragma once

#include "DetailUniqueCode.h"
#include "Frame.h"

#include <functional>

class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// Called before a number that is not valid is reported, so that the owner can bring the frame to view.
using TOnInvalideProc = std::function<void()>;

/// The unique code of a detail account: eight digits that name the account across all kinds. Proposes the
/// next free number for a new account, loads the one of an existing account, and holds the number that it
/// shows in the host's code lock, so that two users cannot take the same one.
///
/// The owner sets DetailType, calls InitUniqueCode or FillUniqueCode, and when the user saves, IsValidated
/// and, after the account itself has been saved, SaveDetailUniqueCode. RemoveFromCodeLock or the frame's
/// destruction releases the number.
class BASEFRAME_EXPORT TDetailUniqueCode_FRME : public TFrame
{
    Q_OBJECT

public:
    explicit TDetailUniqueCode_FRME(QWidget* owner = nullptr);
    ~TDetailUniqueCode_FRME() override;

    /// A new account: shows the next free number of DetailType and takes it. Where all proposals are gone
    /// before they can be taken, says so and shows none (0).
    void InitUniqueCode();
    /// An existing account: shows its stored number (0 where it has none) and takes it. The edit is disabled
    /// where the number is in use in posted data.
    void FillUniqueCode(int detailCode);
    /// The number in the edit; 0 where there is none.
    int GetUniqueCodeValue() const;
    /// Shows a number as the account's own; below 1 shows 1. Takes no lock: the owner hands the number over
    /// together with the lock that it may hold on it.
    void SetUniqueCodeValue(int code);
    /// Whether the number may be saved. Otherwise calls OnInvalid, says what is wrong, and puts the focus
    /// into the edit.
    bool IsValidated(const TOnInvalideProc& OnInvalid = {});
    /// Writes the number to the account of DetailType and `detailCode`, which must be there already.
    void SaveDetailUniqueCode(int detailCode) const;
    /// Releases the number; does nothing where that has been done.
    void RemoveFromCodeLock();

    /// The kind of the detail account; to be set before a number is taken.
    TFloatingAccountsType DetailType = TFloatingAccountsType::fatNone;

    TSmartLabel_TRV* Label_TRVDEVX7 = nullptr;
    TSmartEdit_TRV* UniqueCode_EDT = nullptr;

private:
    void BindHandlers();
    void UniqueCode_EDTEditValueChange();
    void UniqueCode_EDTExit() const;

    bool TakeProposal();
    bool MoveLock();
    void TellInUse();
    bool Refuse(const TOnInvalideProc& OnInvalid, const std::function<void()>& report);

    int DetailPriUniqueCode = 0; ///< what the account had when it was loaded, 0 for a new one
    int fUDetailCode = 0;        ///< the number that is held

    TUniqueCodeHold hold_;
    bool disabledByUse_ = false;
};

/// Whether a detail account's unique code is used in posted data, upon which it must not change;
/// `showMessage` has the user told so.
BASEFRAME_EXPORT bool UniqueDetailCodeInUse(TFloatingAccountsType kind, int code, bool showMessage);
