#include "SqliteValue.h"

#include "SqliteError.h"
#include "Utf8Text.h"

#include <QDateTime>

namespace {

int BindText(sqlite3_stmt* statement, int index, const QString& text)
{
    // UTF-16 would lose a byte order mark at the beginning.
    const QByteArray utf8 = text.toUtf8();
    return sqlite3_bind_text64(statement, index, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                               SQLITE_TRANSIENT, SQLITE_UTF8);
}

int BindBlob(sqlite3_stmt* statement, int index, const QByteArray& bytes)
{
    return sqlite3_bind_blob64(statement, index, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                               SQLITE_TRANSIENT);
}

QString IsoText(const QDateTime& moment)
{
    const bool wholeSecond = moment.time().msec() == 0;
    return moment.toString(wholeSecond ? QStringLiteral("yyyy-MM-ddTHH:mm:ss")
                                       : QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"));
}

int Bind(sqlite3_stmt* statement, int index, const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return sqlite3_bind_null(statement, index);
    case QMetaType::Bool:
        return sqlite3_bind_int(statement, index, value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return sqlite3_bind_int64(statement, index, value.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return sqlite3_bind_double(statement, index, value.toDouble());
    case QMetaType::QString:
        return BindText(statement, index, value.toString());
    case QMetaType::QByteArray:
        return BindBlob(statement, index, value.toByteArray());
    case QMetaType::QDate:
        return BindText(statement, index, value.toDate().toString(Qt::ISODate));
    case QMetaType::QDateTime:
        return BindText(statement, index, IsoText(value.toDateTime()));
    default:
        return SQLITE_MISMATCH;
    }
}

} // namespace

QString SqliteColumnText(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text == nullptr)
        return {};
    return TextOfUtf8(text, sqlite3_column_bytes(statement, column));
}

void AppendSqliteColumnText(sqlite3_stmt* statement, int column, std::u16string& buffer)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text != nullptr)
        AppendTextOfUtf8(text, sqlite3_column_bytes(statement, column), buffer);
}

QByteArray SqliteColumnBlob(sqlite3_stmt* statement, int column)
{
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    const int count = sqlite3_column_bytes(statement, column);
    if (count > 0)
        return {bytes, count};
    return sqlite3_column_type(statement, column) == SQLITE_NULL ? QByteArray() : QByteArray("", 0);
}

QVariant SqliteColumnVariant(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_TEXT:
        return SqliteColumnText(statement, column);
    case SQLITE_BLOB:
        return SqliteColumnBlob(statement, column);
    default:
        return {};
    }
}

void BindSqliteParameters(sqlite3_stmt* statement, const QVariantList& parameters, const QString& text)
{
    if (sqlite3_bind_parameter_count(statement) != parameters.size()) {
        throw EADOError(
            TAdoErrorKind::WrongState,
            QStringLiteral(
                "شمار پارامترها با نشانه‌های ? در دستور برابر "
                "نیست."),
            text);
    }
    for (int i = 0; i < parameters.size(); ++i) {
        const int code = Bind(statement, i + 1, parameters[i]);
        if (code == SQLITE_MISMATCH) {
            throw EADOError(TAdoErrorKind::WrongState,
                            QStringLiteral("نوع پارامتر %1 برای دستور پذیرفته نیست.").arg(i + 1), text,
                            QString::fromLatin1(parameters[i].typeName()));
        }
        if (code != SQLITE_OK)
            throw SqliteError(sqlite3_db_handle(statement), code, TSqlitePhase::Running, text);
    }
}
