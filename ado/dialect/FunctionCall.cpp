#include "FunctionCall.h"

#include "Moment.h"
#include "SqliteTypes.h"

#include <QLatin1StringView>

namespace Dialect {

namespace {

/// CONVERT's styles that the embedded engine can write.
TPiece StyledMoment(TExpressions& expressions, const TPiece& value, const TType& target, const TToken& style)
{
    if (value.Type.IsNumber() || !target.IsText() || !value.Type.IsMoment())
        expressions.Cursor().Refuse(style, "a style of CONVERT is supported from date to text only");
    constexpr QLatin1StringView known[] = {QLatin1StringView("23"),  QLatin1StringView("111"),
                                           QLatin1StringView("112"), QLatin1StringView("120"),
                                           QLatin1StringView("121"), QLatin1StringView("126")};
    const bool isKnown = std::any_of(std::begin(known), std::end(known),
                                     [&](QLatin1StringView one) { return style.Raw == one; });
    if (!isKnown)
        expressions.Cursor().Refuse(style, "unknown style of CONVERT");
    return WholePiece(Call("ado_style", {value.Sql, style.Raw.toString()}), target);
}

TPiece CallConvert(TExpressions& expressions)
{
    TCursor& cursor = expressions.Cursor();
    constexpr int lengthOfCast = 30;
    const TType target = expressions.TypeName(lengthOfCast).Type;
    cursor.Expect(TSymbol::Comma);
    const TPiece value = expressions.Value();
    if (!cursor.Accept(TSymbol::Comma)) {
        cursor.Expect(TSymbol::CloseBracket);
        return Cast(cursor, value, target);
    }
    const TToken& style = cursor.Take();
    cursor.Expect(TSymbol::CloseBracket);
    return StyledMoment(expressions, value, target, style);
}

TPiece CallCast(TExpressions& expressions)
{
    constexpr int lengthOfCast = 30;
    const TPiece value = expressions.Value();
    expressions.Cursor().Expect(TKeyword::As);
    const TType target = expressions.TypeName(lengthOfCast).Type;
    expressions.Cursor().Expect(TSymbol::CloseBracket);
    return Cast(expressions.Cursor(), value, target);
}

TPiece CallIif(TExpressions& expressions)
{
    TCursor& cursor = expressions.Cursor();
    const TPiece condition = expressions.Condition();
    cursor.Expect(TSymbol::Comma);
    const QVector<TPiece> results = expressions.ValuesInBrackets();
    if (results.size() != 2)
        cursor.Refuse("IIF takes a condition and two values, before");
    const TType common = CommonType(results[0].Type, results[1].Type);
    return WholePiece(
        Call("iif", {condition.Sql, Unified(results[0], common).Sql, Unified(results[1], common).Sql}),
        common);
}

/// DATEADD, DATEDIFF, DATEPART: the first argument is a word.
TPiece CallMomentFunction(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    const TToken& part = cursor.Take();
    const std::optional<TMomentPart> known = MomentPartOf(part.Raw);
    if (!known)
        cursor.Refuse(part, "unknown part of a date");
    cursor.Expect(TSymbol::Comma);
    const QVector<TPiece> values = expressions.ValuesInBrackets();
    const bool isPart = name.IsWord(QLatin1StringView("DATEPART"));
    if (values.size() != (isPart ? 1 : 2))
        cursor.Refuse(name, "wrong number of arguments");
    const QString number = QString::number(static_cast<int>(*known));
    if (isPart)
        return WholePiece(Call("ado_datepart", {number, values[0].Sql}), {TKind::Int});
    if (name.IsWord(QLatin1StringView("DATEADD"))) {
        const TKind kind = values[1].Type.Kind == TKind::Date ? TKind::Date : TKind::DateTime;
        const QString sum = Call("ado_dateadd", {number, values[0].Sql, values[1].Sql});
        return WholePiece(kind == TKind::Date ? Call("ado_date", {sum}) : sum, {kind});
    }
    return WholePiece(Call("ado_datediff", {number, values[0].Sql, values[1].Sql}), {TKind::Int});
}

bool IsMomentFunction(const TToken& name)
{
    return name.IsWord(QLatin1StringView("DATEADD")) || name.IsWord(QLatin1StringView("DATEDIFF")) ||
           name.IsWord(QLatin1StringView("DATEPART"));
}

TPiece CallPlainFunction(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    const TFunctionRule* rule = FindTextFunction(name.Raw);
    if (!rule)
        rule = FindValueFunction(name.Raw);
    if (!rule)
        cursor.Refuse(name, "unknown function");
    const TFunctionCall call{cursor, name, expressions.ValuesInBrackets()};
    const bool fits = call.Arguments.size() >= rule->Fewest && call.Arguments.size() <= rule->Most;
    if (!fits)
        cursor.Refuse(name, "wrong number of arguments");
    return rule->Translate(call);
}

} // namespace

TType TFunctionCall::TextLike(qsizetype place, int length) const
{
    TType type = TextType(length);
    type.Binary = Arguments[place].Type.Binary;
    return type;
}

bool TFunctionCall::IsBinary(qsizetype count) const
{
    return std::any_of(Arguments.begin(), Arguments.begin() + count,
                       [](const TPiece& piece) { return piece.Type.Binary; });
}

TPiece CallFunction(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    const TNesting nesting(cursor);
    if (name.Is(TKeyword::CurrentTimestamp))
        return WholePiece(QStringLiteral("ado_now()"), {TKind::DateTime});
    if (name.Kind != TTokenKind::Word)
        cursor.Refuse(name, "unknown function");
    cursor.Expect(TSymbol::OpenBracket);
    if (name.IsWord(QLatin1StringView("CAST")))
        return CallCast(expressions);
    if (name.Is(TKeyword::Convert))
        return CallConvert(expressions);
    if (name.IsWord(QLatin1StringView("IIF")))
        return CallIif(expressions);
    if (IsMomentFunction(name))
        return CallMomentFunction(expressions, name);
    if (IsSetFunction(name.Raw))
        return CallSetFunction(expressions, name);
    TPiece piece = CallPlainFunction(expressions, name);
    if (cursor.Peek().Is(TKeyword::Over))
        cursor.Refuse("not a function of a window, before");
    return piece;
}

TPiece CallDatabaseFunction(TExpressions& expressions, const TToken& name)
{
    TCursor& cursor = expressions.Cursor();
    cursor.Expect(TSymbol::OpenBracket);
    const QVector<TPiece> arguments = expressions.ValuesInBrackets();
    const QString function = QLatin1String("dbo_") + name.Name().toLower();
    if (!cursor.Schema().HasFunction(function, static_cast<int>(arguments.size())))
        cursor.Refuse(QString(QLatin1String("dbo.") + name.Name()),
                      "the database has no function of that name and number of arguments");
    QStringList values;
    for (const TPiece& argument : arguments)
        values.append(argument.Sql);
    return WholePiece(QuotedName(function) + u'(' + values.join(QLatin1String(", ")) + u')', {});
}

TWrittenType TExpressions::TypeName(int textLength)
{
    const std::size_t start = cursor_.Position();
    const TToken& name = cursor_.Take();
    if (name.Kind != TTokenKind::Word && name.Kind != TTokenKind::QuotedName)
        cursor_.Refuse(name, "not expected here, a type must stand here");
    int length = 0;
    int scale = 0;
    if (cursor_.Accept(TSymbol::OpenBracket)) {
        length = cursor_.AcceptWord(QLatin1StringView("MAX")) ? UnboundedLength : cursor_.ExpectNumber();
        if (cursor_.Accept(TSymbol::Comma))
            scale = cursor_.ExpectNumber();
        cursor_.Expect(TSymbol::CloseBracket);
    }
    const QString declared = SqliteDeclaredType(name.Name(), length, scale);
    if (declared.isEmpty())
        cursor_.Refuse(cursor_.WrittenSince(start), "unknown type");
    TType type = TypeOfDeclaration(declared);
    if (type.IsText() && length == 0 && type.Length != Unbounded)
        type.Length = textLength;
    return {type, declared};
}

} // namespace Dialect
