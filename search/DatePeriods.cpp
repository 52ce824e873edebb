#include "DatePeriods.h"

#include "SmartFaDate.h"

namespace {

constexpr int DaysOfWeek = 7;

/// 1 for Sunday to 7 for Saturday.
int DayOfWeek(const QDate& date)
{
    return date.dayOfWeek() % DaysOfWeek + 1;
}

int DayOfPersianWeek(const QDate& date)
{
    return DAYNUMM.at(static_cast<size_t>(DayOfWeek(date) - 1));
}

} // namespace

QString TDatePeriods::TextOf(const QDate& date) const
{
    const TFaDate day = TFaDate::CreateByGregorianDate(date);
    return gregorian_ ? day.GetGregorianDateString() : day.ToDateString();
}

QDate TDatePeriods::StartOfWeek() const
{
    // Both begin one day early; lists have always shown that day too.
    return today_.addDays(gregorian_ ? -DayOfWeek(today_) : -DayOfPersianWeek(today_));
}

QString TDatePeriods::StartOf(currentTime period) const
{
    if (period == crweek)
        return TextOf(StartOfWeek());
    if (gregorian_)
        return DaysBefore(today_.day() - 1);
    const QString today = Today();
    return today.left(today.lastIndexOf(u'/') + 1) + QStringLiteral("01");
}

QString TDatePeriods::EndOfMonth() const
{
    if (gregorian_)
        return TextOf(QDate(today_.year(), today_.month(), today_.daysInMonth()));
    const TFaDate day = TFaDate::CreateByPersianDate(Today());
    // Without leading zeros: owners rely on the text as it is.
    return QStringLiteral("%1/%2/%3").arg(day.Year()).arg(day.Month()).arg(day.GetDaysInMonth());
}

QString TDatePeriods::EndOfWeek() const
{
    // The Gregorian period is the one day; that differs from the Persian week and is intended.
    return gregorian_ ? TextOf(StartOfWeek()) : TextOf(today_.addDays(DaysOfWeek - DayOfPersianWeek(today_)));
}

QString ConditionText::WithoutPart(const QString& condition, const QString& part)
{
    QString rest = condition.trimmed();
    const QString sought = part.trimmed();
    for (const QString& behind : {QStringLiteral(" AND "), QStringLiteral(" ,"), QString()}) {
        const QString piece = sought + behind;
        const qsizetype position = rest.indexOf(piece);
        if (position >= 0)
            return rest.remove(position, piece.size());
    }
    return rest;
}
