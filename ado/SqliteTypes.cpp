#include "SqliteTypes.h"

#include <array>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <QLatin1StringView>
#include <string_view>

namespace {

enum class TLengthRule { None, Characters, Decimal };

struct TServerType
{
    const char* Name;
    const char* Declared;
    TLengthRule Rule;
};

constexpr std::array ServerTypes{
    TServerType{"bit", "BIT", TLengthRule::None},
    TServerType{"tinyint", "TINYINT", TLengthRule::None},
    TServerType{"smallint", "SMALLINT", TLengthRule::None},
    TServerType{"int", "INT", TLengthRule::None},
    TServerType{"integer", "INT", TLengthRule::None},
    TServerType{"bigint", "BIGINT", TLengthRule::None},
    TServerType{"float", "FLOAT", TLengthRule::None},
    TServerType{"real", "REAL", TLengthRule::None},
    TServerType{"decimal", "DECIMAL_TEXT", TLengthRule::Decimal},
    TServerType{"numeric", "DECIMAL_TEXT", TLengthRule::Decimal},
    TServerType{"money", "MONEY_TEXT", TLengthRule::None},
    TServerType{"smallmoney", "MONEY_TEXT", TLengthRule::None},
    TServerType{"date", "DATE_TEXT", TLengthRule::None},
    TServerType{"datetime", "DATETIME_TEXT", TLengthRule::None},
    TServerType{"datetime2", "DATETIME_TEXT", TLengthRule::None},
    TServerType{"smalldatetime", "DATETIME_TEXT", TLengthRule::None},
    TServerType{"char", "CHAR", TLengthRule::Characters},
    TServerType{"varchar", "VARCHAR", TLengthRule::Characters},
    TServerType{"nchar", "NCHAR", TLengthRule::Characters},
    TServerType{"nvarchar", "NVARCHAR", TLengthRule::Characters},
    TServerType{"text", "TEXT", TLengthRule::None},
    TServerType{"ntext", "TEXT", TLengthRule::None},
    TServerType{"binary", "BLOB", TLengthRule::None},
    TServerType{"varbinary", "BLOB", TLengthRule::None},
    TServerType{"image", "BLOB", TLengthRule::None},
};

struct TDeclaredType
{
    std::string_view Name;
    TFieldType Type;
    bool HasLength = false;
};

constexpr std::array DeclaredTypes{
    TDeclaredType{"INT", TFieldType::ftInteger},
    TDeclaredType{"INTEGER", TFieldType::ftInteger},
    TDeclaredType{"SMALLINT", TFieldType::ftInteger},
    TDeclaredType{"TINYINT", TFieldType::ftInteger},
    TDeclaredType{"BIGINT", TFieldType::ftLargeint},
    TDeclaredType{"BIT", TFieldType::ftBoolean},
    TDeclaredType{"FLOAT", TFieldType::ftFloat},
    TDeclaredType{"REAL", TFieldType::ftFloat},
    TDeclaredType{"DECIMAL_TEXT", TFieldType::ftBCD},
    TDeclaredType{"MONEY_TEXT", TFieldType::ftBCD},
    TDeclaredType{"DATE_TEXT", TFieldType::ftDate},
    TDeclaredType{"DATETIME_TEXT", TFieldType::ftDateTime},
    TDeclaredType{"NVARCHAR", TFieldType::ftWideString, true},
    TDeclaredType{"VARCHAR", TFieldType::ftWideString, true},
    TDeclaredType{"NCHAR", TFieldType::ftWideString, true},
    TDeclaredType{"CHAR", TFieldType::ftWideString, true},
    TDeclaredType{"TEXT", TFieldType::ftWideMemo},
    TDeclaredType{"BLOB", TFieldType::ftBlob},
    TDeclaredType{"VARBINARY", TFieldType::ftBlob},
};

bool SameLetters(std::string_view text, std::string_view upper)
{
    if (text.size() != upper.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (std::toupper(static_cast<unsigned char>(text[i])) != upper[i])
            return false;
    }
    return true;
}

QString WithLength(const TServerType& type, int length, int scale)
{
    QString name = QString::fromLatin1(type.Declared);
    switch (type.Rule) {
    case TLengthRule::Characters:
        if (length == UnboundedLength)
            return QStringLiteral("TEXT");
        return QStringLiteral("%1(%2)").arg(name).arg(length == 0 ? 1 : length);
    case TLengthRule::Decimal:
        return QStringLiteral("%1(%2,%3)").arg(name).arg(length == 0 ? 18 : length).arg(scale);
    case TLengthRule::None:
        break;
    }
    return name;
}

} // namespace

QString SqliteDeclaredType(QStringView serverType, int length, int scale)
{
    for (const TServerType& type : ServerTypes) {
        if (serverType.compare(QLatin1StringView(type.Name), Qt::CaseInsensitive) == 0)
            return WithLength(type, length, scale);
    }
    return {};
}

TColumnInfo SqliteColumnInfo(const char* declaredType)
{
    TColumnInfo column;
    if (declaredType == nullptr)
        return column;
    const std::size_t nameLength = std::strcspn(declaredType, "( ");
    const std::string_view name(declaredType, nameLength);
    for (const TDeclaredType& type : DeclaredTypes) {
        if (!SameLetters(name, type.Name))
            continue;
        column.Type = type.Type;
        if (type.HasLength) {
            const char* parenthesis = std::strchr(declaredType + nameLength, '(');
            column.Size =
                parenthesis == nullptr ? 0 : static_cast<int>(std::strtol(parenthesis + 1, nullptr, 10));
            if (column.Size <= 0)
                column = {{}, TFieldType::ftWideMemo, 0};
        }
        return column;
    }
    return column;
}
