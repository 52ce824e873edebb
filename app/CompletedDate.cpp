#include "PersianText.h"
#include "SolarCalendar.h"
#include "VoucherDraft.h"

#include <QRegularExpression>

namespace {

bool IsDay(int year, int month, int day, bool gregorian)
{
    if (gregorian)
        return QDate::isValid(year, month, day);
    return year > 0 && month >= 1 && month <= 12 && day >= 1 &&
           day <= SolarCalendar::DaysInMonth(year, month);
}

} // namespace

QString CompletedDate(const QString& typed, bool gregorian)
{
    static const QRegularExpression pattern(QStringLiteral(
        "^\\s*([0-9]{4})(?:[/.\\-]([0-9]{1,2})[/.\\-]([0-9]{1,2})|([0-9]{2})([0-9]{2}))\\s*$"));
    const QRegularExpressionMatch match = pattern.match(PersianText::AsciiDigits(typed));
    if (!match.hasMatch())
        return {};
    const bool separated = match.hasCaptured(2);
    const int year = match.captured(1).toInt();
    const int month = match.captured(separated ? 2 : 4).toInt();
    const int day = match.captured(separated ? 3 : 5).toInt();
    if (!IsDay(year, month, day, gregorian))
        return {};
    return QStringLiteral("%1/%2/%3")
        .arg(year, 4, 10, QChar(u'0'))
        .arg(month, 2, 10, QChar(u'0'))
        .arg(day, 2, 10, QChar(u'0'));
}
