#include "VoucherNotices.h"

#include "AutoVouchers.h"
#include "FormFixture.h"
#include "ListForm.h"
#include "PageExtras.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "ReportForm.h"
#include "SaveAutoVouchersFrame_UNT.h"
#include "SmartButton_TRV.h"
#include "StockLedger.h"
#include "VoucherGlance.h"
#include <QSignalSpy>

namespace {

/// A shop in which everything has its voucher, and a page with the bars.
struct TShopPage : TFormFixture
{
    TShopPage()
    {
        Generator().SaveMissing();
        Connection.Execute(QStringLiteral("UPDATE dbo.Trades SET NeedsRefresh = 0"));
    }

    TAutoVouchers Generator() { return {Connection, {1, QStringLiteral("2026-01-02T03:04:05")}}; }

    TVoucherNotices& OpenReport()
    {
        auto report = std::make_unique<TReportForm>(Host);
        Report = report.get();
        PageExtras::AddTo(*report, Host);
        Form = std::move(report);
        ShowPage();
        Form->Enter();
        return *Form->findChild<TVoucherNotices*>();
    }

    void ShowPage() const
    {
        Form->resize(1000, 600);
        Form->show();
        Activate(Form.get());
        QTRY_VERIFY(!Busy());
    }
    bool Busy() const { return const_cast<TReferenceHost&>(Host).VoucherConflictCheck().IsBusy(); }

    /// Takes the voucher of the last sale of the open year away.
    int LoseVoucher()
    {
        const int trade = LastSale();
        Connection.Execute(QStringLiteral("UPDATE dbo.Trades SET SanadId = NULL WHERE Id = ?"), {trade});
        return trade;
    }
    int LastSale()
    {
        return Text(QStringLiteral(
                        "SELECT TOP 1 t.Id FROM dbo.Trades AS t INNER JOIN dbo.FiscalYears AS y ON y.Code "
                        "= t.FiscalYear WHERE t.Kind = 1 AND y.Closed = 0 ORDER BY t.TradeDate DESC"))
            .toInt();
    }

    TReportForm* Report = nullptr;
};

} // namespace

class VoucherNoticesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { shop_ = std::make_unique<TShopPage>(); }
    void cleanup() { shop_.reset(); }
    void whereAllIsWellThereAreNoBars();
    void missingVouchersAreToldAndGenerated();
    void vouchersToGenerateAgainAreToldAndGenerated();
    void comingBackToThePageAsksAgain();
    void aGlanceShowsTheWholeVoucher();

private:
    std::unique_ptr<TShopPage> shop_;
};

void VoucherNoticesTest::whereAllIsWellThereAreNoBars()
{
    TVoucherNotices& notices = shop_->OpenReport();
    QTest::qWait(50);
    QVERIFY(!notices.SaveBar().isVisible());
    QVERIFY(!notices.RefreshBar().isVisible());
    QCOMPARE(notices.height(), 0);
}

void VoucherNoticesTest::missingVouchersAreToldAndGenerated()
{
    const int trade = shop_->LoseVoucher();
    TVoucherNotices& notices = shop_->OpenReport();
    QTRY_VERIFY(notices.SaveBar().isVisible());
    QVERIFY(!notices.RefreshBar().isVisible());
    QCOMPARE(notices.y(), 0);
    QVERIFY(shop_->Report->DataSet().WaitForFirstPage());
    const QSignalSpy readAgain(&shop_->Report->DataSet(), &TDataSet::dataChanged);
    QTest::mouseClick(notices.SaveBar().SaveVoucher_BTN, Qt::LeftButton);
    QTRY_VERIFY(!readAgain.isEmpty());
    QVERIFY(shop_->Text(QStringLiteral("SELECT SanadId FROM dbo.Trades WHERE Id = %1").arg(trade)).toInt() >
            0);
    QTRY_VERIFY(!notices.SaveBar().isVisible());
    QCOMPARE(shop_->Told, QStringList());
}

void VoucherNoticesTest::vouchersToGenerateAgainAreToldAndGenerated()
{
    const int trade = shop_->LastSale();
    const QString kala =
        shop_->Text(QStringLiteral("SELECT TOP 1 KalaCode FROM dbo.TradeRows WHERE TradeId = %1").arg(trade));
    const QString date =
        shop_->Text(QStringLiteral("SELECT TradeDate FROM dbo.Trades WHERE Id = %1").arg(trade));
    QVERIFY(
        TStockLedger(shop_->Connection)
            .Correct(
                {kala.toInt(), date, QStringLiteral("-1"), {}, 1, QStringLiteral("2026-01-02T03:04:05")}) >=
        1);
    TVoucherNotices& notices = shop_->OpenReport();
    QTRY_VERIFY(notices.RefreshBar().isVisible());
    QVERIFY(!notices.SaveBar().isVisible());
    QTest::mouseClick(notices.RefreshBar().RefreshVoucher_BTN, Qt::LeftButton);
    QVERIFY(!notices.RefreshBar().isVisible());
    QVERIFY(!TAutoVouchers::AnyAwaiting(shop_->Connection));
}

void VoucherNoticesTest::comingBackToThePageAsksAgain()
{
    TVoucherNotices& notices = shop_->OpenReport();
    QVERIFY(!notices.SaveBar().isVisible());
    shop_->Form->hide();
    shop_->LoseVoucher();
    shop_->Form->show();
    QTRY_VERIFY(notices.SaveBar().isVisible());
}

void VoucherNoticesTest::aGlanceShowsTheWholeVoucher()
{
    shop_->OpenReport();
    TReportForm& report = *shop_->Report;
    QVERIFY(report.DataSet().WaitForFirstPage());
    report.Grid().setFocus();
    shop_->Press(Qt::Key_Home);
    shop_->Press(Qt::Key_Down);
    const QString number = report.DataSet().FieldByName(QStringLiteral("Number"))->AsString();
    const int lines =
        shop_
            ->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.VoucherRows WHERE FiscalYear = %1 AND "
                                  "Number = %2")
                       .arg(report.DataSet().FieldByName(QStringLiteral("FiscalYear"))->AsString(), number))
            .toInt();
    shop_->Press(Qt::Key_Return, Qt::ControlModifier);
    auto* glance = report.findChild<TVoucherGlance*>();
    QVERIFY(glance != nullptr);
    QVERIFY(glance->Head().startsWith(QStringLiteral("سند %1 —").arg(number)));
    QCOMPARE(glance->Lines().RecordCount(), lines);
    const QString totals = glance->Totals();
    QCOMPARE(totals.section(u':', 1).section(u' ', 1, 1), totals.section(u':', 2).trimmed());
    glance->reject();
}

int main(int argc, char** argv)
{
    return RunFormTest<VoucherNoticesTest>(argc, argv);
}
#include "VoucherNoticesTest.moc"
