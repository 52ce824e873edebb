#include "DateRange_Display_UNT.h"
#include "FilterForm.h"
#include "Look.h"
#include "SmartDateEdit_TRV.h"

#include <QStyleOptionComboBox>

namespace {

struct TPeriodChooser : TFilterForm<TDateRange_Display_FRAM>
{
    explicit TPeriodChooser(bool gregorian = false)
    {
        Host.Settings.Record.SetGregorian(gregorian);
        Host.Clock.Day = QDate(2024, 9, 28); // Saturday, 1403/07/07
    }

    TTarvaSearch& Criterion() const { return *Frame->Tarva_DisplayRange; }
    QStringList Bounds() const { return {Criterion().Value1().toString(), Criterion().Value2().toString()}; }

    void Choose(int index) const
    {
        while (Frame->RangeDate_CMB->ItemIndex() < index)
            ChooseNext(Frame->RangeDate_CMB);
    }
};

} // namespace

class DateRangeDisplayTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theFormIsAsDesigned();
    void theEntriesFitIntoTheCombo();
    void initAppliesTheLastThirtyDays();
    void choosingAPeriodWritesItsBounds_data();
    void choosingAPeriodWritesItsBounds();
    void onAFridayTheWeekEndsToday();
    void noChoiceWritesTodayOnly();
    void theCalendarIsAskedAfreshEachTime();
    void todayIsAskedAfreshEachTime();
    void theUpperBoundComesFirst();
    void subConditionsAreDeleted();
    void aHandlerOfTheOwnerMayDestroyTheFrame();
};

void DateRangeDisplayTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TDateRange_Display_FRAM frame;
    QCOMPARE(frame.size(), QSize(110, 34));
    QCOMPARE(frame.RangeDate_LBL->Caption(), QStringLiteral("در "));
    QStringList entries;
    for (int index = 0; index < frame.RangeDate_CMB->Count(); ++index)
        entries << frame.RangeDate_CMB->ItemText(index);
    QCOMPARE(entries, (QStringList{"30 روز اخیر", "7 روز اخیر", "ماه جاری", "هفته جاری", "همه"}));
    QCOMPARE(frame.RangeDate_CMB->ItemIndex(), 0);
    QCOMPARE(frame.RangeDate_CMB->maximumWidth(), 84);
    QVERIFY(frame.RangeDate_From_EDT->isHidden());
    QCOMPARE(frame.RangeDate_From_EDT->CalendarType(), TSmartDateEdit_TRV::ctSolar);
    QCOMPARE(frame.RangeDate_From_EDT->CalendarResultType(), TSmartDateEdit_TRV::ctSolar);
    QVERIFY(frame.RangeDate_From_EDT->CalendarButton());
    const TTarvaSearch& criterion = *frame.Tarva_DisplayRange;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stRangeDate);
    QCOMPARE(criterion.SearchItems.Count(), 1);
    const TSearchItem& item = criterion.SearchItems.GetItem(0);
    QCOMPARE(item.Title, QStringLiteral(" تاریخ"));
    QCOMPARE(item.FiledName, QString());
    QCOMPARE(item.DataType, TSearchDataType::idtString);
    QCOMPARE(item.FilterType, TSearchFilterType::iftDataset);
    QCOMPARE(item.ItemResult, TSearchItemResult::irSQL);
    QCOMPARE(criterion.ItemIndex(), 0);
    QVERIFY(!criterion.Active());
}

void DateRangeDisplayTest::theEntriesFitIntoTheCombo()
{
    const TPeriodChooser chooser;
    QVERIFY(chooser.Show());
    const TSmartComboBox_TRV& combo = *chooser.Frame->RangeDate_CMB;
    QVERIFY(combo.geometry().right() < chooser.Frame->RangeDate_LBL->x());
    QVERIFY(chooser.Frame->rect().contains(combo.geometry()));
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    for (int index = 0; index < combo.Count(); ++index)
        QVERIFY2(combo.fontMetrics().horizontalAdvance(combo.ItemText(index)) <= field.width(),
                 qPrintable(combo.ItemText(index)));
}

void DateRangeDisplayTest::initAppliesTheLastThirtyDays()
{
    const TPeriodChooser chooser;
    chooser.Frame->RangeDate_CMB->setEnabled(false);
    chooser.Frame->init();
    QVERIFY(chooser.Frame->RangeDate_CMB->isEnabled());
    QVERIFY(chooser.Criterion().Active());
    QCOMPARE(chooser.Bounds(), (QStringList{"1403/06/08", "1403/07/07"}));
    QCOMPARE(chooser.Criterion().Value1().typeId(), QMetaType::QString);
    QCOMPARE(chooser.Criterion().Value2().typeId(), QMetaType::QString);
}

void DateRangeDisplayTest::choosingAPeriodWritesItsBounds_data()
{
    QTest::addColumn<bool>("gregorian");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QStringList>("bounds");
    QTest::newRow("7 days") << false << 1 << QStringList{"1403/06/31", "1403/07/07"};
    QTest::newRow("month") << false << 2 << QStringList{"1403/07/01", "1403/7/30"};
    QTest::newRow("week from yesterday") << false << 3 << QStringList{"1403/07/06", "1403/07/13"};
    QTest::newRow("all") << false << 4 << QStringList{"0000/00/00", "9999/99/99"};
    QTest::newRow("Gregorian 7 days") << true << 1 << QStringList{"2024/09/21", "2024/09/28"};
    QTest::newRow("Gregorian month") << true << 2 << QStringList{"2024/09/01", "2024/09/30"};
    QTest::newRow("Gregorian week") << true << 3 << QStringList{"2024/09/21", "2024/09/21"};
    QTest::newRow("Gregorian all") << true << 4 << QStringList{"0000/00/00", "9999/99/99"};
}

void DateRangeDisplayTest::choosingAPeriodWritesItsBounds()
{
    QFETCH(bool, gregorian);
    QFETCH(int, choice);
    QFETCH(QStringList, bounds);
    const TPeriodChooser chooser(gregorian);
    chooser.Frame->init();
    QVERIFY(chooser.Show());
    chooser.Choose(choice);
    QCOMPARE(chooser.Bounds(), bounds);
    QVERIFY(chooser.Criterion().Active());
}

void DateRangeDisplayTest::onAFridayTheWeekEndsToday()
{
    TPeriodChooser chooser;
    chooser.Host.Clock.Day = QDate(2024, 9, 27);
    QCOMPARE(chooser.Frame->GetEndWeek(), QStringLiteral("1403/07/06"));
    QCOMPARE(chooser.Frame->GetEndWeek(), chooser.Frame->getToday());
    QCOMPARE(chooser.Frame->GetCurrentTime(crweek), chooser.Frame->decDay(7));
}

void DateRangeDisplayTest::noChoiceWritesTodayOnly()
{
    const TPeriodChooser chooser;
    chooser.Criterion().SetValue1(QStringLiteral("x"));
    chooser.Frame->RangeDate_CMB->SetItemIndex(-1);
    chooser.Frame->SetRangeValue();
    QCOMPARE(chooser.Bounds(), (QStringList{"x", "1403/07/07"}));
}

void DateRangeDisplayTest::theCalendarIsAskedAfreshEachTime()
{
    TPeriodChooser chooser;
    QCOMPARE(chooser.Frame->getToday(), QStringLiteral("1403/07/07"));
    chooser.Host.Settings.Record.Bytes[11] = 4;
    QCOMPARE(chooser.Frame->getToday(), QStringLiteral("2024/09/28"));
    QCOMPARE(chooser.Frame->GetEndmonth(), QStringLiteral("2024/09/30"));
    chooser.Host.Settings.Record.Bytes[11] = 0xFB;
    QCOMPARE(chooser.Frame->getToday(), QStringLiteral("1403/07/07"));
}

void DateRangeDisplayTest::todayIsAskedAfreshEachTime()
{
    TPeriodChooser chooser;
    chooser.Frame->init();
    chooser.Host.Clock.Day = QDate(2025, 3, 20);
    chooser.Frame->RangeDate_CMBChange(nullptr);
    QCOMPARE(chooser.Bounds(), (QStringList{"1403/11/30", "1403/12/30"}));
}

void DateRangeDisplayTest::theUpperBoundComesFirst()
{
    const TPeriodChooser chooser;
    QList<QStringList> seen;
    QObject::connect(&chooser.Criterion(), &TTarvaSearch::changed, chooser.Form.get(),
                     [&] { seen << chooser.Bounds(); });
    chooser.Frame->SetRangeValue();
    QCOMPARE(seen, (QList<QStringList>{{"", "1403/07/07"}, {"1403/06/08", "1403/07/07"}}));
    seen.clear();
    chooser.Choose(2);
    // Today stays the upper bound until the month's own is written.
    QCOMPARE(seen,
             (QList<QStringList>{
                 {"1403/06/31", "1403/07/07"}, {"1403/07/01", "1403/07/07"}, {"1403/07/01", "1403/7/30"}}));
}

void DateRangeDisplayTest::subConditionsAreDeleted()
{
    const TPeriodChooser chooser;
    QCOMPARE(chooser.Frame->DeleteSubCondition(QStringLiteral("a=1 AND b=2"), QStringLiteral("a=1")),
             QStringLiteral("b=2"));
    QCOMPARE(chooser.Frame->DeleteSubCondition(QStringLiteral("a=1 AND b=2"), QStringLiteral("b=2")),
             QStringLiteral("a=1 AND "));
}

void DateRangeDisplayTest::aHandlerOfTheOwnerMayDestroyTheFrame()
{
    TPeriodChooser chooser;
    QObject::connect(&chooser.Criterion(), &TTarvaSearch::changed, chooser.Form.get(),
                     [&] { delete std::exchange(chooser.Frame, nullptr); });
    chooser.Frame->init();
    QVERIFY(chooser.Frame == nullptr);
}

QTEST_MAIN(DateRangeDisplayTest)
#include "DateRangeDisplayTest.moc"
