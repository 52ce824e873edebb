#include "CurrencyConversion.h"

#include "DecimalText.h"

QString CurrencyConversion::InBase(const QString& amount, const QString& rate)
{
    return DecimalText::Rounded((TDecimal(amount) * TDecimal(rate)).ToString(), MoneyDecimals);
}

TVoucherLine CurrencyConversion::InBase(const TVoucherLine& typed)
{
    if (!typed.Currency.IsForeign())
        return typed;
    TVoucherLine line = typed;
    line.Currency.Amount = TDecimal(typed.Debit).IsZero() ? typed.Credit : typed.Debit;
    line.Debit = InBase(typed.Debit, typed.Currency.Rate);
    line.Credit = InBase(typed.Credit, typed.Currency.Rate);
    return line;
}

TVoucherLine CurrencyConversion::AsTyped(const TVoucherLine& line)
{
    if (!line.Currency.IsForeign())
        return line;
    TVoucherLine typed = line;
    const QString amount = DecimalText::WithoutTrailingZeros(line.Currency.Amount);
    QString& side = TDecimal(line.Debit).IsZero() ? typed.Credit : typed.Debit;
    typed.Debit = typed.Credit = QStringLiteral("0");
    side = amount;
    return typed;
}
