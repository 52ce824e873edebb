#include "AccountTreeModel.h"

#include <QFont>

TAccountTreeModel::TAccountTreeModel(TAccountTree& tree, QObject* parent)
    : TPlaceTreeModel(parent), tree_(&tree)
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
