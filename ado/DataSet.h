#pragma once

#include "AdoExport.h"
#include "Field.h"
#include "NotifyEvent.h"

#include <functional>
#include <QObject>
#include <QVector>

/// Rows with a current one. What a grid shows and what a search manager filters.
class ADO_EXPORT TDataSet : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~TDataSet() override;

    virtual bool Active() const = 0; ///< open
    virtual void Open() = 0;         ///< throws EADOError; the first row becomes the current one
    virtual void Close() = 0;        ///< an open one only; its fields go
    /// True when there is no row; waits for an answer that is still under way. A closed data set is empty.
    virtual bool IsEmpty() = 0;
    virtual int RecordCount() = 0;        ///< rows, as far as they are known
    virtual int FieldCount() const = 0;   ///< 0 while closed
    virtual TField* Field(int index) = 0; ///< owned by the data set
    virtual TField*
    FindField(const QString& name) = 0;       ///< null when there is none; letter case does not matter
    TField* FieldByName(const QString& name); ///< throws EADOError(WrongState) when there is none

    virtual bool Bof() const = 0; ///< before the first row, or without rows
    virtual bool Eof() const = 0; ///< behind the last row, or without rows
    /// Each of the moves announces scrolled where it comes to another row.
    virtual void First() = 0;
    virtual void Prior() = 0;
    virtual void Next() = 0;
    virtual void Last() = 0;
    /// Number of the current row, counted from 1; 0 when there is none.
    virtual int RecNo() const = 0;
    virtual void SetRecNo(int recNo) = 0;
    /// The value of a field in the current row.
    virtual QVariant FieldValue(int index) const = 0;
    /// The value of a field in any row, counted from 0, without moving.
    virtual QVariant ValueAt(int row, int index) const = 0;

    /// While disabled (calls nest) nothing is announced to controls; EnableControls announces once.
    void DisableControls();
    void EnableControls();
    bool ControlsDisabled() const; ///< by a DisableControls without its EnableControls

Q_SIGNALS:
    void dataChanged(); ///< rows or fields are others than before: opened, closed, requeried, filtered
    void scrolled();    ///< the current row is another one

protected:
    void AnnounceData();
    void AnnounceScroll();

private:
    int disabled_ = 0;
    bool dataPending_ = false;
    bool scrollPending_ = false;
};
