#pragma once

#include "ControlEvents.h"
#include "DataSource.h"
#include "SuiteExport.h"

#include <functional>
#include <memory>
#include <QColor>
#include <QTableView>

/// A coloured mark in a cell, and what it stands for.
struct TGridDot
{
    QColor Color; ///< of the mark
    QString Name; ///< what it stands for, in words
};

/// A column of a TSmartDBGrid_TRV.
struct SUITE_EXPORT TGridColumn
{
    /// Codes, numbers and money align to the digit. A colour is a text for Look::StringToColor, shown as a
    /// swatch of it.
    enum TKind { ckText, ckCode, ckNumber, ckMoney, ckDate, ckColor };
    QString FieldName;   ///< of the data set; without such a field the column is empty
    QString Title;       ///< in the header
    int Width = 100;     ///< pixels at scale 1
    TKind Kind = ckText; ///< how values are shown
    bool Visible = true; ///< whether the column is shown at all
    int Digits = 0;      ///< codes shorter than this are shown with leading zeros
    /// The coloured marks that a value stands for, painted in place of its text; their names are what is
    /// copied and read out. Empty for a column of text.
    std::function<QVector<TGridDot>(const QVariant& value)> Dots = {};
};

/// The keys of up to `count` rows of a paged list from a place on, in its order, as text; read at once.
using TReadKeysEvent = std::function<QStringList(int first, int count)>;

/// Data-aware grid, right to left: the first column stands at the right. A header click orders a paged data
/// set. Shows its EmptyText, which says why it is empty and what to press, when there is no row. Home and End
/// go to the first and last row, Ctrl+C copies the row, Enter is the owner's.
///
/// With MultiSelect any number of rows of a paged data set can be marked, besides the current one: Space and
/// Ctrl+click turn a row's mark, Shift with arrows, Home, End, page keys or a click marks a range, Ctrl+A
/// marks all rows of the list. A plain click takes the marks off, plain arrows leave them. Marks belong to
/// keys and stay through ordering and reading again; their owner clears them when the list becomes another
/// one.
class SUITE_EXPORT TSmartDBGrid_TRV : public QTableView, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(QString EmptyText READ EmptyText WRITE SetEmptyText)

public:
    explicit TSmartDBGrid_TRV(QWidget* parent = nullptr);
    ~TSmartDBGrid_TRV() override;

    void SetDataSource(TDataSource* source); ///< not owned; the current row follows the data set and back
    TDataSource* DataSource() const;         ///< null for none
    /// Without column definitions every field is a column.
    void SetColumns(const QVector<TGridColumn>& columns);
    QVector<TGridColumn> Columns() const;
    QString EmptyText() const; ///< in the middle of a grid without rows; empty for none
    void SetEmptyText(const QString& text);
    /// Widths as the user left them, for the host's settings.
    QByteArray SaveLayout() const;
    void RestoreLayout(const QByteArray& layout); ///< what does not fit the columns is left out

    /// Letters are left to the owner; searching row by row would read the whole list.
    void keyboardSearch(const QString& search) override;

    TNotifyEvent OnDblClick; ///< on a row

    bool MultiSelect() const; ///< false at first
    void SetMultiSelect(bool on);
    /// Reads the keys of rows that are not here; without it only rows that are here can be marked.
    void SetReadKeys(TReadKeysEvent reader);
    /// The most rows that can be marked; 100,000 at first.
    int MarkLimit() const;
    void SetMarkLimit(int limit);
    /// In no order; empty where nothing is marked.
    QStringList MarkedKeys() const;
    void SetMarkedKeys(const QStringList& keys); ///< no more of them than MarkLimit
    void ClearMarks() { SetMarkedKeys({}); }     ///< takes all marks off
    bool IsMarked(int row) const;                ///< counted from 0; false for a row that is not here

Q_SIGNALS:
    void marksChanged(); ///< by the user or by code
    /// More rows were to be marked than MarkLimit; the first ones are.
    void marksLimited();

protected:
    bool event(QEvent* event) override;

    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void FollowDataSet();
    void ApplyColumns();
    void ShowSortMark();
    void ShowCurrentRow();
    void SortByColumn(int column);
    bool HandleOwnKey(const QKeyEvent& event);
    bool HandleMarkKey(const QKeyEvent& event);
    bool ExtendsMarks(const QKeyEvent& event);
    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
