#include "AccountingCodes_Search_UNT.h"
#include "AccountTypes.h"
#include "DetailUniqueCode_UNT.h"
#include "GalleryEntry.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"

namespace {

constexpr TCodeItems GalleryLevels{TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail,
                                   TCodeItem::ctExpenseCenter};

void SetUp(TSelect_Entity_Frame& frame, const TGalleryStage& stage)
{
    frame.Code_EDT->SetEntityType(TEntityType::etPersonals);
    frame.SetOnCodeChanged(stage.Event(QStringLiteral("OnCodeChanged")));
}

TGalleryValues ValuesOf(const TSelect_Entity_Frame& frame)
{
    return {{QStringLiteral("GetCodeValue"), frame.GetCodeValue()},
            {QStringLiteral("Code_EDT.Text"), frame.Code_EDT->Text()}};
}

void SetUp(TSelect_AccountCode& frame, const TGalleryStage& stage)
{
    frame.SetCodeItem(GalleryLevels);
    frame.init();
    frame.SetOnChange(stage.Event(QStringLiteral("OnChange")));
    frame.OnTotalCodeChanged = stage.Event(QStringLiteral("OnTotalCodeChanged"));
    frame.OnAssistantCodeChanged = stage.Event(QStringLiteral("OnAssistantCodeChanged"));
    frame.OnDetailCodeChanged = stage.Event(QStringLiteral("OnDetailCodeChanged"));
}

// What asks the database is left out: the values are read again and again.
TGalleryValues ValuesOf(const TSelect_AccountCode& frame)
{
    return {{QStringLiteral("GetTotalCode"), frame.GetTotalCode()},
            {QStringLiteral("GetAssistantCode"), frame.GetAssistantCode()},
            {QStringLiteral("GetDetailCode"), frame.GetDetailCode()},
            {QStringLiteral("GetExpCenterCode"), frame.GetExpCenterCode()},
            {QStringLiteral("IsEmpty"), frame.IsEmpty()}};
}

void SetUp(TAccountingCodes_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    frame.SetCodeItems(GalleryLevels);
    frame.init();
}

TGalleryValues ValuesOf(const TAccountingCodes_Search_Frame& frame)
{
    return {{QStringLiteral("GetActive"), frame.GetActive()},
            {QStringLiteral("GetSearchTotalValue"), frame.GetSearchTotalValue()},
            {QStringLiteral("GetSearchAssistantValue"), frame.GetSearchAssistantValue()},
            {QStringLiteral("GetSearchDetailValue"), frame.GetSearchDetailValue()},
            {QStringLiteral("GetSearchExpenseCenterValue"), frame.GetSearchExpenseCenterValue()}};
}

void SetUp(TRange_AccCodes_Search_Frame& frame, const TGalleryStage& /*stage*/)
{
    frame.SetCodeItems(GalleryLevels);
    frame.init();
}

TGalleryValues ValuesOf(const TRange_AccCodes_Search_Frame& frame)
{
    return {{QStringLiteral("GetExpenseCenterFromValue"), frame.GetExpenseCenterFromValue()},
            {QStringLiteral("GetExpenseCenterToValue"), frame.GetExpenseCenterToValue()}};
}

void SetUp(TDetailUniqueCode_FRME& frame, const TGalleryStage& /*stage*/)
{
    frame.DetailType = TFloatingAccountsType::fatPersonals;
    frame.InitUniqueCode();
}

TGalleryValues ValuesOf(const TDetailUniqueCode_FRME& frame)
{
    return {{QStringLiteral("GetUniqueCodeValue"), frame.GetUniqueCodeValue()}};
}

} // namespace

QVector<TGalleryEntry> GalleryEntries::Select()
{
    return {
        GalleryEntry<TSelect_Entity_Frame>(QStringLiteral("Select_Entity_UNT"),
                                           QStringLiteral("انتخاب تفصیلی با کد"), SetUp, ValuesOf),
        GalleryEntry<TSelect_AccountCode>(QStringLiteral("Select_AccountCode_UNT"),
                                          QStringLiteral("انتخاب کد حساب"), SetUp, ValuesOf),
        GalleryEntry<TAccountingCodes_Search_Frame>(QStringLiteral("AccountingCodes_Search_UNT"),
                                                    QStringLiteral("فیلتر با یک حساب"), SetUp, ValuesOf),
        GalleryEntry<TRange_AccCodes_Search_Frame>(QStringLiteral("Range_AccCodes_Search_UNT"),
                                                   QStringLiteral("فیلتر با بازهٔ حساب"), SetUp, ValuesOf),
        GalleryEntry<TDetailUniqueCode_FRME>(QStringLiteral("DetailUniqueCode_UNT"),
                                             QStringLiteral("کد یکتای تفصیلی"), SetUp, ValuesOf),
    };
}
