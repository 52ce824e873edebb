#include "Piece.h"

#include "Moment.h"

#include <algorithm>

namespace Dialect {

namespace {

constexpr int ExactDoubleDigits = 15;

bool IsShortNumber(const TPiece& piece)
{
    return piece.IsNumberLiteral() && piece.Value.size() <= ExactDoubleDigits;
}

QString ConvertedToNumber(const TPiece& piece, const TType& target)
{
    if (piece.Type.IsText()) {
        const bool isNumber = piece.IsTextLiteral() && IsDecimalText(piece.Value);
        if (isNumber && (target.Kind == TKind::Float || !piece.Value.contains(u'.')))
            return CanonicalDecimal(piece.Value);
        return Call(target.Kind == TKind::Float ? "ado_float" : "ado_int", {piece.Sql});
    }
    if (piece.Type.IsExact() && target.Kind == TKind::Float)
        return IsShortNumber(piece) ? piece.Value : QStringLiteral("CAST(%1 AS REAL)").arg(piece.Sql);
    return Bracketed(piece);
}

QString ConvertedToExact(const TPiece& piece)
{
    if (piece.Literal != TLiteral::None && IsDecimalText(piece.Value))
        return QuotedText(CanonicalDecimal(piece.Value));
    if (piece.Type.IsWhole())
        return QStringLiteral("CAST(%1 AS TEXT)").arg(piece.Sql);
    if (piece.Type.IsText() || piece.Type.Kind == TKind::Parameter || piece.Type.Kind == TKind::Float)
        return Call("ado_decimal", {piece.Sql});
    return Bracketed(piece);
}

QString ConvertedToMoment(const TPiece& piece, TKind target)
{
    if (piece.IsTextLiteral()) {
        const QString moment = target == TKind::Date ? DateText(piece.Value) : DateTimeText(piece.Value);
        if (!moment.isEmpty())
            return QuotedText(moment);
    }
    if (piece.Type.Kind == target || piece.Type.Kind == TKind::Null)
        return Bracketed(piece);
    return Call(target == TKind::Date ? "ado_date" : "ado_datetime", {piece.Sql});
}

} // namespace

TPiece WholePiece(const QString& sql, const TType& type)
{
    TPiece piece;
    piece.Sql = sql;
    piece.Type = type;
    return piece;
}

TPiece ConditionPiece(const QString& sql)
{
    TPiece piece;
    piece.Sql = sql;
    piece.Form = TForm::Loose;
    piece.IsCondition = true;
    return piece;
}

TPiece TextLiteral(const QString& text)
{
    TPiece piece = WholePiece(QuotedText(text), TextType(static_cast<int>(text.size())));
    piece.Literal = TLiteral::Text;
    piece.Value = text;
    return piece;
}

TPiece NumberLiteral(const QString& number)
{
    const TType type = TypeOfNumber(number);
    TPiece piece = WholePiece(type.IsExact() ? QuotedText(CanonicalDecimal(number)) : number, type);
    piece.Literal = TLiteral::Number;
    piece.Value = type.IsExact() ? CanonicalDecimal(number) : number;
    return piece;
}

QString Bracketed(const TPiece& piece)
{
    return Operand(piece, TForm::Whole);
}

QString Operand(const TPiece& piece, TForm form)
{
    if (piece.Form == TForm::Whole || (piece.Form == TForm::Joined && form == TForm::Joined))
        return piece.Sql;
    return u'(' + piece.Sql + u')';
}

QString Call(const char* function, const QStringList& arguments)
{
    return QLatin1String(function) + u'(' + arguments.join(QLatin1String(", ")) + u')';
}

QString Converted(const TPiece& piece, const TType& target)
{
    switch (target.Kind) {
    case TKind::Bit:
    case TKind::Int:
    case TKind::BigInt:
    case TKind::Float:
        return ConvertedToNumber(piece, target);
    case TKind::Decimal:
    case TKind::Money:
        return ConvertedToExact(piece);
    case TKind::Date:
    case TKind::DateTime:
        return ConvertedToMoment(piece, target.Kind);
    case TKind::Text:
    case TKind::Blob:
    case TKind::Unknown:
    case TKind::Null:
    case TKind::Parameter:
        break;
    }
    return Bracketed(piece);
}

QString AsText(const TCursor& cursor, const TPiece& piece)
{
    if (piece.Type.IsWhole())
        return QStringLiteral("CAST(%1 AS TEXT)").arg(piece.Sql);
    if (piece.Type.IsExact()) {
        // The server writes money with two decimal places and a decimal with all it is declared with.
        const int places = piece.Type.Kind == TKind::Money ? 2 : piece.Type.Scale;
        return Call("ado_decimal_text", {piece.Sql, QString::number(places)});
    }
    if (piece.Type.Kind == TKind::Float)
        return Call("ado_float_text", {piece.Sql});
    if (piece.Type.Kind == TKind::DateTime)
        cursor.Refuse(piece.Sql, "a date and time becomes text by CONVERT with a style only");
    if (piece.Type.Kind == TKind::Blob)
        cursor.Refuse(piece.Sql, "binary data does not become text");
    return Bracketed(piece);
}

QString Collated(const QString& sql, const TType& type)
{
    if (type.IsText())
        return sql + QLatin1String(" COLLATE ") +
               QLatin1String(type.Binary ? BinaryCollation : TextCollation);
    if (type.IsExact())
        return sql + QLatin1String(" COLLATE ") + QLatin1String(DecimalCollation);
    return sql;
}

QString SelfCollated(const TPiece& piece)
{
    const bool compares = (piece.Type.IsText() || piece.Type.IsExact()) && !piece.CarriesCollation;
    return compares ? Collated(Bracketed(piece), piece.Type) : piece.Sql;
}

QString ComparisonObject(const TPiece& piece, const TPiece& left, const TType& common)
{
    const bool comparesWhole =
        left.CarriesCollation && (left.Type.IsWhole() || left.Type.Kind == TKind::Float);
    if (comparesWhole && IsShortNumber(piece))
        return piece.Value;
    return Converted(piece, common);
}

QString ComparisonSubject(const TPiece& left, const QVector<TPiece>& others, const TType& common)
{
    const auto isNumberAsWritten = [&](const TPiece& other) {
        return IsShortNumber(other) || other.Type.IsWhole() || other.Type.Kind == TKind::Float;
    };
    const bool isPlainNumber =
        left.CarriesCollation && (left.Type.IsWhole() || left.Type.Kind == TKind::Float);
    if (isPlainNumber && std::all_of(others.begin(), others.end(), isNumberAsWritten))
        return left.Sql;
    QString subject = Converted(left, common);
    if (!common.IsText() && !common.IsExact())
        return subject;
    const auto yields = [](const TPiece& piece) {
        return piece.Literal != TLiteral::None || piece.Type.Kind == TKind::Parameter ||
               piece.Type.Kind == TKind::Null;
    };
    const auto carries = [&](const TPiece& piece) {
        return piece.CarriesCollation && piece.Type.IsExact() == common.IsExact() &&
               piece.Type.Binary == common.Binary && !piece.Type.IsOpen();
    };
    const bool leftDecides =
        carries(left) && std::all_of(others.begin(), others.end(),
                                     [&](const TPiece& other) { return carries(other) || yields(other); });
    const bool rightDecides = yields(left) && others.size() == 1 && carries(others.front());
    return leftDecides || rightDecides ? subject : Collated(subject, common);
}

TPiece Comparison(const TPiece& left, const QString& operation, const TPiece& right)
{
    const TType common = CommonType(left.Type, right.Type);
    return ConditionPiece(ComparisonSubject(left, {right}, common) + u' ' + operation + u' ' +
                          ComparisonObject(right, left, common));
}

} // namespace Dialect
