#pragma once

#include "Piece.h"
#include "Scope.h"

namespace Dialect {

/// A server type as it is written in a statement.
struct TWrittenType
{
    TType Type;
    /// For a column; keeps the server's own name (char, smallint), which TType does not know.
    QString Declared;
};

/// Reads the expressions of one scope.
class TExpressions
{
public:
    TExpressions(TCursor& cursor, const TScope& scope) : cursor_(cursor), scope_(scope) {}

    /// A value. A condition standing where a value belongs is refused.
    TPiece Value();
    /// A condition. A value standing where a condition belongs is refused.
    TPiece Condition();
    /// Either of them.
    TPiece Any();

    TCursor& Cursor() { return cursor_; }
    const TScope& Scope() const { return scope_; }
    /// Values up to and including the closing bracket.
    QVector<TPiece> ValuesInBrackets();
    /// A list of plain whole numbers up to its closing bracket. Empty, and nothing is read, where it is
    /// another list.
    QString KeysInBrackets();
    /// A server type with its length, which is `textLength` for a bounded text without one; the next tokens
    /// must be one.
    TWrittenType TypeName(int textLength);

private:
    TPiece Conjunction();
    TPiece Negation();
    TPiece Predicate();
    TPiece Sum();
    TPiece Product();
    TPiece Signed();
    TPiece Collated();
    TPiece Primary();

    TPiece Compared(const TPiece& left, const QString& operation);
    TPiece InList(const TPiece& left, bool isNegated);
    TPiece InSelect(const TPiece& left, const QString& operation);
    TPiece Between(const TPiece& left, bool isNegated);
    TPiece Like(const TPiece& left, bool isNegated);
    TPiece NullTest(const TPiece& left);
    TPiece Exists();
    TPiece InBrackets();
    TPiece SubSelect();
    TPiece Case();
    TPiece Literal();
    TPiece Named();
    TPiece ColumnOf(const QStringList& path);

    TCursor& cursor_;
    const TScope& scope_;
};

/// `left operation right` for + - * / % & | ^.
TPiece Arithmetic(const TCursor& cursor, const TPiece& left, const TToken& operation, const TPiece& right);
/// Results of CASE, COALESCE, ISNULL in the form of their common type.
TPiece Unified(const TPiece& value, const TType& common);

/// A function of the server: `name` was read, the opening bracket stands next.
TPiece CallFunction(TExpressions& expressions, const TToken& name);
/// A function of the database: dbo.name(...); the opening bracket stands next.
TPiece CallDatabaseFunction(TExpressions& expressions, const TToken& name);

} // namespace Dialect
