#pragma once

#include "TarvaSearch.h"

/// The fields that the filters of the report of voucher lines offer.
namespace ReportItems {

void AddDates(TSearchCollection& items);
void AddTimes(TSearchCollection& items);
void AddAmounts(TSearchCollection& items);
void AddNumbers(TSearchCollection& items);
void AddCodes(TSearchCollection& items);
/// Kinds of entity with the columns that hold their codes.
void AddEntities(TSearchCollection& items);
/// All vouchers, those that are confirmed, those that are not.
void AddStates(TSearchCollection& items);

/// A state in place of the comparison that the search manager makes of it.
QString WithStateInWords(const QString& words);

} // namespace ReportItems
