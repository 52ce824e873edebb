#pragma once

#include "HostExport.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;
class QKeyEvent;
class TSmartEdit_TRV;

/// One keyboard for a list and the search edit above it: what is typed or pasted while the list has the focus
/// goes into the edit, and the list keeps the focus with its arrows; the arrows that move rows go from the
/// edit to the list; Enter in either chooses.
class HOST_EXPORT TTypeToFind : public QObject
{
    Q_OBJECT

public:
    /// Both must be children of `parent`'s window.
    TTypeToFind(TSmartEdit_TRV* edit, QAbstractItemView* list, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void chosen();

private:
    bool EditKey(const QKeyEvent& event);
    bool ListKey(const QKeyEvent& event);

    QPointer<TSmartEdit_TRV> edit_;
    QPointer<QAbstractItemView> list_;
};
