#include "Detail_Button_UNT.h"
#include "GalleryEntry.h"
#include "GetVoucher_UNT.h"
#include "ListDetail_FRAME_UNT.h"
#include "QueryOpening.h"
#include "ReferenceHost.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartDetailView_TRV.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

/// For frames that work as they are.
template <typename TFrameClass> void LeaveAsIs(TFrameClass& /*frame*/, const TGalleryStage& /*stage*/)
{
}

/// What an owner puts into the place is here a word.
void SetUp(TGetVoucher_FRM& frame, const TGalleryStage& /*stage*/)
{
    frame.setMinimumSize(frame.size());
    auto* word = new QLabel(QStringLiteral("جای سند"), &frame);
    word->setFrameShape(QFrame::Box);
    word->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(&frame))->addWidget(word);
}

void SetUp(TDetial_Grid_Frame& frame, const TGalleryStage& stage)
{
    frame.NewRecord_BTN->OnClick = stage.Event(QStringLiteral("NewRecord_BTN.OnClick"));
    frame.EditRecord_BTN->OnClick = stage.Event(QStringLiteral("EditRecord_BTN.OnClick"));
    frame.DeleteRecord_BTN->OnClick = stage.Event(QStringLiteral("DeleteRecord_BTN.OnClick"));
    TADOQuery vouchers;
    OpenQuery(vouchers, stage.Host.Connection(),
              QStringLiteral("SELECT TOP 1 Id FROM dbo.Sanad ORDER BY Id"));
    frame.SetEnableButton(&vouchers);
}

void SetUp(TListDetail_FRAME& frame, const TGalleryStage& stage)
{
    const QVector<TDetailItem> items = {
        {QStringLiteral("مانده"), 12500000, TGridColumn::ckMoney},
        {QStringLiteral("موجودی"), 240, TGridColumn::ckNumber},
        {QStringLiteral("آخرین خرید"), QStringLiteral("2024-09-28"), TGridColumn::ckDate},
    };
    for (TSmartDetailView_TRV* view :
         {frame.DetailView_Fixed_SDV, frame.DetailView_Large_Top_SDV, frame.DetailView_Small_Top_SDV,
          frame.DetailView_Large_Bottom_SDV, frame.DetailView_Small_Bottom_SDV}) {
        for (const TDetailItem& item : items)
            view->AddItem(item);
        view->OnChange = stage.Event(view->objectName() + QStringLiteral(".OnChange"));
    }
    frame.Reassgin();
    frame.CollapseOrExpand();
}

TGalleryValues ValuesOf(const TListDetail_FRAME& frame)
{
    return {{QStringLiteral("DetailView_Fixed_SDV.ShownValue"), frame.DetailView_Fixed_SDV->ShownValue()}};
}

} // namespace

QVector<TGalleryEntry> GalleryEntries::Vouchers()
{
    return {
        GalleryEntry<TSaveAutoVouchers_FRME>(QStringLiteral("SaveAutoVouchersFrame_UNT"),
                                             QStringLiteral("نوار صدور سند خودکار"), LeaveAsIs),
        GalleryEntry<TRefreshAutoVouchers_FRME>(QStringLiteral("RefreshAutoVouchersFrame_UNT"),
                                                QStringLiteral("نوار صدور دوبارهٔ سند"), LeaveAsIs),
        GalleryEntry<TGetVoucher_FRM>(QStringLiteral("GetVoucher_UNT"), QStringLiteral("جای سند"), SetUp),
        GalleryEntry<TDetial_Grid_Frame>(QStringLiteral("Detail_Button_UNT"), QStringLiteral("کلیدهای ریز"),
                                         SetUp),
        GalleryEntry<TListDetail_FRAME>(QStringLiteral("ListDetail_FRAME_UNT"),
                                        QStringLiteral("جزئیات ردیف فهرست"), SetUp, ValuesOf),
    };
}

QVector<TGalleryEntry> GalleryEntries::All()
{
    return Search() + Select() + Tags() + Values() + Vouchers();
}
