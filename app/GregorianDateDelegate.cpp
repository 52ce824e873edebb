#include "GregorianDateDelegate.h"

#include "Look.h"
#include "ReportText.h"

#include <QPainter>

namespace {

constexpr int padding = 6; // as the grid's own cells have it

Look::TRole GroundOf(bool selected, int row)
{
    if (selected)
        return Look::TRole::Selection;
    return row % 2 == 0 ? Look::TRole::Base : Look::TRole::AlternateBase;
}

} // namespace

TGregorianDateDelegate::~TGregorianDateDelegate() = default;

void TGregorianDateDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->fillRect(option.rect, Look::Color(GroundOf(selected, index.row())));
    painter->setFont(option.font);
    painter->setPen(Look::Color(selected ? Look::TRole::SelectionText : Look::TRole::Text));
    const QString text = ReportText::Date(index.data().toString(), true);
    const QRect area = option.rect.adjusted(padding, 0, -padding, 0);
    const auto place = static_cast<int>(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    painter->drawText(area, place | Qt::TextForceLeftToRight | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
}
