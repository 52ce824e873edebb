#include "Codes.h"

#include "PersianText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

namespace Codes {
namespace {

int IntegerDigits(long double value)
{
    const long double size = std::fabs(value);
    return size < 1 ? 1 : static_cast<int>(std::floor(std::log10(size))) + 1;
}

} // namespace

QString Complete(const QString& code, int length)
{
    const QString trimmed = PersianText::AsciiDigits(code).trimmed();
    return trimmed.isEmpty() ? trimmed : trimmed.rightJustified(length, u'0');
}

QString AmountText(long double value)
{
    if (!std::isfinite(value))
        return QStringLiteral("0");
    constexpr int significantDigits = 18;
    const int decimals = std::clamp(significantDigits - IntegerDigits(value), 4, 10);
    const int size = std::snprintf(nullptr, 0, "%.*Lf", decimals, value);
    std::string buffer(static_cast<size_t>(size) + 1, '\0');
    std::snprintf(buffer.data(), buffer.size(), "%.*Lf", decimals, value);
    buffer.pop_back();
    // The C library writes the decimal sign of the process's locale.
    std::replace(buffer.begin(), buffer.end(), ',', '.');
    buffer.erase(buffer.find_last_not_of('0') + 1);
    if (buffer.back() == '.')
        buffer.pop_back();
    return buffer == "-0" ? QStringLiteral("0") : QString::fromStdString(buffer);
}

} // namespace Codes
