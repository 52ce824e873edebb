#include "Detail_Button_UNT.h"

#include "ADOQuery.h"
#include "SmartButton_TRV.h"
#include "ui_Detail_Button_UNT.h"

TDetial_Grid_Frame::TDetial_Grid_Frame(QWidget* owner) : TFrame(owner)
{
    Ui::TDetial_Grid_Frame form;
    form.setupUi(this);
    DeleteRecord_BTN = form.DeleteRecord_BTN;
    EditRecord_BTN = form.EditRecord_BTN;
    NewRecord_BTN = form.NewRecord_BTN;
    FormReady();
}

TDetial_Grid_Frame::~TDetial_Grid_Frame() = default;

void TDetial_Grid_Frame::SetEnableButton(TADOQuery* query) const
{
    const bool hasRecords = query != nullptr && query->Active() && query->RecordCount() > 0;
    EditRecord_BTN->setEnabled(hasRecords);
    DeleteRecord_BTN->setEnabled(hasRecords);
}
