#include "SmartFlowPanel_TRV.h"

#include "Look.h"

#include <QChildEvent>
#include <QCoreApplication>

TSmartFlowPanel_TRV::TSmartFlowPanel_TRV(QWidget* parent) : TSmartPanel_TRV(parent), spacing_(Look::Margin)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setContentsMargins(Look::Margin, Look::LineGap / 2, Look::Margin, Look::LineGap / 2);
}

TSmartFlowPanel_TRV::~TSmartFlowPanel_TRV() = default;

void TSmartFlowPanel_TRV::SetFlowStyle(TFlowStyle style)
{
    flowStyle_ = style;
    Arrange();
}

void TSmartFlowPanel_TRV::SetSpacing(int spacing)
{
    spacing_ = qMax(0, spacing);
    updateGeometry();
    Arrange();
}

QList<QWidget*> TSmartFlowPanel_TRV::ShownChildren() const
{
    QList<QWidget*> shown;
    for (QObject* child : children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && !widget->isWindow() && !widget->isHidden())
            shown.append(widget);
    }
    return shown;
}

QSize TSmartFlowPanel_TRV::SizeOf(const QWidget* child)
{
    return child->sizeHint()
        .expandedTo(child->minimumSizeHint())
        .boundedTo(child->maximumSize())
        .expandedTo(child->minimumSize());
}

QList<TFlowLines::TPiece> TSmartFlowPanel_TRV::Pieces() const
{
    QList<TFlowLines::TPiece> pieces;
    for (const QWidget* child : ShownChildren())
        pieces.append({SizeOf(child), child->property("KeepWithNext").toBool()});
    return pieces;
}

TFlowLines TSmartFlowPanel_TRV::Lines(int width) const
{
    const QMargins margins = contentsMargins();
    return {width - margins.left() - margins.right(), spacing_, Look::LineGap,
            flowStyle_ == fsRightLeftTopBottom};
}

int TSmartFlowPanel_TRV::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    return Lines(width).HeightFor(Pieces()) + margins.top() + margins.bottom();
}

/// All children in one line.
QSize TSmartFlowPanel_TRV::sizeHint() const
{
    const QMargins margins = contentsMargins();
    int width = margins.left() + margins.right();
    for (const TFlowLines::TPiece& piece : Pieces())
        width += piece.Size.width() + spacing_;
    return {width, heightForWidth(width)};
}

QSize TSmartFlowPanel_TRV::minimumSizeHint() const
{
    const QMargins margins = contentsMargins();
    QSize widest(0, 0);
    for (const TFlowLines::TPiece& piece : Pieces())
        widest = widest.expandedTo(piece.Size);
    return widest.grownBy(margins);
}

void TSmartFlowPanel_TRV::Arrange()
{
    const QList<QWidget*> shown = ShownChildren();
    const QList<QRect> places = Lines(width()).Place(Pieces());
    const QPoint corner(contentsMargins().left(), contentsMargins().top());
    for (qsizetype index = 0; index < shown.size(); ++index)
        shown.at(index)->setGeometry(places.at(index).translated(corner));
}

bool TSmartFlowPanel_TRV::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        Arrange();
    }
    if (event->type() == QEvent::Polish)
        Arrange();
    return TSmartPanel_TRV::event(event);
}

bool TSmartFlowPanel_TRV::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        updateGeometry();
        // While a form is being set up the children are measured in vain: more is to come.
        if (testAttribute(Qt::WA_WState_Polished))
            Arrange();
    }
    return TSmartPanel_TRV::eventFilter(watched, event);
}

void TSmartFlowPanel_TRV::childEvent(QChildEvent* event)
{
    TSmartPanel_TRV::childEvent(event);
    if (!event->child()->isWidgetType())
        return;
    if (event->added())
        event->child()->installEventFilter(this);
    // The child is not complete yet, or not quite gone.
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void TSmartFlowPanel_TRV::resizeEvent(QResizeEvent* event)
{
    TSmartPanel_TRV::resizeEvent(event);
    Arrange();
}
