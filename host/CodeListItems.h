#pragma once

#include "HostExport.h"
#include "TarvaSearch.h"

class TADOConnection;

/// Search items for columns that hold codes between commas. In words they say the codes by their names.
namespace CodeListItems {

/// The tags of a record, in a column `tags`.
HOST_EXPORT TSearchItem Tags(TADOConnection& connection);
/// The category of a record and those above it, in a column `Categories`: a category finds what belongs to
/// the categories under it, too.
HOST_EXPORT TSearchItem Categories(TADOConnection& connection);

} // namespace CodeListItems
