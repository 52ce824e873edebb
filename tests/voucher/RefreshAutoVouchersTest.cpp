#include "Look.h"
#include "NoticeForm.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"

#include <QApplication>

namespace {

using TForm = TNoticeForm<TRefreshAutoVouchers_FRME>;

} // namespace

class RefreshAutoVouchersTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theFormIsAsDesigned();
    void theCaptionFitsTheButton();
    void withoutTheCheckTheBarIsHiddenWhateverTheData();
    void withTheCheckTheBarShowsItselfWhenNeeded_data();
    void withTheCheckTheBarShowsItselfWhenNeeded();
    void checkRefreshFollowsTheHost();
    void theBarHidesItselfWhenNothingIsLeft();
    void theBarStaysWhileVouchersStillAwait();
    void theBarMayGoAwayDuringTheRegeneration();
    void anErrorOfTheHostReachesTheCallerAndTheBarStays();
};

void RefreshAutoVouchersTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TRefreshAutoVouchers_FRME frame;
    QCOMPARE(frame.size(), QSize(451, 45));
    QVERIFY(!frame.CheckVisibleOnLoad());
    QCOMPARE(frame.RefreshVoucherNotifiy_LBL->Caption(),
             QStringLiteral(
                 "کاربر گرامی برخی از اسناد حسابداری اتومات به دلیل اصلاحات کاردکس، نیاز به ثبت مجدد دارند، "
                 "بنابراین بهای تمام شده و موجودی ریالی کالاهای شما دقیق نمی باشد و گزارش ارایه شده فاقد "
                 "اعتبار می باشد. "));
    QCOMPARE(frame.RefreshVoucher_BTN->text(), QStringLiteral("ثبت مجدد اسناد - اصلاح کاردکس"));
    QCOMPARE(frame.RefreshVoucherNotification_PNL->palette().color(QPalette::Window),
             Look::FromColorValue(3552822));
    QCOMPARE(frame.RefreshVoucherNotifi_PNL->palette().color(QPalette::Window), QColor(Qt::white));
    QCOMPARE(frame.RefreshVoucherNotification_PNL->Bevel(), TSmartPanel_TRV::bvLowered);
    QCOMPARE(ComponentNames(frame),
             (QStringList{"RefreshVoucherNotification_PNL", "RefreshVoucherNotifi_PNL",
                          "RefreshVoucherNotifiy_LBL", "RefreshVoucher_BTN", "Image1"}));
}

void RefreshAutoVouchersTest::theCaptionFitsTheButton()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    const TSmartButton_TRV* button = form.Bar->RefreshVoucher_BTN;
    QCOMPARE(button->width(), 195);
    QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= 195 - 2 * Look::RingWidth);
}

void RefreshAutoVouchersTest::withoutTheCheckTheBarIsHiddenWhateverTheData()
{
    TForm form;
    form.Host.Accounting.RefreshAwaits = true;
    const TShowCounter shown(form.Bar);
    QVERIFY(form.Show());
    TForm::Load();
    QVERIFY(!form.Bar->isVisible());
    QCOMPARE(shown.Count, 0);
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("ExistRefreshAutoVoucher")), 0);
}

void RefreshAutoVouchersTest::withTheCheckTheBarShowsItselfWhenNeeded_data()
{
    QTest::addColumn<bool>("awaits");
    QTest::newRow("vouchers await") << true;
    QTest::newRow("none") << false;
}

void RefreshAutoVouchersTest::withTheCheckTheBarShowsItselfWhenNeeded()
{
    QFETCH(const bool, awaits);
    TForm form;
    form.Host.Accounting.RefreshAwaits = awaits;
    form.Bar->SetCheckVisibleOnLoad(true);
    QVERIFY(form.Show());
    TForm::Load();
    QCOMPARE(form.Bar->isVisible(), awaits);
    QCOMPARE(form.Bar->Image1->movie()->state(), awaits ? QMovie::Running : QMovie::Paused);
    QCOMPARE(form.Host.Log.Lines(), QStringList{QStringLiteral("ExistRefreshAutoVoucher()")});
}

void RefreshAutoVouchersTest::checkRefreshFollowsTheHost()
{
    TForm form;
    QVERIFY(form.Show());
    TForm::Load();
    for (const bool awaits : {true, false, true}) {
        form.Host.Accounting.RefreshAwaits = awaits;
        form.Bar->CheckRefresh();
        QCOMPARE(form.Bar->isVisible(), awaits);
    }
}

void RefreshAutoVouchersTest::theBarHidesItselfWhenNothingIsLeft()
{
    TForm form;
    form.Host.Accounting.RefreshAwaits = true;
    form.Bar->SetCheckVisibleOnLoad(true);
    QVERIFY(form.Show());
    TForm::Load();
    form.Host.Log.Clear();
    form.Host.Accounting.WhileRegenerating = [&form] { form.Host.Accounting.RefreshAwaits = false; };
    TForm::Click(form.Bar->RefreshVoucher_BTN);
    QCOMPARE(form.Host.Log.Lines(), (QStringList{QStringLiteral("SaveAutoVouchersAgain(, , , 0)"),
                                                 QStringLiteral("ExistRefreshAutoVoucher()")}));
    QVERIFY(!form.Bar->isVisible());
}

void RefreshAutoVouchersTest::theBarStaysWhileVouchersStillAwait()
{
    TForm form;
    form.Host.Accounting.RefreshAwaits = true;
    form.Bar->SetCheckVisibleOnLoad(true);
    QVERIFY(form.Show());
    TForm::Load();
    TForm::Click(form.Bar->RefreshVoucher_BTN);
    QVERIFY(form.Bar->isVisible());
}

void RefreshAutoVouchersTest::theBarMayGoAwayDuringTheRegeneration()
{
    TForm form;
    form.Host.Accounting.WhileRegenerating = [&form] { delete form.Bar; };
    form.Bar->RefreshVoucher_BTNClick(nullptr);
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("ExistRefreshAutoVoucher")), 0);
}

void RefreshAutoVouchersTest::anErrorOfTheHostReachesTheCallerAndTheBarStays()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    form.Host.Accounting.WhileRegenerating = [] { throw std::runtime_error("no connection"); };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, form.Bar->RefreshVoucher_BTNClick(nullptr));
    QVERIFY(form.Bar->isVisible());
}

QTEST_MAIN(RefreshAutoVouchersTest)
#include "RefreshAutoVouchersTest.moc"
