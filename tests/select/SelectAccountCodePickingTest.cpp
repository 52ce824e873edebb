#include "AccountLine.h"
#include "TestCase.h"

#include <QMenu>

class SelectAccountCodePickingTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

    static void Pick(TAccountLine& line, const THCSelectedCode& code)
    {
        line.Host.Pickers.PickedAccount = code;
        Typing::Type(QApplication::focusWidget(), QStringLiteral("+"));
        QTest::qWait(20);
    }

private Q_SLOTS:
    void thePickerBeginsOnTheLevelOfTheFocus_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::addColumn<int>("focusLevel");
        QTest::newRow("total") << L::T << 0;
        QTest::newRow("assistant") << L::A << 1;
        QTest::newRow("detail") << L::D << 2;
    }
    void thePickerBeginsOnTheLevelOfTheFocus()
    {
        QFETCH(TCodeItem, level);
        QFETCH(int, focusLevel);
        TAccountLine line;
        line.Frame->SetGroupTypeFilter(
            TSelectGroups().Include(THCSelectGroups::sgAssets).Include(THCSelectGroups::sgIncomes));
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        QVERIFY(line.Start(level));
        Pick(line, {});
        QCOMPARE(line.Host.Log.Lines(),
                 QStringList{QStringLiteral("Select_AccountCodes(18, 7, 2, 11, %1)").arg(focusLevel)});
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "000011"})); // cancelled
    }

    void emptyLevelsArePassedAsEmptyTexts()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Pick(line, {});
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_AccountCodes(0, , , , 0)")});
    }

    void thePickedCodesAreWrittenAndTheFocusGoesToTheDetail()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Pick(line, {7, 2, 11});
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "000011"}));
        QVERIFY(line.Box(L::D)->hasFocus());
        QVERIFY(line.Messages().isEmpty());
        QCOMPARE(line.Events.filter(QStringLiteral("total")).size(), 1);
        QCOMPARE(line.Events.filter(QStringLiteral("assistant")).size(),
                 3); // emptied, written, and its event
        QCOMPARE(line.Events.filter(QStringLiteral("detail")).size(), 1);
        QCOMPARE(line.Frame->SelectCodes.Detail, 11);
        line.Leave();
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها - جاری - ملت"));
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "000011"}));
    }

    void aTotalOnlyEmptiesWhatIsBelow()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        QVERIFY(line.Start());
        Pick(line, {90, 0, 0});
        QCOMPARE(line.Texts().constFirst(), QStringLiteral("090"));
        QCOMPARE(line.Frame->GetAssistantCode(), 0);
        QCOMPARE(line.Frame->GetDetailCode(), 0);
        QVERIFY(line.Box(L::A)->hasFocus()); // a total that fills its box moves on
    }

    void whatWasTypedBeforePickingDoesNotClearThePickedLevels()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("9"));
        Pick(line, {7, 2, 11});
        line.Leave();
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "000011"}));
    }

    void levelsOutsideTheSetAreNotWritten_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<QStringList>("texts");
        const QString total = QStringLiteral("کل");
        const QString assistant = QStringLiteral("معين");
        const QString detail = QStringLiteral("تفصيلي");
        QTest::newRow("T") << 1 << QStringList{"007", assistant, detail};
        QTest::newRow("A") << 2 << QStringList{total, "002", detail};
        QTest::newRow("TA") << 3 << QStringList{"007", "002", detail};
        QTest::newRow("D") << 4 << QStringList{total, assistant, "000011"};
        QTest::newRow("TD") << 5 << QStringList{"007", assistant, "000011"};
        QTest::newRow("AD") << 6 << QStringList{total, "002", "000011"};
        QTest::newRow("TAD") << 7 << QStringList{"007", "002", "000011"};
        QTest::newRow("E") << 8 << QStringList{total, assistant, detail};
    }
    void levelsOutsideTheSetAreNotWritten()
    {
        QFETCH(int, levels);
        QFETCH(QStringList, texts);
        TAccountLine line(TCodeItems::FromBits(static_cast<unsigned>(levels)));
        for (const QString& total : {QString(), QStringLiteral("7")}) {
            for (const QString& assistant : {QString(), QStringLiteral("2")}) {
                for (const QString& detail : {QString(), QStringLiteral("11")})
                    line.Host.Accounting.Names.insert(
                        QStringList{total, assistant, detail}.join(QLatin1Char('/')), QStringLiteral("نام"));
            }
        }
        line.Host.Pickers.PickedAccount = {7, 2, 11};
        line.Frame->AccCodeSelect_PUM->Click();
        QCOMPARE(line.Texts().mid(0, 3), texts);
        QVERIFY(line.Messages().isEmpty());
    }

    void aDetailWithoutAnAssistantIsLeftOutOnSeveralLevels()
    {
        TAccountLine line;
        line.Host.Pickers.PickedAccount = {7, 0, 11};
        line.Frame->AccCodeSelect_PUM->Click();
        QCOMPARE(line.Frame->GetTotalCode(), 7);
        QCOMPARE(line.Frame->GetDetailCode(), 0);
    }

    void onePickerPerLevelBeginsWithTheTotals()
    {
        TAccountLine line;
        line.Frame->SetSingleForm(true);
        line.Frame->SetGroupTypeFilter(
            TSelectGroups().Include(THCSelectGroups::sgAssets).Include(THCSelectGroups::sgIncomes));
        line.Host.Pickers.Picked = 7;
        line.Frame->AccCodeSelect_PUM->Click();
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Select_AccTotals1(1,4, )")));
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "معين", "تفصيلي"}));
        QCOMPARE(line.Events.last(), QStringLiteral("total"));
    }

    void theAssistantsPickerKeepsTheTotal()
    {
        TAccountLine line({L::A, L::D});
        line.Frame->SetSingleForm(true);
        line.Host.Accounting.Names.insert(QStringLiteral("/2/"), QStringLiteral("جاری"));
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Forget();
        line.Host.Pickers.Picked = 2;
        line.Frame->AccCodeSelect_PUM->Click();
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Select_AccAssistants1(7, )")));
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "تفصيلي"}));
    }

    void theDetailsPickerKeepsTotalAndAssistant()
    {
        TAccountLine line({L::D});
        line.Frame->SetSingleForm(true);
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Forget();
        line.Host.Pickers.Picked = 11;
        line.Frame->AccCodeSelect_PUM->Click();
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Select_AccDetails1(7, 2, )")));
        QCOMPARE(line.Texts().mid(0, 3), (QStringList{"007", "002", "000011"}));
        QVERIFY(line.Events.contains(QStringLiteral("detail")));
    }

    void aCancelledPickerChangesNothing_data()
    {
        QTest::addColumn<int>("levels");
        QTest::newRow("total") << 7;
        QTest::newRow("assistant") << 6;
        QTest::newRow("detail") << 4;
    }
    void aCancelledPickerChangesNothing()
    {
        QFETCH(int, levels);
        TAccountLine line(TCodeItems::FromBits(static_cast<unsigned>(levels)));
        line.Frame->SetSingleForm(true);
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        const QStringList before = line.Texts();
        line.Forget();
        line.Frame->AccCodeSelect_PUM->Click();
        QCOMPARE(line.Texts(), before);
        QVERIFY(line.Events.isEmpty());
    }

    void theExpenseCentersListIsAskedWithItsPart()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        line.Host.Pickers.Picked = 42;
        Typing::Type(line.Box(L::E), QStringLiteral("+"));
        QCOMPARE(line.Host.Log.Lines().constFirst(), QStringLiteral("Select_Entity(115, , 0)"));
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("0042"));
        QVERIFY(line.Name().contains(QStringLiteral("[کارگاه]")));
        QCOMPARE(line.Events, QStringList{"change"});
    }

    void theButtonPicksForTheBoxThatLastHadTheFocus()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        QTest::mouseClick(line.Frame->Select_BTN, Qt::LeftButton, {},
                          QPoint(line.Frame->Select_BTN->width() - 5, 14));
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_Entity(115, , 0)")});
        QVERIFY(line.Box(L::E)->hasFocus());
        line.Box(L::A)->setFocus();
        line.Forget();
        QTest::mouseClick(line.Frame->Select_BTN, Qt::LeftButton, {},
                          QPoint(line.Frame->Select_BTN->width() - 5, 14));
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_AccountCodes(0, , , , 1)")});
    }

    void theMenuOffersBoth()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        QCOMPARE(line.Frame->Select_BTN->DropDownMenu(), line.Frame->Menu_PUM);
        QTest::mouseClick(line.Frame->Select_BTN, Qt::LeftButton, {}, QPoint(4, 14));
        QVERIFY(line.Frame->Menu_PUM->isVisible());
        QVERIFY(line.Events.isEmpty()); // a menu is no exit
        QTest::mouseClick(line.Frame->Menu_PUM, Qt::LeftButton, {},
                          line.Frame->Menu_PUM->actionGeometry(line.Frame->ExpenseCenter_PUM).center());
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_Entity(115, , 0)")});
        QVERIFY(!line.Frame->Menu_PUM->isVisible());
    }

    void anOwnerMayPutItsOwnHandlersInFront()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        QStringList calls;
        line.Frame->Select_BTN->OnClick = [&](QObject* sender) {
            calls.append(QStringLiteral("button"));
            line.Frame->Select_BTNClick(sender);
        };
        line.Frame->ExpenseCenter_PUM->OnClick = [&](QObject*) { calls.append(QStringLiteral("menu")); };
        Typing::Type(line.Box(L::E), QStringLiteral("+"));
        QCOMPARE(calls, (QStringList{"button", "menu"}));
        QVERIFY(line.Host.Log.Lines().isEmpty());
    }

    void aDisabledFrameOpensNoPicker()
    {
        TAccountLine line;
        line.Frame->Enabled(false, false);
        line.Frame->Select_BTN->Click();
        QVERIFY(line.Host.Log.Lines().isEmpty());
    }

    void theFrameMayBeDestroyedWhileAPickerIsOpen()
    {
        TAccountLine line;
        for (const TCodeItem level : {L::T, L::E}) {
            auto* const frame = new TSelect_AccountCode(line.Form.get());
            frame->SetCodeItem({L::T, L::A, L::D, L::E});
            frame->init();
            frame->show();
            QVERIFY(Typing::ShowActive(line.Form.get()));
            TSmartEdit_TRV* const box = level == L::T ? frame->TotalCode_EDT : frame->ExpenseCenterCode_EDT;
            box->setFocus();
            line.Host.Pickers.WhilePicking = [frame] { delete frame; };
            line.Host.Pickers.Picked = 42;
            line.Host.Pickers.PickedAccount = {7, 2, 11};
            Typing::Type(box, QStringLiteral("+"));
            line.Host.Pickers.WhilePicking = nullptr;
        }
        QCOMPARE(line.Form->findChildren<TSelect_AccountCode*>().size(), 1);
    }
};

QTEST_MAIN(SelectAccountCodePickingTest)
#include "SelectAccountCodePickingTest.moc"
