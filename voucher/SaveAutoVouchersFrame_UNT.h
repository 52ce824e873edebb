#pragma once

#include "Frame.h"

class QLabel;
class TNoticeBar;
class TSmartButton_TRV;
class TSmartLabel_TRV;
class TSmartPanel_TRV;

/// The bar that says that some operations have no voucher yet and offers to generate the missing ones. The
/// owner lays it at the top of a report or a list. Its only state is whether it is shown: hidden at first,
/// decided by itself in Loaded() where CheckVisibleOnLoad is set, by CheckConflicts() whenever the owner
/// asks, and after a generation by the host's check in the background. An owner who shows it before it is
/// loaded has his way.
class BASEFRAME_EXPORT TSaveAutoVouchers_FRME : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(bool CheckVisibleOnLoad READ CheckVisibleOnLoad WRITE SetCheckVisibleOnLoad)

public:
    explicit TSaveAutoVouchers_FRME(QWidget* owner = nullptr);
    ~TSaveAutoVouchers_FRME() override;

    /// Whether the bar decides in Loaded() whether it is shown. False at first.
    bool CheckVisibleOnLoad() const { return FCheckVisibleOnLoad; }
    /// Counts until the frame is loaded, which comes from the event loop.
    void SetCheckVisibleOnLoad(bool check) { FCheckVisibleOnLoad = check; }

    void Loaded() override;
    /// Shows the bar when there are operations without vouchers, as the host's last check has found; hides it
    /// otherwise.
    void CheckConflicts();
    /// Generates the missing vouchers and starts the host's check, which shows or hides the bar afterwards.
    void SaveVoucher_BTNClick(QObject* sender);

    TSmartPanel_TRV* SaveVoucherNotification_PNL = nullptr;
    TSmartPanel_TRV* SaveVoucherNotifi_PNL = nullptr;
    TSmartLabel_TRV* RefreshVoucherNotifiy_LBL = nullptr;
    TSmartButton_TRV* SaveVoucher_BTN = nullptr;
    QLabel* Image1 = nullptr;
    /// Hidden and without a handler; the owner may use it.
    TSmartButton_TRV* AccountConflictsList_BTN = nullptr;

private:
    TNoticeBar* bar_ = nullptr;
    bool FCheckVisibleOnLoad = false;
};
