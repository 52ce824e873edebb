#include "GridColumnModel.h"

#include "GridCellText.h"

TGridColumnModel::TGridColumnModel(TDataSetModel* source, QObject* parent) : QAbstractProxyModel(parent)
{
    setSourceModel(source);
    connect(source, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(source, &QAbstractItemModel::modelReset, this, [this] {
        FindFields();
        endResetModel();
    });
    connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this](const QModelIndex&, int first, int last) { beginInsertRows({}, first, last); });
    connect(source, &QAbstractItemModel::rowsInserted, this, [this] { endInsertRows(); });
    connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { beginRemoveRows({}, first, last); });
    connect(source, &QAbstractItemModel::rowsRemoved, this, [this] { endRemoveRows(); });
    connect(source, &QAbstractItemModel::dataChanged, this, &TGridColumnModel::RepaintRows);
}

TGridColumnModel::~TGridColumnModel() = default;

void TGridColumnModel::SetColumns(const QVector<TGridColumn>& columns)
{
    beginResetModel();
    columns_ = columns;
    FindFields();
    endResetModel();
}

void TGridColumnModel::RememberWidth(int column, int width)
{
    if (column < shown_.size())
        shown_[column].Width = width;
    if (column < columns_.size())
        columns_[column].Width = width;
}

void TGridColumnModel::FindFields()
{
    const QAbstractItemModel* source = sourceModel();
    QHash<QString, int> fieldByName;
    shown_ = columns_;
    for (int field = 0; field < source->columnCount(); ++field) {
        const QString name =
            source->headerData(field, Qt::Horizontal, TDataSetModel::FieldNameRole).toString();
        fieldByName.insert(name.toLower(), field);
        if (columns_.isEmpty()) {
            const auto* dataSource = static_cast<const TDataSetModel*>(source)->DataSource();
            const TField* described = dataSource->DataSet()->Field(field);
            TGridColumn column;
            column.FieldName = column.Title = name;
            column.Kind = GridCellText::KindOf(described->DataType());
            shown_.append(column);
        }
    }
    fields_.clear();
    for (const TGridColumn& column : std::as_const(shown_))
        fields_.append(fieldByName.value(column.FieldName.toLower(), -1));
}

QString TGridColumnModel::CopiedRow(int row) const
{
    QStringList cells;
    for (int column = 0; column < shown_.size(); ++column) {
        if (!shown_[column].Visible)
            continue;
        const QModelIndex cell = index(row, column);
        cells += shown_[column].Dots ? cell.data().toString()
                                     : GridCellText::Copied(cell.data(Qt::EditRole), shown_[column].Kind);
    }
    return cells.join(u'\t');
}

int TGridColumnModel::ColumnOfField(const QString& fieldName) const
{
    for (int column = 0; column < shown_.size(); ++column) {
        if (shown_[column].FieldName.compare(fieldName, Qt::CaseInsensitive) == 0)
            return column;
    }
    return -1;
}

QModelIndex TGridColumnModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex TGridColumnModel::parent(const QModelIndex& /*child*/) const
{
    return {};
}

int TGridColumnModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : sourceModel()->rowCount();
}

int TGridColumnModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QModelIndex TGridColumnModel::mapToSource(const QModelIndex& proxyIndex) const
{
    if (!proxyIndex.isValid())
        return {};
    const int field = fields_.value(proxyIndex.column(), -1);
    return field < 0 ? QModelIndex() : sourceModel()->index(proxyIndex.row(), field);
}

QModelIndex TGridColumnModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    const auto column = sourceIndex.isValid() ? fields_.indexOf(sourceIndex.column()) : -1;
    return column < 0 ? QModelIndex() : index(sourceIndex.row(), static_cast<int>(column));
}

QVariant TGridColumnModel::data(const QModelIndex& index, int role) const
{
    const QModelIndex source = mapToSource(index);
    if (!source.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return Text(source, shown_[index.column()]);
    return sourceModel()->data(source, role);
}

QString TGridColumnModel::Text(const QModelIndex& source, const TGridColumn& column) const
{
    if (column.Dots) {
        QStringList names;
        for (const TGridDot& dot : column.Dots(sourceModel()->data(source, Qt::EditRole)))
            names += dot.Name;
        return names.join(QStringLiteral("، "));
    }
    const QString text = GridCellText::Shown(sourceModel()->data(source, Qt::EditRole), column.Kind);
    return text.isEmpty() ? text : text.rightJustified(column.Digits, u'0');
}

QVariant TGridColumnModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= shown_.size())
        return {};
    if (role == Qt::DisplayRole)
        return shown_[section].Title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
    return {};
}

void TGridColumnModel::sort(int column, Qt::SortOrder order)
{
    if (const int field = fields_.value(column, -1); field >= 0)
        sourceModel()->sort(field, order);
}

void TGridColumnModel::RepaintRows(const QModelIndex& first, const QModelIndex& last)
{
    if (!shown_.isEmpty())
        Q_EMIT dataChanged(index(first.row(), 0), index(last.row(), columnCount() - 1));
}
