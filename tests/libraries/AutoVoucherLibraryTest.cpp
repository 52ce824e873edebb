#include "AutoVoucherLibrary.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "ReferenceHost.h"
#include "RefreshAutoVouchersFrame_UNT.h"
#include "TradeFixture.h"

class AutoVoucherLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        shop_ = std::make_unique<TTradeFixture>();
        settings_ = std::make_unique<THostSettings>(folder_.filePath(QStringLiteral("settings.ini")));
        settings_->SetUserInfo({1, QStringLiteral("کاربر")});
        host_ = std::make_unique<TReferenceHost>(*shop_->Connection, *settings_);
    }

    void cleanup()
    {
        host_.reset();
        settings_.reset();
        shop_.reset();
    }

    void theMissingVouchersAreGeneratedAndCounted()
    {
        const int first = Sell(QStringLiteral("02/02"));
        const int second = Sell(QStringLiteral("02/03"));
        QCOMPARE(Call(), 2);
        QVERIFY(shop_->VoucherOf(first) != 0);
        QVERIFY(shop_->VoucherOf(second) != 0);
        QCOMPARE(
            shop_->Number(
                QStringLiteral("SELECT UserCode FROM dbo.Sanad WHERE Id = %1").arg(shop_->VoucherOf(second))),
            1);
        QCOMPARE(Call(), 0);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void theUserIsToldOfWhatIsLeft()
    {
        const int closedYear = shop_->Number(QStringLiteral("SELECT MIN(Code) FROM dbo.FiscalYears"));
        shop_->Run(QStringLiteral("UPDATE dbo.FiscalYears SET Closed = 1 WHERE Code = %1").arg(closedYear));
        shop_->Add(TTradeFixture::Sale, shop_->Date(QStringLiteral("02/02"), closedYear), {{90001, 1, 1000}});
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        QCOMPARE(Call(), 0);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY(answer.Texts.constFirst().contains(QStringLiteral("سال‌های مالی بسته")));
    }

    void withoutAUserItIsRefusedInWords()
    {
        settings_->SetUserInfo({});
        Sell(QStringLiteral("02/02"));
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        QCOMPARE(Call(), 0);
        QVERIFY(answer.Texts.value(0).contains(QStringLiteral("کاربری وارد نشده است")));
    }

    void noErrorLeavesTheLibrary()
    {
        shop_->Run(QStringLiteral("DROP TABLE dbo.AutoVoucherSetting"));
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        QCOMPARE(Call(), 0);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void theServiceGeneratesAgainAndTheBarHidesItself()
    {
        const int sale = Sell(QStringLiteral("02/03"));
        QCOMPARE(Call(), 1);
        QVERIFY(!Host().Accounting.ExistRefreshAutoVoucher());
        shop_->Correct(shop_->Date(QStringLiteral("02/02")), QStringLiteral("-1"));
        QVERIFY(Host().Accounting.ExistRefreshAutoVoucher());
        TRefreshAutoVouchers_FRME bar;
        bar.show();
        bar.RefreshVoucher_BTNClick(nullptr);
        QVERIFY(!bar.isVisible());
        QVERIFY(!Host().Accounting.ExistRefreshAutoVoucher());
        QVERIFY(shop_->VoucherOf(sale) != 0);
    }

private:
    static int Call()
    {
        return Host().Libraries.Run_DLL_FuncReturnInt(QString::fromUtf16(AutoVoucherLibrary),
                                                      QString::fromUtf16(AutoVoucherFunction));
    }
    int Sell(const QString& day)
    {
        return shop_->Add(TTradeFixture::Sale, shop_->Date(day), {{90001, 1, 1000}});
    }

    QTemporaryDir folder_;
    std::unique_ptr<TTradeFixture> shop_;
    std::unique_ptr<THostSettings> settings_;
    std::unique_ptr<TReferenceHost> host_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AutoVoucherLibraryTest>(argc, argv);
}
#include "AutoVoucherLibraryTest.moc"
