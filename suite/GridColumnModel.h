#pragma once

#include "DataSetModel.h"
#include "SmartDBGrid_TRV.h"

#include <QAbstractProxyModel>

/// Shows the fields of a data set model in the grid's columns: chosen, ordered, titled and formatted. Without
/// column definitions every field is a column.
class TGridColumnModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit TGridColumnModel(TDataSetModel* source, QObject* parent = nullptr);
    ~TGridColumnModel() override;

    void SetColumns(const QVector<TGridColumn>& columns);
    QVector<TGridColumn> Columns() const { return columns_; }
    /// Keeps a width without announcing anything; the views have it already.
    void RememberWidth(int column, int width);
    /// The definitions or, without them, one column per field.
    const QVector<TGridColumn>& ShownColumns() const { return shown_; }
    /// The text of a row as it is copied: the visible columns with tabs between them.
    QString CopiedRow(int row) const;
    /// The column that shows the field; -1 where none does.
    int ColumnOfField(const QString& fieldName) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    QString Text(const QModelIndex& source, const TGridColumn& column) const;
    void FindFields();
    void RepaintRows(const QModelIndex& first, const QModelIndex& last);

    QVector<TGridColumn> columns_;
    QVector<TGridColumn> shown_;
    QVector<int> fields_; // of the source, by shown column; -1 where the data set has no such field
};
