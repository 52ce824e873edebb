#include "SaveAutoVouchersFrame_UNT.h"

#include "AutoVoucherLibrary.h"
#include "HostServices.h"
#include "NoticeBar.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "ui_SaveAutoVouchersFrame_UNT.h"

#include <QPointer>

TSaveAutoVouchers_FRME::TSaveAutoVouchers_FRME(QWidget* owner) : TFrame(owner)
{
    Ui::TSaveAutoVouchers_FRME form;
    form.setupUi(this);
    SaveVoucherNotification_PNL = form.SaveVoucherNotification_PNL;
    SaveVoucherNotifi_PNL = form.SaveVoucherNotifi_PNL;
    RefreshVoucherNotifiy_LBL = form.RefreshVoucherNotifiy_LBL;
    SaveVoucher_BTN = form.SaveVoucher_BTN;
    Image1 = form.Image1;
    AccountConflictsList_BTN = form.AccountConflictsList_BTN;
    AccountConflictsList_BTN->hide();
    bar_ =
        new TNoticeBar(SaveVoucherNotification_PNL, SaveVoucherNotifi_PNL, RefreshVoucherNotifiy_LBL, Image1);
    SaveVoucher_BTN->OnClick = [this](QObject* sender) { SaveVoucher_BTNClick(sender); };
    // Shown with its form first, a bar that is not wanted would flash.
    hide();
    FormReady();
}

TSaveAutoVouchers_FRME::~TSaveAutoVouchers_FRME() = default;

void TSaveAutoVouchers_FRME::Loaded()
{
    TFrame::Loaded();
    bar_->Animate();
    if (FCheckVisibleOnLoad)
        CheckConflicts();
    else
        hide();
}

void TSaveAutoVouchers_FRME::CheckConflicts()
{
    setVisible(Host().Accounting.VoucherConflicts());
}

void TSaveAutoVouchers_FRME::SaveVoucher_BTNClick(QObject* /*sender*/)
{
    // While the library tells the user something the owner may go away with the bar.
    const QPointer<TSaveAutoVouchers_FRME> alive(this);
    Host().Libraries.Run_DLL_FuncReturnInt(QString::fromUtf16(AutoVoucherLibrary),
                                           QString::fromUtf16(AutoVoucherFunction));
    if (alive)
        Host().Accounting.VoucherConflictThread_Start(this);
}
