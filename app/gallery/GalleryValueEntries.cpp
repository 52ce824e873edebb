#include "CurrencyFrame_UNT.h"
#include "GalleryEntry.h"
#include "Pic_Get_UNT.h"
#include "Pic_Show_UNT.h"

#include <QPushButton>

namespace {

void SetUp(TCurrency_FRAME& frame, const TGalleryStage& /*stage*/)
{
    frame.init();
    frame.SetBaseCurrSelected(true);
}

TGalleryValues ValuesOf(const TCurrency_FRAME& frame)
{
    return {{QStringLiteral("GetCodeValue"), frame.GetCodeValue()},
            {QStringLiteral("GetPriceValue"), static_cast<double>(frame.GetPriceValue())},
            {QStringLiteral("TitleCountry"), frame.TitleCountry()},
            {QStringLiteral("BaseCurrSelected"), frame.BaseCurrSelected()}};
}

void SetUp(TPic_Get& frame, const TGalleryStage& stage)
{
    frame.SetOnChange(stage.Event(QStringLiteral("OnChange")));
}

TGalleryValues ValuesOf(const TPic_Get& frame)
{
    return {{QStringLiteral("PicAddress"), frame.PicAddress()},
            {QStringLiteral("Picture"), frame.Picture().size()}};
}

void SetUp(TPic_Show& frame, const TGalleryStage& stage)
{
    constexpr int everyGroup = 0;
    constexpr int goodsWithPictures = 3;
    QObject::connect(frame.Close_BTN, &QPushButton::clicked,
                     [tell = stage.Tell] { tell(QStringLiteral("Close_BTN.clicked")); });
    frame.Load(everyGroup, goodsWithPictures);
}

} // namespace

QVector<TGalleryEntry> GalleryEntries::Values()
{
    return {
        GalleryEntry<TCurrency_FRAME>(QStringLiteral("CurrencyFrame_UNT"), QStringLiteral("ارز و نرخ آن"),
                                      SetUp, ValuesOf),
        GalleryEntry<TPic_Get>(QStringLiteral("Pic_Get_UNT"), QStringLiteral("گرفتن عکس"), SetUp, ValuesOf),
        GalleryEntry<TPic_Show>(QStringLiteral("Pic_Show_UNT"), QStringLiteral("دیدن عکس‌ها"),
                                SetUp),
    };
}
