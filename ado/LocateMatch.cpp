#include "LocateMatch.h"

#include "ExactDecimal.h"

#include <QDateTime>
#include <QLocale>

namespace {

bool IsNumeric(TFieldType type)
{
    switch (type) {
    case TFieldType::ftBoolean:
    case TFieldType::ftInteger:
    case TFieldType::ftLargeint:
    case TFieldType::ftFloat:
    case TFieldType::ftBCD:
        return true;
    default:
        return false;
    }
}

/// One spelling for every value that is equal: 5, 5.0, "5.00" and true as 1.
QString NumberText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
        return QLocale::c().toString(value.toDouble(), 'f', QLocale::FloatingPointShortest).remove(u',');
    default:
        return CanonicalDecimal(value.toString().trimmed());
    }
}

QString PlainText(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().toString(Qt::ISODate);
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(Qt::ISODate);
    return value.toString();
}

} // namespace

TLocateMatch::TLocateMatch(const QVector<TField*>& fields, const QVariantList& values, TLocateOptions options)
    : options_(options)
{
    for (int i = 0; i < fields.size(); ++i) {
        const bool isNumber = IsNumeric(fields[i]->DataType());
        const QString text = isNumber ? NumberText(values[i]) : PlainText(values[i]);
        conditions_.append({fields[i]->Index(), values[i], isNumber, text});
    }
}

bool TLocateMatch::Matches(const TADOQuery& query, int sourceRow) const
{
    for (const TCondition& condition : conditions_) {
        if (!Matches(condition, query.SourceValue(sourceRow, condition.Index)))
            return false;
    }
    return true;
}

bool TLocateMatch::Matches(const TCondition& condition, const QVariant& value) const
{
    if (!condition.Value.isValid() || !value.isValid())
        return condition.Value.isValid() == value.isValid();
    if (condition.IsNumber)
        return NumberText(value) == condition.Text;
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray() == condition.Value.toByteArray();
    return TextMatches(value.toString(), condition.Text);
}

bool TLocateMatch::TextMatches(const QString& text, const QString& wanted) const
{
    const Qt::CaseSensitivity sensitivity =
        options_.testFlag(TLocateOption::loCaseInsensitive) ? Qt::CaseInsensitive : Qt::CaseSensitive;
    if (options_.testFlag(TLocateOption::loPartialKey))
        return text.startsWith(wanted, sensitivity);
    return text.compare(wanted, sensitivity) == 0;
}
