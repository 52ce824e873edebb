#pragma once

#include "AdoExport.h"

#include <QString>

/// Text of UTF-8 bytes, every character kept (a byte order mark at the beginning too); empty but not null for
/// no bytes. Bytes that are no UTF-8 become replacement characters.
ADO_EXPORT QString TextOfUtf8(const char* bytes, qsizetype count);
