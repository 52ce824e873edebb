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

void TAdvListMatches::Fold() const
{
    if (folded_.size() == entries_.Count())
        return;
    folded_.clear();
    byReading_.clear();
    folded_.reserve(entries_.Count());
    for (int entry = 0; entry < entries_.Count(); ++entry) {
        folded_ << Folded(entries_[entry].DisplayText);
        byReading_[folded_.constLast()] << entry;
    }
}

QVector<int> TAdvListMatches::BeginningWith(const QString& text) const
{
    Fold();
    const QString beginning = Folded(text);
    QVector<int> found;
    for (int entry = 0; entry < folded_.size(); ++entry) {
        if (folded_.at(entry).startsWith(beginning))
            found << entry;
    }
    return found;
}

int TAdvListMatches::Reading(const QString& text) const
{
    const QString reading = Folded(text);
    if (reading.isEmpty())
        return -1;
    Fold();
    const QVector<int> alike = byReading_.value(reading);
    const auto same = std::find_if(alike.cbegin(), alike.cend(),
                                   [&](int entry) { return entries_[entry].DisplayText == text; });
    if (same != alike.cend())
        return *same;
    return alike.isEmpty() ? -1 : alike.constFirst();
}
