#include "ReportTotals.h"

#include "Look.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"
#include "TotalsText.h"

#include <QEvent>
#include <QHBoxLayout>

TReportTotals::TReportTotals(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, 0, Look::Margin, Look::Unit);
    row->setSpacing(Look::GroupGap);
    const auto add = [this, row](const QString& name) {
        auto* label = new TSmartLabel_TRV(this);
        label->setObjectName(name);
        label->setFont(RelativeFonts::Bold());
        row->addWidget(label);
        return label;
    };
    debit_ = add(QStringLiteral("DebitTotal_LBL"));
    credit_ = add(QStringLiteral("CreditTotal_LBL"));
    balance_ = add(QStringLiteral("Balance_LBL"));
    row->addStretch(1);
}

TReportTotals::~TReportTotals() = default;

void TReportTotals::Show(const TReportSum& sum)
{
    sum_ = sum;
    known_ = true;
    const TDecimal debit(sum.Debit);
    const TDecimal credit(sum.Credit);
    ShowTexts(TotalsText::Amount(debit), TotalsText::Amount(credit),
              sum.Count == 0 ? QString() : TotalsText::Balance(debit - credit));
}

void TReportTotals::ShowPending()
{
    known_ = false;
    const QString dots = QStringLiteral("…");
    ShowTexts(dots, dots, {});
}

void TReportTotals::ShowFailure()
{
    known_ = false;
    const QString dash = QStringLiteral("—");
    ShowTexts(
        dash, dash,
        QStringLiteral("جمع‌ها خوانده نشد؛ کلید F5 دوباره می‌خواند."));
}

void TReportTotals::ShowTexts(const QString& debit, const QString& credit, const QString& balance)
{
    debit_->SetCaption(QStringLiteral("جمع بدهکار: ") + debit);
    credit_->SetCaption(QStringLiteral("جمع بستانکار: ") + credit);
    balance_->SetCaption(balance);
}

void TReportTotals::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The grouping sign goes with the digits.
    if (event->type() == QEvent::FontChange && known_)
        Show(sum_);
}

QString TReportTotals::DebitText() const
{
    return debit_->Caption();
}

QString TReportTotals::CreditText() const
{
    return credit_->Caption();
}

QString TReportTotals::BalanceText() const
{
    return balance_->Caption();
}
