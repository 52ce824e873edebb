#pragma once

#include <initializer_list>
#include <QtGlobal>

/// A level of an account code, in the order in which the levels are typed.
enum class TCodeItem : quint8 { ctTotal, ctAssistant, ctDetail, ctExpenseCenter };

/// A set of levels, one bit per ordinal: bit 0 is ctTotal, bit 3 ctExpenseCenter.
class TCodeItems
{
public:
    constexpr TCodeItems() = default;
    /// In any order.
    constexpr TCodeItems(std::initializer_list<TCodeItem> levels)
    {
        for (const TCodeItem level : levels)
            bits_ = static_cast<quint8>(bits_ | Bit(level));
    }
    /// Bits beyond the four levels are dropped.
    static constexpr TCodeItems FromBits(unsigned bits)
    {
        TCodeItems items;
        items.bits_ = static_cast<quint8>(bits & AllBits);
        return items;
    }

    /// Whether the level is in the set.
    constexpr bool Contains(TCodeItem level) const { return (bits_ & Bit(level)) != 0; }
    constexpr bool ContainsAccount() const { return (bits_ & AccountBits) != 0; } ///< any of the first three
    constexpr bool IsEmpty() const { return bits_ == 0; }                         ///< no level
    constexpr quint8 Bits() const { return bits_; }                               ///< 0 to 15
    friend constexpr bool operator==(TCodeItems first, TCodeItems second) = default;

private:
    static constexpr unsigned AccountBits = 0b0111;
    static constexpr unsigned AllBits = 0b1111;
    static constexpr quint8 Bit(TCodeItem level)
    {
        return static_cast<quint8>(1U << static_cast<unsigned>(level));
    }

    quint8 bits_ = 0;
};
