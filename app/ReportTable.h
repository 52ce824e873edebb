#pragma once

#include "PagedDataSet.h"
#include "ReportSums.h"
#include "SmartDBGrid_TRV.h"

/// What of a report is saved: its rows in their order, up to a limit, and how they are to be read.
struct TReportQuestion
{
    TPagedSource Source;
    QString Condition;
    QString OrderField;
    Qt::SortOrder Order = Qt::AscendingOrder;
    QVector<TGridColumn> Columns; ///< the visible ones, the first at the right
    QString Title;
    QString ConditionInWords; ///< empty for all rows
    QString Today;            ///< day of saving, as it is written
    bool Gregorian = false;   ///< calendar of the dates
    int MaxRows = 10000;
};

/// A report as it is written into a file: texts only.
struct TReportTable
{
    TReportQuestion Question;
    QVector<QStringList> Rows;
    TReportSum Sum; ///< of all rows of the result, read or not

    /// Reads the rows and the totals. Throws EADOError.
    static TReportTable Read(TADOConnection& connection, const TReportQuestion& question);
    /// Says how many of how many rows are there; empty where all are.
    QString Note() const;
};
