#include "GetVoucher_UNT.h"

#include "ui_GetVoucher_UNT.h"

TGetVoucher_FRM::TGetVoucher_FRM(QWidget* owner) : TFrame(owner)
{
    Ui::TGetVoucher_FRM form;
    form.setupUi(this);
    FormReady();
}

TGetVoucher_FRM::~TGetVoucher_FRM() = default;
