#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/// A node of the category tree; ids count from 1 in the order of the tree.
struct TCategory
{
    int Id = 0;
    int ParentId = 0; ///< 0 at the top level
    QString Name;
    QString Path; ///< ids from the top level down to this one, between commas
};

/// The sample categories.
class TSampleCategories
{
public:
    TSampleCategories();

    const QVector<TCategory>& Nodes() const { return nodes_; }
    /// The first category of the name; 0 where there is none.
    int IdOf(const QString& name) const { return ids_.value(name); }
    /// The categories without children under the named top-level one.
    QVector<int> LeavesUnder(const QString& topLevel) const;
    /// The name of the category's ancestor on the second level.
    QString SecondLevelName(int id) const;

private:
    QVector<TCategory> nodes_;
    QHash<QString, int> ids_;
};
