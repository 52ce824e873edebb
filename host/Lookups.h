#pragma once

#include "EntityTypes.h"
#include "HostExport.h"

#include <optional>
#include <QString>
#include <QVariant>

class TADOConnection;

/// Codes sought in the tables of their kinds.
namespace Lookups {

/// A code as typed or spliced, as a number: digits of any of the three scripts, blanks around them, leading
/// zeros. None where the text is anything else, 0, or beyond the 32 bits of a code.
HOST_EXPORT std::optional<int> CodeOf(const QString& text);

/// The columns `fields` (";" between names) of the record that has the code: its value, or a QVariantList of
/// the values where there are several. An invalid variant where there is no such record; a text that is no
/// code asks the database nothing. A record's empty column reads as empty text.
///
/// `persons` tells whether ldPersonals also finds persons that are switched off. Throws std::logic_error for
/// an option without a table, and EADOError for a field that is no name or that the table does not have.
HOST_EXPORT QVariant Find(TADOConnection& connection, const QString& code, const QString& fields,
                          LocateDBsOptions option, PerLocateOptions persons);

} // namespace Lookups
