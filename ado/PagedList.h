#pragma once

#include "PageStatements.h"

#include <list>
#include <map>
#include <unordered_map>

/// Some rows of a list, all fields, in the order of the list.
struct ADO_EXPORT TPageRows
{
    int FieldCount = 0;
    QVector<QVariant> Values;

    int Count() const { return FieldCount == 0 ? 0 : static_cast<int>(Values.size()) / FieldCount; }
    const QVariant& At(int row, int field) const { return Values[qsizetype(row) * FieldCount + field]; }
    TPageRows Mid(int first, int count) const;
};

/// The pages used last, as many as it may keep.
class ADO_EXPORT TPageCache
{
public:
    explicit TPageCache(int capacity = 64) : capacity_(capacity) {}
    void Clear();
    void Put(int page,
             TPageRows rows);       ///< drops the page that was not used for the longest time when it is full
    const TPageRows* Get(int page); ///< null when it is not here; counts as a use
    bool Contains(int page) const { return entries_.count(page) != 0; }
    int Size() const { return static_cast<int>(entries_.size()); }

private:
    struct TEntry
    {
        TPageRows Rows;
        std::list<int>::iterator Use;
    };
    int capacity_;
    std::list<int> uses_; ///< newest first
    std::unordered_map<int, TEntry> entries_;
};

/// Known places between pages: for page p the place of the last row before it. Thins itself out when there
/// are too many, so that its memory is bounded however long the list is.
class ADO_EXPORT TPageBoundaries
{
public:
    explicit TPageBoundaries(int capacity = 20000) : capacity_(capacity) {}
    void Clear();
    /// Takes a place; dropped when it does not fall on the grid that thinning has left.
    void Put(int page, const TSortKey& lastBefore);
    bool Takes(int page) const { return page % stride_ == 0; }
    using TPlaces = std::map<int, TSortKey>;
    const TPlaces& Places() const { return places_; }

private:
    void Thin();

    int capacity_;
    int stride_ = 1;
    TPlaces places_;
};

/// How to read one page: rows from a place on, the first `Skip` of them belong to other pages.
struct ADO_EXPORT TPagePlan
{
    TPageStart Start;
    int Skip = 0;
    int Count = 0;
};

/// What is known of a list that is read by pages: its rows in the cache, its length as far as known, and from
/// which place a page is reached with the least reading. Rows and pages count from 0.
class ADO_EXPORT TPagedList
{
public:
    void Reset(int pageSize);
    int PageSize() const { return pageSize_; }
    int Count() const { return count_; }
    bool CountIsExact() const { return exact_; }
    void SetCount(int count, bool exact);
    /// The places that a pass over the whole list has found.
    void SetBoundaries(TPageBoundaries boundaries);

    int PageOf(int row) const { return row / pageSize_; }
    bool HasRow(int row) const;
    const QVariant* Value(int row, int field); ///< null when the row is not here
    const TPageRows* Page(int page) { return cache_.Get(page); }
    bool HasPage(int page) const { return cache_.Contains(page); }

    TPagePlan Plan(int page) const;
    /// Takes a page that was read by `plan`. A page that came short tells where the list ends.
    void PutPage(int page, const TPagePlan& plan, TPageRows rows, const TPageStatements& statements);

private:
    TPagePlan PlanForward(int page) const;
    TPagePlan PlanBackward(int page) const;

    int pageSize_ = 100;
    int count_ = 0;
    bool exact_ = false;
    TPageCache cache_;
    TPageBoundaries boundaries_;
};
