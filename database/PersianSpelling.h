#pragma once

#include <QString>

class TSampleRandom;

/// The spellings that pile up in a database over the years.
namespace PersianSpelling {

/// Now and then the text as an older program or another keyboard would have left it: Arabic letters ي and ك,
/// digits of another script, a kashida.
QString AsTyped(const QString& text, TSampleRandom& random);

} // namespace PersianSpelling
