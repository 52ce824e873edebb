#pragma once

#include "AccountTypes.h"
#include "CodeItem.h"
#include "Frame.h"
#include "NotifyEvent.h"

#include <initializer_list>

class QMenu;
class TMenuItem;
class TSmartButton_TRV;
class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// The input line for a code of the chart of accounts: four small boxes from right to left (total, assistant,
/// detail, expense center), of which CodeItem says which are shown, a button that opens the host's pickers,
/// and the name of the account. A box that is left pads its code, shows the name and reports a code that does
/// not exist; "+" in a box picks instead of typing.
///
/// The owner sets CodeItem (and the filters), calls init(), and from then on reads and writes the codes. A
/// level without a code shows its name in grey; every getter reads it as 0.
class BASEFRAME_EXPORT TSelect_AccountCode : public TFrame
{
    Q_OBJECT
    /// The set as bits, for forms.
    Q_PROPERTY(int CodeItem READ CodeItemBits WRITE SetCodeItemBits)
    Q_PROPERTY(bool SingleForm READ SingleForm WRITE SetSingleForm)
    Q_PROPERTY(bool OnBand READ OnBand WRITE SetOnBand)
    Q_PROPERTY(bool DisableOnChange READ DisableOnChange WRITE SetDisableOnChange)

public:
    explicit TSelect_AccountCode(QWidget* owner = nullptr);
    ~TSelect_AccountCode() override;

    /// Shows the boxes of the levels in CodeItem and empties all of them. Called after CodeItem is set.
    void init();
    /// Empties the four levels and the name. Raises nothing.
    void Clear();
    /// Empties one level and runs its exit, so that what hangs on it is cleared or shown anew.
    void ClearPart(TCodeItem level);
    /// Runs the exit of every level in CodeItem: pads, checks, and shows the name anew.
    void refresh();
    /// Enables or disables the boxes and the button; with `clear` also empties them.
    void Enabled(bool enable, bool clear);

    bool IsEmpty() const;     ///< no level in CodeItem holds a code
    bool IsValid() const;     ///< the host knows the account; levels that are not chosen count as known
    int GetTotalCode() const; ///< 0 where nothing, or no number, stands in the box
    int GetAssistantCode() const;
    int GetDetailCode() const;
    int GetExpCenterCode() const;
    /// Writes a code and, unless the user is in the box, runs its exit; 0 empties the level and runs it
    /// always.
    void SetTotalCode(int code);
    /// As SetTotalCode; raises OnAssistantCodeChanged first and empties the detail level at the end.
    void SetAssistantCode(int code);
    void SetDetailCode(int code);
    void SetExpCenterCode(int code); ///< the exit runs always

    // Questions to the database about the codes in the boxes. An unknown account answers 0.
    int GetTotalDetailType() const;
    int GetTotalNatureType() const;
    int GetTotalGroupType() const;
    THCSelectGroups GetGroupType() const; ///< GroupType where no total is chosen
    TPropertiesItems GetSelectCodeProperties() const;
    int GetCurrCode() const; ///< the currency of the detail account, 1 where it has none
    /// The name of the account as far as CodeItem shows it. `found` tells whether there is one.
    QString HesabName(bool& found) const;

    /// The levels that the line shows; init() follows a change.
    TCodeItems CodeItem() const { return FCodeItem; }
    void SetCodeItem(TCodeItems levels);
    int CodeItemBits() const { return FCodeItem.Bits(); }
    void SetCodeItemBits(int bits);
    /// False: the host's picker on several levels; true: one picker per level.
    bool SingleForm() const { return FSingleForm; }
    void SetSingleForm(bool single);
    /// Whether the line stands on the dark band and its labels have the band's text colour.
    bool OnBand() const;
    void SetOnBand(bool on) const;
    bool DisableOnChange() const { return FDisableOnChange; } ///< kept for the owner; the frame ignores it
    void SetDisableOnChange(bool disable);
    TPropertiesItems SelectCodeProperties() const { return FSelectCodeProperties; }
    void SetSelectCodeProperties(TPropertiesItems properties); ///< kept for the owner
    TSelectGroups GroupTypeFilter() const { return FGroupTypeFilter; }
    void SetGroupTypeFilter(TSelectGroups groups); ///< which groups of accounts the pickers offer
    /// The kind that GetGroupType answers without a total. sgNone at first.
    THCSelectGroups GroupType() const { return FGroupType; }
    void SetGroupType(THCSelectGroups group);
    bool AllowClear() const { return FAllowClear; }
    /// Whether the user has changed a level since the last exit, so that the next one empties what is below.
    void SetAllowClear(bool allow);
    TCodeItem ActiveItem() const { return FActiveItem; } ///< the level whose box last got the focus
    void SetOnChange(TNotifyEvent handler);              ///< the same as writing the event
    /// AsistantId; the name is written as it is on purpose.
    QString getAssitanId() const { return AsistantId; }
    QString getDetailId() const { return DetailId; } ///< DetailId

    // The levels one by one, for frames that this one is part of.
    TSmartEdit_TRV* BoxOf(TCodeItem level) const; ///< never null
    int CodeOf(TCodeItem level) const;            ///< 0 where nothing, or no number, stands in the box
    /// Writes a text into a box as it is; no exit runs.
    void WriteText(TCodeItem level, const QString& text);
    /// Shows the level's name where the box is empty.
    void RestorePlaceholder(TCodeItem level) const;
    void RunExit(TCodeItem level, QObject* sender); ///< as if the user had left the box

    // The handlers of the controls, for owners that put their own in front of them.
    void TotalCode_EDTExit(QObject* sender);
    void AssistantCode_EDTExit(QObject* sender);
    void DetailCode_EDTExit(QObject* sender);
    void ExpenseCenterCode_EDTExit(QObject* sender);
    void Code_EDTKeyPress(QObject* sender, QChar& key);
    void Select_BTNClick(QObject* sender);
    void AccCodeSelect_PUMClick(QObject* sender);
    void ExpenseCenter_PUMClick(QObject* sender);

    TNotifyEvent OnChange;           ///< the exit of a level has run, or an account was picked
    TNotifyEvent OnTotalCodeChanged; ///< the total account is another one; so the two below for their levels
    TNotifyEvent OnAssistantCodeChanged;
    TNotifyEvent OnDetailCodeChanged;

    THCSelectedCode SelectCodes; ///< what the pickers answered last
    QString AsistantId;          ///< kept for the owner
    QString DetailId;            ///< kept for the owner

    TSmartEdit_TRV* TotalCode_EDT = nullptr;
    TSmartEdit_TRV* AssistantCode_EDT = nullptr;
    TSmartEdit_TRV* DetailCode_EDT = nullptr;
    TSmartEdit_TRV* ExpenseCenterCode_EDT = nullptr;
    TSmartLabel_TRV* Separator_LBL = nullptr;
    TSmartLabel_TRV* Name_LBL = nullptr;
    TSmartButton_TRV* Select_BTN = nullptr;
    QMenu* Menu_PUM = nullptr;
    TMenuItem* AccCodeSelect_PUM = nullptr;
    TMenuItem* ExpenseCenter_PUM = nullptr;

Q_SIGNALS:
    void changed(); ///< with OnChange, and so the others with theirs
    void totalCodeChanged();
    void assistantCodeChanged();
    void detailCodeChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void BindBox(TCodeItem level);
    void BindHandlers();
    void PlaceExpenseCenter();

    void Code_EDTChange(QObject* sender) const;
    void ExpenseCenterCode_EDTPropertiesChange() const;
    void Code_EDTEnter(TCodeItem level);
    void Code_EDTPaste(QObject* sender, QString& text);
    void TotalCode_EDTEditValueChange();
    void AssistantCode_EDTEditValueChange();
    void DetailCode_EDTEditValueChange();

    void WriteCode(TCodeItem level, int code);
    void ClearBelow(std::initializer_list<TCodeItem> levels);
    void Pad(TSmartEdit_TRV* box);
    void AdaptDetailBox() const;
    bool ShowName();
    void ShowTitle(const QString& title) const;
    void RefreshExpenseCenter();
    void ReportUnknown(QStringView subject, TSmartEdit_TRV* box);
    bool IsReporting(TCodeItem level) const;
    void FocusBack(TSmartEdit_TRV* box) const;
    void RaiseChange();
    void RaiseEvent(const TNotifyEvent& handler, void (TSelect_AccountCode::*signal)());

    THCSelectedCode Codes() const;
    THCSelectedCode PickOnLevels() const;
    THCSelectedCode PickOnOneLevel() const;
    void WritePicked(const THCSelectedCode& picked);
    void WritePickedLevel(TCodeItem level, int code);
    void RaiseValueChange(TSmartEdit_TRV* box);

    TCodeItems FCodeItem;
    TCodeItem FActiveItem = TCodeItem::ctTotal;
    bool FSingleForm = false;
    TPropertiesItems FSelectCodeProperties;
    bool FDisableOnChange = false;
    bool FAllowClear = false;
    TSelectGroups FGroupTypeFilter;
    THCSelectGroups FGroupType = THCSelectGroups::sgNone;

    QString accountName_;
    bool clearingBelow_ = false; ///< the owner is told once, when all levels are empty
    bool reporting_ = false;     ///< a message is open
    bool focusGoesBack_ = true;  ///< to the box of a code that does not exist
    bool advances_ = true;       ///< a box that is filled moves the focus on
};
