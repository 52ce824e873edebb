#include "FilterForm.h"
#include "Range_Date_Search.h"
#include "SmartDateEdit_TRV.h"
#include "SmartFlowPanel_TRV.h"
#include "SmartTime_TRV.h"

namespace {

struct TDateFilter : TFilterForm<TRange_Date_Search_Frame>
{
    TDateFilter()
    {
        Criterion().SearchItems.Add(Item(QStringLiteral("تاریخ سند")));
        Criterion().SearchItems.Add(Item(QStringLiteral("زمان ثبت"), TSearchDataType::idtDateTime));
        Host.Clock.Day = QDate(2024, 9, 23);
    }

    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_Range_Date; }

    /// init() and the check box ticked by the user.
    bool Start() const
    {
        Frame->init();
        const bool active = Show();
        Click(Frame->RangeDate_CHK);
        return active && Frame->RangeDate_CHK->Checked();
    }

    void EnterDates() const
    {
        Enter(Frame->RangeDate_From_EDT, QStringLiteral("14030101"));
        Enter(Frame->RangeDate_To_EDT, QStringLiteral("14030702"));
        Leave();
    }
};

} // namespace

class RangeDateSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned();
    void theControlsStandFromRightToLeft();
    void everyControlHasAnAccessibleName();
    void initStartsSwitchedOffAndEmpty();
    void withoutItemsInitTouchesNothing();
    void tickingTheBoxEnablesFocusesAndActivates();
    void whatCannotTakeTheFocusIsPassedOver();
    void datesReachTheCriterionInTheGregorianCalendar();
    void theDefaultTimesSpanTheWholeOfBothDays();
    void changingTheTimeRewritesBothValues();
    void theGettersDifferInOrderAndSeparator();
    void emptyTextsResetTheEditAndTheCriterion();
    void theOwnersDatesReachTheCriterionAtOnce();
    void leavingTheFieldWithATimeHidesTheTimes();
    void choosingAFieldWritesValuesWhileSwitchedOff();
    void theHostsValueGivesWayToTheEdits();
    void theBoundsAreNotCompared();
    void aWrongDateIsNoBound();
    void clearingTheBoxSwitchesOffAndKeepsTheDates();
    void theCaptionsMnemonicTogglesTheBox();
    void tabFollowsTheReadingOrder();
    void aHandlerOfTheOwnerMayDestroyTheFrame();
};

void RangeDateSearchTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TRange_Date_Search_Frame frame;
    QCOMPARE(frame.size(), QSize(800, 34));
    QCOMPARE(frame.Range_Date_Search_FPNL->FlowStyle(), TSmartFlowPanel_TRV::fsRightLeftTopBottom);
    QCOMPARE(frame.Range_Date_Search_FPNL->Bevel(), TSmartPanel_TRV::bvNone);
    QCOMPARE(frame.RangeDate_CHK->text(), QStringLiteral("          &ت"));
    QCOMPARE(frame.RangeDate_Cap_LBL->Caption(), QStringLiteral("&تاريخ  :"));
    QCOMPARE(frame.RangeDate_CMB->minimumWidth(), 121);
    QCOMPARE(frame.Label_TRVDEVX1->Caption(), QStringLiteral("از :"));
    QCOMPARE(frame.Label_TRVDEVX2->Caption(), QStringLiteral("تا :"));
    QCOMPARE(frame.RangeDate_Reverst_CHK->text(), QString());
    QCOMPARE(frame.RangeDate_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
    for (const TSmartDateEdit_TRV* edit : {frame.RangeDate_From_EDT, frame.RangeDate_To_EDT}) {
        QCOMPARE(edit->MaxLength(), 10);
        QCOMPARE(edit->CalendarType(), TSmartDateEdit_TRV::ctSolar);
        QCOMPARE(edit->CalendarResultType(), TSmartDateEdit_TRV::ctGregorian);
        QVERIFY(!edit->CalendarButton());
    }
    for (const TSmartTime_TRV* edit : {frame.RangeTime_From_EDT, frame.RangeTime_To_EDT}) {
        QCOMPARE(edit->MaxLength(), 5);
        QVERIFY(edit->isHidden());
    }
    const TTarvaSearch& criterion = *frame.TarvaSearch_Range_Date;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stRangeDate);
    QCOMPARE(criterion.SearchItems.Count(), 0);
    QCOMPARE(criterion.ItemIndex(), 0);
    QVERIFY(!criterion.Active());
}

void RangeDateSearchTest::theControlsStandFromRightToLeft()
{
    const TDateFilter filter;
    filter.Form->resize(820, 120);
    QVERIFY(filter.Start());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{
        frame.RangeDate_CHK,         frame.RangeDate_Cap_LBL,    frame.RangeDate_CMB,
        frame.Label_TRVDEVX1,        frame.RangeDate_From_EDT,   frame.RangeTime_From_EDT,
        frame.Label_TRVDEVX2,        frame.RangeDate_To_EDT,     frame.RangeTime_To_EDT,
        frame.RangeDate_Reverst_CHK, frame.RangeDate_Reverst_LBL};
    for (qsizetype index = 1; index < order.size(); ++index) {
        QVERIFY(order[index]->geometry().right() < order[index - 1]->geometry().left());
        QVERIFY(filter.Frame->rect().contains(order[index]->geometry()));
    }
}

void RangeDateSearchTest::everyControlHasAnAccessibleName()
{
    const TRecordingHost host;
    const TRange_Date_Search_Frame frame;
    const QList<QWidget*> controls{
        frame.RangeDate_CHK,    frame.RangeDate_CMB,    frame.RangeDate_From_EDT,   frame.RangeTime_From_EDT,
        frame.RangeDate_To_EDT, frame.RangeTime_To_EDT, frame.RangeDate_Reverst_CHK};
    for (const QWidget* control : controls)
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
}

void RangeDateSearchTest::initStartsSwitchedOffAndEmpty()
{
    const TDateFilter filter;
    filter.Criterion().SetActive(true);
    filter.Frame->init();
    const auto& frame = *filter.Frame;
    QVERIFY(!filter.Criterion().Active());
    QCOMPARE(frame.RangeDate_CMB->Count(), 2);
    QCOMPARE(frame.RangeDate_CMB->ItemText(1), QStringLiteral("زمان ثبت"));
    QCOMPARE(frame.RangeDate_CMB->ItemIndex(), 0);
    for (const QWidget* control : std::initializer_list<QWidget*>{
             frame.RangeDate_CMB, frame.RangeDate_From_EDT, frame.RangeDate_To_EDT, frame.RangeTime_From_EDT,
             frame.RangeTime_To_EDT, frame.RangeDate_Reverst_CHK, frame.RangeDate_Reverst_LBL})
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    QVERIFY(frame.RangeTime_From_EDT->isHidden());
    QVERIFY(frame.RangeTime_To_EDT->isHidden());
    QCOMPARE(frame.RangeTime_From_EDT->GetText(), QStringLiteral("00:00"));
    QCOMPARE(frame.RangeTime_To_EDT->GetText(), QStringLiteral("23:59"));
    QCOMPARE(frame.RangeDate_From_EDT->GetValue(), QString());
    filter.Frame->init();
    QCOMPARE(frame.RangeDate_CMB->Count(), 2);
}

void RangeDateSearchTest::withoutItemsInitTouchesNothing()
{
    const TDateFilter filter;
    filter.Criterion().SearchItems.Clear();
    filter.Criterion().SetActive(true);
    filter.Frame->init();
    QVERIFY(filter.Criterion().Active());
    QVERIFY(filter.Frame->RangeDate_From_EDT->isEnabled());
    QCOMPARE(filter.Frame->RangeDate_CMB->Count(), 0);
    QCOMPARE(filter.Frame->RangeTime_To_EDT->GetText(), QString());
}

void RangeDateSearchTest::tickingTheBoxEnablesFocusesAndActivates()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    QVERIFY(filter.Criterion().Active());
    QVERIFY(filter.Frame->RangeDate_From_EDT->isEnabled());
    QVERIFY(filter.Frame->RangeTime_To_EDT->isEnabled());
    QCOMPARE(QApplication::focusWidget(), filter.Frame->RangeDate_CMB);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::QString);
    QCOMPARE(filter.Criterion().Value2().typeId(), QMetaType::QString);
}

void RangeDateSearchTest::whatCannotTakeTheFocusIsPassedOver()
{
    const TDateFilter filter;
    filter.Frame->RangeDate_CMB->hide();
    QVERIFY(filter.Start());
    QCOMPARE(QApplication::focusWidget(), filter.Frame->RangeDate_From_EDT);
}

void RangeDateSearchTest::datesReachTheCriterionInTheGregorianCalendar()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23")));
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, QStringLiteral("t"));
    QTRY_COMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/09/23")));
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text(), QStringLiteral("1403/07/02"));
}

void RangeDateSearchTest::theDefaultTimesSpanTheWholeOfBothDays()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    QVERIFY(filter.Frame->RangeTime_From_EDT->isVisible());
    QVERIFY(filter.Frame->RangeTime_To_EDT->isVisible());
    QCOMPARE(filter.Criterion().ItemIndex(), 1);
    filter.EnterDates();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20-00:00")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23-23:59")));
}

void RangeDateSearchTest::changingTheTimeRewritesBothValues()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    filter.EnterDates();
    TDateFilter::Enter(filter.Frame->RangeTime_From_EDT, QStringLiteral("0830"));
    TDateFilter::Enter(filter.Frame->RangeTime_To_EDT, QStringLiteral("1745"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20-08:30")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23-17:45")));
}

void RangeDateSearchTest::theGettersDifferInOrderAndSeparator()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    QCOMPARE(filter.Frame->GetFromDate(), QStringLiteral("2024/03/20"));
    QCOMPARE(filter.Frame->GetToDate(), QStringLiteral("2024/09/23"));
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    QCOMPARE(filter.Frame->GetFromDate(), QStringLiteral("2024/03/20-00:00"));
    QCOMPARE(filter.Frame->GetToDate(), QStringLiteral("23:59 - 2024/09/23"));
    filter.Frame->RangeDate_CMB->SetItemIndex(-1);
    QCOMPARE(filter.Frame->GetFromDate(), QStringLiteral("2024/03/20"));
    QCOMPARE(filter.Frame->GetToDate(), QStringLiteral("23:59 - 2024/09/23"));
}

void RangeDateSearchTest::emptyTextsResetTheEditAndTheCriterion()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    filter.Frame->SetFromDate(QString());
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text(), QString());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23")));
    filter.Frame->SetToDate(QString());
    QCOMPARE(filter.Criterion().Value2(), QVariant(QString()));
}

void RangeDateSearchTest::theOwnersDatesReachTheCriterionAtOnce()
{
    const TDateFilter filter;
    filter.Frame->init();
    filter.Frame->SetFromDate(QStringLiteral("1403/01/01"));
    filter.Frame->SetToDate(QStringLiteral("1403/07/02"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23")));
    QVERIFY(!filter.Criterion().Active());
    filter.Frame->SetFromDate(filter.Frame->GetFromDate());
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text(), QStringLiteral("1403/01/01"));
    QObject* sender = nullptr;
    filter.Frame->RangeDate_To_EDT->OnEditValueChange = [&](QObject* edit) { sender = edit; };
    filter.Frame->SetToDate(QStringLiteral("1403/07/03"));
    QCOMPARE(sender, filter.Frame->RangeDate_To_EDT);
    filter.Frame->RangeDate_To_EDT->OnEditValueChange = nullptr;
    filter.Frame->SetToDate(QStringLiteral("1403/07/04"));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23")));
}

void RangeDateSearchTest::leavingTheFieldWithATimeHidesTheTimes()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    filter.EnterDates();
    filter.Frame->RangeDate_CMB->setFocus();
    Typing::Press(filter.Frame->RangeDate_CMB, Qt::Key_Up);
    QVERIFY(filter.Frame->RangeTime_From_EDT->isHidden());
    QVERIFY(filter.Frame->RangeTime_To_EDT->isHidden());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/09/23")));
}

void RangeDateSearchTest::choosingAFieldWritesValuesWhileSwitchedOff()
{
    const TDateFilter filter;
    filter.Frame->init();
    filter.Frame->SetFromDate(QStringLiteral("1403/01/01"));
    filter.Frame->RangeDate_CMB->setEnabled(true);
    QVERIFY(filter.Show());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20-00:00")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("-23:59")));
    QVERIFY(!filter.Criterion().Active());
}

void RangeDateSearchTest::theHostsValueGivesWayToTheEdits()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    filter.Criterion().SetValue1(QStringLiteral("2000/01/01"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20")));
}

void RangeDateSearchTest::theBoundsAreNotCompared()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.Frame->SetFromDate(QStringLiteral("1403/07/02"));
    filter.Frame->SetToDate(QStringLiteral("1403/01/01"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/09/23")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("2024/03/20")));
}

void RangeDateSearchTest::aWrongDateIsNoBound()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, QStringLiteral("14041230"));
    filter.Leave();
    QVERIFY(filter.Frame->RangeDate_From_EDT->HasError());
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text(), QStringLiteral("1404/12/30"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
}

void RangeDateSearchTest::clearingTheBoxSwitchesOffAndKeepsTheDates()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    filter.EnterDates();
    TDateFilter::Click(filter.Frame->RangeDate_CHK);
    QVERIFY(!filter.Criterion().Active());
    QVERIFY(!filter.Frame->RangeDate_From_EDT->isEnabled());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2024/03/20")));
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text(), QStringLiteral("1403/01/01"));
}

void RangeDateSearchTest::theCaptionsMnemonicTogglesTheBox()
{
    const TDateFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    QTest::sendKeyEvent(QTest::Click, filter.Other, static_cast<Qt::Key>(0x062A), QStringLiteral("ت"),
                        Qt::AltModifier);
    QVERIFY(filter.Frame->RangeDate_CHK->Checked());
    QVERIFY(filter.Criterion().Active());
}

void RangeDateSearchTest::tabFollowsTheReadingOrder()
{
    const TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::ChooseNext(filter.Frame->RangeDate_CMB);
    filter.Frame->RangeDate_CHK->setFocus();
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{frame.RangeDate_CMB,
                                frame.RangeDate_From_EDT,
                                frame.RangeTime_From_EDT,
                                frame.RangeDate_To_EDT,
                                frame.RangeTime_To_EDT,
                                frame.RangeDate_Reverst_CHK,
                                filter.Other};
    QCOMPARE(Typing::TabStops(order.size()), order);
}

void RangeDateSearchTest::aHandlerOfTheOwnerMayDestroyTheFrame()
{
    TDateFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    QObject::connect(&filter.Criterion(), &TTarvaSearch::changed, filter.Form.get(),
                     [&] { delete std::exchange(filter.Frame, nullptr); });
    filter.Frame->SetFromDate(QStringLiteral("1403/01/01"));
    QVERIFY(filter.Frame == nullptr);
}

QTEST_MAIN(RangeDateSearchTest)
#include "RangeDateSearchTest.moc"
