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

/// The row of a frame, without what it is filled with.
template <typename TFilterFrame>
TReportFilterRow NewRow(const QString& key, const QString& caption, TFilterFrame* frame,
                        const TReportFilterControls& controls)
{
    controls.Caption->SetCaption(caption);
    TReportFilterRow row;
    static_cast<TReportFilterControls&>(row) = controls;
    row.Key = key;
    row.Init = [frame] { frame->init(); };
    return row;
}

void FillFromTo(TReportFilterRow& row, TSmartEdit_TRV* from, TSmartEdit_TRV* to)
{
    row.Values = [from, to] { return QStringList{from->Text(), to->Text()}; };
    row.SetValues = [from, to](const QStringList& values) {
        from->SetText(values.at(0));
        to->SetText(values.at(1));
    };
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
    TReportFilterRow row = NewRow(
        key, caption, frame,
        {frame->RangeDate_CHK, frame->RangeDate_Cap_LBL, frame->RangeDate_CMB, frame->RangeDate_Reverst_CHK});
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
    TReportFilterRow cost = NewRow(
        QStringLiteral("amount"), QStringLiteral("مبل&غ :"), Cost,
        {Cost->RangeCost_CHK, Cost->RangeCost_Cap_LBL, Cost->RangeCost_CMB, Cost->RangeCost_Reverst_CHK});
    FillFromTo(cost, Cost->RangeCost_From_EDT, Cost->RangeCost_To_EDT);
    rows_.append(cost);

    ReportItems::AddNumbers(Digit->TarvaSearch_Range_Digit->SearchItems);
    TReportFilterRow digit = NewRow(QStringLiteral("number"), QStringLiteral("&شماره :"), Digit,
                                    {Digit->RangeDigit_CHK, Digit->RangeDigit_Cap_LBL, Digit->RangeDigit_CMB,
                                     Digit->RangeDigit_Reverst_CHK});
    FillFromTo(digit, Digit->RangeDigit_From_EDT, Digit->RangeDigit_To_EDT);
    rows_.append(digit);
}

void TReportFilterPanel::AddCodeRow()
{
    ReportItems::AddCodes(Code->TarvaSearch_Range_String->SearchItems);
    TReportFilterRow row = NewRow(QStringLiteral("code"), QStringLiteral("&کد :"), Code,
                                  {Code->RangeString_CHK, Code->RangeString_Cap_LBL, Code->RangeString_CMB,
                                   Code->RangeString_Reverst_CHK});
    FillFromTo(row, Code->RangeString_From_EDT, Code->RangeString_To_EDT);
    // The frame takes codes when an edit is left.
    row.SetValues = [this, write = row.SetValues](const QStringList& values) {
        write(values);
        Code->TarvaSearch_Range_String->SetValue1(values.at(0));
        Code->TarvaSearch_Range_String->SetValue2(values.at(1));
    };
    // The frame leaves its edits as short as the field before needed them.
    connect(Code->TarvaSearch_Range_String, &TTarvaSearch::itemIndexChanged, this, [this] {
        const TSearchItem* item = Code->TarvaSearch_Range_String->CurrentItem();
        if (item == nullptr || item->MaxLength > 0)
            return;
        Code->RangeString_From_EDT->SetMaxLength(LongestText);
        Code->RangeString_To_EDT->SetMaxLength(LongestText);
    });
    rows_.append(row);
}

void TReportFilterPanel::AddAccountRow()
{
    Account->SetCodeItems(AllLevels);
    TReportFilterRow row =
        NewRow(QStringLiteral("account"), QStringLiteral("کد &حساب :"), Account,
               {Account->AccCodes_CHK, Account->AccCodes_Cap_LBL, nullptr, Account->AccCodes_Reverst_CHK});
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
    TReportFilterRow row =
        NewRow(QStringLiteral("accounts"), QStringLiteral("&بازهٔ حساب :"), Accounts,
               {Accounts->AccCodes_CHK, Accounts->AccCodes_Cap_LBL, nullptr, Accounts->AccCodes_Reverst_CHK});
    row.Values = [this] {
        return CodesOf(*Accounts->Select_AccountCode1) + CodesOf(*Accounts->Select_AccountCode2);
    };
    row.SetValues = [this](const QStringList& codes) {
        WriteCodes(*Accounts->Select_AccountCode1, codes.mid(0, std::ssize(Levels)));
        WriteCodes(*Accounts->Select_AccountCode2, codes.mid(std::ssize(Levels)));
    };
    rows_.append(row);
}

void TReportFilterPanel::AddEntityRows()
{
    ReportItems::AddEntities(Entity->TarvaSearch_SelectEntityCMB->SearchItems);
    ReportItems::AddEntities(Entity->TarvaSearch_SelectEntityEDT->SearchItems);
    TReportFilterRow one = NewRow(QStringLiteral("entity"), QStringLiteral("تفصی&لی :"), Entity,
                                  {Entity->SelectEntity_CHK, Entity->SelectEntity_Cap_LBL,
                                   Entity->SelectEntity_CMB, Entity->SelectEntity_Reverst_CHK});
    one.Values = [this] { return QStringList{Entity->TSelect_Entity_Frame1->Code_EDT->Text()}; };
    one.SetValues = [this](const QStringList& codes) {
        TSmartButtonEdit_TRV* box = Entity->TSelect_Entity_Frame1->Code_EDT;
        box->SetText(codes.at(0));
        box->OnExit(box);
    };
    rows_.append(one);

    ReportItems::AddEntities(Entities->TarvaSearch_Range_SelectEntity->SearchItems);
    TReportFilterRow range = NewRow(QStringLiteral("entities"), QStringLiteral("بازهٔ تفص&یلی :"), Entities,
                                    {Entities->SelectEntity_CHK, Entities->SelectEntity_Cap_LBL,
                                     Entities->SelectEntity_CMB, Entities->SelectEntity_Reverst_CHK});
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
