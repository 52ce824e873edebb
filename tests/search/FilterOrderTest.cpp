#include "AccountForm.h"
#include "AccountingCodes_Search_UNT.h"
#include "EntitySearchForm.h"
#include "FilterForm.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_String_Search.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartMaskEdit_TRV.h"

namespace {

/// Writes down what reaches a criterion, in the order in which it comes.
class TCriterionNotes
{
public:
    explicit TCriterionNotes(TTarvaSearch& criterion, QStringList& steps, const QString& name = {})
        : criterion_(criterion), steps_(steps), name_(name)
    {
        QObject::connect(&criterion, &TTarvaSearch::activeChanged, &receiver_,
                         [this](bool active) { Note(active ? u"on" : u"off"); });
        QObject::connect(&criterion, &TTarvaSearch::itemIndexChanged, &receiver_,
                         [this](int index) { Note(QStringLiteral("item %1").arg(index)); });
        QObject::connect(&criterion, &TTarvaSearch::changed, &receiver_, [this] { NoteValues(); });
        first_ = criterion.Value1();
        second_ = criterion.Value2();
    }

private:
    void Note(const QString& step) { steps_.append(name_ + step); }
    void Note(const char16_t* step) { Note(QString::fromUtf16(step)); }
    void NoteValues()
    {
        NoteValue(QStringLiteral("from "), first_, criterion_.Value1());
        NoteValue(QStringLiteral("to "), second_, criterion_.Value2());
    }
    void NoteValue(const QString& which, QVariant& before, const QVariant& now)
    {
        if (before.metaType() != now.metaType() || before != now)
            Note(which + now.toString());
        before = now;
    }

    TTarvaSearch& criterion_;
    QStringList& steps_;
    QString name_;
    QVariant first_;
    QVariant second_;
    QObject receiver_;
};

QStringList Steps(std::initializer_list<const char*> steps)
{
    QStringList result;
    for (const char* step : steps)
        result.append(QString::fromLatin1(step));
    return result;
}

/// A line of two fields whose criterion stands on the second one.
template <typename TFrame> struct TLine : TFilterForm<TFrame>
{
    QStringList Log;

    void Start(TTarvaSearch& criterion, TSearchDataType type)
    {
        criterion.SearchItems.Add(this->Item(QStringLiteral("یک"), type));
        criterion.SearchItems.Add(this->Item(QStringLiteral("دو"), type));
        this->Frame->init();
        criterion.SetItemIndex(1);
    }
};

} // namespace

/// The order in which frames tell their criteria: who filters at each step must never see the switch of one
/// moment with the values of another.
class FilterOrderTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDigitLineGivesItsValuesBeforeItSwitchesOn();
    void aCostLineGivesItsValuesBeforeItSwitchesOn();
    void aDateLineGivesItsValuesBeforeItSwitchesOn();
    void aStringLineOnlySwitches();
    void anEntityLineSwitchesKindAndCode();
    void anAccountLineSwitchesFromTheTotalDown();
    void startingSwitchesOffBeforeValuesAreEmptied();
    void clearingACostLineEndsSwitchedOn();
};

void FilterOrderTest::aDigitLineGivesItsValuesBeforeItSwitchesOn()
{
    TLine<TRange_Digit_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_Digit;
    line.Start(criterion, TSearchDataType::idtDigit);
    line.Frame->RangeDigit_From_EDT->SetText(QStringLiteral("100"));
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->SetActive(true);
    QCOMPARE(line.Log, Steps({"item 0", "from 100", "to 2147483647", "on"}));
    line.Log.clear();
    line.Frame->SetActive(false);
    QCOMPARE(line.Log, Steps({"off"}));
}

void FilterOrderTest::aCostLineGivesItsValuesBeforeItSwitchesOn()
{
    TLine<TRange_Cost_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_Cost;
    line.Start(criterion, TSearchDataType::idtMoney);
    line.Frame->RangeCost_From_EDT->SetText(QStringLiteral("100"));
    line.Frame->RangeCost_To_EDT->SetText(QStringLiteral("200"));
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->RangeCost_CHK->SetChecked(true);
    QCOMPARE(line.Log, Steps({"item 0", "from 100", "to 200", "on"}));
}

void FilterOrderTest::aDateLineGivesItsValuesBeforeItSwitchesOn()
{
    TLine<TRange_Date_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_Date;
    line.Start(criterion, TSearchDataType::idtString);
    line.Frame->RangeDate_From_EDT->SetText(QStringLiteral("1403/01/01"));
    line.Frame->RangeDate_To_EDT->SetText(QStringLiteral("1403/01/02"));
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->RangeDate_CHK->SetChecked(true);
    QCOMPARE(line.Log, Steps({"item 0", "from 2024/03/20", "to 2024/03/21", "on"}));
}

void FilterOrderTest::aStringLineOnlySwitches()
{
    TLine<TRange_String_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_String;
    line.Start(criterion, TSearchDataType::idtString);
    line.Frame->RangeString_From_EDT->SetText(QStringLiteral("12"));
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->RangeString_CHK->SetChecked(true);
    line.Frame->RangeString_CHK->SetChecked(false);
    QCOMPARE(line.Log, Steps({"on", "off"}));
    line.Log.clear();
    line.Frame->initControl(true, 0, QStringLiteral("3"), QStringLiteral("4"));
    // The box, which is set first, switches on already.
    QCOMPARE(line.Log, Steps({"on", "item 0", "from 3", "to 4"}));
}

void FilterOrderTest::anEntityLineSwitchesKindAndCode()
{
    using TForm = TEntitySearchForm<TSelectEntity_Search_Frame>;
    TForm form;
    TSelectEntity_Search_Frame& frame = *form.Frame;
    TForm::AddKinds(*frame.TarvaSearch_SelectEntityCMB);
    frame.init();
    QStringList log;
    const TCriterionNotes kind(*frame.TarvaSearch_SelectEntityCMB, log, QStringLiteral("kind "));
    const TCriterionNotes code(*frame.TarvaSearch_SelectEntityEDT, log, QStringLiteral("code "));
    frame.SelectEntity_CHK->SetChecked(true);
    frame.SelectEntity_CHK->SetChecked(false);
    QCOMPARE(log, Steps({"kind on", "code on", "kind off", "code off"}));
}

void FilterOrderTest::anAccountLineSwitchesFromTheTotalDown()
{
    TAccountForm<TAccountingCodes_Search_Frame> form(TCodeItems::FromBits(15));
    form.Frame->init();
    QStringList log;
    const TCriterionNotes total(*form.Frame->TarvaSearch_Total, log, QStringLiteral("1 "));
    const TCriterionNotes assistant(*form.Frame->TarvaSearch_Assisstant, log, QStringLiteral("2 "));
    const TCriterionNotes detail(*form.Frame->TarvaSearch_Detail, log, QStringLiteral("3 "));
    const TCriterionNotes center(*form.Frame->TarvaSearch_ExpenseCenter, log, QStringLiteral("4 "));
    form.Frame->SetActive(true);
    form.Frame->SetActive(false);
    QCOMPARE(log, Steps({"1 on", "2 on", "3 on", "4 on", "1 off", "2 off", "3 off", "4 off"}));
}

void FilterOrderTest::startingSwitchesOffBeforeValuesAreEmptied()
{
    {
        TLine<TRange_Cost_Search_Frame> line;
        TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_Cost;
        line.Start(criterion, TSearchDataType::idtMoney);
        criterion.SetValue1(5.0);
        criterion.SetValue2(6.0);
        criterion.SetActive(true);
        const TCriterionNotes notes(criterion, line.Log);
        line.Frame->init();
        QCOMPARE(line.Log, Steps({"off", "from 0", "to 0"}));
    }
    TLine<TRange_String_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_String;
    line.Start(criterion, TSearchDataType::idtString);
    criterion.SetValue1(QStringLiteral("5"));
    criterion.SetValue2(QStringLiteral("6"));
    criterion.SetActive(true);
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->init();
    QCOMPARE(line.Log, Steps({"off", "from ", "to ", "item 0"}));
}

void FilterOrderTest::clearingACostLineEndsSwitchedOn()
{
    TLine<TRange_Cost_Search_Frame> line;
    TTarvaSearch& criterion = *line.Frame->TarvaSearch_Range_Cost;
    line.Start(criterion, TSearchDataType::idtMoney);
    line.Frame->RangeCost_From_EDT->SetText(QStringLiteral("100"));
    line.Frame->RangeCost_CHK->SetChecked(true);
    const TCriterionNotes notes(criterion, line.Log);
    line.Frame->Clear();
    QCOMPARE(line.Log, Steps({"off", "from ", "to ", "on"}));
    QVERIFY(!line.Frame->RangeCost_CHK->Checked());
}

QTEST_MAIN(FilterOrderTest)
#include "FilterOrderTest.moc"
