#include "ExpenseCenterLibrary.h"
#include "LibraryCall.h"

int Select_ExpenseCenter(const char16_t* selectionParameters)
{
    return LibraryCall::Guarded(
        [selectionParameters] {
            return Host().Pickers.Select_Entity(TSoftwarePart::spExpenseCenters,
                                                QString::fromUtf16(selectionParameters), false);
        },
        QStringLiteral("فهرست مرکزهای هزینه باز نشد."));
}
