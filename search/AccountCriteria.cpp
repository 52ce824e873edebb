#include "AccountCriteria.h"

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
