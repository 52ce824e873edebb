#include "RecordCategories.h"

#include "ADOConnection.h"

#include <functional>

namespace {

// A server refuses statements with too many values.
constexpr qsizetype mostKeysAtOnce = 1000;

void InPortions(const QStringList& keys, const std::function<void(const QString& list)>& write)
{
    for (qsizetype first = 0; first < keys.size(); first += mostKeysAtOnce)
        write(keys.mid(first, mostKeysAtOnce).join(u','));
}

} // namespace

void TRecordCategories::Assign(const QStringList& keys, int category)
{
    const QString id = QString::number(category);
    TTransaction transaction(*connection_);
    InPortions(keys, [this, &id](const QString& list) {
        connection_->Execute(QStringLiteral("UPDATE %1 SET category_code = %2 WHERE %3 IN (%4)")
                                 .arg(tables_.CategoryTable, id, tables_.CategoryKey, list));
        connection_->Execute(
            QStringLiteral("INSERT INTO %1 (%2, category_code) SELECT %3, %4 FROM %5 WHERE %3 IN (%6) "
                           "AND %3 NOT IN (SELECT %2 FROM %1)")
                .arg(tables_.CategoryTable, tables_.CategoryKey, keyField_, id, tables_.Table, list));
    });
    transaction.Commit();
}

void TRecordCategories::TakeAway(const QStringList& keys)
{
    TTransaction transaction(*connection_);
    InPortions(keys, [this](const QString& list) {
        connection_->Execute(QStringLiteral("DELETE FROM %1 WHERE %2 IN (%3)")
                                 .arg(tables_.CategoryTable, tables_.CategoryKey, list));
    });
    transaction.Commit();
}
