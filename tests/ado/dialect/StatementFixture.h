#pragma once

#include "EmbeddedDatabase.h"

/// A small accounting database with the tables that the frames' statements name, and the functions of the
/// database that they call.
class TStatementDatabase : public TEmbeddedDatabase
{
public:
    TStatementDatabase();

    /// Rows in the order of the engine when the text orders them, else sorted.
    QStringList ComparableRows(const QString& tsql);
    /// The tags of the goods in the order of their keys, joined by blanks.
    QString Tags();

private:
    void RegisterFunctions();
};

/// A text in single quotes, quotes inside doubled, without N: as the frames quote what a user typed.
QString Q(const QString& text);

/// Declares the columns of a table of statements and their rows, and adds one line to it.
void StatementColumns();
void StatementRow(const char* name, const QString& statement, const QStringList& rows);
