#include "FunctionCall.h"

#include <algorithm>
#include <array>
#include <QLatin1StringView>

namespace Dialect {

namespace {

constexpr std::array Names{"COUNT", "COUNT_BIG",  "SUM",  "AVG",       "MIN",
                           "MAX",   "ROW_NUMBER", "RANK", "DENSE_RANK"};

bool IsOneOf(const TToken& name, const char* wanted)
{
    return name.IsWord(QLatin1StringView(wanted));
}

TPiece Count(const TToken& name, const QString& distinct, const TPiece& value)
{
    const TType type{IsOneOf(name, "COUNT_BIG") ? TKind::BigInt : TKind::Int};
    return WholePiece(QLatin1String("COUNT(") + distinct + SelfCollated(value) + u')', type);
}

TPiece Sum(const QString& distinct, const TPiece& value)
{
    TType type = value.Type;
    if (!type.IsExact())
        return WholePiece(QLatin1String("SUM(") + distinct + value.Sql + u')', type);
    if (type.Kind == TKind::Decimal)
        type.Precision = MaxPrecision;
    return WholePiece(QLatin1String("ado_sum(") + distinct + SelfCollated(value) + u')', type);
}

TPiece Average(const TCursor& cursor, const QString& distinct, const TPiece& value, const QString& over)
{
    TType type = value.Type;
    const QString argument = distinct + SelfCollated(value) + u')';
    if (type.IsWhole())
        return WholePiece(QLatin1String("(SUM(") + argument + over + QLatin1String(" / COUNT(") + argument +
                              over + u')',
                          type);
    if (!type.IsExact())
        return WholePiece(QLatin1String("AVG(") + argument + over, type);
    if (!distinct.isEmpty())
        cursor.Refuse(value.Sql, "the average of distinct exact numbers is not supported");
    constexpr int fewestPlaces = 6;
    if (type.Kind == TKind::Decimal)
        type = DecimalType(MaxPrecision, std::max(type.Scale, fewestPlaces));
    return WholePiece(
        QStringLiteral("ado_average(%1, %2)%3").arg(SelfCollated(value), QString::number(type.Scale), over),
        type);
}

QString Window(TExpressions& expressions)
{
    TCursor& cursor = expressions.Cursor();
    if (!cursor.Accept(TKeyword::Over))
        return {};
    cursor.Expect(TSymbol::OpenBracket);
    QString sql;
    if (cursor.AcceptWord(QLatin1StringView("PARTITION"))) {
        cursor.Expect(TKeyword::By);
        QStringList keys;
        do {
            keys.append(SelfCollated(expressions.Value()));
        } while (cursor.Accept(TSymbol::Comma));
        sql = QLatin1String("PARTITION BY ") + keys.join(QLatin1String(", "));
    }
    if (cursor.Accept(TKeyword::Order)) {
        cursor.Expect(TKeyword::By);
        QStringList keys;
        do {
            QString key = SelfCollated(expressions.Value());
            if (cursor.Accept(TKeyword::Desc))
                key += QLatin1String(" DESC");
            else
                cursor.Accept(TKeyword::Asc);
            keys.append(key);
        } while (cursor.Accept(TSymbol::Comma));
        sql += QLatin1String(sql.isEmpty() ? "ORDER BY " : " ORDER BY ") + keys.join(QLatin1String(", "));
    }
    cursor.Expect(TSymbol::CloseBracket);
    return QLatin1String(" OVER (") + sql + u')';
}

TPiece Ranking(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    cursor.Expect(TSymbol::CloseBracket);
    if (!cursor.Peek().Is(TKeyword::Over))
        cursor.Refuse(name, "needs OVER (ORDER BY ...)");
    return WholePiece(name.Raw.toString() + QLatin1String("()") + Window(expressions), {TKind::BigInt});
}

void RequireNumber(const TCursor& cursor, const TToken& name, const TPiece& value)
{
    if (!value.Type.IsNumber() && !value.Type.IsOpen())
        cursor.Refuse(name, "takes numbers");
    // The kind decides between exact and floating sums.
    if (value.Type.Kind == TKind::Unknown)
        cursor.Refuse(value.Sql, "the type of what is summed cannot be told");
}

} // namespace

bool IsSetFunction(QStringView name)
{
    return std::any_of(Names.begin(), Names.end(), [&](const char* known) {
        return name.compare(QLatin1StringView(known), Qt::CaseInsensitive) == 0;
    });
}

TPiece CallSetFunction(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    if (IsOneOf(name, "ROW_NUMBER") || IsOneOf(name, "RANK") || IsOneOf(name, "DENSE_RANK"))
        return Ranking(expressions, name);
    const bool isCount = IsOneOf(name, "COUNT") || IsOneOf(name, "COUNT_BIG");
    if (isCount && cursor.Accept(TSymbol::Star)) {
        cursor.Expect(TSymbol::CloseBracket);
        return WholePiece(QLatin1String("COUNT(*)") + Window(expressions), {TKind::Int});
    }
    const QString distinct = cursor.Accept(TKeyword::Distinct) ? QStringLiteral("DISTINCT ") : QString();
    if (distinct.isEmpty())
        cursor.Accept(TKeyword::All);
    const TPiece value = expressions.Value();
    cursor.Expect(TSymbol::CloseBracket);
    const QString over = Window(expressions);
    TPiece piece;
    if (isCount) {
        piece = Count(name, distinct, value);
    } else if (IsOneOf(name, "MIN") || IsOneOf(name, "MAX")) {
        piece = WholePiece(name.Raw.toString().toUpper() + u'(' + distinct + SelfCollated(value) + u')',
                           value.Type);
    } else {
        RequireNumber(cursor, name, value);
        if (IsOneOf(name, "AVG"))
            return Average(cursor, distinct, value, over);
        piece = Sum(distinct, value);
    }
    piece.Sql += over;
    return piece;
}

} // namespace Dialect
