#include "VoucherTotals.h"

#include "Look.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"
#include "TotalsText.h"
#include "VoucherDraft.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {

TSmartLabel_TRV* AddLabel(QHBoxLayout* row, const QString& name, QWidget* parent, int stretch = 0)
{
    auto* label = new TSmartLabel_TRV(parent);
    label->setObjectName(name);
    row->addWidget(label, stretch);
    return label;
}

} // namespace

TVoucherTotals::TVoucherTotals(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, Look::LineGap, Look::Margin, Look::LineGap);
    row->setSpacing(Look::GroupGap);
    state_ = AddLabel(row, QStringLiteral("State_LBL"), this, 1);
    debit_ = AddLabel(row, QStringLiteral("DebitTotal_LBL"), this);
    credit_ = AddLabel(row, QStringLiteral("CreditTotal_LBL"), this);
    balance_ = AddLabel(row, QStringLiteral("Balance_LBL"), this);
    for (TSmartLabel_TRV* label : {debit_, credit_, balance_})
        label->setFont(RelativeFonts::Bold());
}

TVoucherTotals::~TVoucherTotals() = default;

void TVoucherTotals::Show(const TVoucherDraft& draft)
{
    const TDecimal balance = draft.Balance();
    balanced_ = balance.IsZero();
    debit_->SetCaption(QStringLiteral("جمع بدهکار: ") + TotalsText::Amount(draft.DebitTotal()));
    credit_->SetCaption(QStringLiteral("جمع بستانکار: ") + TotalsText::Amount(draft.CreditTotal()));
    balance_->SetCaption(draft.Count() == 0 ? QString() : TotalsText::Balance(balance));
    Repaint();
}

void TVoucherTotals::Repaint()
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, Look::Color(balanced_ ? Look::TRole::Good : Look::TRole::Wrong));
    balance_->setPalette(palette);
}

void TVoucherTotals::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && balance_ != nullptr)
        Repaint();
}

void TVoucherTotals::Tell(const QString& sentence)
{
    state_->SetCaption(sentence);
}

QString TVoucherTotals::Told() const
{
    return state_->Caption();
}

QString TVoucherTotals::DebitText() const
{
    return debit_->Caption();
}

QString TVoucherTotals::CreditText() const
{
    return credit_->Caption();
}

QString TVoucherTotals::BalanceText() const
{
    return balance_->Caption();
}
