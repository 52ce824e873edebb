#include "PersianSpelling.h"

#include "SampleRandom.h"

namespace {

constexpr char16_t PersianZero = u'\u06F0';
constexpr char16_t ArabicIndicZero = u'\u0660';

QString WithArabicLetters(QString text)
{
    return text.replace(u'ی', u'\u064A').replace(u'ک', u'\u0643');
}

QString WithDigits(QString text, char16_t zero)
{
    for (QChar& character : text) {
        if (character >= u'0' && character <= u'9')
            character = QChar(zero + (character.unicode() - u'0'));
    }
    return text;
}

/// A kashida behind the first ب, which joins to the letter after it.
QString WithKashida(QString text)
{
    const qsizetype place = text.indexOf(u'ب');
    const bool joins = place >= 0 && place + 1 < text.size() && text.at(place + 1).isLetter();
    return joins ? text.insert(place + 1, u'\u0640') : text;
}

} // namespace

QString PersianSpelling::AsTyped(const QString& text, TSampleRandom& random)
{
    QString result = text;
    if (random.Chance(12))
        result = WithArabicLetters(result);
    if (random.Chance(10))
        result = WithDigits(result, random.Chance(50) ? PersianZero : ArabicIndicZero);
    if (random.Chance(2))
        result = WithKashida(result);
    return result;
}
