#include "FormFixture.h"

#include "CurrencyFrame_UNT.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "VoucherBand.h"
#include "VoucherCurrency.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"
#include "VoucherTotals.h"

/// Vouchers in a foreign currency, typed into the form. Dollars (2) have two rates in the test's year, dinars
/// (8) none.
class VoucherCurrencyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        shop_ = std::make_unique<TFormFixture>();
        shop_->Connection.Execute(QStringLiteral("DELETE FROM dbo.AccCrConvRate"));
        for (const QString& row : {QStringLiteral("2, N'1403/01/01', 600000"),
                                   QStringLiteral("2, N'1403/06/15', 512300.123456789")})
            shop_->Connection.Execute(
                QStringLiteral("INSERT INTO dbo.AccCrConvRate (AccCurrencyID, CrRateDate, "
                               "CrRateConvRate) VALUES (%1)")
                    .arg(row));
    }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->Told.clear();
        form_ = &shop_->Open<TVoucherForm>();
        form_->HeadBar().Date().SetText(QStringLiteral("1403/07/01"));
        form_->HeadBar().Title().SetText(QStringLiteral("خرید دلار"));
    }
    void cleanup() { shop_->Form.reset(); }

    void theBaseCurrencyIsChosenAtFirstAndSaysNothing()
    {
        QCOMPARE(Currency().Frame().GetCodeValue(), 1);
        QCOMPARE(Currency().RateSentence(), QString());
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("10"));
        QCOMPARE(Currency().AmountSentence(), QString());
        QVERIFY(!Currency().Frame().CurrencyRate_EDT->isEnabled());
    }

    void aForeignVoucherIsTypedConvertedSavedAndReadBack()
    {
        TypeAccount(QStringLiteral("102"), QStringLiteral("3"));
        ChooseDollars();
        QVERIFY(Currency().RateSentence().contains(QStringLiteral("نرخ روز")));
        QVERIFY(Currency().RateSentence().contains(QStringLiteral("1403/06/15")));
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("1234.5678"));
        QVERIFY2(Currency().AmountSentence().contains(QStringLiteral("632٬469٬236٫3558")),
                 qPrintable(Currency().AmountSentence()));
        QVERIFY(Currency().AmountSentence().endsWith(QStringLiteral("ریال")));
        EnterLine();
        QCOMPARE(form_->Draft().Count(), 1);
        TypeAccount(QStringLiteral("101"), QStringLiteral("2"));
        QCOMPARE(Currency().Frame().GetCodeValue(), 2); // stays for the next line
        form_->Band().Credit().setFocus();
        shop_->Type(QStringLiteral("1234.5678"));
        EnterLine();
        QVERIFY(form_->Totals().BalanceText().contains(QStringLiteral("تراز")));
        shop_->Press(Qt::Key_F2);
        QCOMPARE(shop_->Told, QStringList());
        QVERIFY(!form_->IsChanged());
        QCOMPARE(Currency().Frame().GetCodeValue(), 1);
        const int id = form_->Draft().Head.Id;
        QCOMPARE(Stored(QStringLiteral("Bed"), id, 1), QStringLiteral("632469236.3558"));
        QCOMPARE(Stored(QStringLiteral("Bes"), id, 2), QStringLiteral("632469236.3558"));
        QCOMPARE(Stored(QStringLiteral("CurrCode"), id, 1), QStringLiteral("2"));
        QCOMPARE(Stored(QStringLiteral("CurrRate"), id, 1), QStringLiteral("512300.123456789"));
        QCOMPARE(Stored(QStringLiteral("CurrAmount"), id, 1), QStringLiteral("1234.5678"));
        const int number = form_->Draft().Head.Number;
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        form_->OpenVoucher(number);
        const TVoucherLine line = form_->Draft().Lines().constFirst();
        QCOMPARE(line.Currency.Code, 2);
        QCOMPARE(line.Currency.Amount, QStringLiteral("1234.5678"));
        QCOMPARE(Shown(QStringLiteral("CurrTitle")), QStringLiteral("دلار"));
        QCOMPARE(Shown(QStringLiteral("CurrAmount")), QStringLiteral("1234.5678"));
    }

    void aMissingRateIsRefusedAndNeverTakenAsOne()
    {
        TypeAccount(QStringLiteral("102"), QStringLiteral("3"));
        Currency().Frame().SetCodeValue(8);
        QCOMPARE(Currency().Frame().CurrencyRate_EDT->Text(), QStringLiteral("0"));
        QVERIFY(Currency().RateSentence().contains(QStringLiteral("نرخی ثبت نشده")));
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("10"));
        EnterLine();
        QCOMPARE(form_->Draft().Count(), 0);
        QCOMPARE(shop_->Told.size(), 1);
        QVERIFY2(shop_->Told.constFirst().contains(QStringLiteral("نرخ ارز")),
                 qPrintable(shop_->Told.constFirst()));
        QCOMPARE(shop_->Focus(), Currency().Frame().CurrencyRate_EDT);
        shop_->TypeAndEnter(QStringLiteral("365.5"));
        QCOMPARE(shop_->Focus(), &form_->Band().Debit());
        EnterLine();
        QCOMPARE(form_->Draft().Count(), 1);
        QCOMPARE(form_->Draft().Lines().constFirst().Debit, QStringLiteral("3655"));
    }

    void aRateWithoutRoomIsRefusedAtItsBox()
    {
        TypeAccount(QStringLiteral("102"), QStringLiteral("3"));
        ChooseDollars();
        Currency().Frame().CurrencyRate_EDT->setFocus();
        Currency().Frame().CurrencyRate_EDT->selectAll();
        shop_->Type(QStringLiteral("12345678901"));
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("1"));
        EnterLine();
        QCOMPARE(form_->Draft().Count(), 0);
        QVERIFY(Currency().Frame().CurrencyRate_EDT->HasError());
        QCOMPARE(shop_->Focus(), Currency().Frame().CurrencyRate_EDT);
    }

    void theRateFollowsTheVouchersDayUnlessOneIsTyped()
    {
        ChooseDollars();
        form_->HeadBar().Date().SetText(QStringLiteral("1403/02/01"));
        QCOMPARE(Currency().Frame().CurrencyRate_EDT->Text(), QStringLiteral("600000"));
        QVERIFY(Currency().RateSentence().contains(QStringLiteral("1403/01/01")));
        Currency().Frame().CurrencyRate_EDT->setFocus();
        Currency().Frame().CurrencyRate_EDT->selectAll();
        shop_->Type(QStringLiteral("650000"));
        QVERIFY(Currency().RateSentence().startsWith(QStringLiteral("نرخ دستی")));
        form_->HeadBar().Date().SetText(QStringLiteral("1403/07/01"));
        QCOMPARE(Currency().Frame().CurrencyRate_EDT->Text(), QStringLiteral("650000"));
        QVERIFY(Currency().RateSentence().contains(QStringLiteral("512٬300٫123456789")));
    }

    void enterGoesPastTheListButThroughAForeignRate()
    {
        form_->Band().FocusTotal();
        shop_->Press(Qt::Key_F8);
        QVERIFY(Currency().Frame().CurrencyType_CMB->hasFocus());
        shop_->Press(Qt::Key_Down);
        QCOMPARE(Currency().Frame().GetCodeValue(), 2);
        shop_->Press(Qt::Key_Return);
        QVERIFY(Currency().Frame().CurrencyRate_EDT->hasFocus());
        shop_->Press(Qt::Key_Return);
        QVERIFY(form_->Band().Debit().hasFocus());
    }

    void aForeignLineThatIsOnlyLookedAtKeepsItsAmounts()
    {
        const int id = SaveForeignVoucher();
        // Rounded otherwise by whoever wrote it.
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.Sanad_Detail SET Bed = 5123001 WHERE SanadId = ? AND RowNo = 1"),
            {id});
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.Sanad_Detail SET Bes = 5123001 WHERE SanadId = ? AND RowNo = 2"),
            {id});
        form_->OpenVoucher(form_->Draft().Head.Number);
        shop_->Press(Qt::Key_Home);
        shop_->Press(Qt::Key_Return);
        QCOMPARE(form_->Band().Debit().Text(), QStringLiteral("10"));
        QCOMPARE(Currency().Frame().CurrencyRate_EDT->Text(), QStringLiteral("512300.123456789"));
        form_->Band().Description().setFocus();
        shop_->TypeAndEnter(QStringLiteral("شرح تازه"));
        QCOMPARE(form_->Draft().Lines().constFirst().Debit, QStringLiteral("5123001"));
        QCOMPARE(form_->Draft().Lines().constFirst().Description, QStringLiteral("شرح تازه"));
    }

    void aForeignLineThatIsCorrectedIsConvertedAnew()
    {
        SaveForeignVoucher();
        shop_->Press(Qt::Key_F6);
        shop_->Press(Qt::Key_Home);
        shop_->Press(Qt::Key_Return);
        form_->Band().Debit().setFocus();
        form_->Band().Debit().selectAll();
        shop_->Type(QStringLiteral("20"));
        EnterLine();
        QCOMPARE(form_->Draft().Lines().constFirst().Debit, QStringLiteral("10246002.4691"));
        QCOMPARE(form_->Draft().Lines().constFirst().Currency.Amount, QStringLiteral("20"));
    }

    void aChosenCurrencyAloneIsNoUnsavedLine()
    {
        form_->HeadBar().Title().SetText(QString());
        ChooseDollars();
        QVERIFY(form_->Band().IsEmpty());
        QVERIFY(!form_->IsChanged());
    }

private:
    TVoucherCurrency& Currency() { return form_->Band().Currency(); }
    QString Stored(const QString& column, int id, int row)
    {
        return shop_->Text(QStringLiteral("SELECT %1 FROM dbo.Sanad_Detail WHERE SanadId = %2 AND RowNo = %3")
                               .arg(column)
                               .arg(id)
                               .arg(row));
    }
    QString Shown(const QString& column)
    {
        return form_->Grid().DataSource()->DataSet()->FieldByName(column)->AsString();
    }
    void TypeAccount(const QString& total, const QString& detail)
    {
        form_->Band().FocusTotal();
        shop_->Type(total);
        shop_->TypeAndEnter(QStringLiteral("1"));
        shop_->TypeAndEnter(detail);
    }
    void ChooseDollars()
    {
        shop_->Press(Qt::Key_F8);
        shop_->Press(Qt::Key_Down);
        QCOMPARE(Currency().Frame().GetCodeValue(), 2);
    }
    /// Enter from an amount to the end of the band.
    void EnterLine()
    {
        form_->Band().Description().setFocus();
        shop_->Press(Qt::Key_Return);
    }
    /// Ten dollars from one account to another; the voucher's identifier.
    int SaveForeignVoucher()
    {
        TypeAccount(QStringLiteral("102"), QStringLiteral("3"));
        ChooseDollars();
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("10"));
        EnterLine();
        TypeAccount(QStringLiteral("101"), QStringLiteral("2"));
        form_->Band().Credit().setFocus();
        shop_->Type(QStringLiteral("10"));
        EnterLine();
        shop_->Press(Qt::Key_F2);
        return form_->Draft().Head.Id;
    }

    std::unique_ptr<TFormFixture> shop_;
    TVoucherForm* form_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<VoucherCurrencyTest>(argc, argv);
}
#include "VoucherCurrencyTest.moc"
