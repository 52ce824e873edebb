#include "DateBound.h"

#include "PersianText.h"

#include <algorithm>
#include <QRegularExpression>

namespace {

constexpr int FirstYear = 1753;
constexpr qint64 SecondsOfMinute = 60;

} // namespace

bool DateBound::IsOpen(const QString& value)
{
    const QString text = PersianText::AsciiDigits(value).simplified().remove(QLatin1Char(' '));
    static const QRegularExpression open(QStringLiteral("^(0000/00/00|9999/99/99|/{0,2})(-[0-9:]*)?$"));
    return open.match(text).hasMatch();
}

std::optional<DateBound::TMoment> DateBound::Moment(const QString& value)
{
    static const QRegularExpression pattern(QStringLiteral(
        "^(\\d{4})[/-](\\d{1,2})[/-](\\d{1,2})(?:\\s*[-T ]\\s*(?:(\\d{1,2}):(\\d{2})(?::\\d{2})?)?)?$"));
    const QRegularExpressionMatch match = pattern.match(PersianText::AsciiDigits(value).trimmed());
    const QDate date(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    if (!match.hasMatch() || !date.isValid())
        return std::nullopt;
    const bool hasTime = !match.captured(4).isEmpty();
    const QTime time = hasTime ? QTime(match.captured(4).toInt(), match.captured(5).toInt()) : QTime(0, 0);
    if (!time.isValid())
        return std::nullopt;
    const QDateTime first(QDate(FirstYear, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime begin(date, time, Qt::UTC);
    const QDateTime end = hasTime ? begin.addSecs(SecondsOfMinute) : begin.addDays(1);
    return TMoment{std::max(begin, first), std::max(end, first)};
}

QString DateBound::Text(const QDateTime& moment)
{
    return moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}
