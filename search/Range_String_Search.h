#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSmartMaskEdit_TRV;

/// Filters a report by a range of codes that are kept as texts. Where the chosen field has a fixed length,
/// both edits take digits only and complete what is typed to that length when they are left, so that codes
/// are in the order of their numbers. Values reach the criterion when an edit is left.
///
/// The owner fills TarvaSearch_Range_String.SearchItems and calls init().
class BASEFRAME_EXPORT TRange_String_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TRange_String_Search_Frame(QWidget* owner = nullptr);
    ~TRange_String_Search_Frame() override;

    /// Fills the combo box and starts empty and switched off; does nothing where there are no items.
    void init();
    /// Fills the frame from values that were kept.
    void initControl(bool active, int itemIndex, const QString& fromCode, const QString& toCode);
    /// The click on the frame itself.
    void FrameClick() const;
    /// Does nothing; forms of owners refer to it.
    void Reverst_String_CHKClick();

    TSmartLabel_TRV* RangeString_Cap_LBL = nullptr;
    TSmartCheckBox_TRV* RangeString_CHK = nullptr;
    TSmartComboBox_TRV* RangeString_CMB = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSmartMaskEdit_TRV* RangeString_From_EDT = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSmartMaskEdit_TRV* RangeString_To_EDT = nullptr;
    TSmartCheckBox_TRV* RangeString_Reverst_CHK = nullptr;
    TSmartLabel_TRV* RangeString_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_String = nullptr;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void RangeString_CHKClick();
    void RangeString_CMBPropertiesChange();
    void RangeString_From_EDTExit();
    void RangeString_To_EDTExit();
    void RangeString_Reverst_CHKClick() const;
    void TarvaSearch_Range_StringChangeItemIndex();

    int CodeLength() const;
    void Enable(bool enabled);
    static void Complete(TSmartMaskEdit_TRV& edit, int length);

    TFilterLine line_;
};
