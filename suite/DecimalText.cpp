#include "DecimalText.h"

#include "PersianText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <QRegularExpression>

namespace {

// Longer texts hold no amount that anybody pastes on purpose.
constexpr qsizetype LongestPaste = 1000;

QChar Simplified(QChar character)
{
    if (const int digit = PersianText::DigitValue(character); digit >= 0)
        return QChar(u'0' + digit);
    switch (character.unicode()) {
    case u'\u066B':
        return u'.';
    case u'\u066C':
    case u'\u060C':
    case u'\u2019':
    case u'\'':
        return u',';
    case u'\u2212':
    case u'\uFE63':
    case u'\uFF0D':
        return u'-';
    case u'\n':
    case u'\r':
        return u'\n';
    default:
        return character.isSpace() ? QChar(u' ') : character;
    }
}

QString Simplified(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        // Direction marks come along with numbers copied out of right-to-left texts.
        if (character.category() != QChar::Other_Format)
            result += Simplified(character);
    }
    return result.trimmed();
}

bool IsNegative(const QString& text, qsizetype start, qsizetype end)
{
    const QString before = text.left(start);
    const QString after = text.mid(end);
    if (before.endsWith(u'(') && after.startsWith(u')'))
        return true;
    const bool minusBefore =
        before.endsWith(u'-') && (before.size() == 1 || before.at(before.size() - 2).isSpace());
    return minusBefore || after == QStringLiteral("-");
}

struct TParts
{
    bool negative = false;
    QString whole;
    QString decimals;
};

TParts Split(const QString& plain)
{
    TParts parts;
    parts.negative = plain.startsWith(u'-');
    const QString digits = plain.mid(parts.negative ? 1 : 0);
    const qsizetype point = digits.indexOf(u'.');
    parts.whole = point < 0 ? digits : digits.left(point);
    parts.decimals = point < 0 ? QString() : digits.mid(point + 1);
    return parts;
}

QString WithoutLeadingZeros(const QString& whole)
{
    qsizetype zeros = 0;
    while (zeros + 1 < whole.size() && whole.at(zeros) == u'0')
        ++zeros;
    return whole.isEmpty() ? QStringLiteral("0") : whole.mid(zeros);
}

bool IsZero(const TParts& parts)
{
    const auto zero = [](QChar digit) { return digit == u'0'; };
    return std::all_of(parts.whole.begin(), parts.whole.end(), zero) &&
           std::all_of(parts.decimals.begin(), parts.decimals.end(), zero);
}

QString Joined(const TParts& parts)
{
    const QString sign = parts.negative && !IsZero(parts) ? QStringLiteral("-") : QString();
    const QString number = sign + WithoutLeadingZeros(parts.whole);
    return parts.decimals.isEmpty() ? number : number + u'.' + parts.decimals;
}

// One more in the last place.
QString Incremented(QString digits)
{
    for (qsizetype place = digits.size() - 1; place >= 0; --place) {
        if (digits.at(place) != u'9') {
            digits[place] = QChar(digits.at(place).unicode() + 1);
            return digits;
        }
        digits[place] = u'0';
    }
    return u'1' + digits;
}

} // namespace

DecimalText::TFinding DecimalText::Find(const QString& text, QString& number)
{
    if (text.size() > LongestPaste)
        return TFinding::Nothing;
    static const QRegularExpression token(QStringLiteral(
        R"((?:[0-9]{1,3}([, ])[0-9]{3}(?:\1[0-9]{3})*(?![0-9])|[0-9]+)(?:\.[0-9]*)?|\.[0-9]+)"));
    const QString simple = Simplified(text);
    QRegularExpressionMatchIterator found = token.globalMatch(simple);
    if (!found.hasNext())
        return TFinding::Nothing;
    const QRegularExpressionMatch match = found.next();
    if (found.hasNext())
        return TFinding::Several;
    QString plain = match.captured();
    plain.remove(u',').remove(u' ');
    if (IsNegative(simple, match.capturedStart(), match.capturedEnd()))
        plain.prepend(u'-');
    number = Settled(plain);
    return TFinding::One;
}

QString DecimalText::Settled(const QString& typed)
{
    return Joined(Split(typed));
}

QString DecimalText::Grouped(const QString& plain)
{
    const qsizetype start = plain.startsWith(u'-') ? 1 : 0;
    const qsizetype point = plain.indexOf(u'.');
    QString result = plain;
    for (qsizetype place = (point < 0 ? plain.size() : point) - 3; place > start; place -= 3)
        result.insert(place, u',');
    return result;
}

QString DecimalText::Rounded(const QString& plain, int decimals)
{
    TParts parts = Split(plain);
    const bool up = parts.decimals.size() > decimals && parts.decimals.at(decimals) >= u'5';
    parts.decimals.truncate(decimals);
    if (up) {
        const QString digits = Incremented(WithoutLeadingZeros(parts.whole) + parts.decimals);
        const qsizetype point = digits.size() - parts.decimals.size();
        parts.whole = digits.left(point);
        parts.decimals = digits.mid(point);
    }
    return WithoutTrailingZeros(Joined(parts));
}

QString DecimalText::WithoutTrailingZeros(const QString& plain)
{
    TParts parts = Split(plain);
    while (parts.decimals.endsWith(u'0'))
        parts.decimals.chop(1);
    return Joined(parts);
}

QString DecimalText::FromValue(long double value, int decimals)
{
    // As long as the largest value written out.
    std::array<char, 5200> buffer;
    if (!std::isfinite(value))
        return QStringLiteral("0");
    // A fraction that a double holds came from one, and its shortest text is the one meant: 0.1 has 55
    // digits.
    const auto narrow = static_cast<double>(value);
    const bool fromDouble = value != std::floor(value) && static_cast<long double>(narrow) == value;
    char* const end = buffer.data() + buffer.size();
    const std::to_chars_result written =
        fromDouble ? std::to_chars(buffer.data(), end, narrow, std::chars_format::fixed)
                   : std::to_chars(buffer.data(), end, value, std::chars_format::fixed);
    if (written.ec != std::errc())
        return QStringLiteral("0");
    return Rounded(QString::fromLatin1(buffer.data(), written.ptr - buffer.data()), decimals);
}

long double DecimalText::ToValue(const QString& plain)
{
    const QByteArray bytes = plain.toLatin1();
    long double value = 0;
    const std::from_chars_result read = std::from_chars(bytes.begin(), bytes.end(), value);
    return read.ec == std::errc() && read.ptr == bytes.end() && std::isfinite(value) ? value : 0;
}

int DecimalText::DigitCount(const QString& plain)
{
    return static_cast<int>(
        std::count_if(plain.begin(), plain.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }));
}

int DecimalText::DecimalCount(const QString& plain)
{
    return static_cast<int>(Split(plain).decimals.size());
}
