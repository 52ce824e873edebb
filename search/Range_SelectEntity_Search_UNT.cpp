#include "Range_SelectEntity_Search_UNT.h"

#include "EntityItems.h"
#include "Look.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Range_SelectEntity_Search_UNT.h"
#include "ValueText.h"

#include <QPainter>

TRange_SelectEntity_Search_Frame::TRange_SelectEntity_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_Range_SelectEntity(new TTarvaSearch(this))
{
    Ui::TRange_SelectEntity_Search_Frame form;
    form.setupUi(this);
    SelectEntity_Cap_LBL = form.SelectEntity_Cap_LBL;
    SelectEntity_CHK = form.SelectEntity_CHK;
    SelectEntity_CMB = form.SelectEntity_CMB;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    Select_Entity_Frame1 = form.Select_Entity_Frame1;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    Select_Entity_Frame2 = form.Select_Entity_Frame2;
    SelectEntity_Reverst_CHK = form.SelectEntity_Reverst_CHK;
    SelectEntity_Reverst_LBL = form.SelectEntity_Reverst_LBL;
    line_ = {SelectEntity_CHK, SelectEntity_Cap_LBL, SelectEntity_CMB, SelectEntity_Reverst_CHK,
             SelectEntity_Reverst_LBL};

    TarvaSearch_Range_SelectEntity->setObjectName(QStringLiteral("TarvaSearch_Range_SelectEntity"));
    TarvaSearch_Range_SelectEntity->SetSearchTypes(TSearchType::stRangeDigit);
    TarvaSearch_Range_SelectEntity->SetItemIndex(0);
    BindHandlers();
    FormReady();
}

TRange_SelectEntity_Search_Frame::~TRange_SelectEntity_Search_Frame() = default;

void TRange_SelectEntity_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    SelectEntity_CHK->OnClick = [this](QObject*) { SelectEntity_CHKClick(); };
    SelectEntity_CMB->OnChange = [this](QObject*) { SelectEntity_CMBChange(); };
    SelectEntity_Reverst_CHK->OnClick = [this](QObject*) { SelectEntity_Reverst_CHKClick(); };
    TarvaSearch_Range_SelectEntity->OnChangeItemIndex = [this](QObject*) {
        TarvaSearch_Range_SelectEntityChangeItemIndex();
    };
    BindBound(From());
    BindBound(To());
}

void TRange_SelectEntity_Search_Frame::BindBound(const TBound& bound)
{
    TSmartButtonEdit_TRV& box = *bound.Selector->Code_EDT;
    box.OnExit = [this, bound](QObject* sender) { Code_EDTExit(bound, sender); };
    box.OnButtonClick = [this, bound](QObject* sender) { Code_EDTPropertiesButtonClick(bound, sender); };
}

void TRange_SelectEntity_Search_Frame::init()
{
    if (TarvaSearch_Range_SelectEntity->SearchItems.Count() == 0)
        return;
    SelectEntity_CHK->SetChecked(false);
    line_.FillFields(TarvaSearch_Range_SelectEntity->SearchItems);
    SelectEntity_CMBChange();
    TarvaSearch_Range_SelectEntity->SetActive(false);
    Enable(false);
    TarvaSearch_Range_SelectEntityChangeItemIndex();
}

bool TRange_SelectEntity_Search_Frame::GetActive() const
{
    return SelectEntity_CHK->Checked();
}

void TRange_SelectEntity_Search_Frame::SetActive(bool active) const
{
    SelectEntity_CHK->SetChecked(active);
}

QVariant TRange_SelectEntity_Search_Frame::GetSearchCodeValue1() const
{
    return qint64(TarvaSearch_Range_SelectEntity->GetValue1AsInt());
}

QVariant TRange_SelectEntity_Search_Frame::GetSearchCodeValue2() const
{
    return qint64(TarvaSearch_Range_SelectEntity->GetValue2AsInt());
}

void TRange_SelectEntity_Search_Frame::SetSearchValue1(const QVariant& value)
{
    Select_Entity_Frame1->Code_EDT->SetText(ValueText(value));
    Code_EDTExit(From(), Select_Entity_Frame1->Code_EDT);
}

void TRange_SelectEntity_Search_Frame::SetSearchValue2(const QVariant& value)
{
    Select_Entity_Frame2->Code_EDT->SetText(ValueText(value));
    Code_EDTExit(To(), Select_Entity_Frame2->Code_EDT);
}

void TRange_SelectEntity_Search_Frame::Enable(bool enabled) const
{
    line_.Enable(enabled);
    Select_Entity_Frame1->Enabled(enabled);
    Select_Entity_Frame2->Enabled(enabled);
}

void TRange_SelectEntity_Search_Frame::SetBounds(const QVariant& from, const QVariant& to) const
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_SelectEntity);
    criterion->SetValue1(from);
    if (criterion)
        criterion->SetValue2(to);
}

void TRange_SelectEntity_Search_Frame::SelectEntity_CMBChange()
{
    TarvaSearch_Range_SelectEntity->SetItemIndex(SelectEntity_CMB->ItemIndex());
    for (TSelect_Entity_Frame* selector : {Select_Entity_Frame1, Select_Entity_Frame2})
        EntityItems::SwitchTo(*selector, TarvaSearch_Range_SelectEntity->CurrentItem());
    SetBounds(0, 0);
}

void TRange_SelectEntity_Search_Frame::SelectEntity_CHKClick()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_SelectEntity);
    const bool checked = SelectEntity_CHK->Checked();
    Enable(checked);
    if (checked) {
        line_.FocusFields();
        SetBounds(Select_Entity_Frame1->GetCodeValue(), Select_Entity_Frame2->GetCodeValue());
    } else {
        SetBounds(0, 0);
    }
    if (criterion)
        criterion->SetActive(checked);
}

void TRange_SelectEntity_Search_Frame::SelectEntity_Reverst_CHKClick() const
{
    TarvaSearch_Range_SelectEntity->SetReverst(SelectEntity_Reverst_CHK->Checked());
}

void TRange_SelectEntity_Search_Frame::TarvaSearch_Range_SelectEntityChangeItemIndex()
{
    line_.ShowReverse(TarvaSearch_Range_SelectEntity->CurrentItem());
}

void TRange_SelectEntity_Search_Frame::Code_EDTExit(const TBound& bound, QObject* sender)
{
    const QPointer<TRange_SelectEntity_Search_Frame> guard(this);
    bound.Selector->Code_EDTExit(sender);
    if (guard)
        (TarvaSearch_Range_SelectEntity->*bound.Set)(bound.Selector->CodeAsInt());
}

void TRange_SelectEntity_Search_Frame::Code_EDTPropertiesButtonClick(const TBound& bound, QObject* sender)
{
    const QPointer<TRange_SelectEntity_Search_Frame> guard(this);
    bound.Selector->Code_EDTPropertiesButtonClick(sender);
    if (guard)
        (TarvaSearch_Range_SelectEntity->*bound.Set)(bound.Selector->CodeAsInt());
}

void TRange_SelectEntity_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
