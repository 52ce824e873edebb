#include "VoucherCurrency.h"

#include "ADOQuery.h"
#include "CurrencyConversion.h"
#include "CurrencyFrame_UNT.h"
#include "CurrencyRates.h"
#include "DecimalText.h"
#include "DisplayText.h"
#include "HostServices.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"

#include <QHBoxLayout>

TVoucherCurrency::TVoucherCurrency(QWidget* parent)
    : QWidget(parent), frame_(new TCurrency_FRAME(this)), rateNote_(new TSmartLabel_TRV(this)),
      amountNote_(new TSmartLabel_TRV(this))
{
    Lay();
    connect(frame_->CurrencyType_CMB, &QComboBox::currentIndexChanged, this, &TVoucherCurrency::Refresh);
    connect(frame_->CurrencyRate_EDT, &QLineEdit::textChanged, this, &TVoucherCurrency::Refresh);
}

TVoucherCurrency::~TVoucherCurrency() = default;

void TVoucherCurrency::Lay()
{
    for (TSmartLabel_TRV* label : {frame_->SmartLabel_TRV2, frame_->SmartLabel_TRV3, rateNote_, amountNote_})
        label->SetOnBand(true);
    for (TSmartLabel_TRV* note : {rateNote_, amountNote_})
        note->SetShowAccelChar(false);
    // The band has margins of its own.
    const QMargins margins = frame_->layout()->contentsMargins();
    frame_->layout()->setContentsMargins(0, margins.top(), 0, margins.bottom());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::Margin);
    row->addWidget(frame_);
    row->addWidget(rateNote_);
    row->addStretch(1);
    row->addWidget(amountNote_);
}

void TVoucherCurrency::SetDate(const QString& date)
{
    date_ = date;
    frame_->SetRateDate(date);
    Refresh();
}

TLineCurrency TVoucherCurrency::Chosen() const
{
    const int code = frame_->GetCodeValue();
    if (code == TLineCurrency::BaseCode)
        return {};
    return {code, frame_->CurrencyRate_EDT->Text(), QStringLiteral("0")};
}

void TVoucherCurrency::Show(const TLineCurrency& currency)
{
    frame_->SetCodeValue(currency.Code);
    // As a text, so that every digit of it comes back.
    if (currency.IsForeign())
        frame_->CurrencyRate_EDT->SetText(DecimalText::WithoutTrailingZeros(currency.Rate));
}

void TVoucherCurrency::ChooseBase()
{
    frame_->SetBaseCurrSelected(true);
}

void TVoucherCurrency::ShowAmount(const QString& amount)
{
    amount_ = amount;
    Refresh();
}

bool TVoucherCurrency::IsRefused()
{
    return frame_->InValid();
}

QString TVoucherCurrency::RateSentence() const
{
    return rateNote_->Caption();
}

QString TVoucherCurrency::AmountSentence() const
{
    return amountNote_->Caption();
}

void TVoucherCurrency::ReadRate()
{
    const int code = frame_->GetCodeValue();
    const QString date = date_.isEmpty() ? Host().Clock.NowDate(QStringLiteral("/")) : date_;
    if (code == readCode_ && date == readDate_)
        return;
    readCode_ = code;
    readDate_ = date;
    TADOQuery query;
    query.SetConnection(Host().DM.ADOConnection1());
    const TCurrencyRates::TRate rate = TCurrencyRates(query).RateOn(code, date);
    rateInForce_ = rate.Text;
    rateDate_ = rate.Date;
}

void TVoucherCurrency::Refresh()
{
    const TLineCurrency chosen = Chosen();
    if (!chosen.IsForeign()) {
        rateNote_->Clear();
        amountNote_->Clear();
        return;
    }
    ReadRate();
    const QString day = PersianText::Isolated(rateDate_);
    if (rateDate_.isEmpty())
        rateNote_->SetCaption(QStringLiteral("تا این روز نرخی ثبت نشده است"));
    else if ((TDecimal(chosen.Rate) - TDecimal(rateInForce_)).IsZero())
        rateNote_->SetCaption(QStringLiteral("نرخ روز %1").arg(day));
    else
        rateNote_->SetCaption(QStringLiteral("نرخ دستی؛ نرخ روز %1: %2")
                                  .arg(day, PersianText::Isolated(DisplayText::Grouped(rateInForce_))));
    amountNote_->SetCaption(TDecimal(amount_).IsZero()
                                ? QString()
                                : QStringLiteral("برابر %1 %2")
                                      .arg(PersianText::Isolated(DisplayText::Grouped(
                                               CurrencyConversion::InBase(amount_, chosen.Rate))),
                                           frame_->CurBAse_Lbl->Caption()));
}
