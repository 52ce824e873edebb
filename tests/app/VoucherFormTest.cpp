#include "FormFixture.h"

#include "Select_AccountCode_UNT.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "VoucherBand.h"
#include "VoucherForm.h"
#include "VoucherHeadBar.h"
#include "VoucherTotals.h"

#include <QClipboard>

class VoucherFormTest : public TFormTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewVoucherIsInTheOpenYearWithItsNumberProposed()
    {
        QVERIFY(form_->HeadBar().Date().hasFocus());
        QCOMPARE(form_->HeadBar().Year()->Code, 1403);
        QVERIFY(form_->HeadBar().Number().placeholderText().toInt() > 1);
        const QString date = form_->HeadBar().Date().Text();
        QVERIFY(date >= u"1403/01/01" && date <= u"1403/12/30");
        QVERIFY(!form_->IsChanged());
        QVERIFY(form_->Totals().Told().contains(QStringLiteral("سند تازه")));
    }

    void aVoucherIsTypedWithoutTheMouseAndSaved()
    {
        const int proposed = form_->HeadBar().Number().placeholderText().toInt();
        TypeVoucher(QStringLiteral("1500000"));
        QCOMPARE(form_->Draft().Count(), 2);
        QVERIFY(form_->Totals().BalanceText().contains(QStringLiteral("تراز")));
        QVERIFY(form_->IsChanged());
        shop_->Press(Qt::Key_F2);
        QCOMPARE(shop_->Told, QStringList());
        QCOMPARE(form_->Draft().Head.Number, proposed);
        QVERIFY(!form_->IsChanged());
        QVERIFY2(form_->Totals().Told().contains(QStringLiteral("ذخیره شد")),
                 qPrintable(form_->Totals().Told()));
        QCOMPARE(form_->HeadBar().Number().Text(), QString::number(proposed));
        const QString lines =
            QStringLiteral(" FROM dbo.Sanad_Detail AS d INNER JOIN dbo.Sanad AS s ON s.Id = "
                           "d.SanadId WHERE s.FiscalYear = 1403 AND s.Number = %1")
                .arg(proposed);
        QCOMPARE(shop_->Text(QStringLiteral("SELECT COUNT(*)") + lines), QStringLiteral("2"));
        const QString first = lines + QStringLiteral(" AND d.RowNo = 1");
        QCOMPARE(shop_->Text(QStringLiteral("SELECT d.Kol") + first), QStringLiteral("102"));
        QCOMPARE(shop_->Text(QStringLiteral("SELECT d.Moin") + first), QStringLiteral("1"));
        QCOMPARE(shop_->Text(QStringLiteral("SELECT d.Tafzili") + first), QStringLiteral("3"));
        QCOMPARE(shop_->Text(QStringLiteral("SELECT d.Bed") + first), QStringLiteral("1500000"));
    }

    void enterGoesThroughTheBandAndBackToTheTotalBox()
    {
        TSelect_AccountCode& selector = form_->Band().Selector();
        form_->Band().FocusTotal();
        shop_->Type(QStringLiteral("802"));
        QVERIFY(selector.AssistantCode_EDT->hasFocus());
        shop_->TypeAndEnter(QStringLiteral("1"));
        QCOMPARE(selector.AssistantCode_EDT->Text(), QStringLiteral("001"));
        QVERIFY(selector.DetailCode_EDT->hasFocus());
        shop_->TypeAndEnter(QStringLiteral("7"));
        QVERIFY(selector.ExpenseCenterCode_EDT->hasFocus());
        shop_->TypeAndEnter(QStringLiteral("10"));
        QVERIFY(form_->Band().Debit().hasFocus());
        shop_->Press(Qt::Key_Return);
        QVERIFY(form_->Band().Credit().hasFocus());
        shop_->TypeAndEnter(QStringLiteral("۲۵۰۰٫۵"));
        QVERIFY(form_->Band().Description().hasFocus());
        shop_->TypeAndEnter(QStringLiteral("خرید ملزومات"));
        QVERIFY(selector.TotalCode_EDT->hasFocus());
        QVERIFY(form_->Band().IsEmpty());
        QCOMPARE(form_->Draft().Count(), 1);
        const TVoucherLine line = form_->Draft().Lines().constFirst();
        QVERIFY((line.Account == TAccountCode{802, 1, 7, 10}));
        QCOMPARE(line.Credit, QStringLiteral("2500.5"));
        QCOMPARE(line.Debit, QStringLiteral("0"));
        QCOMPARE(line.Description, QStringLiteral("خرید ملزومات"));
        QVERIFY(line.AccountName.contains(QStringLiteral("ملزومات اداری")));
        QCOMPARE(form_->Grid().model()->rowCount(), 1);
        QVERIFY(form_->Totals().BalanceText().contains(QStringLiteral("بستانکار")));
    }

    void afterADebitEnterSkipsTheCredit()
    {
        form_->Band().Debit().setFocus();
        shop_->TypeAndEnter(QStringLiteral("10"));
        QVERIFY(form_->Band().Description().hasFocus());
    }

    void theNameIsShownAndAnUnknownCodeIsTold()
    {
        TSelect_AccountCode& selector = form_->Band().Selector();
        form_->Band().FocusTotal();
        shop_->TypeAndEnter(QStringLiteral("9"));
        QCOMPARE(shop_->Told.size(), 1);
        QVERIFY2(shop_->Told.constFirst().contains(QStringLiteral("حسابي")),
                 qPrintable(shop_->Told.constFirst()));
        QCOMPARE(selector.TotalCode_EDT->Text(), QStringLiteral("009"));
        QCOMPARE(shop_->Focus(), selector.TotalCode_EDT);
    }

    void afterSavingTheTotalBoxIsReadyForTheNextCode()
    {
        TypeVoucher(QStringLiteral("10"));
        QVERIFY(form_->Band().Selector().TotalCode_EDT->hasFocus());
        shop_->Press(Qt::Key_F2);
        QVERIFY(form_->Band().Selector().TotalCode_EDT->hasFocus());
        shop_->Type(QStringLiteral("10"));
        QCOMPARE(form_->Band().Selector().TotalCode_EDT->Text(), QStringLiteral("10"));
        shop_->Press(Qt::Key_Escape);
        shop_->Type(QStringLiteral("1"));
        QCOMPARE(form_->Band().Selector().TotalCode_EDT->Text(), QStringLiteral("1"));
    }

    void aLineWithoutItsDetailIsRefusedAtTheDetailBox()
    {
        form_->Band().FocusTotal();
        shop_->Type(QStringLiteral("102"));
        shop_->TypeAndEnter(QStringLiteral("1"));
        shop_->Press(Qt::Key_Return);
        shop_->Press(Qt::Key_Return);
        shop_->TypeAndEnter(QStringLiteral("500"));
        shop_->Press(Qt::Key_Return);
        QCOMPARE(form_->Draft().Count(), 0);
        QVERIFY(form_->Band().Selector().DetailCode_EDT->hasFocus());
        QVERIFY(form_->Band().Selector().DetailCode_EDT->HasError());
        QCOMPARE(form_->Band().Debit().Text(), QStringLiteral("500"));
    }

    void aLineWithoutAnAmountIsRefusedAtTheDebit()
    {
        form_->Band().FocusTotal();
        shop_->Type(QStringLiteral("106"));
        shop_->TypeAndEnter(QStringLiteral("1"));
        for (int i = 0; i < 5; ++i)
            shop_->Press(Qt::Key_Return);
        QCOMPARE(form_->Draft().Count(), 0);
        QVERIFY(form_->Band().Debit().hasFocus());
        QVERIFY(form_->Band().Debit().HasError());
    }

    void anUnbalancedVoucherIsRefused()
    {
        TypeHead();
        TypeLine(QStringLiteral("102"), QStringLiteral("1"), QStringLiteral("3"), QStringLiteral("100"),
                 true);
        const QString before = Count();
        shop_->Press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(Count(), before);
        QVERIFY(form_->Band().Credit().HasError());
        QCOMPARE(form_->Draft().Count(), 1);
    }

    void aHalfTypedLineIsNotLeftBehindOnSaving()
    {
        TypeVoucher(QStringLiteral("10"));
        form_->Band().Debit().setFocus();
        shop_->Type(QStringLiteral("5"));
        const QString before = Count();
        shop_->Press(Qt::Key_F2);
        QCOMPARE(Count(), before);
        QVERIFY(form_->Band().Selector().TotalCode_EDT->HasError());
        shop_->Press(Qt::Key_Escape);
        QVERIFY(form_->Band().IsEmpty());
        shop_->Press(Qt::Key_F2);
        QVERIFY(Count() != before);
    }

    void headFaultsAreShownAtTheirControl()
    {
        TypeVoucher(QStringLiteral("10"));
        form_->HeadBar().Title().setFocus();
        form_->HeadBar().Title().SetText(QString());
        shop_->Press(Qt::Key_F2);
        QVERIFY(form_->HeadBar().Title().HasError());
        QVERIFY(form_->HeadBar().Title().hasFocus());
        shop_->Type(QStringLiteral("شرح"));
        QVERIFY(!form_->HeadBar().Title().HasError());
        form_->HeadBar().Date().SetText(QStringLiteral("1403/07/31"));
        shop_->Press(Qt::Key_F2);
        QVERIFY(form_->HeadBar().Date().HasError());
    }

    void linesAreCorrectedMovedRemovedAndBroughtBack()
    {
        TypeVoucher(QStringLiteral("10"));
        shop_->Press(Qt::Key_F6);
        QVERIFY(form_->Grid().hasFocus());
        shop_->Press(Qt::Key_Home);
        shop_->Press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(form_->Draft().Lines().at(1).Account.Total, 102);
        shop_->Press(Qt::Key_Delete);
        QCOMPARE(form_->Draft().Count(), 1);
        shop_->Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(form_->Draft().Count(), 2);
        shop_->Press(Qt::Key_End);
        shop_->Press(Qt::Key_Return);
        TSelect_AccountCode& selector = form_->Band().Selector();
        QCOMPARE(selector.GetTotalCode(), 102);
        QCOMPARE(selector.GetAssistantCode(), 1);
        QCOMPARE(selector.GetDetailCode(), 3);
        QCOMPARE(form_->Band().Debit().Text(), QStringLiteral("10"));
        form_->Band().Debit().setFocus();
        form_->Band().Debit().selectAll();
        shop_->TypeAndEnter(QStringLiteral("12"));
        shop_->Press(Qt::Key_Return);
        QCOMPARE(form_->Draft().Count(), 2);
        QCOMPARE(form_->Draft().Lines().at(1).Debit, QStringLiteral("12"));
        QVERIFY(form_->Draft().Lines().at(1).Account.Detail == 3);
    }

    void amountsAreExactToFifteenAndTwoDigits()
    {
        const QString amount = QStringLiteral("123456789012345.67");
        TypeVoucher(amount);
        shop_->Press(Qt::Key_F2);
        QVERIFY(!form_->IsChanged());
        QCOMPARE(
            shop_->Text(QStringLiteral("SELECT d.Bed FROM dbo.Sanad_Detail AS d WHERE d.SanadId = %1 AND "
                                       "d.RowNo = 1")
                            .arg(form_->Draft().Head.Id)),
            amount);
        QVERIFY2(form_->Totals().DebitText().contains(QStringLiteral("123٬456٬789٬012٬345٫67")),
                 qPrintable(form_->Totals().DebitText()));
    }

    void aSavedVoucherIsOpenedByNumberAndCorrected()
    {
        TypeVoucher(QStringLiteral("77"));
        shop_->Press(Qt::Key_F2);
        const int number = form_->Draft().Head.Number;
        const int id = form_->Draft().Head.Id;
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(form_->Draft().Head.Id, 0);
        shop_->Press(Qt::Key_F3);
        shop_->TypeAndEnter(QString::number(number));
        QCOMPARE(form_->Draft().Head.Id, id);
        QCOMPARE(form_->Draft().Count(), 2);
        QVERIFY(form_->Grid().hasFocus());
        QVERIFY(!form_->IsChanged());
        form_->HeadBar().Title().setFocus();
        shop_->Type(QStringLiteral(" - اصلاح"));
        shop_->Press(Qt::Key_F2);
        QCOMPARE(form_->Draft().Head.Number, number);
        QVERIFY(shop_->Text(QStringLiteral("SELECT Title FROM dbo.Sanad WHERE Id = %1").arg(id))
                    .endsWith(QStringLiteral("اصلاح")));
    }

    void aVoucherThatIsOnlyLookedAtCountsAsUnchangedHoweverItIsSpelled()
    {
        TypeVoucher(QStringLiteral("5"));
        shop_->Press(Qt::Key_F2);
        const int number = form_->Draft().Head.Number;
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.Sanad SET Title = N'  شرح با فاصله  ', VoucherDate = "
                           "N'1403/3/4' WHERE Id = ?"),
            {form_->Draft().Head.Id});
        form_->OpenVoucher(number);
        QVERIFY(!form_->IsChanged());
        QVERIFY(form_->Save());
        QCOMPARE(shop_->Text(QStringLiteral("SELECT VoucherDate FROM dbo.Sanad WHERE Id = %1")
                                 .arg(form_->Draft().Head.Id)),
                 QStringLiteral("1403/03/04"));
    }

    void anUnknownNumberIsToldAtItsBox()
    {
        shop_->Press(Qt::Key_F3);
        shop_->TypeAndEnter(QStringLiteral("99999"));
        QVERIFY(form_->HeadBar().Number().HasError());
        QCOMPARE(form_->Draft().Head.Id, 0);
    }

    void aConfirmedVoucherAndAClosedYearAreForReadingOnly()
    {
        const int confirmed =
            shop_
                ->Text(QStringLiteral(
                    "SELECT MIN(Number) FROM dbo.Sanad WHERE FiscalYear = 1403 AND Confirmed = 1"))
                .toInt();
        form_->OpenVoucher(confirmed);
        QVERIFY(form_->Draft().Head.Confirmed);
        QVERIFY(form_->HeadBar().Title().isReadOnly());
        QVERIFY(!form_->Band().Debit().isEnabled());
        const int lines = form_->Draft().Count();
        shop_->Press(Qt::Key_Delete);
        QCOMPARE(form_->Draft().Count(), lines);
        shop_->Press(Qt::Key_F2);
        QCOMPARE(shop_->Told.size(), 1);
        form_->NewVoucher();
        QVERIFY(form_->HeadBar().ChooseYear(1402));
        form_->HeadBar().YearBox().OnChange(nullptr);
        form_->OpenVoucher(3);
        QVERIFY(form_->Draft().Head.Id != 0);
        QVERIFY(!form_->Band().Debit().isEnabled());
        QVERIFY(form_->Totals().Told().contains(QStringLiteral("فقط برای دیدن")));
    }

    void leavingWithUnsavedChangesAsks()
    {
        TypeVoucher(QStringLiteral("10"));
        shop_->Answers = {QStringLiteral("انصراف")};
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(shop_->Told.size(), 1);
        QCOMPARE(form_->Draft().Count(), 2);
        QVERIFY((shop_->Answers = {QStringLiteral("انصراف")}, !form_->MayClose()));
        const QString before = Count();
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(form_->Draft().Count(), 0);
        QCOMPARE(Count(), before);
        TypeVoucher(QStringLiteral("10"));
        shop_->Answers = {QStringLiteral("ذخیره")};
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(form_->Draft().Head.Id, 0);
        QVERIFY(Count() != before);
        QVERIFY(form_->MayClose());
    }

    void whenAStatementFailsNothingIsWrittenAndEverythingStaysOnTheForm()
    {
        TypeVoucher(QStringLiteral("10"));
        const QString before = Count();
        QStringList reports;
        auto* application = qobject_cast<THostApplication*>(qApp);
        application->SetErrorDisplay([&reports](const TErrorReport& report) { reports.append(report.Text); });
        int statements = 0;
        shop_->Connection.OnWillExecute = [&statements](TADOConnection* connection, const QString& text) {
            if (text.startsWith(u"INSERT INTO dbo.Sanad_Detail") && ++statements == 2)
                connection->Close();
        };
        shop_->Press(Qt::Key_F2);
        QTRY_COMPARE(reports.size(), 1);
        application->SetErrorDisplay({});
        shop_->Connection.OnWillExecute = nullptr;
        shop_->Connection.Reopen();
        QCOMPARE(statements, 2);
        QCOMPARE(Count(), before);
        QCOMPARE(form_->Draft().Count(), 2);
        QVERIFY(form_->IsChanged());
        shop_->Press(Qt::Key_F2);
        QVERIFY(Count() != before);
        QVERIFY(!form_->IsChanged());
    }

    void hostileTextIsPastedAndKept()
    {
        const QString hostile = QStringLiteral("'); DELETE FROM dbo.Sanad; -- ?%_[");
        TypeVoucher(QStringLiteral("10"));
        QGuiApplication::clipboard()->setText(hostile);
        form_->HeadBar().Title().setFocus();
        form_->HeadBar().Title().selectAll();
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        shop_->Press(Qt::Key_F6);
        shop_->Press(Qt::Key_Return);
        form_->Band().Description().setFocus();
        form_->Band().Description().selectAll();
        shop_->Press(Qt::Key_V, Qt::ControlModifier);
        shop_->Press(Qt::Key_Return);
        shop_->Press(Qt::Key_F2);
        QVERIFY(!form_->IsChanged());
        const int id = form_->Draft().Head.Id;
        QCOMPARE(shop_->Text(QStringLiteral("SELECT Title FROM dbo.Sanad WHERE Id = %1").arg(id)), hostile);
        QCOMPARE(
            shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail WHERE SanadId = %1 AND Sharh = "
                                       "N'''); DELETE FROM dbo.Sanad; -- ?%_['")
                            .arg(id)),
            QStringLiteral("1"));
    }

private:
    void Prepare() override { form_ = &shop_->Open<TVoucherForm>(); }

    QString Count()
    {
        return shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad")) + u'/' +
               shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail"));
    }
    void TypeHead()
    {
        form_->HeadBar().FocusDate();
        shop_->Press(Qt::Key_Return);
        shop_->TypeAndEnter(QStringLiteral("واریز به بانک"));
        QVERIFY(form_->Band().Selector().TotalCode_EDT->hasFocus());
    }
    void TypeLine(const QString& total, const QString& assistant, const QString& detail,
                  const QString& amount, bool debit)
    {
        form_->Band().FocusTotal();
        shop_->Type(total);
        shop_->TypeAndEnter(assistant);
        shop_->TypeAndEnter(detail);
        shop_->Press(Qt::Key_Return);
        if (!debit)
            shop_->Press(Qt::Key_Return);
        shop_->TypeAndEnter(amount);
        shop_->Press(Qt::Key_Return);
    }
    void TypeVoucher(const QString& amount)
    {
        TypeHead();
        TypeLine(QStringLiteral("102"), QStringLiteral("1"), QStringLiteral("3"), amount, true);
        TypeLine(QStringLiteral("101"), QStringLiteral("1"), QStringLiteral("2"), amount, false);
        QCOMPARE(form_->Draft().Count(), 2);
    }

    TVoucherForm* form_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<VoucherFormTest>(argc, argv);
}
#include "VoucherFormTest.moc"
