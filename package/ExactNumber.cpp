#include "ExactNumber.h"

#include "PersianText.h"

#include <cmath>
#include <QLocale>

namespace {

QString WithoutSign(const QString& number)
{
    return number.startsWith(QLatin1Char('-')) ? number.mid(1) : number;
}

QString Canonical(const QString& number)
{
    const bool isNegative = number.startsWith(QLatin1Char('-'));
    const QString digits = WithoutSign(number);
    const qsizetype point = digits.indexOf(QLatin1Char('.'));
    QString whole = point < 0 ? digits : digits.left(point);
    QString fraction = point < 0 ? QString() : digits.mid(point + 1);
    while (whole.size() > 1 && whole.startsWith(QLatin1Char('0')))
        whole.remove(0, 1);
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    if (whole.isEmpty())
        whole = QStringLiteral("0");
    if (whole.size() + fraction.size() > ExactNumber::MaxDigits)
        return {};
    const QString result = fraction.isEmpty() ? whole : whole + QLatin1Char('.') + fraction;
    return isNegative && result != QLatin1String("0") ? QLatin1Char('-') + result : result;
}

int CompareAmounts(const QString& first, const QString& second)
{
    const qsizetype firstWhole =
        first.indexOf(QLatin1Char('.')) < 0 ? first.size() : first.indexOf(QLatin1Char('.'));
    const qsizetype secondWhole =
        second.indexOf(QLatin1Char('.')) < 0 ? second.size() : second.indexOf(QLatin1Char('.'));
    if (firstWhole != secondWhole)
        return firstWhole < secondWhole ? -1 : 1;
    return first.compare(second);
}

} // namespace

QString ExactNumber::Of(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble())
                   ? Canonical(QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest))
                   : QString();
    default: {
        const QString number = PersianText::NumberFromAnyScript(value.toString());
        return number.isEmpty() ? number : Canonical(number);
    }
    }
}

int ExactNumber::Compare(const QString& first, const QString& second)
{
    const bool firstIsNegative = first.startsWith(QLatin1Char('-'));
    const bool secondIsNegative = second.startsWith(QLatin1Char('-'));
    if (firstIsNegative != secondIsNegative)
        return firstIsNegative ? -1 : 1;
    const int amounts = CompareAmounts(WithoutSign(first), WithoutSign(second));
    return firstIsNegative ? -amounts : amounts;
}
