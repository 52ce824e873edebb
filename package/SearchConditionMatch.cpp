#include "ExactNumber.h"
#include "SearchCondition.h"

#include <algorithm>

namespace {

/// A value of a date column compares as the midnight at which its day begins.
QString MomentText(const QVariant& value)
{
    const QString text = value.toString();
    const qsizetype lengthOfDate = 10;
    return text.size() == lengthOfDate ? text + QLatin1String("T00:00:00") : text;
}

} // namespace

bool TSearchCondition::Matches(const QVariant& value) const
{
    if (operator_ == TOperator::Nothing)
        return false;
    const bool isNull = !value.isValid() || value.isNull();
    const bool matches = !isNull && PlainMatches(value);
    return matches != reversed_;
}

bool TSearchCondition::PlainMatches(const QVariant& value) const
{
    switch (operator_) {
    case TOperator::Contains:
        return pattern_.FoundIn(value.toString());
    case TOperator::Equals:
        return ExactNumber::Of(value) == lower_.Value;
    case TOperator::HasCode: {
        const QString text = value.toString();
        return std::any_of(codes_.begin(), codes_.end(), [&text](const QString& code) {
            return text.contains(QLatin1Char(',') + code + QLatin1Char(','));
        });
    }
    case TOperator::Range:
    case TOperator::Nothing:
        break;
    }
    return InRange(value);
}

bool TSearchCondition::InRange(const QVariant& value) const
{
    const bool isNumber = kind_ == TKind::Number || kind_ == TKind::Money;
    if (isNumber && ExactNumber::Of(value).isEmpty())
        return false;
    if (!lower_.IsOpen() && CompareWith(value, lower_.Value) < 0)
        return false;
    if (upper_.IsOpen())
        return true;
    const int order = CompareWith(value, upper_.Value);
    return kind_ == TKind::Moment ? order < 0 : order <= 0;
}

int TSearchCondition::CompareWith(const QVariant& value, const QString& bound) const
{
    switch (kind_) {
    case TKind::Number:
    case TKind::Money:
        return ExactNumber::Compare(ExactNumber::Of(value), bound);
    case TKind::Moment:
        return MomentText(value).compare(bound);
    case TKind::Text:
        break;
    }
    return value.toString().compare(bound, Qt::CaseInsensitive);
}
