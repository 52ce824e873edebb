#pragma once

#include "AdoExport.h"

#include <QMetaType>
#include <QString>

/// The type of a column or field.
enum class TFieldType {
    ftUnknown,
    ftBoolean,    ///< bit
    ftInteger,    ///< int, smallint, tinyint
    ftLargeint,   ///< bigint
    ftFloat,      ///< float, real
    ftBCD,        ///< money, decimal, numeric: exact; a value of it is its decimal text ("12.5", "-3")
    ftDate,       ///< date; a value of it is "YYYY-MM-DD"
    ftDateTime,   ///< datetime, datetime2, smalldatetime; a value of it is "YYYY-MM-DDTHH:MM:SS[.fff]"
    ftWideString, ///< char, varchar, nchar, nvarchar of bounded length
    ftWideMemo,   ///< varchar(max), nvarchar(max), text, ntext
    ftBlob,       ///< binary, varbinary, image
};

/// A result column as the engine describes it.
struct TColumnInfo
{
    QString Name;                            ///< as the statement names it
    TFieldType Type = TFieldType::ftUnknown; ///< ftUnknown where the engine cannot tell
    int Size = 0; ///< declared length in characters or bytes; 0 when unbounded or unknown
};
