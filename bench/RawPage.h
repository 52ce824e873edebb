#pragma once

#include <functional>
#include <QString>

struct sqlite3;

/// One statement on SQLite's own C interface, with the collations and functions of the dialect, as a program
/// would write it that has nothing else between itself and the database.
class TRawPage
{
public:
    /// `statement` is T-SQL; its translation is not part of what is measured. `prepare` may give the
    /// connection what else the statement needs.
    TRawPage(const QString& file, const QString& statement,
             const std::function<void(sqlite3*)>& prepare = {});
    ~TRawPage();
    /// Prepares, steps through all rows and reads all columns; returns the rows.
    int Read();

private:
    sqlite3* handle_ = nullptr;
    QByteArray sql_;
};
