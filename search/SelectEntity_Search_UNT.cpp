#include "SelectEntity_Search_UNT.h"

#include "EntityItems.h"
#include "Look.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_SelectEntity_Search_UNT.h"

#include <QPainter>

TSelectEntity_Search_Frame::TSelectEntity_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_SelectEntityCMB(new TTarvaSearch(this)),
      TarvaSearch_SelectEntityEDT(new TTarvaSearch(this))
{
    Ui::TSelectEntity_Search_Frame form;
    form.setupUi(this);
    SelectEntity_Cap_LBL = form.SelectEntity_Cap_LBL;
    SelectEntity_CHK = form.SelectEntity_CHK;
    SelectEntity_CMB = form.SelectEntity_CMB;
    TSelect_Entity_Frame1 = form.TSelect_Entity_Frame1;
    SelectEntity_Reverst_CHK = form.SelectEntity_Reverst_CHK;
    SelectEntity_Reverst_LBL = form.SelectEntity_Reverst_LBL;
    line_ = {SelectEntity_CHK, SelectEntity_Cap_LBL, SelectEntity_CMB, SelectEntity_Reverst_CHK,
             SelectEntity_Reverst_LBL};

    TarvaSearch_SelectEntityCMB->setObjectName(QStringLiteral("TarvaSearch_SelectEntityCMB"));
    TarvaSearch_SelectEntityEDT->setObjectName(QStringLiteral("TarvaSearch_SelectEntityEDT"));
    TarvaSearch_SelectEntityCMB->SetItemIndex(0);
    TarvaSearch_SelectEntityEDT->SetItemIndex(0);
    BindHandlers();
    FormReady();
}

TSelectEntity_Search_Frame::~TSelectEntity_Search_Frame() = default;

void TSelectEntity_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    SelectEntity_CHK->OnClick = [this](QObject*) { SelectEntity_CHKClick(); };
    SelectEntity_CMB->OnChange = [this](QObject*) { SelectEntity_CMBPropertiesChange(); };
    SelectEntity_Reverst_CHK->OnClick = [this](QObject*) { SelectEntity_Reverst_CHKClick(); };
    TSmartButtonEdit_TRV& box = *TSelect_Entity_Frame1->Code_EDT;
    box.OnExit = [this](QObject* sender) { TSelect_Entity_Frame1Code_EDTExit(sender); };
    box.OnButtonClick = [this](QObject* sender) {
        TSelect_Entity_Frame1Code_EDTPropertiesButtonClick(sender);
    };
}

void TSelectEntity_Search_Frame::init()
{
    if (TarvaSearch_SelectEntityCMB->SearchItems.Count() == 0)
        return;
    SelectEntity_CHK->SetChecked(false);
    line_.FillFields(TarvaSearch_SelectEntityCMB->SearchItems);
    TarvaSearch_SelectEntityCMB->SetActive(false);
    SelectEntity_CMBPropertiesChange();
    Enable(false);
    TarvaSearch_SelectEntityEDT->SetValue1(QString());
}

void TSelectEntity_Search_Frame::Enable(bool enabled) const
{
    line_.Enable(enabled);
    TSelect_Entity_Frame1->Enabled(enabled);
    TSelect_Entity_Frame1->Name_LBL->setEnabled(enabled);
}

void TSelectEntity_Search_Frame::SelectEntity_CMBPropertiesChange() const
{
    TarvaSearch_SelectEntityCMB->SetItemIndex(SelectEntity_CMB->ItemIndex());
    TarvaSearch_SelectEntityEDT->SetItemIndex(SelectEntity_CMB->ItemIndex());
    EntityItems::SwitchTo(*TSelect_Entity_Frame1, TarvaSearch_SelectEntityCMB->CurrentItem());
}

void TSelectEntity_Search_Frame::SelectEntity_CHKClick()
{
    const bool checked = SelectEntity_CHK->Checked();
    Enable(checked);
    if (checked)
        line_.FocusFields();
    TarvaSearch_SelectEntityCMB->SetActive(checked);
    TarvaSearch_SelectEntityEDT->SetActive(checked);
}

void TSelectEntity_Search_Frame::SelectEntity_Reverst_CHKClick() const
{
    TarvaSearch_SelectEntityEDT->SetReverst(SelectEntity_Reverst_CHK->Checked());
}

void TSelectEntity_Search_Frame::TSelect_Entity_Frame1Code_EDTExit(QObject* sender)
{
    const QPointer<TSelectEntity_Search_Frame> guard(this);
    TSelect_Entity_Frame1->Code_EDTExit(sender);
    if (guard)
        TakeCode();
}

void TSelectEntity_Search_Frame::TSelect_Entity_Frame1Code_EDTPropertiesButtonClick(QObject* sender)
{
    const QPointer<TSelectEntity_Search_Frame> guard(this);
    TSelect_Entity_Frame1->Code_EDTPropertiesButtonClick(sender);
    if (guard)
        TakeCode();
}

void TSelectEntity_Search_Frame::TakeCode() const
{
    TarvaSearch_SelectEntityEDT->SetValue1(TSelect_Entity_Frame1->Code_EDT->Text());
}

void TSelectEntity_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
