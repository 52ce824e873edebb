#pragma once

#include "FieldType.h"
#include "SmartDBGrid_TRV.h"

/// How a value of a data set reads in a grid cell.
namespace GridCellText {

/// What a column without a definition of its own is taken for.
SUITE_EXPORT TGridColumn::TKind KindOf(TFieldType type);
/// Whether the text is laid out from left to right and aligned to the digit.
SUITE_EXPORT bool IsNumeric(TGridColumn::TKind kind);
/// The text as shown: grouped thousands, solar dates, words for yes and no; empty for NULL.
SUITE_EXPORT QString Shown(const QVariant& value, TGridColumn::TKind kind);
/// The text as copied: like the one shown, but numbers without grouping signs.
SUITE_EXPORT QString Copied(const QVariant& value, TGridColumn::TKind kind);
/// "1403/01/01", with the time behind it where the ISO text has one; the text itself where it is no ISO date.
SUITE_EXPORT QString SolarDate(const QString& isoText);

} // namespace GridCellText
