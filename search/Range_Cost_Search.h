#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSmartEdit_TRV;

/// Filters a report by a range of amounts.
///
/// The owner fills TarvaSearch_Range_Cost.SearchItems and calls init().
class BASEFRAME_EXPORT TRange_Cost_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TRange_Cost_Search_Frame(QWidget* owner = nullptr);
    ~TRange_Cost_Search_Frame() override;

    /// Fills the combo box and starts empty and switched off; does nothing where there are no items.
    void init();
    /// Empties the line. The check box ends unticked and the criterion switched on; owners rely on it.
    void Clear();

    TSmartLabel_TRV* RangeCost_Cap_LBL = nullptr;
    TSmartCheckBox_TRV* RangeCost_CHK = nullptr;
    TSmartComboBox_TRV* RangeCost_CMB = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSmartEdit_TRV* RangeCost_From_EDT = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSmartEdit_TRV* RangeCost_To_EDT = nullptr;
    TSmartCheckBox_TRV* RangeCost_Reverst_CHK = nullptr;
    TSmartLabel_TRV* RangeCost_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_Cost = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void RangeCost_CHKClick();
    void RangeCost_CMBPropertiesChange() const;
    void RangeCost_From_EDTEditValueChange() const;
    void RangeCost_To_EDTEditValueChange() const;
    void RangeCost_Reverst_CHKClick() const;
    void TarvaSearch_Range_CostChangeItemIndex();
    void Enable(bool enabled);
    void SetBounds(const QVariant& from, const QVariant& to) const;

    TFilterLine line_;
};
