#pragma once

#include "AdoExport.h"

#include <QString>
#include <QStringList>
#include <QVector>

struct sqlite3;

/// Gives T-SQL texts SQL Server's meaning on the embedded engine.
///
/// A text is read as tokens and written anew in SQLite's words. What a construct means is decided by the
/// types of its parts, as the server decides: `+` adds numbers and joins texts, a text compared with a number
/// is read as a number, texts compare case-insensitively in Persian alphabetical order. A construct that is
/// not known is refused with EADOError (TAdoErrorKind::Unsupported); ServerMessage() names the offending
/// piece. Malformed texts (an unclosed literal, a missing bracket) are refused with TAdoErrorKind::Syntax.
namespace Dialect {

/// Collation of every nvarchar column: case-insensitive over Unicode, Persian alphabetical order, trailing
/// blanks ignored.
inline constexpr char TextCollation[] = "PERSIAN_CI";
/// Collation of columns under a BIN2 collation: by code points, trailing blanks ignored.
inline constexpr char BinaryCollation[] = "RTRIM";
/// Collation of money and decimal columns: decimal texts in the order of their values.
inline constexpr char DecimalCollation[] = "DECIMAL_ORDER";

struct TSchemaColumn
{
    QString Name;
    QString DeclaredType;  ///< as SqliteDeclaredType writes it; empty where unknown
    bool Identity = false; ///< numbered by the database
    bool Computed = false; ///< generated column
    bool Binary = false;   ///< text that compares byte by byte (a BIN2 collation)
};

/// What a translation asks of the database. Names come without brackets and prefixes, in any letter case.
class ADO_EXPORT TSchemaView
{
public:
    TSchemaView() = default;
    TSchemaView(const TSchemaView&) = delete;
    TSchemaView& operator=(const TSchemaView&) = delete;
    virtual ~TSchemaView();

    /// The columns of a table or view in their order; empty when there is none of that name.
    virtual QVector<TSchemaColumn> Columns(const QString& table) const = 0;
    /// Whether `dbo_name` (lower case) is registered for that many arguments.
    virtual bool HasFunction(const QString& name, int argumentCount) const = 0;
    /// The declared type of one column; empty where the table, the column or its type is unknown.
    QString DeclaredType(const QString& table, const QString& column) const;
};

struct TTranslation
{
    /// SQLite's text. Parameter marks are numbered (?1, ?2, ...) in the order of the `?` marks of the source.
    QString Text;
    /// Declared type of each result column as SqliteDeclaredType writes it, empty where it cannot be told; an
    /// empty list when the statement delivers no rows or its columns are not known. SQLite itself tells the
    /// type of plain columns only: this covers sums, concatenations, functions, literals.
    QStringList ColumnTypes;
    /// The statement creates, alters or drops: what a TSchemaView has kept must be read anew.
    bool ChangesSchema = false;
};

/// The translation of one statement (with or without a trailing semicolon). Throws EADOError.
ADO_EXPORT TTranslation TranslateStatement(const QString& tsql, const TSchemaView& schema);
/// The same, its text only.
ADO_EXPORT QString Translate(const QString& tsql, const TSchemaView& schema);

/// Makes the collations and functions that translated texts rest on known to a connection. To be called once
/// for every opened connection, before the first statement.
ADO_EXPORT void Register(sqlite3* connection);

} // namespace Dialect
