#include "FilterMatrix.h"
#include "FilterForm.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_String_Search.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartMaskEdit_TRV.h"
#include "SmartTime_TRV.h"

#include <functional>

namespace {

/// A filter frame by what all of them have.
struct TLine
{
    QWidget* Frame = nullptr;
    std::function<void()> Init;
    TTarvaSearch* Criterion = nullptr;
    TSmartCheckBox_TRV* Check = nullptr;
    TSmartLabel_TRV* Caption = nullptr;
    TSmartCheckBox_TRV* Reverse = nullptr;
    TSmartLabel_TRV* ReverseLabel = nullptr;
    QList<QWidget*> Followers;
};

TLine DigitLine(QWidget* form)
{
    auto* frame = new TRange_Digit_Search_Frame(form);
    return {frame,
            [frame] { frame->init(); },
            frame->TarvaSearch_Range_Digit,
            frame->RangeDigit_CHK,
            frame->RangeDigit_Cap_LBL,
            frame->RangeDigit_Reverst_CHK,
            frame->RangeDigit_Reverst_LBL,
            {frame->RangeDigit_CMB, frame->RangeDigit_From_EDT, frame->RangeDigit_To_EDT}};
}

TLine CostLine(QWidget* form)
{
    auto* frame = new TRange_Cost_Search_Frame(form);
    return {frame,
            [frame] { frame->init(); },
            frame->TarvaSearch_Range_Cost,
            frame->RangeCost_CHK,
            frame->RangeCost_Cap_LBL,
            frame->RangeCost_Reverst_CHK,
            frame->RangeCost_Reverst_LBL,
            {frame->RangeCost_CMB, frame->RangeCost_From_EDT, frame->RangeCost_To_EDT}};
}

TLine DateLine(QWidget* form)
{
    auto* frame = new TRange_Date_Search_Frame(form);
    return {frame,
            [frame] { frame->init(); },
            frame->TarvaSearch_Range_Date,
            frame->RangeDate_CHK,
            frame->RangeDate_Cap_LBL,
            frame->RangeDate_Reverst_CHK,
            frame->RangeDate_Reverst_LBL,
            {frame->RangeDate_CMB, frame->RangeDate_From_EDT, frame->RangeDate_To_EDT,
             frame->RangeTime_From_EDT, frame->RangeTime_To_EDT}};
}

TLine StringLine(QWidget* form)
{
    auto* frame = new TRange_String_Search_Frame(form);
    return {frame,
            [frame] { frame->init(); },
            frame->TarvaSearch_Range_String,
            frame->RangeString_CHK,
            frame->RangeString_Cap_LBL,
            frame->RangeString_Reverst_CHK,
            frame->RangeString_Reverst_LBL,
            {frame->RangeString_CMB, frame->RangeString_From_EDT, frame->RangeString_To_EDT}};
}

using TMaker = TLine (*)(QWidget* form);
constexpr std::pair<const char*, TMaker> Makers[] = {
    {"digit", DigitLine}, {"cost", CostLine}, {"date", DateLine}, {"string", StringLine}};

} // namespace

/// Each range frame with each kind of item, ticked and cleared by the box and by its caption, turned round by
/// the "not" box and by its label.
class FilterMatrixTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCombination_data();
    void everyCombination();
    void otherKindsLeaveTheReverseControlsAsTheyAre();

private:
    static void CheckEnabled(const TLine& line, bool on);
};

void FilterMatrixTest::everyCombination_data()
{
    FilterMatrix::AddRows(Makers);
}

void FilterMatrixTest::CheckEnabled(const TLine& line, bool on)
{
    QCOMPARE(line.Criterion->Active(), on);
    QCOMPARE(line.Check->Checked(), on);
    QList<QWidget*> followers = line.Followers;
    followers << line.Reverse << line.ReverseLabel;
    for (const QWidget* follower : followers)
        QVERIFY2(follower->isEnabled() == on, qPrintable(follower->objectName()));
    QVERIFY(line.Check->isEnabled());
    QVERIFY(line.Caption->isEnabled());
}

void FilterMatrixTest::everyCombination()
{
    QFETCH(int, frame);
    QFETCH(int, kind);
    QFETCH(bool, byLabel);
    QFETCH(bool, reverseByLabel);
    const TRecordingHost host;
    QWidget form;
    QVBoxLayout layout(&form);
    const TLine line = Makers[frame].second(&form);
    layout.addWidget(line.Frame);
    TSearchItem item;
    item.FiledName = QStringLiteral("F");
    item.FilterType = static_cast<TSearchFilterType>(kind);
    line.Criterion->SearchItems.Add(item);
    line.Init();
    QVERIFY(Typing::ShowActive(&form));

    const bool reverseShown = kind != DataSetKind; // the form shows it, other kinds leave that
    QCOMPARE(line.Reverse->isVisible(), reverseShown);
    QCOMPARE(line.ReverseLabel->isVisible(), reverseShown);
    CheckEnabled(line, false);

    QWidget* const sender = byLabel ? static_cast<QWidget*>(line.Caption) : line.Check;
    FilterMatrix::Click(sender);
    CheckEnabled(line, true);
    QVERIFY(!line.Criterion->Reverst());

    if (reverseShown) {
        QWidget* const turner = reverseByLabel ? static_cast<QWidget*>(line.ReverseLabel) : line.Reverse;
        FilterMatrix::Click(turner);
        QVERIFY(line.Criterion->Reverst());
        QVERIFY(line.Reverse->Checked());
        FilterMatrix::Click(turner);
        QVERIFY(!line.Criterion->Reverst());
        FilterMatrix::Click(turner);
    }
    FilterMatrix::Click(sender);
    CheckEnabled(line, false);
    QCOMPARE(line.Criterion->Reverst(), reverseShown);
    QCOMPARE(line.Reverse->isVisible(), reverseShown);
}

void FilterMatrixTest::otherKindsLeaveTheReverseControlsAsTheyAre()
{
    const TRecordingHost host;
    TRange_Digit_Search_Frame frame;
    TTarvaSearch& criterion = *frame.TarvaSearch_Range_Digit;
    for (const int kind : {DataSetKind, OtherKind, QueryKind, OtherKind}) {
        TSearchItem item;
        item.FilterType = static_cast<TSearchFilterType>(kind);
        criterion.SearchItems.Add(item);
    }
    const bool hidden[] = {true, true, false, false};
    frame.init();
    for (int index = 0; index < 4; ++index) {
        criterion.SetItemIndex(index);
        QCOMPARE(frame.RangeDigit_Reverst_CHK->isHidden(), hidden[index]);
        QCOMPARE(frame.RangeDigit_Reverst_LBL->isHidden(), hidden[index]);
    }
}

QTEST_MAIN(FilterMatrixTest)
#include "FilterMatrixTest.moc"
