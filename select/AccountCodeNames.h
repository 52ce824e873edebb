#pragma once

#include "CodeItem.h"

#include <QStringView>

/// The names of the levels as the boxes show them, and as messages speak of them. Two spellings of yeh occur;
/// both read as no code.
namespace AccountCodeNames {

inline constexpr QStringView Total = u"کل";
inline constexpr QStringView Assistant = u"معين";
inline constexpr QStringView Detail = u"تفصيلي";
inline constexpr QStringView ExpenseCenter = u"مرکزهزينه";
constexpr QStringView OfLevel(TCodeItem level)
{
    switch (level) {
    case TCodeItem::ctTotal:
        return Total;
    case TCodeItem::ctAssistant:
        return Assistant;
    case TCodeItem::ctDetail:
        return Detail;
    case TCodeItem::ctExpenseCenter:
        break;
    }
    return ExpenseCenter;
}
/// Written into the boxes below an account that does not exist.
inline constexpr QStringView AssistantOfUnknown = u"معین";
inline constexpr QStringView DetailOfUnknown = u"تفصیلی";

inline constexpr QStringView AccountSubject = u"حسابي";
inline constexpr QStringView ExpenseCenterSubject = u"مرکز هزينه اي";

} // namespace AccountCodeNames
