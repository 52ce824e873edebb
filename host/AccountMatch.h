#pragma once

#include "AccountTree.h"
#include "TextPattern.h"

#include <QString>

/// What the user has typed to find an account of the upper levels.
class TAccountMatch
{
public:
    explicit TAccountMatch(const QString& typed);

    /// How well an account meets it, the lower the better.
    enum TRank { ExactCode, CodeBegins, NameHas, None };
    TRank Of(const TAccountTree& tree, int place) const;
    bool IsEmpty() const { return pattern_.IsEmpty(); }

private:
    TRank OfCode(const TAccountTree& tree, int place) const;
    TRank OfAssistantCode(const TAccountTree& tree, int place) const;

    TTextPattern pattern_;
    QString digits_;    ///< the typed code; empty where something else was typed
    QString assistant_; ///< what stands behind the sign between two codes
    bool divided_ = false;
};
