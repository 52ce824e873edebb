#include "GridCellText.h"

#include "DecimalText.h"
#include "PersianText.h"

#include <QDate>

namespace {

/// Julian day of the last day before the first solar year, as the 33-year rule counts back to it; the rule
/// holds for the years 1206 to 1498.
constexpr qint64 DayBeforeFirstYear = 1948319;

/// Days of all solar years before this one, on the 33-year rule.
qint64 DaysBefore(qint64 year)
{
    return 365 * (year - 1) + (8 * year + 21) / 33;
}

QString SolarDay(const QDate& date)
{
    constexpr qint64 LongMonths = 6;
    const qint64 day = date.toJulianDay() - DayBeforeFirstYear;
    qint64 year = day / 365 + 1;
    while (DaysBefore(year) >= day)
        --year;
    const qint64 dayOfYear = day - DaysBefore(year) - 1;
    const bool inLongMonth = dayOfYear < LongMonths * 31;
    const qint64 month = inLongMonth ? dayOfYear / 31 : LongMonths + (dayOfYear - LongMonths * 31) / 30;
    const qint64 dayOfMonth = inLongMonth ? dayOfYear % 31 : (dayOfYear - LongMonths * 31) % 30;
    return QStringLiteral("%1/%2/%3")
        .arg(year, 4, 10, QChar(u'0'))
        .arg(month + 1, 2, 10, QChar(u'0'))
        .arg(dayOfMonth + 1, 2, 10, QChar(u'0'));
}

/// Empty where the value is no number.
QString PlainNumber(const QVariant& value)
{
    constexpr int Decimals = 6;
    if (value.typeId() == QMetaType::Double)
        return DecimalText::FromValue(value.toDouble(), Decimals);
    const QString plain = PersianText::NumberFromAnyScript(value.toString());
    return plain.isEmpty() ? QString() : DecimalText::WithoutTrailingZeros(plain);
}

QString Text(const QVariant& value, TGridColumn::TKind kind, bool grouped)
{
    if (!value.isValid() || value.isNull())
        return {};
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("بله") : QStringLiteral("خیر");
    if (kind == TGridColumn::ckMoney || kind == TGridColumn::ckNumber) {
        const QString plain = PlainNumber(value);
        if (!plain.isEmpty())
            return grouped ? DecimalText::Grouped(plain) : plain;
    }
    const QString text = PersianText::SingleLine(value.toString());
    return kind == TGridColumn::ckDate ? GridCellText::SolarDate(text) : text;
}

} // namespace

TGridColumn::TKind GridCellText::KindOf(TFieldType type)
{
    switch (type) {
    case TFieldType::ftInteger:
    case TFieldType::ftLargeint:
        return TGridColumn::ckCode;
    case TFieldType::ftFloat:
    case TFieldType::ftBCD:
        return TGridColumn::ckNumber;
    case TFieldType::ftDate:
    case TFieldType::ftDateTime:
        return TGridColumn::ckDate;
    default:
        return TGridColumn::ckText;
    }
}

bool GridCellText::IsNumeric(TGridColumn::TKind kind)
{
    return kind != TGridColumn::ckText;
}

QString GridCellText::Shown(const QVariant& value, TGridColumn::TKind kind)
{
    return Text(value, kind, true);
}

QString GridCellText::Copied(const QVariant& value, TGridColumn::TKind kind)
{
    return Text(value, kind, false);
}

QString GridCellText::SolarDate(const QString& isoText)
{
    constexpr int DateLength = 10; // YYYY-MM-DD
    constexpr int TimeLength = 5;  // HH:MM
    // The toolkit takes any sign between the numbers; with slashes the text is a solar date already.
    const bool isIso = isoText.mid(4, 1) == u'-';
    const QDate date = QDate::fromString(isoText.left(DateLength), Qt::ISODate);
    if (!isIso || !date.isValid() || date.toJulianDay() <= DayBeforeFirstYear)
        return isoText;
    const QString time = isoText.mid(DateLength + 1, TimeLength);
    return time.isEmpty() ? SolarDay(date) : SolarDay(date) + u' ' + time;
}
