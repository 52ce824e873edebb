#pragma once

#include <QtGlobal>

// The contract between the frames and the library "AutoVoucher_TRV.dll", which generates automatic vouchers
// and is loaded on demand. The host finds the function by its exported name; the library defines it.

/// The library's name as the host's loader takes it on every platform.
inline constexpr char16_t AutoVoucherLibrary[] = u"AutoVoucher_TRV.dll";
/// The exported name of what generates the missing vouchers.
inline constexpr char16_t AutoVoucherFunction[] = u"CallSaveAutoVouchers";

/// Generates the vouchers of the operations that have none yet and answers how many there were; frames ignore
/// the answer. No exception may leave the function: what goes wrong is told to the user.
extern "C" Q_DECL_EXPORT int CallSaveAutoVouchers();
