#include "Expressions.h"

#include "SqliteTypes.h"

#include <algorithm>

namespace Dialect {

namespace {

bool MayBeText(const TPiece& piece)
{
    return piece.Type.IsText() || piece.Type.Kind == TKind::Parameter || piece.Type.Kind == TKind::Null;
}

/// Whether `+` joins texts: both are, or a text literal stands beside something of which nothing is known.
bool Joins(const TPiece& left, const TPiece& right)
{
    if (!left.Type.IsText() && !right.Type.IsText())
        return false;
    if (MayBeText(left) && MayBeText(right))
        return true;
    const TPiece& unknown = left.Type.IsText() ? right : left;
    const TPiece& text = left.Type.IsText() ? left : right;
    return unknown.Type.Kind == TKind::Unknown && text.IsTextLiteral();
}

TPiece Joined(const TPiece& left, const TPiece& right)
{
    TPiece piece =
        WholePiece(Operand(left, TForm::Joined) + QLatin1String(" || ") + Operand(right, TForm::Joined),
                   CommonType(left.Type, right.Type));
    const bool areBounded = left.Type.Length > 0 && right.Type.Length > 0;
    const bool isUnbounded = left.Type.Length == Unbounded || right.Type.Length == Unbounded;
    piece.Type.Length = areBounded ? left.Type.Length + right.Type.Length : isUnbounded ? Unbounded : 0;
    piece.Form = TForm::Joined;
    return piece;
}

TType ExactResult(const TType& left, const TType& right, TSymbol operation)
{
    const TType common = CommonType(left, right);
    if (common.Kind == TKind::Money)
        return common;
    constexpr int wholeDigits = 10;
    const auto places = [](const TType& type) {
        return type.IsExact() ? type.Precision - type.Scale : wholeDigits;
    };
    if (operation == TSymbol::Star) {
        const int scale = std::min(left.Scale + right.Scale, MaxPrecision);
        return DecimalType(std::min(MaxPrecision, places(left) + places(right) + scale + 1), scale);
    }
    return DecimalType(std::min(MaxPrecision, std::max(places(left), places(right)) + common.Scale + 1),
                       common.Scale);
}

TPiece ExactArithmetic(const TCursor& cursor, const TPiece& left, const TToken& operation,
                       const TPiece& right)
{
    const QStringList arguments{Converted(left, DecimalType(0, 0)), Converted(right, DecimalType(0, 0))};
    const TType type = ExactResult(left.Type, right.Type, operation.Symbol);
    switch (operation.Symbol) {
    case TSymbol::Plus:
        return WholePiece(Call("ado_add", arguments), type);
    case TSymbol::Minus:
        return WholePiece(Call("ado_subtract", arguments), type);
    case TSymbol::Star:
        return WholePiece(Call("ado_multiply", arguments + QStringList{QString::number(type.Scale)}), type);
    default:
        cursor.Refuse(operation,
                      "exact numbers are added, subtracted and multiplied only, cast to float before");
    }
}

TPiece WholeDivision(const TPiece& left, const TToken& operation, const TPiece& right, const TType& type)
{
    const QString first = Converted(left, type);
    const QString second = Converted(right, type);
    const bool isSafe = right.IsNumberLiteral() && second.toLongLong() > 0;
    if (!isSafe)
        return WholePiece(Call(operation.Is(TSymbol::Slash) ? "ado_divide" : "ado_modulo", {first, second}),
                          type);
    TPiece piece = WholePiece(first + u' ' + operation.Raw.toString() + u' ' + second, type);
    piece.Form = TForm::Product;
    return piece;
}

TPiece PlainArithmetic(const TCursor& cursor, const TPiece& left, const TToken& operation,
                       const TPiece& right, const TType& type)
{
    const bool divides = operation.Is(TSymbol::Slash) || operation.Is(TSymbol::Percent);
    if (divides && type.Kind != TKind::Float)
        return WholeDivision(left, operation, right, type);
    const QString first = Converted(left, type);
    const QString second = Converted(right, type);
    if (operation.Is(TSymbol::Slash))
        return WholePiece(Call("ado_divide", {first, second}), type);
    const bool isBitwise =
        operation.Is(TSymbol::Ampersand) || operation.Is(TSymbol::Bar) || operation.Is(TSymbol::Caret);
    if (type.Kind == TKind::Float && (isBitwise || divides))
        cursor.Refuse(operation, "not an operation of floating numbers");
    if (operation.Is(TSymbol::Caret))
        return WholePiece(QStringLiteral("((%1 | %2) - (%1 & %2))").arg(first, second), type);
    TPiece piece = WholePiece(first + u' ' + operation.Raw.toString() + u' ' + second, type);
    piece.Form = isBitwise ? TForm::Loose : operation.Is(TSymbol::Star) ? TForm::Product : TForm::Sum;
    return piece;
}

} // namespace

TPiece Unified(const TPiece& value, const TType& common)
{
    if (value.Type.Kind == TKind::Parameter)
        return value;
    return WholePiece(Converted(value, common), common);
}

TPiece Arithmetic(const TCursor& cursor, const TPiece& left, const TToken& operation, const TPiece& right)
{
    if (left.IsCondition || right.IsCondition)
        cursor.Refuse(operation, "a condition is no operand");
    if (operation.Is(TSymbol::Plus) && Joins(left, right))
        return Joined(left, right);
    const TType common = CommonType(left.Type, right.Type);
    if (common.IsMoment())
        cursor.Refuse(operation, "arithmetic with dates is done by DATEADD and DATEDIFF");
    const bool isUndecided = left.Type.Kind == TKind::Unknown || right.Type.Kind == TKind::Unknown ||
                             (!left.Type.IsNumber() && !right.Type.IsNumber());
    if (isUndecided)
        cursor.Refuse(QString(left.Sql + u' ' + operation.Raw.toString() + u' ' + right.Sql),
                      "it cannot be told whether these are numbers or texts");
    if (common.Kind == TKind::Blob)
        cursor.Refuse(operation, "binary data is no operand");
    if (common.IsExact())
        return ExactArithmetic(cursor, left, operation, right);
    return PlainArithmetic(cursor, left, operation, right, common);
}

} // namespace Dialect
