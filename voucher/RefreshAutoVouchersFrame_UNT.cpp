#include "RefreshAutoVouchersFrame_UNT.h"

#include "HostServices.h"
#include "NoticeBar.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "ui_RefreshAutoVouchersFrame_UNT.h"

#include <QPointer>

TRefreshAutoVouchers_FRME::TRefreshAutoVouchers_FRME(QWidget* owner) : TFrame(owner)
{
    Ui::TRefreshAutoVouchers_FRME form;
    form.setupUi(this);
    RefreshVoucherNotification_PNL = form.RefreshVoucherNotification_PNL;
    RefreshVoucherNotifi_PNL = form.RefreshVoucherNotifi_PNL;
    RefreshVoucherNotifiy_LBL = form.RefreshVoucherNotifiy_LBL;
    RefreshVoucher_BTN = form.RefreshVoucher_BTN;
    Image1 = form.Image1;
    bar_ = new TNoticeBar(RefreshVoucherNotification_PNL, RefreshVoucherNotifi_PNL, RefreshVoucherNotifiy_LBL,
                          Image1);
    RefreshVoucher_BTN->OnClick = [this](QObject* sender) { RefreshVoucher_BTNClick(sender); };
    // Shown with its form first, a bar that is not wanted would flash.
    hide();
    FormReady();
}

TRefreshAutoVouchers_FRME::~TRefreshAutoVouchers_FRME() = default;

void TRefreshAutoVouchers_FRME::Loaded()
{
    TFrame::Loaded();
    bar_->Animate();
    if (FCheckVisibleOnLoad)
        CheckRefresh();
    else
        hide();
}

void TRefreshAutoVouchers_FRME::CheckRefresh()
{
    setVisible(Host().Accounting.ExistRefreshAutoVoucher());
}

void TRefreshAutoVouchers_FRME::RefreshVoucher_BTNClick(QObject* /*sender*/)
{
    // While the host tells the user something the owner may go away with the bar.
    const QPointer<TRefreshAutoVouchers_FRME> alive(this);
    const QString all = QStringLiteral("");
    Host().Accounting.SaveAutoVouchersAgain(all, all, all, 0);
    if (alive)
        CheckRefresh();
}
