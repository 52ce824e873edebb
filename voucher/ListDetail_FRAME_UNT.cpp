#include "ListDetail_FRAME_UNT.h"

#include "GridPanel.h"
#include "NxExpandPanel.h"
#include "SmartDetailView_TRV.h"
#include "ui_ListDetail_FRAME_UNT.h"

#include <QEvent>

TListDetail_FRAME::TListDetail_FRAME(QWidget* owner) : TFrame(owner)
{
    Ui::TListDetail_FRAME form;
    form.setupUi(this);
    MoreDetail_XPNL = form.MoreDetail_XPNL;
    DetailView_Fixed_SDV = form.DetailView_Fixed_SDV;
    MoreDetail_GPNL = form.MoreDetail_GPNL;
    DetailView_Large_Top_SDV = form.DetailView_Large_Top_SDV;
    DetailView_Small_Top_SDV = form.DetailView_Small_Top_SDV;
    DetailView_Large_Bottom_SDV = form.DetailView_Large_Bottom_SDV;
    DetailView_Small_Bottom_SDV = form.DetailView_Small_Bottom_SDV;
    MoreDetail_XPNL->SetBody(MoreDetail_GPNL);
    connect(MoreDetail_XPNL, &TNxExpandPanel::expandedChanged, this, &TListDetail_FRAME::TakeHeight);
    FormReady();
}

TListDetail_FRAME::~TListDetail_FRAME() = default;

void TListDetail_FRAME::CollapseOrExpand() const
{
    MoreDetail_XPNL->SetExpanded(!MoreDetail_XPNL->Expanded());
}

void TListDetail_FRAME::Reassgin() const
{
    for (TSmartDetailView_TRV* view :
         {DetailView_Fixed_SDV, DetailView_Large_Top_SDV, DetailView_Small_Top_SDV,
          DetailView_Large_Bottom_SDV, DetailView_Small_Bottom_SDV})
        view->Fill_PopMenu();
}

bool TListDetail_FRAME::event(QEvent* event)
{
    const bool handled = TFrame::event(event);
    if (event->type() == QEvent::LayoutRequest)
        TakeHeight();
    return handled;
}

void TListDetail_FRAME::TakeHeight()
{
    const bool isLaidOut = parentWidget() != nullptr && parentWidget()->layout() != nullptr;
    if (!isLaidOut)
        resize(width(), sizeHint().height());
}
