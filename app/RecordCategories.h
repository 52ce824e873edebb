#pragma once

#include "ListDescription.h"

#include <QStringList>

class TADOConnection;

/// Gives records their category, and takes it away. Each change is one transaction or one statement.
class TRecordCategories
{
public:
    /// `connection` must outlive the object. `keyField` is that of the records' own table.
    TRecordCategories(TADOConnection& connection, const TLabelTables& tables, const QString& keyField)
        : connection_(&connection), tables_(tables), keyField_(keyField)
    {
    }

    /// The records with the keys, whole numbers each, get the category, whatever they had before. Throws
    /// EADOError where the database fails; nothing is written then.
    void Assign(const QStringList& keys, int category);
    void TakeAway(const QStringList& keys);

private:
    TADOConnection* connection_;
    TLabelTables tables_;
    QString keyField_;
};
