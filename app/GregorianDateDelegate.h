#pragma once

#include <QStyledItemDelegate>

/// Paints the dates of a grid, which reads in the solar calendar, in the Gregorian one.
class TGregorianDateDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    ~TGregorianDateDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
