#include "DisplayText.h"

#include "Look.h"
#include "PersianText.h"
#include "SmartFaDate.h"

namespace DisplayText {
QString Grouped(const QString& number)
{
    const QChar sign = Look::Digits() == Look::TDigits::Persian ? QChar(0x066C) : QChar(u',');
    const QChar point = Look::Digits() == Look::TDigits::Persian ? QChar(0x066B) : QChar(u'.');
    const bool negative = number.startsWith(u'-');
    QString whole = number.section(u'.', 0, 0).mid(negative ? 1 : 0);
    for (qsizetype position = whole.size() - 3; position > 0; position -= 3)
        whole.insert(position, sign);
    QString decimals = number.section(u'.', 1);
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    return (negative ? QStringLiteral("-") : QString()) + whole +
           (decimals.isEmpty() ? QString() : point + decimals);
}

QString RowCount(int count)
{
    return Grouped(QString::number(count)) + QStringLiteral(" ردیف");
}

QString FieldValue(const QVariant& value, TGridColumn::TKind kind)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("بله") : QStringLiteral("خیر");
    const QString text = value.toString();
    if (text.isEmpty())
        return QStringLiteral("—");
    return kind == TGridColumn::ckMoney || kind == TGridColumn::ckNumber ? Grouped(text) : text;
}

QString DayInWords(const QDate& date, bool gregorian)
{
    if (gregorian)
        return QStringLiteral("%1 %2").arg(
            TFaDate::DayName(date), PersianText::Isolated(date.toString(QStringLiteral("yyyy/MM/dd"))));
    const TFaDate day = TFaDate::CreateByGregorianDate(date);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(TFaDate::DayName(date))
        .arg(day.Day())
        .arg(TFaDate::MonthName(day.Month()))
        .arg(day.Year());
}

} // namespace DisplayText
