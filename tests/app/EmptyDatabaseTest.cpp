#include "FormFixture.h"

#include "DetailAccountForm.h"
#include "ListForm.h"
#include "Select_AccountCode_UNT.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "VoucherBand.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"
#include "VoucherTotals.h"

/// The forms over tables without rows.
class EmptyDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        shop_ = std::make_unique<TFormFixture>();
        for (const QString& table :
             {QStringLiteral("TradeRows"), QStringLiteral("Trades"), QStringLiteral("Sanad_Detail"),
              QStringLiteral("Sanad"), QStringLiteral("fiscal"), QStringLiteral("FiscalYears"),
              QStringLiteral("AccDetails"), QStringLiteral("AccAssistants"), QStringLiteral("AccTotals"),
              QStringLiteral("AccGroups"), QStringLiteral("AccDetailTypes"),
              QStringLiteral("ExpenseCenters")})
            shop_->Connection.Execute(QStringLiteral("DELETE FROM dbo.") + table);
    }
    void cleanupTestCase() { shop_.reset(); }
    void init() { shop_->Told.clear(); }
    void cleanup() { shop_->Form.reset(); }

    void theVoucherFormSaysThatThereIsNoFiscalYear()
    {
        TVoucherForm& form = shop_->Open<TVoucherForm>();
        QVERIFY(form.HeadBar().Year() == nullptr);
        QVERIFY(form.Totals().Told().contains(QStringLiteral("سال مالی")));
        QVERIFY(!form.Band().Debit().isEnabled());
        shop_->Press(Qt::Key_F2);
        QCOMPARE(form.Draft().Head.Id, 0);
        shop_->Press(Qt::Key_F3);
        shop_->TypeAndEnter(QStringLiteral("1"));
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(form.MayClose());
    }

    void theDetailAccountFormHasNoKindAndOpensNoCard()
    {
        TDetailAccountForm& form = shop_->Open<TDetailAccountForm>();
        QCOMPARE(form.Kind(), 0);
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(form.Card() == nullptr);
        form.List().OpenCard();
        QVERIFY(form.Card() == nullptr);
    }

    void theFirstVoucherOfAYearGetsTheNumberOne()
    {
        shop_->Connection.Execute(QStringLiteral(
            "INSERT INTO dbo.FiscalYears (Code, Title, FromDate, ToDate) VALUES (1405, N'سال', N'1405/01/01', "
            "N'1405/12/29')"));
        TVoucherForm& form = shop_->Open<TVoucherForm>();
        QCOMPARE(form.HeadBar().Number().placeholderText(), QStringLiteral("1"));
        form.HeadBar().Title().SetText(QStringLiteral("سند"));
        shop_->Press(Qt::Key_F2);
        QCOMPARE(form.Draft().Head.Id, 0);
        QVERIFY(form.Band().Selector().TotalCode_EDT->HasError());
    }

private:
    std::unique_ptr<TFormFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunFormTest<EmptyDatabaseTest>(argc, argv);
}
#include "EmptyDatabaseTest.moc"
