#pragma once

#include <QStringList>
#include <QVariant>

class TADOConnection;

/// Inserts many rows into one table by few prepared statements. Rows wait until a statement is full; Flush()
/// sends the rest and has to be called before the writer goes.
class TRowWriter
{
public:
    TRowWriter(TADOConnection& connection, const QString& table, const QStringList& columns);

    /// `values` are as many as the columns.
    void Add(const QVariantList& values);
    void Flush();
    /// True when the next row fills a statement, which is then sent.
    bool NextAddSends() const
    {
        return values_.size() + columns_.size() == rowsPerStatement_ * columns_.size();
    }

private:
    QString Statement(qsizetype rows) const;

    TADOConnection& connection_;
    QString table_;
    QStringList columns_;
    qsizetype rowsPerStatement_;
    QString fullStatement_;
    QVariantList values_;
};
