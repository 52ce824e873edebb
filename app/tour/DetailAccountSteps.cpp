#include "DetailAccountCard.h"
#include "DetailAccountForm.h"
#include "DetailUniqueCode_UNT.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "TourPlayer.h"
#include "TourSteps.h"

namespace {

constexpr int pettyCash = 7;
constexpr int persons = 1;

TDetailAccountForm& Accounts(TTourPlayer& player)
{
    return *qobject_cast<TDetailAccountForm*>(player.Window().CurrentPage());
}

void WaitForAccounts(TTourPlayer& player)
{
    TListForm& list = Accounts(player).List();
    player.Check(list.DataSet().WaitForFirstPage(), QStringLiteral("پاسخ بانک اطلاعاتی نرسید"));
    player.WaitUntil([&list] { return list.DataSet().CountIsExact(); },
                     QStringLiteral("شمار ردیف‌ها نرسید"));
}

void OpenAccounts(TTourPlayer& player)
{
    player.Press(Qt::Key_4, Qt::ControlModifier);
    const bool open = qobject_cast<TDetailAccountForm*>(player.Window().CurrentPage()) != nullptr;
    if (!player.Check(open, QStringLiteral("فرم حساب تفصیلی باز نشد")))
        player.Window().OpenPage(QStringLiteral("DetailAccounts"));
    WaitForAccounts(player);
    player.Check(Accounts(player).List().DataSet().RecordCount() > 0, QStringLiteral("فهرست اشخاص خالی است"));
    player.Screenshot(QStringLiteral("detail-accounts"));
    player.Press(Qt::Key_F3);
    player.Check(Accounts(player).KindBox().hasFocus(), QStringLiteral("F3 به نوع حساب نرفت"));
    for (int presses = 0;
         presses < Accounts(player).KindBox().Count() && Accounts(player).Kind() != pettyCash; ++presses)
        player.Press(Qt::Key_Down);
    WaitForAccounts(player);
    player.Check(Accounts(player).Kind() == pettyCash, QStringLiteral("نوع حساب عوض نشد"));
}

void CreateAccount(TTourPlayer& player)
{
    TDetailAccountForm& form = Accounts(player);
    const int before = form.List().DataSet().RecordCount();
    player.Press(Qt::Key_N, Qt::ControlModifier);
    if (!player.Check(form.Card() != nullptr, QStringLiteral("کارت حساب تازه باز نشد")))
        return;
    player.Check(form.Card()->UniqueCode().GetUniqueCodeValue() > 0, QStringLiteral("کد یکتا پیشنهاد نشد"));
    player.Wait(200);
    player.Screenshot(QStringLiteral("detail-account-new"));
    player.Press(Qt::Key_F2);
    player.Check(form.Card() != nullptr && form.Card()->Name().HasError(),
                 QStringLiteral("نام خالی پذیرفته شد"));
    player.Screenshot(QStringLiteral("detail-account-without-name"));
    player.Type(QStringLiteral("تنخواه کارگاه"));
    player.Screenshot(QStringLiteral("detail-account-typed"));
    player.Press(Qt::Key_F2);
    player.WaitUntil([&form] { return form.Card() == nullptr; }, QStringLiteral("حساب ذخیره نشد"));
    WaitForAccounts(player);
    player.Check(form.List().DataSet().RecordCount() == before + 1,
                 QStringLiteral("حساب تازه در فهرست نیست"));
    player.Screenshot(QStringLiteral("detail-account-saved"));
}

// Some account's number is used in posted data; which one, the data decide.
void ShowLockedNumber(TTourPlayer& player)
{
    TDetailAccountForm& form = Accounts(player);
    form.ChooseKind(persons);
    WaitForAccounts(player);
    constexpr int mostAccounts = 30;
    bool locked = false;
    for (int row = 1; row <= mostAccounts && !locked; ++row) {
        form.List().DataSet().SetRecNo(row);
        form.List().OpenCard();
        if (!player.WaitUntil([&form] { return form.Card() != nullptr; }, QStringLiteral("کارت باز نشد")))
            return;
        locked = !form.Card()->UniqueCode().UniqueCode_EDT->isEnabled();
        if (locked)
            player.Screenshot(QStringLiteral("detail-account-locked"));
        player.Press(Qt::Key_Escape);
        player.WaitUntil([&form] { return form.Card() == nullptr; }, QStringLiteral("کارت بسته نشد"));
    }
    player.Check(locked, QStringLiteral("کد یکتای به کار رفته قفل نیست"));
}

} // namespace

QVector<TTourStep> DetailAccountSteps()
{
    return {
        {u"باز کردن حساب‌های تفصیلی", OpenAccounts},
        {u"ساختن حساب تفصیلی با کد یکتا", CreateAccount},
        {u"کد یکتایی که به کار رفته است", ShowLockedNumber},
    };
}
