#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSmartDateEdit_TRV;
class TSmartFlowPanel_TRV;
class TSmartTime_TRV;

/// Filters a report by a range of days, or of moments where the chosen field has a time of day. Dates are
/// typed in the Persian calendar; the criterion gets them in the Gregorian one, as texts. The bounds are not
/// compared with each other.
///
/// The owner fills TarvaSearch_Range_Date.SearchItems and calls init().
class BASEFRAME_EXPORT TRange_Date_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TRange_Date_Search_Frame(QWidget* owner = nullptr);
    ~TRange_Date_Search_Frame() override;

    /// Fills the combo box and starts empty and switched off; does nothing where there are no items.
    void init();
    /// "2024/03/20", or "2024/03/20-08:00" for a field with a time of day.
    QString GetFromDate() const;
    /// "2024/03/20", or "23:59 - 2024/03/20" for a field with a time of day. The order differs from that of
    /// GetFromDate; that is intended.
    QString GetToDate() const;
    /// Shows a date and hands it to the criterion at once; an empty text empties the edit.
    void SetFromDate(const QString& date) const;
    void SetToDate(const QString& date) const;

    TSmartFlowPanel_TRV* Range_Date_Search_FPNL = nullptr;
    TSmartCheckBox_TRV* RangeDate_CHK = nullptr;
    TSmartLabel_TRV* RangeDate_Cap_LBL = nullptr;
    TSmartComboBox_TRV* RangeDate_CMB = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSmartDateEdit_TRV* RangeDate_From_EDT = nullptr;
    TSmartTime_TRV* RangeTime_From_EDT = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSmartDateEdit_TRV* RangeDate_To_EDT = nullptr;
    TSmartTime_TRV* RangeTime_To_EDT = nullptr;
    TSmartCheckBox_TRV* RangeDate_Reverst_CHK = nullptr;
    TSmartLabel_TRV* RangeDate_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_Date = nullptr;

private:
    void BindHandlers();

    void RangeDate_CHKClick();
    void RangeDate_CMBPropertiesChange();
    void RangeDate_From_EDTEditValueChange();
    void RangeDate_To_EDTEditValueChange();
    void RangeDate_Reverst_CHKClick() const;
    void TarvaSearch_Range_DateChangeItemIndex();

    bool HasTime() const;
    void Enable(bool enabled);
    void ShowTimes(bool shown) const;
    void FocusFirst();
    QString Bound(const TSmartDateEdit_TRV& date, const TSmartTime_TRV& time) const;
    void WriteValues();
    static void SetDate(TSmartDateEdit_TRV& edit, const QString& date);

    TFilterLine line_;
};
