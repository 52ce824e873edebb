#include "AccountLine.h"
#include "TestCase.h"

#include <QSignalSpy>

namespace {

QString Unknown(const char* box)
{
    return QStringLiteral("MsgCodeNotAvailable(حسابي, %1, -)").arg(QLatin1String(box));
}

QString Color(const QWidget* widget)
{
    return widget->palette().color(QPalette::Active, QPalette::Text).name();
}

} // namespace

class SelectAccountCodeExitsTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

private Q_SLOTS:
    void aTypedTotalIsPaddedAndNamed()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        line.Leave();
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("007"));
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها"));
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Accounting.CompleteCode(7, 3)")));
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("GetHesabName(7, , , 5)")));
        QCOMPARE(line.Tables.Statements, QStringList{"SELECT DetailType FROM AccTotals WHERE Code=7"});
        QVERIFY(line.Messages().isEmpty());
        QVERIFY(line.Box(L::A)->hasFocus());
        QCOMPARE(Color(line.Box(L::T)), QStringLiteral("#000000"));
        QCOMPARE(line.Box(L::T)->font().pointSize(), 11);
        QCOMPARE(line.Events, (QStringList{"total", "change"}));
    }

    void theWholeCodeIsTypedLevelByLevel()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        for (const char* const code : {"7", "2", "11"}) {
            Typing::Type(QApplication::focusWidget(), QLatin1String(code));
            line.Leave();
        }
        QCOMPARE(line.Texts(), (QStringList{"007", "002", "000011", ""}));
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها - جاری - ملت"));
        QCOMPARE(line.Frame->GetDetailCode(), 11);
        QVERIFY(line.Frame->IsValid());
        QVERIFY(line.Messages().isEmpty());
    }

    void retypingATotalClearsBothLowerLevelsAndTellsOnce()
    {
        TAccountLine line({L::T, L::A, L::D});
        QVERIFY(line.Start());
        line.Frame->SetTotalCode(7);
        line.Leave();
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        line.Before->setFocus();
        line.Forget();
        line.Enter(L::T, QStringLiteral("90"));
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("090"));
        QCOMPARE(line.Frame->GetAssistantCode(), 0);
        QCOMPARE(line.Frame->GetDetailCode(), 0);
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("تفصيلي"));
        QCOMPARE(line.Events.count(QStringLiteral("change")), 1);
        QVERIFY(!line.Frame->AllowClear());
        QCOMPARE(line.Name(), QStringLiteral("تنخواه"));
    }

    void theOwnerIsToldWhenAllLevelsAreCleared()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        QVERIFY(line.Start());
        QStringList seen;
        line.Frame->OnChange = [&](QObject* sender) {
            seen.append(line.Texts().join(QLatin1Char('/')));
            QCOMPARE(sender, line.Frame);
        };
        Typing::Type(line.Box(L::T), QStringLiteral("90"));
        line.Leave();
        QCOMPARE(seen, QStringList{QStringLiteral("90/معين/تفصيلي/مرکزهزينه")});
    }

    void leavingAnUnchangedTotalClearsNothing()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        QVERIFY(line.Start());
        line.Leave();
        QCOMPARE(line.Frame->GetAssistantCode(), 2);
        QVERIFY(line.Events.isEmpty());
    }

    void retypingAnAssistantClearsTheDetailOnly()
    {
        TAccountLine line({L::T, L::A, L::D});
        line.Frame->SetTotalCode(90);
        line.Frame->SetAssistantCode(1);
        line.Frame->SetDetailCode(12345678);
        QVERIFY(line.Start(L::A));
        Typing::Type(line.Box(L::A), QStringLiteral("1"));
        line.Leave();
        QCOMPARE(line.Texts().mid(0, 2), (QStringList{"090", "001"}));
        QCOMPARE(line.Frame->GetDetailCode(), 0);
        QCOMPARE(line.Events, (QStringList{"assistant", "change"}));
    }

    void aLevelOutsideTheSetIsNotCleared()
    {
        TAccountLine line({L::T, L::A});
        line.Box(L::D)->SetText(QStringLiteral("000011"));
        line.Host.Accounting.Names.insert(QStringLiteral("7//11"), QStringLiteral("بانک‌ها"));
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        line.Leave();
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("000011"));
    }

    void anUnknownTotalIsReportedAndKeepsTheFocus()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("5"));
        line.Leave();
        QCOMPARE(line.Messages(), QStringList{Unknown("TotalCode_EDT")});
        QCOMPARE(line.Texts(), (QStringList{"005", "معین", "تفصیلی", "مرکزهزينه"}));
        QCOMPARE(Color(line.Box(L::A)), QStringLiteral("#a0a0a4"));
        QCOMPARE(line.Frame->GetAssistantCode(), 0);
        QCOMPARE(line.Frame->GetDetailCode(), 0);
        QVERIFY(line.Box(L::T)->hasFocus());
        QVERIFY(line.Tables.Statements.isEmpty());
        QCOMPARE(line.Name(), QString());
        QVERIFY(!line.Frame->IsValid());
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        line.Leave();
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("007"));
        QVERIFY(line.Box(L::A)->hasFocus());
    }

    void anUnknownAssistantIsReportedAndKeepsTheFocus()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start(L::A));
        Typing::Type(line.Box(L::A), QStringLiteral("9"));
        line.Leave();
        QCOMPARE(line.Messages(), QStringList{Unknown("AssistantCode_EDT")});
        QCOMPARE(line.Texts(), (QStringList{"007", "009", "تفصیلی", "مرکزهزينه"}));
        QVERIFY(line.Box(L::A)->hasFocus());
    }

    void anUnknownDetailIsReportedAndKeepsTheFocus()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start(L::D));
        Typing::Type(line.Box(L::D), QStringLiteral("9"));
        line.Leave();
        QCOMPARE(line.Messages(), QStringList{Unknown("DetailCode_EDT")});
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("000009"));
        QVERIFY(line.Box(L::D)->hasFocus());
        QVERIFY(line.Tables.Statements.isEmpty()); // the expense center is not shown anew
    }

    void aDetailTellsItsExitWithoutTyping()
    {
        TAccountLine line({L::T, L::A, L::D});
        QVERIFY(line.Start(L::D));
        line.Leave();
        QCOMPARE(line.Events, QStringList{"change"});
        line.Form->hide();
        line.Forget();
        line.Frame->SetDetailCode(0);
        QVERIFY(line.Events.isEmpty()); // not showing
    }

    void anEmptiedLevelShowsItsNameAgain_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::addColumn<QString>("name");
        QTest::newRow("total") << L::T << QStringLiteral("کل");
        QTest::newRow("assistant") << L::A << QStringLiteral("معين");
        QTest::newRow("detail") << L::D << QStringLiteral("تفصيلي");
        QTest::newRow("expense center") << L::E << QStringLiteral("مرکزهزينه");
    }
    void anEmptiedLevelShowsItsNameAgain()
    {
        QFETCH(TCodeItem, level);
        QFETCH(QString, name);
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start(level));
        Typing::Press(line.Box(level), Qt::Key_Delete);
        QCOMPARE(line.Box(level)->Text(), QString());
        line.Leave();
        QCOMPARE(line.Box(level)->Text(), name);
        QCOMPARE(Color(line.Box(level)), QStringLiteral("#a0a0a4"));
        QCOMPARE(line.Box(level)->font().pointSize(), 10);
        QVERIFY(line.Messages().isEmpty());
    }

    void aTextThatIsNoNumberReadsAsNoCode_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("A") << "A";
        QTest::newRow("apostrophe") << "'";
        QTest::newRow("digits and A") << "1A";
        QTest::newRow("zero") << "0";
    }
    void aTextThatIsNoNumberReadsAsNoCode()
    {
        QFETCH(QString, typed);
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), typed);
        line.Leave();
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("کل"));
        QVERIFY(line.Messages().isEmpty());
        QVERIFY(line.Tables.Statements.isEmpty());
    }

    void detailTypeTenWidensTheDetailBox()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Enter(L::T, QStringLiteral("90"));
        QCOMPARE(line.Tables.Statements, QStringList{"SELECT DetailType FROM AccTotals WHERE Code=90"});
        QCOMPARE(line.Box(L::D)->MaxLength(), 8);
        QCOMPARE(line.Box(L::D)->width(), 80);
        line.Enter(L::A, QStringLiteral("1"));
        line.Enter(L::D, QStringLiteral("12345678"));
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("12345678"));
        QCOMPARE(line.Name(), QStringLiteral("تنخواه - شعبه - احمدی"));
        line.Enter(L::T, QStringLiteral("7"));
        QCOMPARE(line.Box(L::D)->MaxLength(), 6);
        QCOMPARE(line.Box(L::D)->width(), 60);
        QVERIFY(line.Messages().isEmpty());
    }

    void anUnknownTotalLeavesTheDetailBoxAsItIs()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(90);
        QVERIFY(line.Start());
        line.Enter(L::T, QStringLiteral("5"));
        QCOMPARE(line.Box(L::D)->MaxLength(), 8);
    }

    void theOwnersCodesRunTheExits()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QCOMPARE(line.Texts().first(), QStringLiteral("007"));
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها"));
        line.Frame->SetAssistantCode(2);
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها - جاری"));
        line.Frame->SetDetailCode(11);
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها - جاری - ملت"));
        QCOMPARE(line.Texts(), (QStringList{"007", "002", "000011", "مرکزهزينه"}));
        QCOMPARE(line.Events, QStringList{"assistant"}); // the frame is not shown
    }

    void anAssistantTellsBeforeItIsWrittenAndEmptiesTheDetail()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        QString before;
        line.Frame->OnAssistantCodeChanged = [&](QObject*) { before = line.Box(L::A)->Text(); };
        line.Frame->SetAssistantCode(0);
        QCOMPARE(before, QStringLiteral("002"));
        QCOMPARE(line.Texts(), (QStringList{"007", "معين", "تفصيلي", "مرکزهزينه"}));
    }

    void theTotalZeroIsEmptyAndRaisesNothing()
    {
        TAccountLine line({L::T, L::A, L::D});
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start(L::A));
        line.Frame->SetTotalCode(0);
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("کل"));
        QVERIFY(line.Events.isEmpty());
        QVERIFY(line.Messages().isEmpty());
    }

    void aCodeWrittenUnderTheUserWaitsForHisExit()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::A));
        line.Frame->SetAssistantCode(2);
        QCOMPARE(line.Box(L::A)->Text(), QStringLiteral("002"));
        QCOMPARE(line.Host.Log.CountOf(QStringLiteral("GetHesabName")), 1); // of the detail's exit
        line.Frame->SetAssistantCode(0);                                    // the exit runs in any case
        QCOMPARE(line.Box(L::A)->Text(), QStringLiteral("معين"));
    }

    void aNegativeCodeIsNone()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(-5);
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("کل"));
        QVERIFY(line.Tables.Statements.isEmpty());
    }

    void refreshRunsTheExitsOfTheSetInOrder()
    {
        TAccountLine line({L::T, L::D});
        line.Box(L::T)->SetText(QStringLiteral("7"));
        line.Box(L::A)->SetText(QStringLiteral("2"));
        line.Box(L::D)->SetText(QStringLiteral("11"));
        line.Host.Accounting.Names.insert(QStringLiteral("7/2/11"), QStringLiteral("بانک‌ها"));
        line.Frame->refresh();
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "2", "000011"}));
        const QStringList pads = line.Host.Log.Lines().filter(QStringLiteral("CompleteCode"));
        QCOMPARE(pads, (QStringList{"Accounting.CompleteCode(7, 3)", "Accounting.CompleteCode(11, 6)"}));
    }

    void theNameFollowsTheLevelsOfTheSet()
    {
        TAccountLine line({L::T, L::A});
        QVERIFY(line.Start());
        line.Enter(L::T, QStringLiteral("7"));
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("GetHesabName(7, , , 1)")));
        line.Enter(L::A, QStringLiteral("9")); // asks for the total's name only, with the codes of both
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("GetHesabName(7, 9, , 1)")));
    }

    void clearPartRunsTheExitOfTheLevel()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Forget();
        line.Frame->ClearPart(L::A);
        QCOMPARE(line.Texts(), (QStringList{"007", "معين", "تفصيلي", "مرکزهزينه"}));
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها"));
    }

    void theOwnersHandlerMayRunTheExitsAgain()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        int calls = 0;
        line.Frame->OnChange = [&](QObject*) {
            if (++calls < 50)
                line.Frame->TotalCode_EDTExit(nullptr);
        };
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        line.Leave();
        QCOMPARE(calls, 1);
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("007"));
    }

    void signalsComeWithTheHandlers()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        QSignalSpy changed(line.Frame, &TSelect_AccountCode::changed);
        QSignalSpy total(line.Frame, &TSelect_AccountCode::totalCodeChanged);
        QSignalSpy assistant(line.Frame, &TSelect_AccountCode::assistantCodeChanged);
        QSignalSpy detail(line.Frame, &TSelect_AccountCode::detailCodeChanged);
        for (const char* const code : {"7", "2", "11"}) {
            Typing::Type(QApplication::focusWidget(), QLatin1String(code));
            line.Leave();
        }
        QCOMPARE(total.size(), 1);
        QCOMPARE(assistant.size(), 1);
        QCOMPARE(detail.size(), 1);
        QCOMPARE(changed.size(), line.Events.count(QStringLiteral("change")));
        QVERIFY(changed.size() >= 3);
    }
};

QTEST_MAIN(SelectAccountCodeExitsTest)
#include "SelectAccountCodeExitsTest.moc"
