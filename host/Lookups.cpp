#include "Lookups.h"

#include "ADOConnection.h"
#include "EntityTables.h"
#include "FieldName.h"
#include "PersianText.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace {

const TEntityTable& TableOf(LocateDBsOptions option)
{
    const TEntityTable* table = EntityTables::ByLookupOption(static_cast<int>(option));
    if (table == nullptr)
        throw std::logic_error("No table is looked up by the option " +
                               std::to_string(static_cast<int>(option)) + ".");
    return *table;
}

QStringList ColumnsOf(const QString& fields)
{
    QStringList columns;
    const QStringList names = fields.split(u';');
    for (const QString& name : names)
        columns.append(FieldName::Bracketed(name.trimmed()));
    return columns;
}

QVariant ValueOf(IEngineRows& row, int column)
{
    const QVariant value = row.Value(column);
    return value.isValid() ? value : QVariant(QString(QLatin1String("")));
}

} // namespace

std::optional<int> Lookups::CodeOf(const QString& text)
{
    const QString digits = PersianText::AsciiDigits(text).trimmed();
    const bool isNumber = !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
    bool fits = false;
    const int code = isNumber ? digits.toInt(&fits) : 0;
    return fits && code > 0 ? std::optional(code) : std::nullopt;
}

QVariant Lookups::Find(TADOConnection& connection, const QString& code, const QString& fields,
                       LocateDBsOptions option, PerLocateOptions persons)
{
    const TEntityTable& table = TableOf(option);
    const QStringList columns = ColumnsOf(fields);
    const std::optional<int> number = CodeOf(code);
    if (!number)
        return {};
    const bool onlyActive = option == LocateDBsOptions::ldPersonals && persons == PerLocateOptions::plActive;
    const auto rows =
        connection.Run(QStringLiteral("SELECT %1 FROM %2 WHERE Code = %3%4")
                           .arg(columns.join(QStringLiteral(", ")), table.Table, QString::number(*number),
                                onlyActive ? QStringLiteral(" AND Active = 1") : QString()));
    if (!rows->Next())
        return {};
    if (columns.size() == 1)
        return ValueOf(*rows, 0);
    QVariantList values;
    for (int column = 0; column < columns.size(); ++column)
        values.append(ValueOf(*rows, column));
    return values;
}
