#pragma once

#include "TarvaSearch.h"

/// Criteria as frames leave them.
namespace Criteria {

/// One active item with a value.
inline void Fill(TTarvaSearch& criterion, const TSearchItem& item, const QVariant& value1,
                 const QVariant& value2 = {}, TSearchType type = TSearchType::stGeneral)
{
    criterion.SearchItems.Clear();
    criterion.SearchItems.Add(item);
    criterion.SetSearchTypes(type);
    criterion.SetItemIndex(0);
    criterion.SetValue1(value1);
    criterion.SetValue2(value2);
    criterion.SetActive(true);
}

inline TSearchItem Item(const QString& title, const QString& field,
                        TSearchDataType type = TSearchDataType::idtString, const QString& foldedName = {})
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = field;
    item.FoldedName = foldedName;
    item.DataType = type;
    return item;
}

} // namespace Criteria
