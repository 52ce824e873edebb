#pragma once

#include "AdoExport.h"

#include <QString>
#include <string>

/// Text of UTF-8 bytes, every character kept (a byte order mark at the beginning too); empty but not null for
/// no bytes. Bytes that are no UTF-8 become replacement characters.
ADO_EXPORT QString TextOfUtf8(const char* bytes, qsizetype count);
/// The same behind what is in `buffer`.
ADO_EXPORT void AppendTextOfUtf8(const char* bytes, qsizetype count, std::u16string& buffer);
