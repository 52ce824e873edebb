#include "EntityItems.h"

#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "TarvaSearch.h"

void EntityItems::SwitchTo(TSelect_Entity_Frame& selector, const TSearchItem* item)
{
    if (item && item->ItemValue.isValid())
        selector.Code_EDT->SetEntityType(static_cast<TEntityType>(item->ItemValue.toInt()));
    selector.Clear();
}
