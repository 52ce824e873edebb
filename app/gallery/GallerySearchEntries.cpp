#include "ADVSearch_UNT.h"
#include "DateRange_Display_UNT.h"
#include "GalleryEntry.h"
#include "General_Search_UNT.h"
#include "ListDescription.h"
#include "PagedDataSet.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReferenceHost.h"
#include "ReportItems.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "Tab_Search_UNT.h"
#include "TarvaSearchManager.h"

namespace {

void SetUp(TGeneral_Search_Frame& frame, const TGalleryStage& stage)
{
    const TListDescription goods = GoodsList();
    frame.TarvaSearch_General->SearchItems.Clear();
    for (const TSearchItem& item : goods.SearchItems)
        frame.TarvaSearch_General->SearchItems.Add(item);
    auto* list = new TPagedDataSet(&frame);
    list->SetConnection(&stage.Host.Connection());
    list->SetSource(goods.Source);
    auto* manager = new TTarvaSearchManager(&frame);
    manager->Add(frame.TarvaSearch_General);
    manager->SetDataSet(list);
    frame.Refrenc_SearchManager = manager;
    frame.doselection = [tell = stage.Tell] { tell(QStringLiteral("doselection")); };
    frame.init();
    list->Open();
}

void SetUp(TRange_Digit_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddNumbers(frame.TarvaSearch_Range_Digit->SearchItems);
    frame.init();
}

TGalleryValues ValuesOf(const TRange_Digit_Search_Frame& frame)
{
    return {{QStringLiteral("GetActive"), frame.GetActive()},
            {QStringLiteral("GetSearchValue1"), frame.GetSearchValue1()},
            {QStringLiteral("GetSearchValue2"), frame.GetSearchValue2()}};
}

void SetUp(TRange_Cost_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddAmounts(frame.TarvaSearch_Range_Cost->SearchItems);
    frame.init();
}

void SetUp(TRange_Date_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddDates(frame.TarvaSearch_Range_Date->SearchItems);
    ReportItems::AddTimes(frame.TarvaSearch_Range_Date->SearchItems);
    frame.init();
}

TGalleryValues ValuesOf(const TRange_Date_Search_Frame& frame)
{
    return {{QStringLiteral("GetFromDate"), frame.GetFromDate()},
            {QStringLiteral("GetToDate"), frame.GetToDate()}};
}

void SetUp(TRange_String_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddCodes(frame.TarvaSearch_Range_String->SearchItems);
    frame.init();
}

void SetUp(TSelectEntity_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddEntities(frame.TarvaSearch_SelectEntityCMB->SearchItems);
    ReportItems::AddEntities(frame.TarvaSearch_SelectEntityEDT->SearchItems);
    frame.init();
}

void SetUp(TRange_SelectEntity_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddEntities(frame.TarvaSearch_Range_SelectEntity->SearchItems);
    frame.init();
}

TGalleryValues ValuesOf(const TRange_SelectEntity_Search_Frame& frame)
{
    return {{QStringLiteral("GetActive"), frame.GetActive()},
            {QStringLiteral("GetSearchCodeValue1"), frame.GetSearchCodeValue1()},
            {QStringLiteral("GetSearchCodeValue2"), frame.GetSearchCodeValue2()}};
}

void SetUp(TDateRange_Display_FRAM& frame, const TGalleryStage& /*stage*/)
{
    frame.init();
}

TGalleryValues ValuesOf(const TDateRange_Display_FRAM& frame)
{
    return {{QStringLiteral("getToday"), frame.getToday()},
            {QStringLiteral("GetCurrentTime(Crmonth)"), frame.GetCurrentTime(Crmonth)},
            {QStringLiteral("GetEndmonth"), frame.GetEndmonth()},
            {QStringLiteral("GetCurrentTime(crweek)"), frame.GetCurrentTime(crweek)},
            {QStringLiteral("GetEndWeek"), frame.GetEndWeek()}};
}

void SetUp(TTab_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    ReportItems::AddStates(frame.TarvaSearch_Tab->SearchItems);
    frame.init();
}

void SetUp(TADVSearch_Fram& frame, const TGalleryStage& stage)
{
    frame.ADVSearch_CHK->OnClick = stage.Event(QStringLiteral("ADVSearch_CHK.OnClick"));
}

TGalleryValues ValuesOf(const TADVSearch_Fram& frame)
{
    return {{QStringLiteral("ADVSearch_CHK.Checked"), frame.ADVSearch_CHK->Checked()}};
}

} // namespace

QVector<TGalleryEntry> GalleryEntries::Search()
{
    return {
        GalleryEntry<TGeneral_Search_Frame>(QStringLiteral("General_Search_UNT"),
                                            QStringLiteral("جستجوی یک خطی فهرست"), SetUp),
        GalleryEntry<TRange_Digit_Search_Frame>(QStringLiteral("Range_Digit_Search"),
                                                QStringLiteral("بازهٔ شماره"), SetUp, ValuesOf),
        GalleryEntry<TRange_Cost_Search_Frame>(QStringLiteral("Range_Cost_Search"),
                                               QStringLiteral("بازهٔ مبلغ"), SetUp),
        GalleryEntry<TRange_Date_Search_Frame>(QStringLiteral("Range_Date_Search"),
                                               QStringLiteral("بازهٔ تاریخ و ساعت"), SetUp, ValuesOf),
        GalleryEntry<TRange_String_Search_Frame>(QStringLiteral("Range_String_Search"),
                                                 QStringLiteral("بازهٔ کد متنی"), SetUp),
        GalleryEntry<TSelectEntity_Search_Frame>(QStringLiteral("SelectEntity_Search_UNT"),
                                                 QStringLiteral("فیلتر با یک تفصیلی"), SetUp),
        GalleryEntry<TRange_SelectEntity_Search_Frame>(QStringLiteral("Range_SelectEntity_Search_UNT"),
                                                       QStringLiteral("فیلتر با بازهٔ تفصیلی"), SetUp,
                                                       ValuesOf),
        GalleryEntry<TDateRange_Display_FRAM>(QStringLiteral("DateRange_Display_UNT"),
                                              QStringLiteral("دورهٔ اخیر"), SetUp, ValuesOf),
        GalleryEntry<TTab_Search_Frame>(QStringLiteral("Tab_Search_UNT"), QStringLiteral("فیلتر با زبانه"),
                                        SetUp),
        GalleryEntry<TADVSearch_Fram>(QStringLiteral("ADVSearch_UNT"), QStringLiteral("کلید جستجوی پیشرفته"),
                                      SetUp, ValuesOf),
    };
}
