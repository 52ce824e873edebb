#include "VoucherNotices.h"

#include "ReferenceHost.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"

#include <QShowEvent>
#include <QVBoxLayout>

TVoucherNotices::TVoucherNotices(TReferenceHost& host, QWidget* page)
    : QWidget(page), host_(&host), save_(new TSaveAutoVouchers_FRME(this)),
      refresh_(new TRefreshAutoVouchers_FRME(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(save_);
    column->addWidget(refresh_);
    // The bars' own handlers have run by then.
    connect(save_->SaveVoucher_BTN, &QPushButton::clicked, this, &TVoucherNotices::generated);
    connect(refresh_->RefreshVoucher_BTN, &QPushButton::clicked, this, &TVoucherNotices::generated);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    static_cast<QBoxLayout*>(page->layout())->insertWidget(0, this);
}

TVoucherNotices::~TVoucherNotices() = default;

void TVoucherNotices::Check()
{
    refresh_->CheckRefresh();
    host_->VoucherConflictCheck().Start(save_);
}

void TVoucherNotices::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Errors of the database belong to the event loop, where they are shown, not into the middle of a
    // showing.
    if (!event->spontaneous())
        QMetaObject::invokeMethod(this, &TVoucherNotices::Check, Qt::QueuedConnection);
}
