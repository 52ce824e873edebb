#include "VoucherBand.h"

#include "CurrencyConversion.h"
#include "CurrencyFrame_UNT.h"
#include "EnterChain.h"
#include "KeyTip.h"
#include "Look.h"
#include "Select_AccountCode_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "VoucherCurrency.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int amountWidth = 190;
constexpr int amountDigits = 19;     // those of the money columns, decimals included
constexpr double amountBound = 1e15; // keeps the sign away; the exact bound is that of the draft

TSmartLabel_TRV* NewLabel(const QString& caption, QWidget* control, QWidget* parent)
{
    auto* label = new TSmartLabel_TRV(parent);
    label->SetOnBand(true);
    label->SetCaption(caption);
    label->SetFocusControl(control);
    return label;
}

bool IsZero(const TSmartEdit_TRV& amount)
{
    return TDecimal(amount.Text()).IsZero();
}

} // namespace

TVoucherBand::TVoucherBand(QWidget* parent)
    : TSmartPanel_TRV(parent), selector_(new TSelect_AccountCode(this)),
      debit_(NewAmount(QStringLiteral("Debit_EDT"), QStringLiteral("بدهکار"))),
      credit_(NewAmount(QStringLiteral("Credit_EDT"), QStringLiteral("بستانکار"))),
      description_(new TSmartEdit_TRV(this)), put_(new TSmartButton_TRV(this)),
      currency_(new TVoucherCurrency(this))
{
    SetGround(gBand);
    selector_->SetCodeItem(
        {TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail, TCodeItem::ctExpenseCenter});
    selector_->init();
    selector_->Name_LBL->SetOnBand(true);
    selector_->Separator_LBL->SetOnBand(true);
    description_->setObjectName(QStringLiteral("Description_EDT"));
    description_->setAccessibleName(QStringLiteral("شرح ردیف"));
    description_->SetMaxLength(TVoucherDraft::LongestDescription);
    description_->setFixedHeight(Look::ControlHeight);
    put_->SetAutoWidth(true);
    put_->setFocusPolicy(Qt::NoFocus);
    put_->setFixedHeight(Look::ControlHeight);
    put_->setToolTip(KeyTip::Of(QStringLiteral("بردن ردیف به سند"), QStringLiteral("Enter")));
    SetCorrecting(false);
    put_->OnClick = [this](QObject*) { Q_EMIT lineEntered(); };
    Lay();
    chain_ =
        new TEnterChain({selector_->TotalCode_EDT, selector_->AssistantCode_EDT, selector_->DetailCode_EDT,
                         selector_->ExpenseCenterCode_EDT, currency_->Frame().CurrencyType_CMB,
                         currency_->Frame().CurrencyRate_EDT, debit_, credit_, description_},
                        this);
    // A line that debits has no credit, and most lines are of the currency of the one before.
    chain_->Skips = [this](const QWidget* control) {
        return (control == credit_ && !IsZero(*debit_)) || control == currency_->Frame().CurrencyType_CMB;
    };
    for (TSmartEdit_TRV* amount : {debit_, credit_})
        amount->OnChange = [this](QObject*) { ShowAmount(); };
    connect(chain_, &TEnterChain::finished, this, &TVoucherBand::lineEntered);
}

TVoucherBand::~TVoucherBand() = default;

TSmartEdit_TRV* TVoucherBand::NewAmount(const QString& name, const QString& caption)
{
    auto* amount = new TSmartEdit_TRV(this);
    amount->setObjectName(name);
    amount->setAccessibleName(caption);
    amount->SetEditType(TSmartEdit_TRV::etCurrency);
    amount->SetPrecision(CurrencyConversion::MoneyDecimals);
    amount->SetMaxLength(amountDigits);
    amount->SetMaxValue(amountBound);
    amount->SetCalculator(true);
    amount->setFixedSize(amountWidth, Look::ControlHeight);
    return amount;
}

void TVoucherBand::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::Margin, Look::Unit, Look::Margin, Look::Margin);
    column->setSpacing(Look::Unit);
    auto* accountRow = new QHBoxLayout;
    accountRow->setSpacing(Look::Margin);
    auto* account = NewLabel(QStringLiteral("&حساب:"), selector_->TotalCode_EDT, this);
    accountRow->addWidget(account);
    accountRow->addWidget(selector_, 1);
    column->addLayout(accountRow);
    column->addWidget(currency_);
    auto* amountRow = new QHBoxLayout;
    amountRow->setSpacing(Look::Margin);
    auto* debit = NewLabel(QStringLiteral("&بدهکار:"), debit_, this);
    amountRow->addWidget(debit);
    amountRow->addWidget(debit_);
    amountRow->addWidget(NewLabel(QStringLiteral("ب&ستانکار:"), credit_, this));
    amountRow->addWidget(credit_);
    amountRow->addWidget(NewLabel(QStringLiteral("شر&ح ردیف:"), description_, this));
    amountRow->addWidget(description_, 1);
    amountRow->addWidget(put_);
    column->addLayout(amountRow);
    // The first controls of the lines stand under each other.
    for (TSmartLabel_TRV* label : {account, debit})
        label->setMinimumWidth(currency_->Frame().SmartLabel_TRV3->sizeHint().width());
    QWidget* before = selector_->ExpenseCenterCode_EDT;
    const TCurrency_FRAME& currency = currency_->Frame();
    for (QWidget* control : std::initializer_list<QWidget*>{
             currency.CurrencyType_CMB, currency.CurrencyRate_EDT, debit_, credit_, description_}) {
        setTabOrder(before, control);
        before = control;
    }
}

TVoucherLine TVoucherBand::Typed() const
{
    TVoucherLine line;
    line.Account = {selector_->GetTotalCode(), selector_->GetAssistantCode(), selector_->GetDetailCode(),
                    selector_->GetExpCenterCode()};
    line.Description = description_->Text().trimmed();
    line.Debit = debit_->Text();
    line.Credit = credit_->Text();
    line.Currency = currency_->Chosen();
    return line;
}

TVoucherLine TVoucherBand::Line() const
{
    const TVoucherLine typed = Typed();
    const bool amountsStay = shown_ && typed.Debit == typedOfShown_.Debit &&
                             typed.Credit == typedOfShown_.Credit && typed.Currency == typedOfShown_.Currency;
    if (!amountsStay)
        return CurrencyConversion::InBase(typed);
    // Converted anew, amounts that were rounded otherwise would move.
    TVoucherLine line = typed;
    line.Debit = shown_->Debit;
    line.Credit = shown_->Credit;
    line.Currency = shown_->Currency;
    return line;
}

void TVoucherBand::Show(const TVoucherLine& line)
{
    Clear();
    const TVoucherLine typed = CurrencyConversion::AsTyped(line);
    selector_->SetTotalCode(line.Account.Total);
    selector_->SetAssistantCode(line.Account.Assistant);
    selector_->SetDetailCode(line.Account.Detail);
    selector_->SetExpCenterCode(line.Account.ExpenseCenter);
    currency_->Show(line.Currency);
    debit_->SetText(typed.Debit);
    credit_->SetText(typed.Credit);
    description_->SetText(line.Description);
    shown_ = line;
    typedOfShown_ = Typed();
}

void TVoucherBand::ShowAmount()
{
    currency_->ShowAmount(IsZero(*debit_) ? credit_->Text() : debit_->Text());
}

void TVoucherBand::Clear()
{
    shown_.reset();
    selector_->SetAllowClear(false);
    selector_->Clear();
    debit_->Clear();
    credit_->Clear();
    description_->Clear();
    // Entered anew, a box takes the name of its level out of the way of the caret.
    QWidget* focus = focusWidget();
    if (focus != nullptr && focus->hasFocus() && selector_->isAncestorOf(focus)) {
        description_->setFocus();
        focus->setFocus();
    }
}

bool TVoucherBand::IsEmpty() const
{
    TVoucherLine line = Typed();
    line.Currency = {};
    return line == TVoucherLine();
}

void TVoucherBand::SetCorrecting(bool correcting)
{
    put_->setText(correcting ? QStringLiteral("اصلاح ردیف") : QStringLiteral("افزودن ردیف"));
}

void TVoucherBand::SetEnabled(bool enabled)
{
    selector_->Enabled(enabled, false);
    for (QWidget* control : std::initializer_list<QWidget*>{currency_, debit_, credit_, description_, put_})
        control->setEnabled(enabled);
}

void TVoucherBand::FocusTotal()
{
    selector_->TotalCode_EDT->setFocus(Qt::ShortcutFocusReason);
}

void TVoucherBand::FocusCurrency()
{
    currency_->Frame().CurrencyType_CMB->setFocus(Qt::ShortcutFocusReason);
}

TSmartEdit_TRV* TVoucherBand::ControlOf(TVoucherField field) const
{
    switch (field) {
    case TVoucherField::Assistant:
        return selector_->AssistantCode_EDT;
    case TVoucherField::Detail:
        return selector_->DetailCode_EDT;
    case TVoucherField::ExpenseCenter:
        return selector_->ExpenseCenterCode_EDT;
    case TVoucherField::Rate:
        return currency_->Frame().CurrencyRate_EDT;
    case TVoucherField::Debit:
        return debit_;
    case TVoucherField::Credit:
        return credit_;
    case TVoucherField::Description:
        return description_;
    default:
        return selector_->TotalCode_EDT;
    }
}

void TVoucherBand::ShowFault(const TVoucherFault& fault)
{
    TSmartEdit_TRV* control = ControlOf(fault.Field);
    control->setFocus(Qt::OtherFocusReason);
    control->ShowError(fault.Message);
}
