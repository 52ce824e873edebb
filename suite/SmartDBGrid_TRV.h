#pragma once

#include "ControlEvents.h"
#include "DataSource.h"
#include "SuiteExport.h"

#include <memory>
#include <QTableView>

/// A column of a TSmartDBGrid_TRV.
struct SUITE_EXPORT TGridColumn
{
    /// Codes, numbers and money align to the digit. A colour is a text for Look::StringToColor, shown as a
    /// swatch of it.
    enum TKind { ckText, ckCode, ckNumber, ckMoney, ckDate, ckColor };
    QString FieldName;
    QString Title;
    int Width = 100; ///< pixels at scale 1
    TKind Kind = ckText;
    bool Visible = true;
    int Digits = 0; ///< codes shorter than this are shown with leading zeros
};

/// Data-aware grid, right to left: the first column stands at the right. A header click orders a paged data
/// set. Shows its EmptyText, which says why it is empty and what to press, when there is no row. Home and End
/// go to the first and last row, Ctrl+C copies the row, Enter is the owner's.
class SUITE_EXPORT TSmartDBGrid_TRV : public QTableView, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(QString EmptyText READ EmptyText WRITE SetEmptyText)

public:
    explicit TSmartDBGrid_TRV(QWidget* parent = nullptr);
    ~TSmartDBGrid_TRV() override;

    void SetDataSource(TDataSource* source); ///< not owned; the current row follows the data set and back
    TDataSource* DataSource() const;
    /// Without column definitions every field is a column.
    void SetColumns(const QVector<TGridColumn>& columns);
    QVector<TGridColumn> Columns() const;
    QString EmptyText() const;
    void SetEmptyText(const QString& text);
    /// Widths as the user left them, for the host's settings.
    QByteArray SaveLayout() const;
    void RestoreLayout(const QByteArray& layout);

    /// Letters are left to the owner; searching row by row would read the whole list.
    void keyboardSearch(const QString& search) override;

    TNotifyEvent OnDblClick; ///< on a row

protected:
    bool event(QEvent* event) override;

    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
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
    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
