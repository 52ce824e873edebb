#pragma once

#include <algorithm>
#include <QString>

/// Values that are spliced into the text of a statement.
namespace SplicedText {

/// In single quotes, with inner ones doubled; without N in front.
inline QString Quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

/// One or more decimal digits of ASCII, which may stand bare.
inline bool IsDigits(const QString& text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

} // namespace SplicedText
