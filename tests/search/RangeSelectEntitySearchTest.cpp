#include "EntitySearchForm.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "TestCase.h"

namespace {

struct TRange : TEntitySearchForm<TRange_SelectEntity_Search_Frame>
{
    TTarvaSearch* Criterion = Frame->TarvaSearch_Range_SelectEntity;
    TSelect_Entity_Frame* From = Frame->Select_Entity_Frame1;
    TSelect_Entity_Frame* To = Frame->Select_Entity_Frame2;
    QStringList Steps; ///< the bounds and the state at each change of the criterion

    TRange()
    {
        QObject::connect(Criterion, &TTarvaSearch::changed, Form.get(), [this] { Note(); });
        QObject::connect(Criterion, &TTarvaSearch::activeChanged, Form.get(), [this] { Note(); });
    }

    void Note()
    {
        Steps.append(QStringLiteral("%1-%2 %3")
                         .arg(Criterion->Value1().toString(), Criterion->Value2().toString(),
                              Criterion->Active() ? QStringLiteral("on") : QStringLiteral("off")));
    }

    bool Start()
    {
        AddKinds(*Criterion);
        Frame->init();
        Steps.clear();
        return Typing::ShowActive(Form.get());
    }

    bool StartChecked()
    {
        const bool isActive = Start();
        QTest::mouseClick(Frame->SelectEntity_CHK, Qt::LeftButton);
        Steps.clear();
        return isActive;
    }

    bool BoundsAreIntegers() const
    {
        return Criterion->Value1().typeId() == QMetaType::Int &&
               Criterion->Value2().typeId() == QMetaType::Int;
    }

    QWidgetList FollowingControls() const
    {
        return {Frame->SelectEntity_CMB, From->Code_EDT, To->Code_EDT, Frame->SelectEntity_Reverst_CHK,
                Frame->SelectEntity_Reverst_LBL};
    }
};

} // namespace

class RangeSelectEntitySearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned()
    {
        const TRange range;
        const TRange_SelectEntity_Search_Frame& frame = *range.Frame;
        QCOMPARE(frame.SelectEntity_Cap_LBL->Caption(), QStringLiteral("ک&د :"));
        QCOMPARE(frame.SelectEntity_CHK->text(), QStringLiteral("      &د"));
        QCOMPARE(frame.Label_TRVDEVX1->Caption(), QStringLiteral("از :"));
        QCOMPARE(frame.Label_TRVDEVX2->Caption(), QStringLiteral("تا :"));
        QCOMPARE(frame.SelectEntity_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
        QCOMPARE(range.Criterion->SearchTypes(), TSearchType::stRangeDigit);
        QCOMPARE(range.Criterion->SearchItems.Count(), 0);
        QCOMPARE(range.Criterion->ItemIndex(), 0);
        QVERIFY(!range.Criterion->Active());
        QVERIFY(!range.Frame->GetActive());
    }

    void withoutItemsNothingIsStarted()
    {
        const TRange range;
        range.Criterion->SetValue1(5);
        range.Frame->init();
        QVERIFY(range.Frame->SelectEntity_CMB->isEnabled());
        QCOMPARE(range.Criterion->Value1(), QVariant(5));
    }

    void theStartIsEmptyAndSwitchedOff()
    {
        TRange range;
        range.Criterion->SetActive(true);
        range.From->Code_EDT->SetText(QStringLiteral("5"));
        QVERIFY(range.Start());
        QCOMPARE(range.Frame->SelectEntity_CMB->Count(), 2);
        QCOMPARE(range.Frame->SelectEntity_CMB->ItemIndex(), 0);
        QVERIFY(!range.Criterion->Active());
        QCOMPARE(range.Criterion->Value1(), QVariant(0));
        QCOMPARE(range.Criterion->Value2(), QVariant(0));
        QCOMPARE(range.From->Code_EDT->Text(), QString());
        QCOMPARE(range.From->Code_EDT->EntityType(), TEntityType::etPersonals);
        for (const QWidget* control : range.FollowingControls())
            QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    }

    void theReverseControlsAreShownForStatementsOnly()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        for (const QWidget* control :
             QWidgetList{range.Frame->SelectEntity_Reverst_CHK, range.Frame->SelectEntity_Reverst_LBL}) {
            range.Criterion->SetItemIndex(0);
            QVERIFY(control->isVisible());
            range.Criterion->SetItemIndex(1);
            QVERIFY(!control->isVisible());
            range.Criterion->SetItemIndex(-1);
            QVERIFY(!control->isVisible());
        }
    }

    void theFirstItemDecidesAtTheStart()
    {
        const TRange range;
        TRange::Add(*range.Criterion, QStringLiteral("بانک"), TEntityType::etBankAccounts,
                    TSearchFilterType::iftDataset);
        range.Frame->init();
        QVERIFY(range.Frame->SelectEntity_Reverst_CHK->isHidden());
        QCOMPARE(range.From->Code_EDT->EntityType(), TEntityType::etBankAccounts);
        QCOMPARE(range.To->Code_EDT->EntityType(), TEntityType::etBankAccounts);
    }

    void choosingAKindEmptiesBothCodesAndBounds()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        TRange::Enter(range.From, QStringLiteral("5"));
        TRange::Enter(range.To, QStringLiteral("9"));
        QCOMPARE(range.Steps, (QStringList{QStringLiteral("5-0 on"), QStringLiteral("5-9 on")}));
        range.Steps.clear();
        range.ChooseNextKind();
        QCOMPARE(range.Criterion->ItemIndex(), 1);
        QCOMPARE(range.Steps, (QStringList{QStringLiteral("0-9 on"), QStringLiteral("0-0 on")}));
        for (const TSelect_Entity_Frame* selector : {range.From, range.To}) {
            QCOMPARE(selector->Code_EDT->EntityType(), TEntityType::etExpenseLevel1);
            QCOMPARE(selector->Code_EDT->Text() + selector->Name_LBL->Caption(), QString());
        }
        QVERIFY(range.BoundsAreIntegers());
    }

    void theCheckBoxSwitchesTheCriterion_data()
    {
        QTest::addColumn<bool>("byLabel");
        QTest::newRow("check box") << false;
        QTest::newRow("its caption") << true;
    }

    void theCheckBoxSwitchesTheCriterion()
    {
        QFETCH(bool, byLabel);
        TRange range;
        QVERIFY(range.Start());
        QWidget* const clicked = byLabel ? static_cast<QWidget*>(range.Frame->SelectEntity_Cap_LBL)
                                         : range.Frame->SelectEntity_CHK;
        for (const bool on : {true, false}) {
            range.Other->setFocus();
            QTest::mouseClick(clicked, Qt::LeftButton);
            QCOMPARE(range.Frame->GetActive(), on);
            QCOMPARE(range.Criterion->Active(), on);
            for (const QWidget* control : range.FollowingControls())
                QCOMPARE(control->isEnabled(), on);
            QCOMPARE(range.Frame->SelectEntity_CMB->hasFocus(), on);
        }
        QCOMPARE(range.Steps, (QStringList{QStringLiteral("0-0 on"), QStringLiteral("0-0 off")}));
    }

    void theSharedMnemonicTogglesOnce()
    {
        TRange range;
        QVERIFY(range.Start());
        for (const bool on : {true, false, true}) {
            range.Other->setFocus();
            QTest::sendKeyEvent(QTest::Click, range.Other, static_cast<Qt::Key>(0x062F), QString(),
                                Qt::AltModifier);
            QCOMPARE(range.Frame->GetActive(), on);
        }
    }

    void switchingOffWritesZerosFirstAndOnBringsTheCodesBack()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        TRange::Enter(range.From, QStringLiteral("5"));
        TRange::Enter(range.To, QStringLiteral("9"));
        range.Steps.clear();
        range.Frame->SetActive(false);
        QCOMPARE(range.Steps, (QStringList{QStringLiteral("0-9 on"), QStringLiteral("0-0 on"),
                                           QStringLiteral("0-0 off")}));
        QVERIFY(range.BoundsAreIntegers());
        range.Steps.clear();
        range.Frame->SetActive(true);
        QCOMPARE(range.Steps, (QStringList{QStringLiteral("5-0 off"), QStringLiteral("5-9 off"),
                                           QStringLiteral("5-9 on")}));
        QVERIFY(range.BoundsAreIntegers());
    }

    void pickedCodesReachTheirBounds()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        range.Host.Pickers.Picked = 5;
        range.From->Code_EDT->setFocus();
        Typing::Press(range.From->Code_EDT, Qt::Key_F4);
        QVERIFY(range.To->Code_EDT->hasFocus());
        range.Host.Pickers.Picked = 9;
        Typing::Press(range.To->Code_EDT, Qt::Key_F4);
        QCOMPARE(range.Criterion->Value1(), QVariant(5));
        QCOMPARE(range.Criterion->Value2(), QVariant(9));
        QVERIFY(range.BoundsAreIntegers());
    }

    void completedCodesGiveTheirNumber()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        range.ChooseNextKind();
        TRange::Enter(range.From, QStringLiteral("7"));
        QCOMPARE(range.From->Code_EDT->Text(), QStringLiteral("007"));
        QCOMPARE(range.Criterion->Value1(), QVariant(7));
    }

    void valuesThatAreSetAreValidated_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<qint64>("bound");
        QTest::newRow("a code") << QVariant(5) << qint64(5);
        QTest::newRow("a text") << QVariant(QStringLiteral("5")) << qint64(5);
        QTest::newRow("a double") << QVariant(5.0) << qint64(5);
        QTest::newRow("an unknown code") << QVariant(6) << qint64(0);
        QTest::newRow("zero") << QVariant(0) << qint64(0);
        QTest::newRow("null") << QVariant() << qint64(0);
        QTest::newRow("no code") << QVariant(QStringLiteral("x")) << qint64(0);
    }

    void valuesThatAreSetAreValidated()
    {
        QFETCH(QVariant, value);
        QFETCH(qint64, bound);
        TRange range;
        QVERIFY(range.Start());
        range.Frame->SetSearchValue1(value);
        QCOMPARE(range.Frame->GetSearchCodeValue1(), QVariant(bound));
        QCOMPARE(range.Frame->GetSearchCodeValue1().typeId(), int(QMetaType::LongLong));
        QCOMPARE(range.From->Name_LBL->Caption(), bound == 5 ? QStringLiteral("رضایی") : QString());
        range.Frame->SetSearchValue2(value);
        QCOMPARE(range.Frame->GetSearchCodeValue2(), QVariant(bound));
        QCOMPARE(range.Criterion->Value2(), QVariant(int(bound)));
        QVERIFY(range.BoundsAreIntegers());
    }

    void theReverseFlagFollowsItsControls()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        QTest::mouseClick(range.Frame->SelectEntity_Reverst_CHK, Qt::LeftButton);
        QVERIFY(range.Criterion->Reverst());
        QTest::mouseClick(range.Frame->SelectEntity_Reverst_LBL, Qt::LeftButton);
        QVERIFY(!range.Criterion->Reverst());
        QVERIFY(!range.Frame->SelectEntity_Reverst_CHK->Checked());
    }

    void tabWalksThroughTheLine()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        range.Frame->SelectEntity_CHK->setFocus();
        const QWidgetList order{range.Frame->SelectEntity_CMB, range.From->Code_EDT, range.To->Code_EDT,
                                range.Frame->SelectEntity_Reverst_CHK, range.Other};
        QCOMPARE(Typing::TabStops(order.size()), order);
    }

    void theFrameMayBeDestroyedByTheSelectorsEvent()
    {
        TRange range;
        QVERIFY(range.StartChecked());
        const QPointer<TRange_SelectEntity_Search_Frame> frame = range.Frame;
        range.To->SetOnCodeChanged([&range](QObject*) { delete range.Frame; });
        range.To->Code_EDT->setFocus();
        Typing::Type(range.To->Code_EDT, QStringLiteral("5"));
        // To a control that outlives the frame: the toolkit itself cannot lose the one that it is focusing.
        range.Other->setFocus();
        QVERIFY(!frame);
    }
};

QTEST_MAIN(RangeSelectEntitySearchTest)
#include "RangeSelectEntitySearchTest.moc"
