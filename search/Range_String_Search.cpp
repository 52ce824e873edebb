#include "Range_String_Search.h"

#include "HostServices.h"
#include "Look.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartMaskEdit_TRV.h"
#include "ui_Range_String_Search.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

TRange_String_Search_Frame::TRange_String_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_Range_String(new TTarvaSearch(this))
{
    Ui::TRange_String_Search_Frame form;
    form.setupUi(this);
    RangeString_Cap_LBL = form.RangeString_Cap_LBL;
    RangeString_CHK = form.RangeString_CHK;
    RangeString_CMB = form.RangeString_CMB;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    RangeString_From_EDT = form.RangeString_From_EDT;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    RangeString_To_EDT = form.RangeString_To_EDT;
    RangeString_Reverst_CHK = form.RangeString_Reverst_CHK;
    RangeString_Reverst_LBL = form.RangeString_Reverst_LBL;
    line_ = {RangeString_CHK, RangeString_Cap_LBL, RangeString_CMB, RangeString_Reverst_CHK,
             RangeString_Reverst_LBL};
    for (TSmartMaskEdit_TRV* edit : {RangeString_From_EDT, RangeString_To_EDT})
        edit->RegExp().DisablePaste = true;

    TarvaSearch_Range_String->setObjectName(QStringLiteral("TarvaSearch_Range_String"));
    TarvaSearch_Range_String->SetSearchTypes(TSearchType::stRangeString);
    TarvaSearch_Range_String->SetItemIndex(0);
    BindHandlers();
    FormReady();
}

TRange_String_Search_Frame::~TRange_String_Search_Frame() = default;

void TRange_String_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    RangeString_CHK->OnClick = [this](QObject*) { RangeString_CHKClick(); };
    RangeString_CMB->OnChange = [this](QObject*) { RangeString_CMBPropertiesChange(); };
    RangeString_From_EDT->OnExit = [this](QObject*) { RangeString_From_EDTExit(); };
    RangeString_To_EDT->OnExit = [this](QObject*) { RangeString_To_EDTExit(); };
    RangeString_Reverst_CHK->OnClick = [this](QObject*) { RangeString_Reverst_CHKClick(); };
    TarvaSearch_Range_String->OnChangeItemIndex = [this](QObject*) {
        TarvaSearch_Range_StringChangeItemIndex();
    };
}

void TRange_String_Search_Frame::init()
{
    if (TarvaSearch_Range_String->SearchItems.Count() == 0)
        return;
    line_.FillFields(TarvaSearch_Range_String->SearchItems);
    TarvaSearch_Range_String->SetActive(false);
    Enable(false);
    TarvaSearch_Range_String->SetValue1(QString());
    TarvaSearch_Range_String->SetValue2(QString());
    RangeString_CMBPropertiesChange();
    TarvaSearch_Range_StringChangeItemIndex();
}

void TRange_String_Search_Frame::initControl(bool active, int itemIndex, const QString& fromCode,
                                             const QString& toCode)
{
    RangeString_CHK->SetChecked(active);
    RangeString_CMB->SetItemIndex(itemIndex);
    RangeString_From_EDT->SetText(fromCode);
    RangeString_To_EDT->SetText(toCode);
    TarvaSearch_Range_String->SetItemIndex(itemIndex);
    TarvaSearch_Range_String->SetValue1(fromCode);
    TarvaSearch_Range_String->SetValue2(toCode);
    RangeString_CHKClick();
}

int TRange_String_Search_Frame::CodeLength() const
{
    const TSearchItem* item = TarvaSearch_Range_String->CurrentItem();
    return item ? item->MaxLength : 0;
}

void TRange_String_Search_Frame::Enable(bool enabled)
{
    line_.Enable(enabled);
    RangeString_From_EDT->SetEnabled(enabled);
    RangeString_To_EDT->SetEnabled(enabled);
}

void TRange_String_Search_Frame::Complete(TSmartMaskEdit_TRV& edit, int length)
{
    edit.SetText(Host().CommonLibrary.CompleteCode(edit.Text(), length));
}

void TRange_String_Search_Frame::RangeString_CHKClick()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_String);
    const bool checked = RangeString_CHK->Checked();
    Enable(checked);
    if (checked)
        line_.FocusFields();
    if (criterion)
        criterion->SetActive(checked);
}

/// The criterion keeps its values until an edit is left.
void TRange_String_Search_Frame::RangeString_CMBPropertiesChange()
{
    const QPointer<TRange_String_Search_Frame> guard(this);
    TarvaSearch_Range_String->SetItemIndex(RangeString_CMB->ItemIndex());
    if (!guard)
        return;
    const int length = CodeLength();
    for (TSmartMaskEdit_TRV* edit : {RangeString_From_EDT, RangeString_To_EDT}) {
        edit->RegExp().SetRegExp(QStringLiteral("\\d").repeated(qMax(0, length)));
        if (length < 1)
            continue;
        edit->SetMaxLength(length);
        Complete(*edit, length);
    }
}

void TRange_String_Search_Frame::RangeString_From_EDTExit()
{
    if (CodeLength() > 0)
        Complete(*RangeString_From_EDT, CodeLength());
    TarvaSearch_Range_String->SetValue1(RangeString_From_EDT->Text());
}

void TRange_String_Search_Frame::RangeString_To_EDTExit()
{
    if (CodeLength() > 0)
        Complete(*RangeString_To_EDT, CodeLength());
    TarvaSearch_Range_String->SetValue2(RangeString_To_EDT->Text());
}

void TRange_String_Search_Frame::RangeString_Reverst_CHKClick() const
{
    TarvaSearch_Range_String->SetReverst(RangeString_Reverst_CHK->Checked());
}

void TRange_String_Search_Frame::TarvaSearch_Range_StringChangeItemIndex()
{
    line_.ShowReverse(TarvaSearch_Range_String->CurrentItem());
}

void TRange_String_Search_Frame::FrameClick() const
{
    TarvaSearch_Range_String->SetActive(RangeString_CHK->Checked());
}

void TRange_String_Search_Frame::Reverst_String_CHKClick()
{
}

void TRange_String_Search_Frame::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        FrameClick();
}

void TRange_String_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
