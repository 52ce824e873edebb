#pragma once

#include "AdoExport.h"
#include "FieldType.h"

#include <QString>
#include <QStringView>

/// The declared column types of the embedded database: the dialect layer writes them into CREATE TABLE, the
/// embedded engine reads a result column's type from them. Names are chosen so that SQLite's affinity rules
/// keep the stored form: exact numbers, dates and texts as TEXT, whole numbers as INTEGER.
///
///     server type                        declared type            field type
///     bit                                BIT                      ftBoolean
///     int, smallint, tinyint             INT, SMALLINT, TINYINT   ftInteger
///     int or bigint identity             INTEGER (PRIMARY KEY)    ftInteger
///     bigint                             BIGINT                   ftLargeint
///     float, real                        FLOAT, REAL              ftFloat
///     decimal, numeric (p,s)             DECIMAL_TEXT(p,s)        ftBCD
///     money, smallmoney                  MONEY_TEXT               ftBCD
///     date                               DATE_TEXT                ftDate
///     datetime, datetime2, smalldatetime DATETIME_TEXT            ftDateTime
///     char, varchar, nchar, nvarchar (n) the same, upper case     ftWideString, Size n
///     varchar(max), nvarchar(max), text, ntext  TEXT              ftWideMemo
///     binary, varbinary, image           BLOB                     ftBlob

/// A length argument of SqliteDeclaredType.
inline constexpr int UnboundedLength = -1;

/// The declared type for a server type name (any letter case, without its parentheses); empty when the
/// embedded database has no counterpart. `length` is the length or precision as written, 0 where none was
/// written, UnboundedLength for `max`; `scale` the second number of decimal and numeric.
ADO_EXPORT QString SqliteDeclaredType(QStringView serverType, int length = 0, int scale = 0);

/// Type and size of a result column declared so; the name stays empty. Unknown and null declarations are
/// ftUnknown.
ADO_EXPORT TColumnInfo SqliteColumnInfo(const char* declaredType);
