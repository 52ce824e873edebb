#include "Range_AccCodes_Search_UNT.h"

#include "AccountCriteria.h"
#include "Look.h"
#include "MenuItem.h"
#include "Select_AccountCode_UNT.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Range_AccCodes_Search_UNT.h"

#include <QPainter>
#include <QPointer>

namespace {

constexpr TCodeItem AllLevels[] = {TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail,
                                   TCodeItem::ctExpenseCenter};

int PowerOfTen(int exponent)
{
    constexpr int MostDigitsOfInt = 9;
    int power = 1;
    for (int digit = 0; digit < qMin(exponent, MostDigitsOfInt); ++digit)
        power *= 10;
    return power;
}

QVariant FirstCode(const TSmartEdit_TRV* box, TCodeItem level, int code)
{
    if (level == TCodeItem::ctExpenseCenter)
        return code;
    return code != 0 ? box->Text() : QStringLiteral("0");
}

/// Nines as a text for the short codes and as a number for the long ones, as the criteria's owners read them.
QVariant LastCode(const TSmartEdit_TRV* box, TCodeItem level, int code)
{
    if (code != 0)
        return box->Text();
    if (level == TCodeItem::ctTotal || level == TCodeItem::ctAssistant)
        return QString(box->MaxLength(), u'9');
    return PowerOfTen(box->MaxLength()) - 1;
}

} // namespace

TRange_AccCodes_Search_Frame::TRange_AccCodes_Search_Frame(QWidget* owner) : TFrame(owner)
{
    Ui::TRange_AccCodes_Search_Frame form;
    form.setupUi(this);
    AccCodes_CHK = form.AccCodes_CHK;
    AccCodes_Cap_LBL = form.AccCodes_Cap_LBL;
    Label_TRVDEVX1 = form.Label_TRVDEVX1;
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    Select_AccountCode1 = form.Select_AccountCode1;
    Select_AccountCode2 = form.Select_AccountCode2;
    AccCodes_Reverst_CHK = form.AccCodes_Reverst_CHK;
    AccCodes_Reverst_LBL = form.AccCodes_Reverst_LBL;
    line_ = {AccCodes_CHK, AccCodes_Cap_LBL, nullptr, AccCodes_Reverst_CHK, AccCodes_Reverst_LBL};

    const auto criterion = [this](const QString& name, const QString& title, const QString& field) {
        return AccountCriteria::Create(this, name, TSearchType::stRangeDigit, title, field);
    };
    TarvaSearch_Range_Total =
        criterion(QStringLiteral("TarvaSearch_Range_Total"), QStringLiteral("کل"), QStringLiteral("kol"));
    TarvaSearch_Range_Assisstant = criterion(QStringLiteral("TarvaSearch_Range_Assisstant"),
                                             QStringLiteral("معین"), QStringLiteral("Moin"));
    // Spelled otherwise than in the frame for one code; owners know both names.
    TarvaSearch_Range_Detail = criterion(QStringLiteral("TarvaSearch_Range_Detail"), QStringLiteral("تفصیلی"),
                                         QStringLiteral("Tafzili"));
    TarvaSearch_Range_ExpCenter = criterion(QStringLiteral("TarvaSearch_Range_ExpCenter"),
                                            QStringLiteral("مرکز هزینه"), QStringLiteral("Tafsili2"));
    line_.BindLabels();
    AccCodes_CHK->OnClick = [this](QObject*) { AccCodes_CHKClick(); };
    AccCodes_Reverst_CHK->OnClick = [this](QObject*) { AccCodes_Reverst_CHKClick(); };
    BindSelector(Select_AccountCode1);
    BindSelector(Select_AccountCode2);
    FormReady();
}

TRange_AccCodes_Search_Frame::~TRange_AccCodes_Search_Frame() = default;

void TRange_AccCodes_Search_Frame::BindSelector(TSelect_AccountCode* selector)
{
    for (const TCodeItem level : AllLevels)
        selector->BoxOf(level)->OnExit = [this, selector, level](QObject* sender) {
            LevelExit(selector, level, sender);
        };
    selector->AccCodeSelect_PUM->OnClick = [this, selector](QObject* sender) {
        AccCodeSelect_PUMClick(selector, sender);
    };
    selector->ExpenseCenter_PUM->OnClick = [this, selector](QObject* sender) {
        ExpenseCenter_PUMClick(selector, sender);
    };
}

void TRange_AccCodes_Search_Frame::init()
{
    AccCodes_Reverst_LBL->hide();
    AccCodes_Reverst_CHK->hide();
    for (TSelect_AccountCode* const selector : {Select_AccountCode1, Select_AccountCode2}) {
        selector->init();
        selector->Enabled(false, false);
    }
    for (const TCodeItem level : AllLevels)
        CriterionOf(level)->SetActive(false);
    AccCodes_CHK->SetChecked(false);
    Clear();
}

void TRange_AccCodes_Search_Frame::Clear()
{
    Select_AccountCode1->Clear();
    Select_AccountCode2->Clear();
    const QPointer<TRange_AccCodes_Search_Frame> guard(this);
    for (TSelect_AccountCode* const selector : {Select_AccountCode1, Select_AccountCode2}) {
        for (const TCodeItem level : AllLevels) {
            if (guard)
                LevelExit(selector, level, nullptr);
        }
    }
}

void TRange_AccCodes_Search_Frame::SetCodeItems(TCodeItems levels)
{
    Select_AccountCode1->SetCodeItem(levels);
    Select_AccountCode2->SetCodeItem(levels);
    FCodeItems = Select_AccountCode1->CodeItem();
}

void TRange_AccCodes_Search_Frame::SetCodeItemBits(int bits)
{
    SetCodeItems(TCodeItems::FromBits(static_cast<unsigned>(bits)));
}

int TRange_AccCodes_Search_Frame::GetExpenseCenterFromValue() const
{
    return AccCodes_CHK->Checked() ? TarvaSearch_Range_ExpCenter->GetValue1AsInt() : 0;
}

int TRange_AccCodes_Search_Frame::GetExpenseCenterToValue() const
{
    return AccCodes_CHK->Checked() ? TarvaSearch_Range_ExpCenter->GetValue2AsInt()
                                   : PowerOfTen(Select_AccountCode2->ExpenseCenterCode_EDT->MaxLength());
}

void TRange_AccCodes_Search_Frame::AccCodes_CHKClick()
{
    const bool checked = AccCodes_CHK->Checked();
    Select_AccountCode1->Enabled(checked, false);
    Select_AccountCode2->Enabled(checked, false);
    line_.Enable(checked);
    // The total's criterion takes part whether the level is shown or not, which is intended.
    for (const TCodeItem level : AllLevels)
        CriterionOf(level)->SetActive(checked && (level == TCodeItem::ctTotal || FCodeItems.Contains(level)));
}

void TRange_AccCodes_Search_Frame::AccCodes_Reverst_CHKClick()
{
    for (const TCodeItem level : AllLevels)
        CriterionOf(level)->SetReverst(AccCodes_Reverst_CHK->Checked());
}

// Totals go without the selector's own exit, on purpose: a bound is neither padded nor named, and clears
// nothing.
void TRange_AccCodes_Search_Frame::LevelExit(TSelect_AccountCode* selector, TCodeItem level, QObject* sender)
{
    const QPointer<TRange_AccCodes_Search_Frame> guard(this);
    if (level == TCodeItem::ctTotal)
        selector->RestorePlaceholder(level);
    else
        selector->RunExit(level, sender);
    if (guard)
        StoreBound(selector, level);
}

void TRange_AccCodes_Search_Frame::AccCodeSelect_PUMClick(TSelect_AccountCode* selector, QObject* sender)
{
    const QPointer<TRange_AccCodes_Search_Frame> guard(this);
    selector->AccCodeSelect_PUMClick(sender);
    for (const TCodeItem level : {TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail}) {
        if (guard)
            StoreBound(selector, level);
    }
}

void TRange_AccCodes_Search_Frame::ExpenseCenter_PUMClick(TSelect_AccountCode* selector, QObject* sender)
{
    const QPointer<TRange_AccCodes_Search_Frame> guard(this);
    selector->ExpenseCenter_PUMClick(sender);
    if (guard)
        StoreBound(selector, TCodeItem::ctExpenseCenter);
}

TTarvaSearch* TRange_AccCodes_Search_Frame::CriterionOf(TCodeItem level) const
{
    switch (level) {
    case TCodeItem::ctTotal:
        return TarvaSearch_Range_Total;
    case TCodeItem::ctAssistant:
        return TarvaSearch_Range_Assisstant;
    case TCodeItem::ctDetail:
        return TarvaSearch_Range_Detail;
    case TCodeItem::ctExpenseCenter:
        break;
    }
    return TarvaSearch_Range_ExpCenter;
}

void TRange_AccCodes_Search_Frame::StoreBound(const TSelect_AccountCode* selector, TCodeItem level) const
{
    const TSmartEdit_TRV* const box = selector->BoxOf(level);
    const int code = selector->CodeOf(level);
    if (selector == Select_AccountCode1)
        CriterionOf(level)->SetValue1(FirstCode(box, level, code));
    else
        CriterionOf(level)->SetValue2(LastCode(box, level, code));
}

void TRange_AccCodes_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
