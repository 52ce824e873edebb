#pragma once

#include "TarvaSearch.h"

class TSelect_AccountCode;

/// What the two account code frames share: a criterion per level, an account code on the dark band.
namespace AccountCriteria {

/// A criterion with one item for the codes of a level, off and not reversed. Owned by `frame`.
TTarvaSearch* Create(QObject* frame, const QString& name, TSearchType type, const QString& title,
                     const QString& field);
/// Gives the selector's labels the band's text colour.
void PutOnBand(const TSelect_AccountCode& selector);

} // namespace AccountCriteria
