#pragma once

#include "SmartDBGrid_TRV.h"

#include <QDate>
#include <QString>
#include <QVariant>
#include <QVector>

class TTarvaSearch;

/// Values and sentences of a report in the calendar of the host's settings.
namespace ReportText {

/// "1403/01/09" or "2024/03/28", with the time of day behind it where the value has one. Takes solar dates as
/// vouchers keep them and ISO texts; anything else stays as it is.
QString Date(const QString& value, bool gregorian);
/// A value as a file holds it: dates of the calendar, numbers without grouping signs, one line.
QString Cell(const QVariant& value, TGridColumn::TKind kind, bool gregorian);
/// The condition in words with the bounds of the date criteria in the calendar, and the vouchers' state as
/// one says it. Empty where nothing filters.
QString Condition(const QString& words, const QVector<const TTarvaSearch*>& dateCriteria, bool gregorian);
/// "10٬000 ردیف نخست از 50٬000 ردیف"; empty where all rows are there.
QString Shortened(int rows, qint64 count);

} // namespace ReportText
