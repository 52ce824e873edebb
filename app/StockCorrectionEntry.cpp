#include "StockCorrectionEntry.h"

#include "EnterChain.h"
#include "FormParts.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartButton_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

enum TDirection { Missing, LeftOver };

constexpr int correctionDateWidth = 120;
constexpr int directionWidth = 100;
constexpr int quantityWidth = 110;
constexpr int quantityDecimals = 3;
constexpr int quantityLength = 16;
constexpr double quantityBound = 999999999999.0;
constexpr int longestReason = 200;

} // namespace

TStockCorrectionEntry::TStockCorrectionEntry(bool gregorian, const QDate& today, QWidget* parent)
    : QWidget(parent), today_(today), date_(new TSmartDateEdit_TRV(this)),
      direction_(new TSmartComboBox_TRV(this)), quantity_(new TSmartEdit_TRV(this)),
      reason_(new TSmartEdit_TRV(this))
{
    const auto calendar = gregorian ? TSmartDateEdit_TRV::ctGregorian : TSmartDateEdit_TRV::ctSolar;
    date_->SetCalendarType(calendar);
    date_->SetCalendarResultType(calendar);
    date_->SetCalendarButton(true);
    date_->SetToday([today] { return today; });
    direction_->AddItem(QStringLiteral("کسری"));
    direction_->AddItem(QStringLiteral("اضافی"));
    quantity_->SetEditType(TSmartEdit_TRV::etCurrency);
    quantity_->SetPrecision(quantityDecimals);
    quantity_->SetMaxLength(quantityLength);
    quantity_->SetMinValue(0);
    quantity_->SetMaxValue(quantityBound);
    reason_->SetMaxLength(longestReason);
    Lay();
    Clear();
    auto* chain = new TEnterChain({date_, direction_, quantity_, reason_}, this);
    connect(chain, &TEnterChain::finished, this, &TStockCorrectionEntry::accepted);
}

TStockCorrectionEntry::~TStockCorrectionEntry() = default;

void TStockCorrectionEntry::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* first = new QHBoxLayout;
    FormParts::AddField(first, QStringLiteral("&تاریخ:"), date_, correctionDateWidth);
    FormParts::AddField(first, QStringLiteral("&نوع:"), direction_, directionWidth);
    FormParts::AddField(first, QStringLiteral("&مقدار:"), quantity_, quantityWidth);
    first->addStretch(1);
    auto* second = new QHBoxLayout;
    FormParts::AddField(second, QStringLiteral("&شرح:"), reason_, 0);
    const auto add = [this, second](const QString& name, const QString& caption, auto signal) {
        auto* button = new TSmartButton_TRV(this);
        button->setObjectName(name);
        button->setText(caption);
        button->setMinimumSize(80, Look::ControlHeight);
        button->OnClick = [this, signal](QObject*) { Q_EMIT(this->*signal)(); };
        second->addWidget(button);
    };
    add(QStringLiteral("Accept_BTN"), QStringLiteral("ث&بت"), &TStockCorrectionEntry::accepted);
    add(QStringLiteral("Reject_BTN"), QStringLiteral("ا&نصراف"), &TStockCorrectionEntry::rejected);
    column->addLayout(first);
    column->addLayout(second);
}

void TStockCorrectionEntry::Clear()
{
    date_->SetDate(today_);
    direction_->SetItemIndex(Missing);
    quantity_->SetText(QString());
    reason_->SetText(QString());
}

void TStockCorrectionEntry::Show(const TStockCorrection& correction)
{
    const bool isMissing = correction.Quantity.startsWith(u'-');
    date_->SetText(correction.Date);
    direction_->SetItemIndex(isMissing ? Missing : LeftOver);
    quantity_->SetText(isMissing ? correction.Quantity.mid(1) : correction.Quantity);
    reason_->SetText(correction.Text);
}

TStockCorrection TStockCorrectionEntry::Typed() const
{
    TStockCorrection correction;
    correction.Date = date_->GetValue();
    const QString amount = PersianText::NumberFromAnyScript(quantity_->Text());
    correction.Quantity = direction_->ItemIndex() == Missing && !amount.isEmpty() ? u'-' + amount : amount;
    correction.Text = reason_->Text();
    return correction;
}

void TStockCorrectionEntry::FocusFirst()
{
    date_->setFocus();
}
