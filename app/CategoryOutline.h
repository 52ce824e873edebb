#pragma once

#include "CategoryStore.h"

#include <QHash>

/// The categories as a tree in memory, and which of them meet what the user has typed. What a broken table
/// hangs on nothing, or on itself, stands at the top, where it can be seen and moved.
class TCategoryOutline
{
public:
    /// Rows in the order in which siblings are to stand.
    void Fill(QVector<TCategoryRow> rows);

    int Count() const { return static_cast<int>(rows_.size()); }
    const TCategoryRow& At(int place) const { return rows_[place]; }
    int Find(int id) const { return places_.value(id, -1); }  ///< -1 where there is none
    int ParentOf(int place) const { return parents_[place]; } ///< place; -1 at the top
    bool IsUnder(int place, int ancestor) const;              ///< a category is also under itself
    /// How many categories stand under it, on all levels.
    int CountUnder(int place) const;
    /// How many others are called the same.
    int NamesakesOf(int place) const;
    /// The names from the top level down to the category, with " › " between them.
    QString PathText(int place) const;

    /// Keeps what has the text in its name, as a Persian reader compares names, or as its id, with the levels
    /// above it and all that stands under it. An empty text keeps everything.
    void Filter(const QString& typed);
    bool IsShown(int place) const { return shown_[place]; }
    bool Matches(int place) const { return matching_[place]; }
    QVector<int> MatchingPlaces() const;

private:
    void HangUp();
    void Reach(int top, QVector<bool>& reached) const;
    bool IsShownByAncestor(int place) const;

    QVector<TCategoryRow> rows_;
    QHash<int, int> places_;        ///< by id
    QHash<QString, int> namesakes_; ///< by folded name
    QVector<int> parents_;
    QVector<QVector<int>> children_;
    QVector<bool> shown_;
    QVector<bool> matching_;
};
