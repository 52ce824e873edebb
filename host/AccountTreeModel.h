#pragma once

#include "AccountTree.h"
#include "PlaceTreeModel.h"

/// The shown part of an account tree: a column of codes, a column of names.
class TAccountTreeModel final : public TPlaceTreeModel
{
    Q_OBJECT

public:
    enum TColumn { CodeColumn, NameColumn, ColumnCount };

    /// `tree` must outlive the model.
    explicit TAccountTreeModel(TAccountTree& tree, QObject* parent = nullptr);

    /// The tree was read.
    void Reload();
    void Filter(const QString& typed);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

protected:
    int NodeCount() const override { return tree_->Count(); }
    int ParentOf(int place) const override { return tree_->At(place).Parent; }
    bool IsNodeShown(int place) const override { return tree_->IsShown(place); }

private:
    TAccountTree* tree_;
};
