#include "ReportText.h"

#include "DateBound.h"
#include "DisplayText.h"
#include "GridCellText.h"
#include "PersianText.h"
#include "ReportItems.h"
#include "SmartFaDate.h"
#include "TarvaSearch.h"

#include <QRegularExpression>

namespace {

constexpr int FirstGregorianYear = 1700;

QString DayInCalendar(const QString& day, bool gregorian)
{
    const bool isGregorian = day.left(4).toInt() >= FirstGregorianYear;
    const TFaDate date =
        isGregorian ? TFaDate::CreateByGregorianDate(day) : TFaDate::CreateByPersianDate(day);
    if (!date.IsValid())
        return day;
    return gregorian ? date.GetGregorianDateString() : date.ToDateString();
}

void ReplaceBound(QString& words, const QString& bound, bool gregorian)
{
    const QString text = bound.trimmed();
    if (text.isEmpty() || DateBound::IsOpen(text))
        return;
    words.replace(PersianText::PersianDigits(text),
                  PersianText::PersianDigits(ReportText::Date(text, gregorian)));
}

} // namespace

QString ReportText::Date(const QString& value, bool gregorian)
{
    static const QRegularExpression moment(
        QStringLiteral("^(\\d{4}[/-]\\d{1,2}[/-]\\d{1,2})(?:[-T ](\\d{2}:\\d{2})?.*)?$"));
    const QRegularExpressionMatch match = moment.match(value);
    if (!match.hasMatch())
        return value;
    const QString day = DayInCalendar(match.captured(1), gregorian);
    return match.captured(2).isEmpty() ? day : day + u' ' + match.captured(2);
}

QString ReportText::Cell(const QVariant& value, TGridColumn::TKind kind, bool gregorian)
{
    return kind == TGridColumn::ckDate ? Date(PersianText::SingleLine(value.toString()), gregorian)
                                       : GridCellText::Copied(value, kind);
}

QString ReportText::Condition(const QString& words, const QVector<const TTarvaSearch*>& dateCriteria,
                              bool gregorian)
{
    QString result = ReportItems::WithStateInWords(words);
    for (const TTarvaSearch* criterion : dateCriteria) {
        if (!criterion->Active())
            continue;
        ReplaceBound(result, criterion->Value1().toString(), gregorian);
        ReplaceBound(result, criterion->Value2().toString(), gregorian);
    }
    return result;
}

QString ReportText::Shortened(int rows, qint64 count)
{
    if (rows >= count)
        return {};
    return QStringLiteral("تنها %1 ردیف نخست از %2 ردیف")
        .arg(DisplayText::Grouped(QString::number(rows)), DisplayText::Grouped(QString::number(count)));
}
