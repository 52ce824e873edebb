#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Dialect {

/// Without the blanks at both ends.
std::string_view Trimmed(std::string_view text);

/// The order of two decimal texts by value; texts that are no plain decimals are read as floating numbers.
int CompareDecimals(std::string_view first, std::string_view second);

/// Whether the text is the shortest form of its number and fits decimal(precision, scale) as it stands.
bool IsShortestDecimal(std::string_view text, int precision, int scale);

/// An exact decimal number, as money and decimal columns hold it: read with up to 38 digits, as the server
/// has them, and wide enough inside for the sum or product of two such numbers.
class TDecimal
{
public:
    TDecimal() = default;
    explicit TDecimal(std::int64_t value);

    /// Blanks around, a sign, digits, one dot; an exponent is understood too. Nothing when it is no number or
    /// has more than 38 digits.
    static std::optional<TDecimal> From(std::string_view text);

    /// The shortest text: no trailing zeros behind the dot, no dot without digits.
    std::string Text() const;
    /// The text with exactly that many places.
    std::string Text(int places) const;

    TDecimal Negated() const;
    TDecimal Absolute() const;
    /// Rounded half away from zero; `places` may be negative.
    TDecimal Rounded(int places) const;
    /// Without the places behind the given one.
    TDecimal Truncated(int places) const;
    TDecimal Plus(const TDecimal& other) const;
    TDecimal Times(const TDecimal& other) const;
    /// Divided by a positive count, with that many places, truncated as the server does.
    TDecimal DividedBy(std::int64_t count, int places) const;

    bool IsNegative() const { return negative_ && !IsZero(); }
    bool IsZero() const;
    /// Digits before the dot; 0 for a fraction.
    int WholeDigits() const;
    int Scale() const { return scale_; }

private:
    static constexpr int LimbDigits = 9;
    static constexpr std::uint32_t LimbBase = 1000000000;
    static constexpr std::size_t LimbCount = 10;
    using TLimbs = std::array<std::uint32_t, LimbCount>;

    /// Digits without dot, most significant first.
    std::string Digits() const;
    static TDecimal FromDigits(std::string_view digits, int scale, bool negative);
    void ScaleUp(int places);
    void MultiplySmall(std::uint32_t factor);
    /// The remainder.
    std::uint32_t DivideSmall(std::uint32_t divisor);
    static int CompareMagnitude(const TLimbs& first, const TLimbs& second);
    static TLimbs AddMagnitude(const TLimbs& first, const TLimbs& second);
    static TLimbs SubtractMagnitude(const TLimbs& larger, const TLimbs& smaller);

    bool negative_ = false;
    int scale_ = 0;
    TLimbs limbs_{}; ///< least significant first
};

} // namespace Dialect
