#pragma once

#include "FilterLine.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSelect_Entity_Frame;

/// Filters a report by one entity, whose code the user types or picks. The combo box chooses the kind of
/// entity: each item of TarvaSearch_SelectEntityCMB carries the ordinal of its TEntityType as its item value.
///
/// The owner fills the items of TarvaSearch_SelectEntityCMB, gives TarvaSearch_SelectEntityEDT the fields
/// that the code is sought in, item by item, and calls init().
class BASEFRAME_EXPORT TSelectEntity_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TSelectEntity_Search_Frame(QWidget* owner = nullptr);
    ~TSelectEntity_Search_Frame() override;

    /// Fills the combo box and starts empty and switched off; does nothing where there are no items.
    void init();

    TSmartLabel_TRV* SelectEntity_Cap_LBL = nullptr;
    TSmartCheckBox_TRV* SelectEntity_CHK = nullptr;
    TSmartComboBox_TRV* SelectEntity_CMB = nullptr;
    TSelect_Entity_Frame* TSelect_Entity_Frame1 = nullptr;
    TSmartCheckBox_TRV* SelectEntity_Reverst_CHK = nullptr;
    TSmartLabel_TRV* SelectEntity_Reverst_LBL = nullptr;
    /// The kind of entity: follows the combo box and the check box.
    TTarvaSearch* TarvaSearch_SelectEntityCMB = nullptr;
    /// The code, as text, and whether it is to be left out.
    TTarvaSearch* TarvaSearch_SelectEntityEDT = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void SelectEntity_CHKClick();
    void SelectEntity_CMBPropertiesChange() const;
    void SelectEntity_Reverst_CHKClick() const;
    void TSelect_Entity_Frame1Code_EDTExit(QObject* sender);
    void TSelect_Entity_Frame1Code_EDTPropertiesButtonClick(QObject* sender);

    void Enable(bool enabled) const;
    void TakeCode() const;

    TFilterLine line_;
};
