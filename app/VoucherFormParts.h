#pragma once

#include "DataSource.h"
#include "SmartDBGrid_TRV.h"
#include "VoucherBand.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"
#include "VoucherLines.h"
#include "VoucherStore.h"
#include "VoucherTotals.h"

/// What a voucher form is made of.
struct TVoucherForm::TParts
{
    explicit TParts(TADOConnection& connection) : Store(connection) {}

    TVoucherStore Store;
    TVoucherDraft Draft;
    TVoucherLines Lines{Draft};
    TDataSource Source;
    TVoucherHeadBar* Head = nullptr;
    TVoucherBand* Band = nullptr;
    TSmartDBGrid_TRV* Grid = nullptr;
    TVoucherTotals* Totals = nullptr;
    bool Started = false; ///< the years have been read
};
