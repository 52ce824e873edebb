#pragma once

#include "HostExport.h"

#include <QTreeView>

/// A tree read from right to left. Arrows are mirrored: Left opens a row and goes under it, Right goes back
/// up. Says why it is empty.
class HOST_EXPORT TMirroredTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit TMirroredTreeView(QWidget* parent = nullptr);

    QString EmptyText() const { return emptyText_; }
    void SetEmptyText(const QString& text);
    void Toggle(const QModelIndex& index) { setExpanded(index, !isExpanded(index)); }

    /// Letters are for the search edit.
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    void deeper();    ///< Left on a row that has nothing under it here
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
