#include "Range_Digit_Search.h"

#include "Look.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Range_Digit_Search.h"
#include "ValueText.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace {

/// What the criterion gets for an upper bound that is not given.
constexpr int NoUpperBound = 2147483647;

} // namespace

TRange_Digit_Search_Frame::TRange_Digit_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_Range_Digit(new TTarvaSearch(this))
{
    Ui::TRange_Digit_Search_Frame form;
    form.setupUi(this);
    RangeDigit_Cap_LBL = form.RangeDigit_Cap_LBL;
    RangeDigit_CHK = form.RangeDigit_CHK;
    RangeDigit_CMB = form.RangeDigit_CMB;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    RangeDigit_From_EDT = form.RangeDigit_From_EDT;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    RangeDigit_To_EDT = form.RangeDigit_To_EDT;
    RangeDigit_Reverst_CHK = form.RangeDigit_Reverst_CHK;
    RangeDigit_Reverst_LBL = form.RangeDigit_Reverst_LBL;
    line_ = {RangeDigit_CHK, RangeDigit_Cap_LBL, RangeDigit_CMB, RangeDigit_Reverst_CHK,
             RangeDigit_Reverst_LBL};

    TarvaSearch_Range_Digit->setObjectName(QStringLiteral("TarvaSearch_Range_Digit"));
    TarvaSearch_Range_Digit->SetSearchTypes(TSearchType::stRangeDigit);
    TarvaSearch_Range_Digit->SetItemIndex(0);
    BindHandlers();
    FormReady();
}

TRange_Digit_Search_Frame::~TRange_Digit_Search_Frame() = default;

void TRange_Digit_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    RangeDigit_CHK->OnClick = [this](QObject*) { RangeDigit_CHKClick(); };
    RangeDigit_CMB->OnChange = [this](QObject*) { RangeDigit_CMBPropertiesChange(); };
    RangeDigit_From_EDT->OnEditValueChange = [this](QObject*) { RangeDigit_From_EDTEditValueChange(); };
    RangeDigit_To_EDT->OnEditValueChange = [this](QObject*) { RangeDigit_To_EDTEditValueChange(); };
    RangeDigit_Reverst_CHK->OnClick = [this](QObject*) { RangeDigit_Reverst_CHKClick(); };
    TarvaSearch_Range_Digit->OnChangeItemIndex = [this](QObject*) {
        TarvaSearch_Range_DigitChangeItemIndex();
    };
}

void TRange_Digit_Search_Frame::init()
{
    if (TarvaSearch_Range_Digit->SearchItems.Count() == 0)
        return;
    line_.FillFields(TarvaSearch_Range_Digit->SearchItems);
    TarvaSearch_Range_Digit->SetActive(false);
    Enable(false);
    TarvaSearch_Range_DigitChangeItemIndex();
}

bool TRange_Digit_Search_Frame::GetActive() const
{
    return RangeDigit_CHK->Checked();
}

void TRange_Digit_Search_Frame::SetActive(bool active) const
{
    RangeDigit_CHK->SetChecked(active);
}

QVariant TRange_Digit_Search_Frame::GetSearchValue1() const
{
    return qint64(TarvaSearch_Range_Digit->GetValue1AsInt());
}

QVariant TRange_Digit_Search_Frame::GetSearchValue2() const
{
    return qint64(TarvaSearch_Range_Digit->GetValue2AsInt());
}

void TRange_Digit_Search_Frame::SetSearchValue1(const QVariant& value) const
{
    RangeDigit_From_EDT->SetText(ValueText(value));
    TarvaSearch_Range_Digit->SetValue1(value);
}

void TRange_Digit_Search_Frame::SetSearchValue2(const QVariant& value) const
{
    RangeDigit_To_EDT->SetText(ValueText(value));
    TarvaSearch_Range_Digit->SetValue2(value);
}

void TRange_Digit_Search_Frame::Enable(bool enabled)
{
    line_.Enable(enabled);
    RangeDigit_From_EDT->SetEnabled(enabled);
    RangeDigit_To_EDT->SetEnabled(enabled);
}

void TRange_Digit_Search_Frame::RangeDigit_CHKClick()
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Range_Digit);
    const bool checked = RangeDigit_CHK->Checked();
    Enable(checked);
    if (checked) {
        line_.FocusFields();
        if (criterion)
            criterion->SetItemIndex(RangeDigit_CMB->ItemIndex());
        if (criterion)
            RangeDigit_From_EDTEditValueChange();
        if (criterion)
            RangeDigit_To_EDTEditValueChange();
    }
    if (criterion)
        criterion->SetActive(checked);
}

void TRange_Digit_Search_Frame::RangeDigit_CMBPropertiesChange() const
{
    TarvaSearch_Range_Digit->SetItemIndex(RangeDigit_CMB->ItemIndex());
}

void TRange_Digit_Search_Frame::RangeDigit_From_EDTEditValueChange() const
{
    TarvaSearch_Range_Digit->SetValue1(RangeDigit_From_EDT->Text());
}

void TRange_Digit_Search_Frame::RangeDigit_To_EDTEditValueChange() const
{
    const bool isGiven = RangeDigit_To_EDT->GetValue() != 0.0L;
    TarvaSearch_Range_Digit->SetValue2(isGiven ? QVariant(RangeDigit_To_EDT->Text())
                                               : QVariant(NoUpperBound));
}

void TRange_Digit_Search_Frame::RangeDigit_Reverst_CHKClick() const
{
    TarvaSearch_Range_Digit->SetReverst(RangeDigit_Reverst_CHK->Checked());
}

void TRange_Digit_Search_Frame::TarvaSearch_Range_DigitChangeItemIndex()
{
    line_.ShowReverse(TarvaSearch_Range_Digit->CurrentItem());
}

void TRange_Digit_Search_Frame::FrameClick() const
{
    TarvaSearch_Range_Digit->SetActive(RangeDigit_CHK->Checked());
}

void TRange_Digit_Search_Frame::Reverst_Digit_CHKClick()
{
}

void TRange_Digit_Search_Frame::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        FrameClick();
}

void TRange_Digit_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
