#pragma once

#include "AutoVouchers.h"

class QWidget;

/// Generating vouchers before the user's eyes: a busy pointer, progress with a way to stop where it takes
/// long, and a message about what was left.
namespace AutoVoucherRun {

/// With the connection, the user and the messages of the installed host. Returns how many were written.
HOST_EXPORT int SaveMissing();
HOST_EXPORT int SaveAgain(const TAutoVoucherScope& scope);

/// What the user is told about a result; empty where everything was written.
HOST_EXPORT QString Report(const TAutoVoucherResult& result);

} // namespace AutoVoucherRun
