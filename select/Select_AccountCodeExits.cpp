#include "AccountChart.h"
#include "AccountCodeBox.h"
#include "AccountCodeNames.h"
#include "HostServices.h"
#include "ScopedFlag.h"
#include "Select_AccountCode_UNT.h"
#include "SmartLabel_TRV.h"

#include <QPointer>

// What happens when a box of the account code is left, or its code is written.

namespace {

TAccountChart Chart()
{
    return {Host().DM, Host().Accounting};
}

constexpr int PixelsPerDigit = 10;

} // namespace

void TSelect_AccountCode::TotalCode_EDTExit(QObject* /*sender*/)
{
    if (IsReporting(TCodeItem::ctTotal))
        return;
    const QPointer<TSelect_AccountCode> guard(this);
    ClearBelow({TCodeItem::ctAssistant, TCodeItem::ctDetail});
    if (!guard)
        return;
    if (GetTotalCode() == 0) {
        AccountCodeBox::ShowPlaceholder(*TotalCode_EDT, AccountCodeNames::Total);
        ShowName();
        RefreshExpenseCenter();
        return;
    }
    Pad(TotalCode_EDT);
    if (ShowName()) {
        AdaptDetailBox();
        RefreshExpenseCenter();
        return;
    }
    ReportUnknown(AccountCodeNames::AccountSubject, TotalCode_EDT);
    if (!guard)
        return;
    AccountCodeBox::ShowPlaceholder(*AssistantCode_EDT, AccountCodeNames::AssistantOfUnknown);
    AccountCodeBox::ShowPlaceholder(*DetailCode_EDT, AccountCodeNames::DetailOfUnknown);
    FocusBack(TotalCode_EDT);
}

void TSelect_AccountCode::AssistantCode_EDTExit(QObject* /*sender*/)
{
    if (IsReporting(TCodeItem::ctAssistant))
        return;
    const QPointer<TSelect_AccountCode> guard(this);
    ClearBelow({TCodeItem::ctDetail});
    if (!guard)
        return;
    if (GetAssistantCode() == 0) {
        AccountCodeBox::ShowPlaceholder(*AssistantCode_EDT, AccountCodeNames::Assistant);
        ShowName();
    } else {
        Pad(AssistantCode_EDT);
        if (!ShowName()) {
            ReportUnknown(AccountCodeNames::AccountSubject, AssistantCode_EDT);
            if (!guard)
                return;
            AccountCodeBox::ShowPlaceholder(*DetailCode_EDT, AccountCodeNames::DetailOfUnknown);
            FocusBack(AssistantCode_EDT);
            if (!guard)
                return;
            // Two boxes that are wrong would send the focus to and fro without an end.
            const TScopedFlag here(this, focusGoesBack_, false);
            RefreshExpenseCenter();
            return;
        }
    }
    RefreshExpenseCenter();
}

void TSelect_AccountCode::DetailCode_EDTExit(QObject* /*sender*/)
{
    if (IsReporting(TCodeItem::ctDetail))
        return;
    const QPointer<TSelect_AccountCode> guard(this);
    SetAllowClear(false);
    if (Showing())
        RaiseChange();
    if (!guard)
        return;
    if (GetDetailCode() == 0) {
        AccountCodeBox::ShowPlaceholder(*DetailCode_EDT, AccountCodeNames::Detail);
        ShowName();
    } else {
        Pad(DetailCode_EDT);
        if (!ShowName()) {
            ReportUnknown(AccountCodeNames::AccountSubject, DetailCode_EDT);
            if (guard)
                FocusBack(DetailCode_EDT);
            return;
        }
    }
    RefreshExpenseCenter();
}

void TSelect_AccountCode::ExpenseCenterCode_EDTExit(QObject* /*sender*/)
{
    if (IsReporting(TCodeItem::ctExpenseCenter))
        return;
    const QPointer<TSelect_AccountCode> guard(this);
    const QString text = ExpenseCenterCode_EDT->Text();
    if (text.isEmpty() || text == AccountCodeNames::ExpenseCenter) {
        AccountCodeBox::ShowPlaceholder(*ExpenseCenterCode_EDT, AccountCodeNames::ExpenseCenter);
        Name_LBL->SetCaption(accountName_); // without the title of the center that is gone
        RaiseChange();
        return;
    }
    WriteText(TCodeItem::ctExpenseCenter,
              Host().Accounting.CompleteCode(text, ExpenseCenterCode_EDT->MaxLength()));
    ShowName();
    const QString title = Chart().GetExpCenterTitle(ExpenseCenterCode_EDT->Text());
    ShowTitle(title);
    if (!title.isEmpty()) {
        RaiseChange();
        return;
    }
    ReportUnknown(AccountCodeNames::ExpenseCenterSubject, ExpenseCenterCode_EDT);
    if (guard)
        FocusBack(ExpenseCenterCode_EDT);
}

void TSelect_AccountCode::RunExit(TCodeItem level, QObject* sender)
{
    switch (level) {
    case TCodeItem::ctTotal:
        return TotalCode_EDTExit(sender);
    case TCodeItem::ctAssistant:
        return AssistantCode_EDTExit(sender);
    case TCodeItem::ctDetail:
        return DetailCode_EDTExit(sender);
    case TCodeItem::ctExpenseCenter:
        return ExpenseCenterCode_EDTExit(sender);
    }
}

void TSelect_AccountCode::WriteCode(TCodeItem level, int code)
{
    TSmartEdit_TRV* const box = BoxOf(level);
    if (code != 0) {
        AccountCodeBox::StyleAsCode(*box);
        box->SetText(Host().Accounting.CompleteCode(QString::number(code), box->MaxLength()));
    } else {
        AccountCodeBox::ShowPlaceholder(*box, AccountCodeNames::OfLevel(level));
    }
    if (code == 0 || !box->hasFocus())
        RunExit(level, nullptr);
}

// After the user has changed a level, the ones below it belong to another account. The owner is told once.
void TSelect_AccountCode::ClearBelow(std::initializer_list<TCodeItem> levels)
{
    if (!Showing() || !FAllowClear || clearingBelow_)
        return;
    const QPointer<TSelect_AccountCode> guard(this);
    {
        const TScopedFlag clearing(this, clearingBelow_, true);
        for (const TCodeItem level : levels) {
            if (guard && FCodeItem.Contains(level))
                ClearPart(level);
        }
    }
    if (!guard)
        return;
    // Before the event, so that a handler may run this exit again.
    SetAllowClear(false);
    RaiseChange();
}

void TSelect_AccountCode::Pad(TSmartEdit_TRV* box)
{
    AccountCodeBox::StyleAsCode(*box);
    const QString text = box->Text();
    if (text.size() < box->MaxLength())
        box->SetText(Host().Accounting.CompleteCode(text, box->MaxLength()));
}

void TSelect_AccountCode::AdaptDetailBox() const
{
    const int length = TAccountChart::DetailLength(GetTotalDetailType());
    DetailCode_EDT->SetMaxLength(length);
    DetailCode_EDT->setFixedWidth(length * PixelsPerDigit);
}

bool TSelect_AccountCode::ShowName()
{
    bool found = false;
    accountName_ = HesabName(found);
    Name_LBL->SetCaption(accountName_);
    Name_LBL->setAccessibleName(accountName_);
    return found;
}

// The blanks and the letter behind them keep the text in its place where labels follow their last letter.
void TSelect_AccountCode::ShowTitle(const QString& title) const
{
    constexpr int Blanks = 1000;
    const QString shown =
        Name_LBL->Caption() + QStringLiteral("- ") + QStringLiteral("[") + title + QStringLiteral("]");
    Name_LBL->SetCaption(shown + QString(Blanks, u' ') + QStringLiteral("ا"));
    Name_LBL->setAccessibleName(shown);
}

void TSelect_AccountCode::RefreshExpenseCenter()
{
    // While levels are emptied, the exit that empties them shows the center in the end.
    if (!clearingBelow_ && FCodeItem.Contains(TCodeItem::ctExpenseCenter) && GetExpCenterCode() != 0)
        ExpenseCenterCode_EDTExit(nullptr);
}

void TSelect_AccountCode::ReportUnknown(QStringView subject, TSmartEdit_TRV* box)
{
    const TScopedFlag reporting(this, reporting_, true);
    Host().Messages.MsgCodeNotAvailable(subject.toString(), box, nullptr);
}

// While a message is open nobody leaves a box; the focus only comes and goes with the message's window.
bool TSelect_AccountCode::IsReporting(TCodeItem level) const
{
    if (reporting_)
        RestorePlaceholder(level);
    return reporting_;
}

void TSelect_AccountCode::FocusBack(TSmartEdit_TRV* box) const
{
    if (focusGoesBack_ && Showing() && CanFocus(box))
        box->setFocus();
}

void TSelect_AccountCode::RaiseChange()
{
    if (!clearingBelow_)
        RaiseEvent(OnChange, &TSelect_AccountCode::changed);
}

void TSelect_AccountCode::RaiseEvent(const TNotifyEvent& handler, void (TSelect_AccountCode::*signal)())
{
    const QPointer<TSelect_AccountCode> guard(this);
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent running = handler)
        running(this);
    if (guard)
        Q_EMIT(this->*signal)();
}

int TSelect_AccountCode::GetTotalDetailType() const
{
    return Chart().GetTotalDetailType(GetTotalCode());
}

int TSelect_AccountCode::GetTotalNatureType() const
{
    return Chart().GetTotalNatureType(GetTotalCode());
}

int TSelect_AccountCode::GetTotalGroupType() const
{
    return Chart().GetTotalGroupType(GetTotalCode());
}

THCSelectGroups TSelect_AccountCode::GetGroupType() const
{
    return Chart().GetGroupType(GetTotalCode(), FGroupType);
}

TPropertiesItems TSelect_AccountCode::GetSelectCodeProperties() const
{
    return Chart().GetSelectCodeProperties(GetTotalCode());
}

int TSelect_AccountCode::GetCurrCode() const
{
    return Chart().GetCurrCode(Codes());
}

QString TSelect_AccountCode::HesabName(bool& found) const
{
    return Chart().HesabName(FCodeItem, Codes(), found);
}

THCSelectedCode TSelect_AccountCode::Codes() const
{
    return {GetTotalCode(), GetAssistantCode(), GetDetailCode()};
}
