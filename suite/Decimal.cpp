#include "Decimal.h"

#include "DecimalText.h"

#include <algorithm>

namespace {

QByteArray Trimmed(const QByteArray& digits)
{
    qsizetype zeros = 0;
    while (zeros + 1 < digits.size() && digits.at(zeros) == '0')
        ++zeros;
    return digits.mid(zeros);
}

int Compare(const QByteArray& left, const QByteArray& right)
{
    const QByteArray first = Trimmed(left);
    const QByteArray second = Trimmed(right);
    if (first.size() != second.size())
        return first.size() < second.size() ? -1 : 1;
    return first.compare(second);
}

int DigitFromEnd(const QByteArray& digits, qsizetype place)
{
    return place < digits.size() ? digits.at(digits.size() - 1 - place) - '0' : 0;
}

QByteArray Sum(const QByteArray& left, const QByteArray& right)
{
    QByteArray result;
    int carry = 0;
    for (qsizetype place = 0; place < qMax(left.size(), right.size()) || carry > 0; ++place) {
        const int digit = DigitFromEnd(left, place) + DigitFromEnd(right, place) + carry;
        result += static_cast<char>('0' + digit % 10);
        carry = digit / 10;
    }
    std::reverse(result.begin(), result.end());
    return result;
}

// The left number is the larger one.
QByteArray Difference(const QByteArray& left, const QByteArray& right)
{
    QByteArray result;
    int borrow = 0;
    for (qsizetype place = 0; place < left.size(); ++place) {
        const int digit = DigitFromEnd(left, place) - DigitFromEnd(right, place) - borrow;
        borrow = digit < 0 ? 1 : 0;
        result += static_cast<char>('0' + digit + 10 * borrow);
    }
    std::reverse(result.begin(), result.end());
    return Trimmed(result);
}

QByteArray Product(const QByteArray& left, const QByteArray& right)
{
    QByteArray result("0");
    for (qsizetype place = 0; place < right.size(); ++place) {
        const QByteArray shifted = left + QByteArray(place, '0');
        for (int times = DigitFromEnd(right, place); times > 0; --times)
            result = Sum(result, shifted);
    }
    return Trimmed(result);
}

// Whole quotient, and in `rest` what is left of the dividend.
QByteArray Quotient(const QByteArray& dividend, const QByteArray& divisor, QByteArray& rest)
{
    QByteArray result;
    rest = "0";
    for (const char digit : dividend) {
        rest = Trimmed(rest + digit);
        char times = '0';
        while (Compare(rest, divisor) >= 0) {
            rest = Difference(rest, divisor);
            ++times;
        }
        result += times;
    }
    return Trimmed(result);
}

} // namespace

TDecimal::TDecimal(const QString& plain)
    : negative_(plain.startsWith(u'-')), digits_(plain.toLatin1()),
      decimals_(DecimalText::DecimalCount(plain))
{
    digits_.replace('-', "").replace('.', "");
    if (digits_.isEmpty())
        digits_ = "0";
}

QString TDecimal::ToString() const
{
    QString text = QString::fromLatin1(digits_).rightJustified(decimals_ + 1, u'0');
    if (decimals_ > 0)
        text.insert(text.size() - decimals_, u'.');
    return DecimalText::WithoutTrailingZeros(negative_ ? u'-' + text : text);
}

bool TDecimal::IsZero() const
{
    return Trimmed(digits_) == "0";
}

void TDecimal::Scale(int decimals)
{
    digits_ += QByteArray(decimals - decimals_, '0');
    decimals_ = decimals;
}

TDecimal operator+(const TDecimal& left, const TDecimal& right)
{
    TDecimal first = left;
    TDecimal second = right;
    const int decimals = qMax(first.decimals_, second.decimals_);
    first.Scale(decimals);
    second.Scale(decimals);
    if (first.negative_ == second.negative_) {
        first.digits_ = Sum(first.digits_, second.digits_);
        return first;
    }
    if (Compare(first.digits_, second.digits_) < 0)
        std::swap(first, second);
    first.digits_ = Difference(first.digits_, second.digits_);
    return first;
}

TDecimal operator-(const TDecimal& left, const TDecimal& right)
{
    TDecimal opposite = right;
    opposite.negative_ = !opposite.negative_;
    return left + opposite;
}

TDecimal operator*(const TDecimal& left, const TDecimal& right)
{
    TDecimal result;
    result.negative_ = left.negative_ != right.negative_;
    result.digits_ = Product(left.digits_, right.digits_);
    result.decimals_ = left.decimals_ + right.decimals_;
    return result;
}

std::optional<TDecimal> TDecimal::Quotient(const TDecimal& left, const TDecimal& right, int decimals)
{
    if (right.IsZero())
        return std::nullopt;
    // Both as whole numbers of one scale, the dividend longer by the digits that are wanted and one to round
    // by.
    TDecimal dividend = left;
    TDecimal divisor = right;
    const int common = qMax(dividend.decimals_, divisor.decimals_);
    dividend.Scale(common);
    divisor.Scale(common);
    QByteArray rest;
    TDecimal result;
    result.negative_ = left.negative_ != right.negative_;
    result.digits_ =
        ::Quotient(dividend.digits_ + QByteArray(decimals + 1, '0'), Trimmed(divisor.digits_), rest);
    result.decimals_ = decimals + 1;
    return TDecimal(DecimalText::Rounded(result.ToString(), decimals));
}
