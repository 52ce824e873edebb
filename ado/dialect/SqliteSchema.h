#pragma once

#include "Dialect.h"

#include <QHash>
#include <QSet>

namespace Dialect {

/// What stands around the column types that CREATE VIEW notes in a view's text.
inline constexpr char ViewTypesOpening[] = "/* types: ";
inline constexpr char ViewTypesClosing[] = " */";

/// The schema of an open SQLite connection, read on demand and kept until Forget().
class ADO_EXPORT TSqliteSchema : public TSchemaView
{
public:
    /// The connection must outlive this object.
    explicit TSqliteSchema(sqlite3* connection);

    QVector<TSchemaColumn> Columns(const QString& table) const override;
    bool HasFunction(const QString& name, int argumentCount) const override;
    /// Drops what was read; to be called after every statement that changes the schema.
    void Forget();

private:
    void ReadViewTypes(const QByteArray& view, QVector<TSchemaColumn>& columns) const;

    sqlite3* connection_;
    mutable QHash<QString, QVector<TSchemaColumn>> tables_;
    mutable QSet<QString> functions_;
};

} // namespace Dialect
