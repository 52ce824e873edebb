#pragma once

#include "AdoExport.h"
#include "DataSource.h"

#include <QAbstractTableModel>
#include <QPointer>

class TPagedDataSet;

/// Shows a data set, client cursor or paged, as an item model. Data of Qt::DisplayRole is the field's text,
/// Qt::EditRole its value, FieldTypeRole its TFieldType as int. Rows not yet here are empty.
class ADO_EXPORT TDataSetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum { FieldTypeRole = Qt::UserRole + 1, FieldNameRole };

    explicit TDataSetModel(QObject* parent = nullptr);
    ~TDataSetModel() override;

    void SetDataSource(TDataSource* source); ///< not owned
    TDataSource* DataSource() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Orders a paged data set in the database, a client cursor not at all.
    void sort(int column, Qt::SortOrder order) override;

private:
    TDataSet* DataSet() const;
    void FollowDataSet();
    void ResetRows();
    void AdjustRows(int count);
    void RepaintRows(int first, int last);

    QPointer<TDataSource> source_;
    QPointer<TPagedDataSet> paged_;
    int rows_ = 0; ///< as announced to the views, while the data set may already have others
    int columns_ = 0;
};
