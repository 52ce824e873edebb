#include "SearchCondition.h"

namespace {

constexpr QLatin1String
    PlainText("REPLACE(REPLACE(%1 COLLATE Latin1_General_BIN2, NCHAR(8204), N\'\'), NCHAR(1600), N\'\')");

} // namespace

QString TSearchCondition::Sql() const
{
    if (operator_ == TOperator::Nothing)
        return QStringLiteral("1 = 0");
    const QString sql = PlainSql();
    return reversed_
               ? QLatin1Char('(') + field_ + QLatin1String(" IS NULL OR NOT (") + sql + QLatin1String("))")
               : sql;
}

QString TSearchCondition::PlainSql() const
{
    switch (operator_) {
    case TOperator::Contains:
        return ContainsSql();
    case TOperator::Equals:
        return field_ + QLatin1String(" = ") + lower_.Value;
    case TOperator::HasCode:
        return CodesSql();
    case TOperator::Range:
    case TOperator::Nothing:
        break;
    }
    return RangeSql();
}

QString TSearchCondition::ContainsSql() const
{
    const QString column =
        foldedField_.isEmpty() ? QString(PlainText).replace(QLatin1String("%1"), field_) : foldedField_;
    const QString like = foldedField_.isEmpty() ? pattern_.PlainLike() : pattern_.FoldedLike();
    return column + QLatin1String(" LIKE N'%") + like + QLatin1String("%'");
}

QString TSearchCondition::RangeSql() const
{
    QStringList parts;
    if (!lower_.IsOpen())
        parts.append(field_ + QLatin1String(" >= ") + Literal(lower_.Value));
    // The upper bound of a moment is the first instant behind it.
    if (!upper_.IsOpen())
        parts.append(field_ + QLatin1String(kind_ == TKind::Moment ? " < " : " <= ") + Literal(upper_.Value));
    return parts.join(QLatin1String(" AND "));
}

QString TSearchCondition::CodesSql() const
{
    QStringList parts;
    for (const QString& code : codes_)
        parts.append(field_ + QLatin1String(" LIKE '%,") + code + QLatin1String(",%'"));
    const QString either = parts.join(QLatin1String(" OR "));
    return parts.size() == 1 ? either : QLatin1Char('(') + either + QLatin1Char(')');
}

QString TSearchCondition::Literal(const QString& value) const
{
    if (kind_ == TKind::Number || kind_ == TKind::Money)
        return value;
    return QLatin1String("N'") + QString(value).replace(QLatin1Char('\''), QLatin1String("''")) +
           QLatin1Char('\'');
}
