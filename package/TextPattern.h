#pragma once

#include "PackageExport.h"

#include <QString>

/// A text sought inside others the way a Persian reader finds it: letters that read alike, digits of the
/// three scripts and both letter cases are the same, ZWNJ and kashida count for nothing. Everything else
/// stands for itself,
/// `%`, `_` and `[` too. Characters beyond U+FFFF stand for themselves, without letter case.
class BASEFRAME_EXPORT TTextPattern
{
public:
    /// Longest text that is sought; its LIKE pattern stays within the 4,000 characters of the server.
    static constexpr int MaxLength = 790;

    explicit TTextPattern(const QString& typed);

    /// Nothing is left to seek.
    bool IsEmpty() const { return folded_.isEmpty(); }
    /// False for a text that no column can contain: half a surrogate pair, a null character, more than
    /// MaxLength.
    bool IsPossible() const;

    /// `LIKE` pattern between its quotes (they are doubled inside) for a column that is already folded.
    QString FoldedLike() const;
    /// The same for a column as it is, ZWNJ and kashida taken out and compared by code point.
    QString PlainLike() const;
    /// Whether the text contains the pattern; the same answer as PlainLike gives in the database.
    bool FoundIn(const QString& text) const;

private:
    QString folded_;
};
