#include "VoucherConflictCheck.h"
#include "ReferenceHost.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "TestCase.h"
#include "TradeFixture.h"

#include <QSignalSpy>
#include <QThread>
#include <QVBoxLayout>

namespace {

/// A control that notes in which thread its visibility is changed.
class TNotingControl : public QWidget
{
public:
    using QWidget::QWidget;
    void setVisible(bool visible) override
    {
        InOwnThread = InOwnThread && QThread::currentThread() == thread();
        QWidget::setVisible(visible);
    }
    bool InOwnThread = true;
};

} // namespace

class VoucherConflictCheckTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theControlFollowsTheData();
    void theCheckLooksThroughAConnectionOfItsOwn();
    void severalControlsGetTheNewestAnswer();
    void aControlThatHasGoneIsForgotten();
    void theHostMayGoAwayWhileItChecks();
    void theFlagIsThatOfTheLastCheck();
    void aCheckThatFailsLeavesTheControlAsItIs();
    void theBarDisappearsByItself();
};

void VoucherConflictCheckTest::theControlFollowsTheData()
{
    TTradeFixture shop;
    TVoucherConflictCheck check(*shop.Connection);
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    QWidget form;
    TNotingControl control(&form);
    form.show();
    check.Start(&control);
    QVERIFY(control.isVisible());
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!control.isVisible());
    shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/02")), {{90001, 1, 1000}});
    check.Start(&control);
    QTRY_COMPARE(finished.size(), 2);
    QVERIFY(control.isVisible());
    QVERIFY(control.InOwnThread);
    QVERIFY(!check.IsBusy());
}

void VoucherConflictCheckTest::theCheckLooksThroughAConnectionOfItsOwn()
{
    TTradeFixture shop;
    TVoucherConflictCheck check(*shop.Connection);
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    // What the application has not committed is nobody else's business yet.
    shop.Connection->BeginTrans();
    shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/02")), {{90001, 1, 1000}});
    QVERIFY(TAutoVouchers::AnyMissing(*shop.Connection));
    check.Start(nullptr);
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!check.Conflicts());
    shop.Connection->RollbackTrans();
}

void VoucherConflictCheckTest::severalControlsGetTheNewestAnswer()
{
    TTradeFixture shop;
    TVoucherConflictCheck check(*shop.Connection);
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    QWidget form;
    QWidget first(&form);
    QWidget second(&form);
    form.show();
    check.Start(&first);
    check.Start(&second);
    QTRY_VERIFY(!check.IsBusy() && !finished.isEmpty());
    QVERIFY(!first.isVisible());
    QVERIFY(!second.isVisible());
}

void VoucherConflictCheckTest::aControlThatHasGoneIsForgotten()
{
    TTradeFixture shop;
    TVoucherConflictCheck check(*shop.Connection);
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    auto control = std::make_unique<QWidget>();
    check.Start(control.get());
    control.reset();
    QTRY_COMPARE(finished.size(), 1);
}

void VoucherConflictCheckTest::theHostMayGoAwayWhileItChecks()
{
    TTradeFixture shop;
    QWidget control;
    control.show();
    for (int time = 0; time < 20; ++time) {
        TVoucherConflictCheck check(*shop.Connection);
        check.Start(&control);
    }
    QCoreApplication::processEvents();
    QVERIFY(control.isVisible());
}

void VoucherConflictCheckTest::theFlagIsThatOfTheLastCheck()
{
    TTradeFixture shop;
    TVoucherConflictCheck check(*shop.Connection);
    QVERIFY(!check.Conflicts());
    shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/02")), {{90001, 1, 1000}});
    QVERIFY(!check.Conflicts());
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    check.Start(nullptr);
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(check.Conflicts());
}

void VoucherConflictCheckTest::aCheckThatFailsLeavesTheControlAsItIs()
{
    TTradeFixture shop;
    shop.Run(QStringLiteral("DROP TABLE dbo.TradeRows"));
    shop.Run(QStringLiteral("DROP TABLE dbo.Trades"));
    TVoucherConflictCheck check(*shop.Connection);
    const QSignalSpy finished(&check, &TVoucherConflictCheck::finished);
    QWidget control;
    control.show();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Operations without vouchers")));
    check.Start(&control);
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(control.isVisible());
}

void VoucherConflictCheckTest::theBarDisappearsByItself()
{
    TTradeFixture shop;
    QTemporaryDir folder;
    THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    settings.SetUserInfo({1, QStringLiteral("کاربر")});
    const TReferenceHost host(*shop.Connection, settings);
    const int sale = shop.Add(TTradeFixture::Sale, shop.Date(QStringLiteral("02/02")), {{90001, 1, 1000}});
    QWidget form;
    auto* column = new QVBoxLayout(&form);
    auto* bar = new TSaveAutoVouchers_FRME(&form);
    bar->SetCheckVisibleOnLoad(true);
    column->addWidget(bar);
    form.show();
    QTRY_VERIFY(bar->isVisible());
    bar->SaveVoucher_BTNClick(nullptr);
    QVERIFY(bar->isVisible());
    QVERIFY(shop.VoucherOf(sale) != 0);
    QTRY_VERIFY(!bar->isVisible());
}

QTEST_MAIN(VoucherConflictCheckTest)
#include "VoucherConflictCheckTest.moc"
