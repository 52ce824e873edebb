#include "AccountingCodes_Search_UNT.h"

#include "AccountCriteria.h"
#include "Look.h"
#include "MenuItem.h"
#include "Select_AccountCode_UNT.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_AccountingCodes_Search_UNT.h"
#include "ValueText.h"

#include <QPainter>
#include <QPointer>

namespace {

QVariant ValueOf(const TTarvaSearch* criterion)
{
    return qint64{criterion->GetValue1AsInt()};
}

} // namespace

TAccountingCodes_Search_Frame::TAccountingCodes_Search_Frame(QWidget* owner) : TFrame(owner)
{
    Ui::TAccountingCodes_Search_Frame form;
    form.setupUi(this);
    AccCodes_CHK = form.AccCodes_CHK;
    AccCodes_Cap_LBL = form.AccCodes_Cap_LBL;
    Select_AccountCode1 = form.Select_AccountCode1;
    AccCodes_Reverst_CHK = form.AccCodes_Reverst_CHK;
    AccCodes_Reverst_LBL = form.AccCodes_Reverst_LBL;
    line_ = {AccCodes_CHK, AccCodes_Cap_LBL, nullptr, AccCodes_Reverst_CHK, AccCodes_Reverst_LBL};

    const auto criterion = [this](const QString& name, const QString& title, const QString& field) {
        return AccountCriteria::Create(this, name, TSearchType::stGeneral, title, field);
    };
    TarvaSearch_Total =
        criterion(QStringLiteral("TarvaSearch_Total"), QStringLiteral("کل"), QStringLiteral("kol"));
    TarvaSearch_Assisstant =
        criterion(QStringLiteral("TarvaSearch_Assisstant"), QStringLiteral("معین"), QStringLiteral("Moin"));
    TarvaSearch_Detail =
        criterion(QStringLiteral("TarvaSearch_Detail"), QStringLiteral("تفصیلی"), QStringLiteral("Tafsili"));
    TarvaSearch_ExpenseCenter = criterion(QStringLiteral("TarvaSearch_ExpenseCenter"),
                                          QStringLiteral("مرکز هزینه"), QStringLiteral("Tafsili2"));
    BindHandlers();
    FormReady();
}

TAccountingCodes_Search_Frame::~TAccountingCodes_Search_Frame() = default;

void TAccountingCodes_Search_Frame::BindHandlers()
{
    line_.BindLabels();
    AccCodes_CHK->OnClick = [this](QObject*) { AccCodes_CHKClick(); };
    AccCodes_Reverst_CHK->OnClick = [this](QObject*) { AccCodes_Reverst_CHKClick(); };
    const TSelect_AccountCode& selector = *Select_AccountCode1;
    selector.TotalCode_EDT->OnExit = [this](QObject*) { TotalCode_EDTExit(); };
    selector.AssistantCode_EDT->OnExit = [this](QObject* sender) { AssistantCode_EDTExit(sender); };
    selector.DetailCode_EDT->OnExit = [this](QObject* sender) { DetailCode_EDTExit(sender); };
    selector.ExpenseCenterCode_EDT->OnExit = [this](QObject* sender) { ExpenseCenterCode_EDTExit(sender); };
    selector.AccCodeSelect_PUM->OnClick = [this](QObject* sender) { AccCodeSelect_PUMClick(sender); };
    selector.ExpenseCenter_PUM->OnClick = [this](QObject* sender) { ExpenseCenter_PUMClick(sender); };
}

void TAccountingCodes_Search_Frame::init()
{
    Select_AccountCode1->init();
    Select_AccountCode1->Enabled(false, false);
    line_.Enable(false);
    for (TTarvaSearch* const criterion :
         {TarvaSearch_Total, TarvaSearch_Assisstant, TarvaSearch_Detail, TarvaSearch_ExpenseCenter})
        criterion->SetActive(false);
    AccCodes_CHK->SetChecked(false);
}

void TAccountingCodes_Search_Frame::SetCodeItems(TCodeItems levels)
{
    Select_AccountCode1->SetCodeItem(levels);
    FCodeItems = Select_AccountCode1->CodeItem();
}

void TAccountingCodes_Search_Frame::SetCodeItemBits(int bits)
{
    SetCodeItems(TCodeItems::FromBits(static_cast<unsigned>(bits)));
}

bool TAccountingCodes_Search_Frame::GetActive() const
{
    return AccCodes_CHK->Checked();
}

void TAccountingCodes_Search_Frame::SetActive(bool active) const
{
    AccCodes_CHK->SetChecked(active);
}

QVariant TAccountingCodes_Search_Frame::GetSearchTotalValue() const
{
    return ValueOf(TarvaSearch_Total);
}

QVariant TAccountingCodes_Search_Frame::GetSearchAssistantValue() const
{
    return ValueOf(TarvaSearch_Assisstant);
}

QVariant TAccountingCodes_Search_Frame::GetSearchDetailValue() const
{
    return ValueOf(TarvaSearch_Detail);
}

QVariant TAccountingCodes_Search_Frame::GetSearchExpenseCenterValue() const
{
    return ValueOf(TarvaSearch_ExpenseCenter);
}

void TAccountingCodes_Search_Frame::SetSearchTotalValue(const QVariant& value)
{
    Select_AccountCode1->WriteText(TCodeItem::ctTotal, ValueText(value));
    TotalCode_EDTExit();
}

void TAccountingCodes_Search_Frame::SetSearchAssistantValue(const QVariant& value)
{
    Select_AccountCode1->WriteText(TCodeItem::ctAssistant, ValueText(value));
    AssistantCode_EDTExit(nullptr);
}

void TAccountingCodes_Search_Frame::SetSearchDetailValue(const QVariant& value)
{
    Select_AccountCode1->WriteText(TCodeItem::ctDetail, ValueText(value));
    DetailCode_EDTExit(nullptr);
}

void TAccountingCodes_Search_Frame::SetSearchExpenseCenterValue(const QVariant& value)
{
    Select_AccountCode1->WriteText(TCodeItem::ctExpenseCenter, ValueText(value));
    ExpenseCenterCode_EDTExit(nullptr);
}

void TAccountingCodes_Search_Frame::AccCodes_CHKClick()
{
    const bool checked = AccCodes_CHK->Checked();
    Select_AccountCode1->Enabled(checked, false);
    line_.Enable(checked);
    // The total's criterion takes part whether the level is shown or not, which is intended.
    TarvaSearch_Total->SetActive(checked);
    TarvaSearch_Assisstant->SetActive(checked && FCodeItems.Contains(TCodeItem::ctAssistant));
    TarvaSearch_Detail->SetActive(checked && FCodeItems.Contains(TCodeItem::ctDetail));
    TarvaSearch_ExpenseCenter->SetActive(checked && FCodeItems.Contains(TCodeItem::ctExpenseCenter));
}

void TAccountingCodes_Search_Frame::AccCodes_Reverst_CHKClick()
{
    for (TTarvaSearch* const criterion :
         {TarvaSearch_Total, TarvaSearch_Assisstant, TarvaSearch_Detail, TarvaSearch_ExpenseCenter})
        criterion->SetReverst(AccCodes_Reverst_CHK->Checked());
}

// Without the selector's own exit, on purpose: a total to search for is neither padded nor named, and clears
// nothing.
void TAccountingCodes_Search_Frame::TotalCode_EDTExit() const
{
    Select_AccountCode1->RestorePlaceholder(TCodeItem::ctTotal);
    TarvaSearch_Total->SetValue1(Select_AccountCode1->GetTotalCode());
}

void TAccountingCodes_Search_Frame::AssistantCode_EDTExit(QObject* sender)
{
    const QPointer<TAccountingCodes_Search_Frame> guard(this);
    Select_AccountCode1->AssistantCode_EDTExit(sender);
    if (guard)
        TarvaSearch_Assisstant->SetValue1(Select_AccountCode1->GetAssistantCode());
}

void TAccountingCodes_Search_Frame::DetailCode_EDTExit(QObject* sender)
{
    const QPointer<TAccountingCodes_Search_Frame> guard(this);
    Select_AccountCode1->DetailCode_EDTExit(sender);
    if (guard)
        TarvaSearch_Detail->SetValue1(Select_AccountCode1->GetDetailCode());
}

void TAccountingCodes_Search_Frame::ExpenseCenterCode_EDTExit(QObject* sender)
{
    const QPointer<TAccountingCodes_Search_Frame> guard(this);
    Select_AccountCode1->ExpenseCenterCode_EDTExit(sender);
    if (guard)
        TarvaSearch_ExpenseCenter->SetValue1(Select_AccountCode1->GetExpCenterCode());
}

void TAccountingCodes_Search_Frame::AccCodeSelect_PUMClick(QObject* sender)
{
    const QPointer<TAccountingCodes_Search_Frame> guard(this);
    Select_AccountCode1->AccCodeSelect_PUMClick(sender);
    if (guard)
        TarvaSearch_Total->SetValue1(Select_AccountCode1->GetTotalCode());
    if (guard)
        TarvaSearch_Assisstant->SetValue1(Select_AccountCode1->GetAssistantCode());
    if (guard)
        TarvaSearch_Detail->SetValue1(Select_AccountCode1->GetDetailCode());
}

void TAccountingCodes_Search_Frame::ExpenseCenter_PUMClick(QObject* sender)
{
    const QPointer<TAccountingCodes_Search_Frame> guard(this);
    Select_AccountCode1->ExpenseCenter_PUMClick(sender);
    if (guard)
        TarvaSearch_ExpenseCenter->SetValue1(Select_AccountCode1->GetExpCenterCode());
}

void TAccountingCodes_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
