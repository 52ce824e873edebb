#include "PersianText.h"
#include "SearchCondition.h"

#include <algorithm>

namespace {

/// A text that runs left to right, or holds digits, keeps its own direction inside the sentence.
QString Quoted(const QString& text)
{
    const bool isMixed = std::any_of(text.begin(), text.end(), [](QChar character) {
        return character.direction() == QChar::DirL || character.isDigit();
    });
    return QStringLiteral("«") + (isMixed ? PersianText::Isolated(text) : text) + QStringLiteral("»");
}

QString Grouped(const QString& number)
{
    const qsizetype point = number.indexOf(QLatin1Char('.'));
    QString result = number;
    if (point >= 0)
        result[point] = u'\u066B';
    const qsizetype first = number.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (qsizetype position = (point < 0 ? number.size() : point) - 3; position > first; position -= 3)
        result.insert(position, QChar(u'\u066C'));
    return result;
}

} // namespace

QString TSearchCondition::Words() const
{
    if (!words_.isEmpty() && operator_ != TOperator::Nothing)
        return words_;
    const QString verb = reversed_ ? QStringLiteral("نباشد") : QStringLiteral("باشد");
    const QString blank = QStringLiteral(" ");
    switch (operator_) {
    case TOperator::Contains:
        return title_ + QStringLiteral(" شامل ") + Quoted(lower_.Shown) + blank + verb;
    case TOperator::Equals:
        return title_ + QStringLiteral(" برابر ") + ValueInWords(lower_.Shown) + blank + verb;
    case TOperator::HasCode:
        return title_ + QStringLiteral(" دارای کد ") +
               PersianText::PersianDigits(codes_.join(QStringLiteral(" یا "))) + blank + verb;
    case TOperator::Range:
        return title_ + blank + RangeWords() + blank + verb;
    case TOperator::Nothing:
        break;
    }
    return QStringLiteral("ردیفی پیدا نشود، چون ") + Quoted(lower_.Shown) + QStringLiteral(" برای ") +
           title_ + blank + reason_;
}

QString TSearchCondition::RangeWords() const
{
    if (upper_.IsOpen())
        return QStringLiteral("از %1 به بالا").arg(ValueInWords(lower_.Shown));
    if (lower_.IsOpen())
        return QStringLiteral("تا %1").arg(ValueInWords(upper_.Shown));
    if (lower_.Shown == upper_.Shown)
        return QStringLiteral("برابر %1").arg(ValueInWords(lower_.Shown));
    return QStringLiteral("از %1 تا %2").arg(ValueInWords(lower_.Shown), ValueInWords(upper_.Shown));
}

QString TSearchCondition::ValueInWords(const QString& value) const
{
    return PersianText::PersianDigits(kind_ == TKind::Money ? Grouped(value) : value);
}
