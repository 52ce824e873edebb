#include "Piece.h"

namespace Dialect {

namespace {

QString AssignedText(const TCursor& cursor, const TPiece& piece, const TType& target)
{
    const QString text = AsText(cursor, piece);
    const bool fits = target.Length <= 0 || piece.Type.Kind == TKind::Null ||
                      (piece.Type.IsText() && piece.Type.Length > 0 && piece.Type.Length <= target.Length);
    return fits ? text : Call("ado_fit", {text, QString::number(target.Length)});
}

QString AssignedWhole(const TPiece& piece, const TType& target)
{
    if (target.Kind == TKind::Bit) {
        const bool isBit = piece.Type.Kind == TKind::Bit || piece.Value == u"0" || piece.Value == u"1";
        return isBit && !piece.IsTextLiteral() ? Bracketed(piece) : Call("ado_bit", {piece.Sql});
    }
    const bool isWhole = piece.Type.IsWhole() || piece.Type.IsOpen();
    if (isWhole)
        return Bracketed(piece);
    return Call(piece.Type.IsText() ? "ado_int" : "ado_truncate", {piece.Sql});
}

QString AssignedExact(const TPiece& piece, const TType& target)
{
    const bool isSame = piece.Type.IsExact() && piece.Literal == TLiteral::None && piece.CarriesCollation &&
                        piece.Type.Scale <= target.Scale &&
                        piece.Type.Precision - piece.Type.Scale <= target.Precision - target.Scale;
    if (isSame || piece.Type.Kind == TKind::Null)
        return Bracketed(piece);
    const QString value = piece.IsNumberLiteral() ? QuotedText(piece.Value) : piece.Sql;
    return Call("ado_decimal", {value, QString::number(target.Precision), QString::number(target.Scale)});
}

void RefuseImpossible(const TCursor& cursor, const TPiece& piece, const TType& target)
{
    const bool numberAsMoment = target.IsMoment() && piece.Type.IsNumber();
    const bool momentAsNumber = target.IsNumber() && piece.Type.IsMoment();
    const bool blobMixed = (target.Kind == TKind::Blob) != (piece.Type.Kind == TKind::Blob) &&
                           !piece.Type.IsOpen() && target.Kind != TKind::Unknown;
    if (numberAsMoment || momentAsNumber || blobMixed)
        cursor.Refuse(piece.Sql, "cannot be converted to the type of its destination");
}

TPiece CastToText(const TCursor& cursor, const TPiece& piece, TType target)
{
    // A text keeps the collation that it has.
    target.Binary = piece.Type.IsText() && piece.Type.Binary;
    const QString text = AsText(cursor, piece);
    constexpr int longestNumber = 20;
    const bool fits = target.Length == Unbounded ||
                      (piece.Type.IsText() && piece.Type.Length > 0 && piece.Type.Length <= target.Length) ||
                      (piece.Type.IsWhole() && target.Length >= longestNumber);
    if (fits)
        return WholePiece(text, target);
    return WholePiece(Call("substr", {text, QStringLiteral("1"), QString::number(target.Length)}), target);
}

} // namespace

QString Assigned(const TCursor& cursor, const TPiece& piece, const TType& target)
{
    RefuseImpossible(cursor, piece, target);
    switch (target.Kind) {
    case TKind::Text:
        return AssignedText(cursor, piece, target);
    case TKind::Bit:
    case TKind::Int:
    case TKind::BigInt:
        return AssignedWhole(piece, target);
    case TKind::Decimal:
    case TKind::Money:
        return AssignedExact(piece, target);
    case TKind::Date:
        // A date and time is cut to its date.
        if (piece.Type.Kind == TKind::DateTime)
            return Call("ado_date", {piece.Sql});
        return Converted(piece, target);
    case TKind::Float:
    case TKind::DateTime:
    case TKind::Blob:
    case TKind::Unknown:
    case TKind::Null:
    case TKind::Parameter:
        break;
    }
    return Converted(piece, target);
}

TPiece Cast(const TCursor& cursor, const TPiece& piece, const TType& target)
{
    if (target.IsText())
        return CastToText(cursor, piece, target);
    TPiece cast = WholePiece(Assigned(cursor, piece, target), target);
    if (target.Kind == TKind::Float && !piece.Type.IsText())
        cast.Sql = QStringLiteral("CAST(%1 AS REAL)").arg(piece.Sql);
    return cast;
}

} // namespace Dialect
