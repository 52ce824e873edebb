#include "MirroredTreeView.h"

#include "Look.h"
#include "RelativeFonts.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QStyleOption>

namespace {

/// Rows of the height that all lists have.
class TRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), Look::GridRowHeight};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The ring stands around the whole list, as around every list.
        option->state.setFlag(QStyle::State_HasFocus, false);
    }
};

} // namespace

TMirroredTreeView::TMirroredTreeView(QWidget* parent) : QTreeView(parent)
{
    setItemDelegate(new TRowDelegate(this));
    setFont(RelativeFonts::Small());
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setVerticalScrollMode(ScrollPerPixel);
    header()->setFont(RelativeFonts::SmallBold());
    header()->setFixedHeight(Look::GridRowHeight);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    header()->setHighlightSections(false);
}

void TMirroredTreeView::SetEmptyText(const QString& text)
{
    emptyText_ = text;
    viewport()->update();
}

void TMirroredTreeView::keyboardSearch(const QString& /*search*/)
{
}

void TMirroredTreeView::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || event->key() != Qt::Key_Left || !currentIndex().isValid()) {
        QTreeView::keyPressEvent(event);
        return;
    }
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    if (model()->rowCount(row) == 0) {
        Q_EMIT deeper();
        return;
    }
    expand(row);
    setCurrentIndex(model()->index(0, 0, row));
}

/// The base class paints the arrow in the colour of the text, which is lost on the selection.
void TMirroredTreeView::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const
{
    if (model()->rowCount(index) == 0)
        return;
    const bool selected = selectionModel()->isRowSelected(index.row(), index.parent());
    const QColor color = Look::Color(selected ? Look::TRole::SelectionText : Look::TRole::SecondaryText);
    QStyleOption arrow;
    arrow.initFrom(this);
    constexpr int size = 10;
    arrow.rect = QRect(0, 0, size, size);
    const int across = isRightToLeft() ? rect.left() : rect.right() + 1 - indentation();
    arrow.rect.moveCenter({across + indentation() / 2, rect.center().y()});
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        arrow.palette.setColor(role, color);
    const auto closed = isRightToLeft() ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    style()->drawPrimitive(isExpanded(index) ? QStyle::PE_IndicatorArrowDown : closed, &arrow, painter, this);
}

void TMirroredTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        Q_EMIT rowChosen();
}

void TMirroredTreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    Q_EMIT currentMoved();
}

void TMirroredTreeView::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    QWidget::update();
}

void TMirroredTreeView::focusOutEvent(QFocusEvent* event)
{
    QTreeView::focusOutEvent(event);
    QWidget::update();
}

void TMirroredTreeView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model() == nullptr || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(Look::Color(Look::TRole::SecondaryText));
    const QRect area =
        viewport()->rect().adjusted(Look::GroupGap, Look::GroupGap, -Look::GroupGap, -Look::GroupGap);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextForceRightToLeft, emptyText_);
}
