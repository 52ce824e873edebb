#pragma once

#include "PagedDataSet.h"
#include "SmartDBGrid_TRV.h"

#include <QVector>

/// What the report of voucher lines reads and shows.
namespace VoucherReport {

/// The lines of all vouchers. Beside what is shown there are columns to filter by: AccountCode, the codes of
/// total and assistant as one text of six digits, and for each kind of detail account the code of the line's
/// detail account, null in lines of other kinds.
TPagedSource Source();
QVector<TGridColumn> Columns();
/// Places among Source().Fields of what the report asks rows for.
int FieldIndex(const QString& field);

} // namespace VoucherReport
