#pragma once

#include <QStyledItemDelegate>

class TGridColumnModel;
class TGridMarks;

/// Paints the cells of a grid by hand: a list of large tables is scrolled all day.
class TGridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    TGridDelegate(const TGridColumnModel* model, const TGridMarks* marks, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// Shows a text that does not fit as a tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    void PaintText(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                   bool chosen) const;
    const TGridColumnModel* model_;
    const TGridMarks* marks_;
};
