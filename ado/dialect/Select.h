#pragma once

#include "Expressions.h"

namespace Dialect {

/// A translated SELECT and its result columns.
struct TSelectText
{
    QString Sql;
    QVector<TColumn> Columns;
    bool IsKnown = true; ///< false when a * stands for columns that nobody could name

    /// The type of the only column; Unknown when that cannot be told.
    TType ColumnType() const;
};

/// Reads one SELECT with its unions, order and limits.
class TSelect
{
public:
    /// `outer` is the scope around a subquery, null for a statement of its own. `targets`, when given, are
    /// the types of the columns that the rows are inserted into.
    TSelect(TCursor& cursor, const TScope* outer, const QVector<TType>* targets = nullptr)
        : cursor_(cursor), outer_(outer), targets_(targets)
    {
    }

    /// The next token is SELECT.
    TSelectText Whole();

private:
    TSelectText Part();
    QString Combination();
    void Combine(TSelectText& whole, const QString& combination, const TSelectText& part);
    void ReadTop();
    QString Items(TSelectText& part);
    QString Item(TSelectText& part);
    bool StarItem(TSelectText& part, QString& sql);
    QString ItemAlias();
    std::size_t FromPosition() const;
    QString From();
    QString Joins();
    QString JoinWord();
    QString Source();
    QString DerivedSource();
    QString SourceAlias();
    void RefuseAfterSource();
    QString Grouping();
    QString Order(const TSelectText& whole);
    QString OrderItem(const TSelectText& whole);
    QString Limit();

    TCursor& cursor_;
    const TScope* outer_;
    const QVector<TType>* targets_;
    TScope scope_;
    QString top_;
    bool isCompound_ = false;
};

} // namespace Dialect
