#include "DataSetModel.h"

#include "PagedDataSet.h"

namespace {

QString TextOf(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QByteArray:
        return {};
    default:
        return value.toString();
    }
}

} // namespace

TDataSetModel::TDataSetModel(QObject* parent) : QAbstractTableModel(parent)
{
}

TDataSetModel::~TDataSetModel() = default;

void TDataSetModel::SetDataSource(TDataSource* source)
{
    if (source_ == source)
        return;
    if (source_)
        source_->disconnect(this);
    source_ = source;
    if (source_) {
        connect(source_, &TDataSource::dataSetChanged, this, &TDataSetModel::FollowDataSet);
        connect(source_, &TDataSource::dataChanged, this, &TDataSetModel::ResetRows);
        connect(source_, &QObject::destroyed, this, &TDataSetModel::FollowDataSet);
    }
    FollowDataSet();
}

TDataSource* TDataSetModel::DataSource() const
{
    return source_;
}

TDataSet* TDataSetModel::DataSet() const
{
    return source_ ? source_->DataSet() : nullptr;
}

void TDataSetModel::FollowDataSet()
{
    auto* paged = qobject_cast<TPagedDataSet*>(DataSet());
    if (paged_ && paged_ != paged)
        paged_->disconnect(this);
    if (paged && paged_ != paged) {
        connect(paged, &TPagedDataSet::countChanged, this, &TDataSetModel::AdjustRows);
        connect(paged, &TPagedDataSet::rowsArrived, this, &TDataSetModel::RepaintRows);
    }
    paged_ = paged;
    ResetRows();
}

void TDataSetModel::ResetRows()
{
    beginResetModel();
    TDataSet* dataSet = DataSet();
    const bool active = dataSet && dataSet->Active();
    rows_ = active ? dataSet->RecordCount() : 0;
    columns_ = active ? dataSet->FieldCount() : 0;
    endResetModel();
}

void TDataSetModel::AdjustRows(int count)
{
    if (count > rows_) {
        beginInsertRows({}, rows_, count - 1);
        rows_ = count;
        endInsertRows();
    } else if (count < rows_) {
        beginRemoveRows({}, count, rows_ - 1);
        rows_ = count;
        endRemoveRows();
    }
}

void TDataSetModel::RepaintRows(int first, int last)
{
    const int lastShown = qMin(last, rows_ - 1);
    if (first <= lastShown && columns_ > 0)
        Q_EMIT dataChanged(index(first, 0), index(lastShown, columns_ - 1));
}

int TDataSetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int TDataSetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns_;
}

QVariant TDataSetModel::data(const QModelIndex& index, int role) const
{
    TDataSet* dataSet = DataSet();
    if (!dataSet || !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    if (role == Qt::EditRole)
        return dataSet->ValueAt(index.row(), index.column());
    if (role == Qt::DisplayRole)
        return TextOf(dataSet->ValueAt(index.row(), index.column()));
    const TField* field = dataSet->Field(index.column());
    if (role == FieldTypeRole && field)
        return static_cast<int>(field->DataType());
    if (role == FieldNameRole && field)
        return field->FieldName();
    return {};
}

QVariant TDataSetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= columns_)
        return QAbstractTableModel::headerData(section, orientation, role);
    const TField* field = DataSet() ? DataSet()->Field(section) : nullptr;
    if (!field || (role != Qt::DisplayRole && role != FieldNameRole))
        return {};
    return field->FieldName();
}

void TDataSetModel::sort(int column, Qt::SortOrder order)
{
    if (paged_)
        paged_->SetOrder(paged_->Source().Fields.value(column), order);
}
