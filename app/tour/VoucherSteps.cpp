#include "MainWindow.h"
#include "Select_AccountCode_UNT.h"
#include "SmartDateEdit_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TourPlayer.h"
#include "TourSteps.h"
#include "VoucherBand.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"
#include "VoucherTotals.h"

namespace {

TVoucherForm& Voucher(TTourPlayer& player)
{
    return *qobject_cast<TVoucherForm*>(player.Window().CurrentPage());
}

TSelect_AccountCode& Selector(TTourPlayer& player)
{
    return Voucher(player).Band().Selector();
}

void OpenVoucher(TTourPlayer& player)
{
    player.Press(Qt::Key_3, Qt::ControlModifier);
    const bool open = qobject_cast<TVoucherForm*>(player.Window().CurrentPage()) != nullptr;
    if (!player.Check(open, QStringLiteral("فرم صدور سند باز نشد")))
        player.Window().OpenPage(QStringLiteral("Voucher"));
    player.Check(Voucher(player).HeadBar().Date().hasFocus(), QStringLiteral("فوکوس در تاریخ نیست"));
    player.Screenshot(QStringLiteral("voucher-empty"));
    player.Press(Qt::Key_Return);
    player.Check(Voucher(player).HeadBar().Title().hasFocus(), QStringLiteral("Enter به شرح سند نرفت"));
    player.Type(QStringLiteral("تعمیر سقف فروشگاه"));
    player.Press(Qt::Key_Return);
    player.Check(Selector(player).TotalCode_EDT->hasFocus(), QStringLiteral("Enter به کد کل نرفت"));
}

void TypeUnknownCode(TTourPlayer& player)
{
    player.Type(QStringLiteral("9"));
    player.WhenDialogOpens([&player] {
        player.Screenshot(QStringLiteral("voucher-unknown-code"));
        player.Press(Qt::Key_Return);
    });
    player.Press(Qt::Key_Tab);
    player.CheckDialogCame(QStringLiteral("پیام کد نادرست نیامد"));
    player.Check(Selector(player).TotalCode_EDT->Text() == QLatin1String("009"),
                 QStringLiteral("کد با صفر پر نشد"));
    player.WaitUntil([&player] { return player.Window().focusWidget() == Selector(player).TotalCode_EDT; },
                     QStringLiteral("فوکوس به کد کل برنگشت"));
}

void TypeAccount(TTourPlayer& player)
{
    TSelect_AccountCode& selector = Selector(player);
    player.Press(Qt::Key_A, Qt::ControlModifier);
    player.Type(QStringLiteral("7"));
    player.Press(Qt::Key_Tab);
    player.Check(selector.TotalCode_EDT->Text() == QLatin1String("007"),
                 QStringLiteral("کد کل با صفر پر نشد"));
    player.Check(selector.Name_LBL->Caption().contains(QStringLiteral("تعمیر")),
                 QStringLiteral("نام حساب کل نوشته نشد"));
    player.Check(selector.AssistantCode_EDT->hasFocus(), QStringLiteral("Tab به معین نرفت"));
    player.Screenshot(QStringLiteral("voucher-total-found"));
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Tab);
    player.Check(selector.AssistantCode_EDT->Text() == QLatin1String("001"),
                 QStringLiteral("کد معین با صفر پر نشد"));
    player.Type(QStringLiteral("10"));
    player.Press(Qt::Key_Tab);
    player.Check(selector.DetailCode_EDT->Text() == QLatin1String("000010"),
                 QStringLiteral("کد تفصیلی با صفر پر نشد"));
    player.Check(selector.Name_LBL->Caption().contains(QStringLiteral("تعمیر و نگهداری")),
                 QStringLiteral("نام حساب نوشته نشد"));
    player.Check(selector.ExpenseCenterCode_EDT->hasFocus(), QStringLiteral("به مرکز هزینه نرفت"));
    player.Screenshot(QStringLiteral("voucher-account-found"));
}

void PickExpenseCenter(TTourPlayer& player)
{
    player.WhenDialogOpens([&player] {
        player.Type(QStringLiteral("فروش"));
        player.Wait(500);
        player.Screenshot(QStringLiteral("voucher-picks-expense-center"));
        player.Press(Qt::Key_Return);
    });
    player.Type(QStringLiteral("+"));
    player.CheckDialogCame(QStringLiteral("کلید + فهرست مرکزهای هزینه را باز نکرد"));
    TSelect_AccountCode& selector = Selector(player);
    player.Check(selector.GetExpCenterCode() != 0, QStringLiteral("مرکز هزینه برگزیده نشد"));
    player.Check(selector.Name_LBL->Caption().contains(QStringLiteral("[")),
                 QStringLiteral("نام مرکز هزینه نوشته نشد"));
    player.Press(Qt::Key_Return);
    player.Check(Voucher(player).Band().Debit().hasFocus(), QStringLiteral("Enter به بدهکار نرفت"));
}

void PutLine(TTourPlayer& player)
{
    player.Type(QStringLiteral("1250000"));
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("دستمزد و مصالح"));
    player.Screenshot(QStringLiteral("voucher-line-typed"));
    player.Press(Qt::Key_Return);
    TVoucherForm& form = Voucher(player);
    player.Check(form.Draft().Count() == 1, QStringLiteral("ردیف به سند نرفت"));
    player.Check(Selector(player).TotalCode_EDT->hasFocus(), QStringLiteral("فوکوس به کد کل برنگشت"));
    player.Press(Qt::Key_F2);
    player.Check(form.Draft().Head.Id == 0, QStringLiteral("سند ناتراز ذخیره شد"));
    player.Check(form.Band().Credit().HasError(), QStringLiteral("ناتراز بودن سند گفته نشد"));
    player.Screenshot(QStringLiteral("voucher-unbalanced"));
}

void PickAccount(TTourPlayer& player)
{
    TSelect_AccountCode& selector = Selector(player);
    Voucher(player).Band().FocusTotal();
    player.WhenDialogOpens([&player] {
        player.Type(QStringLiteral("صندوق ریالی"));
        player.Wait(500);
        player.Screenshot(QStringLiteral("voucher-picks-account"));
        player.Press(Qt::Key_Return);
    });
    player.Type(QStringLiteral("+"));
    player.CheckDialogCame(QStringLiteral("کلید + سرفصل حساب‌ها را باز نکرد"));
    player.Check(selector.GetTotalCode() == 101, QStringLiteral("حساب برگزیده نشد"));
    player.Screenshot(QStringLiteral("voucher-account-picked"));
    selector.AssistantCode_EDT->setFocus();
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Tab);
    player.Type(QStringLiteral("2"));
    player.Press(Qt::Key_Tab);
    player.Check(selector.Name_LBL->Caption().contains(QStringLiteral("صندوق فروشگاه")),
                 QStringLiteral("نام حساب تفصیلی نوشته نشد"));
}

void BalanceAndSave(TTourPlayer& player)
{
    TVoucherForm& form = Voucher(player);
    form.Band().Credit().setFocus();
    player.Type(QStringLiteral("1250000"));
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("پرداخت از بانک"));
    player.Press(Qt::Key_Return);
    player.Check(form.Draft().Count() == 2, QStringLiteral("ردیف دوم به سند نرفت"));
    player.Check(form.Draft().Balance().IsZero(), QStringLiteral("سند تراز نیست"));
    player.Screenshot(QStringLiteral("voucher-balanced"));
    player.Press(Qt::Key_F2);
    player.Check(form.Draft().Head.Id != 0 && !form.IsChanged(), QStringLiteral("سند ذخیره نشد"));
    player.Screenshot(QStringLiteral("voucher-saved"));
}

void CorrectLine(TTourPlayer& player)
{
    TVoucherForm& form = Voucher(player);
    player.Press(Qt::Key_F6);
    player.Check(form.Grid().hasFocus(), QStringLiteral("F6 به ردیف‌ها نرفت"));
    player.Press(Qt::Key_Home);
    player.Press(Qt::Key_Return);
    player.Check(Selector(player).GetTotalCode() == 7, QStringLiteral("ردیف برای اصلاح باز نشد"));
    player.Screenshot(QStringLiteral("voucher-line-corrected"));
    player.Press(Qt::Key_Escape);
    player.Press(Qt::Key_F6);
    player.Press(Qt::Key_Delete);
    player.Check(form.Draft().Count() == 1, QStringLiteral("ردیف حذف نشد"));
    player.Press(Qt::Key_Z, Qt::ControlModifier);
    player.Check(form.Draft().Count() == 2, QStringLiteral("ردیف برنگشت"));
}

void ReadConfirmedVoucher(TTourPlayer& player)
{
    TVoucherForm& form = Voucher(player);
    player.Press(Qt::Key_F3);
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Return);
    player.Check(form.Draft().Head.Number == 1 && form.Draft().Head.Confirmed,
                 QStringLiteral("سند شمارهٔ 1 باز نشد"));
    player.Check(!form.Band().Debit().isEnabled(), QStringLiteral("سند تأیید شده قفل نیست"));
    player.Screenshot(QStringLiteral("voucher-locked"));
    player.Press(Qt::Key_N, Qt::ControlModifier);
    player.Check(form.Draft().Head.Id == 0, QStringLiteral("سند تازه باز نشد"));
}

} // namespace

QVector<TTourStep> VoucherSteps()
{
    return {
        {u"باز کردن صدور سند", OpenVoucher},
        {u"کدی که نیست", TypeUnknownCode},
        {u"نوشتن کد حساب در چهار سطح", TypeAccount},
        {u"برگزیدن مرکز هزینه با +", PickExpenseCenter},
        {u"بردن ردیف به سند و ذخیرهٔ سند ناتراز", PutLine},
        {u"برگزیدن حساب با +", PickAccount},
        {u"تراز کردن و ذخیرهٔ سند", BalanceAndSave},
        {u"اصلاح، حذف و برگرداندن ردیف", CorrectLine},
        {u"دیدن سند تأیید شده", ReadConfirmedVoucher},
    };
}
