#include "PagedList.h"

#include <limits>

TPageRows TPageRows::Mid(int first, int count) const
{
    return {FieldCount, Values.mid(qsizetype(first) * FieldCount, qsizetype(count) * FieldCount)};
}

void TPageCache::Clear()
{
    entries_.clear();
    uses_.clear();
}

void TPageCache::Put(int page, TPageRows rows)
{
    const auto known = entries_.find(page);
    if (known != entries_.end()) {
        uses_.erase(known->second.Use);
        entries_.erase(known);
    }
    while (Size() >= capacity_) {
        entries_.erase(uses_.back());
        uses_.pop_back();
    }
    uses_.push_front(page);
    entries_.emplace(page, TEntry{std::move(rows), uses_.begin()});
}

const TPageRows* TPageCache::Get(int page)
{
    const auto entry = entries_.find(page);
    if (entry == entries_.end())
        return nullptr;
    uses_.splice(uses_.begin(), uses_, entry->second.Use);
    return &entry->second.Rows;
}

void TPageBoundaries::Clear()
{
    places_.clear();
    stride_ = 1;
}

void TPageBoundaries::Put(int page, const TSortKey& lastBefore)
{
    if (!Takes(page))
        return;
    places_.insert_or_assign(page, lastBefore);
    if (static_cast<int>(places_.size()) > capacity_)
        Thin();
}

void TPageBoundaries::Thin()
{
    stride_ *= 2;
    for (auto place = places_.begin(); place != places_.end();)
        place = Takes(place->first) ? std::next(place) : places_.erase(place);
}

void TPagedList::Reset(int pageSize)
{
    pageSize_ = pageSize;
    count_ = 0;
    exact_ = false;
    cache_.Clear();
    boundaries_.Clear();
}

void TPagedList::SetCount(int count, bool exact)
{
    count_ = count;
    exact_ = exact;
}

void TPagedList::SetBoundaries(TPageBoundaries boundaries)
{
    boundaries_ = std::move(boundaries);
}

bool TPagedList::HasRow(int row) const
{
    return row >= 0 && row < count_ && HasPage(PageOf(row));
}

const QVariant* TPagedList::Value(int row, int field)
{
    if (row < 0 || row >= count_)
        return nullptr;
    const TPageRows* page = cache_.Get(PageOf(row));
    const int inPage = row % pageSize_;
    return page && inPage < page->Count() && field < page->FieldCount ? &page->At(inPage, field) : nullptr;
}

TPagePlan TPagedList::PlanForward(int page) const
{
    const auto above = boundaries_.Places().upper_bound(page);
    if (above == boundaries_.Places().begin())
        return {{}, page * pageSize_, pageSize_};
    const auto& [start, place] = *std::prev(above);
    return {{place, false, false}, (page - start) * pageSize_, pageSize_};
}

TPagePlan TPagedList::PlanBackward(int page) const
{
    const auto next = boundaries_.Places().lower_bound(page + 1);
    if (next != boundaries_.Places().end())
        return {{next->second, true, true}, (next->first - page - 1) * pageSize_, pageSize_};
    if (!exact_)
        return {{}, std::numeric_limits<int>::max(), pageSize_};
    const int end = qMin(count_, (page + 1) * pageSize_);
    return {{{}, false, true}, count_ - end, end - page * pageSize_};
}

TPagePlan TPagedList::Plan(int page) const
{
    const TPagePlan forward = PlanForward(page);
    const TPagePlan backward = PlanBackward(page);
    return backward.Skip < forward.Skip ? backward : forward;
}

void TPagedList::PutPage(int page, const TPagePlan& plan, TPageRows rows, const TPageStatements& statements)
{
    const int end = page * pageSize_ + rows.Count();
    if (!plan.Start.Backward && rows.Count() < plan.Count)
        SetCount(end, true);
    else if (end > count_ && !exact_)
        SetCount(end, false);
    if (rows.Count() == pageSize_)
        boundaries_.Put(page + 1,
                        statements.SortKey([&rows](int field) { return rows.At(rows.Count() - 1, field); }));
    cache_.Put(page, std::move(rows));
}
