#pragma once

#include "AdoExport.h"
#include "FieldType.h"

#include <QVariant>

class TDataSet;

/// One column of a data set, read at the data set's current row. Lives as long as the data set stays open.
class ADO_EXPORT TField
{
public:
    /// Made by the data set, which must outlive it; `index` counts from 0.
    TField(TDataSet* dataSet, int index, const TColumnInfo& column);

    QString FieldName() const { return column_.Name; }   ///< as the statement names it
    TFieldType DataType() const { return column_.Type; } ///< of the column
    /// Declared length in characters or bytes; 0 when unbounded or unknown.
    int Size() const { return column_.Size; }
    int Index() const { return index_; }           ///< place in the row, counted from 0
    TDataSet* DataSet() const { return dataSet_; } ///< never null

    /// The value at the current row; an invalid variant for NULL and where the data set has no row.
    QVariant Value() const;
    bool IsNull() const; ///< NULL at the current row, or no row
    /// NULL reads as empty text, 0, false or no bytes; a text that is no number reads as
    /// EADOError(WrongState).
    QString AsString() const;
    int AsInteger() const;
    qint64 AsLargeInt() const;
    double AsFloat() const;
    bool AsBoolean() const;
    QByteArray AsBytes() const;

private:
    TDataSet* dataSet_;
    int index_;
    TColumnInfo column_;
};
