#include "SearchBar.h"
#include "TestCase.h"

#include <QSignalSpy>

class GeneralSearchItemsTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned()
    {
        const TRecordingHost host;
        const TGeneral_Search_Frame frame;
        QCOMPARE(frame.size(), QSize(800, 33));
        QCOMPARE(frame.layoutDirection(), Qt::RightToLeft);
        QCOMPARE(frame.Label_TRVDEVX2->Caption(), QStringLiteral("F10  جستجو بر اساس :"));
        QCOMPARE(frame.Label_TRVDEVX2->FocusControl(), frame.Search_CMB);
        QCOMPARE(frame.Search_CMB->width(), 121);
        QCOMPARE(frame.Panel1->width(), 305);
        QCOMPARE(frame.Search_Reverst_CHK->text(), QStringLiteral("&ن"));
        QCOMPARE(frame.Search_Reverst_CHK->width(), 15);
        QCOMPARE(frame.Search_Reverst_LBL->Caption(), QStringLiteral("در جستجو &نباشد"));
        const TTarvaSearch& criterion = *frame.TarvaSearch_General;
        QCOMPARE(criterion.SearchTypes(), TSearchType::stGeneral);
        QCOMPARE(criterion.SearchItems.Count(), 1);
        QCOMPARE(criterion.SearchItems.GetItem(0).ItemResult, TSearchItemResult::irProc);
        QCOMPARE(criterion.SearchItems.GetItem(0).DataType, TSearchDataType::idtString);
        QCOMPARE(criterion.ItemIndex(), -1);
        QVERIFY(!criterion.Active());
    }

    void theThreeEditsFillThePanelAndKeepTheirKinds()
    {
        const TRecordingHost host;
        const TGeneral_Search_Frame frame;
        for (const TSmartEdit_TRV* edit : {frame.Search_EDT, frame.SearchCost_EDT, frame.SearchDigit_EDT}) {
            QCOMPARE(edit->parentWidget(), frame.Panel1);
            QCOMPARE(edit->geometry(), frame.Panel1->rect());
            QCOMPARE(edit->DelayTimeCount(), 300);
        }
        QCOMPARE(frame.Search_EDT->EditType(), TSmartEdit_TRV::etString);
        QCOMPARE(frame.Search_EDT->MaxLength(), 0);
        QCOMPARE(frame.Search_EDT->Text(), QString());
        QCOMPARE(frame.SearchCost_EDT->EditType(), TSmartEdit_TRV::etCurrency);
        QCOMPARE(frame.SearchCost_EDT->MaxLength(), 15);
        QCOMPARE(frame.SearchCost_EDT->Text(), QStringLiteral("0"));
        QCOMPARE(frame.SearchDigit_EDT->EditType(), TSmartEdit_TRV::etNumeric);
        QCOMPARE(frame.SearchDigit_EDT->MaxLength(), 12);
        QCOMPARE(frame.SearchDigit_EDT->Text(), QStringLiteral("0"));
    }

    void everyControlHasAnAccessibleName()
    {
        const TRecordingHost host;
        const TGeneral_Search_Frame frame;
        const QList<QWidget*> controls{frame.Search_CMB, frame.Search_EDT, frame.SearchCost_EDT,
                                       frame.SearchDigit_EDT, frame.Search_Reverst_CHK};
        for (const QWidget* control : controls)
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    }

    void theControlsStandFromRightToLeft()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        const QList<QWidget*> order{bar.Frame->Label_TRVDEVX2, bar.Frame->Search_CMB, bar.Frame->Panel1,
                                    bar.Frame->Search_Reverst_CHK, bar.Frame->Search_Reverst_LBL};
        for (qsizetype index = 1; index < order.size(); ++index)
            QVERIFY(order[index]->geometry().right() < order[index - 1]->geometry().left());
    }

    void tabFollowsTheReadingOrder()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Frame->ReverstSearchEnabled(true);
        bar.Frame->Search_CMB->setFocus();
        const QList<QWidget*> order{bar.Frame->Search_EDT, bar.Frame->Search_Reverst_CHK, bar.Other};
        QCOMPARE(Typing::TabStops(order.size()), order);
    }

    void initFillsTheComboAndSwitchesTheCriterionOn()
    {
        TSearchBar bar;
        QCOMPARE(bar.Criterion()->ItemIndex(), -1);
        bar.Frame->init();
        QCOMPARE(bar.Criterion()->ItemIndex(), 0);
        QCOMPARE(bar.Frame->Search_CMB->Count(), 3);
        QCOMPARE(bar.Frame->Search_CMB->ItemText(1), QStringLiteral("قیمت"));
        QCOMPARE(bar.Frame->Search_CMB->ItemIndex(), 0);
        QVERIFY(bar.Criterion()->Active());
        QVERIFY(bar.Frame->Filter_is_done());
        QVERIFY(!bar.Frame->Search_Reverst_CHK->isEnabled());
        QVERIFY(!bar.Frame->Search_Reverst_LBL->isEnabled());
        QVERIFY(bar.Criterion()->Value1().toString().isEmpty());
        bar.Frame->init();
        QCOMPARE(bar.Frame->Search_CMB->Count(), 3);
    }

    void initKeepsTheItemThatTheHostChose()
    {
        TSearchBar bar;
        bar.Criterion()->SetItemIndex(2);
        bar.Frame->init();
        QCOMPARE(bar.Frame->Search_CMB->ItemIndex(), 2);
        QVERIFY(!bar.Frame->SearchDigit_EDT->isHidden());
        QVERIFY(bar.Frame->Search_EDT->isHidden());
        QVERIFY(bar.Frame->SearchCost_EDT->isHidden());
    }

    void withoutItemsTheComboStaysEmptyAndTheCriterionOff()
    {
        TSearchBar bar(false);
        bar.Frame->init();
        QCOMPARE(bar.Frame->Search_CMB->Count(), 0);
        QVERIFY(!bar.Criterion()->Active());
        QCOMPARE(bar.Criterion()->ItemIndex(), -1);
    }

    void choosingAnItemShowsItsEditAndEmptiesTheValue()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        Typing::Type(bar.Edit(), QStringLiteral("abc"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        int raised = 0;
        bar.Criterion()->OnChange = [&raised](QObject*) { ++raised; };
        bar.Frame->Search_CMB->setFocus();
        Typing::Press(bar.Frame->Search_CMB, Qt::Key_Down);
        QCOMPARE(bar.Criterion()->ItemIndex(), 1);
        QCOMPARE(bar.Edit(), bar.Frame->SearchCost_EDT);
        QCOMPARE(bar.Criterion()->Value1(), QVariant(QString()));
        QCOMPARE(bar.Criterion()->FocusControl(), bar.Frame->SearchCost_EDT);
        QTest::qWait(500);
        QCOMPARE(raised, 0);
        QVERIFY(bar.Criterion()->OnChange);
        QCOMPARE(bar.Criterion()->Value1(), QVariant(QString()));
        QVERIFY(bar.Frame->Filter_is_done());
    }

    void aValueTypedForTheItemBeforeIsNotAppliedToTheNext()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(1));
        Typing::Type(bar.Edit(), QStringLiteral("5"));
        bar.Criterion()->SetItemIndex(0);
        QTest::qWait(500);
        QCOMPARE(bar.Criterion()->Value1().toString(), QString());
        QVERIFY(bar.Frame->Filter_is_done());
        QCOMPARE(bar.Frame->Search_CMB->ItemIndex(), 0);
    }

    void theItemsMaxLengthLimitsTheNumberEdits()
    {
        TSearchBar bar;
        bar.Criterion()->SearchItems.GetItem(2).MaxLength = 4;
        QVERIFY(bar.Start(1));
        QCOMPARE(bar.Frame->SearchCost_EDT->MaxLength(), 15);
        bar.Criterion()->SetItemIndex(2);
        QCOMPARE(bar.Frame->SearchDigit_EDT->MaxLength(), 4);
        bar.Edit()->setFocus();
        Typing::Type(bar.Edit(), QStringLiteral("123456"));
        QTRY_COMPARE(bar.Criterion()->Value1(), QVariant(1234.0));
    }

    void anEditThatTakesNoFocusIsNotNamed()
    {
        TSearchBar bar;
        bar.Frame->SearchDigit_EDT->SetCanTakeFocus(false);
        QVERIFY(bar.Start(1));
        bar.Criterion()->SetItemIndex(2);
        QCOMPARE(bar.Criterion()->FocusControl(), bar.Frame->SearchCost_EDT);
    }

    void otherKindsLeaveTheEditsAlone()
    {
        TSearchBar bar;
        bar.Add(QStringLiteral("تاریخ"), TSearchDataType::idtDateTime);
        QVERIFY(bar.Start(2));
        bar.Criterion()->SetItemIndex(3);
        QCOMPARE(bar.Edit(), bar.Frame->SearchDigit_EDT);
        QCOMPARE(bar.Frame->Search_CMB->ItemIndex(), 3);
    }

    void theHostsTextShowsWithoutItsQuotes()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Criterion()->SetValue1(QStringLiteral("'O'Brien'"));
        QCOMPARE(bar.Frame->Search_EDT->Text(), QStringLiteral("OBrien"));
        QVERIFY(bar.Frame->Search_Reverst_CHK->isEnabled());
        QVERIFY(bar.Frame->Filter_is_done());
        QCOMPARE(bar.Criterion()->Value1().toString(), QStringLiteral("'O'Brien'"));
        bar.Criterion()->SetValue1(QStringLiteral("' '"));
        QVERIFY(!bar.Frame->Search_Reverst_CHK->isEnabled());
    }

    void theHostsNumbersShowInFull()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(1));
        bar.Criterion()->SetValue1(100000000000000.0);
        QCOMPARE(bar.Frame->SearchCost_EDT->Text(), QStringLiteral("100000000000000"));
        QVERIFY(bar.Frame->Search_Reverst_CHK->isEnabled());
        bar.Criterion()->SetValue1(QStringLiteral("0"));
        QVERIFY(!bar.Frame->Search_Reverst_CHK->isEnabled());
        bar.Criterion()->SetItemIndex(2);
        bar.Criterion()->SetValue1(12);
        QCOMPARE(bar.Frame->SearchDigit_EDT->Text(), QStringLiteral("12"));
        QCOMPARE(bar.Frame->SearchCost_EDT->GetValue(), 0.0L);
        QTest::qWait(500);
        QCOMPARE(bar.Criterion()->Value1(), QVariant(12));
    }

    void clearEmptiesEverythingAndEndsActive()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(1));
        Typing::Type(bar.Edit(), QStringLiteral("25"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        QTest::mouseClick(bar.Frame->Search_Reverst_CHK, Qt::LeftButton);
        QVERIFY(bar.Criterion()->Reverst());
        QSignalSpy active(bar.Criterion(), &TTarvaSearch::activeChanged);
        bar.Frame->Clear();
        QCOMPARE(active.count(), 2);
        QVERIFY(bar.Criterion()->Active());
        QVERIFY(!bar.Criterion()->Reverst());
        QVERIFY(!bar.Frame->Search_Reverst_CHK->Checked());
        QVERIFY(!bar.Frame->Search_Reverst_CHK->isEnabled());
        QVERIFY(!bar.Frame->Search_Reverst_LBL->isEnabled());
        QCOMPARE(bar.Frame->SearchCost_EDT->GetValue(), 0.0L);
        QCOMPARE(bar.Frame->Search_CMB->ItemIndex(), 1);
        QTest::qWait(500);
        QCOMPARE(bar.Criterion()->Value1(), QVariant(QString()));
    }

    void clearForgetsAKeystrokeThatWaits()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        Typing::Type(bar.Edit(), QStringLiteral("abc"));
        bar.Frame->Clear();
        QTest::qWait(500);
        QCOMPARE(bar.Criterion()->Value1(), QVariant(QString()));
        QVERIFY(bar.Frame->Filter_is_done());
    }
};

QTEST_MAIN(GeneralSearchItemsTest)
#include "GeneralSearchItemsTest.moc"
