#include "AccountingCodes_Search_UNT.h"
#include "ADVSearch_UNT.h"
#include "DateRange_Display_UNT.h"
#include "ListFooter.h"
#include "MainWindow.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReportFilterPanel.h"
#include "ReportForm.h"
#include "ReportTotals.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartFaDate.h"
#include "SmartMaskEdit_TRV.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"
#include "TarvaSearchManager.h"
#include "TourPlayer.h"
#include "TourSteps.h"
#include "VoucherForm.h"

#include <QFileInfo>
#include <QTemporaryDir>

namespace {

constexpr int sampleRow = 40;

TReportForm& Report(TTourPlayer& player)
{
    return *qobject_cast<TReportForm*>(player.Window().CurrentPage());
}

QString Value(TTourPlayer& player, const QString& field)
{
    TPagedDataSet& lines = Report(player).DataSet();
    const int row = qMin(sampleRow, lines.RecordCount() - 1);
    return lines.ValueAt(row, lines.FieldByName(field)->Index()).toString();
}

void WaitForLines(TTourPlayer& player)
{
    constexpr int DelayOfEdits = 400;
    TTourPlayer::Wait(DelayOfEdits);
    TReportForm& report = Report(player);
    report.Manager().Flush();
    player.Check(report.DataSet().WaitForFirstPage(), QStringLiteral("گزارش خوانده نشد"));
    player.WaitUntil([&report] { return report.DataSet().CountIsExact() && !report.IsBusy(); },
                     QStringLiteral("جمع‌های گزارش نیامد"));
}

void SwitchOn(TTourPlayer& player, TSmartCheckBox_TRV* box)
{
    box->setFocus();
    player.Press(Qt::Key_Space);
    player.Check(box->Checked(), QStringLiteral("فیلتر روشن نشد"));
}

void TypeInto(TTourPlayer& player, QWidget* edit, const QString& text)
{
    edit->setFocus();
    player.Press(Qt::Key_A, Qt::ControlModifier);
    player.Type(text);
}

/// The filter has narrowed the report and says so; then everything is shown again.
void CheckNarrowed(TTourPlayer& player, const QString& word, const QString& picture)
{
    Report(player).Grid().setFocus();
    WaitForLines(player);
    TReportForm& report = Report(player);
    const int count = report.DataSet().RecordCount();
    player.Check(report.Footer().ConditionInWords().contains(word),
                 QStringLiteral("شرط نوشته نشد: ") + report.Footer().ConditionInWords());
    player.Check(count > 0, QStringLiteral("فیلتر هیچ ردیفی نگذاشت: ") + picture);
    player.Screenshot(picture);
    player.Press(Qt::Key_Escape);
    WaitForLines(player);
    player.Check(report.DataSet().RecordCount() > count,
                 QStringLiteral("فیلتر گزارش را کوتاه نکرد: ") + picture);
}

void OpenReport(TTourPlayer& player)
{
    player.Press(Qt::Key_5, Qt::ControlModifier);
    if (!player.Check(qobject_cast<TReportForm*>(player.Window().CurrentPage()) != nullptr,
                      QStringLiteral("گزارش باز نشد")))
        player.Window().OpenPage(QStringLiteral("VoucherLines"));
    WaitForLines(player);
    player.Check(Report(player).Totals().BalanceText().contains(QStringLiteral("تراز")),
                 QStringLiteral("جمع‌ها تراز نیست"));
    player.Screenshot(QStringLiteral("report"));
    player.Press(Qt::Key_F10, Qt::ControlModifier);
    player.Check(Report(player).Filters().AdvancedIsShown(), QStringLiteral("فیلترها باز نشد"));
    player.Check(Report(player).Filters().Date->RangeDate_CHK->hasFocus(),
                 QStringLiteral("فوکوس به فیلترها نرفت"));
    player.Screenshot(QStringLiteral("report-filters"));
}

void FilterByDates(TTourPlayer& player)
{
    TReportFilterPanel& filters = Report(player).Filters();
    const QString date = Value(player, QStringLiteral("VoucherDate"));
    SwitchOn(player, filters.Date->RangeDate_CHK);
    TypeInto(player, filters.Date->RangeDate_From_EDT, date);
    CheckNarrowed(player, QStringLiteral("تاریخ سند از"), QStringLiteral("report-date"));
    const QString moment = Value(player, QStringLiteral("RegisteredAt"));
    SwitchOn(player, filters.Time->RangeDate_CHK);
    TypeInto(player, filters.Time->RangeDate_From_EDT,
             TFaDate::CreateByGregorianDate(moment.left(10)).ToDateString());
    CheckNarrowed(player, QStringLiteral("زمان ثبت از"), QStringLiteral("report-time"));
}

void FilterByNumbers(TTourPlayer& player)
{
    TReportFilterPanel& filters = Report(player).Filters();
    SwitchOn(player, filters.Cost->RangeCost_CHK);
    TypeInto(player, filters.Cost->RangeCost_From_EDT, QStringLiteral("۱۰۰۰۰۰۰"));
    CheckNarrowed(player, QStringLiteral("بدهکار از"), QStringLiteral("report-amount"));
    SwitchOn(player, filters.Digit->RangeDigit_CHK);
    TypeInto(player, filters.Digit->RangeDigit_To_EDT, Value(player, QStringLiteral("Number")));
    CheckNarrowed(player, QStringLiteral("شمارهٔ سند تا"), QStringLiteral("report-number"));
    SwitchOn(player, filters.Code->RangeString_CHK);
    TypeInto(player, filters.Code->RangeString_From_EDT, QStringLiteral("601001"));
    CheckNarrowed(player, QStringLiteral("کل و معین از"), QStringLiteral("report-code"));
}

void FilterByAccounts(TTourPlayer& player)
{
    TReportFilterPanel& filters = Report(player).Filters();
    SwitchOn(player, filters.Account->AccCodes_CHK);
    TypeInto(player, filters.Account->Select_AccountCode1->TotalCode_EDT,
             Value(player, QStringLiteral("Kol")));
    CheckNarrowed(player, QStringLiteral("کل برابر"), QStringLiteral("report-account"));
    SwitchOn(player, filters.Accounts->AccCodes_CHK);
    TypeInto(player, filters.Accounts->Select_AccountCode1->TotalCode_EDT, QStringLiteral("101"));
    TypeInto(player, filters.Accounts->Select_AccountCode2->TotalCode_EDT, QStringLiteral("104"));
    CheckNarrowed(player, QStringLiteral("کل از"), QStringLiteral("report-accounts"));
}

void FilterByEntities(TTourPlayer& player)
{
    constexpr int BankAccounts = 1;
    TReportFilterPanel& filters = Report(player).Filters();
    for (TSmartCheckBox_TRV* box : {filters.Entity->SelectEntity_CHK, filters.Entities->SelectEntity_CHK}) {
        SwitchOn(player, box);
        player.Check(filters.Entity->SelectEntity_CMB->hasFocus() ||
                         filters.Entities->SelectEntity_CMB->hasFocus(),
                     QStringLiteral("فوکوس به نوع نرفت"));
        for (int step = 0; step < BankAccounts; ++step)
            player.Press(Qt::Key_Down);
        const bool single = box == filters.Entity->SelectEntity_CHK;
        TypeInto(player,
                 single ? filters.Entity->TSelect_Entity_Frame1->Code_EDT
                        : filters.Entities->Select_Entity_Frame1->Code_EDT,
                 QStringLiteral("1"));
        if (!single)
            TypeInto(player, filters.Entities->Select_Entity_Frame2->Code_EDT, QStringLiteral("2"));
        CheckNarrowed(player, QStringLiteral("حساب بانکی"),
                      single ? QStringLiteral("report-entity") : QStringLiteral("report-entities"));
    }
}

void FilterByStateAndPeriod(TTourPlayer& player)
{
    TReportForm& report = Report(player);
    report.Filters().Tabs->Search_TBC->setFocus();
    player.Press(Qt::Key_Left);
    CheckNarrowed(player, QStringLiteral("سند تأیید شده باشد"), QStringLiteral("report-confirmed"));
    player.Press(Qt::Key_F10);
    const QString all = report.Footer().ConditionInWords();
    player.Press(Qt::Key_Home);
    WaitForLines(player);
    player.Check(report.Footer().ConditionInWords() != all, QStringLiteral("بازه به شرط نرسید"));
    player.Screenshot(QStringLiteral("report-period"));
    player.Press(Qt::Key_Escape);
    WaitForLines(player);
}

void SaveReport(TTourPlayer& player)
{
    const QTemporaryDir folder;
    for (const QString& name : {QStringLiteral("lines.csv"), QStringLiteral("lines.pdf")}) {
        const QString file = folder.filePath(name);
        player.WhenDialogOpens([&player, file] {
            player.Type(file);
            player.Press(Qt::Key_Return);
        });
        player.Press(name.endsWith(u"pdf") ? Qt::Key_P : Qt::Key_E, Qt::ControlModifier);
        player.CheckDialogCame(QStringLiteral("نام پرونده پرسیده نشد"));
        WaitForLines(player);
        player.WaitUntil([&file] { return QFileInfo(file).size() > 1000; },
                         QStringLiteral("پرونده نوشته نشد: ") + name);
    }
    player.Screenshot(QStringLiteral("report-saved"));
}

void OpenVoucherOfLine(TTourPlayer& player)
{
    TReportForm& report = Report(player);
    report.Grid().setFocus();
    player.Press(Qt::Key_Home);
    player.Press(Qt::Key_Down);
    const int number = report.DataSet().FieldByName(QStringLiteral("Number"))->AsInteger();
    player.Press(Qt::Key_Return);
    const auto* form = qobject_cast<TVoucherForm*>(player.Window().CurrentPage());
    player.Check(form != nullptr && form->Draft().Head.Number == number, QStringLiteral("سند ردیف باز نشد"));
    player.Screenshot(QStringLiteral("report-voucher"));
    player.Press(Qt::Key_N, Qt::ControlModifier);
}

} // namespace

QVector<TTourStep> ReportSteps()
{
    return {
        {u"باز کردن گزارش و فیلترهایش", OpenReport},
        {u"گزارش بر اساس تاریخ و زمان", FilterByDates},
        {u"گزارش بر اساس مبلغ، شماره و کد", FilterByNumbers},
        {u"گزارش بر اساس حساب", FilterByAccounts},
        {u"گزارش بر اساس تفصیلی", FilterByEntities},
        {u"گزارش بر اساس وضعیت و بازه", FilterByStateAndPeriod},
        {u"ذخیرهٔ گزارش", SaveReport},
        {u"باز کردن سند از گزارش", OpenVoucherOfLine},
    };
}
