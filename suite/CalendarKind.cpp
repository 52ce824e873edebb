#include "CalendarKind.h"

#include "SmartFaDate.h"

#include <array>

TCalendarKind TCalendarKind::Other() const
{
    return TCalendarKind(kind_ == TKind::Solar ? TKind::Gregorian : TKind::Solar);
}

int TCalendarKind::FirstYear() const
{
    return kind_ == TKind::Solar ? 1200 : 1753; // the first Gregorian year that the server stores
}

int TCalendarKind::LastYear() const
{
    return kind_ == TKind::Solar ? 1599 : 2399;
}

TDateNumbers TCalendarKind::Of(const QDate& date) const
{
    if (kind_ == TKind::Gregorian)
        return {date.year(), date.month(), date.day()};
    const TFaDate day = TFaDate::CreateByGregorianDate(date);
    return {day.Year(), day.Month(), day.Day()};
}

QDate TCalendarKind::DateOf(const TDateNumbers& day) const
{
    return kind_ == TKind::Gregorian
               ? QDate(day.Year, day.Month, day.Day)
               : TFaDate::CreateByPersianDate(day.Year, day.Month, day.Day).GetGregorianDate();
}

QString TCalendarKind::TextOf(const QDate& date) const
{
    return date.isValid() ? DateText::Write(Of(date)) : QString();
}

int TCalendarKind::DaysInMonth(int year, int month) const
{
    return kind_ == TKind::Gregorian ? QDate(year, month, 1).daysInMonth()
                                     : TFaDate::DaysInMonth(year, month);
}

QString TCalendarKind::MonthName(int month) const
{
    if (kind_ == TKind::Solar)
        return TFaDate::MonthName(month);
    static const std::array<QString, 12> names = {
        QStringLiteral("ژانویه"), QStringLiteral("فوریه"),  QStringLiteral("مارس"),
        QStringLiteral("آوریل"),  QStringLiteral("مه"),     QStringLiteral("ژوئن"),
        QStringLiteral("ژوئیه"),  QStringLiteral("اوت"),    QStringLiteral("سپتامبر"),
        QStringLiteral("اکتبر"),  QStringLiteral("نوامبر"), QStringLiteral("دسامبر")};
    return month >= 1 && month <= 12 ? names.at(static_cast<size_t>(month - 1)) : QString();
}

QDate TCalendarKind::AddMonths(const QDate& date, int months) const
{
    TDateNumbers day = Of(date);
    const int month = day.Year * 12 + day.Month - 1 + months;
    day.Year = month / 12;
    day.Month = month % 12 + 1;
    day.Day = qMin(day.Day, DaysInMonth(day.Year, day.Month));
    return DateOf(day);
}

QString TCalendarKind::InWords(const QDate& date) const
{
    const TDateNumbers day = Of(date);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(TFaDate::DayName(date))
        .arg(day.Day)
        .arg(MonthName(day.Month))
        .arg(day.Year);
}
