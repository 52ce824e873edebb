#pragma once

#include "AdoExport.h"
#include "DataSet.h"

#include <QPointer>

/// Stands between a data set and the controls that show it, so that either can be exchanged.
class ADO_EXPORT TDataSource : public QObject
{
    Q_OBJECT

public:
    explicit TDataSource(QObject* parent = nullptr);
    ~TDataSource() override;

    void SetDataSet(TDataSet* dataSet); ///< not owned; may be null
    TDataSet* DataSet() const;

Q_SIGNALS:
    void dataSetChanged(); ///< another data set, or none
    void dataChanged();    ///< as TDataSet::dataChanged
    void scrolled();       ///< as TDataSet::scrolled

private:
    QPointer<TDataSet> dataSet_;
};
