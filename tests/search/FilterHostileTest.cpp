#include "FilterForm.h"
#include "HostServices.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_String_Search.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartMaskEdit_TRV.h"
#include "SmartTime_TRV.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

struct TDigitFilter : TFilterForm<TRange_Digit_Search_Frame>
{
    TTarvaSearch& Criterion = *Frame->TarvaSearch_Range_Digit;

    bool Start()
    {
        Criterion.SearchItems.Add(Item(QStringLiteral("شماره"), TSearchDataType::idtDigit));
        Frame->init();
        const bool isActive = Show();
        Click(Frame->RangeDigit_CHK);
        return isActive;
    }
};

struct TDateFilter : TFilterForm<TRange_Date_Search_Frame>
{
    TTarvaSearch& Criterion = *Frame->TarvaSearch_Range_Date;

    bool Start()
    {
        Criterion.SearchItems.Add(Item(QStringLiteral("زمان"), TSearchDataType::idtDateTime));
        Criterion.SearchItems.Add(Item(QStringLiteral("تاریخ")));
        Frame->init();
        const bool isActive = Show();
        Click(Frame->RangeDate_CHK);
        return isActive;
    }
};

struct TCostFilter : TFilterForm<TRange_Cost_Search_Frame>
{
    TTarvaSearch& Criterion = *Frame->TarvaSearch_Range_Cost;

    bool Start()
    {
        Criterion.SearchItems.Add(Item(QStringLiteral("بدهکار"), TSearchDataType::idtMoney));
        Frame->init();
        const bool isActive = Show();
        Click(Frame->RangeCost_CHK);
        return isActive;
    }
};

struct TStringFilter : TFilterForm<TRange_String_Search_Frame>
{
    TTarvaSearch& Criterion = *Frame->TarvaSearch_Range_String;

    bool Start(int maxLength)
    {
        Criterion.SearchItems.Add(Item(QStringLiteral("کد"), TSearchDataType::idtString, maxLength));
        Frame->init();
        const bool isActive = Show();
        Click(Frame->RangeString_CHK);
        return isActive;
    }
};

void PasteOver(QLineEdit* edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    edit->setFocus();
    edit->selectAll();
    Typing::Press(edit, Qt::Key_V, Qt::ControlModifier);
}

constexpr qsizetype Huge = 1000000;

void AddHugeTexts()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("digits") << QString(Huge, u'7');
    QTest::newRow("blanks") << QString(Huge, u' ');
    QTest::newRow("blanks behind a digit") << QStringLiteral("1") + QString(Huge, u' ') + u'x';
    QTest::newRow("separators") << QString(Huge, u'/');
    QTest::newRow("letters behind a digit") << QStringLiteral("1") + QString(Huge, u'x');
    QTest::newRow("lines") << QString(Huge, u'\n');
    QTest::newRow("marks") << QString(Huge, QChar(0x200F));
}

} // namespace

/// What users and other programs put into filters that filters are not made for.
class FilterHostileTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hugeTextsAreNoDates_data() { AddHugeTexts(); }
    void hugeTextsAreNoDates();
    void hugeTextsStayWithinTheNumberEdits_data() { AddHugeTexts(); }
    void hugeTextsStayWithinTheNumberEdits();
    void digitsOfEveryScriptAreTheSame_data();
    void digitsOfEveryScriptAreTheSame();
    void marksAroundANumberDoNotCount();
    void theFirstAndTheLastDayAreDates();
    void daysThatDoNotExistAreNoBounds_data();
    void daysThatDoNotExistAreNoBounds();
    void reversedBoundsArePassedOn();
    void choosingAFieldLosesNothingThatIsBeingTyped();
    void uncheckingKeepsWhatIsBeingTyped();
    void twoFramesOnAFormKnowNothingOfEachOther();
    void aFrameKeepsItsStateUnderAnotherParent();
    void withoutAHostThereIsNoFrame();
};

void FilterHostileTest::hugeTextsAreNoDates()
{
    QFETCH(QString, text);
    TDateFilter filter;
    QVERIFY(filter.Start());
    const TRange_Date_Search_Frame& frame = *filter.Frame;
    TDateFilter::Enter(frame.RangeDate_From_EDT, QStringLiteral("14030101"));
    PasteOver(frame.RangeDate_From_EDT, text);
    QCOMPARE(frame.RangeDate_From_EDT->Text(), QStringLiteral("1403/01/01"));
    QVERIFY(frame.RangeDate_From_EDT->HasError());
    PasteOver(frame.RangeTime_From_EDT, text);
    QCOMPARE(frame.RangeTime_From_EDT->Text(), QStringLiteral("00:00"));
    QVERIFY(frame.RangeTime_From_EDT->HasError());
    filter.Leave();
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("2024/03/20-00:00")));
}

void FilterHostileTest::hugeTextsStayWithinTheNumberEdits()
{
    QFETCH(QString, text);
    {
        TDigitFilter digits;
        QVERIFY(digits.Start());
        PasteOver(digits.Frame->RangeDigit_From_EDT, text);
        digits.Leave();
        QVERIFY(digits.Criterion.Value1().toString().size() <= 12);
    }
    TCostFilter costs;
    QVERIFY(costs.Start());
    PasteOver(costs.Frame->RangeCost_From_EDT, text);
    costs.Leave();
    QCOMPARE(costs.Criterion.Value1().typeId(), int(QMetaType::Double));
    QVERIFY(costs.Criterion.Value1().toDouble() < 1e15);
}

void FilterHostileTest::digitsOfEveryScriptAreTheSame_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("date");
    QTest::newRow("Latin") << QStringLiteral("1234") << QStringLiteral("14030101");
    QTest::newRow("Persian") << QStringLiteral("۱۲۳۴") << QStringLiteral("۱۴۰۳۰۱۰۱");
    QTest::newRow("Arabic") << QStringLiteral("١٢٣٤") << QStringLiteral("١٤٠٣٠١٠١");
    QTest::newRow("mixed") << QStringLiteral("۱2٣۴") << QStringLiteral("1۴٠۳/٠1/۰۱");
}

void FilterHostileTest::digitsOfEveryScriptAreTheSame()
{
    QFETCH(QString, number);
    QFETCH(QString, date);
    {
        TDigitFilter filter;
        QVERIFY(filter.Start());
        TDigitFilter::Enter(filter.Frame->RangeDigit_From_EDT, number);
        filter.Leave();
        QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("1234")));
    }
    {
        TCostFilter filter;
        QVERIFY(filter.Start());
        TCostFilter::Enter(filter.Frame->RangeCost_To_EDT, number);
        filter.Leave();
        QCOMPARE(filter.Criterion.Value2(), QVariant(1234.0));
    }
    {
        TStringFilter filter;
        QVERIFY(filter.Start(4));
        TStringFilter::Enter(filter.Frame->RangeString_To_EDT, number);
        filter.Leave();
        QCOMPARE(filter.Criterion.Value2(), QVariant(QStringLiteral("1234")));
    }
    TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::Enter(filter.Frame->RangeDate_To_EDT, date);
    filter.Leave();
    QCOMPARE(filter.Criterion.Value2(), QVariant(QStringLiteral("2024/03/20-23:59")));
}

void FilterHostileTest::marksAroundANumberDoNotCount()
{
    const QString isolated = QStringLiteral("\u2068\u200F12\u200E\u2069");
    {
        TDigitFilter digits;
        QVERIFY(digits.Start());
        PasteOver(digits.Frame->RangeDigit_From_EDT, isolated);
        digits.Leave();
        QCOMPARE(digits.Criterion.Value1(), QVariant(QStringLiteral("12")));
    }
    TDateFilter dates;
    QVERIFY(dates.Start());
    PasteOver(dates.Frame->RangeDate_From_EDT, QStringLiteral("\u2067\u200F1403/01/01\u2069"));
    dates.Leave();
    QCOMPARE(dates.Criterion.Value1(), QVariant(QStringLiteral("2024/03/20-00:00")));
}

void FilterHostileTest::theFirstAndTheLastDayAreDates()
{
    TDateFilter filter;
    QVERIFY(filter.Start());
    filter.ChooseNext(filter.Frame->RangeDate_CMB);
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, QStringLiteral("13000101"));
    TDateFilter::Enter(filter.Frame->RangeDate_To_EDT, QStringLiteral("15001229"));
    filter.Leave();
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("1921/03/21")));
    QCOMPARE(filter.Criterion.Value2(), QVariant(QStringLiteral("2122/03/20")));
}

void FilterHostileTest::daysThatDoNotExistAreNoBounds_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<bool>("exists");
    QTest::newRow("31 of the sixth month") << QStringLiteral("14030631") << true;
    QTest::newRow("31 of the seventh month") << QStringLiteral("14030731") << false;
    QTest::newRow("leap day") << QStringLiteral("14031230") << true;
    QTest::newRow("leap day of another year") << QStringLiteral("14021230") << false;
    QTest::newRow("leap day after five years") << QStringLiteral("14081230") << true;
    QTest::newRow("leap day where five years would be four") << QStringLiteral("14071230") << false;
}

void FilterHostileTest::daysThatDoNotExistAreNoBounds()
{
    QFETCH(QString, date);
    QFETCH(bool, exists);
    TDateFilter filter;
    QVERIFY(filter.Start());
    filter.ChooseNext(filter.Frame->RangeDate_CMB);
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, date);
    filter.Leave();
    QCOMPARE(!filter.Criterion.Value1().toString().isEmpty(), exists);
    QCOMPARE(filter.Frame->RangeDate_From_EDT->HasError(), !exists);
    // What was typed is there to be corrected.
    QCOMPARE(filter.Frame->RangeDate_From_EDT->Text().remove(u'/'), date);
}

void FilterHostileTest::reversedBoundsArePassedOn()
{
    TDigitFilter filter;
    QVERIFY(filter.Start());
    TDigitFilter::Enter(filter.Frame->RangeDigit_From_EDT, QStringLiteral("90"));
    TDigitFilter::Enter(filter.Frame->RangeDigit_To_EDT, QStringLiteral("10"));
    filter.Leave();
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("90")));
    QCOMPARE(filter.Criterion.Value2(), QVariant(QStringLiteral("10")));
}

/// The combo box is reached before the pause of the edits is over.
void FilterHostileTest::choosingAFieldLosesNothingThatIsBeingTyped()
{
    TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, QStringLiteral("14030101"));
    filter.ChooseNext(filter.Frame->RangeDate_CMB);
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("2024/03/20")));
    QVERIFY(filter.Criterion.Active());
}

void FilterHostileTest::uncheckingKeepsWhatIsBeingTyped()
{
    TDigitFilter filter;
    QVERIFY(filter.Start());
    TDigitFilter::Enter(filter.Frame->RangeDigit_From_EDT, QStringLiteral("42"));
    TDigitFilter::Click(filter.Frame->RangeDigit_CHK);
    QVERIFY(!filter.Criterion.Active());
    QVERIFY(!filter.Frame->RangeDigit_From_EDT->isEnabled());
    TDigitFilter::Click(filter.Frame->RangeDigit_CHK);
    QVERIFY(filter.Criterion.Active());
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("42")));
}

void FilterHostileTest::twoFramesOnAFormKnowNothingOfEachOther()
{
    TDigitFilter filter;
    auto* second = new TRange_Digit_Search_Frame(filter.Form.get());
    filter.Form->layout()->addWidget(second);
    second->TarvaSearch_Range_Digit->SearchItems.Add(
        TDigitFilter::Item(QStringLiteral("ردیف"), TSearchDataType::idtDigit));
    second->init();
    QVERIFY(filter.Start());
    TDigitFilter::Enter(filter.Frame->RangeDigit_From_EDT, QStringLiteral("5"));
    filter.Leave();
    QVERIFY(filter.Criterion.Active());
    QVERIFY(!second->TarvaSearch_Range_Digit->Active());
    QVERIFY(!second->RangeDigit_From_EDT->isEnabled());
    QCOMPARE(second->RangeDigit_From_EDT->Text(), QStringLiteral("0"));
    delete std::exchange(filter.Frame, nullptr);
    TDigitFilter::Click(second->RangeDigit_CHK);
    QVERIFY(second->TarvaSearch_Range_Digit->Active());
}

void FilterHostileTest::aFrameKeepsItsStateUnderAnotherParent()
{
    TDateFilter filter;
    QVERIFY(filter.Start());
    TDateFilter::Enter(filter.Frame->RangeDate_From_EDT, QStringLiteral("14030101"));
    filter.Leave();
    QWidget second;
    QVBoxLayout layout(&second);
    layout.addWidget(filter.Frame);
    QVERIFY(filter.Frame->Showing() == false);
    QVERIFY(Typing::ShowActive(&second));
    QVERIFY(filter.Frame->Showing());
    QVERIFY(filter.Criterion.Active());
    QVERIFY(filter.Frame->RangeTime_From_EDT->isVisible());
    QCOMPARE(filter.Criterion.Value1(), QVariant(QStringLiteral("2024/03/20-00:00")));
    TDateFilter::Click(filter.Frame->RangeDate_Reverst_CHK);
    QVERIFY(filter.Criterion.Reverst());
    filter.Frame->setParent(filter.Form.get());
}

void FilterHostileTest::withoutAHostThereIsNoFrame()
{
    QVERIFY_THROWS_EXCEPTION(std::logic_error, TRange_Digit_Search_Frame());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, TRange_Date_Search_Frame());
}

QTEST_MAIN(FilterHostileTest)
#include "FilterHostileTest.moc"
