#pragma once

#include "DateText.h"
#include "SuiteExport.h"

#include <QDate>
#include <QString>

/// A day of the solar calendar of Iran and of the Gregorian one. Year y is leap when (25y + 11) mod 33 < 8,
/// which equals the official calendar from 1206 to 1498; years outside go by the same rule.
class SUITE_EXPORT TFaDate
{
public:
    static constexpr int FirstYear = 1;   ///< of the solar calendar, as LastYear
    static constexpr int LastYear = 9377; ///< its last day is in the Gregorian year 9999

    /// No day.
    TFaDate() = default;
    /// "1403/01/09", in digits of any script with any signs between the numbers. No day where there is none
    /// such.
    static TFaDate CreateByPersianDate(const QString& text);
    static TFaDate CreateByPersianDate(int year, int month, int day);
    /// No day where the date is invalid or its solar year is not FirstYear to LastYear.
    static TFaDate CreateByGregorianDate(const QDate& date);
    /// "2024/03/28", read like a Persian date.
    static TFaDate CreateByGregorianDate(const QString& text);

    bool IsValid() const { return date_.isValid(); } ///< false for no day
    int Year() const { return solar_.Year; }         ///< 0 where this is no day
    int Month() const { return solar_.Month; }       ///< 1 to 12
    int Day() const { return solar_.Day; }           ///< 1 to 31
    /// Days of the month in which this day is; 0 where this is no day.
    int GetDaysInMonth() const;
    /// "1403/01/09"; empty where this is no day.
    QString ToDateString() const;
    /// "2024/03/28"; empty where this is no day.
    QString GetGregorianDateString() const;
    QDate GetGregorianDate() const { return date_; } ///< invalid where this is no day
    friend bool operator==(const TFaDate&, const TFaDate&) = default;

    static bool IsLeapYear(int year); ///< a year of the solar calendar
    /// 0 for a month that is not 1 to 12.
    static int DaysInMonth(int year, int month);
    /// "فروردین" for 1 to "اسفند" for 12.
    static QString MonthName(int month);
    /// "دوشنبه" for a Monday.
    static QString DayName(const QDate& date);

private:
    QDate date_;
    TDateNumbers solar_;
};
