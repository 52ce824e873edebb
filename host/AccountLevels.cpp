#include "AccountLevels.h"

#include "PersianText.h"

#include <algorithm>
#include <limits>
#include <QStringList>

namespace {

constexpr int detailIsMandatory = 128;

} // namespace

std::optional<int> AccountLevels::CodeOf(const QString& text)
{
    const QString digits = PersianText::AsciiDigits(text);
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (!std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    if (digits.isEmpty())
        return 0;
    const int code = digits.toInt();
    return code > 0 ? std::optional(code) : std::nullopt;
}

TFloatingAccountsType AccountLevels::DetailKind(int detailType, int assistant)
{
    const auto kind = static_cast<TFloatingAccountsType>(detailType & ~detailIsMandatory);
    if (kind != TFloatingAccountsType::fatIncomesAndCosts)
        return kind;
    return assistant < 2 ? TFloatingAccountsType::fatIncomes : TFloatingAccountsType::fatCosts;
}

QString AccountLevels::GroupsText(TSelectGroups groups)
{
    QStringList ordinals;
    for (unsigned ordinal = 0; ordinal < std::numeric_limits<quint32>::digits; ++ordinal) {
        if ((groups.Bits() >> ordinal & 1U) != 0)
            ordinals.append(QString::number(ordinal));
    }
    return ordinals.join(u',');
}
