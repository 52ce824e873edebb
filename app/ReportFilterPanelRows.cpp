#include "AccountingCodes_Search_UNT.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReportFilterPanel.h"
#include "ReportItems.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartMaskEdit_TRV.h"
#include "SmartTime_TRV.h"
#include "StoredDateCriterion.h"

namespace {

constexpr TCodeItem Levels[] = {TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail,
                                TCodeItem::ctExpenseCenter};
constexpr TCodeItems AllLevels{TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail,
                               TCodeItem::ctExpenseCenter};

constexpr int LongestText = 100;

QStringList CodesOf(const TSelect_AccountCode& selector)
{
    QStringList codes;
    for (const TCodeItem level : Levels)
        codes.append(selector.CodeOf(level) == 0 ? QString() : selector.BoxOf(level)->Text());
    return codes;
}

/// Writes codes as if they had been typed and left. Levels without a code stay as they are: the frame empties
/// them itself.
void WriteCodes(TSelect_AccountCode& selector, const QStringList& codes)
{
    for (qsizetype place = 0; place < std::ssize(Levels); ++place) {
        if (codes.at(place).isEmpty())
            continue;
        TSmartEdit_TRV* box = selector.BoxOf(Levels[place]);
        selector.WriteText(Levels[place], codes.at(place));
        box->OnExit(box);
    }
}

TReportFilterRow NumberRow(const QString& key, TSmartEdit_TRV* from, TSmartEdit_TRV* to)
{
    TReportFilterRow row;
    row.Key = key;
    row.Values = [from, to] { return QStringList{from->Text(), to->Text()}; };
    row.SetValues = [from, to](const QStringList& values) {
        from->SetText(values.at(0));
        to->SetText(values.at(1));
    };
    return row;
}

} // namespace

void TReportFilterPanel::AddRows()
{
    ReportItems::AddDates(Date->TarvaSearch_Range_Date->SearchItems);
    ReportItems::AddTimes(Time->TarvaSearch_Range_Date->SearchItems);
    storedDate_ = new TStoredDateCriterion(*Date->TarvaSearch_Range_Date, this);
    AddDateRow(QStringLiteral("date"), QStringLiteral("&تاریخ سند :"), Date);
    AddDateRow(QStringLiteral("time"), QStringLiteral("زمان &ثبت :"), Time);
    AddNumberRows();
    AddCodeRow();
    AddAccountRow();
    AddAccountRangeRow();
    AddEntityRows();
}

void TReportFilterPanel::AddDateRow(const QString& key, const QString& caption,
                                    TRange_Date_Search_Frame* frame)
{
    frame->RangeDate_Cap_LBL->SetCaption(caption);
    TReportFilterRow row;
    row.Key = key;
    row.Switch = frame->RangeDate_CHK;
    row.Caption = frame->RangeDate_Cap_LBL;
    row.Fields = frame->RangeDate_CMB;
    row.Reverse = frame->RangeDate_Reverst_CHK;
    row.Init = [frame] { frame->init(); };
    row.Values = [frame] {
        return QStringList{frame->RangeDate_From_EDT->Text(), frame->RangeTime_From_EDT->GetText(),
                           frame->RangeDate_To_EDT->Text(), frame->RangeTime_To_EDT->GetText()};
    };
    row.SetValues = [frame](const QStringList& values) {
        frame->RangeDate_From_EDT->SetText(values.at(0));
        frame->RangeTime_From_EDT->SetText(values.at(1));
        frame->RangeDate_To_EDT->SetText(values.at(2));
        frame->RangeTime_To_EDT->SetText(values.at(3));
    };
    rows_.append(row);
}

void TReportFilterPanel::AddNumberRows()
{
    ReportItems::AddAmounts(Cost->TarvaSearch_Range_Cost->SearchItems);
    Cost->RangeCost_Cap_LBL->SetCaption(QStringLiteral("مبل&غ :"));
    TReportFilterRow cost =
        NumberRow(QStringLiteral("amount"), Cost->RangeCost_From_EDT, Cost->RangeCost_To_EDT);
    cost.Switch = Cost->RangeCost_CHK;
    cost.Caption = Cost->RangeCost_Cap_LBL;
    cost.Fields = Cost->RangeCost_CMB;
    cost.Reverse = Cost->RangeCost_Reverst_CHK;
    cost.Init = [this] { Cost->init(); };
    rows_.append(cost);

    ReportItems::AddNumbers(Digit->TarvaSearch_Range_Digit->SearchItems);
    Digit->RangeDigit_Cap_LBL->SetCaption(QStringLiteral("&شماره :"));
    TReportFilterRow digit =
        NumberRow(QStringLiteral("number"), Digit->RangeDigit_From_EDT, Digit->RangeDigit_To_EDT);
    digit.Switch = Digit->RangeDigit_CHK;
    digit.Caption = Digit->RangeDigit_Cap_LBL;
    digit.Fields = Digit->RangeDigit_CMB;
    digit.Reverse = Digit->RangeDigit_Reverst_CHK;
    digit.Init = [this] { Digit->init(); };
    rows_.append(digit);
}

void TReportFilterPanel::AddCodeRow()
{
    ReportItems::AddCodes(Code->TarvaSearch_Range_String->SearchItems);
    Code->RangeString_Cap_LBL->SetCaption(QStringLiteral("&کد :"));
    TReportFilterRow row =
        NumberRow(QStringLiteral("code"), Code->RangeString_From_EDT, Code->RangeString_To_EDT);
    row.Switch = Code->RangeString_CHK;
    row.Caption = Code->RangeString_Cap_LBL;
    row.Fields = Code->RangeString_CMB;
    row.Reverse = Code->RangeString_Reverst_CHK;
    row.Init = [this] { Code->init(); };
    // The frame leaves its edits as short as the field before needed them.
    connect(Code->TarvaSearch_Range_String, &TTarvaSearch::itemIndexChanged, this, [this] {
        const TSearchItem* item = Code->TarvaSearch_Range_String->CurrentItem();
        if (item == nullptr || item->MaxLength > 0)
            return;
        Code->RangeString_From_EDT->SetMaxLength(LongestText);
        Code->RangeString_To_EDT->SetMaxLength(LongestText);
    });
    row.SetValues = [this](const QStringList& values) {
        Code->RangeString_From_EDT->SetText(values.at(0));
        Code->RangeString_To_EDT->SetText(values.at(1));
        Code->TarvaSearch_Range_String->SetValue1(values.at(0));
        Code->TarvaSearch_Range_String->SetValue2(values.at(1));
    };
    rows_.append(row);
}

void TReportFilterPanel::AddAccountRow()
{
    Account->SetCodeItems(AllLevels);
    Account->AccCodes_Cap_LBL->SetCaption(QStringLiteral("کد &حساب :"));
    TReportFilterRow row;
    row.Key = QStringLiteral("account");
    row.Switch = Account->AccCodes_CHK;
    row.Caption = Account->AccCodes_Cap_LBL;
    row.Reverse = Account->AccCodes_Reverst_CHK;
    row.Values = [this] { return CodesOf(*Account->Select_AccountCode1); };
    row.SetValues = [this](const QStringList& codes) { WriteCodes(*Account->Select_AccountCode1, codes); };
    row.Init = [this] {
        Account->init();
        for (TTarvaSearch* criterion : {Account->TarvaSearch_Total, Account->TarvaSearch_Assisstant,
                                        Account->TarvaSearch_Detail, Account->TarvaSearch_ExpenseCenter})
            criterion->SetValue1({});
    };
    rows_.append(row);
}

void TReportFilterPanel::AddAccountRangeRow()
{
    Accounts->SetCodeItems(AllLevels);
    Accounts->AccCodes_Cap_LBL->SetCaption(QStringLiteral("&بازهٔ حساب :"));
    TReportFilterRow row;
    row.Key = QStringLiteral("accounts");
    row.Switch = Accounts->AccCodes_CHK;
    row.Caption = Accounts->AccCodes_Cap_LBL;
    row.Reverse = Accounts->AccCodes_Reverst_CHK;
    row.Values = [this] {
        return CodesOf(*Accounts->Select_AccountCode1) + CodesOf(*Accounts->Select_AccountCode2);
    };
    row.SetValues = [this](const QStringList& codes) {
        WriteCodes(*Accounts->Select_AccountCode1, codes.mid(0, std::ssize(Levels)));
        WriteCodes(*Accounts->Select_AccountCode2, codes.mid(std::ssize(Levels)));
    };
    row.Init = [this] { Accounts->init(); };
    rows_.append(row);
}

void TReportFilterPanel::AddEntityRows()
{
    ReportItems::AddEntities(Entity->TarvaSearch_SelectEntityCMB->SearchItems);
    ReportItems::AddEntities(Entity->TarvaSearch_SelectEntityEDT->SearchItems);
    Entity->SelectEntity_Cap_LBL->SetCaption(QStringLiteral("تفصی&لی :"));
    TReportFilterRow one;
    one.Key = QStringLiteral("entity");
    one.Switch = Entity->SelectEntity_CHK;
    one.Caption = Entity->SelectEntity_Cap_LBL;
    one.Fields = Entity->SelectEntity_CMB;
    one.Reverse = Entity->SelectEntity_Reverst_CHK;
    one.Init = [this] { Entity->init(); };
    one.Values = [this] { return QStringList{Entity->TSelect_Entity_Frame1->Code_EDT->Text()}; };
    one.SetValues = [this](const QStringList& codes) {
        TSmartButtonEdit_TRV* box = Entity->TSelect_Entity_Frame1->Code_EDT;
        box->SetText(codes.at(0));
        box->OnExit(box);
    };
    rows_.append(one);

    ReportItems::AddEntities(Entities->TarvaSearch_Range_SelectEntity->SearchItems);
    Entities->SelectEntity_Cap_LBL->SetCaption(QStringLiteral("بازهٔ تفص&یلی :"));
    TReportFilterRow range;
    range.Key = QStringLiteral("entities");
    range.Switch = Entities->SelectEntity_CHK;
    range.Caption = Entities->SelectEntity_Cap_LBL;
    range.Fields = Entities->SelectEntity_CMB;
    range.Reverse = Entities->SelectEntity_Reverst_CHK;
    range.Init = [this] { Entities->init(); };
    range.Values = [this] {
        return QStringList{Entities->Select_Entity_Frame1->Code_EDT->Text(),
                           Entities->Select_Entity_Frame2->Code_EDT->Text()};
    };
    range.SetValues = [this](const QStringList& codes) {
        Entities->SetSearchValue1(codes.at(0));
        Entities->SetSearchValue2(codes.at(1));
    };
    rows_.append(range);
}
