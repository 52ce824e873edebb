#include "FunctionCall.h"

#include "Moment.h"

#include <array>
#include <QLatin1StringView>

namespace Dialect {

namespace {

/// The second value takes the type of the first, as the server has it.
TPiece ReplaceNull(const TFunctionCall& call)
{
    const TPiece& value = call.At(0);
    const TPiece& substitute = call.At(1);
    TType type = value.Type.IsOpen() ? substitute.Type : value.Type;
    if (type.IsText() && substitute.Type.IsText())
        type.Length = CommonType(type, substitute.Type).Length;
    const QString second = value.Type.IsOpen() || type.IsText() ? AsText(call.Cursor, substitute)
                                                                : Assigned(call.Cursor, substitute, type);
    return WholePiece(Call("ifnull", {value.Sql, value.Type.IsOpen() ? substitute.Sql : second}), type);
}

TPiece Coalesce(const TFunctionCall& call)
{
    TType common = call.At(0).Type;
    for (const TPiece& argument : call.Arguments)
        common = CommonType(common, argument.Type);
    QStringList values;
    for (const TPiece& argument : call.Arguments)
        values.append(Unified(argument, common).Sql);
    return WholePiece(Call("coalesce", values), common);
}

TPiece NullIf(const TFunctionCall& call)
{
    const QString equal = Comparison(call.At(0), QStringLiteral("="), call.At(1)).Sql;
    return WholePiece(QStringLiteral("CASE WHEN %1 THEN NULL ELSE %2 END").arg(equal, Bracketed(call.At(0))),
                      call.At(0).Type);
}

void RequireNumber(const TFunctionCall& call)
{
    const TType& type = call.At(0).Type;
    if (!type.IsNumber() && !type.IsOpen())
        call.Cursor.Refuse(call.Name, "takes a number");
}

TPiece Abs(const TFunctionCall& call)
{
    RequireNumber(call);
    return WholePiece(Call(call.At(0).Type.IsExact() ? "ado_abs" : "abs", {call.Sql(0)}), call.At(0).Type);
}

TPiece Round(const TFunctionCall& call)
{
    RequireNumber(call);
    const TType& type = call.At(0).Type;
    const char* function = type.IsExact() ? "ado_round" : "ado_round_float";
    const QString rounded = Call(function, {call.Sql(0), call.Sql(1)});
    return WholePiece(type.IsWhole() ? QStringLiteral("CAST(%1 AS INTEGER)").arg(rounded) : rounded, type);
}

TPiece Floor(const TFunctionCall& call)
{
    RequireNumber(call);
    return WholePiece(Call("ado_floor", {call.Sql(0)}), call.At(0).Type);
}

TPiece Ceiling(const TFunctionCall& call)
{
    RequireNumber(call);
    return WholePiece(Call("ado_ceiling", {call.Sql(0)}), call.At(0).Type);
}

TPiece Sign(const TFunctionCall& call)
{
    RequireNumber(call);
    const QString value = Bracketed(call.At(0));
    const bool isExact = call.At(0).Type.IsExact();
    return WholePiece(
        QStringLiteral("sign(%1)").arg(isExact ? QStringLiteral("CAST(%1 AS REAL)").arg(value) : value),
        {TKind::Int});
}

TPiece Now(const TFunctionCall&)
{
    return WholePiece(QStringLiteral("ado_now()"), {TKind::DateTime});
}

TPiece UtcNow(const TFunctionCall&)
{
    return WholePiece(QStringLiteral("ado_utcnow()"), {TKind::DateTime});
}

TPiece DatePart(const TFunctionCall& call, TMomentPart part)
{
    return WholePiece(Call("ado_datepart", {QString::number(static_cast<int>(part)), call.Sql(0)}),
                      {TKind::Int});
}

TPiece Year(const TFunctionCall& call)
{
    return DatePart(call, TMomentPart::Year);
}

TPiece Month(const TFunctionCall& call)
{
    return DatePart(call, TMomentPart::Month);
}

TPiece Day(const TFunctionCall& call)
{
    return DatePart(call, TMomentPart::Day);
}

TPiece ScopeIdentity(const TFunctionCall&)
{
    return WholePiece(QStringLiteral("last_insert_rowid()"), {TKind::BigInt});
}

TPiece DataLength(const TFunctionCall& call)
{
    const TType& type = call.At(0).Type;
    if (type.Kind != TKind::Blob)
        call.Cursor.Refuse(call.Name, "is supported for binary data only, LEN for texts");
    return WholePiece(Call("length", {call.Sql(0)}), {TKind::BigInt});
}

constexpr int MostValueArguments = 100;

constexpr std::array ValueRules{
    TFunctionRule{"ISNULL", 2, 2, ReplaceNull},
    TFunctionRule{"COALESCE", 2, MostValueArguments, Coalesce},
    TFunctionRule{"NULLIF", 2, 2, NullIf},
    TFunctionRule{"ABS", 1, 1, Abs},
    TFunctionRule{"ROUND", 2, 2, Round},
    TFunctionRule{"FLOOR", 1, 1, Floor},
    TFunctionRule{"CEILING", 1, 1, Ceiling},
    TFunctionRule{"SIGN", 1, 1, Sign},
    TFunctionRule{"GETDATE", 0, 0, Now},
    TFunctionRule{"SYSDATETIME", 0, 0, Now},
    TFunctionRule{"GETUTCDATE", 0, 0, UtcNow},
    TFunctionRule{"SYSUTCDATETIME", 0, 0, UtcNow},
    TFunctionRule{"YEAR", 1, 1, Year},
    TFunctionRule{"MONTH", 1, 1, Month},
    TFunctionRule{"DAY", 1, 1, Day},
    TFunctionRule{"SCOPE_IDENTITY", 0, 0, ScopeIdentity},
    TFunctionRule{"DATALENGTH", 1, 1, DataLength},
};

} // namespace

const TFunctionRule* FindValueFunction(QStringView name)
{
    const auto* const found =
        std::find_if(ValueRules.begin(), ValueRules.end(), [&](const TFunctionRule& rule) {
            return name.compare(QLatin1StringView(rule.Name), Qt::CaseInsensitive) == 0;
        });
    return found == ValueRules.end() ? nullptr : found;
}

} // namespace Dialect
