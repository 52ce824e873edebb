#include "HelpWindow.h"
#include "Look.h"
#include "MainWindow.h"
#include "Select_AccountCode_UNT.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "TourPlayer.h"
#include "TourSteps.h"
#include "VoucherBand.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace {

QAction* FindAction(const QWidget& window, const QString& name)
{
    return window.findChild<QAction*>(name);
}

// By mouse, as a user who does not know the keys.
void ChooseFromMenu(TTourPlayer& player, const QString& actionName)
{
    QAction* action = FindAction(player.Window(), actionName);
    auto* menu = action == nullptr ? nullptr : qobject_cast<QMenu*>(action->parent());
    player.Check(menu != nullptr, QStringLiteral("گزینهٔ %1 در منو نیست").arg(actionName));
    if (menu == nullptr)
        return;
    QMenuBar* bar = player.Window().menuBar();
    player.Click(bar, bar->actionGeometry(menu->menuAction()).center());
    player.Click(menu, menu->actionGeometry(action).center());
}

void ShowKeys(TTourPlayer& player)
{
    player.Press(Qt::Key_F1);
    player.Check(qobject_cast<THelpWindow*>(QApplication::activeModalWidget()) != nullptr,
                 QStringLiteral("راهنمای کلیدها باز نشد"));
    player.Screenshot(QStringLiteral("keys"));
    player.Press(Qt::Key_Escape);
    player.Check(QApplication::activeModalWidget() == nullptr, QStringLiteral("راهنما بسته نشد"));
}

void ShowAbout(TTourPlayer& player)
{
    ChooseFromMenu(player, QStringLiteral("About"));
    player.Check(QApplication::activeModalWidget() != nullptr, QStringLiteral("دربارهٔ برنامه باز نشد"));
    player.Screenshot(QStringLiteral("about"));
    player.Press(Qt::Key_Return);
    player.Check(QApplication::activeModalWidget() == nullptr, QStringLiteral("دربارهٔ برنامه بسته نشد"));
}

// The voucher that was seen before may be one of a closed year, in which nothing can be typed.
void BeginVoucherOfOpenYear(TTourPlayer& player, TVoucherForm& form)
{
    player.Press(Qt::Key_N, Qt::ControlModifier);
    form.HeadBar().YearBox().setFocus();
    player.Press(Qt::Key_Home);
    const TFiscalYear* year = form.HeadBar().Year();
    player.Check(year != nullptr && !year->Closed, QStringLiteral("سال مالی باز برگزیده نشد"));
    player.Press(Qt::Key_N, Qt::ControlModifier);
}

void ShowVoucherFault(TTourPlayer& player, TVoucherForm& form, const QString& scheme)
{
    BeginVoucherOfOpenYear(player, form);
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("شرح"));
    player.Press(Qt::Key_Return);
    player.Type(QStringLiteral("104"));
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Return);
    player.Press(Qt::Key_F2);
    player.Check(form.Band().Selector().TotalCode_EDT->HasError(),
                 QStringLiteral("نیمه‌کاره بودن ردیف گفته نشد"));
    player.Screenshot(QStringLiteral("voucher-fault") + scheme);
    player.Press(Qt::Key_Escape);
    form.HeadBar().Title().setFocus();
    player.Press(Qt::Key_A, Qt::ControlModifier);
    player.Press(Qt::Key_Delete);
    player.Check(!form.IsChanged(), QStringLiteral("سند تازه خالی نشد"));
}

void ShowVouchers(TTourPlayer& player, const QString& scheme)
{
    player.Press(Qt::Key_3, Qt::ControlModifier);
    auto* form = qobject_cast<TVoucherForm*>(player.Window().CurrentPage());
    if (!player.Check(form != nullptr, QStringLiteral("فرم صدور سند باز نشد")))
        return;
    player.Screenshot(QStringLiteral("voucher-empty") + scheme);
    player.Press(Qt::Key_F3);
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Return);
    player.Check(form->Draft().Head.Number == 1, QStringLiteral("سند شمارهٔ 1 باز نشد"));
    player.Screenshot(QStringLiteral("voucher-locked") + scheme);
    ShowVoucherFault(player, *form, scheme);
}

void ShowForms(TTourPlayer& player, const QString& scheme)
{
    ShowVouchers(player, scheme);
    player.Press(Qt::Key_4, Qt::ControlModifier);
    player.Wait(300);
    player.Press(Qt::Key_N, Qt::ControlModifier);
    player.Wait(200);
    player.Screenshot(QStringLiteral("detail-account-new") + scheme);
    player.Press(Qt::Key_Escape);
    player.Press(Qt::Key_5, Qt::ControlModifier);
    player.Wait(300);
    player.Screenshot(QStringLiteral("report-filters") + scheme);
    player.Press(Qt::Key_1, Qt::ControlModifier);
}

void TurnTheColoursRound(TTourPlayer& player)
{
    const bool dark = Look::IsDark();
    ChooseFromMenu(player, dark ? QStringLiteral("SchemeLight") : QStringLiteral("SchemeDark"));
    player.Check(Look::IsDark() != dark, QStringLiteral("رنگ‌بندی برنگشت"));
    player.Press(Qt::Key_1, Qt::ControlModifier);
    player.WaitForAnswer();
    player.Screenshot(dark ? QStringLiteral("goods-light") : QStringLiteral("goods-dark"));
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Return);
    player.Wait(200);
    player.Screenshot(dark ? QStringLiteral("card-light") : QStringLiteral("card-dark"));
    player.Press(Qt::Key_Escape);
    ShowForms(player, dark ? QStringLiteral("-light") : QStringLiteral("-dark"));
    ChooseFromMenu(player, dark ? QStringLiteral("SchemeDark") : QStringLiteral("SchemeLight"));
    player.Check(Look::IsDark() == dark, QStringLiteral("رنگ‌بندی دوباره برنگشت"));
}

void TurnTheDigits(TTourPlayer& player)
{
    ChooseFromMenu(player, QStringLiteral("DigitsLatin"));
    player.Check(Look::Digits() == Look::TDigits::Latin, QStringLiteral("رقم‌ها لاتین نشد"));
    player.Screenshot(QStringLiteral("latin-digits"));
    ChooseFromMenu(player, QStringLiteral("DigitsPersian"));
    player.Check(Look::Digits() == Look::TDigits::Persian, QStringLiteral("رقم‌ها فارسی نشد"));
}

} // namespace

QVector<TTourStep> WindowSteps()
{
    return {
        {u"راهنمای کلیدها", ShowKeys},
        {u"دربارهٔ برنامه", ShowAbout},
        {u"رنگ‌بندی تیره و روشن", TurnTheColoursRound},
        {u"رقم‌های لاتین و فارسی", TurnTheDigits},
    };
}
