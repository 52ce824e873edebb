#include "TarvaSearch.h"

#include <limits>
#include <stdexcept>

namespace {

bool SameValue(const QVariant& first, const QVariant& second)
{
    return first.metaType() == second.metaType() && first == second;
}

int AsInt(const QVariant& value)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return isNumber && fits ? static_cast<int>(number) : 0;
}

} // namespace

TSearchItem& TSearchCollection::Add(const TSearchItem& item)
{
    items_.push_back(std::make_unique<TSearchItem>(item));
    return *items_.back();
}

void TSearchCollection::Clear()
{
    items_.clear();
}

int TSearchCollection::Count() const
{
    return static_cast<int>(items_.size());
}

TSearchItem& TSearchCollection::GetItem(int index)
{
    return *items_.at(static_cast<size_t>(index));
}

const TSearchItem& TSearchCollection::GetItem(int index) const
{
    return *items_.at(static_cast<size_t>(index));
}

TTarvaSearch::TTarvaSearch(QObject* parent) : QObject(parent)
{
}

TTarvaSearch::~TTarvaSearch() = default;

void TTarvaSearch::SetActive(bool active)
{
    if (active_ == active)
        return;
    active_ = active;
    Q_EMIT activeChanged(active);
}

void TTarvaSearch::SetReverst(bool reverst)
{
    if (reverst_ == reverst)
        return;
    reverst_ = reverst;
    Q_EMIT reverstChanged(reverst);
}

void TTarvaSearch::SetSearchTypes(TSearchType type)
{
    searchTypes_ = type;
}

void TTarvaSearch::SetItemIndex(int index)
{
    if (itemIndex_ == index)
        return;
    itemIndex_ = index;
    const QPointer<TTarvaSearch> alive(this);
    Q_EMIT itemIndexChanged(index);
    // A listener may have destroyed the criterion; the handler may replace itself.
    if (const TNotifyEvent running = alive ? OnChangeItemIndex : nullptr)
        running(this);
}

const TSearchItem* TTarvaSearch::CurrentItem() const
{
    return itemIndex_ >= 0 && itemIndex_ < SearchItems.Count() ? &SearchItems.GetItem(itemIndex_) : nullptr;
}

void TTarvaSearch::RaiseChange()
{
    const QPointer<TTarvaSearch> alive(this);
    Q_EMIT changed();
    if (const TNotifyEvent running = alive ? OnChange : nullptr)
        running(this);
}

void TTarvaSearch::SetValue1(const QVariant& value)
{
    if (SameValue(value1_, value))
        return;
    value1_ = value;
    RaiseChange();
}

void TTarvaSearch::SetValue2(const QVariant& value)
{
    if (SameValue(value2_, value))
        return;
    value2_ = value;
    RaiseChange();
}

int TTarvaSearch::GetValue1AsInt() const
{
    return AsInt(value1_);
}

int TTarvaSearch::GetValue2AsInt() const
{
    return AsInt(value2_);
}

void TTarvaSearch::SetZeroValueIgnore(bool ignore)
{
    zeroValueIgnore_ = ignore;
}

void TTarvaSearch::SetFocusControl(QWidget* control)
{
    focusControl_ = control;
}

void TTarvaSearch::SetFollowControl(QWidget* control)
{
    followControl_ = control;
}
