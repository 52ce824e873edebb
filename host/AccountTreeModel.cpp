#include "AccountTreeModel.h"

#include <QFont>

TAccountTreeModel::TAccountTreeModel(TAccountTree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(&tree)
{
    Arrange();
}

void TAccountTreeModel::Reload()
{
    beginResetModel();
    Arrange();
    endResetModel();
}

void TAccountTreeModel::Filter(const QString& typed)
{
    beginResetModel();
    tree_->Filter(typed);
    Arrange();
    endResetModel();
}

void TAccountTreeModel::Arrange()
{
    roots_.clear();
    children_.fill({}, tree_->Count());
    rows_.fill(-1, tree_->Count());
    for (int place = 0; place < tree_->Count(); ++place) {
        if (!tree_->IsShown(place))
            continue;
        const int parent = tree_->At(place).Parent;
        QVector<int>& siblings = parent < 0 ? roots_ : children_[parent];
        rows_[place] = static_cast<int>(siblings.size());
        siblings.append(place);
    }
}

QModelIndex TAccountTreeModel::IndexOf(int place) const
{
    if (place < 0 || place >= rows_.size() || rows_[place] < 0)
        return {};
    return createIndex(rows_[place], CodeColumn, static_cast<quintptr>(place));
}

int TAccountTreeModel::PlaceOf(const QModelIndex& index)
{
    return index.isValid() ? static_cast<int>(index.internalId()) : -1;
}

QModelIndex TAccountTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const QVector<int>& siblings = parent.isValid() ? children_[PlaceOf(parent)] : roots_;
    return createIndex(row, column, static_cast<quintptr>(siblings[row]));
}

QModelIndex TAccountTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(tree_->At(PlaceOf(child)).Parent) : QModelIndex();
}

int TAccountTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(roots_.size());
    return parent.column() == CodeColumn ? static_cast<int>(children_[PlaceOf(parent)].size()) : 0;
}

int TAccountTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant TAccountTreeModel::data(const QModelIndex& index, int role) const
{
    const int place = PlaceOf(index);
    if (place < 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == CodeColumn ? tree_->CodeText(place) : tree_->At(place).Name;
    case Qt::FontRole:
        if (tree_->At(place).Level == TAccountNode::Group) {
            QFont bold;
            bold.setBold(true);
            bold.setResolveMask(QFont::WeightResolved);
            return bold;
        }
        return {};
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
    case Qt::AccessibleTextRole:
        return QString(tree_->CodeText(place) + u' ' + tree_->At(place).Name);
    default:
        return {};
    }
}

QVariant TAccountTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return section == CodeColumn ? QStringLiteral("کد") : QStringLiteral("نام حساب");
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
    return {};
}
