#include "EntitySearchForm.h"
#include "SelectEntity_Search_UNT.h"
#include "TestCase.h"

#include <QAbstractButton>
#include <QSignalSpy>

namespace {

struct TSearch : TEntitySearchForm<TSelectEntity_Search_Frame>
{
    TTarvaSearch* Kind = Frame->TarvaSearch_SelectEntityCMB;
    TTarvaSearch* Code = Frame->TarvaSearch_SelectEntityEDT;
    TSelect_Entity_Frame* Selector = Frame->TSelect_Entity_Frame1;

    bool Start()
    {
        AddKinds(*Kind);
        Frame->init();
        return Typing::ShowActive(Form.get());
    }

    bool StartChecked()
    {
        const bool isActive = Start();
        QTest::mouseClick(Frame->SelectEntity_CHK, Qt::LeftButton);
        return isActive;
    }

    QWidgetList FollowingControls() const
    {
        return {Frame->SelectEntity_CMB, Selector->Code_EDT, Selector->Name_LBL,
                Frame->SelectEntity_Reverst_CHK, Frame->SelectEntity_Reverst_LBL};
    }
};

} // namespace

class SelectEntitySearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned()
    {
        const TSearch search;
        const TSelectEntity_Search_Frame& frame = *search.Frame;
        QCOMPARE(frame.SelectEntity_Cap_LBL->Caption(), QStringLiteral("ک&د :"));
        QCOMPARE(frame.SelectEntity_CHK->text(), QStringLiteral("&ک"));
        QCOMPARE(frame.SelectEntity_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
        QCOMPARE(frame.TSelect_Entity_Frame1->objectName(), QStringLiteral("TSelect_Entity_Frame1"));
        for (const TTarvaSearch* criterion : {search.Kind, search.Code}) {
            QCOMPARE(criterion->SearchTypes(), TSearchType::stGeneral);
            QCOMPARE(criterion->SearchItems.Count(), 0);
            QCOMPARE(criterion->ItemIndex(), 0);
            QVERIFY(!criterion->Active());
            QVERIFY(!criterion->Reverst());
        }
        for (const QWidget* control :
             QWidgetList{frame.SelectEntity_CHK, frame.SelectEntity_CMB, frame.SelectEntity_Reverst_CHK})
            QVERIFY(!control->accessibleName().isEmpty());
    }

    void withoutItemsNothingIsStarted()
    {
        const TSearch search;
        search.Code->SetValue1(QStringLiteral("5"));
        search.Frame->init();
        QCOMPARE(search.Frame->SelectEntity_CMB->Count(), 0);
        QVERIFY(search.Frame->SelectEntity_CMB->isEnabled());
        QCOMPARE(search.Code->Value1(), QVariant(QStringLiteral("5")));
    }

    void theStartIsEmptyAndSwitchedOff()
    {
        TSearch search;
        search.Kind->SetActive(true);
        search.Code->SetValue1(QStringLiteral("5"));
        search.Selector->Code_EDT->SetText(QStringLiteral("5"));
        QVERIFY(search.Start());
        QCOMPARE(search.Frame->SelectEntity_CMB->Count(), 2);
        QCOMPARE(search.Frame->SelectEntity_CMB->ItemText(0), QStringLiteral("اشخاص"));
        QCOMPARE(search.Frame->SelectEntity_CMB->ItemText(1), QStringLiteral("سطح یک"));
        QCOMPARE(search.Frame->SelectEntity_CMB->ItemIndex(), 0);
        QVERIFY(!search.Kind->Active());
        QCOMPARE(search.Code->Value1(), QVariant(QString()));
        QCOMPARE(search.Selector->Code_EDT->Text(), QString());
        for (const QWidget* control : search.FollowingControls())
            QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
        QVERIFY(search.Frame->SelectEntity_CHK->isEnabled());
    }

    void aSecondStartDoesNotDoubleTheKinds()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        search.Frame->init();
        QCOMPARE(search.Frame->SelectEntity_CMB->Count(), 2);
        QVERIFY(!search.Frame->SelectEntity_CHK->Checked());
        QVERIFY(!search.Code->Active());
    }

    void theKindThatIsShownAtTheStartIsInForce()
    {
        TSearch search;
        TSearch::Add(*search.Kind, QStringLiteral("بانک"), TEntityType::etBankAccounts,
                     TSearchFilterType::iftQuery);
        search.Frame->init();
        QCOMPARE(search.Selector->Code_EDT->EntityType(), TEntityType::etBankAccounts);
    }

    void anItemWithoutKindLeavesTheOwnersKind()
    {
        const TSearch search;
        search.Kind->SearchItems.Add();
        search.Selector->Code_EDT->SetEntityType(TEntityType::etGoods);
        search.Frame->init();
        QCOMPARE(search.Selector->Code_EDT->EntityType(), TEntityType::etGoods);
    }

    void theCheckBoxSwitchesBothCriteria_data()
    {
        QTest::addColumn<bool>("byLabel");
        QTest::newRow("check box") << false;
        QTest::newRow("its caption") << true;
    }

    void theCheckBoxSwitchesBothCriteria()
    {
        QFETCH(bool, byLabel);
        TSearch search;
        QVERIFY(search.Start());
        const QSignalSpy switched(search.Code, &TTarvaSearch::activeChanged);
        QWidget* const clicked = byLabel ? static_cast<QWidget*>(search.Frame->SelectEntity_Cap_LBL)
                                         : search.Frame->SelectEntity_CHK;
        for (const bool on : {true, false}) {
            search.Other->setFocus();
            QTest::mouseClick(clicked, Qt::LeftButton);
            QCOMPARE(search.Frame->SelectEntity_CHK->Checked(), on);
            QCOMPARE(search.Kind->Active(), on);
            QCOMPARE(search.Code->Active(), on);
            for (const QWidget* control : search.FollowingControls())
                QCOMPARE(control->isEnabled(), on);
            QCOMPARE(search.Frame->SelectEntity_CMB->hasFocus(), on);
        }
        QCOMPARE(switched.count(), 2);
    }

    void mnemonicsReachTheCheckBox_data()
    {
        QTest::addColumn<int>("letter");
        QTest::newRow("of the check box") << 0x06A9;
        QTest::newRow("of its caption") << 0x062F;
    }

    void mnemonicsReachTheCheckBox()
    {
        QFETCH(int, letter);
        TSearch search;
        QVERIFY(search.Start());
        for (const bool on : {true, false}) {
            search.Other->setFocus();
            QTest::sendKeyEvent(QTest::Click, search.Other, static_cast<Qt::Key>(letter), QString(),
                                Qt::AltModifier);
            QCOMPARE(search.Frame->SelectEntity_CHK->Checked(), on);
        }
    }

    void switchingOnUnseenMovesNoFocus()
    {
        TSearch search;
        QVERIFY(search.Start());
        search.Other->setFocus();
        search.Frame->hide();
        search.Frame->SelectEntity_CHK->SetChecked(true);
        QVERIFY(search.Other->hasFocus());
        QVERIFY(search.Code->Active());
    }

    void choosingAKindSwitchesTheSelectorAndEmptiesIt()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        TSearch::Enter(search.Selector, QStringLiteral("5"));
        QCOMPARE(search.Selector->Name_LBL->Caption(), QStringLiteral("رضایی"));
        search.ChooseNextKind();
        QCOMPARE(search.Kind->ItemIndex(), 1);
        QCOMPARE(search.Code->ItemIndex(), 1);
        QCOMPARE(search.Selector->Code_EDT->EntityType(), TEntityType::etExpenseLevel1);
        QCOMPARE(search.Selector->Code_EDT->Text() + search.Selector->Name_LBL->Caption(), QString());
    }

    void aLeftCodeReachesTheCriterionAsText()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        TSearch::Enter(search.Selector, QStringLiteral("۵"));
        QCOMPARE(search.Code->Value1(), QVariant(QStringLiteral("5")));
        QCOMPARE(search.Selector->Name_LBL->Caption(), QStringLiteral("رضایی"));
        search.ChooseNextKind();
        TSearch::Enter(search.Selector, QStringLiteral("7"));
        QCOMPARE(search.Code->Value1(), QVariant(QStringLiteral("007")));
        QVERIFY(!search.Kind->Value1().isValid());
    }

    void anUnknownCodeEmptiesTheCriterionToo()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        TSearch::Enter(search.Selector, QStringLiteral("5"));
        TSearch::Enter(search.Selector, QStringLiteral("6"));
        QCOMPARE(search.Code->Value1(), QVariant(QString()));
        QVERIFY(search.Selector->Code_EDT->hasFocus());
    }

    void aPickedCodeReachesTheCriterion()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        search.Host.Pickers.Picked = 9;
        QTest::mouseClick(search.Selector->Code_EDT->findChild<QAbstractButton*>(), Qt::LeftButton);
        QCOMPARE(search.Host.Log.CountOf(QStringLiteral("Select_Entity")), 1);
        QCOMPARE(search.Code->Value1(), QVariant(QStringLiteral("9")));
        QVERIFY(search.Frame->SelectEntity_Reverst_CHK->hasFocus());
    }

    void aCodeThatTheOwnerSetsReachesTheCriterion()
    {
        TSearch search;
        QVERIFY(search.Start());
        search.Selector->SetCodeValue(5);
        QCOMPARE(search.Code->Value1(), QVariant(QStringLiteral("5")));
    }

    void theReverseFlagLivesOnTheCodeOnly_data() { theCheckBoxSwitchesBothCriteria_data(); }

    void theReverseFlagLivesOnTheCodeOnly()
    {
        QFETCH(bool, byLabel);
        TSearch search;
        QVERIFY(search.StartChecked());
        QWidget* const clicked = byLabel ? static_cast<QWidget*>(search.Frame->SelectEntity_Reverst_LBL)
                                         : search.Frame->SelectEntity_Reverst_CHK;
        for (const bool on : {true, false}) {
            QTest::mouseClick(clicked, Qt::LeftButton);
            QCOMPARE(search.Frame->SelectEntity_Reverst_CHK->Checked(), on);
            QCOMPARE(search.Code->Reverst(), on);
            QVERIFY(!search.Kind->Reverst());
        }
    }

    void tabWalksThroughTheLine()
    {
        TSearch search;
        QVERIFY(search.StartChecked());
        search.Frame->SelectEntity_CHK->setFocus();
        const QWidgetList order{search.Frame->SelectEntity_CMB, search.Selector->Code_EDT,
                                search.Frame->SelectEntity_Reverst_CHK, search.Other};
        QCOMPARE(Typing::TabStops(order.size()), order);
    }

    void theFrameMayBeDestroyedByTheSelectorsEvent_data()
    {
        QTest::addColumn<bool>("picked");
        QTest::newRow("left") << false;
        QTest::newRow("picked") << true;
    }

    void theFrameMayBeDestroyedByTheSelectorsEvent()
    {
        QFETCH(bool, picked);
        TSearch search;
        QVERIFY(search.StartChecked());
        const QPointer<TSelectEntity_Search_Frame> frame = search.Frame;
        search.Selector->SetOnCodeChanged([&search](QObject*) { delete search.Frame; });
        search.Host.Pickers.Picked = 9;
        search.Selector->Code_EDT->setFocus();
        if (picked) {
            Typing::Press(search.Selector->Code_EDT, Qt::Key_F4);
        } else {
            Typing::Type(search.Selector->Code_EDT, QStringLiteral("5"));
            // To a control that outlives the frame: the toolkit itself cannot lose the one that it is
            // focusing.
            search.Other->setFocus();
        }
        QVERIFY(!frame);
    }
};

QTEST_MAIN(SelectEntitySearchTest)
#include "SelectEntitySearchTest.moc"
