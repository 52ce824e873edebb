#pragma once

#include "PackageExport.h"

#include <QString>

/// Column names of search items as statements and data sets need them. A name is one or more parts between
/// dots, each bare (letters, digits, `_`, `#`, `$`, `@`, not beginning with a digit) or in brackets.
namespace FieldName {

/// Every part in brackets: `k.Name` is `[k].[Name]`. Throws EADOError(WrongState) for a text that is no name,
/// so that nothing else ever gets into a statement by way of a field name.
BASEFRAME_EXPORT QString Bracketed(const QString& name);
/// The last part without brackets: the name of the column in a data set. Throws like Bracketed.
BASEFRAME_EXPORT QString Column(const QString& name);

} // namespace FieldName
