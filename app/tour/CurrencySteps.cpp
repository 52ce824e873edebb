#include "CurrencyFrame_UNT.h"
#include "MainWindow.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "TourPlayer.h"
#include "TourSteps.h"
#include "VoucherBand.h"
#include "VoucherCurrency.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"

namespace {

TVoucherForm& ForeignVoucher(TTourPlayer& player)
{
    return *qobject_cast<TVoucherForm*>(player.Window().CurrentPage());
}

void TypeAccountOf(TTourPlayer& player, const QString& total, const QString& detail)
{
    ForeignVoucher(player).Band().FocusTotal();
    player.Type(total);
    player.Type(QStringLiteral("1"));
    player.Press(Qt::Key_Tab);
    player.Type(detail);
    player.Press(Qt::Key_Tab);
}

void ChooseForeignCurrency(TTourPlayer& player)
{
    TVoucherForm& form = ForeignVoucher(player);
    form.HeadBar().Title().setFocus();
    player.Type(QStringLiteral("خرید دلار"));
    TypeAccountOf(player, QStringLiteral("102"), QStringLiteral("5"));
    player.Press(Qt::Key_F8);
    const TCurrency_FRAME& frame = form.Band().Currency().Frame();
    player.Check(frame.CurrencyType_CMB->hasFocus(), QStringLiteral("F8 به فهرست ارزها نرفت"));
    player.Press(Qt::Key_Down);
    player.Check(frame.GetCodeValue() != frame.GetBaseCurrCode() && frame.GetPriceValue() > 1,
                 QStringLiteral("نرخ ارز نیامد"));
    player.Check(form.Band().Currency().RateSentence().contains(QStringLiteral("نرخ روز")),
                 QStringLiteral("روز نرخ نوشته نشد"));
    player.Press(Qt::Key_Return);
    player.Press(Qt::Key_Return);
    player.Check(form.Band().Debit().hasFocus(), QStringLiteral("Enter از نرخ به بدهکار نرفت"));
    player.Type(QStringLiteral("1250.75"));
    player.Check(form.Band().Currency().AmountSentence().contains(QStringLiteral("ریال")),
                 QStringLiteral("برابر ریالی نوشته نشد"));
    player.Screenshot(QStringLiteral("voucher-foreign-line"));
}

void SaveForeignVoucher(TTourPlayer& player)
{
    TVoucherForm& form = ForeignVoucher(player);
    player.Press(Qt::Key_Return);
    player.Press(Qt::Key_Return);
    player.Check(form.Draft().Count() == 1 && form.Draft().Lines().constFirst().Currency.IsForeign(),
                 QStringLiteral("ردیف ارزی به سند نرفت"));
    TypeAccountOf(player, QStringLiteral("101"), QStringLiteral("2"));
    form.Band().Credit().setFocus();
    player.Type(QStringLiteral("1250.75"));
    player.Press(Qt::Key_Return);
    player.Press(Qt::Key_Return);
    player.Check(form.Draft().Balance().IsZero(), QStringLiteral("سند ارزی تراز نیست"));
    player.Press(Qt::Key_F2);
    player.Check(form.Draft().Head.Id != 0, QStringLiteral("سند ارزی ذخیره نشد"));
    player.Screenshot(QStringLiteral("voucher-foreign-saved"));
    player.Press(Qt::Key_N, Qt::ControlModifier);
    player.Check(form.Draft().Head.Id == 0, QStringLiteral("سند تازه باز نشد"));
}

} // namespace

QVector<TTourStep> CurrencySteps()
{
    return {
        {u"برگزیدن ارز ردیف و نرخ روز", ChooseForeignCurrency},
        {u"ذخیرهٔ سند ارزی", SaveForeignVoucher},
    };
}
