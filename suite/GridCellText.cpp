#include "GridCellText.h"

#include "DecimalText.h"
#include "PersianText.h"
#include "SmartFaDate.h"

namespace {

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
    return kind != TGridColumn::ckText && kind != TGridColumn::ckColor;
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
    const TFaDate date =
        TFaDate::CreateByGregorianDate(QDate::fromString(isoText.left(DateLength), Qt::ISODate));
    if (!isIso || !date.IsValid())
        return isoText;
    const QString time = isoText.mid(DateLength + 1, TimeLength);
    return time.isEmpty() ? date.ToDateString() : date.ToDateString() + u' ' + time;
}
