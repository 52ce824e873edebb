#include "AdvListValues.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>

TAdvListValues& TAdvListValues::operator=(const TAdvListValues& other)
{
    if (this == &other)
        return *this;
    const QVector<TAdvListValueItem> items = other.items_;
    Clear();
    items_ = items;
    if (!items_.isEmpty())
        Tell(TChange::Added, 0, Count());
    return *this;
}

void TAdvListValues::Check(int index, int end) const
{
    if (index < 0 || index >= end)
        throw std::out_of_range("TAdvListValues: no item " + std::to_string(index) + " among " +
                                std::to_string(Count()));
}

void TAdvListValues::Tell(TChange change, int index, int count) const
{
    // A copy, because what it tells may end these items.
    if (const TObserver running = observer_)
        running(change, index, count);
}

const TAdvListValueItem& TAdvListValues::GetItem(int index) const
{
    Check(index, Count());
    return items_.at(index);
}

const TAdvListValueItem& TAdvListValues::Last() const
{
    static const TAdvListValueItem none;
    return items_.isEmpty() ? none : items_.constLast();
}

void TAdvListValues::AddPair(const QString& displayText, const QString& value, int imageIndex)
{
    items_.append({displayText, value, imageIndex});
    Tell(TChange::Added, Count() - 1, 1);
}

void TAdvListValues::Insert(int index, const TAdvListValueItem& item)
{
    Check(index, Count() + 1);
    items_.insert(index, item);
    Tell(TChange::Added, index, 1);
}

void TAdvListValues::Clear()
{
    DeleteRange(0, Count());
}

void TAdvListValues::Delete(int index)
{
    Check(index, Count());
    DeleteRange(index, index + 1);
}

void TAdvListValues::DeleteRange(int first, int last)
{
    if (first == last)
        return;
    Check(first, Count());
    Check(last - 1, Count());
    items_.remove(first, last - first);
    Tell(TChange::Removed, first, last - first);
}

void TAdvListValues::Move(int from, int to)
{
    Check(from, Count());
    Check(to, Count());
    if (from == to)
        return;
    items_.move(from, to);
    Tell(TChange::Changed, std::min(from, to), std::abs(from - to) + 1);
}

void TAdvListValues::SetDisplayText(int index, const QString& text)
{
    Check(index, Count());
    items_[index].DisplayText = text;
    Tell(TChange::Changed, index, 1);
}

void TAdvListValues::SetValue(int index, const QString& value)
{
    Check(index, Count());
    items_[index].Value = value;
    Tell(TChange::Changed, index, 1);
}

void TAdvListValues::SetImageIndex(int index, int imageIndex)
{
    Check(index, Count());
    items_[index].ImageIndex = imageIndex;
    Tell(TChange::Changed, index, 1);
}

int TAdvListValues::IndexOfText(const QString& text) const
{
    const auto found = std::find_if(items_.cbegin(), items_.cend(),
                                    [&](const TAdvListValueItem& item) { return item.DisplayText == text; });
    return found == items_.cend() ? -1 : static_cast<int>(found - items_.cbegin());
}

int TAdvListValues::IndexOfValue(const QString& value) const
{
    const auto found = std::find_if(items_.cbegin(), items_.cend(),
                                    [&](const TAdvListValueItem& item) { return item.Value == value; });
    return found == items_.cend() ? -1 : static_cast<int>(found - items_.cbegin());
}
