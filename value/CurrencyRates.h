#pragma once

#include "PackageExport.h"

#include <QString>
#include <QVector>

class TADOQuery;

/// The currencies of the host's database and their dated rates. Every question replaces the statement of the
/// query and opens it; database errors are not caught.
class BASEFRAME_EXPORT TCurrencyRates
{
public:
    /// The base currency, whose rate is always 1.
    static constexpr int BaseCode = 1;

    /// A currency of the list.
    struct TCurrency
    {
        int Code = 0;         ///< 1 is the base currency
        QString TitleCountry; ///< "دلار-آمریکا"
    };
    /// A rate as it is stored.
    struct TRate
    {
        QString Text = QStringLiteral("0"); ///< exact decimal text; "0" where there is no rate
        QString Date;                       ///< the day it was entered for; empty where there is no rate
    };

    /// `query` must outlive this; it is the caller's.
    explicit TCurrencyRates(TADOQuery& query) : query_(&query) {}

    /// Of the base currency; empty where the database has none.
    QString BaseCountry() const;
    QString BaseTitle() const; ///< its name; empty where there is none
    /// In the table's order.
    QVector<TCurrency> Currencies() const;
    /// The rate in force on a day (a text year/month/day): the latest one entered for that day or for a day
    /// before; of several for one day, the one entered last. The query stays open.
    TRate RateOn(int currency, const QString& date) const;

private:
    void Open(const QString& statement) const;
    QString TextOf(const QString& field) const;

    TADOQuery* query_;
};
