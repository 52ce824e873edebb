#include "PersianText.h"

#include <QRegularExpression>

namespace {

constexpr char16_t PersianZero = u'\u06F0';
constexpr char16_t ArabicIndicZero = u'\u0660';
constexpr char16_t ZeroWidthNonJoiner = u'\u200C';
constexpr char16_t Kashida = u'\u0640';
constexpr char16_t PersianDecimal = u'\u066B';
constexpr char16_t PersianThousands = u'\u066C';

bool IsGrouping(QChar character)
{
    return character == u',' || character == PersianThousands || character == u'\u060C' ||
           character == u'\u2019';
}

bool IsDirectionMark(char16_t unit)
{
    return unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C' ||
           (unit >= u'\u202A' && unit <= u'\u202E') || (unit >= u'\u2066' && unit <= u'\u2069');
}

bool IsLineBreak(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\n' || unit == u'\r' || unit == u'\t' || unit == u'\v' || unit == u'\f' ||
           unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

bool IsKept(QChar character)
{
    const char16_t unit = character.unicode();
    return character.category() != QChar::Other_Control && !IsDirectionMark(unit) && unit != u'\uFEFF' &&
           unit != u'\uFFFE' && unit != u'\uFFFF';
}

QString WithoutOuterLineBreaks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && IsLineBreak(text.at(start)))
        ++start;
    while (end > start && IsLineBreak(text.at(end - 1)))
        --end;
    return text.mid(start, end - start);
}

/// Where in a file's name the number begins that its extension belongs to; -1 where there is none, or where
/// it stands behind a word of the extension's own script, which keeps its order by itself.
qsizetype NumberedFilePlace(const QString& name)
{
    static const QRegularExpression numbered(QStringLiteral(
        R"((?<![A-Za-z0-9\x{06F0}-\x{06F9}./\\-])[0-9\x{06F0}-\x{06F9}][A-Za-z0-9\x{06F0}-\x{06F9} _.-]*\.[A-Za-z][A-Za-z0-9]*$)"));
    const qsizetype place = numbered.match(name).capturedStart();
    for (qsizetype before = place - 1; before >= 0; --before) {
        if (name.at(before).isLetter())
            return name.at(before).direction() == QChar::DirL ? -1 : place;
    }
    return place;
}

} // namespace

int PersianText::DigitValue(QChar character)
{
    const char16_t unit = character.unicode();
    for (const char16_t zero : {u'0', PersianZero, ArabicIndicZero}) {
        if (unit >= zero && unit <= zero + 9)
            return unit - zero;
    }
    return -1;
}

QString PersianText::AsciiDigits(const QString& text)
{
    QString result = text;
    for (QChar& character : result) {
        if (const int digit = DigitValue(character); digit >= 0)
            character = QChar(u'0' + digit);
    }
    return result;
}

QString PersianText::PersianDigits(const QString& text)
{
    QString result = text;
    for (QChar& character : result) {
        if (character >= u'0' && character <= u'9')
            character = QChar(PersianZero + (character.unicode() - u'0'));
    }
    return result;
}

QString PersianText::NumberFromAnyScript(const QString& text)
{
    QString result;
    bool hasDigit = false;
    bool hasPoint = false;
    for (const QChar character : QStringView(text).trimmed()) {
        if (const int digit = DigitValue(character); digit >= 0) {
            result += QChar(u'0' + digit);
            hasDigit = true;
        } else if ((character == u'.' || character == PersianDecimal) && !hasPoint) {
            result += u'.';
            hasPoint = true;
        } else if ((character == u'-' || character == u'\u2212') && result.isEmpty()) {
            result += u'-';
        } else if (!IsGrouping(character) || !hasDigit || hasPoint) {
            return {};
        }
    }
    return hasDigit ? result : QString();
}

QString PersianText::Fold(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        switch (character.unicode()) {
        case ZeroWidthNonJoiner:
        case Kashida:
            break;
        case u'\u064A': // Arabic yeh
        case u'\u0649': // alef maksura
            result += u'\u06CC';
            break;
        case u'\u0643': // Arabic kaf
            result += u'\u06A9';
            break;
        default:
            if (const int digit = DigitValue(character); digit >= 0)
                result += QChar(u'0' + digit);
            else
                result += character;
        }
    }
    return result.toLower();
}

QString PersianText::Isolated(const QString& text)
{
    return u'\u2068' + text + u'\u2069';
}

QString PersianText::WithIsolatedCodes(const QString& sentence)
{
    if (sentence.contains(u'\u2068'))
        return sentence;
    static const QRegularExpression code(
        QStringLiteral(R"((-?[A-Za-z0-9](?:[A-Za-z0-9_.:/\\\-+*#@,&]*[A-Za-z0-9])?))"));
    return QString(sentence).replace(code, QStringLiteral("\u2068\\1\u2069"));
}

QString PersianText::WithIsolatedNumbers(const QString& name)
{
    if (name.contains(u'\u2068'))
        return name;
    if (const qsizetype place = NumberedFilePlace(name); place >= 0)
        return WithIsolatedNumbers(name.left(place)) + Isolated(name.mid(place));
    static const QRegularExpression number(QStringLiteral(
        R"((?<![A-Za-z0-9\x{06F0}-\x{06F9}.:/\\-])((?:[0-9\x{06F0}-\x{06F9}]++[.:/\\-]++)++[0-9\x{06F0}-\x{06F9}]++)(?![A-Za-z]))"));
    return QString(name).replace(number, QStringLiteral("\u2068\\1\u2069"));
}

QString PersianText::SingleLine(const QString& text)
{
    QString result;
    result.reserve(text.size());
    const QString line = WithoutOuterLineBreaks(text);
    for (qsizetype place = 0; place < line.size(); ++place) {
        const QChar character = line.at(place);
        if (IsLineBreak(character)) {
            if (character != u'\n' || line.at(place - 1) != u'\r')
                result += u' ';
        } else if (character.isHighSurrogate() && place + 1 < line.size() &&
                   line.at(place + 1).isLowSurrogate()) {
            result += character;
            result += line.at(++place);
        } else if (!character.isSurrogate() && IsKept(character)) {
            result += character;
        }
    }
    return AsciiDigits(result);
}
