#include "Look.h"
#include "NoticeForm.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"

#include <QApplication>

namespace {

using TForm = TNoticeForm<TSaveAutoVouchers_FRME>;

const QString& Message()
{
    static const QString text = QStringLiteral(
        "بعضی از عملیات شما فاقد سند حسابداری می باشند، بنابراین مانده های نهایی شما صحیح نمی باشد. "
        "از طریق دکمه مقابل \"ثبت اسناد\" می توانید ثبت نمایید،. ");
    return text;
}

} // namespace

class SaveAutoVouchersTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theFormIsAsDesigned();
    void theComponentsStandInTheirOrder();
    void theColoursStayInTheDarkScheme();
    void withoutTheCheckTheBarIsHiddenWhateverTheData();
    void aHiddenBarNeverFlashes();
    void withTheCheckTheBarShowsItselfWhenNeeded_data();
    void withTheCheckTheBarShowsItselfWhenNeeded();
    void checkConflictsFollowsTheHost();
    void anOwnerWhoShowsTheBarHasHisWay();
    void thePictureMovesWhileItIsShown();
    void clickingGeneratesAndStartsTheCheck();
    void theClickItselfDoesNotHideTheBar();
    void theKeyboardClicks();
    void theBarMayGoAwayDuringTheGeneration();
    void theListOfPersonsIsHiddenAndDoesNothing();
    void aNarrowBarGrowsRatherThanClips();
    void anErrorOfTheHostReachesTheCaller();
};

void SaveAutoVouchersTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    TSaveAutoVouchers_FRME frame;
    QCOMPARE(frame.size(), QSize(451, 45));
    QVERIFY(!frame.CheckVisibleOnLoad());
    QCOMPARE(frame.RefreshVoucherNotifiy_LBL->Caption(), Message());
    QVERIFY(frame.RefreshVoucherNotifiy_LBL->alignment().testFlag(Qt::AlignVCenter));
    QCOMPARE(frame.SaveVoucher_BTN->text(), QStringLiteral("ثبت اسناد"));
    QCOMPARE(frame.AccountConflictsList_BTN->text(), QStringLiteral("لیست اشخاص"));
    QCOMPARE(frame.SaveVoucherNotification_PNL->Bevel(), TSmartPanel_TRV::bvLowered);
    QVERIFY(frame.Image1->hasScaledContents());
    frame.Loaded();
    QVERIFY(frame.Image1->movie()->isValid());
    QVERIFY(frame.Image1->movie()->frameCount() > 1);
    QCOMPARE(host.Log.Lines(), QStringList());
}

void SaveAutoVouchersTest::theComponentsStandInTheirOrder()
{
    const TRecordingHost host;
    TSaveAutoVouchers_FRME frame;
    QCOMPARE(ComponentNames(frame),
             (QStringList{"SaveVoucherNotification_PNL", "SaveVoucherNotifi_PNL", "RefreshVoucherNotifiy_LBL",
                          "SaveVoucher_BTN", "Image1", "AccountConflictsList_BTN"}));
    frame.resize(1000, 45);
    frame.grab();
    const auto left = [&frame](const QWidget* control) { return control->mapTo(&frame, QPoint()).x(); };
    QVERIFY(left(frame.Image1) > left(frame.RefreshVoucherNotifiy_LBL));
    QVERIFY(left(frame.RefreshVoucherNotifiy_LBL) > left(frame.SaveVoucher_BTN));
    QVERIFY(left(frame.Image1) + frame.Image1->width() > frame.width() - 10);
}

void SaveAutoVouchersTest::theColoursStayInTheDarkScheme()
{
    const TRecordingHost host;
    for (const Look::TScheme scheme : {Look::TScheme::Dark, Look::TScheme::Light}) {
        Look::SetScheme(scheme);
        TSaveAutoVouchers_FRME frame;
        const QImage image = frame.grab().toImage();
        QCOMPARE(image.pixelColor(1, 20), QColor(0x36, 0x36, 0x36));
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::white));
        const QColor ink = frame.RefreshVoucherNotifiy_LBL->palette().color(QPalette::WindowText);
        QVERIFY(Look::Contrast(ink, Qt::white) >= 4.5);
    }
}

void SaveAutoVouchersTest::withoutTheCheckTheBarIsHiddenWhateverTheData()
{
    TForm form;
    form.Host.Accounting.Conflicts = true;
    QVERIFY(form.Show());
    TForm::Load();
    QVERIFY(!form.Bar->isVisible());
    QVERIFY(form.Bar->isHidden());
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("VoucherConflicts")), 0);
}

void SaveAutoVouchersTest::aHiddenBarNeverFlashes()
{
    TForm form;
    form.Bar->SetCheckVisibleOnLoad(true);
    const TShowCounter shown(form.Bar);
    QVERIFY(form.Show());
    TForm::Load();
    QCOMPARE(shown.Count, 0);
    QCOMPARE(form.Report->y(), 0);
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("VoucherConflicts")), 1);
}

void SaveAutoVouchersTest::withTheCheckTheBarShowsItselfWhenNeeded_data()
{
    QTest::addColumn<bool>("conflicts");
    QTest::addColumn<bool>("loadedBeforeItIsShown");
    QTest::newRow("conflicts, loaded first") << true << true;
    QTest::newRow("conflicts, shown first") << true << false;
    QTest::newRow("none, loaded first") << false << true;
    QTest::newRow("none, shown first") << false << false;
}

void SaveAutoVouchersTest::withTheCheckTheBarShowsItselfWhenNeeded()
{
    QFETCH(const bool, conflicts);
    QFETCH(const bool, loadedBeforeItIsShown);
    TForm form;
    form.Host.Accounting.Conflicts = conflicts;
    form.Bar->SetCheckVisibleOnLoad(true);
    if (loadedBeforeItIsShown)
        TForm::Load();
    QVERIFY(form.Show());
    TForm::Load();
    QCOMPARE(form.Bar->isVisible(), conflicts);
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("VoucherConflicts")), 1);
}

void SaveAutoVouchersTest::checkConflictsFollowsTheHost()
{
    TForm form;
    QVERIFY(form.Show());
    TForm::Load();
    for (const bool conflicts : {true, false, true}) {
        form.Host.Accounting.Conflicts = conflicts;
        form.Bar->CheckConflicts();
        QCOMPARE(form.Bar->isVisible(), conflicts);
    }
}

void SaveAutoVouchersTest::anOwnerWhoShowsTheBarHasHisWay()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    TForm::Load();
    QVERIFY(form.Bar->isVisible());
    QCOMPARE(form.Host.Log.Lines(), QStringList());
}

void SaveAutoVouchersTest::thePictureMovesWhileItIsShown()
{
    TForm form;
    form.Host.Accounting.Conflicts = true;
    form.Bar->SetCheckVisibleOnLoad(true);
    QVERIFY(form.Show());
    TForm::Load();
    const QMovie* movie = form.Bar->Image1->movie();
    QCOMPARE(movie->state(), QMovie::Running);
    const int frame = movie->currentFrameNumber();
    QTRY_VERIFY(movie->currentFrameNumber() != frame);
    form.Bar->hide();
    QCOMPARE(movie->state(), QMovie::Paused);
    form.Bar->show();
    QCOMPARE(movie->state(), QMovie::Running);
    form.Form->hide();
    QCOMPARE(movie->state(), QMovie::Paused);
}

void SaveAutoVouchersTest::clickingGeneratesAndStartsTheCheck()
{
    TForm form;
    form.Bar->setObjectName(QStringLiteral("Bar"));
    form.Bar->show();
    QVERIFY(form.Show());
    form.Host.Log.Clear();
    form.Host.Libraries.Result = 7;
    TForm::Click(form.Bar->SaveVoucher_BTN);
    QCOMPARE(form.Host.Log.Lines(),
             (QStringList{QStringLiteral("Run_DLL_FuncReturnInt(AutoVoucher_TRV.dll, CallSaveAutoVouchers)"),
                          QStringLiteral("VoucherConflictThread_Start(Bar)")}));
    QCOMPARE(form.Host.Accounting.ConflictControl.data(), form.Bar);
}

void SaveAutoVouchersTest::theClickItselfDoesNotHideTheBar()
{
    TForm form;
    form.Host.Accounting.Conflicts = true;
    form.Bar->SetCheckVisibleOnLoad(true);
    QVERIFY(form.Show());
    TForm::Load();
    form.Host.Accounting.Conflicts = false;
    TForm::Click(form.Bar->SaveVoucher_BTN);
    QVERIFY(form.Bar->isVisible());
}

void SaveAutoVouchersTest::theKeyboardClicks()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    form.Host.Log.Clear();
    form.Bar->SaveVoucher_BTN->setFocus();
    Typing::Press(form.Bar->SaveVoucher_BTN, Qt::Key_Space);
    QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Run_DLL_FuncReturnInt")), 1);
}

void SaveAutoVouchersTest::theBarMayGoAwayDuringTheGeneration()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    form.Host.Log.Clear();
    form.Host.Libraries.WhileRunning = [&form] { delete form.Bar; };
    form.Bar->SaveVoucher_BTNClick(form.Bar->SaveVoucher_BTN);
    QCOMPARE(form.Host.Log.Lines(),
             QStringList{QStringLiteral("Run_DLL_FuncReturnInt(AutoVoucher_TRV.dll, CallSaveAutoVouchers)")});
}

void SaveAutoVouchersTest::theListOfPersonsIsHiddenAndDoesNothing()
{
    TForm form;
    form.Bar->show();
    QVERIFY(form.Show());
    QVERIFY(!form.Bar->AccountConflictsList_BTN->isVisible());
    form.Host.Log.Clear();
    form.Bar->AccountConflictsList_BTN->Click();
    QCOMPARE(form.Host.Log.Lines(), QStringList());
}

void SaveAutoVouchersTest::aNarrowBarGrowsRatherThanClips()
{
    TForm form;
    form.Bar->show();
    form.Form->resize(1200, 300);
    QVERIFY(form.Show());
    QCOMPARE(form.Bar->height(), 45);
    form.Form->resize(460, 300);
    TForm::Load();
    const TSmartLabel_TRV* label = form.Bar->RefreshVoucherNotifiy_LBL;
    QVERIFY(form.Bar->height() > 45);
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

void SaveAutoVouchersTest::anErrorOfTheHostReachesTheCaller()
{
    TForm form;
    form.Host.Libraries.WhileRunning = [] { throw std::runtime_error("the library is broken"); };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, form.Bar->SaveVoucher_BTNClick(nullptr));
}

QTEST_MAIN(SaveAutoVouchersTest)
#include "SaveAutoVouchersTest.moc"
