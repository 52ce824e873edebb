#pragma once

#include "Frame.h"
#include "TarvaSearchManager.h"

#include <functional>
#include <QPointer>

class TComponentRegistry;
class TSmartCheckBox_TRV;
class TSmartComboBox_TRV;
class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// An owner's callback that picks the found row.
using Selection_Proc = std::function<void()>;

/// The one-line search bar of list forms: the user picks a field, types a value, and the list is filtered 400
/// ms after the last keystroke, or at once on Enter. The value is typed into one of three edits, by the kind
/// of the item in force; the "not" box turns the condition round.
///
/// The owner fills TarvaSearch_General.SearchItems, sets Refrenc_SearchManager and doselection, and calls
/// init().
class BASEFRAME_EXPORT TGeneral_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    /// Messages that the frame posts to itself; each runs the delayed filtering of its edit.
    enum TMessage { EditChangeMessage = 9035, CostChangeMessage = 9036, DigitChangeMessage = 9037 };

    explicit TGeneral_Search_Frame(QWidget* owner = nullptr);
    ~TGeneral_Search_Frame() override;

    /// Fills the combo box from the criterion's items, shows the right edit and switches the criterion on.
    /// Without items the criterion stays off.
    void init();
    /// Empties the condition and the edits; the criterion ends switched on.
    void Clear();
    /// Enables or disables the "not" box together with its label.
    void ReverstSearchEnabled(bool enabled) const;
    /// Enter has been pressed: the next filtering does not wait, and is followed by doselection.
    void SetRet_press(bool pressed);
    void SetFilter_is_done(bool done);
    /// False from a keystroke until its value has reached the criterion.
    bool Filter_is_done() const { return FFilter_is_done; }

    /// Called after Enter has filtered and the manager's data set has a row. May destroy the frame.
    Selection_Proc doselection;
    /// The owner's manager; the frame only asks it whether its data set is empty. Not owned.
    QPointer<TTarvaSearchManager> Refrenc_SearchManager;

    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSmartComboBox_TRV* Search_CMB = nullptr;
    QWidget* Panel1 = nullptr;
    TSmartEdit_TRV* Search_EDT = nullptr;
    TSmartEdit_TRV* SearchCost_EDT = nullptr;
    TSmartEdit_TRV* SearchDigit_EDT = nullptr;
    TSmartCheckBox_TRV* Search_Reverst_CHK = nullptr;
    TSmartLabel_TRV* Search_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_General = nullptr;

protected:
    void customEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void Search_CMBPropertiesChange();
    void EditChanged(TMessage message);
    void EditKeyPress(TMessage message, QChar& key);
    void Search_EDTKeyDown(quint16& key);
    void Search_Reverst_CHKClick(const QObject* sender) const;
    void TarvaSearch_GeneralChange();
    void TarvaSearch_GeneralChangeItemIndex();

    void ShowEdit(TSmartEdit_TRV* shown);
    void ResetEdit(TSmartEdit_TRV* edit, const TSearchItem& item);
    /// What was typed before the edits were emptied must not reach the criterion any more.
    void ForgetKeystrokes();
    void ShowValue(TSmartEdit_TRV* edit, const QString& text);

    void DelayedFiltering(TMessage message);
    void WaitForPause();
    void Apply(TMessage message);
    void ApplyText();
    void ApplyNumber(const TSmartEdit_TRV& edit, const QString& valueOfZero);
    bool FoundRows() const;
    TSmartEdit_TRV* EditOf(TMessage message) const;

    bool invalid_Data = false;
    bool InProc = false;
    quint32 StartTick = 0;
    bool FRet_press = false;
    bool FFilter_is_done = false;
    bool SettPrimValue = false;
    bool IndexIsChanged = false;
    int CaretPos = 0;

    TMessage message_ = EditChangeMessage; ///< the last one that came
    bool waiting_ = false;
};

/// Offers the package's one designable frame on the palette page "TarvaFrames".
BASEFRAME_EXPORT void Register(TComponentRegistry& registry);
