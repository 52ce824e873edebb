#pragma once

class TSelect_Entity_Frame;
struct TSearchItem;

/// Search items that carry a kind of entity.
namespace EntityItems {

/// Lets an entity selector work on the kind that the item carries as its item value, and empties it. An item
/// without value, and none at all, leave the kind as the owner has set it.
void SwitchTo(TSelect_Entity_Frame& selector, const TSearchItem* item);

} // namespace EntityItems
