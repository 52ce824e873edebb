#include "ExactDecimal.h"

#include <algorithm>
#include <QStringView>

namespace {

bool IsSign(QChar character)
{
    return character == u'-' || character == u'+';
}

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

QStringView WithoutLeadingZeros(QStringView digits)
{
    while (digits.startsWith(u'0'))
        digits = digits.mid(1);
    return digits;
}

QStringView WithoutTrailingZeros(QStringView digits)
{
    while (digits.endsWith(u'0'))
        digits.chop(1);
    return digits;
}

} // namespace

bool IsDecimal(const QString& text)
{
    QStringView rest(text);
    if (!rest.isEmpty() && IsSign(rest.front()))
        rest = rest.mid(1);
    bool digitSeen = false;
    bool pointSeen = false;
    for (const QChar character : rest) {
        if (character == u'.' && !pointSeen)
            pointSeen = true;
        else if (IsDigit(character))
            digitSeen = true;
        else
            return false;
    }
    return digitSeen;
}

bool IsCanonicalDecimal(QStringView text)
{
    const QChar* next = text.begin();
    const QChar* end = text.end();
    const bool negative = next != end && *next == u'-';
    if (negative)
        ++next;
    const QChar* wholeBegin = next;
    while (next != end && IsDigit(*next))
        ++next;
    const qsizetype wholeLength = next - wholeBegin;
    if (wholeLength == 0 || (wholeLength > 1 && *wholeBegin == u'0'))
        return false;
    if (next == end)
        return !(negative && *wholeBegin == u'0');
    const bool pointAndMore = *next == u'.' && end - next > 1;
    return pointAndMore && std::all_of(next + 1, end, IsDigit) && *(end - 1) != u'0';
}

QString CanonicalDecimal(const QString& text)
{
    if (!IsDecimal(text))
        return text;
    QStringView number(text);
    const bool negative = number.front() == u'-';
    if (IsSign(number.front()))
        number = number.mid(1);
    const qsizetype point = number.indexOf(u'.');
    const QStringView whole = WithoutLeadingZeros(point < 0 ? number : number.left(point));
    const QStringView fraction = point < 0 ? QStringView() : WithoutTrailingZeros(number.mid(point + 1));
    QString result;
    result.reserve(text.size() + 1);
    if (negative && !(whole.isEmpty() && fraction.isEmpty()))
        result += u'-';
    result += whole.isEmpty() ? QStringView(u"0") : whole;
    if (!fraction.isEmpty()) {
        result += u'.';
        result += fraction;
    }
    return result;
}
