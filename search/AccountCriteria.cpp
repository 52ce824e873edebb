#include "AccountCriteria.h"

#include "Select_AccountCode_UNT.h"
#include "SmartLabel_TRV.h"

TTarvaSearch* AccountCriteria::Create(QObject* frame, const QString& name, TSearchType type,
                                      const QString& title, const QString& field)
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = field;
    item.DataType = TSearchDataType::idtDigit;
    item.FilterType = TSearchFilterType::iftDataset;
    item.ItemResult = TSearchItemResult::irSQL;
    auto* const criterion = new TTarvaSearch(frame);
    criterion->setObjectName(name);
    criterion->SetSearchTypes(type);
    criterion->SearchItems.Add(item);
    criterion->SetItemIndex(0);
    return criterion;
}

void AccountCriteria::PutOnBand(const TSelect_AccountCode& selector)
{
    selector.Name_LBL->SetOnBand(true);
    selector.Separator_LBL->SetOnBand(true);
}
