#pragma once

#include "HostExport.h"

#include <QTreeView>

/// The view of the upper levels of the chart of accounts. Arrows are mirrored: Left opens an account and goes
/// under it, Right goes back up. Says why it is empty.
class HOST_EXPORT TAccountTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit TAccountTreeView(QWidget* parent = nullptr);

    QString EmptyText() const { return emptyText_; }
    void SetEmptyText(const QString& text);
    void Toggle(const QModelIndex& index) { setExpanded(index, !isExpanded(index)); }

    /// Letters are for the search edit.
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    void deeper();    ///< Left on an account that has nothing under it here
    void rowChosen(); ///< double click on a row
    void currentMoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString emptyText_;
};
