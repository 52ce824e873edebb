#include "Range_Cost_Search.h"

#include "Look.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Range_Cost_Search.h"

#include <QPainter>
#include <QPointer>

TRange_Cost_Search_Frame::TRange_Cost_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_Range_Cost(new TTarvaSearch(this))
{
    Ui::TRange_Cost_Search_Frame form;
    form.setupUi(this);
    RangeCost_Cap_LBL = form.RangeCost_Cap_LBL;
    RangeCost_CHK = form.RangeCost_CHK;
    RangeCost_CMB = form.RangeCost_CMB;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    RangeCost_From_EDT = form.RangeCost_From_EDT;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    RangeCost_To_EDT = form.RangeCost_To_EDT;
    RangeCost_Reverst_CHK = form.RangeCost_Reverst_CHK;
    RangeCost_Reverst_LBL = form.RangeCost_Reverst_LBL;
    line_ = {RangeCost_CHK, RangeCost_Cap_LBL, RangeCost_CMB, RangeCost_Reverst_CHK, RangeCost_Reverst_LBL};

    TarvaSearch_Range_Cost->setObjectName(QStringLiteral("TarvaSearch_Range_Cost"));
    TarvaSearch_Range_Cost->SetSearchTypes(TSearchType::stRangeCost);
    TarvaSearch_Range_Cost->SetItemIndex(0);
    BindHandlers();
    FormReady();
}

TRange_Cost_Search_Frame::~TRange_Cost_Search_Frame() = default;

void TRange_Cost_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    RangeCost_CHK->OnClick = [this](QObject*) { RangeCost_CHKClick(); };
    RangeCost_CMB->OnChange = [this](QObject*) { RangeCost_CMBPropertiesChange(); };
    RangeCost_From_EDT->OnEditValueChange = [this](QObject*) { RangeCost_From_EDTEditValueChange(); };
    RangeCost_To_EDT->OnEditValueChange = [this](QObject*) { RangeCost_To_EDTEditValueChange(); };
    RangeCost_Reverst_CHK->OnClick = [this](QObject*) { RangeCost_Reverst_CHKClick(); };
    TarvaSearch_Range_Cost->OnChangeItemIndex = [this](QObject*) { TarvaSearch_Range_CostChangeItemIndex(); };
}

void TRange_Cost_Search_Frame::init()
{
    if (TarvaSearch_Range_Cost->SearchItems.Count() == 0)
        return;
    line_.FillFields(TarvaSearch_Range_Cost->SearchItems);
    TarvaSearch_Range_Cost->SetActive(false);
    Enable(false);
    SetBounds(0, 0);
    TarvaSearch_Range_CostChangeItemIndex();
}

void TRange_Cost_Search_Frame::Clear()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Cost);
    criterion->SetActive(false);
    if (criterion)
        SetBounds(QString(), QString());
    if (!criterion)
        return;
    RangeCost_From_EDT->Clear();
    RangeCost_To_EDT->Clear();
    RangeCost_Reverst_CHK->SetChecked(false);
    RangeCost_CMB->SetItemIndex(0);
    RangeCost_CHK->SetChecked(false);
    if (criterion)
        criterion->SetActive(true);
}

void TRange_Cost_Search_Frame::SetBounds(const QVariant& from, const QVariant& to) const
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Cost);
    criterion->SetValue1(from);
    if (criterion)
        criterion->SetValue2(to);
}

void TRange_Cost_Search_Frame::Enable(bool enabled)
{
    line_.Enable(enabled);
    RangeCost_From_EDT->SetEnabled(enabled);
    RangeCost_To_EDT->SetEnabled(enabled);
}

void TRange_Cost_Search_Frame::RangeCost_CHKClick()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Cost);
    const bool checked = RangeCost_CHK->Checked();
    Enable(checked);
    if (checked) {
        line_.FocusFields();
        if (criterion)
            criterion->SetItemIndex(RangeCost_CMB->ItemIndex());
        if (criterion)
            RangeCost_From_EDTEditValueChange();
        if (criterion)
            RangeCost_To_EDTEditValueChange();
    }
    if (criterion)
        criterion->SetActive(checked);
}

void TRange_Cost_Search_Frame::RangeCost_CMBPropertiesChange() const
{
    TarvaSearch_Range_Cost->SetItemIndex(RangeCost_CMB->ItemIndex());
}

void TRange_Cost_Search_Frame::RangeCost_From_EDTEditValueChange() const
{
    TarvaSearch_Range_Cost->SetValue1(static_cast<double>(RangeCost_From_EDT->GetValue()));
}

/// An upper bound of 0 stays 0, other than with whole numbers.
void TRange_Cost_Search_Frame::RangeCost_To_EDTEditValueChange() const
{
    TarvaSearch_Range_Cost->SetValue2(static_cast<double>(RangeCost_To_EDT->GetValue()));
}

void TRange_Cost_Search_Frame::RangeCost_Reverst_CHKClick() const
{
    TarvaSearch_Range_Cost->SetReverst(RangeCost_Reverst_CHK->Checked());
}

void TRange_Cost_Search_Frame::TarvaSearch_Range_CostChangeItemIndex()
{
    line_.ShowReverse(TarvaSearch_Range_Cost->CurrentItem());
}

void TRange_Cost_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
