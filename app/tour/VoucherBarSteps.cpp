#include "Detail_Button_UNT.h"
#include "ListDetail_FRAME_UNT.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "NxExpandPanel.h"
#include "RecordDetails.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "ReportForm.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartDetailView_TRV.h"
#include "StockCorrectionForm.h"
#include "TourPlayer.h"
#include "TourSteps.h"
#include "VoucherGlance.h"
#include "VoucherNotices.h"

namespace {

TVoucherNotices& Notices(TTourPlayer& player)
{
    return *player.Window().CurrentPage()->findChild<TVoucherNotices*>();
}

void ClickMiddle(TTourPlayer& player, QWidget* widget)
{
    player.Click(widget, widget->rect().center());
}

void ShowDetails(TTourPlayer& player)
{
    player.Press(Qt::Key_1, Qt::ControlModifier);
    player.WaitForAnswer();
    player.Press(Qt::Key_Down);
    auto* details = player.List().findChild<TRecordDetails*>();
    const TListDetail_FRAME& frame = details->Frame();
    player.Press(Qt::Key_1, Qt::AltModifier);
    player.Check(frame.MoreDetail_XPNL->Expanded(), QStringLiteral("Alt+1 اطلاعات بیشتر را باز نکرد"));
    player.WaitUntil([details] { return !details->IsBusy(); }, QStringLiteral("اطلاعات کالا نرسید"));
    player.Screenshot(QStringLiteral("goods-details"));
    frame.DetailView_Fixed_SDV->setFocus();
    player.Press(Qt::Key_Down);
    player.Check(frame.DetailView_Fixed_SDV->ItemIndex() == 1, QStringLiteral("مقدار دیگری نشان داده نشد"));
    player.Press(Qt::Key_Up);
    player.List().Grid().setFocus();
}

void CorrectStock(TTourPlayer& player)
{
    player.Press(Qt::Key_M, Qt::ControlModifier);
    const auto form = [&player] { return player.List().findChild<TStockCorrectionForm*>(); };
    if (!player.WaitUntil([&form] { return form() != nullptr; }, QStringLiteral("اصلاح موجودی باز نشد")))
        return;
    const int before = form()->Rows().RecordCount();
    ClickMiddle(player, form()->Buttons().NewRecord_BTN);
    player.Press(Qt::Key_Return);
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("۲"));
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("شمارش انبار"));
    player.Screenshot(QStringLiteral("stock-correction-typed"));
    player.Press(Qt::Key_Return);
    player.Check(form()->Rows().RecordCount() == before + 1, QStringLiteral("اصلاح موجودی ثبت نشد"));
    player.Check(form()->Buttons().EditRecord_BTN->isEnabled(), QStringLiteral("ویرایش سطر فعال نشد"));
    player.Screenshot(QStringLiteral("stock-correction"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([&form] { return form() == nullptr; }, QStringLiteral("اصلاح موجودی بسته نشد"));
    player.Press(Qt::Key_1, Qt::AltModifier);
}

void SaveMissingVouchers(TTourPlayer& player)
{
    player.Window().OpenPage(QStringLiteral("VoucherLines"));
    TSaveAutoVouchers_FRME& bar = Notices(player).SaveBar();
    if (!player.WaitUntil([&bar] { return bar.isVisible(); },
                          QStringLiteral("نوار سندهای ثبت‌نشده نیامد")))
        return;
    player.Screenshot(QStringLiteral("voucher-bars"));
    ClickMiddle(player, bar.SaveVoucher_BTN);
    player.WaitUntil([&bar] { return !bar.isVisible(); },
                     QStringLiteral("نوار سندهای ثبت‌نشده نرفت"));
}

void RefreshVouchers(TTourPlayer& player)
{
    TRefreshAutoVouchers_FRME& bar = Notices(player).RefreshBar();
    if (!player.Check(bar.isVisible(), QStringLiteral("نوار ثبت مجدد نیامد")))
        return;
    // Some vouchers of closed years await it, too, and the user is told that they stay as they are.
    player.WhenDialogOpens([&player] {
        player.Screenshot(QStringLiteral("voucher-closed-years"));
        player.Press(Qt::Key_Return);
    });
    ClickMiddle(player, bar.RefreshVoucher_BTN);
    player.CheckDialogCame(QStringLiteral("سال‌های بسته گفته نشد"));
    player.Check(!bar.isVisible(), QStringLiteral("نوار ثبت مجدد نرفت"));
    player.Screenshot(QStringLiteral("voucher-bars-gone"));
}

void GlanceAtVoucher(TTourPlayer& player)
{
    auto& report = *qobject_cast<TReportForm*>(player.Window().CurrentPage());
    report.Refresh();
    player.Check(report.DataSet().WaitForFirstPage(), QStringLiteral("گزارش نرسید"));
    report.Grid().setFocus();
    player.Press(Qt::Key_Home);
    player.Press(Qt::Key_Return, Qt::ControlModifier);
    auto* glance = report.findChild<TVoucherGlance*>();
    player.Check(glance != nullptr, QStringLiteral("نگاه به سند باز نشد"));
    if (glance == nullptr)
        return;
    player.Check(glance->Lines().RecordCount() > 1, QStringLiteral("سند ردیف ندارد"));
    player.Screenshot(QStringLiteral("voucher-glance"));
    player.Press(Qt::Key_Escape);
}

} // namespace

QVector<TTourStep> VoucherBarSteps()
{
    return {
        {u"اطلاعات بیشتر کالا", ShowDetails},        {u"اصلاح موجودی", CorrectStock},
        {u"ثبت سندهای خودکار", SaveMissingVouchers}, {u"ثبت مجدد سندها پس از اصلاح کاردکس", RefreshVouchers},
        {u"نگاه به سند از گزارش", GlanceAtVoucher},
    };
}
