#pragma once

#include "CodeItem.h"
#include "FilterLine.h"
#include "Frame.h"

class TSelect_AccountCode;
class TSmartCheckBox_TRV;
class TSmartLabel_TRV;
class TTarvaSearch;

/// A filter by a range of account codes: a check box that turns it on, the code to begin with and the code to
/// end with. Each level has a criterion of its own; an empty level begins with 0 and ends with the largest
/// code that its box holds.
///
/// The owner sets CodeItems, calls init() and gathers the criteria with those of its other frames.
class BASEFRAME_EXPORT TRange_AccCodes_Search_Frame : public TFrame
{
    Q_OBJECT
    /// The set as bits, for forms.
    Q_PROPERTY(int CodeItems READ CodeItemBits WRITE SetCodeItemBits)

public:
    explicit TRange_AccCodes_Search_Frame(QWidget* owner = nullptr);
    ~TRange_AccCodes_Search_Frame() override;

    /// Shows the levels in CodeItems, empty and switched off, and hides the "not" box.
    void init();
    /// Empties both codes and opens all bounds.
    void Clear();

    /// The levels that the filter shows; init() follows a change.
    TCodeItems CodeItems() const { return FCodeItems; }
    void SetCodeItems(TCodeItems levels);
    int CodeItemBits() const { return FCodeItems.Bits(); }
    void SetCodeItemBits(int bits);

    // The bounds of the expense center, for owners that ask the database themselves.
    int GetExpenseCenterFromValue() const; ///< 0 while the filter is off
    /// While the filter is off one more than the largest code: 10000 for four digits.
    int GetExpenseCenterToValue() const;

    TSmartCheckBox_TRV* AccCodes_CHK = nullptr;
    TSmartLabel_TRV* AccCodes_Cap_LBL = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSelect_AccountCode* Select_AccountCode1 = nullptr; ///< from
    TSelect_AccountCode* Select_AccountCode2 = nullptr; ///< to
    TSmartCheckBox_TRV* AccCodes_Reverst_CHK = nullptr;
    TSmartLabel_TRV* AccCodes_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_Total = nullptr;
    TTarvaSearch* TarvaSearch_Range_Assisstant = nullptr;
    TTarvaSearch* TarvaSearch_Range_Detail = nullptr;
    TTarvaSearch* TarvaSearch_Range_ExpCenter = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BindSelector(TSelect_AccountCode* selector);

    void AccCodes_CHKClick();
    void AccCodes_Reverst_CHKClick();
    void LevelExit(TSelect_AccountCode* selector, TCodeItem level, QObject* sender);
    void AccCodeSelect_PUMClick(TSelect_AccountCode* selector, QObject* sender);
    void ExpenseCenter_PUMClick(TSelect_AccountCode* selector, QObject* sender);

    TTarvaSearch* CriterionOf(TCodeItem level) const;
    void StoreBound(const TSelect_AccountCode* selector, TCodeItem level) const;

    TFilterLine line_;
    TCodeItems FCodeItems;
};
