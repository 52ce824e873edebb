#include "Balloon.h"
#include "FilterForm.h"
#include "Range_String_Search.h"
#include "SmartMaskEdit_TRV.h"

#include <QClipboard>

namespace {

/// A field of five digits, a free one, and one of three digits.
struct TStringFilter : TFilterForm<TRange_String_Search_Frame>
{
    TStringFilter()
    {
        Criterion().SearchItems.Add(Item(QStringLiteral("کد کالا"), TSearchDataType::idtString, 5));
        Criterion().SearchItems.Add(Item(QStringLiteral("شماره")));
        Criterion().SearchItems.Add(Item(QStringLiteral("کد انبار"), TSearchDataType::idtString, 3));
    }

    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_Range_String; }

    bool Start() const
    {
        Frame->init();
        const bool active = Show();
        Click(Frame->RangeString_CHK);
        return active && Frame->RangeString_CHK->Checked();
    }

    /// Chooses an entry as a user does.
    void Choose(int index) const
    {
        Frame->RangeString_CMB->setFocus();
        while (Frame->RangeString_CMB->ItemIndex() < index)
            Typing::Press(Frame->RangeString_CMB, Qt::Key_Down);
        while (Frame->RangeString_CMB->ItemIndex() > index)
            Typing::Press(Frame->RangeString_CMB, Qt::Key_Up);
    }
};

} // namespace

class RangeStringSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned();
    void theControlsStandFromRightToLeft();
    void initStartsSwitchedOffAndEmpty();
    void withoutItemsInitTouchesNothing();
    void tickingTheBoxFocusesTheFieldsAndActivates();
    void codesAreCompletedWhenAnEditIsLeft();
    void typingAloneDoesNotFilter();
    void aFixedLengthTakesThatManyDigitsOnly();
    void withoutALengthTheTextIsPassedAsTyped();
    void choosingAFieldCompletesAtOnceButTellsNothing();
    void aFieldWithoutALengthTakesThePatternAway();
    void pastingIsRefused();
    void keptValuesAreRestored();
    void keptValuesOfAnInactiveLineAreHeld();
    void aClickOnTheFrameAppliesTheBox();
    void theEmptyHandlerDoesNothing();
    void tabFollowsTheReadingOrder();
    void aHandlerOfTheOwnerMayDestroyTheFrame();
};

void RangeStringSearchTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TRange_String_Search_Frame frame;
    QCOMPARE(frame.RangeString_Cap_LBL->Caption(), QStringLiteral(" &کد :"));
    QCOMPARE(frame.RangeString_CHK->text(), QStringLiteral("          &ک"));
    QCOMPARE(frame.Label_TRVDEVX1->Caption(), QStringLiteral("از :"));
    QCOMPARE(frame.Label_TRVDEVX2->Caption(), QStringLiteral("تا :"));
    QCOMPARE(frame.RangeString_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
    for (const TSmartMaskEdit_TRV* edit : {frame.RangeString_From_EDT, frame.RangeString_To_EDT}) {
        const TRegExp& rules = edit->RegExp();
        QCOMPARE(rules.Options(), TRegExp::TOptions());
        QVERIFY(!rules.ValidateIfEmpty);
        QVERIFY(rules.DisablePaste);
        QCOMPARE(rules.ErrorMessage, QStringLiteral("مقدار وارده معتبر نیست"));
        QCOMPARE(rules.AllowedKeys,
                 TRegExp::vkLetter | TRegExp::vkNumber | TRegExp::vkSpace | TRegExp::vkPunctuation);
        QCOMPARE(rules.RegExp(), QString());
        QVERIFY(!edit->accessibleName().isEmpty());
    }
    const TTarvaSearch& criterion = *frame.TarvaSearch_Range_String;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stRangeString);
    QCOMPARE(criterion.SearchItems.Count(), 0);
    QCOMPARE(criterion.ItemIndex(), 0);
    QVERIFY(!criterion.Active());
}

void RangeStringSearchTest::theControlsStandFromRightToLeft()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{
        frame.RangeString_CHK,    frame.RangeString_Cap_LBL,     frame.RangeString_CMB,
        frame.Label_TRVDEVX1,     frame.RangeString_From_EDT,    frame.Label_TRVDEVX2,
        frame.RangeString_To_EDT, frame.RangeString_Reverst_CHK, frame.RangeString_Reverst_LBL};
    for (qsizetype index = 1; index < order.size(); ++index)
        QVERIFY(order[index]->geometry().right() < order[index - 1]->geometry().left());
}

void RangeStringSearchTest::initStartsSwitchedOffAndEmpty()
{
    const TStringFilter filter;
    filter.Criterion().SetActive(true);
    filter.Criterion().SetValue1(QStringLiteral("x"));
    filter.Frame->init();
    QVERIFY(!filter.Criterion().Active());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QString()));
    QCOMPARE(filter.Frame->RangeString_CMB->Count(), 3);
    QCOMPARE(filter.Frame->RangeString_CMB->ItemIndex(), 0);
    QCOMPARE(filter.Frame->RangeString_From_EDT->RegExp().RegExp(), QStringLiteral("\\d\\d\\d\\d\\d"));
    QCOMPARE(filter.Frame->RangeString_To_EDT->MaxLength(), 5);
    for (const QWidget* control : std::initializer_list<QWidget*>{
             filter.Frame->RangeString_CMB, filter.Frame->RangeString_From_EDT,
             filter.Frame->RangeString_To_EDT, filter.Frame->RangeString_Reverst_CHK,
             filter.Frame->RangeString_Reverst_LBL})
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
}

void RangeStringSearchTest::withoutItemsInitTouchesNothing()
{
    const TStringFilter filter;
    filter.Criterion().SearchItems.Clear();
    filter.Frame->init();
    QVERIFY(filter.Frame->RangeString_From_EDT->isEnabled());
    QVERIFY(!filter.Criterion().Value1().isValid());
}

void RangeStringSearchTest::tickingTheBoxFocusesTheFieldsAndActivates()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    QVERIFY(filter.Criterion().Active());
    QVERIFY(filter.Frame->RangeString_To_EDT->isEnabled());
    QCOMPARE(QApplication::focusWidget(), filter.Frame->RangeString_CMB);
    TStringFilter::Click(filter.Frame->RangeString_CHK);
    QVERIFY(!filter.Criterion().Active());
    QVERIFY(!filter.Frame->RangeString_To_EDT->isEnabled());
}

void RangeStringSearchTest::codesAreCompletedWhenAnEditIsLeft()
{
    TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Host.Log.Clear();
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("۱۲"));
    Typing::Press(filter.Frame->RangeString_From_EDT, Qt::Key_Tab);
    QCOMPARE(filter.Host.Log.Lines(), QStringList{QStringLiteral("CompleteCode(12, 5)")});
    QCOMPARE(filter.Frame->RangeString_From_EDT->Text(), QStringLiteral("00012"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("00012")));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::QString);
    QVERIFY(!filter.Frame->RangeString_From_EDT->HasError());
    TStringFilter::Enter(filter.Frame->RangeString_To_EDT, QStringLiteral("345"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("00345")));
}

void RangeStringSearchTest::typingAloneDoesNotFilter()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("12"));
    QTest::qWait(400);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QString()));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("00012")));
}

void RangeStringSearchTest::aFixedLengthTakesThatManyDigitsOnly()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("1a2-3456"));
    QCOMPARE(filter.Frame->RangeString_From_EDT->Text(), QStringLiteral("12345"));
    TStringFilter::Enter(filter.Frame->RangeString_To_EDT, QStringLiteral("x"));
    QCOMPARE(filter.Frame->RangeString_To_EDT->Text(), QString());
    QCOMPARE(Balloon::ShownText(), QStringLiteral("مقدار وارده معتبر نیست"));
}

void RangeStringSearchTest::withoutALengthTheTextIsPassedAsTyped()
{
    TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Choose(1);
    filter.Host.Log.Clear();
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("ب-7"));
    filter.Leave();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("ب-7")));
    QCOMPARE(filter.Host.Log.CountOf(QStringLiteral("CompleteCode")), 0);
}

void RangeStringSearchTest::choosingAFieldCompletesAtOnceButTellsNothing()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Choose(1);
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("7"));
    TStringFilter::Enter(filter.Frame->RangeString_To_EDT, QStringLiteral("9"));
    filter.Choose(2);
    QCOMPARE(filter.Frame->RangeString_From_EDT->Text(), QStringLiteral("007"));
    QCOMPARE(filter.Frame->RangeString_To_EDT->Text(), QStringLiteral("009"));
    QCOMPARE(filter.Frame->RangeString_To_EDT->MaxLength(), 3);
    QCOMPARE(filter.Criterion().ItemIndex(), 2);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("7")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("9")));
    filter.Frame->RangeString_From_EDT->setFocus();
    filter.Leave();
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("007")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("9")));
}

void RangeStringSearchTest::aFieldWithoutALengthTakesThePatternAway()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Choose(1);
    QCOMPARE(filter.Frame->RangeString_From_EDT->RegExp().RegExp(), QString());
    QCOMPARE(filter.Frame->RangeString_To_EDT->RegExp().RegExp(), QString());
    // The limit of the field before stays.
    QCOMPARE(filter.Frame->RangeString_To_EDT->MaxLength(), 5);
}

void RangeStringSearchTest::pastingIsRefused()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    QGuiApplication::clipboard()->setText(QStringLiteral("123"));
    filter.Frame->RangeString_From_EDT->setFocus();
    Typing::Press(filter.Frame->RangeString_From_EDT, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(filter.Frame->RangeString_From_EDT->Text(), QString());
    QVERIFY(filter.Frame->RangeString_From_EDT->HasError());
}

void RangeStringSearchTest::keptValuesAreRestored()
{
    const TStringFilter filter;
    filter.Frame->init();
    filter.Frame->initControl(true, 2, QStringLiteral("001"), QStringLiteral("099"));
    QVERIFY(filter.Criterion().Active());
    QVERIFY(filter.Frame->RangeString_CHK->Checked());
    QVERIFY(filter.Frame->RangeString_From_EDT->isEnabled());
    QCOMPARE(filter.Frame->RangeString_CMB->ItemIndex(), 2);
    QCOMPARE(filter.Criterion().ItemIndex(), 2);
    QCOMPARE(filter.Frame->RangeString_From_EDT->Text(), QStringLiteral("001"));
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("001")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("099")));
}

void RangeStringSearchTest::keptValuesOfAnInactiveLineAreHeld()
{
    const TStringFilter filter;
    filter.Frame->init();
    filter.Frame->initControl(false, 0, QStringLiteral("00001"), QStringLiteral("00099"));
    QVERIFY(!filter.Criterion().Active());
    QVERIFY(!filter.Frame->RangeString_From_EDT->isEnabled());
    QVERIFY(!filter.Frame->RangeString_CMB->isEnabled());
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("00001")));
    QCOMPARE(filter.Criterion().Value2(), QVariant(QStringLiteral("00099")));
    QCOMPARE(filter.Frame->RangeString_To_EDT->Text(), QStringLiteral("00099"));
}

void RangeStringSearchTest::aClickOnTheFrameAppliesTheBox()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Criterion().SetActive(false);
    QTest::mouseClick(filter.Frame, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QVERIFY(filter.Criterion().Active());
}

void RangeStringSearchTest::theEmptyHandlerDoesNothing()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Frame->Reverst_String_CHKClick();
    QVERIFY(filter.Criterion().Active());
    QVERIFY(!filter.Criterion().Reverst());
}

void RangeStringSearchTest::tabFollowsTheReadingOrder()
{
    const TStringFilter filter;
    QVERIFY(filter.Start());
    filter.Frame->RangeString_CHK->setFocus();
    const auto& frame = *filter.Frame;
    const QList<QWidget*> order{frame.RangeString_CMB, frame.RangeString_From_EDT, frame.RangeString_To_EDT,
                                frame.RangeString_Reverst_CHK, filter.Other};
    QCOMPARE(Typing::TabStops(order.size()), order);
}

void RangeStringSearchTest::aHandlerOfTheOwnerMayDestroyTheFrame()
{
    TStringFilter filter;
    QVERIFY(filter.Start());
    QObject::connect(&filter.Criterion(), &TTarvaSearch::changed, filter.Form.get(),
                     [&] { std::exchange(filter.Frame, nullptr)->deleteLater(); });
    TStringFilter::Enter(filter.Frame->RangeString_From_EDT, QStringLiteral("1"));
    filter.Leave();
    QVERIFY(filter.Frame == nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(RangeStringSearchTest)
#include "RangeStringSearchTest.moc"
