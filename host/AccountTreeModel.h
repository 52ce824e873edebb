#pragma once

#include "AccountTree.h"

#include <QAbstractItemModel>

/// The shown part of an account tree: a column of codes, a column of names.
class TAccountTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum TColumn { CodeColumn, NameColumn, ColumnCount };

    /// `tree` must outlive the model.
    explicit TAccountTreeModel(TAccountTree& tree, QObject* parent = nullptr);

    /// The tree was read.
    void Reload();
    void Filter(const QString& typed);
    QModelIndex IndexOf(int place) const;         ///< invalid where the account is not shown
    static int PlaceOf(const QModelIndex& index); ///< -1 of an invalid index

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void Arrange();

    TAccountTree* tree_;
    QVector<int> roots_;
    QVector<QVector<int>> children_; ///< shown ones, by place
    QVector<int> rows_;              ///< among the shown children of the parent, by place
};
