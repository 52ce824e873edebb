#pragma once

#include "OdbcHandles.h"
#include "OpenRows.h"

class TOdbcEngine;

/// The rows of one ODBC statement. Drivers deliver the columns of a row from left to right and each only
/// once, so what is read is kept until the next row.
class TOdbcRows final : public IOpenRows
{
public:
    TOdbcRows(TOdbcEngine& engine, TOdbcStatement statement, QString text);
    ~TOdbcRows() override;

    /// Once the statement has run: skips the answers without rows that come before the one with rows. The
    /// first of them tells the rows written.
    void FindResult();

    const QVector<TColumnInfo>& Columns() const override { return columns_; }
    bool Next() override;
    bool IsNull(int column) override;
    qint64 Int64(int column) override;
    double Double(int column) override;
    QString Text(int column) override;
    QByteArray Blob(int column) override;
    QVariant Value(int column) override;
    qint64 AffectedRows() override { return affectedRows_; }
    void ConnectionCloses() override;

private:
    void DescribeColumns(SQLSMALLINT count);
    const QVariant& Read(int column);
    QVariant ReadColumn(int column);
    QVariant ReadText(SQLUSMALLINT number);
    QVariant ReadBlob(SQLUSMALLINT number);
    QVariant ReadTimestamp(SQLUSMALLINT number);
    QVariant ReadDate(SQLUSMALLINT number);
    template <typename TValue> QVariant ReadFixed(SQLUSMALLINT number, SQLSMALLINT type);
    [[noreturn]] void Fail();
    void Close();

    TOdbcEngine* engine_; ///< null once the rows are closed
    TOdbcStatement statement_;
    QString text_;
    QVector<TColumnInfo> columns_;
    QVector<QVariant> values_; ///< of the columns read so far in the current row
    qint64 affectedRows_ = -1;
    bool cutOff_ = false; ///< the connection has been closed before the end
};
