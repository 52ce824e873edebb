#include "GridDelegate.h"

#include "GridCellText.h"
#include "GridColumnModel.h"
#include "Look.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int Padding = 6;

QColor GroundOf(bool selected, int row)
{
    if (selected)
        return Look::Color(Look::TRole::Selection);
    return Look::Color(row % 2 == 0 ? Look::TRole::Base : Look::TRole::AlternateBase);
}

QColor InkOf(bool selected, bool negative)
{
    // The colour for wrong would not be readable on the selection; there the sign has to do.
    if (selected)
        return Look::Color(Look::TRole::SelectionText);
    return Look::Color(negative ? Look::TRole::Wrong : Look::TRole::Text);
}

/// A text of so few characters fits without being measured.
bool SurelyFits(const QString& text, const QFont& font, int width)
{
    return text.size() * font.pixelSize() <= width;
}

void PaintSwatch(QPainter& painter, const QRect& cell, const QString& text)
{
    const QColor color = Look::StringToColor(text);
    if (color.isValid())
        painter.fillRect(cell.adjusted(0, Padding, 0, -Padding), color);
}

} // namespace

TGridDelegate::TGridDelegate(const TGridColumnModel* model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model)
{
}

void TGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->fillRect(option.rect, GroundOf(selected, index.row()));
    QString text = index.data().toString();
    if (text.isEmpty())
        return;
    const auto kind = model_->ShownColumns()[index.column()].Kind;
    if (kind == TGridColumn::ckColor) {
        PaintSwatch(*painter, option.rect, text);
        return;
    }
    const bool numeric = GridCellText::IsNumeric(kind);
    const bool amount = kind == TGridColumn::ckMoney || kind == TGridColumn::ckNumber;
    const QRect area = option.rect.adjusted(Padding, 0, -Padding, 0);
    if (!SurelyFits(text, option.font, area.width()))
        text = option.fontMetrics.elidedText(text, Qt::ElideRight, area.width());
    painter->setFont(option.font);
    painter->setPen(InkOf(selected, amount && text.startsWith(u'-')));
    // Numbers run from left to right, so that the minus stands before the first digit, at the left.
    const int paragraph = numeric ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft;
    const auto place = static_cast<int>(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    painter->drawText(area, place | paragraph | Qt::TextSingleLine, text);
}

bool TGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                              const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool isSwatch = model_->ShownColumns()[index.column()].Kind == TGridColumn::ckColor;
    const QString text = isSwatch ? QString() : index.data().toString();
    const bool fits = view->fontMetrics().horizontalAdvance(text) <= option.rect.width() - 2 * Padding;
    QToolTip::showText(event->globalPos(), fits ? QString() : text, view);
    return true;
}
