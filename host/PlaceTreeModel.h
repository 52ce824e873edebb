#pragma once

#include "HostExport.h"

#include <QAbstractItemModel>
#include <QVector>

/// The shown part of a tree whose nodes stand in a list and are known by their places in it. A node's shown
/// children are ordered as they are in the list. Rows are handed out as the view asks for them, so that large
/// trees open at once.
class HOST_EXPORT TPlaceTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;
    ~TPlaceTreeModel() override;

    QModelIndex IndexOf(int place) const;         ///< invalid where the node is not shown
    static int PlaceOf(const QModelIndex& index); ///< -1 of an invalid index

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    virtual int NodeCount() const = 0;
    virtual int ParentOf(int place) const = 0; ///< -1 of a node at the top
    virtual bool IsNodeShown(int place) const = 0;
    /// The nodes are others, or others of them are shown; within a reset or a change of the layout.
    void Arrange();

private:
    QVector<int> roots_;
    QVector<QVector<int>> children_; ///< shown ones, by place
    QVector<int> rows_;              ///< among the shown children of the parent, by place
};
