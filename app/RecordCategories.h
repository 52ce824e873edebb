#pragma once

#include "ListDescription.h"

#include <QStringList>

class TADOConnection;

/// Gives records their category, and takes it away. Each change is one transaction.
class TRecordCategories
{
public:
    /// `connection` must outlive the object. `keyField` is that of the records' own table.
    TRecordCategories(TADOConnection& connection, const TLabelTables& tables, const QString& keyField)
        : connection_(&connection), tables_(tables), keyField_(keyField)
    {
    }

    // Of any number of records, by their keys, whole numbers each. Throws EADOError where the database fails;
    // nothing is written then.

    /// The records get the category, whatever they had before.
    void Assign(const QStringList& keys, int category);
    void TakeAway(const QStringList& keys);

private:
    TADOConnection* connection_;
    TLabelTables tables_;
    QString keyField_;
};
