#pragma once

#include "HostExport.h"
#include "SmartDBGrid_TRV.h"

#include <QDate>
#include <QString>
#include <QVariant>

/// Values as the user reads them. Digits stay ASCII: the font draws them.
namespace DisplayText {

/// A decimal text with its thousands grouped by the sign that goes with the digits in force.
HOST_EXPORT QString Grouped(const QString& number);
/// "12٬345 ردیف"
HOST_EXPORT QString RowCount(int count);
/// A field's value on a card; a dash where there is none.
HOST_EXPORT QString FieldValue(const QVariant& value, TGridColumn::TKind kind);
/// "شنبه 30 آبان 1405", or the day of the Gregorian calendar.
HOST_EXPORT QString DayInWords(const QDate& date, bool gregorian);

} // namespace DisplayText
