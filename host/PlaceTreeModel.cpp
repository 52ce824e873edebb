#include "PlaceTreeModel.h"

TPlaceTreeModel::~TPlaceTreeModel() = default;

void TPlaceTreeModel::Arrange()
{
    const int count = NodeCount();
    roots_.clear();
    children_.fill({}, count);
    rows_.fill(-1, count);
    for (int place = 0; place < count; ++place) {
        if (!IsNodeShown(place))
            continue;
        const int parent = ParentOf(place);
        QVector<int>& siblings = parent < 0 ? roots_ : children_[parent];
        rows_[place] = static_cast<int>(siblings.size());
        siblings.append(place);
    }
}

QModelIndex TPlaceTreeModel::IndexOf(int place) const
{
    if (place < 0 || place >= rows_.size() || rows_[place] < 0)
        return {};
    return createIndex(rows_[place], 0, static_cast<quintptr>(place));
}

int TPlaceTreeModel::PlaceOf(const QModelIndex& index)
{
    return index.isValid() ? static_cast<int>(index.internalId()) : -1;
}

QModelIndex TPlaceTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const QVector<int>& siblings = parent.isValid() ? children_[PlaceOf(parent)] : roots_;
    return createIndex(row, column, static_cast<quintptr>(siblings[row]));
}

QModelIndex TPlaceTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(ParentOf(PlaceOf(child))) : QModelIndex();
}

int TPlaceTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(roots_.size());
    return parent.column() == 0 ? static_cast<int>(children_[PlaceOf(parent)].size()) : 0;
}
