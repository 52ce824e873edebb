#include "FieldName.h"

#include "AdoError.h"

#include <QStringList>

namespace {

[[noreturn]] void Refuse(const QString& name)
{
    throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("«%1» نام ستون نیست.").arg(name));
}

bool IsNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character == u'_' || character == u'#' ||
           character == u'$' || character == u'@' || character == u'\u200C';
}

/// Reads `[...]` that begins at `position` and moves behind it; `]]` inside stands for `]`.
QString BracketedPart(const QString& name, qsizetype& position)
{
    QString part;
    for (++position; position < name.size(); ++position) {
        if (name.at(position) != u']') {
            part += name.at(position);
        } else if (position + 1 < name.size() && name.at(position + 1) == u']') {
            part += name.at(position++);
        } else {
            ++position;
            return part;
        }
    }
    Refuse(name);
}

QString BarePart(const QString& name, qsizetype& position)
{
    const qsizetype start = position;
    while (position < name.size() && IsNameCharacter(name.at(position)))
        ++position;
    if (position > start && name.at(start).isDigit())
        Refuse(name);
    return name.mid(start, position - start);
}

QStringList Parts(const QString& name)
{
    QStringList parts;
    qsizetype position = 0;
    while (true) {
        const bool isBracketed = position < name.size() && name.at(position) == u'[';
        parts.append(isBracketed ? BracketedPart(name, position) : BarePart(name, position));
        if (parts.last().isEmpty() || parts.last().contains(QChar::Null))
            Refuse(name);
        if (position == name.size())
            return parts;
        if (name.at(position++) != u'.')
            Refuse(name);
    }
}

} // namespace

QString FieldName::Bracketed(const QString& name)
{
    QStringList parts = Parts(name.trimmed());
    for (QString& part : parts)
        part = QLatin1Char('[') + part.replace(QLatin1Char(']'), QLatin1String("]]")) + QLatin1Char(']');
    return parts.join(QLatin1Char('.'));
}

QString FieldName::Column(const QString& name)
{
    return Parts(name.trimmed()).constLast();
}
