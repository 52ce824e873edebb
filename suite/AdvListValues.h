#pragma once

#include "SuiteExport.h"

#include <functional>
#include <QString>
#include <QVector>

/// One item of a token editor, or one entry of its auto-completion.
struct TAdvListValueItem
{
    QString DisplayText; ///< what is shown
    QString Value;       ///< what the owner knows it by; usually a code
    /// Index into the editor's pictures; -1 and every index without a picture show none, so that an owner
    /// without pictures may keep a number of its own here.
    int ImageIndex = -1;

    bool operator==(const TAdvListValueItem&) const = default;
};
Q_DECLARE_TYPEINFO(TAdvListValueItem, Q_RELOCATABLE_TYPE);

/// The items of a token editor in reading order, or the entries of its auto-completion. Equal texts and equal
/// values may occur more than once. An index that no item has throws std::out_of_range.
class SUITE_EXPORT TAdvListValues
{
public:
    /// What has become of the items; `index` and `count` name those that were added, removed or changed. A
    /// move has changed all items between its ends.
    enum class TChange { Added, Removed, Changed };
    using TObserver = std::function<void(TChange change, int index, int count)>;

    TAdvListValues() = default;
    /// A copy has the items, not the observer.
    TAdvListValues(const TAdvListValues& other) : items_(other.items_) {}
    TAdvListValues& operator=(const TAdvListValues& other); ///< the observer stays and is told
    ~TAdvListValues() = default;

    int Count() const { return static_cast<int>(items_.size()); }
    bool IsEmpty() const { return items_.isEmpty(); }                               ///< without items
    const TAdvListValueItem& operator[](int index) const { return GetItem(index); } ///< counted from 0
    const TAdvListValueItem& GetItem(int index) const;
    /// The last item; an empty one where there is none.
    const TAdvListValueItem& Last() const;
    /// Makes room for that many items at once.
    void Reserve(int count) { items_.reserve(count); }
    /// Adds an item behind the others.
    void AddPair(const QString& displayText, const QString& value, int imageIndex = -1);
    /// Adds an item before the one at `index`; behind all at Count().
    void Insert(int index, const TAdvListValueItem& item);
    void Clear();           ///< removes all items
    void Delete(int index); ///< removes one item
    /// Removes the items from `first` to before `last`.
    void DeleteRange(int first, int last);
    /// Takes the item out and puts it where it then has the index `to`.
    void Move(int from, int to);
    /// Each changes one part of an item.
    void SetDisplayText(int index, const QString& text);
    void SetValue(int index, const QString& value);
    void SetImageIndex(int index, int imageIndex);
    /// The first item with exactly this text, letter for letter; -1 where there is none.
    int IndexOfText(const QString& text) const;
    /// The first item with exactly this value; -1 where there is none.
    int IndexOfValue(const QString& value) const;

    /// Told after every change; one observer, which the editor sets on its own collections.
    void SetObserver(TObserver observer) { observer_ = std::move(observer); }

private:
    void Check(int index, int end) const;
    void Tell(TChange change, int index, int count) const;

    QVector<TAdvListValueItem> items_;
    TObserver observer_;
};
