#pragma once

#include "CategoryOutline.h"
#include "PlaceTreeModel.h"

/// The categories for a tree view: name, id, and whose default each is for the user. A category dragged onto
/// another one asks for a move and does nothing itself.
class TCategoryTreeModel final : public TPlaceTreeModel
{
    Q_OBJECT

public:
    enum TColumn { NameColumn, IdColumn, DefaultColumn, ColumnCount };

    explicit TCategoryTreeModel(QObject* parent = nullptr);

    const TCategoryOutline& Outline() const { return outline_; }
    /// The same filter stays in force. What was open or current stays so, wherever it stands now.
    void Fill(const QVector<TCategoryRow>& rows);
    void ShowDefaults(const TDefaultCategories& defaults);
    const TDefaultCategories& Defaults() const { return defaults_; }
    void Filter(const QString& typed);
    /// Looks fainter until it is moved; 0 for none.
    void SetPickedUp(int id);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// The user has dropped a category on another one, or beside the tree: parentId 0.
    void moveWanted(int id, int parentId);

protected:
    int NodeCount() const override { return outline_.Count(); }
    int ParentOf(int place) const override { return outline_.ParentOf(place); }
    bool IsNodeShown(int place) const override { return outline_.IsShown(place); }

private:
    QString DefaultText(int place) const;
    int DraggedId(const QMimeData* data) const;
    void Announce();

    TCategoryOutline outline_;
    QString filter_;
    TDefaultCategories defaults_;
    int pickedUp_ = 0;
};
