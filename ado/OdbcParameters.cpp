#include "OdbcParameters.h"

#include <QByteArray>

namespace {

constexpr qsizetype LongestPlainText = 4000;   // characters of an nvarchar(n)
constexpr qsizetype LongestPlainBinary = 8000; // bytes of a varbinary(n)

} // namespace

struct TOdbcParameters::TParameter
{
    SQLSMALLINT CType = SQL_C_WCHAR;
    SQLSMALLINT SqlType = SQL_WVARCHAR;
    SQLULEN Size = 1;
    SQLLEN Indicator = SQL_NULL_DATA;
    QString Text;
    QByteArray Bytes;
    SQLINTEGER SmallInteger = 0;
    qint64 Integer = 0;
    double Float = 0;
    unsigned char Bit = 0;
    void* Data = nullptr;
};

TOdbcParameters::TParameter TOdbcParameters::Describe(const QVariant& value)
{
    TParameter result;
    switch (value.typeId()) {
    case QMetaType::Bool:
        result.CType = SQL_C_BIT;
        result.SqlType = SQL_BIT;
        result.Bit = value.toBool() ? 1 : 0;
        break;
    case QMetaType::Int:
        result.CType = SQL_C_SLONG;
        result.SqlType = SQL_INTEGER;
        result.SmallInteger = value.toInt();
        break;
    case QMetaType::UInt:
    case QMetaType::LongLong:
        result.CType = SQL_C_SBIGINT;
        result.SqlType = SQL_BIGINT;
        result.Integer = value.toLongLong();
        break;
    case QMetaType::Double:
        result.CType = SQL_C_DOUBLE;
        result.SqlType = SQL_DOUBLE;
        result.Float = value.toDouble();
        break;
    case QMetaType::QByteArray:
        result.Bytes = value.toByteArray();
        result.CType = SQL_C_BINARY;
        result.SqlType = result.Bytes.size() > LongestPlainBinary ? SQL_LONGVARBINARY : SQL_VARBINARY;
        result.Size = static_cast<SQLULEN>(std::max<qsizetype>(1, result.Bytes.size()));
        break;
    default:
        result.Text = value.toString();
        result.SqlType = result.Text.size() > LongestPlainText ? SQL_WLONGVARCHAR : SQL_WVARCHAR;
        result.Size = static_cast<SQLULEN>(std::max<qsizetype>(1, result.Text.size()));
    }
    if (!value.isValid() || value.isNull())
        return result;
    if (result.CType == SQL_C_WCHAR)
        result.Indicator = static_cast<SQLLEN>(result.Text.size()) * static_cast<SQLLEN>(sizeof(SQLWCHAR));
    else if (result.CType == SQL_C_BINARY)
        result.Indicator = static_cast<SQLLEN>(result.Bytes.size());
    else
        result.Indicator = 0;
    return result;
}

TOdbcParameters::TOdbcParameters(const QVariantList& values)
{
    parameters_.reserve(static_cast<size_t>(values.size()));
    for (const QVariant& value : values)
        parameters_.push_back(Describe(value));
    // The addresses are taken once the parameters stand where they stay.
    for (TParameter& parameter : parameters_) {
        switch (parameter.CType) {
        case SQL_C_BIT:
            parameter.Data = &parameter.Bit;
            break;
        case SQL_C_SLONG:
            parameter.Data = &parameter.SmallInteger;
            break;
        case SQL_C_SBIGINT:
            parameter.Data = &parameter.Integer;
            break;
        case SQL_C_DOUBLE:
            parameter.Data = &parameter.Float;
            break;
        case SQL_C_BINARY:
            parameter.Data = parameter.Bytes.data();
            break;
        default:
            parameter.Data = OdbcText(parameter.Text);
        }
    }
}

TOdbcParameters::~TOdbcParameters() = default;

SQLRETURN TOdbcParameters::Bind(SQLHANDLE statement)
{
    SQLUSMALLINT number = 0;
    for (TParameter& parameter : parameters_) {
        const SQLRETURN result =
            SQLBindParameter(statement, ++number, SQL_PARAM_INPUT, parameter.CType, parameter.SqlType,
                             parameter.Size, 0, parameter.Data, 0, &parameter.Indicator);
        if (!Succeeded(result))
            return result;
    }
    return SQL_SUCCESS;
}
