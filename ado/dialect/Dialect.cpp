#include "Dialect.h"

namespace Dialect {

TSchemaView::~TSchemaView() = default;

QString TSchemaView::DeclaredType(const QString& table, const QString& column) const
{
    for (const TSchemaColumn& candidate : Columns(table)) {
        if (candidate.Name.compare(column, Qt::CaseInsensitive) == 0)
            return candidate.DeclaredType;
    }
    return {};
}

TTranslation TranslateStatement(const QString& tsql, const TSchemaView&)
{
    return {tsql, {}, false};
}

QString Translate(const QString& tsql, const TSchemaView& schema)
{
    return TranslateStatement(tsql, schema).Text;
}

void Register(sqlite3*)
{
}

} // namespace Dialect
