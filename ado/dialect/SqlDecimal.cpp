#include "SqlDecimal.h"

#include <algorithm>
#include <cstdlib>

namespace Dialect {

namespace {

constexpr std::size_t MostDigits = 38;
constexpr std::array<std::uint32_t, 10> PowersOfTen{1,      10,      100,      1000,      10000,
                                                    100000, 1000000, 10000000, 100000000, 1000000000};

struct TParts
{
    bool Negative = false;
    std::string_view Whole;    ///< without leading zeros
    std::string_view Fraction; ///< without trailing zeros
};

bool AreDigits(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<TParts> PartsOf(std::string_view text)
{
    text = Trimmed(text);
    TParts parts;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        parts.Negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t dot = text.find('.');
    parts.Whole = text.substr(0, dot);
    if (dot != std::string_view::npos)
        parts.Fraction = text.substr(dot + 1);
    const bool isNumber = (!parts.Whole.empty() || !parts.Fraction.empty()) && AreDigits(parts.Whole) &&
                          AreDigits(parts.Fraction);
    if (!isNumber)
        return std::nullopt;
    while (!parts.Whole.empty() && parts.Whole.front() == '0')
        parts.Whole.remove_prefix(1);
    while (!parts.Fraction.empty() && parts.Fraction.back() == '0')
        parts.Fraction.remove_suffix(1);
    if (parts.Whole.empty() && parts.Fraction.empty())
        parts.Negative = false;
    return parts;
}

int Sign(int comparison)
{
    return comparison < 0 ? -1 : comparison > 0 ? 1 : 0;
}

int CompareParts(const TParts& first, const TParts& second)
{
    if (first.Negative != second.Negative)
        return first.Negative ? -1 : 1;
    int magnitude = 0;
    if (first.Whole.size() != second.Whole.size())
        magnitude = first.Whole.size() < second.Whole.size() ? -1 : 1;
    else if (const int whole = first.Whole.compare(second.Whole); whole != 0)
        magnitude = Sign(whole);
    else
        magnitude = Sign(first.Fraction.compare(second.Fraction));
    return first.Negative ? -magnitude : magnitude;
}

double Floating(std::string_view text)
{
    return std::strtod(std::string(text).c_str(), nullptr);
}

} // namespace

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

int CompareDecimals(std::string_view first, std::string_view second)
{
    const std::optional<TParts> left = PartsOf(first);
    const std::optional<TParts> right = PartsOf(second);
    if (left && right)
        return CompareParts(*left, *right);
    const double leftValue = Floating(first);
    const double rightValue = Floating(second);
    if (leftValue != rightValue)
        return leftValue < rightValue ? -1 : 1;
    return Sign(first.compare(second));
}

bool IsShortestDecimal(std::string_view text, int precision, int scale)
{
    if (text == "0")
        return true;
    const bool isNegative = text.starts_with('-');
    const std::optional<TParts> parts = PartsOf(text);
    if (!parts || parts->Negative != isNegative)
        return false;
    const std::size_t whole = std::max<std::size_t>(parts->Whole.size(), 1);
    const std::size_t fraction = parts->Fraction.empty() ? 0 : parts->Fraction.size() + 1;
    return text.size() == whole + fraction + (isNegative ? 1 : 0) &&
           static_cast<int>(parts->Whole.size()) <= precision - scale &&
           static_cast<int>(parts->Fraction.size()) <= scale;
}

TDecimal::TDecimal(std::int64_t value) : negative_(value < 0)
{
    auto rest = negative_ ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
    for (std::size_t i = 0; rest != 0; ++i) {
        limbs_[i] = static_cast<std::uint32_t>(rest % LimbBase);
        rest /= LimbBase;
    }
}

std::optional<TDecimal> TDecimal::From(std::string_view text)
{
    text = Trimmed(text);
    int exponent = 0;
    const std::size_t e = text.find_first_of("eE");
    if (e != std::string_view::npos) {
        const std::string digits(text.substr(e + 1));
        char* end = nullptr;
        exponent = static_cast<int>(std::strtol(digits.c_str(), &end, 10));
        if (digits.empty() || *end != '\0' || std::abs(exponent) > static_cast<int>(MostDigits))
            return std::nullopt;
        text = text.substr(0, e);
    }
    const std::optional<TParts> parts = PartsOf(text);
    if (!parts)
        return std::nullopt;
    std::string digits(parts->Whole);
    digits += parts->Fraction;
    int scale = static_cast<int>(parts->Fraction.size()) - exponent;
    if (scale < 0) {
        digits.append(static_cast<std::size_t>(-scale), '0');
        scale = 0;
    }
    if (digits.size() > MostDigits || scale > static_cast<int>(MostDigits))
        return std::nullopt;
    return FromDigits(digits, scale, parts->Negative);
}

TDecimal TDecimal::FromDigits(std::string_view digits, int scale, bool negative)
{
    TDecimal decimal;
    decimal.negative_ = negative;
    decimal.scale_ = scale;
    for (std::size_t limb = 0; !digits.empty() && limb < LimbCount; ++limb) {
        const std::size_t taken = std::min<std::size_t>(LimbDigits, digits.size());
        for (const char digit : digits.substr(digits.size() - taken))
            decimal.limbs_[limb] = decimal.limbs_[limb] * 10 + static_cast<std::uint32_t>(digit - '0');
        digits.remove_suffix(taken);
    }
    return decimal;
}

std::string TDecimal::Digits() const
{
    std::string digits;
    for (std::size_t limb = LimbCount; limb-- > 0;) {
        const std::string part = std::to_string(limbs_[limb]);
        digits.append(LimbDigits - part.size(), '0');
        digits += part;
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    const auto fewest = static_cast<std::size_t>(scale_) + 1;
    if (digits.size() < fewest)
        digits.insert(0, fewest - digits.size(), '0');
    return digits;
}

std::string TDecimal::Text() const
{
    std::string text = Text(scale_);
    if (text.find('.') == std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::string TDecimal::Text(int places) const
{
    TDecimal rounded = Rounded(places);
    rounded.ScaleUp(std::max(places, 0));
    std::string text = rounded.Digits();
    if (rounded.scale_ > 0)
        text.insert(text.size() - static_cast<std::size_t>(rounded.scale_), 1, '.');
    return rounded.IsNegative() ? '-' + text : text;
}

TDecimal TDecimal::Negated() const
{
    TDecimal result = *this;
    result.negative_ = !negative_;
    return result;
}

TDecimal TDecimal::Absolute() const
{
    TDecimal result = *this;
    result.negative_ = false;
    return result;
}

TDecimal TDecimal::Truncated(int places) const
{
    TDecimal result = *this;
    const int wanted = std::max(places, 0);
    while (result.scale_ > wanted) {
        const int step = std::min(result.scale_ - wanted, LimbDigits);
        result.DivideSmall(PowersOfTen[static_cast<std::size_t>(step)]);
        result.scale_ -= step;
    }
    for (int place = 0; place > places; --place)
        result.DivideSmall(10);
    for (int place = 0; place > places; --place)
        result.MultiplySmall(10);
    return result;
}

TDecimal TDecimal::Rounded(int places) const
{
    if (scale_ <= places)
        return *this;
    // Half a unit of the last kept place, away from zero, then cut.
    TDecimal half(5);
    if (places >= 0)
        half.scale_ = places + 1;
    else
        for (int place = places + 1; place < 0; ++place)
            half.MultiplySmall(10);
    half.negative_ = negative_;
    return Plus(half).Truncated(places);
}

void TDecimal::ScaleUp(int places)
{
    while (scale_ < places) {
        const int step = std::min(places - scale_, LimbDigits);
        MultiplySmall(PowersOfTen[static_cast<std::size_t>(step)]);
        scale_ += step;
    }
}

void TDecimal::MultiplySmall(std::uint32_t factor)
{
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : limbs_) {
        carry += static_cast<std::uint64_t>(limb) * factor;
        limb = static_cast<std::uint32_t>(carry % LimbBase);
        carry /= LimbBase;
    }
}

std::uint32_t TDecimal::DivideSmall(std::uint32_t divisor)
{
    std::uint64_t rest = 0;
    for (std::size_t limb = LimbCount; limb-- > 0;) {
        rest = rest * LimbBase + limbs_[limb];
        limbs_[limb] = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
    return static_cast<std::uint32_t>(rest);
}

int TDecimal::CompareMagnitude(const TLimbs& first, const TLimbs& second)
{
    for (std::size_t limb = LimbCount; limb-- > 0;) {
        if (first[limb] != second[limb])
            return first[limb] < second[limb] ? -1 : 1;
    }
    return 0;
}

TDecimal::TLimbs TDecimal::AddMagnitude(const TLimbs& first, const TLimbs& second)
{
    TLimbs sum{};
    std::uint32_t carry = 0;
    for (std::size_t limb = 0; limb < LimbCount; ++limb) {
        const std::uint32_t value = first[limb] + second[limb] + carry;
        carry = value / LimbBase;
        sum[limb] = value % LimbBase;
    }
    return sum;
}

TDecimal::TLimbs TDecimal::SubtractMagnitude(const TLimbs& larger, const TLimbs& smaller)
{
    TLimbs difference{};
    std::uint32_t borrow = 0;
    for (std::size_t limb = 0; limb < LimbCount; ++limb) {
        const std::uint32_t taken = smaller[limb] + borrow;
        borrow = larger[limb] < taken ? 1U : 0U;
        difference[limb] = larger[limb] + borrow * LimbBase - taken;
    }
    return difference;
}

TDecimal TDecimal::Plus(const TDecimal& other) const
{
    TDecimal left = *this;
    TDecimal right = other;
    left.ScaleUp(right.scale_);
    right.ScaleUp(left.scale_);
    if (left.negative_ == right.negative_) {
        left.limbs_ = AddMagnitude(left.limbs_, right.limbs_);
        return left;
    }
    const bool leftLeads = CompareMagnitude(left.limbs_, right.limbs_) >= 0;
    TDecimal result = leftLeads ? left : right;
    result.limbs_ = leftLeads ? SubtractMagnitude(left.limbs_, right.limbs_)
                              : SubtractMagnitude(right.limbs_, left.limbs_);
    return result;
}

TDecimal TDecimal::Times(const TDecimal& other) const
{
    TDecimal result;
    result.negative_ = negative_ != other.negative_;
    result.scale_ = scale_ + other.scale_;
    for (std::size_t i = 0; i < LimbCount; ++i) {
        if (limbs_[i] == 0)
            continue;
        std::uint64_t carry = 0;
        for (std::size_t j = 0; i + j < LimbCount; ++j) {
            carry += result.limbs_[i + j] + static_cast<std::uint64_t>(limbs_[i]) * other.limbs_[j];
            result.limbs_[i + j] = static_cast<std::uint32_t>(carry % LimbBase);
            carry /= LimbBase;
        }
    }
    return result;
}

TDecimal TDecimal::DividedBy(std::int64_t count, int places) const
{
    TDecimal rest = *this;
    rest.ScaleUp(places);
    const std::string dividend = rest.Digits();
    const auto divisor = static_cast<std::uint64_t>(count);
    std::string quotient;
    // Digit by digit: a count of rows stays far below 10^18, so ten times the rest fits.
    std::uint64_t remainder = 0;
    for (const char digit : dividend) {
        remainder = remainder * 10 + static_cast<std::uint64_t>(digit - '0');
        quotient += static_cast<char>('0' + remainder / divisor);
        remainder %= divisor;
    }
    return FromDigits(quotient, rest.scale_, negative_).Truncated(places);
}

bool TDecimal::IsZero() const
{
    return std::all_of(limbs_.begin(), limbs_.end(), [](std::uint32_t limb) { return limb == 0; });
}

int TDecimal::WholeDigits() const
{
    const std::string digits = Truncated(0).Digits();
    return digits == "0" ? 0 : static_cast<int>(digits.size());
}

} // namespace Dialect
