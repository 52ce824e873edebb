#include "TotalsText.h"

#include "DisplayText.h"
#include "PersianText.h"

QString TotalsText::Amount(const TDecimal& amount)
{
    return PersianText::Isolated(DisplayText::Grouped(amount.ToString().remove(u'-')));
}

QString TotalsText::Balance(const TDecimal& balance)
{
    if (balance.IsZero())
        return QStringLiteral("تراز است");
    const QString side =
        balance.ToString().startsWith(u'-') ? QStringLiteral(" بستانکار") : QStringLiteral(" بدهکار");
    return QStringLiteral("مانده: ") + Amount(balance) + side;
}
