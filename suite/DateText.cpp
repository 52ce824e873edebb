#include "DateText.h"

#include "PersianText.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr qsizetype YearDigits = 4;

/// The groups of digits in the text.
QStringList Numbers(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("[0-9]+"));
    QStringList numbers;
    auto found = pattern.globalMatch(PersianText::AsciiDigits(text));
    while (found.hasNext())
        numbers += found.next().captured();
    constexpr qsizetype WholeDate = 8;
    if (numbers.size() == 1 && numbers.front().size() == WholeDate) {
        const QString whole = numbers.front();
        return {whole.left(YearDigits), whole.mid(YearDigits, 2), whole.mid(YearDigits + 2)};
    }
    return numbers;
}

} // namespace

std::optional<TDateNumbers> DateText::Read(const QString& text)
{
    QStringList numbers = Numbers(text);
    if (numbers.size() != 3)
        return std::nullopt;
    if (numbers.front().size() != YearDigits)
        std::swap(numbers.front(), numbers.back());
    const bool isDate =
        numbers.at(0).size() == YearDigits && numbers.at(1).size() <= 2 && numbers.at(2).size() <= 2;
    if (!isDate)
        return std::nullopt;
    return TDateNumbers{numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt()};
}

QString DateText::Write(const TDateNumbers& date, const QString& separator)
{
    const auto number = [](int value, int width) {
        return QString::number(value).rightJustified(width, QLatin1Char('0'));
    };
    return number(date.Year, YearDigits) + separator + number(date.Month, 2) + separator +
           number(date.Day, 2);
}
