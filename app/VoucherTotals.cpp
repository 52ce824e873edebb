#include "VoucherTotals.h"

#include "DisplayText.h"
#include "Look.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"
#include "VoucherDraft.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {

TSmartLabel_TRV* AddLabel(QHBoxLayout* row, const QString& name, QWidget* parent, int stretch = 0)
{
    auto* label = new TSmartLabel_TRV(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    row->addWidget(label, stretch);
    return label;
}

QString Amount(const TDecimal& amount)
{
    return PersianText::Isolated(DisplayText::Grouped(amount.ToString().remove(u'-')));
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
    debit_->SetCaption(QStringLiteral("جمع بدهکار: ") + Amount(draft.DebitTotal()));
    credit_->SetCaption(QStringLiteral("جمع بستانکار: ") + Amount(draft.CreditTotal()));
    const QString side =
        balance.ToString().startsWith(u'-') ? QStringLiteral(" بستانکار") : QStringLiteral(" بدهکار");
    if (draft.Count() == 0)
        balance_->Clear();
    else
        balance_->SetCaption(balanced_ ? QStringLiteral("تراز است")
                                       : QStringLiteral("مانده: ") + Amount(balance) + side);
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
