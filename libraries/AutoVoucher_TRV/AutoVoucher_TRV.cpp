#include "AutoVoucherLibrary.h"
#include "AutoVoucherRun.h"
#include "LibraryCall.h"

int CallSaveAutoVouchers()
{
    return LibraryCall::Guarded([] { return AutoVoucherRun::SaveMissing(); },
                                QStringLiteral("سندهای خودکار ثبت نشدند."));
}
