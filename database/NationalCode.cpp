#include "NationalCode.h"

#include <algorithm>

namespace {

constexpr int CompanyWeights[] = {29, 27, 23, 19, 17};

int PersonCheckDigit(const QString& digits)
{
    int sum = 0;
    for (int index = 0; index < 9; ++index)
        sum += digits.at(index).digitValue() * (10 - index);
    const int rest = sum % 11;
    return rest < 2 ? rest : 11 - rest;
}

int CompanyCheckDigit(const QString& digits)
{
    const int shift = digits.at(9).digitValue() + 2;
    int sum = 0;
    for (int index = 0; index < 10; ++index)
        sum += (digits.at(index).digitValue() + shift) * CompanyWeights[index % 5];
    return sum % 11 % 10;
}

bool IsDigits(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character >= u'0' && character <= u'9'; });
}

} // namespace

QString NationalCode::Person(qint64 serial)
{
    const QString digits = QStringLiteral("%1").arg(serial, 9, 10, QLatin1Char('0'));
    return digits + QString::number(PersonCheckDigit(digits));
}

QString NationalCode::Company(qint64 serial)
{
    const QString digits = QStringLiteral("%1").arg(serial, 10, 10, QLatin1Char('0'));
    return digits + QString::number(CompanyCheckDigit(digits));
}

bool NationalCode::IsValid(const QString& code)
{
    if (!IsDigits(code))
        return false;
    const int last = code.isEmpty() ? 0 : code.back().digitValue();
    return (code.size() == 10 && last == PersonCheckDigit(code)) ||
           (code.size() == 11 && last == CompanyCheckDigit(code));
}
