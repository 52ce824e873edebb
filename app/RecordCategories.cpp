#include "RecordCategories.h"

#include "ADOConnection.h"

void TRecordCategories::Assign(const QStringList& keys, int category)
{
    if (keys.isEmpty())
        return;
    const QString list = keys.join(u',');
    const QString id = QString::number(category);
    TTransaction transaction(*connection_);
    connection_->Execute(QStringLiteral("UPDATE %1 SET category_code = %2 WHERE %3 IN (%4)")
                             .arg(tables_.CategoryTable, id, tables_.CategoryKey, list));
    connection_->Execute(
        QStringLiteral("INSERT INTO %1 (%2, category_code) SELECT %3, %4 FROM %5 WHERE %3 IN (%6) "
                       "AND %3 NOT IN (SELECT %2 FROM %1)")
            .arg(tables_.CategoryTable, tables_.CategoryKey, keyField_, id, tables_.Table, list));
    transaction.Commit();
}

void TRecordCategories::TakeAway(const QStringList& keys)
{
    if (keys.isEmpty())
        return;
    connection_->Execute(QStringLiteral("DELETE FROM %1 WHERE %2 IN (%3)")
                             .arg(tables_.CategoryTable, tables_.CategoryKey, keys.join(u',')));
}
