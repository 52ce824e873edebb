#include "GridDelegate.h"

#include "GridCellText.h"
#include "GridColumnModel.h"
#include "GridMarks.h"
#include "Look.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int Padding = 6;
constexpr int DotSize = 13;
constexpr int DotGap = 4;
constexpr int DotRounding = 4;

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

/// As many as there is room for, from the right; the last place goes to an outlined one where more are left.
void PaintDots(QPainter* painter, const QRect& cell, const QVector<TGridDot>& dots)
{
    const int places = (cell.width() - Padding) / (DotSize + DotGap);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipRect(cell);
    QRect dot(cell.right() - Padding - DotSize + 1, cell.center().y() - DotSize / 2 + 1, DotSize, DotSize);
    for (int i = 0; i < std::min(places, static_cast<int>(dots.size())); ++i) {
        const bool stands = i + 1 < places || dots.size() <= places;
        painter->setPen(Look::Color(Look::TRole::SecondaryText));
        painter->setBrush(stands ? QBrush(dots[i].Color) : QBrush(Look::Color(Look::TRole::Base)));
        painter->drawRoundedRect(QRectF(dot).adjusted(0.5, 0.5, -0.5, -0.5), DotRounding, DotRounding);
        dot.translate(-DotSize - DotGap, 0);
    }
    painter->restore();
}

void OutlineRow(QPainter* painter, const QRect& cell, bool chosen)
{
    painter->setPen(Look::Color(chosen ? Look::TRole::SelectionText : Look::TRole::Accent));
    painter->drawLine(cell.topLeft(), cell.topRight());
    painter->drawLine(cell.bottomLeft(), cell.bottomRight());
}

} // namespace

TGridDelegate::TGridDelegate(const TGridColumnModel* model, const TGridMarks* marks, QObject* parent)
    : QStyledItemDelegate(parent), model_(model), marks_(marks)
{
}

void TGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const bool current = option.state.testFlag(QStyle::State_Selected);
    // Where rows are marked, they are what is chosen; the current one is then only outlined.
    const bool chosen = marks_->IsEmpty() ? current : marks_->IsMarked(index.row());
    painter->fillRect(option.rect, GroundOf(chosen, index.row()));
    const auto& dots = model_->ShownColumns()[index.column()].Dots;
    if (dots)
        PaintDots(painter, option.rect, dots(index.data(Qt::EditRole)));
    else
        PaintText(painter, option, index, chosen);
    if (current && !marks_->IsEmpty())
        OutlineRow(painter, option.rect, chosen);
}

void TGridDelegate::PaintText(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                              bool chosen) const
{
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
    painter->setPen(InkOf(chosen, amount && text.startsWith(u'-')));
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
    const bool hasDots = static_cast<bool>(model_->ShownColumns()[index.column()].Dots);
    const bool fits =
        !hasDots && view->fontMetrics().horizontalAdvance(text) <= option.rect.width() - 2 * Padding;
    QToolTip::showText(event->globalPos(), fits ? QString() : text, view);
    return true;
}
