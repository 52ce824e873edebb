#pragma once

#include "Cursor.h"
#include "Types.h"

namespace Dialect {

/// How tightly the translated text of a piece holds together.
enum class TForm : quint8 {
    Whole,   ///< needs no brackets anywhere
    Joined,  ///< a || b
    Product, ///< a * b
    Sum,     ///< a + b
    Loose,   ///< anything else
};

enum class TLiteral : quint8 { None, Text, Number };

/// A translated expression and what is known of it.
struct TPiece
{
    QString Sql;
    TType Type;
    TForm Form = TForm::Whole;
    bool IsCondition = false;      ///< true or false, as WHERE takes it; not a value
    bool CarriesCollation = false; ///< a column, which compares under its own collation
    TLiteral Literal = TLiteral::None;
    QString Value;      ///< content of a literal
    QString ColumnName; ///< of a column, as written

    bool IsTextLiteral() const { return Literal == TLiteral::Text; }
    bool IsNumberLiteral() const { return Literal == TLiteral::Number; }
};

TPiece WholePiece(const QString& sql, const TType& type);
TPiece ConditionPiece(const QString& sql);
TPiece TextLiteral(const QString& text);
TPiece NumberLiteral(const QString& number);
/// The piece in brackets if it needs them.
QString Bracketed(const TPiece& piece);
/// The piece as a part of an operation of that form.
QString Operand(const TPiece& piece, TForm form);
QString Call(const char* function, const QStringList& arguments);

/// The piece as a value of the type, as the server converts it without being asked; fails at run time on
/// rubbish.
QString Converted(const TPiece& piece, const TType& target);
/// The piece as text, as LIKE and the text functions take it.
QString AsText(const TCursor& cursor, const TPiece& piece);
/// The piece as the value of a column of that type: rounded, completed, refused when it does not fit.
QString Assigned(const TCursor& cursor, const TPiece& piece, const TType& target);
/// CAST and CONVERT.
TPiece Cast(const TCursor& cursor, const TPiece& piece, const TType& target);
/// The text with the collation under which values of the type compare.
QString Collated(const QString& sql, const TType& type);
/// The piece so that it compares and sorts rightly wherever it stands alone (ORDER BY, MIN, DISTINCT).
QString SelfCollated(const TPiece& piece);
/// `left operation right` under the type they have in common; operation is one of = <> < <= > >=.
TPiece Comparison(const TPiece& left, const QString& operation, const TPiece& right);
/// The left side of a comparison with all of `others`, converted and collated.
QString ComparisonSubject(const TPiece& left, const QVector<TPiece>& others, const TType& common);
/// The right side of a comparison.
QString ComparisonObject(const TPiece& piece, const TPiece& left, const TType& common);

} // namespace Dialect
