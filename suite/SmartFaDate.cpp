#include "SmartFaDate.h"

#include <array>

namespace {

constexpr int MonthsOf31Days = 6;

/// The day before 1/1/1 of the rule, as a Julian day.
constexpr qint64 DayBeforeFirstYear = 1948319;

/// Eight leap years in each cycle of 33.
constexpr qint64 LeapYearsBefore(qint64 year)
{
    return (8 * year + 21) / 33;
}

constexpr qint64 FirstDayOf(qint64 year)
{
    return DayBeforeFirstYear + 1 + 365 * (year - 1) + LeapYearsBefore(year);
}

constexpr int DaysBeforeMonth(int month)
{
    return month <= MonthsOf31Days + 1 ? 31 * (month - 1)
                                       : 31 * MonthsOf31Days + 30 * (month - MonthsOf31Days - 1);
}

TDateNumbers SolarDayOf(qint64 julianDay)
{
    int year = static_cast<int>((julianDay - FirstDayOf(1)) / 366) + 1;
    while (FirstDayOf(year + 1) <= julianDay)
        ++year;
    const int dayOfYear = static_cast<int>(julianDay - FirstDayOf(year));
    int month = 12;
    while (DaysBeforeMonth(month) > dayOfYear)
        --month;
    return {year, month, dayOfYear - DaysBeforeMonth(month) + 1};
}

} // namespace

TFaDate TFaDate::CreateByPersianDate(const QString& text)
{
    const std::optional<TDateNumbers> date = DateText::Read(text);
    return date ? CreateByPersianDate(date->Year, date->Month, date->Day) : TFaDate();
}

TFaDate TFaDate::CreateByPersianDate(int year, int month, int day)
{
    TFaDate result;
    if (year < FirstYear || year > LastYear || day < 1 || day > DaysInMonth(year, month))
        return result;
    result.solar_ = {year, month, day};
    result.date_ = QDate::fromJulianDay(FirstDayOf(year) + DaysBeforeMonth(month) + day - 1);
    return result;
}

TFaDate TFaDate::CreateByGregorianDate(const QDate& date)
{
    TFaDate result;
    const qint64 day = date.isValid() ? date.toJulianDay() : 0;
    if (day < FirstDayOf(FirstYear) || day >= FirstDayOf(LastYear + 1))
        return result;
    result.solar_ = SolarDayOf(day);
    result.date_ = date;
    return result;
}

TFaDate TFaDate::CreateByGregorianDate(const QString& text)
{
    const std::optional<TDateNumbers> date = DateText::Read(text);
    return date ? CreateByGregorianDate(QDate(date->Year, date->Month, date->Day)) : TFaDate();
}

int TFaDate::GetDaysInMonth() const
{
    return DaysInMonth(solar_.Year, solar_.Month);
}

QString TFaDate::ToDateString() const
{
    return IsValid() ? DateText::Write(solar_) : QString();
}

QString TFaDate::GetGregorianDateString() const
{
    return IsValid() ? DateText::Write({date_.year(), date_.month(), date_.day()}) : QString();
}

bool TFaDate::IsLeapYear(int year)
{
    return (25 * year + 11) % 33 < 8;
}

int TFaDate::DaysInMonth(int year, int month)
{
    if (month < 1 || month > 12)
        return 0;
    if (month < 12)
        return month <= MonthsOf31Days ? 31 : 30;
    return IsLeapYear(year) ? 30 : 29;
}

QString TFaDate::MonthName(int month)
{
    static const std::array<QString, 12> names = {
        QStringLiteral("فروردین"), QStringLiteral("اردیبهشت"), QStringLiteral("خرداد"),
        QStringLiteral("تیر"),     QStringLiteral("مرداد"),    QStringLiteral("شهریور"),
        QStringLiteral("مهر"),     QStringLiteral("آبان"),     QStringLiteral("آذر"),
        QStringLiteral("دی"),      QStringLiteral("بهمن"),     QStringLiteral("اسفند")};
    return month >= 1 && month <= 12 ? names.at(static_cast<size_t>(month - 1)) : QString();
}

QString TFaDate::DayName(const QDate& date)
{
    static const std::array<QString, 7> names = {
        QStringLiteral("دوشنبه"),   QStringLiteral("سه‌شنبه"),
        QStringLiteral("چهارشنبه"), QStringLiteral("پنجشنبه"),
        QStringLiteral("جمعه"),     QStringLiteral("شنبه"),
        QStringLiteral("یکشنبه")};
    return date.isValid() ? names.at(static_cast<size_t>(date.dayOfWeek() - 1)) : QString();
}
