#include "Range_Date_Search.h"

#include "HostServices.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartFlowPanel_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartTime_TRV.h"
#include "ui_Range_Date_Search.h"

#include <QPointer>

TRange_Date_Search_Frame::TRange_Date_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_Range_Date(new TTarvaSearch(this))
{
    Ui::TRange_Date_Search_Frame form;
    form.setupUi(this);
    Range_Date_Search_FPNL = form.Range_Date_Search_FPNL;
    RangeDate_CHK = form.RangeDate_CHK;
    RangeDate_Cap_LBL = form.RangeDate_Cap_LBL;
    RangeDate_CMB = form.RangeDate_CMB;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    RangeDate_From_EDT = form.RangeDate_From_EDT;
    RangeTime_From_EDT = form.RangeTime_From_EDT;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    RangeDate_To_EDT = form.RangeDate_To_EDT;
    RangeTime_To_EDT = form.RangeTime_To_EDT;
    RangeDate_Reverst_CHK = form.RangeDate_Reverst_CHK;
    RangeDate_Reverst_LBL = form.RangeDate_Reverst_LBL;
    line_ = {RangeDate_CHK, RangeDate_Cap_LBL, RangeDate_CMB, RangeDate_Reverst_CHK, RangeDate_Reverst_LBL};

    TarvaSearch_Range_Date->setObjectName(QStringLiteral("TarvaSearch_Range_Date"));
    TarvaSearch_Range_Date->SetSearchTypes(TSearchType::stRangeDate);
    TarvaSearch_Range_Date->SetItemIndex(0);
    for (TSmartDateEdit_TRV* edit : {RangeDate_From_EDT, RangeDate_To_EDT})
        edit->SetToday([] { return Host().Clock.Today(); });
    BindHandlers();
    FormReady();
}

TRange_Date_Search_Frame::~TRange_Date_Search_Frame() = default;

void TRange_Date_Search_Frame::BindHandlers()
{
    const auto fromChanged = [this](QObject*) { RangeDate_From_EDTEditValueChange(); };
    line_.BindLabels();
    RangeDate_CHK->OnClick = [this](QObject*) { RangeDate_CHKClick(); };
    RangeDate_CMB->OnChange = [this](QObject*) { RangeDate_CMBPropertiesChange(); };
    RangeDate_From_EDT->OnEditValueChange = fromChanged;
    RangeTime_From_EDT->OnEditValueChange = fromChanged;
    RangeDate_To_EDT->OnEditValueChange = fromChanged;
    RangeTime_To_EDT->OnEditValueChange = [this](QObject*) { RangeDate_To_EDTEditValueChange(); };
    RangeDate_Reverst_CHK->OnClick = [this](QObject*) { RangeDate_Reverst_CHKClick(); };
    TarvaSearch_Range_Date->OnChange = fromChanged;
}

void TRange_Date_Search_Frame::init()
{
    if (TarvaSearch_Range_Date->SearchItems.Count() == 0)
        return;
    line_.FillFields(TarvaSearch_Range_Date->SearchItems);
    TarvaSearch_Range_Date->SetActive(false);
    Enable(false);
    ShowTimes(false);
    RangeDate_From_EDT->Init();
    RangeDate_To_EDT->Init();
    RangeTime_From_EDT->Init();
    RangeTime_To_EDT->Init();
    RangeTime_From_EDT->SetText(QStringLiteral("00:00"));
    RangeTime_To_EDT->SetText(QStringLiteral("23:59"));
    TarvaSearch_Range_DateChangeItemIndex();
}

bool TRange_Date_Search_Frame::HasTime() const
{
    const TSearchItem* item = TarvaSearch_Range_Date->CurrentItem();
    return item && item->DataType == TSearchDataType::idtDateTime;
}

QString TRange_Date_Search_Frame::GetFromDate() const
{
    const QString date = RangeDate_From_EDT->GetValue();
    return HasTime() && RangeDate_CMB->ItemIndex() >= 0 ? date + u'-' + RangeTime_From_EDT->GetText() : date;
}

QString TRange_Date_Search_Frame::GetToDate() const
{
    // The time stands first here; owners take the text apart that way.
    const QString date = RangeDate_To_EDT->GetValue();
    return HasTime() ? RangeTime_To_EDT->GetText() + QStringLiteral(" - ") + date : date;
}

void TRange_Date_Search_Frame::SetFromDate(const QString& date) const
{
    SetDate(*RangeDate_From_EDT, date);
}

void TRange_Date_Search_Frame::SetToDate(const QString& date) const
{
    SetDate(*RangeDate_To_EDT, date);
}

void TRange_Date_Search_Frame::SetDate(TSmartDateEdit_TRV& edit, const QString& date)
{
    if (date.isEmpty())
        edit.Init();
    else
        edit.SetText(date);
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent handler = edit.OnEditValueChange)
        handler(&edit);
}

QString TRange_Date_Search_Frame::Bound(const TSmartDateEdit_TRV& date, const TSmartTime_TRV& time) const
{
    const QString day = date.GetValue();
    return (HasTime() ? day + u'-' + time.GetText() : day).trimmed();
}

void TRange_Date_Search_Frame::WriteValues()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Date);
    const QString from = Bound(*RangeDate_From_EDT, *RangeTime_From_EDT);
    const QString to = Bound(*RangeDate_To_EDT, *RangeTime_To_EDT);
    criterion->SetValue1(from);
    if (criterion)
        criterion->SetValue2(to);
}

void TRange_Date_Search_Frame::Enable(bool enabled)
{
    line_.Enable(enabled);
    for (TSectionEdit* edit : std::initializer_list<TSectionEdit*>{RangeDate_From_EDT, RangeDate_To_EDT,
                                                                   RangeTime_From_EDT, RangeTime_To_EDT})
        edit->SetEnabled(enabled);
}

void TRange_Date_Search_Frame::ShowTimes(bool shown) const
{
    RangeTime_From_EDT->setVisible(shown);
    RangeTime_To_EDT->setVisible(shown);
}

void TRange_Date_Search_Frame::FocusFirst()
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{RangeDate_CMB, RangeDate_From_EDT, RangeDate_To_EDT}) {
        if (CanFocus(control)) {
            control->setFocus();
            return;
        }
    }
}

void TRange_Date_Search_Frame::RangeDate_CHKClick()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Date);
    const bool checked = RangeDate_CHK->Checked();
    Enable(checked);
    ShowTimes(HasTime());
    if (Showing())
        FocusFirst();
    if (criterion && checked) {
        criterion->SetItemIndex(RangeDate_CMB->ItemIndex());
        if (criterion)
            WriteValues();
    }
    if (criterion)
        criterion->SetActive(checked);
}

void TRange_Date_Search_Frame::RangeDate_CMBPropertiesChange()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Date);
    criterion->SetItemIndex(RangeDate_CMB->ItemIndex());
    if (!criterion)
        return;
    ShowTimes(HasTime());
    WriteValues();
}

void TRange_Date_Search_Frame::RangeDate_From_EDTEditValueChange()
{
    WriteValues();
}

void TRange_Date_Search_Frame::RangeDate_To_EDTEditValueChange()
{
    WriteValues();
}

void TRange_Date_Search_Frame::RangeDate_Reverst_CHKClick() const
{
    TarvaSearch_Range_Date->SetReverst(RangeDate_Reverst_CHK->Checked());
}

void TRange_Date_Search_Frame::TarvaSearch_Range_DateChangeItemIndex()
{
    line_.ShowReverse(TarvaSearch_Range_Date->CurrentItem());
}
