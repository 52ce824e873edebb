#include "OdbcRows.h"

#include "ExactDecimal.h"
#include "OdbcEngine.h"

#include <array>
#include <QScopeGuard>
#include <utility>

namespace {

// Types beyond the standard's, as SQL Server's drivers number them.
constexpr SQLSMALLINT ServerVariant = -150;
constexpr SQLSMALLINT ServerXml = -152;
constexpr SQLSMALLINT ServerTime = -154;
constexpr SQLSMALLINT ServerTimestampOffset = -155;

constexpr SQLULEN LongestBoundedText = 8000;
constexpr size_t TextChunk = 4096;  // characters
constexpr size_t BlobChunk = 65536; // bytes

TFieldType FieldTypeOf(SQLSMALLINT type, SQLULEN size)
{
    switch (type) {
    case SQL_BIT:
        return TFieldType::ftBoolean;
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
        return TFieldType::ftInteger;
    case SQL_BIGINT:
        return TFieldType::ftLargeint;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return TFieldType::ftFloat;
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        return TFieldType::ftBCD;
    case SQL_TYPE_DATE:
        return TFieldType::ftDate;
    case SQL_TYPE_TIMESTAMP:
        return TFieldType::ftDateTime;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return TFieldType::ftBlob;
    case SQL_LONGVARCHAR:
    case SQL_WLONGVARCHAR:
    case ServerXml:
    case ServerVariant:
        return TFieldType::ftWideMemo;
    case SQL_TYPE_TIME:
    case ServerTime:
    case ServerTimestampOffset:
    case SQL_GUID:
        return TFieldType::ftWideString;
    default:
        return size == 0 || size > LongestBoundedText ? TFieldType::ftWideMemo : TFieldType::ftWideString;
    }
}

bool HasLength(TFieldType type)
{
    return type == TFieldType::ftWideString || type == TFieldType::ftBlob;
}

QString Digits(int value, int width)
{
    return QString::number(value).rightJustified(width, u'0');
}

} // namespace

TOdbcRows::TOdbcRows(TOdbcEngine& engine, TOdbcStatement statement, QString text)
    : engine_(&engine), statement_(std::move(statement)), text_(std::move(text))
{
    engine_->StatementOpens(this, statement_.Get(), text_);
}

TOdbcRows::~TOdbcRows()
{
    Close();
}

void TOdbcRows::Close()
{
    values_.clear();
    if (engine_ != nullptr)
        std::exchange(engine_, nullptr)->StatementCloses(this);
    // Freed after the engine has forgotten it: another thread may be cancelling.
    statement_ = {};
}

void TOdbcRows::ConnectionCloses()
{
    cutOff_ = true;
    Close();
}

void TOdbcRows::FindResult()
{
    for (;;) {
        SQLSMALLINT count = 0;
        if (!Succeeded(SQLNumResultCols(statement_.Get(), &count)))
            Fail();
        if (count > 0) {
            DescribeColumns(count);
            return;
        }
        SQLLEN written = -1;
        if (affectedRows_ < 0 && Succeeded(SQLRowCount(statement_.Get(), &written)))
            affectedRows_ = written;
        const SQLRETURN more = SQLMoreResults(statement_.Get());
        if (more == SQL_NO_DATA) {
            Close();
            return;
        }
        if (!Succeeded(more))
            Fail();
    }
}

void TOdbcRows::DescribeColumns(SQLSMALLINT count)
{
    std::array<SQLWCHAR, 512> name{};
    columns_.reserve(count);
    for (SQLSMALLINT number = 1; number <= count; ++number) {
        SQLSMALLINT length = 0;
        SQLSMALLINT type = 0;
        SQLULEN size = 0;
        SQLSMALLINT digits = 0;
        SQLSMALLINT nullable = 0;
        const SQLRETURN result =
            SQLDescribeColW(statement_.Get(), static_cast<SQLUSMALLINT>(number), name.data(),
                            static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits, &nullable);
        if (!Succeeded(result))
            Fail();
        TColumnInfo column;
        column.Name = QString::fromUtf16(reinterpret_cast<const char16_t*>(name.data()));
        column.Type = FieldTypeOf(type, size);
        column.Size = HasLength(column.Type) && size <= LongestBoundedText ? static_cast<int>(size) : 0;
        columns_.append(column);
    }
}

bool TOdbcRows::Next()
{
    if (cutOff_)
        throw TOpenRows::CutOff(text_);
    values_.clear();
    if (engine_ == nullptr)
        return false;
    const SQLRETURN result = SQLFetch(statement_.Get());
    if (result == SQL_NO_DATA) {
        Close();
        return false;
    }
    if (!Succeeded(result))
        Fail();
    return true;
}

void TOdbcRows::Fail()
{
    const QScopeGuard close([this] { Close(); });
    engine_->FailStatement(statement_.Get(), text_);
}

const QVariant& TOdbcRows::Read(int column)
{
    static const QVariant nothing;
    if (engine_ == nullptr)
        return nothing;
    while (values_.size() <= column)
        values_.append(ReadColumn(static_cast<int>(values_.size())));
    return values_.at(column);
}

QVariant TOdbcRows::ReadColumn(int column)
{
    const auto number = static_cast<SQLUSMALLINT>(column + 1);
    switch (columns_.at(column).Type) {
    case TFieldType::ftBoolean: {
        const QVariant bit = ReadFixed<unsigned char>(number, SQL_C_BIT);
        return bit.isValid() ? QVariant(bit.toInt() != 0) : bit;
    }
    case TFieldType::ftInteger:
        return ReadFixed<SQLINTEGER>(number, SQL_C_SLONG);
    case TFieldType::ftLargeint:
        return ReadFixed<qint64>(number, SQL_C_SBIGINT);
    case TFieldType::ftFloat:
        return ReadFixed<double>(number, SQL_C_DOUBLE);
    case TFieldType::ftBlob:
        return ReadBlob(number);
    case TFieldType::ftDate:
        return ReadDate(number);
    case TFieldType::ftDateTime:
        return ReadTimestamp(number);
    case TFieldType::ftBCD: {
        const QVariant decimal = ReadText(number);
        return decimal.isValid() ? QVariant(CanonicalDecimal(decimal.toString().trimmed())) : decimal;
    }
    default:
        return ReadText(number);
    }
}

template <typename TValue> QVariant TOdbcRows::ReadFixed(SQLUSMALLINT number, SQLSMALLINT type)
{
    TValue value{};
    SQLLEN indicator = 0;
    if (!Succeeded(SQLGetData(statement_.Get(), number, type, &value, sizeof value, &indicator)))
        Fail();
    return indicator == SQL_NULL_DATA ? QVariant() : QVariant::fromValue(value);
}

/// Reads in pieces: a driver may not know the whole length beforehand (SQL_NO_TOTAL), which is no error.
QVariant TOdbcRows::ReadText(SQLUSMALLINT number)
{
    QString result;
    std::array<char16_t, TextChunk> chunk{};
    for (;;) {
        SQLLEN bytes = 0;
        const SQLRETURN answer =
            SQLGetData(statement_.Get(), number, SQL_C_WCHAR, chunk.data(), sizeof chunk, &bytes);
        if (answer == SQL_NO_DATA)
            return result;
        if (!Succeeded(answer))
            Fail();
        if (bytes == SQL_NULL_DATA)
            return {};
        // A full piece ends in a terminator that does not belong to the text.
        constexpr SQLLEN room = (TextChunk - 1) * sizeof(char16_t);
        const bool more = answer == SQL_SUCCESS_WITH_INFO && (bytes == SQL_NO_TOTAL || bytes > room);
        if (bytes == SQL_NO_TOTAL && !more)
            result += QString::fromUtf16(chunk.data());
        else
            result +=
                QStringView(chunk.data(), (more ? room : bytes) / static_cast<SQLLEN>(sizeof(char16_t)));
        if (!more)
            return result;
    }
}

QVariant TOdbcRows::ReadBlob(SQLUSMALLINT number)
{
    QByteArray result("");
    QByteArray chunk(BlobChunk, Qt::Uninitialized);
    for (;;) {
        SQLLEN bytes = 0;
        const SQLRETURN answer =
            SQLGetData(statement_.Get(), number, SQL_C_BINARY, chunk.data(), BlobChunk, &bytes);
        if (answer == SQL_NO_DATA)
            return result;
        if (!Succeeded(answer))
            Fail();
        if (bytes == SQL_NULL_DATA)
            return {};
        constexpr auto room = static_cast<SQLLEN>(BlobChunk);
        const bool more = answer == SQL_SUCCESS_WITH_INFO && (bytes == SQL_NO_TOTAL || bytes > room);
        result.append(chunk.constData(), static_cast<qsizetype>(more ? room : bytes));
        if (!more)
            return result;
    }
}

QVariant TOdbcRows::ReadDate(SQLUSMALLINT number)
{
    SQL_DATE_STRUCT date{};
    SQLLEN indicator = 0;
    if (!Succeeded(SQLGetData(statement_.Get(), number, SQL_C_TYPE_DATE, &date, sizeof date, &indicator)))
        Fail();
    if (indicator == SQL_NULL_DATA)
        return {};
    return QString(Digits(date.year, 4) + u'-' + Digits(date.month, 2) + u'-' + Digits(date.day, 2));
}

QVariant TOdbcRows::ReadTimestamp(SQLUSMALLINT number)
{
    SQL_TIMESTAMP_STRUCT time{};
    SQLLEN indicator = 0;
    if (!Succeeded(
            SQLGetData(statement_.Get(), number, SQL_C_TYPE_TIMESTAMP, &time, sizeof time, &indicator)))
        Fail();
    if (indicator == SQL_NULL_DATA)
        return {};
    QString text = Digits(time.year, 4) + u'-' + Digits(time.month, 2) + u'-' + Digits(time.day, 2) + u'T' +
                   Digits(time.hour, 2) + u':' + Digits(time.minute, 2) + u':' + Digits(time.second, 2);
    if (time.fraction != 0) {
        constexpr unsigned NanosecondsPerMillisecond = 1000000;
        text += u'.' + Digits(static_cast<int>(time.fraction / NanosecondsPerMillisecond), 3);
    }
    return text;
}

bool TOdbcRows::IsNull(int column)
{
    return !Read(column).isValid();
}

qint64 TOdbcRows::Int64(int column)
{
    return Read(column).toLongLong();
}

double TOdbcRows::Double(int column)
{
    return Read(column).toDouble();
}

QString TOdbcRows::Text(int column)
{
    return Read(column).toString();
}

QByteArray TOdbcRows::Blob(int column)
{
    return Read(column).toByteArray();
}

QVariant TOdbcRows::Value(int column)
{
    return Read(column);
}
