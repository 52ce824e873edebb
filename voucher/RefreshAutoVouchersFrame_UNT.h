#pragma once

#include "Frame.h"

class QLabel;
class TNoticeBar;
class TSmartButton_TRV;
class TSmartLabel_TRV;
class TSmartPanel_TRV;

/// The bar that says that some automatic vouchers must be generated again, because the stock ledger was
/// corrected after them, and offers to do so. Placed and shown like TSaveAutoVouchers_FRME.
class BASEFRAME_EXPORT TRefreshAutoVouchers_FRME : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(bool CheckVisibleOnLoad READ CheckVisibleOnLoad WRITE SetCheckVisibleOnLoad)

public:
    explicit TRefreshAutoVouchers_FRME(QWidget* owner = nullptr);
    ~TRefreshAutoVouchers_FRME() override;

    /// Whether the bar decides in Loaded() whether it is shown. False at first.
    bool CheckVisibleOnLoad() const { return FCheckVisibleOnLoad; }
    /// Counts until the frame is loaded, which comes from the event loop.
    void SetCheckVisibleOnLoad(bool check) { FCheckVisibleOnLoad = check; }

    void Loaded() override;
    /// Shows the bar when vouchers await being generated again; hides it otherwise.
    void CheckRefresh();
    /// Generates them all again; the bar hides itself when nothing is left.
    void RefreshVoucher_BTNClick(QObject* sender);

    TSmartPanel_TRV* RefreshVoucherNotification_PNL = nullptr;
    TSmartPanel_TRV* RefreshVoucherNotifi_PNL = nullptr;
    TSmartLabel_TRV* RefreshVoucherNotifiy_LBL = nullptr;
    TSmartButton_TRV* RefreshVoucher_BTN = nullptr;
    QLabel* Image1 = nullptr;

private:
    TNoticeBar* bar_ = nullptr;
    bool FCheckVisibleOnLoad = false;
};
