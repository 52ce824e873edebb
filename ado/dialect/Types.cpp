#include "Types.h"

#include "SqliteTypes.h"

#include <algorithm>
#include <array>
#include <limits>
#include <QHash>

namespace Dialect {

namespace {

/// First and second number between the parentheses of a declared type; 0 where there is none.
std::array<int, 2> Arguments(const QString& declaredType)
{
    const qsizetype open = declaredType.indexOf(u'(');
    if (open < 0)
        return {0, 0};
    const QStringView inside = QStringView(declaredType).mid(open + 1, declaredType.size() - open - 2);
    const qsizetype comma = inside.indexOf(u',');
    if (comma < 0)
        return {inside.toInt(), 0};
    return {inside.left(comma).toInt(), inside.mid(comma + 1).trimmed().toInt()};
}

int Rank(TKind kind)
{
    constexpr std::array order{TKind::Unknown, TKind::Null, TKind::Parameter, TKind::Blob,  TKind::Text,
                               TKind::Bit,     TKind::Int,  TKind::BigInt,    TKind::Money, TKind::Decimal,
                               TKind::Float,   TKind::Date, TKind::DateTime};
    return static_cast<int>(std::find(order.begin(), order.end(), kind) - order.begin());
}

int CommonLength(int first, int second)
{
    if (first == Unbounded || second == Unbounded)
        return Unbounded;
    return first == 0 || second == 0 ? 0 : std::max(first, second);
}

TType CommonDecimal(const TType& first, const TType& second)
{
    constexpr int wholeDigits = 19; // a bigint
    const auto places = [](const TType& type) {
        return type.IsExact() ? type.Precision - type.Scale : wholeDigits;
    };
    const int scale = std::max(first.Scale, second.Scale);
    return DecimalType(std::min(MaxPrecision, std::max(places(first), places(second)) + scale), scale);
}

TType ReadDeclaration(const QString& declaredType)
{
    if (declaredType.isEmpty())
        return {};
    if (declaredType.startsWith(QLatin1String("MONEY_TEXT"), Qt::CaseInsensitive))
        return MoneyType();
    switch (const TColumnInfo info = SqliteColumnInfo(declaredType.toLatin1().constData()); info.Type) {
    case TFieldType::ftBoolean:
        return {TKind::Bit};
    case TFieldType::ftInteger:
        return {TKind::Int};
    case TFieldType::ftLargeint:
        return {TKind::BigInt};
    case TFieldType::ftFloat:
        return {TKind::Float};
    case TFieldType::ftBCD: {
        const auto [precision, scale] = Arguments(declaredType);
        return DecimalType(precision, scale);
    }
    case TFieldType::ftDate:
        return {TKind::Date};
    case TFieldType::ftDateTime:
        return {TKind::DateTime};
    case TFieldType::ftWideString:
        return TextType(info.Size);
    case TFieldType::ftWideMemo:
        return TextType(Unbounded);
    case TFieldType::ftBlob:
        return {TKind::Blob};
    case TFieldType::ftUnknown:
        break;
    }
    return {};
}

} // namespace

TType TextType(int length)
{
    TType type;
    type.Kind = TKind::Text;
    type.Length = length;
    return type;
}

TType DecimalType(int precision, int scale)
{
    TType type;
    type.Kind = TKind::Decimal;
    type.Precision = precision;
    type.Scale = scale;
    return type;
}

TType MoneyType()
{
    TType type;
    type.Kind = TKind::Money;
    type.Precision = 19;
    type.Scale = MoneyScale;
    return type;
}

TType TypeOfDeclaration(const QString& declaredType)
{
    // Every translation asks for the types of whole tables; there are few different ones.
    thread_local QHash<QString, TType> known;
    const auto found = known.constFind(declaredType);
    if (found != known.constEnd())
        return *found;
    return *known.insert(declaredType, ReadDeclaration(declaredType));
}

QString DeclarationOf(const TType& type)
{
    switch (type.Kind) {
    case TKind::Bit:
        return QStringLiteral("BIT");
    case TKind::Int:
        return QStringLiteral("INT");
    case TKind::BigInt:
        return QStringLiteral("BIGINT");
    case TKind::Float:
        return QStringLiteral("FLOAT");
    case TKind::Decimal:
        return QStringLiteral("DECIMAL_TEXT(%1,%2)").arg(type.Precision).arg(type.Scale);
    case TKind::Money:
        return QStringLiteral("MONEY_TEXT");
    case TKind::Text:
        return type.Length > 0 ? QStringLiteral("NVARCHAR(%1)").arg(type.Length) : QStringLiteral("TEXT");
    case TKind::Date:
        return QStringLiteral("DATE_TEXT");
    case TKind::DateTime:
        return QStringLiteral("DATETIME_TEXT");
    case TKind::Blob:
        return QStringLiteral("BLOB");
    case TKind::Unknown:
    case TKind::Null:
    case TKind::Parameter:
        break;
    }
    return {};
}

TType CommonType(const TType& first, const TType& second)
{
    const bool firstLeads = Rank(first.Kind) >= Rank(second.Kind);
    TType common = firstLeads ? first : second;
    const TType& other = firstLeads ? second : first;
    if (common.Kind == TKind::Decimal && other.IsNumber())
        return CommonDecimal(first, second);
    if (common.IsText() && other.IsText()) {
        common.Length = CommonLength(first.Length, second.Length);
        common.Binary = first.Binary || second.Binary;
    }
    return common;
}

QString CanonicalDecimal(QStringView number)
{
    number = number.trimmed();
    const bool negative = number.startsWith(u'-');
    if (negative || number.startsWith(u'+'))
        number = number.mid(1);
    const qsizetype dot = number.indexOf(u'.');
    QStringView whole = dot < 0 ? number : number.left(dot);
    QStringView fraction = dot < 0 ? QStringView() : number.mid(dot + 1);
    while (whole.startsWith(u'0'))
        whole = whole.mid(1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (whole.isEmpty() && fraction.isEmpty())
        return QStringLiteral("0");
    QString text = negative ? QStringLiteral("-") : QString();
    text += whole.isEmpty() ? QStringView(u"0") : whole;
    if (!fraction.isEmpty())
        text += u'.' + fraction.toString();
    return text;
}

TType TypeOfNumber(QStringView number)
{
    if (number.contains(u'e', Qt::CaseInsensitive))
        return {TKind::Float};
    const qsizetype dot = number.indexOf(u'.');
    const auto digits = static_cast<int>(number.size() - (dot < 0 ? 0 : 1));
    if (dot >= 0)
        return DecimalType(digits, static_cast<int>(number.size() - dot - 1));
    bool fits = false;
    const qlonglong value = number.toLongLong(&fits);
    if (!fits)
        return DecimalType(digits, 0);
    const bool isInt = value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return {isInt ? TKind::Int : TKind::BigInt};
}

bool IsDecimalText(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.mid(1).trimmed();
    int digits = 0;
    int dots = 0;
    for (const QChar character : text) {
        if (character >= u'0' && character <= u'9')
            ++digits;
        else if (character == u'.')
            ++dots;
        else
            return false;
    }
    return digits > 0 && dots <= 1;
}

} // namespace Dialect
