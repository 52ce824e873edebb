#include "CurrencyFrame_UNT.h"

#include "CurrencyRates.h"
#include "HostServices.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_CurrencyFrame_UNT.h"

#include <QPointer>

bool blnFirst = false;

namespace {

constexpr int RateDecimals = 9;

TCurrencyRates HostRates()
{
    return TCurrencyRates(*Host().DM.SharedQuery());
}

} // namespace

TCurrency_FRAME::TCurrency_FRAME(QWidget* owner) : TFrame(owner)
{
    Ui::TCurrency_FRAME form;
    form.setupUi(this);
    SmartLabel_TRV2 = form.SmartLabel_TRV2;
    CurrencyType_CMB = form.CurrencyType_CMB;
    SmartLabel_TRV3 = form.SmartLabel_TRV3;
    CurBAse_Lbl = form.CurBAse_Lbl;
    CurrencyRate_EDT = form.CurrencyRate_EDT;
    SmartLabel_TRV2->SetFocusControl(CurrencyRate_EDT);
    SmartLabel_TRV3->SetFocusControl(CurrencyType_CMB);
    setFocusProxy(CurrencyType_CMB);
    BindHandlers();
    FormReady();
}

TCurrency_FRAME::~TCurrency_FRAME()
{
    // The controls outlive this class by a few steps of the destruction, and leaving them raises their
    // events.
    CurrencyType_CMB->OnSelect = nullptr;
    CurrencyRate_EDT->OnEditValueChange = nullptr;
}

void TCurrency_FRAME::BindHandlers()
{
    CurrencyType_CMB->OnSelect = [this](QObject*) { CurrencyType_CMBSelect(); };
    CurrencyRate_EDT->OnEditValueChange = [this](QObject*) { RateEditchange = true; };
}

void TCurrency_FRAME::Loaded()
{
    TFrame::Loaded();
    // Before the list, because the first currency's rate has its decimals as well.
    CurrencyRate_EDT->SetPrecision(RateDecimals);
    CurrencyTypes_Fill();
}

void TCurrency_FRAME::CurrencyTypes_Fill()
{
    GetBaseTitleCountry();
    CurBAse_Lbl->SetCaption(HostRates().BaseTitle());
    const QVector<TCurrencyRates::TCurrency> currencies = HostRates().Currencies();
    CurrencyType_CMB->Clear();
    for (const TCurrencyRates::TCurrency& currency : currencies)
        CurrencyType_CMB->AddItem(currency.TitleCountry, currency.Code);
    if (CurrencyType_CMB->Count() == 0)
        return;
    CurrencyType_CMB->SetItemIndex(0);
    CurrencyType_CMBSelect();
}

void TCurrency_FRAME::CurrencyType_CMBSelect()
{
    // A rate typed just before belongs to the currency before, and must not pass for one typed afterwards.
    CurrencyRate_EDT->AnnouncePendingValue();
    if (IsBaseSelected()) {
        CurrencyRate_EDT->SetValue(1);
        CurrencyRate_EDT->SetEnabled(false);
    } else {
        CurrencyRate_EDT->SetEnabled(true);
        CurrencyRate_EDT->SetText(GetCurrRate(FRateDate));
    }
    RateEditchange = false;
    CurrencyRate_EDT->SetCurrencyRate(GetPriceValue());
    CurrencyRate_EDT->SetCurrencyTypeTitle(TitleCountry());
}

bool TCurrency_FRAME::IsBaseSelected() const
{
    return CurrencyType_CMB->ItemIndex() >= 0 && GetCodeValue() == TCurrencyRates::BaseCode;
}

int TCurrency_FRAME::GetCodeValue() const
{
    ensurePolished();
    const int index = CurrencyType_CMB->ItemIndex();
    return index < 0 ? TCurrencyRates::BaseCode : static_cast<int>(CurrencyType_CMB->ItemObject(index));
}

void TCurrency_FRAME::SetCodeValue(int code)
{
    ensurePolished();
    CurrencyType_CMB->SetItemIndex(code > 0 ? CurrencyType_CMB->findData(qint64{code}) : 0);
    CurrencyType_CMBSelect();
}

long double TCurrency_FRAME::GetPriceValue() const
{
    ensurePolished();
    return CurrencyType_CMB->ItemIndex() < 0 ? 1 : CurrencyRate_EDT->GetValue();
}

void TCurrency_FRAME::SetPriceValue(long double rate)
{
    ensurePolished();
    // The edit's own state counts, not that of a form that is disabled for a while.
    if (rate == 0 && !CurrencyRate_EDT->isEnabledTo(this))
        CurrencyRate_EDT->SetValue(1);
    else
        CurrencyRate_EDT->SetText(Host().CommonLibrary.FloatToStr_TRV(rate));
}

void TCurrency_FRAME::SetBaseCurrSelected(bool selected)
{
    FBaseCurrSelected = selected;
    if (selected)
        SetCodeValue(TCurrencyRates::BaseCode);
}

QString TCurrency_FRAME::GetBaseTitleCountry()
{
    FBaseTitleCountry = HostRates().BaseCountry();
    return FBaseTitleCountry;
}

QString TCurrency_FRAME::TitleCountry() const
{
    ensurePolished();
    return CurrencyType_CMB->currentText();
}

void TCurrency_FRAME::SetRateDate(const QString& date)
{
    if (date == FRateDate)
        return;
    FRateDate = date;
    // What the user has just typed survives, too.
    CurrencyRate_EDT->AnnouncePendingValue();
    if (!RateEditchange && GetCodeValue() != TCurrencyRates::BaseCode)
        CurrencyRate_EDT->SetText(GetCurrRate(FRateDate));
}

int TCurrency_FRAME::GetBaseCurrCode() const
{
    return TCurrencyRates::BaseCode;
}

QString TCurrency_FRAME::GetCurrRate(const QString& date) const
{
    return HostRates()
        .RateOn(GetCodeValue(), date.isEmpty() ? Host().Clock.NowDate(QStringLiteral("/")) : date)
        .Text;
}

bool TCurrency_FRAME::InValid()
{
    if (isHidden())
        return false;
    if (GetCodeValue() < 1)
        return Refuse(QStringLiteral("توع ارز"), CurrencyType_CMB); // spelled so on purpose
    if (GetPriceValue() == 0)
        return Refuse(QStringLiteral("نرخ ارز"), CurrencyRate_EDT);
    return false;
}

bool TCurrency_FRAME::Refuse(const QString& subject, QWidget* control)
{
    const QPointer<QWidget> alive = control;
    Host().Messages.MsgNotSelected(subject, control, nullptr);
    if (alive)
        alive->setFocus();
    return true;
}

void TCurrency_FRAME::SmartComboBox_TRV1Change(QObject* /*Sender*/)
{
    Host().Messages.ShowMessage(QStringLiteral("TCurrency_FRAME.SmartComboBox_TRV1Change"));
}
