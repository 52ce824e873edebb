#pragma once

#include "Expressions.h"

namespace Dialect {

/// A call whose arguments have been read.
struct TFunctionCall
{
    TCursor& Cursor;
    const TToken& Name;
    QVector<TPiece> Arguments;

    const TPiece& At(qsizetype place) const { return Arguments[place]; }
    QString Sql(qsizetype place) const { return Arguments[place].Sql; }
    /// The argument as text, a type that is no text made one.
    QString Text(qsizetype place) const { return AsText(Cursor, Arguments[place]); }
    /// The type of a text made of the argument, of a length that is not known yet.
    TType TextLike(qsizetype place, int length = 0) const;
    /// One of the first `count` arguments compares byte by byte.
    bool IsBinary(qsizetype count) const;
};

/// What makes a call's translation of its arguments.
struct TFunctionRule
{
    const char* Name;
    int Fewest;
    int Most;
    TPiece (*Translate)(const TFunctionCall& call);
};

/// The rule of a function whose arguments are plain values; null when there is none. `name` in any letter
/// case.
const TFunctionRule* FindTextFunction(QStringView name);
const TFunctionRule* FindValueFunction(QStringView name);

/// COUNT, SUM, AVG, MIN, MAX, ROW_NUMBER, RANK, DENSE_RANK with OVER; nothing read when `name` is none of
/// them.
bool IsSetFunction(QStringView name);
TPiece CallSetFunction(TExpressions& expressions, const TToken& name);

} // namespace Dialect
