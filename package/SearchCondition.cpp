#include "SearchCondition.h"

#include "DateBound.h"
#include "ExactNumber.h"
#include "FieldName.h"
#include "PersianText.h"
#include "TextPattern.h"

#include <algorithm>

namespace {

/// What range frames write where the user gave no upper bound.
constexpr QLatin1String OpenUpperNumber("2147483647");
constexpr QLatin1String Zero("0");
constexpr int MaxCodeDigits = 18;

bool HasValue(const QVariant& value)
{
    return value.isValid() && !value.isNull() && !value.toString().trimmed().isEmpty();
}

bool IsCode(const QString& text)
{
    const bool areDigits =
        std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    return areDigits && text.size() <= MaxCodeDigits;
}

} // namespace

std::optional<TSearchCondition> TSearchCondition::Of(const TTarvaSearch& criterion)
{
    const TSearchItem* item = criterion.CurrentItem();
    if (!criterion.Active() || !item || item->FiledName.trimmed().isEmpty())
        return std::nullopt;
    TSearchCondition condition(criterion, *item);
    const bool isSingle = criterion.SearchTypes() == TSearchType::stGeneral;
    const bool filters =
        isSingle ? condition.ReadSingle(criterion, *item) : condition.ReadRange(criterion, *item);
    return filters ? std::optional(condition) : std::nullopt;
}

TSearchCondition::TSearchCondition(const TTarvaSearch& criterion, const TSearchItem& item)
    : title_(item.Title.trimmed()), field_(FieldName::Bracketed(item.FiledName)),
      foldedField_(item.FoldedName.trimmed().isEmpty() ? QString() : FieldName::Bracketed(item.FoldedName)),
      column_(FieldName::Column(item.FiledName)), reversed_(criterion.Reverst())
{
    if (title_.isEmpty())
        title_ = column_;
    if (item.Words)
        words_ = item.Words(criterion);
}

bool TSearchCondition::ReadSingle(const TTarvaSearch& criterion, const TSearchItem& item)
{
    const QVariant value = criterion.Value1();
    if (!HasValue(value))
        return false;
    switch (item.DataType) {
    case TSearchDataType::idtMoney:
    case TSearchDataType::idtDigit:
        kind_ = item.DataType == TSearchDataType::idtMoney ? TKind::Money : TKind::Number;
        return ReadNumber(value, criterion.ZeroValueIgnore());
    case TSearchDataType::idtDateTime:
        return ReadMoment(value.toString());
    case TSearchDataType::idtCodeList:
        return ReadCodes(value.toString(), criterion.ZeroValueIgnore());
    case TSearchDataType::idtString:
        break;
    }
    return ReadText(value.toString());
}

bool TSearchCondition::ReadText(const QString& text)
{
    const TTextPattern pattern(text);
    if (pattern.IsEmpty())
        return false;
    if (!pattern.IsPossible())
        return Refuse(text.left(TTextPattern::MaxLength), QStringLiteral("متنی نیست که بتوان جستجو کرد"));
    operator_ = TOperator::Contains;
    pattern_ = pattern;
    lower_ = {text, text};
    return true;
}

bool TSearchCondition::ReadNumber(const QVariant& value, bool ignoreZero)
{
    const QString number = ExactNumber::Of(value);
    if (number.isEmpty())
        return Refuse(value.toString(), QStringLiteral("عدد نیست"));
    operator_ = TOperator::Equals;
    lower_ = {number, number};
    return !ignoreZero || number != Zero;
}

bool TSearchCondition::ReadMoment(const QString& text)
{
    if (DateBound::IsOpen(text))
        return false;
    const auto moment = DateBound::Moment(text);
    if (!moment)
        return Refuse(text, QStringLiteral("تاریخ نیست"));
    operator_ = TOperator::Range;
    kind_ = TKind::Moment;
    lower_ = {DateBound::Text(moment->Begin), text.trimmed()};
    upper_ = {DateBound::Text(moment->End), text.trimmed()};
    return true;
}

bool TSearchCondition::ReadCodes(const QString& text, bool ignoreZero)
{
    const QString digits = PersianText::AsciiDigits(text);
    const QStringList parts = digits.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (!IsCode(part.trimmed()))
            return Refuse(text, QStringLiteral("کد نیست"));
        const QString code = ExactNumber::Of(part.trimmed());
        if (!ignoreZero || code != Zero)
            codes_.append(code);
    }
    operator_ = TOperator::HasCode;
    return !codes_.isEmpty();
}

bool TSearchCondition::ReadRange(const TTarvaSearch& criterion, const TSearchItem& item)
{
    switch (criterion.SearchTypes()) {
    case TSearchType::stRangeDigit:
        kind_ = TKind::Number;
        return ReadNumbers(criterion);
    case TSearchType::stRangeCost:
        kind_ = TKind::Money;
        return ReadNumbers(criterion);
    case TSearchType::stRangeDate:
        return item.DataType == TSearchDataType::idtDateTime ? ReadMoments(criterion)
                                                             : ReadTexts(criterion, true);
    case TSearchType::stRangeString:
    case TSearchType::stGeneral:
        break;
    }
    return ReadTexts(criterion, false);
}

bool TSearchCondition::ReadNumbers(const TTarvaSearch& criterion)
{
    operator_ = TOperator::Range;
    const QVariant values[] = {criterion.Value1(), criterion.Value2()};
    TBound* const bounds[] = {&lower_, &upper_};
    for (int side = 0; side < 2; ++side) {
        if (!HasValue(values[side]))
            continue;
        const QString number = ExactNumber::Of(values[side]);
        if (number.isEmpty())
            return Refuse(values[side].toString(), QStringLiteral("عدد نیست"));
        const bool isIgnored = criterion.ZeroValueIgnore() && number == Zero;
        if (!isIgnored && !(side == 1 && number == OpenUpperNumber))
            *bounds[side] = {number, number};
    }
    return !lower_.IsOpen() || !upper_.IsOpen();
}

bool TSearchCondition::ReadTexts(const TTarvaSearch& criterion, bool isDate)
{
    operator_ = TOperator::Range;
    const QVariant values[] = {criterion.Value1(), criterion.Value2()};
    TBound* const bounds[] = {&lower_, &upper_};
    for (int side = 0; side < 2; ++side) {
        const QString text = PersianText::AsciiDigits(values[side].toString()).trimmed();
        if (text.isEmpty() || (isDate && DateBound::IsOpen(text)))
            continue;
        if (!TTextPattern(text).IsPossible())
            return Refuse(text.left(TTextPattern::MaxLength), QStringLiteral("متنی نیست که بتوان جستجو کرد"));
        *bounds[side] = {text, text};
    }
    return !lower_.IsOpen() || !upper_.IsOpen();
}

bool TSearchCondition::ReadMoments(const TTarvaSearch& criterion)
{
    operator_ = TOperator::Range;
    kind_ = TKind::Moment;
    const QString values[] = {criterion.Value1().toString(), criterion.Value2().toString()};
    TBound* const bounds[] = {&lower_, &upper_};
    for (int side = 0; side < 2; ++side) {
        if (DateBound::IsOpen(values[side]))
            continue;
        const auto moment = DateBound::Moment(values[side]);
        if (!moment)
            return Refuse(values[side], QStringLiteral("تاریخ نیست"));
        *bounds[side] = {DateBound::Text(side == 0 ? moment->Begin : moment->End), values[side].trimmed()};
    }
    return !lower_.IsOpen() || !upper_.IsOpen();
}

bool TSearchCondition::Refuse(const QString& shown, const QString& reason)
{
    operator_ = TOperator::Nothing;
    lower_ = {{}, shown};
    reason_ = reason;
    return true;
}
