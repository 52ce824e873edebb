#pragma once

#include "DatabaseExport.h"

class TADOConnection;

/// The colours that tags can have, each with its pictures for a tag on all and on some of the chosen records.
namespace Palette {

/// Adds the colours that the table `colors` does not have yet; those that are there stay as they are. Of
/// several programs that do this at the same time each colour is added once. Throws EADOError.
DATABASE_EXPORT void Complete(TADOConnection& connection);

} // namespace Palette
