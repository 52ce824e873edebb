#include "Scope.h"

namespace Dialect {

namespace {

bool SameName(const QString& first, const QString& second)
{
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

} // namespace

TType TScope::TypeOf(const QString& qualifier, const QString& column) const
{
    for (const TScope* scope = this; scope; scope = scope->Outer) {
        for (const TSource& source : scope->Sources) {
            if (!qualifier.isEmpty() && !SameName(source.Name, qualifier))
                continue;
            for (const TColumn& candidate : source.Columns) {
                if (SameName(candidate.Name, column))
                    return candidate.Type;
            }
        }
    }
    return {};
}

const TSource* TScope::Find(const QString& name) const
{
    for (const TSource& source : Sources) {
        if (SameName(source.Name, name))
            return &source;
    }
    return nullptr;
}

} // namespace Dialect
