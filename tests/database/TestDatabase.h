#pragma once

#include "ADOConnection.h"
#include "SampleData.h"

#include <QStringList>
#include <QVector>

/// A database in memory for one test.
class TTestDatabase
{
public:
    /// Only the empty tables, with their indexes and views.
    static std::unique_ptr<TTestDatabase> Empty();
    static std::unique_ptr<TTestDatabase> Filled(const TSampleSize& size = TSampleSize::Small());

    TADOConnection& Connection() { return connection_; }
    void Execute(const QString& statement) { connection_.Execute(statement); }
    QVector<QVariantList> Rows(const QString& statement);
    QVariantList Column(const QString& statement);
    QVariant Value(const QString& statement);
    /// One number for everything that the tables hold.
    QByteArray Content();

    /// The tables of the schema in the order of their definition.
    static QStringList Tables();

private:
    TTestDatabase();

    TADOConnection connection_;
};
