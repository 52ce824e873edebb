#include "CategoryTreeModel.h"

#include "Look.h"

#include <QMimeData>

namespace {

constexpr QLatin1String categoryFormat("application/x-baseframe-category");

QVariant RightAligned()
{
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
}

} // namespace

TCategoryTreeModel::TCategoryTreeModel(QObject* parent) : TPlaceTreeModel(parent)
{
}

void TCategoryTreeModel::Fill(const QVector<TCategoryRow>& rows)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QVector<int> ids;
    for (const QModelIndex& index : before)
        ids.append(outline_.At(PlaceOf(index)).Id);
    outline_.Fill(rows);
    outline_.Filter(filter_);
    Arrange();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(IndexOf(outline_.Find(ids.at(i))).siblingAtColumn(before.at(i).column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void TCategoryTreeModel::ShowDefaults(const TDefaultCategories& defaults)
{
    defaults_ = defaults;
    Announce();
}

void TCategoryTreeModel::SetPickedUp(int id)
{
    pickedUp_ = id;
    Announce();
}

// The view paints what is in sight anew; which rows have changed does not matter to it.
void TCategoryTreeModel::Announce()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void TCategoryTreeModel::Filter(const QString& typed)
{
    beginResetModel();
    filter_ = typed;
    outline_.Filter(typed);
    Arrange();
    endResetModel();
}

int TCategoryTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QString TCategoryTreeModel::DefaultText(int place) const
{
    QStringList kinds;
    if (outline_.At(place).Id == defaults_.Goods)
        kinds.append(QStringLiteral("کالاها"));
    if (outline_.At(place).Id == defaults_.Persons)
        kinds.append(QStringLiteral("اشخاص"));
    return kinds.join(QStringLiteral("، "));
}

QVariant TCategoryTreeModel::data(const QModelIndex& index, int role) const
{
    const int place = PlaceOf(index);
    if (place < 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == NameColumn)
            return outline_.At(place).Name;
        return index.column() == IdColumn ? QString::number(outline_.At(place).Id) : DefaultText(place);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return index.column() == NameColumn ? outline_.PathText(place) : QVariant();
    case Qt::ForegroundRole:
        return outline_.At(place).Id == pickedUp_ ? QVariant(Look::Color(Look::TRole::DisabledText))
                                                  : QVariant();
    case Qt::TextAlignmentRole:
        return RightAligned();
    default:
        return {};
    }
}

QVariant TCategoryTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return RightAligned();
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return QStringLiteral("نام دسته");
    case IdColumn:
        return QStringLiteral("کد");
    default:
        return QStringLiteral("پیش‌فرض من");
    }
}

Qt::ItemFlags TCategoryTreeModel::flags(const QModelIndex& index) const
{
    // Without an index it is the ground beside the tree, where a category goes to the top level.
    return index.isValid() ? TPlaceTreeModel::flags(index) | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled
                           : Qt::ItemFlags(Qt::ItemIsDropEnabled);
}

QStringList TCategoryTreeModel::mimeTypes() const
{
    return {categoryFormat};
}

QMimeData* TCategoryTreeModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    const int id = outline_.At(PlaceOf(indexes.constFirst())).Id;
    data->setData(categoryFormat,
                  QByteArray::number(id) + '@' + QByteArray::number(reinterpret_cast<quintptr>(this)));
    return data;
}

// A category of this tree; another window's tree may be of another database.
int TCategoryTreeModel::DraggedId(const QMimeData* data) const
{
    const QList<QByteArray> parts = data->data(categoryFormat).split('@');
    const bool isOwn = parts.size() == 2 && parts.at(1).toULongLong() == reinterpret_cast<quintptr>(this);
    return isOwn ? parts.at(0).toInt() : 0;
}

bool TCategoryTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int /*row*/,
                                         int /*column*/, const QModelIndex& parent) const
{
    const int place = outline_.Find(DraggedId(data));
    return action == Qt::MoveAction && place >= 0 &&
           (!parent.isValid() || !outline_.IsUnder(PlaceOf(parent), place));
}

bool TCategoryTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                      const QModelIndex& parent)
{
    if (canDropMimeData(data, action, row, column, parent))
        Q_EMIT moveWanted(DraggedId(data), parent.isValid() ? outline_.At(PlaceOf(parent)).Id : 0);
    // The rows change when the database has.
    return false;
}
