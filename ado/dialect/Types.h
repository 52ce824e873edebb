#pragma once

#include <QString>
#include <QStringView>

namespace Dialect {

/// What a value is, as far as its meaning in an expression depends on it.
enum class TKind : quint8 {
    Unknown,   ///< a column whose type nobody told
    Null,      ///< the word NULL
    Parameter, ///< a `?` mark
    Bit,
    Int,
    BigInt,
    Float,
    Decimal, ///< decimal, numeric: exact, a decimal text
    Money,   ///< exact with four decimal places
    Text,
    Date,
    DateTime,
    Blob,
};

inline constexpr int Unbounded = -1;
inline constexpr int MoneyScale = 4;
inline constexpr int MaxPrecision = 38;

struct TType
{
    TKind Kind = TKind::Unknown;
    bool Binary = false; ///< text under a BIN2 collation
    int Length = 0;      ///< of a text, in characters; 0 unknown; Unbounded for max
    int Precision = 0;   ///< of a decimal
    int Scale = 0;       ///< of a decimal or money

    bool IsText() const { return Kind == TKind::Text; }
    bool IsExact() const { return Kind == TKind::Decimal || Kind == TKind::Money; }
    bool IsWhole() const { return Kind == TKind::Bit || Kind == TKind::Int || Kind == TKind::BigInt; }
    bool IsNumber() const { return IsWhole() || IsExact() || Kind == TKind::Float; }
    bool IsMoment() const { return Kind == TKind::Date || Kind == TKind::DateTime; }
    /// Nothing is known that would decide between number and text.
    bool IsOpen() const { return Kind == TKind::Unknown || Kind == TKind::Null || Kind == TKind::Parameter; }
};

TType TextType(int length);
TType DecimalType(int precision, int scale);
TType MoneyType();

/// The type that a declared column type stands for.
TType TypeOfDeclaration(const QString& declaredType);
/// The declared type of a result column of that type; empty where it is not known.
QString DeclarationOf(const TType& type);
/// The type that two values have in common in comparisons, CASE, COALESCE and UNION: the one of higher
/// precedence.
TType CommonType(const TType& first, const TType& second);

/// A decimal literal of any length in its shortest form: no leading or trailing zeros, no plus sign.
QString CanonicalDecimal(QStringView number);
/// The type of a number as written: whole, exact or floating.
TType TypeOfNumber(QStringView number);
/// Whether the text is an optional sign and digits with at most one dot (blanks around it allowed).
bool IsDecimalText(QStringView text);

} // namespace Dialect
