#include "FilterForm.h"
#include "Range_Cost_Search.h"
#include "Range_Digit_Search.h"
#include "SmartEdit_TRV.h"

namespace {

struct TDigitFilter : TFilterForm<TRange_Digit_Search_Frame>
{
    TDigitFilter()
    {
        Criterion().SearchItems.Add(Item(QStringLiteral("شماره سند"), TSearchDataType::idtDigit));
        Criterion().SearchItems.Add(Item(QStringLiteral("ردیف"), TSearchDataType::idtDigit));
    }

    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_Range_Digit; }

    bool Start() const
    {
        Frame->init();
        const bool active = Show();
        Click(Frame->RangeDigit_CHK);
        return active && Frame->RangeDigit_CHK->Checked();
    }
};

struct TCostFilter : TFilterForm<TRange_Cost_Search_Frame>
{
    TCostFilter()
    {
        Criterion().SearchItems.Add(Item(QStringLiteral("بدهکار"), TSearchDataType::idtMoney));
        Criterion().SearchItems.Add(Item(QStringLiteral("بستانکار"), TSearchDataType::idtMoney));
    }

    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_Range_Cost; }

    bool Start() const
    {
        Frame->init();
        const bool active = Show();
        Click(Frame->RangeCost_CHK);
        return active && Frame->RangeCost_CHK->Checked();
    }
};

constexpr int NoUpperBound = 2147483647;

} // namespace

class RangeNumberSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDigitFormIsAsDesigned();
    void theCostFormIsAsDesigned();
    void initStartsTheDigitLineSwitchedOff();
    void withoutItemsInitTouchesNothing();
    void anEmptyUpperDigitBoundIsNone();
    void aDigitBoundOfZeroIsTheSameAsAnEmptyOne();
    void digitBoundsAreTextsAfterAPause();
    void theDigitGettersAnswer64BitIntegers();
    void theOwnersDigitsReachEditAndCriterion();
    void theOwnerTicksTheDigitBox();
    void aClickOnTheDigitFrameAppliesTheBox();
    void initWritesZerosOfTheCostLine();
    void costBoundsAreFloatingPointNumbers();
    void anUpperCostBoundOfZeroStaysZero();
    void clearEndsActiveWithTheBoxUnticked();
    void clearForgetsWhatWasTypedJustBefore();
    void choosingAFieldSetsTheItem();
    void tabFollowsTheReadingOrder();
    void theControlsStandFromRightToLeft();
    void handlersOfTheOwnerMayDestroyTheFrames();
};

void RangeNumberSearchTest::theDigitFormIsAsDesigned()
{
    const TRecordingHost host;
    const TRange_Digit_Search_Frame frame;
    QCOMPARE(frame.size(), QSize(800, 34));
    QCOMPARE(frame.RangeDigit_Cap_LBL->Caption(), QStringLiteral(" &کد :"));
    QCOMPARE(frame.RangeDigit_CHK->text(), QStringLiteral("&ک"));
    QCOMPARE(frame.RangeDigit_CMB->maximumWidth(), 121);
    QCOMPARE(frame.Label_TRVDEVX1->Caption(), QStringLiteral("از :"));
    QCOMPARE(frame.Label_TRVDEVX2->Caption(), QStringLiteral("تا :"));
    QCOMPARE(frame.RangeDigit_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
    for (const TSmartEdit_TRV* edit : {frame.RangeDigit_From_EDT, frame.RangeDigit_To_EDT}) {
        QCOMPARE(edit->EditType(), TSmartEdit_TRV::etNumeric);
        QCOMPARE(edit->ValueType(), TSmartEdit_TRV::vtInt);
        QCOMPARE(edit->MaxLength(), 12);
        QCOMPARE(edit->DelayTimeCount(), 300);
        QCOMPARE(edit->Text(), QStringLiteral("0"));
        QVERIFY(!edit->accessibleName().isEmpty());
    }
    const TTarvaSearch& criterion = *frame.TarvaSearch_Range_Digit;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stRangeDigit);
    QCOMPARE(criterion.SearchItems.Count(), 0);
    QCOMPARE(criterion.ItemIndex(), 0);
}

void RangeNumberSearchTest::theCostFormIsAsDesigned()
{
    const TRecordingHost host;
    const TRange_Cost_Search_Frame frame;
    QCOMPARE(frame.RangeCost_Cap_LBL->Caption(), QStringLiteral("&مبلغ :"));
    QCOMPARE(frame.RangeCost_CHK->text(), QStringLiteral("          &م"));
    for (const TSmartEdit_TRV* edit : {frame.RangeCost_From_EDT, frame.RangeCost_To_EDT}) {
        QCOMPARE(edit->EditType(), TSmartEdit_TRV::etCurrency);
        QCOMPARE(edit->MaxLength(), 15);
        QCOMPARE(edit->DelayTimeCount(), 300);
        QCOMPARE(edit->Text(), QStringLiteral("0"));
    }
    const TTarvaSearch& criterion = *frame.TarvaSearch_Range_Cost;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stRangeCost);
    QCOMPARE(criterion.SearchItems.Count(), 0);
    QCOMPARE(criterion.ItemIndex(), 0);
}

void RangeNumberSearchTest::initStartsTheDigitLineSwitchedOff()
{
    const TDigitFilter filter;
    filter.Criterion().SetActive(true);
    filter.Criterion().SetValue1(QStringLiteral("5"));
    filter.Frame->init();
    QVERIFY(!filter.Criterion().Active());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("5")));
    QCOMPARE(filter.Frame->RangeDigit_CMB->Count(), 2);
    QCOMPARE(filter.Frame->RangeDigit_CMB->ItemIndex(), 0);
    QVERIFY(!filter.Frame->RangeDigit_CMB->isEnabled());
    QVERIFY(!filter.Frame->RangeDigit_From_EDT->isEnabled());
    QVERIFY(!filter.Frame->RangeDigit_To_EDT->isEnabled());
    QVERIFY(!filter.Frame->RangeDigit_Reverst_CHK->isEnabled());
    QVERIFY(!filter.Frame->RangeDigit_Reverst_LBL->isEnabled());
}

void RangeNumberSearchTest::withoutItemsInitTouchesNothing()
{
    {
        const TDigitFilter digits;
        digits.Criterion().SearchItems.Clear();
        digits.Criterion().SetActive(true);
        digits.Frame->init();
        QVERIFY(digits.Frame->RangeDigit_From_EDT->isEnabled());
        QVERIFY(digits.Frame->RangeDigit_CMB->isEnabled());
        QVERIFY(digits.Criterion().Active());
    }
    const TCostFilter costs;
    costs.Criterion().SearchItems.Clear();
    costs.Criterion().SetActive(true);
    costs.Frame->init();
    QVERIFY(costs.Frame->RangeCost_From_EDT->isEnabled());
    QVERIFY(costs.Frame->RangeCost_CMB->isEnabled());
    QVERIFY(costs.Criterion().Active());
}

void RangeNumberSearchTest::anEmptyUpperDigitBoundIsNone()
{
    const TDigitFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    filter.Frame->RangeDigit_From_EDT->SetText(QStringLiteral("100"));
    TDigitFilter::Click(filter.Frame->RangeDigit_CHK);
    QVERIFY(filter.Criterion().Active());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("100")));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::QString);
    QCOMPARE(filter.Criterion().Value2(), QVariant(NoUpperBound));
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::Int);
    QCOMPARE(QApplication::focusWidget(), filter.Frame->RangeDigit_CMB);
}

void RangeNumberSearchTest::aDigitBoundOfZeroIsTheSameAsAnEmptyOne()
{
    const TDigitFilter filter;
    QVERIFY(filter.Start());
    TDigitFilter::Enter(filter.Frame->RangeDigit_To_EDT, QStringLiteral("250"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("250")));
    TDigitFilter::Enter(filter.Frame->RangeDigit_To_EDT, QStringLiteral("0"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value2(), QVariant(NoUpperBound));
}

void RangeNumberSearchTest::digitBoundsAreTextsAfterAPause()
{
    const TDigitFilter filter;
    QVERIFY(filter.Start());
    TDigitFilter::Enter(filter.Frame->RangeDigit_From_EDT, QStringLiteral("۱۲۳۴۵۶۷"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("0")));
    QTRY_COMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("1234567")));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::QString);
    TDigitFilter::Enter(filter.Frame->RangeDigit_To_EDT, QStringLiteral("999999999999"));
    QTRY_COMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("999999999999")));
}

void RangeNumberSearchTest::theDigitGettersAnswer64BitIntegers()
{
    const TDigitFilter filter;
    QVERIFY(filter.Start());
    filter.Frame->SetSearchValue1(QStringLiteral("100"));
    QCOMPARE(filter.Frame->GetSearchValue1(), QVariant(qint64(100)));
    QCOMPARE(filter.Frame->GetSearchValue1().typeId(), QMetaType::LongLong);
    QCOMPARE(filter.Frame->GetSearchValue2(), QVariant(qint64(NoUpperBound)));
    QCOMPARE(filter.Frame->GetSearchValue2().typeId(), QMetaType::LongLong);
}

void RangeNumberSearchTest::theOwnersDigitsReachEditAndCriterion()
{
    const TDigitFilter filter;
    filter.Frame->init();
    filter.Frame->SetSearchValue1(12);
    filter.Frame->SetSearchValue2(QStringLiteral("34"));
    QCOMPARE(filter.Frame->RangeDigit_From_EDT->Text(), QStringLiteral("12"));
    QCOMPARE(filter.Frame->RangeDigit_To_EDT->Text(), QStringLiteral("34"));
    QCOMPARE(filter.Criterion().GetValue1AsInt(), 12);
    QCOMPARE(filter.Criterion().GetValue2AsInt(), 34);
    QVERIFY(!filter.Criterion().Active());
}

void RangeNumberSearchTest::theOwnerTicksTheDigitBox()
{
    const TDigitFilter filter;
    filter.Frame->init();
    QVERIFY(!filter.Frame->GetActive());
    filter.Frame->SetActive(true);
    QVERIFY(filter.Frame->GetActive());
    QVERIFY(filter.Criterion().Active());
    QVERIFY(filter.Frame->RangeDigit_To_EDT->isEnabled());
    filter.Frame->SetActive(false);
    QVERIFY(!filter.Criterion().Active());
}

void RangeNumberSearchTest::aClickOnTheDigitFrameAppliesTheBox()
{
    const TDigitFilter filter;
    QVERIFY(filter.Start());
    filter.Criterion().SetActive(false);
    filter.Frame->Reverst_Digit_CHKClick();
    QVERIFY(!filter.Criterion().Active());
    QTest::mouseClick(filter.Frame, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QVERIFY(filter.Criterion().Active());
}

void RangeNumberSearchTest::initWritesZerosOfTheCostLine()
{
    const TCostFilter filter;
    filter.Frame->init();
    QCOMPARE(filter.Criterion().Value1(), QVariant(0));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::Int);
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::Int);
    QVERIFY(!filter.Frame->RangeCost_To_EDT->isEnabled());
    QVERIFY(!filter.Criterion().Active());
}

void RangeNumberSearchTest::costBoundsAreFloatingPointNumbers()
{
    const TCostFilter filter;
    QVERIFY(filter.Start());
    TCostFilter::Enter(filter.Frame->RangeCost_From_EDT, QStringLiteral("1500000"));
    TCostFilter::Enter(filter.Frame->RangeCost_To_EDT, QStringLiteral("999999999999999"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value1(), QVariant(1500000.0));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::Double);
    QCOMPARE(filter.Criterion().Value2(), QVariant(999999999999999.0));
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::Double);
}

void RangeNumberSearchTest::anUpperCostBoundOfZeroStaysZero()
{
    const TCostFilter filter;
    QVERIFY(filter.Start());
    QVERIFY(filter.Criterion().Active());
    QCOMPARE(filter.Criterion().Value2().toDouble(), 0.0);
    TCostFilter::Enter(filter.Frame->RangeCost_To_EDT, QStringLiteral("5"));
    filter.Leave();
    TCostFilter::Enter(filter.Frame->RangeCost_To_EDT, QStringLiteral("0"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value2(), QVariant(0.0));
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::Double);
}

void RangeNumberSearchTest::clearEndsActiveWithTheBoxUnticked()
{
    const TCostFilter filter;
    QVERIFY(filter.Start());
    TCostFilter::ChooseNext(filter.Frame->RangeCost_CMB);
    TCostFilter::Enter(filter.Frame->RangeCost_From_EDT, QStringLiteral("5"));
    filter.Leave();
    TCostFilter::Click(filter.Frame->RangeCost_Reverst_CHK);
    QVERIFY(filter.Criterion().Reverst());
    filter.Frame->Clear();
    QVERIFY(filter.Criterion().Active());
    QVERIFY(!filter.Frame->RangeCost_CHK->Checked());
    QVERIFY(!filter.Criterion().Reverst());
    QVERIFY(!filter.Frame->RangeCost_From_EDT->isEnabled());
    QCOMPARE(filter.Frame->RangeCost_CMB->ItemIndex(), 0);
    QCOMPARE(filter.Frame->RangeCost_From_EDT->GetValue(), 0.0L);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::QString);
}

void RangeNumberSearchTest::clearForgetsWhatWasTypedJustBefore()
{
    const TCostFilter filter;
    QVERIFY(filter.Start());
    TCostFilter::Enter(filter.Frame->RangeCost_To_EDT, QStringLiteral("5"));
    filter.Frame->Clear();
    QTest::qWait(400);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QString()));
}

void RangeNumberSearchTest::choosingAFieldSetsTheItem()
{
    const TDigitFilter digits;
    QVERIFY(digits.Start());
    TDigitFilter::ChooseNext(digits.Frame->RangeDigit_CMB);
    QCOMPARE(digits.Criterion().ItemIndex(), 1);
}

void RangeNumberSearchTest::tabFollowsTheReadingOrder()
{
    const TCostFilter filter;
    QVERIFY(filter.Start());
    filter.Frame->RangeCost_CHK->setFocus();
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{frame.RangeCost_CMB, frame.RangeCost_From_EDT, frame.RangeCost_To_EDT,
                                frame.RangeCost_Reverst_CHK, filter.Other};
    QCOMPARE(Typing::TabStops(order.size()), order);
}

void RangeNumberSearchTest::theControlsStandFromRightToLeft()
{
    const TDigitFilter filter;
    QVERIFY(filter.Start());
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{
        frame.RangeDigit_CHK,    frame.RangeDigit_Cap_LBL,     frame.RangeDigit_CMB,
        frame.Label_TRVDEVX1,    frame.RangeDigit_From_EDT,    frame.Label_TRVDEVX2,
        frame.RangeDigit_To_EDT, frame.RangeDigit_Reverst_CHK, frame.RangeDigit_Reverst_LBL};
    for (qsizetype index = 1; index < order.size(); ++index)
        QVERIFY(order[index]->geometry().right() < order[index - 1]->geometry().left());
}

void RangeNumberSearchTest::handlersOfTheOwnerMayDestroyTheFrames()
{
    TDigitFilter digits;
    digits.Frame->init();
    QObject::connect(&digits.Criterion(), &TTarvaSearch::changed, digits.Form.get(),
                     [&] { delete std::exchange(digits.Frame, nullptr); });
    digits.Frame->SetSearchValue1(5);
    QVERIFY(digits.Frame == nullptr);
}

QTEST_MAIN(RangeNumberSearchTest)
#include "RangeNumberSearchTest.moc"
