#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSmartEdit_TRV;

/// Filters a report by a range of whole numbers. An upper bound of 0 means none.
///
/// The owner fills TarvaSearch_Range_Digit.SearchItems and calls init().
class BASEFRAME_EXPORT TRange_Digit_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TRange_Digit_Search_Frame(QWidget* owner = nullptr);
    ~TRange_Digit_Search_Frame() override;

    /// Fills the combo box and starts switched off; does nothing where there are no items.
    void init();
    /// The state of the check box.
    bool GetActive() const;
    void SetActive(bool active) const;
    /// The criterion's bounds as 64-bit integers; 0 where there is none.
    QVariant GetSearchValue1() const;
    QVariant GetSearchValue2() const;
    /// Shows a value in the from or to edit and hands it to the criterion.
    void SetSearchValue1(const QVariant& value) const;
    void SetSearchValue2(const QVariant& value) const;
    /// The click on the frame itself.
    void FrameClick() const;
    /// Does nothing; forms of owners refer to it.
    void Reverst_Digit_CHKClick();

    TSmartLabel_TRV* RangeDigit_Cap_LBL = nullptr;
    TSmartCheckBox_TRV* RangeDigit_CHK = nullptr;
    TSmartComboBox_TRV* RangeDigit_CMB = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSmartEdit_TRV* RangeDigit_From_EDT = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSmartEdit_TRV* RangeDigit_To_EDT = nullptr;
    TSmartCheckBox_TRV* RangeDigit_Reverst_CHK = nullptr;
    TSmartLabel_TRV* RangeDigit_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_Digit = nullptr;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void RangeDigit_CHKClick();
    void RangeDigit_CMBPropertiesChange() const;
    void RangeDigit_From_EDTEditValueChange() const;
    void RangeDigit_To_EDTEditValueChange() const;
    void RangeDigit_Reverst_CHKClick() const;
    void TarvaSearch_Range_DigitChangeItemIndex();
    void Enable(bool enabled);

    TFilterLine line_;
};
