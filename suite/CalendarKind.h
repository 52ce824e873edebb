#pragma once

#include "DateText.h"
#include "SuiteExport.h"

#include <QDate>
#include <QString>

/// The solar or the Gregorian calendar, as an edit or a month page counts by it.
class SUITE_EXPORT TCalendarKind
{
public:
    /// Solar is that of Iran.
    enum class TKind { Solar, Gregorian };

    explicit TCalendarKind(TKind kind = TKind::Solar) : kind_(kind) {}

    TKind Kind() const { return kind_; }
    TCalendarKind Other() const; ///< the other one of the two
    /// Years that a user can mean; what is outside was meant for the other calendar or mistyped.
    int FirstYear() const;
    int LastYear() const;
    /// Whether a year lies between the two.
    bool IsUsualYear(int year) const { return year >= FirstYear() && year <= LastYear(); }

    TDateNumbers Of(const QDate& date) const; ///< all 0 for an invalid date
    /// Invalid where there is no such day.
    QDate DateOf(const TDateNumbers& day) const;
    QString TextOf(const QDate& date) const;    ///< "1403/01/09"; empty for an invalid date
    int DaysInMonth(int year, int month) const; ///< 0 where there is no such month
    QString MonthName(int month) const;         ///< in Persian
    /// The same day of another month, or the last day where that month is shorter.
    QDate AddMonths(const QDate& date, int months) const;
    /// "پنجشنبه 9 فروردین 1403".
    QString InWords(const QDate& date) const;

private:
    TKind kind_;
};
