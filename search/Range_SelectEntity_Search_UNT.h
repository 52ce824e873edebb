#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSelect_Entity_Frame;

/// Filters a report by a range of entity codes. The combo box chooses the kind of entity: each item of
/// TarvaSearch_Range_SelectEntity carries the ordinal of its TEntityType as its item value.
///
/// The owner fills the items and calls init(). A bound of 0 is none.
class BASEFRAME_EXPORT TRange_SelectEntity_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TRange_SelectEntity_Search_Frame(QWidget* owner = nullptr);
    ~TRange_SelectEntity_Search_Frame() override;

    /// Fills the combo box and starts empty and switched off; does nothing where there are no items.
    void init();
    /// The state of the check box.
    bool GetActive() const;
    void SetActive(bool active) const;
    /// The criterion's bounds as 64-bit integers; 0 where there is none.
    QVariant GetSearchCodeValue1() const;
    QVariant GetSearchCodeValue2() const;
    /// Shows a code in the from or to box as if it had been typed and left: it is validated, and the
    /// criterion gets what the box then holds.
    void SetSearchValue1(const QVariant& value);
    void SetSearchValue2(const QVariant& value);

    TSmartLabel_TRV* SelectEntity_Cap_LBL = nullptr;
    TSmartCheckBox_TRV* SelectEntity_CHK = nullptr;
    TSmartComboBox_TRV* SelectEntity_CMB = nullptr;
    TSmartLabel_TRV* Label_TRVDEVX1 = nullptr;
    TSelect_Entity_Frame* Select_Entity_Frame1 = nullptr; ///< from
    TSmartLabel_TRV* Label_TRVDEVX2 = nullptr;
    TSelect_Entity_Frame* Select_Entity_Frame2 = nullptr; ///< to
    TSmartCheckBox_TRV* SelectEntity_Reverst_CHK = nullptr;
    TSmartLabel_TRV* SelectEntity_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Range_SelectEntity = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// A box and the bound that follows it.
    struct TBound
    {
        TSelect_Entity_Frame* Selector;
        void (TTarvaSearch::*Set)(const QVariant& value);
    };

    void BindHandlers();
    void BindBound(const TBound& bound);

    void SelectEntity_CHKClick();
    void SelectEntity_CMBChange();
    void SelectEntity_Reverst_CHKClick() const;
    void TarvaSearch_Range_SelectEntityChangeItemIndex();
    void Code_EDTExit(const TBound& bound, QObject* sender);
    void Code_EDTPropertiesButtonClick(const TBound& bound, QObject* sender);

    TBound From() const { return {Select_Entity_Frame1, &TTarvaSearch::SetValue1}; }
    TBound To() const { return {Select_Entity_Frame2, &TTarvaSearch::SetValue2}; }
    void Enable(bool enabled) const;
    void SetBounds(const QVariant& from, const QVariant& to) const;

    TFilterLine line_;
};
