#pragma once

#include "AdvListValues.h"

#include <QHash>
#include <QStringList>

/// Finds the entries that complete a text, as a Persian reader compares: ی and ي, ک and ك, digits of all
/// scripts, ZWNJ and kashida make no difference, nor do bidirectional marks, blanks at the ends and case.
class SUITE_EXPORT TAdvListMatches
{
public:
    /// `entries` must outlive this; Forget() when they change.
    explicit TAdvListMatches(const TAdvListValues& entries) : entries_(entries) {}

    void Forget();
    /// The entries that begin with the text, in their order; all of them for an empty text.
    QVector<int> BeginningWith(const QString& text) const;
    /// The first entry that reads like the text, one that is letter for letter the same before others; -1
    /// where there is none, and for an empty text.
    int Reading(const QString& text) const;

    static QString Folded(const QString& text);

private:
    const QStringList& FoldedEntries() const;
    const QMultiHash<QString, int>& ByReading() const;

    const TAdvListValues& entries_;
    // Made when first asked for.
    mutable QStringList folded_;
    mutable QMultiHash<QString, int> byReading_;
};
