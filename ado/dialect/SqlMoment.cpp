#include "Moment.h"
#include "SqlValue.h"

#include <QDateTime>
#include <QString>

namespace Dialect {

namespace {

QString QText(sqlite3_value* value)
{
    const std::string_view text = TextOf(value);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void ResultQText(sqlite3_context* context, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    ResultText(context, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::optional<qint64> MomentOfValue(sqlite3_context* context, sqlite3_value* value)
{
    const std::optional<qint64> moment = MomentOf(QText(value));
    if (!moment)
        ResultConversionError(context, TextOf(value), "datetime");
    return moment;
}

void Date(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (const std::optional<qint64> moment = MomentOfValue(context, values[0]))
        ResultQText(context, DateTimeText(*moment).left(10));
}

void DateTime(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    if (const std::optional<qint64> moment = MomentOfValue(context, values[0]))
        ResultQText(context, DateTimeText(*moment));
}

TMomentPart Part(sqlite3_value* value)
{
    return static_cast<TMomentPart>(sqlite3_value_int(value));
}

void DateAdd(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    if (const std::optional<qint64> moment = MomentOfValue(context, values[2]))
        ResultQText(context,
                    DateTimeText(MomentPlus(*moment, Part(values[0]), sqlite3_value_int64(values[1]))));
}

void DateDiff(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::optional<qint64> first = MomentOfValue(context, values[1]);
    if (!first)
        return;
    if (const std::optional<qint64> second = MomentOfValue(context, values[2]))
        sqlite3_result_int64(context, BordersBetween(*first, *second, Part(values[0])));
}

void DatePart(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    if (const std::optional<qint64> moment = MomentOfValue(context, values[1]))
        sqlite3_result_int64(context, PartOf(*moment, Part(values[0])));
}

QString Milliseconds(qint64 moment)
{
    return QString::number(PartOf(moment, TMomentPart::Millisecond)).rightJustified(3, u'0');
}

/// CONVERT of a date to text.
void Style(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::optional<qint64> moment = MomentOfValue(context, values[0]);
    if (!moment)
        return;
    QString text = DateTimeText(*moment);
    const QString date = text.left(10);
    const QString seconds = text.left(19);
    switch (sqlite3_value_int(values[1])) {
    case 23:
        text = date;
        break;
    case 111:
        text = QString(date).replace(u'-', u'/');
        break;
    case 112:
        text = QString(date).remove(u'-');
        break;
    case 120:
        text = QString(seconds).replace(u'T', u' ');
        break;
    case 121:
        text = QString(seconds).replace(u'T', u' ') + u'.' + Milliseconds(*moment);
        break;
    default:
        break;
    }
    ResultQText(context, text);
}

QString Written(const QDateTime& moment)
{
    return DateTimeText(moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")));
}

void Now(sqlite3_context* context, int, sqlite3_value**)
{
    ResultQText(context, Written(QDateTime::currentDateTime()));
}

void UtcNow(sqlite3_context* context, int, sqlite3_value**)
{
    ResultQText(context, Written(QDateTime::currentDateTimeUtc()));
}

} // namespace

void RegisterMomentFunctions(sqlite3* connection)
{
    constexpr TFunctionEntry entries[] = {
        {"ado_date", 1, Date},         {"ado_datetime", 1, DateTime},    {"ado_dateadd", 3, DateAdd},
        {"ado_datediff", 3, DateDiff}, {"ado_datepart", 2, DatePart},    {"ado_style", 2, Style},
        {"ado_now", 0, Now, false},    {"ado_utcnow", 0, UtcNow, false},
    };
    for (const TFunctionEntry& entry : entries)
        RegisterEntry(connection, entry);
}

} // namespace Dialect
