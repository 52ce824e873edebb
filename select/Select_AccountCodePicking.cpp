#include "AccountChart.h"
#include "HostServices.h"
#include "MenuItem.h"
#include "ScopedFlag.h"
#include "Select_AccountCode_UNT.h"
#include "SmartEdit_TRV.h"

#include <QPointer>
#include <utility>

// What the button, its menu and the "+" key do.

void TSelect_AccountCode::Select_BTNClick(QObject* /*sender*/)
{
    TMenuItem* const item = FActiveItem == TCodeItem::ctExpenseCenter ? ExpenseCenter_PUM : AccCodeSelect_PUM;
    item->Click();
}

void TSelect_AccountCode::ExpenseCenter_PUMClick(QObject* /*sender*/)
{
    const QPointer<TSelect_AccountCode> guard(this);
    const int picked = Host().Pickers.Select_Entity(TSoftwarePart::spExpenseCenters, QString(), false);
    if (guard && picked != 0)
        SetExpCenterCode(picked);
}

void TSelect_AccountCode::AccCodeSelect_PUMClick(QObject* /*sender*/)
{
    const QPointer<TSelect_AccountCode> guard(this);
    const THCSelectedCode picked = FSingleForm ? PickOnOneLevel() : PickOnLevels();
    if (!guard)
        return;
    SelectCodes = picked;
    if (picked.Total != 0)
        WritePicked(picked);
}

THCSelectedCode TSelect_AccountCode::PickOnLevels() const
{
    quint8 focusLevel = 0;
    if (AssistantCode_EDT->hasFocus())
        focusLevel = 1;
    else if (DetailCode_EDT->hasFocus())
        focusLevel = 2;
    const THCSelectedCode code = Codes();
    return Host().Pickers.Select_AccountCodes(FGroupTypeFilter, TAccountChart::CodeText(code.Total),
                                              TAccountChart::CodeText(code.Assistant),
                                              TAccountChart::CodeText(code.Detail), focusLevel);
}

// Nothing picked means that the user cancelled, upon which the codes stay as they are.
THCSelectedCode TSelect_AccountCode::PickOnOneLevel() const
{
    IPickers& pickers = Host().Pickers;
    const THCSelectedCode now = Codes();
    if (FCodeItem.Contains(TCodeItem::ctTotal)) {
        const QString groups = Host().Accounting.AccGroupsToString(FGroupTypeFilter);
        return {pickers.Select_AccTotals1(groups, QString()), 0, 0};
    }
    if (FCodeItem.Contains(TCodeItem::ctAssistant)) {
        const int assistant = pickers.Select_AccAssistants1(now.Total, QString());
        return assistant == 0 ? THCSelectedCode() : THCSelectedCode{now.Total, assistant, 0};
    }
    if (FCodeItem.Contains(TCodeItem::ctDetail)) {
        const int detail = pickers.Select_AccDetails1(now.Total, now.Assistant, QString());
        return detail == 0 ? THCSelectedCode() : THCSelectedCode{now.Total, now.Assistant, detail};
    }
    return {};
}

void TSelect_AccountCode::WritePicked(const THCSelectedCode& picked)
{
    const QPointer<TSelect_AccountCode> guard(this);
    const auto takes = [this](TCodeItem level) { return FSingleForm || FCodeItem.Contains(level); };
    const bool endsInDetail = !FSingleForm && picked.Detail != 0 && CanFocus(DetailCode_EDT);
    {
        // The focus goes to the detail box; a filled box on the way must not send it further.
        const TScopedFlag onTheWay(this, advances_, !endsInDetail);
        SetAssistantCode(0);
        if (guard)
            SetDetailCode(0);
        if (guard && takes(TCodeItem::ctTotal))
            WritePickedLevel(TCodeItem::ctTotal, picked.Total);
        if (guard && takes(TCodeItem::ctAssistant) && picked.Assistant != 0)
            WritePickedLevel(TCodeItem::ctAssistant, picked.Assistant);
        if (guard && FCodeItem.Contains(TCodeItem::ctDetail) && (FSingleForm || picked.Assistant != 0) &&
            picked.Detail != 0)
            WritePickedLevel(TCodeItem::ctDetail, picked.Detail);
    }
    if (guard && endsInDetail && CanFocus(DetailCode_EDT))
        DetailCode_EDT->setFocus();
}

void TSelect_AccountCode::WritePickedLevel(TCodeItem level, int code)
{
    const QPointer<TSelect_AccountCode> guard(this);
    if (level == TCodeItem::ctAssistant)
        SetAssistantCode(code);
    else
        WriteCode(level, code);
    if (guard)
        RaiseValueChange(BoxOf(level));
}

void TSelect_AccountCode::RaiseValueChange(TSmartEdit_TRV* box)
{
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent running = box->OnEditValueChange)
        running(box);
}
