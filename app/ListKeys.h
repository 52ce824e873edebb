#pragma once

#include <functional>
#include <QObject>
#include <QPointer>
#include <QVector>

class QKeyEvent;
class TSmartDBGrid_TRV;
class TSmartEdit_TRV;

/// The keyboard between a list's search edits and its grid: Down and Up leave the edit for the grid, Enter
/// opens a row, and whatever is typed in the grid goes on in the edit.
class TListKeys : public QObject
{
    Q_OBJECT

public:
    TListKeys(const QVector<TSmartEdit_TRV*>& edits, TSmartDBGrid_TRV* grid, QObject* parent);

    /// The edit that takes the value of the field in force; null where none is visible.
    TSmartEdit_TRV* CurrentEdit() const;
    /// Puts the caret behind the text, or selects the 0 of a number edit, so that typing goes on.
    void FocusEdit() const;
    void FocusGrid() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void rowChosen();   ///< Enter in the grid
    void gridEntered(); ///< Down or Up in the edit; the grid has the focus

private:
    bool EditKey(const QKeyEvent& event);
    bool GridKey(const QKeyEvent& event);

    QVector<QPointer<TSmartEdit_TRV>> edits_;
    QPointer<TSmartDBGrid_TRV> grid_;
};
