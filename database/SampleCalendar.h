#pragma once

#include <QDate>
#include <QString>

/// Solar years of the sample data.
namespace SampleCalendar {

constexpr int FirstYear = 1402;

bool IsLeap(int year);
int DaysIn(int year);
/// `day` counts from 0 at the first of Farvardin; the text is yyyy/mm/dd.
QString DateText(int year, int day);
QDate Gregorian(int year, int day);

} // namespace SampleCalendar
