#include "AdvListMatches.h"

#include "PersianText.h"

#include <algorithm>

namespace {

bool IsBidirectionalMark(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C' ||
           (unit >= u'\u202A' && unit <= u'\u202E') || (unit >= u'\u2066' && unit <= u'\u2069');
}

} // namespace

QString TAdvListMatches::Folded(const QString& text)
{
    QString folded = PersianText::Fold(text);
    folded.removeIf(IsBidirectionalMark);
    return folded.trimmed();
}

void TAdvListMatches::Forget()
{
    folded_.clear();
    byReading_.clear();
}

const QStringList& TAdvListMatches::FoldedEntries() const
{
    if (folded_.size() != entries_.Count()) {
        folded_.clear();
        folded_.reserve(entries_.Count());
        for (int entry = 0; entry < entries_.Count(); ++entry)
            folded_ << Folded(entries_[entry].DisplayText);
    }
    return folded_;
}

const QMultiHash<QString, int>& TAdvListMatches::ByReading() const
{
    if (byReading_.size() != entries_.Count()) {
        const QStringList& folded = FoldedEntries();
        byReading_.clear();
        byReading_.reserve(folded.size());
        // Backwards, because the hash gives equal ones in the reverse of their order.
        for (int entry = entries_.Count() - 1; entry >= 0; --entry)
            byReading_.insert(folded.at(entry), entry);
    }
    return byReading_;
}

QVector<int> TAdvListMatches::BeginningWith(const QString& text) const
{
    const QString beginning = Folded(text);
    const QStringList& folded = FoldedEntries();
    QVector<int> found;
    for (int entry = 0; entry < folded.size(); ++entry) {
        if (folded.at(entry).startsWith(beginning))
            found << entry;
    }
    return found;
}

int TAdvListMatches::Reading(const QString& text) const
{
    const QString reading = Folded(text);
    if (reading.isEmpty())
        return -1;
    const QList<int> alike = ByReading().values(reading);
    const auto same = std::find_if(alike.cbegin(), alike.cend(),
                                   [&](int entry) { return entries_[entry].DisplayText == text; });
    if (same != alike.cend())
        return *same;
    return alike.isEmpty() ? -1 : alike.constFirst();
}
