#include "Field.h"

#include "AdoError.h"
#include "DataSet.h"
#include "ExactDecimal.h"

#include <cmath>
#include <limits>
#include <QLocale>

namespace {

constexpr double TwoTo63 = 9223372036854775808.0;

[[noreturn]] void RefuseConversion(const QString& fieldName, const QString& value)
{
    throw EADOError(
        TAdoErrorKind::WrongState,
        QStringLiteral("مقدار «%2» در فیلد «%1» عدد پذیرفته‌ای نیست.")
            .arg(fieldName, value.left(60)));
}

/// A decimal text as a whole number without a detour over floating point, which would lose the last digits.
qint64 RoundedDecimal(const QString& fieldName, const QString& text)
{
    const QString number = CanonicalDecimal(text.trimmed());
    const qsizetype point = number.indexOf(u'.');
    bool valid = false;
    const qint64 whole = QStringView(number).left(point < 0 ? number.size() : point).toLongLong(&valid);
    if (!valid || !IsDecimal(number))
        RefuseConversion(fieldName, text);
    const bool roundsAway = point >= 0 && number[point + 1] >= u'5';
    if (!roundsAway)
        return whole;
    const bool negative = number.startsWith(u'-');
    const qint64 limit = negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    if (whole == limit)
        RefuseConversion(fieldName, text);
    return negative ? whole - 1 : whole + 1;
}

double FloatOfText(const QString& fieldName, const QString& text)
{
    bool valid = false;
    const double number = text.trimmed().toDouble(&valid);
    if (!valid || !std::isfinite(number))
        RefuseConversion(fieldName, text);
    return number;
}

QString TextOf(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        return value.toString();
    }
}

qint64 RoundedFloat(const QString& fieldName, double number)
{
    const double rounded = std::round(number);
    if (!(rounded >= -TwoTo63 && rounded < TwoTo63))
        RefuseConversion(fieldName, TextOf(number));
    return static_cast<qint64>(rounded);
}

} // namespace

TField::TField(TDataSet* dataSet, int index, const TColumnInfo& column)
    : dataSet_(dataSet), index_(index), column_(column)
{
}

QVariant TField::Value() const
{
    return dataSet_->FieldValue(index_);
}

bool TField::IsNull() const
{
    return !Value().isValid();
}

QString TField::AsString() const
{
    return TextOf(Value());
}

int TField::AsInteger() const
{
    const qint64 number = AsLargeInt();
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        RefuseConversion(FieldName(), QString::number(number));
    return static_cast<int>(number);
}

qint64 TField::AsLargeInt() const
{
    const QVariant value = Value();
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return 0;
    case QMetaType::QString:
        return RoundedDecimal(FieldName(), value.toString());
    case QMetaType::Double:
        return RoundedFloat(FieldName(), value.toDouble());
    case QMetaType::QByteArray:
        RefuseConversion(FieldName(), TextOf(value));
    default:
        return value.toLongLong();
    }
}

double TField::AsFloat() const
{
    const QVariant value = Value();
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return 0;
    case QMetaType::QString:
        return FloatOfText(FieldName(), value.toString());
    case QMetaType::QByteArray:
        RefuseConversion(FieldName(), TextOf(value));
    default:
        return value.toDouble();
    }
}

bool TField::AsBoolean() const
{
    const QVariant value = Value();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        if (text.compare(u"true", Qt::CaseInsensitive) == 0)
            return true;
        if (text.compare(u"false", Qt::CaseInsensitive) == 0)
            return false;
    }
    return AsFloat() != 0;
}

QByteArray TField::AsBytes() const
{
    const QVariant value = Value();
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : TextOf(value).toUtf8();
}
