#include "TestCase.h"
#include "UniqueCodeForm.h"

using enum TFloatingAccountsType;

class DetailUniqueCodeTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsAreThoseOfTheForm()
    {
        const TUniqueCodeForm form;
        QCOMPARE(form.Frame->Label_TRVDEVX7->Caption(), QStringLiteral(": کد تفصیلی &یکتا"));
        QCOMPARE(form.Frame->Label_TRVDEVX7->FocusControl(), form.Edit());
        QCOMPARE(form.Edit()->objectName(), QStringLiteral("UniqueCode_EDT"));
        QCOMPARE(form.Edit()->MaxLength(), 8);
        QCOMPARE(form.Edit()->MaxValue(), 999999999.0);
        form.Form->show();
        QCOMPARE(form.Edit()->width(), 100);
        QCOMPARE(form.Text(), QString());
        QCOMPARE(form.Frame->GetUniqueCodeValue(), 0);
    }

    void aNewAccountGetsTheNextFreeNumberAndHoldsIt()
    {
        TUniqueCodeForm form;
        form.Frame->InitUniqueCode();
        QCOMPARE(form.Text(), QStringLiteral("01000007"));
        QCOMPARE(form.Frame->GetUniqueCodeValue(), 1000007);
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Taken(QStringLiteral("1000007"))});
        QCOMPARE(form.Statements().constFirst(), QStringLiteral("SELECT dbo.GetUinqueCode_FNC(1)"));
        QVERIFY(form.Frame->IsValidated());
        QCOMPARE(form.Calls(), QStringList());
    }

    void aProposalThatAnotherHasTakenMeanwhileIsFollowedByTheNext()
    {
        TUniqueCodeForm form;
        form.Database.Proposals = {qint64(1000007), qint64(1000008), qint64(1000009)};
        form.HoldByAnother(QStringLiteral("1000007"));
        form.HoldByAnother(QStringLiteral("1000008"));
        form.Frame->InitUniqueCode();
        QCOMPARE(form.Text(), QStringLiteral("01000009"));
        QCOMPARE(form.Host.CommonLibrary.Held, QStringList{QStringLiteral("1270001:1000009")});
    }

    void aProposalThatAnotherHasSavedMeanwhileIsRefusedBeforeItIsSaved()
    {
        TUniqueCodeForm form;
        form.Database.Proposals = {qint64(1000006)};
        form.Frame->InitUniqueCode();
        QCOMPARE(form.Statements(), QStringList{QStringLiteral("SELECT dbo.GetUinqueCode_FNC(1)")});
        QCOMPARE(form.Text(), QStringLiteral("01000006"));
        QVERIFY(!form.Frame->IsValidated());
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("MsgRepeatedCode")), 1);
    }

    void proposalsThatAreAlwaysGoneEndWithAMessageAndNoNumber()
    {
        TUniqueCodeForm form;
        form.HoldByAnother(QStringLiteral("1000007"));
        form.Frame->InitUniqueCode();
        QCOMPARE(form.Frame->GetUniqueCodeValue(), 0);
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("MSGInUse")), 1);
        QVERIFY(form.Host.CommonLibrary.Held.isEmpty());
        QVERIFY(!form.Frame->IsValidated());
    }

    void withoutAFreeNumberZeroIsShown()
    {
        TUniqueCodeForm form;
        form.Database.Proposals = {qint64(0)};
        form.Frame->InitUniqueCode();
        QCOMPARE(form.Text(), QStringLiteral("00000000"));
        QVERIFY(!form.Frame->IsValidated());
    }

    void anotherNewAccountReleasesTheNumberOfTheOneBefore()
    {
        TUniqueCodeForm form;
        form.Database.Proposals = {qint64(1000007), qint64(2000008)};
        form.Frame->InitUniqueCode();
        form.Calls();
        // Each number is released where it was taken, although the kind is another now.
        form.Frame->DetailType = fatBankAccounts;
        form.Frame->InitUniqueCode();
        QCOMPARE(
            form.Calls(),
            (QStringList{TUniqueCodeForm::Released(QStringLiteral("1000007")),
                         QStringLiteral("OperationOnLockCode_SoftwarePart(2000008, 1270002, 45, 0, 0)")}));
    }

    void anExistingAccountShowsAndHoldsItsNumber()
    {
        TUniqueCodeForm form;
        form.Frame->FillUniqueCode(5);
        QCOMPARE(form.Text(), QStringLiteral("1000005"));
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Taken(QStringLiteral("1000005"))});
        QCOMPARE(
            form.Statements(),
            (QStringList{QStringLiteral("SELECT UniqueCode FROM AccDetails WHERE Code= 5 AND [Type] = 1"),
                         DetailUniqueCode::Uses(fatPersonals, 5)}));
        QVERIFY(form.Edit()->isEnabled());
        QVERIFY(!form.Database.Query.Active());
    }

    void anAccountThatIsNotThereHasTheNumberZero()
    {
        TUniqueCodeForm form;
        form.Frame->FillUniqueCode(99);
        QCOMPARE(form.Frame->GetUniqueCodeValue(), 0);
        QVERIFY(!form.Frame->IsValidated());
    }

    void anAccountInUseHasADisabledEdit_data()
    {
        QTest::addColumn<QString>("use");
        QTest::addColumn<bool>("isUse");
        const auto row = [](const char* name, const char* table, const char* columns, bool isUse,
                            int total = 101, int number = 1000005) {
            QTest::newRow(name) << QStringLiteral("INSERT INTO %1 (%2) VALUES (%3, %4)")
                                       .arg(QLatin1String(table), QLatin1String(columns))
                                       .arg(total)
                                       .arg(number)
                                << isUse;
        };
        row("voucher", "Sanad_Detail", "Kol, Tafzili", true);
        row("report", "FinancialReport", "Kol, Tafsili", true);
        row("report row", "FinancialReportDetail", "Kol, Tafsili", true);
        row("automatic voucher", "AutoVoucherSetting", "Total, Detail", true);
        row("recruitment", "Recruitment", "Per_Kol, Per_Tafsili", true);
        row("deduction", "Deduction", "Kol, Tafzili", true);
        row("fiscal year", "fiscal", "Kol, Tafzili", true);
        row("a total without unique codes", "Sanad_Detail", "Kol, Tafzili", false, 102);
        row("another number", "Sanad_Detail", "Kol, Tafzili", false, 101, 1000006);
    }

    void anAccountInUseHasADisabledEdit()
    {
        QFETCH(QString, use);
        QFETCH(bool, isUse);
        TUniqueCodeForm form;
        form.Database.Connection.Execute(use);
        form.Frame->FillUniqueCode(5);
        QCOMPARE(!form.Edit()->isEnabled(), isUse);
        QVERIFY(form.Frame->IsValidated());
        QCOMPARE(UniqueDetailCodeInUse(fatPersonals, 5, false), isUse);
        form.Calls();
        QCOMPARE(UniqueDetailCodeInUse(fatPersonals, 5, true), isUse);
        QCOMPARE(form.Calls(),
                 isUse ? QStringList{QStringLiteral("MsgHasSubRecords(کد تفصيلي يکتا)")} : QStringList());
        form.Frame->InitUniqueCode();
        QVERIFY(form.Edit()->isEnabled());
    }

    void anOwnersDisabledEditStaysSo()
    {
        const TUniqueCodeForm form;
        form.Edit()->SetEnabled(false);
        form.Frame->InitUniqueCode();
        QVERIFY(!form.Edit()->isEnabled());
    }

    void aNumberIsSetInEightDigitsWithoutALock_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0 << QStringLiteral("00000001");
        QTest::newRow("negative") << -12 << QStringLiteral("00000001");
        QTest::newRow("short") << 12 << QStringLiteral("00000012");
        QTest::newRow("eight digits") << 10000005 << QStringLiteral("10000005");
        QTest::newRow("nine digits") << 123456789 << QStringLiteral("123456789");
    }

    void aNumberIsSetInEightDigitsWithoutALock()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        TUniqueCodeForm form;
        form.Frame->SetUniqueCodeValue(code);
        QCOMPARE(form.Text(), text);
        QCOMPARE(form.Frame->GetUniqueCodeValue(), text.toInt());
        QCOMPARE(form.Calls(), QStringList());
        QVERIFY(form.Frame->IsValidated());
        QVERIFY(form.Statements().isEmpty());
    }

    void aNumberThatIsSetReplacesTheOneHeld()
    {
        TUniqueCodeForm form;
        form.Frame->InitUniqueCode();
        form.Calls();
        form.Frame->SetUniqueCodeValue(1000007);
        QCOMPARE(form.Calls(), QStringList());
        form.Frame->SetUniqueCodeValue(12);
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Released(QStringLiteral("1000007"))});
        form.Frame->RemoveFromCodeLock();
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Released(QStringLiteral("12"))});
    }

    void anInvalidNumberIsToldAfterTheOwnerAndGetsTheFocus_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QString()
                               << QStringLiteral("MsgNotSelected(کد تفصيلي يکتا, UniqueCode_EDT, -)");
        QTest::newRow("zero") << QStringLiteral("000")
                              << QStringLiteral("MsgRequiredField(کد تفصيلي يکتا, UniqueCode_EDT, -)");
        QTest::newRow("of another account")
            << QStringLiteral("01000006")
            << QStringLiteral("MsgRepeatedCode(تفصيلي يکتا, UniqueCode_EDT, -)");
        QTest::newRow("of another kind")
            << QStringLiteral("2000007") << QStringLiteral("MsgRepeatedCode(تفصيلي يکتا, UniqueCode_EDT, -)");
    }

    void anInvalidNumberIsToldAfterTheOwnerAndGetsTheFocus()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->FillUniqueCode(5);
        form.Edit()->SetText(text);
        form.Other->setFocus();
        form.Edit()->SetText(text);
        form.Calls();
        QStringList beforeTheOwner{QStringLiteral("not called")};
        QVERIFY(!form.Frame->IsValidated([&] { beforeTheOwner = form.Calls(); }));
        QCOMPARE(beforeTheOwner, QStringList());
        QCOMPARE(form.Calls(), QStringList{message});
        QVERIFY(form.Edit()->hasFocus());
        QVERIFY(!form.Frame->IsValidated());
        QCOMPARE(form.Calls(), QStringList{message});
    }

    void theAccountsOwnNumberIsValidHoweverItIsWritten()
    {
        TUniqueCodeForm form;
        form.Frame->FillUniqueCode(5);
        form.Edit()->SetText(QStringLiteral("01000005"));
        form.Statements();
        QVERIFY(form.Frame->IsValidated([] { QFAIL("the number is valid"); }));
        QVERIFY(form.Statements().isEmpty());
    }

    void anotherNumberIsLookedForInAllKinds()
    {
        TUniqueCodeForm form;
        form.Frame->FillUniqueCode(5);
        form.Edit()->SetText(QStringLiteral("77"));
        form.Statements();
        QVERIFY(form.Frame->IsValidated());
        QCOMPARE(form.Statements(),
                 QStringList{QStringLiteral("SELECT Code FROM AccDetails WHERE UniqueCode = 77")});
    }

    void theOwnerMayDestroyTheFrameWhenItIsTold()
    {
        TUniqueCodeForm form;
        QVERIFY(!form.Frame->IsValidated([&] { delete form.Frame; }));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("MsgNotSelected")), 0);
    }

    void savingWritesTheNumberToItsAccountOnly()
    {
        TUniqueCodeForm form;
        form.Frame->InitUniqueCode();
        form.Database.Command.Parameters = {1};
        form.Statements();
        form.Frame->SaveDetailUniqueCode(8);
        QCOMPARE(form.Statements(),
                 QStringList{QStringLiteral(
                     "UPDATE AccDetails SET UniqueCode = 1000007 WHERE [Type] = 1 AND Code= 8")});
        QCOMPARE(form.Database.StoredCode(1, 8), 1000007);
        QCOMPARE(form.Database.StoredCode(1, 5), 1000005);
        QCOMPARE(form.Database.StoredCode(2, 7), 2000007);
    }

    void theNumberIsReleasedOnceOnRemovalOrDestruction()
    {
        TUniqueCodeForm form;
        form.Frame->InitUniqueCode();
        form.Calls();
        form.Frame->RemoveFromCodeLock();
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Released(QStringLiteral("1000007"))});
        form.Frame->RemoveFromCodeLock();
        QCOMPARE(form.Calls(), QStringList());
        form.Frame->FillUniqueCode(6);
        form.Calls();
        delete form.Frame;
        QCOMPARE(form.Calls(), QStringList{TUniqueCodeForm::Released(QStringLiteral("1000006"))});
        QVERIFY(form.Host.CommonLibrary.Held.isEmpty());
    }

    void aFrameWithoutANumberReleasesNothing()
    {
        TUniqueCodeForm form;
        delete form.Frame;
        QCOMPARE(form.Calls(), QStringList());
    }

    void aDatabaseErrorReachesTheCallerAndChangesNothing()
    {
        TUniqueCodeForm form;
        form.Frame->FillUniqueCode(5);
        form.Database.Connection.Execute(QStringLiteral("DROP TABLE AccDetails"));
        QVERIFY_THROWS_EXCEPTION(EADOError, form.Frame->SaveDetailUniqueCode(5));
        form.Edit()->SetText(QStringLiteral("9"));
        QVERIFY_THROWS_EXCEPTION(EADOError, form.Frame->IsValidated());
        QVERIFY(!form.Database.Query.Active());
        QCOMPARE(form.Text(), QStringLiteral("9"));
    }
};

QTEST_MAIN(DetailUniqueCodeTest)
#include "DetailUniqueCodeTest.moc"
