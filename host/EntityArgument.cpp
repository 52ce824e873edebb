#include "EntityArgument.h"

#include "Lookups.h"

#include <stdexcept>

namespace {

constexpr QLatin1String codeMarker("#LC#");
constexpr QLatin1String parametersMarker("#OP#");

[[noreturn]] void Refuse(const QString& piece)
{
    throw std::invalid_argument("The selection parameter \"" + piece.toStdString() +
                                "\" is not of the form Column=Number or Column=Number,Number.");
}

bool IsNumber(const QString& text)
{
    const QString digits = text.startsWith(u'-') ? text.mid(1) : text;
    return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
}

bool IsName(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        return character.unicode() < 128 && (character.isLetterOrNumber() || character == u'_');
    });
}

TEntityRestriction RestrictionOf(const QString& piece)
{
    const qsizetype equals = piece.indexOf(u'=');
    TEntityRestriction restriction{piece.left(qMax(equals, qsizetype(0))).trimmed(), {}};
    if (!IsName(restriction.Column))
        Refuse(piece);
    const QStringList values = piece.mid(equals + 1).split(u',');
    for (const QString& value : values) {
        const QString number = value.trimmed();
        bool fits = false;
        restriction.Values.append(number.toInt(&fits));
        if (!fits || !IsNumber(number))
            Refuse(piece);
    }
    return restriction;
}

QVector<TEntityRestriction> RestrictionsOf(const QString& parameters)
{
    QVector<TEntityRestriction> restrictions;
    const QStringList pieces = parameters.split(u';');
    for (const QString& piece : pieces) {
        if (!piece.trimmed().isEmpty())
            restrictions.append(RestrictionOf(piece.trimmed()));
    }
    return restrictions;
}

} // namespace

TEntityArgument TEntityArgument::Of(const QString& text)
{
    TEntityArgument argument;
    QString parameters = text;
    // The last one: what a user has typed may hold anything, the parameters do not.
    const qsizetype code = text.lastIndexOf(codeMarker);
    if (code >= 0) {
        argument.CurrentCode = Lookups::CodeOf(text.left(code));
        parameters = text.mid(code + codeMarker.size());
    }
    argument.Restrictions = RestrictionsOf(parameters.replace(parametersMarker, QLatin1String(";")));
    return argument;
}
