#pragma once

#include "PagedDataSet.h"

#include <optional>

/// Where a row stands in an ordered list: its value in the order field, then its key.
struct ADO_EXPORT TSortKey
{
    QVariant Order;
    QVariant Key;
};

/// A T-SQL text and the values of its `?` marks.
struct ADO_EXPORT TStatement
{
    QString Text;
    QVariantList Parameters;
};

/// A reading of rows in the order of the list or against it.
struct ADO_EXPORT TPageStart
{
    std::optional<TSortKey> From; ///< where it starts; without one at the end of the list that it comes from
    bool Inclusive = false;       ///< the row at From itself belongs to it
    bool Backward = false;        ///< against the order of the list
};

/// A run of rows that one index range delivers. A reading has one or two of them: rows without a value in the
/// order field stand apart, since no comparison reaches them.
struct ADO_EXPORT TPageSegment
{
    QString Where; ///< added to the condition of the list; may be empty
    QVariantList Parameters;
    QString OrderBy;
};

/// Builds the statements of a paged list for one condition and one order. Rows without a value stand first,
/// as both engines order them. Texts of the source and the condition are taken as they are.
class ADO_EXPORT TPageStatements
{
public:
    /// `orderIndex` is the place of the order field among the source's fields.
    TPageStatements(const TPagedSource& source, const QString& condition, int orderIndex,
                    Qt::SortOrder order);

    /// The place of a field among the source's fields, whatever the letter case and brackets; -1 when it is
    /// none.
    static int IndexOf(const TPagedSource& source, const QString& field);

    int FieldCount() const { return static_cast<int>(source_.Fields.size()); }
    /// The place in the list of a row that was read by Select().
    TSortKey SortKey(const std::function<QVariant(int field)>& value) const;

    QVector<TPageSegment> Segments(const TPageStart& start) const;
    /// The first `count` rows of a segment, all fields.
    TStatement Select(const TPageSegment& segment, int count) const;
    TStatement Count(const TPageSegment& segment) const;
    TStatement CountAll() const { return Count({}); }
    /// The place of the row that has the key: one row of two columns, or none.
    TStatement Find(const QVariant& key) const;
    /// The places of all rows in order: order field and key, or the key alone where the list is ordered by
    /// it.
    TStatement Places() const;
    /// The keys of up to `count` rows, in no order: for few rows quicker than an ordered reading, whose index
    /// has to be followed row by row.
    TStatement SomeKeys(int count) const;
    /// The same list where its rows are known to be among those of some keys.
    TPageStatements Narrowed(const QVariantList& keys) const;
    /// The same list where the keys of its rows are found in one scan before anything else. An engine that
    /// follows the index of the order fetches every row singly to test the condition, up to the first rows
    /// that match: on a million rows up to ten times as long as the scan.
    TPageStatements Gathered() const;
    /// A statement without rows that tells the columns.
    TStatement Columns() const;
    bool HasCondition() const { return !condition_.isEmpty(); }
    bool OrderedByKey() const { return orderIndex_ == keyIndex_; }

private:
    QString Where(const QString& more) const;
    QString OrderBy(bool descending) const;
    TPageSegment Beyond(const TSortKey& from, bool inclusive, bool descending) const;
    TPageSegment Empties(const TSortKey* from, bool inclusive, bool descending) const;
    TPageSegment Valued() const;

    TPagedSource source_;
    QString condition_;
    QVariantList conditionParameters_;
    int orderIndex_;
    int keyIndex_;
    bool descending_;
};
