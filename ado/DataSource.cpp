#include "DataSource.h"

TDataSource::TDataSource(QObject* parent) : QObject(parent)
{
}

TDataSource::~TDataSource() = default;

void TDataSource::SetDataSet(TDataSet* dataSet)
{
    if (dataSet_ == dataSet)
        return;
    if (dataSet_)
        dataSet_->disconnect(this);
    dataSet_ = dataSet;
    if (dataSet_) {
        connect(dataSet_, &TDataSet::dataChanged, this, &TDataSource::dataChanged);
        connect(dataSet_, &TDataSet::scrolled, this, &TDataSource::scrolled);
        connect(dataSet_, &QObject::destroyed, this, &TDataSource::dataSetChanged);
    }
    Q_EMIT dataSetChanged();
}

TDataSet* TDataSource::DataSet() const
{
    return dataSet_;
}
