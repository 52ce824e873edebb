#pragma once

#include "TarvaSearch.h"

/// The criteria of the account code frames, one per level.
namespace AccountCriteria {

/// A criterion with one item for the codes of a level, off and not reversed. Owned by `frame`.
TTarvaSearch* Create(QObject* frame, const QString& name, TSearchType type, const QString& title,
                     const QString& field);
} // namespace AccountCriteria
