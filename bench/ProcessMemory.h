#pragma once

#include <QtGlobal>

/// What the running process occupies in memory, in bytes; 0 where the platform does not tell.
namespace ProcessMemory {
qint64 Resident();
qint64 Peak();
double MiB(qint64 bytes);
} // namespace ProcessMemory
