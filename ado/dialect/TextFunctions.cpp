#include "FunctionCall.h"

#include <array>
#include <QLatin1StringView>

namespace Dialect {

namespace {

/// The server's text functions compare under the collation: a letter in the wanted text may stand in either
/// case.
bool HasCasedLetter(const TPiece& piece)
{
    if (!piece.IsTextLiteral())
        return true;
    return std::any_of(piece.Value.begin(), piece.Value.end(), [](QChar character) {
        return character.toLower() != character || character.toUpper() != character ||
               character.isSurrogate();
    });
}

/// A literal whole number of at least `fewest`.
bool IsLiteralFrom(const TPiece& piece, int fewest)
{
    return piece.IsNumberLiteral() && piece.Type.IsWhole() && piece.Value.toLongLong() >= fewest;
}

int CountOf(const TPiece& piece)
{
    return IsLiteralFrom(piece, 1) ? piece.Value.toInt() : 0;
}

TPiece Len(const TFunctionCall& call)
{
    return WholePiece(Call("ado_len", {call.Text(0)}), {TKind::Int});
}

TPiece Trimmed(const TFunctionCall& call, const char* function)
{
    return WholePiece(Call(function, {call.Text(0)}), call.TextLike(0, call.At(0).Type.Length));
}

TPiece LTrim(const TFunctionCall& call)
{
    return Trimmed(call, "ltrim");
}

TPiece RTrim(const TFunctionCall& call)
{
    return Trimmed(call, "rtrim");
}

TPiece Trim(const TFunctionCall& call)
{
    return Trimmed(call, "trim");
}

TPiece Upper(const TFunctionCall& call)
{
    return Trimmed(call, "ado_upper");
}

TPiece Lower(const TFunctionCall& call)
{
    return Trimmed(call, "ado_lower");
}

TPiece Substring(const TFunctionCall& call)
{
    const bool isPlain = IsLiteralFrom(call.At(1), 1) && IsLiteralFrom(call.At(2), 0);
    return WholePiece(Call(isPlain ? "substr" : "ado_substring", {call.Text(0), call.Sql(1), call.Sql(2)}),
                      call.TextLike(0, CountOf(call.At(2))));
}

TPiece Left(const TFunctionCall& call)
{
    const bool isPlain = IsLiteralFrom(call.At(1), 0);
    return WholePiece(
        Call(isPlain ? "substr" : "ado_substring", {call.Text(0), QStringLiteral("1"), call.Sql(1)}),
        call.TextLike(0, CountOf(call.At(1))));
}

TPiece Right(const TFunctionCall& call)
{
    const bool isPlain = IsLiteralFrom(call.At(1), 1);
    return WholePiece(isPlain ? Call("substr", {call.Text(0), u'-' + call.Sql(1)})
                              : Call("ado_right", {call.Text(0), call.Sql(1)}),
                      call.TextLike(0, CountOf(call.At(1))));
}

TPiece Replace(const TFunctionCall& call)
{
    const bool isBinary = call.IsBinary(3);
    const bool isPlain = isBinary || !HasCasedLetter(call.At(1));
    TType type = call.TextLike(0);
    type.Binary = isBinary;
    if (call.At(0).Type.Length > 0 && call.At(2).IsTextLiteral() && call.At(2).Value.size() <= 1)
        type.Length = call.At(0).Type.Length;
    return WholePiece(
        Call(isPlain ? "ado_replace_bytes" : "ado_replace", {call.Text(0), call.Text(1), call.Text(2)}),
        type);
}

TPiece Translate(const TFunctionCall& call)
{
    TType type = call.TextLike(0, call.At(0).Type.Length);
    type.Binary = call.IsBinary(3);
    return WholePiece(Call(type.Binary ? "ado_translate_binary" : "ado_translate",
                           {call.Text(0), call.Text(1), call.Text(2)}),
                      type);
}

TPiece CharIndex(const TFunctionCall& call)
{
    QStringList arguments{call.Text(0), call.Text(1)};
    if (call.Arguments.size() > 2)
        arguments.append(call.Sql(2));
    return WholePiece(Call(call.IsBinary(2) ? "ado_charindex_binary" : "ado_charindex", arguments),
                      {TKind::Int});
}

TPiece NChar(const TFunctionCall& call)
{
    constexpr int lastUnit = 0xFFFF;
    if (IsLiteralFrom(call.At(0), 1) && call.At(0).Value.toInt() <= lastUnit)
        return TextLiteral(QString(QChar(static_cast<char16_t>(call.At(0).Value.toInt()))));
    return WholePiece(Call("char", {call.Sql(0)}), TextType(1));
}

TPiece Char(const TFunctionCall& call)
{
    constexpr int lastPlain = 0x7F;
    if (!IsLiteralFrom(call.At(0), 1) || call.At(0).Value.toInt() > lastPlain)
        call.Cursor.Refuse(call.Name, "CHAR is supported for 1 to 127 only, NCHAR for the others");
    return NChar(call);
}

TPiece Unicode(const TFunctionCall& call)
{
    return WholePiece(Call("unicode", {call.Text(0)}), {TKind::Int});
}

TPiece Replicate(const TFunctionCall& call)
{
    return WholePiece(Call("ado_replicate", {call.Text(0), call.Sql(1)}), call.TextLike(0));
}

TPiece Space(const TFunctionCall& call)
{
    return WholePiece(Call("ado_replicate", {QStringLiteral("' '"), call.Sql(0)}), TextType(0));
}

/// NULL counts as the empty text, unlike with +.
TPiece Concat(const TFunctionCall& call)
{
    QString sql;
    for (qsizetype i = 0; i < call.Arguments.size(); ++i) {
        if (i != 0)
            sql += QLatin1String(" || ");
        sql += Call("ifnull", {call.Text(i), QStringLiteral("''")});
    }
    TPiece piece = WholePiece(sql, TextType(0));
    piece.Form = TForm::Joined;
    return piece;
}

constexpr int MostTextArguments = 254;

constexpr std::array TextRules{
    TFunctionRule{"LEN", 1, 1, Len},
    TFunctionRule{"LTRIM", 1, 1, LTrim},
    TFunctionRule{"RTRIM", 1, 1, RTrim},
    TFunctionRule{"TRIM", 1, 1, Trim},
    TFunctionRule{"UPPER", 1, 1, Upper},
    TFunctionRule{"LOWER", 1, 1, Lower},
    TFunctionRule{"SUBSTRING", 3, 3, Substring},
    TFunctionRule{"LEFT", 2, 2, Left},
    TFunctionRule{"RIGHT", 2, 2, Right},
    TFunctionRule{"REPLACE", 3, 3, Replace},
    TFunctionRule{"TRANSLATE", 3, 3, Translate},
    TFunctionRule{"CHARINDEX", 2, 3, CharIndex},
    TFunctionRule{"NCHAR", 1, 1, NChar},
    TFunctionRule{"CHAR", 1, 1, Char},
    TFunctionRule{"UNICODE", 1, 1, Unicode},
    TFunctionRule{"REPLICATE", 2, 2, Replicate},
    TFunctionRule{"SPACE", 1, 1, Space},
    TFunctionRule{"CONCAT", 2, MostTextArguments, Concat},
};

} // namespace

const TFunctionRule* FindTextFunction(QStringView name)
{
    const auto* const found =
        std::find_if(TextRules.begin(), TextRules.end(), [&](const TFunctionRule& rule) {
            return name.compare(QLatin1StringView(rule.Name), Qt::CaseInsensitive) == 0;
        });
    return found == TextRules.end() ? nullptr : found;
}

} // namespace Dialect
