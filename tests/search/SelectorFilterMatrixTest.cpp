#include "AccountForm.h"
#include "AccountingCodes_Search_UNT.h"
#include "EntitySearchForm.h"
#include "FilterMatrix.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "TestCase.h"

namespace {

enum class TReverseShown { Always, ByKind, Never };
using TKinds = QList<int>;

struct TCriterion
{
    TTarvaSearch* Search = nullptr;
    bool Switched = true;   ///< active when the filter is on
    bool Reversible = true; ///< turned round by the "not" box
};

/// A filter frame with selectors by what all of them have.
struct TLine
{
    std::shared_ptr<void> Form; ///< keeps the frame and its host
    QWidget* Window = nullptr;
    QList<TCriterion> Criteria;
    TSmartCheckBox_TRV* Check = nullptr;
    TSmartLabel_TRV* Caption = nullptr;
    TSmartComboBox_TRV* Combo = nullptr;
    TSmartCheckBox_TRV* Reverse = nullptr;
    TSmartLabel_TRV* ReverseLabel = nullptr;
    TReverseShown ReverseShown = TReverseShown::Always;
    QWidgetList Followers; ///< on and off with the filter, besides the combo box and the "not" box
    QWidgetList Steady;    ///< enabled in any case, besides the check box and its caption
};

template <typename TEntityForm> void AddItems(TTarvaSearch& criterion, const TKinds& kinds)
{
    for (const int kind : kinds)
        TEntityForm::Add(criterion, QStringLiteral("اشخاص"), TEntityType::etPersonals,
                         static_cast<TSearchFilterType>(kind));
}

TLine EntityLine(const TKinds& kinds)
{
    using TForm = TEntitySearchForm<TSelectEntity_Search_Frame>;
    const auto form = std::make_shared<TForm>();
    TSelectEntity_Search_Frame& frame = *form->Frame;
    AddItems<TForm>(*frame.TarvaSearch_SelectEntityCMB, kinds);
    AddItems<TForm>(*frame.TarvaSearch_SelectEntityEDT, kinds);
    frame.init();
    const TSelect_Entity_Frame& selector = *frame.TSelect_Entity_Frame1;
    return {form,
            form->Form.get(),
            {{frame.TarvaSearch_SelectEntityCMB, true, false}, {frame.TarvaSearch_SelectEntityEDT}},
            frame.SelectEntity_CHK,
            frame.SelectEntity_Cap_LBL,
            frame.SelectEntity_CMB,
            frame.SelectEntity_Reverst_CHK,
            frame.SelectEntity_Reverst_LBL,
            TReverseShown::Always,
            {selector.Code_EDT, selector.Name_LBL},
            {frame.TSelect_Entity_Frame1}};
}

TLine EntityRangeLine(const TKinds& kinds)
{
    using TForm = TEntitySearchForm<TRange_SelectEntity_Search_Frame>;
    const auto form = std::make_shared<TForm>();
    TRange_SelectEntity_Search_Frame& frame = *form->Frame;
    AddItems<TForm>(*frame.TarvaSearch_Range_SelectEntity, kinds);
    frame.init();
    TSelect_Entity_Frame* const from = frame.Select_Entity_Frame1;
    TSelect_Entity_Frame* const to = frame.Select_Entity_Frame2;
    return {form,
            form->Form.get(),
            {{frame.TarvaSearch_Range_SelectEntity}},
            frame.SelectEntity_CHK,
            frame.SelectEntity_Cap_LBL,
            frame.SelectEntity_CMB,
            frame.SelectEntity_Reverst_CHK,
            frame.SelectEntity_Reverst_LBL,
            TReverseShown::ByKind,
            {from->Code_EDT, to->Code_EDT},
            {from, to, from->Name_LBL, to->Name_LBL, frame.Label_TRVDEVX1, frame.Label_TRVDEVX2}};
}

/// The criteria of the total, assistant, detail and expense center levels, of which the total is switched
/// whether its level is shown or not.
QList<TCriterion> Levels(const QList<TTarvaSearch*>& criteria, TCodeItems shown)
{
    QList<TCriterion> result;
    for (int level = 0; level < criteria.size(); ++level)
        result.append({criteria.at(level), level == 0 || (shown.Bits() >> level & 1) == 1});
    return result;
}

QWidgetList Controls(const TSelect_AccountCode& selector)
{
    return {selector.TotalCode_EDT, selector.AssistantCode_EDT, selector.DetailCode_EDT,
            selector.ExpenseCenterCode_EDT, selector.Select_BTN};
}

/// For the levels whose bits are set.
template <typename TFrame, unsigned Bits>
TLine AccountLine(const TKinds& kinds, QList<TTarvaSearch*> (*criteriaOf)(const TFrame&),
                  TReverseShown reverseShown)
{
    const TCodeItems levels = TCodeItems::FromBits(Bits);
    const auto form = std::make_shared<TAccountForm<TFrame>>(levels);
    TFrame& frame = *form->Frame;
    const QList<TTarvaSearch*> criteria = criteriaOf(frame);
    for (TTarvaSearch* const criterion : criteria)
        criterion->SearchItems.GetItem(0).FilterType = static_cast<TSearchFilterType>(kinds.first());
    frame.init();
    return {form,
            form->Form.get(),
            Levels(criteria, levels),
            frame.AccCodes_CHK,
            frame.AccCodes_Cap_LBL,
            nullptr,
            frame.AccCodes_Reverst_CHK,
            frame.AccCodes_Reverst_LBL,
            reverseShown,
            Controls(*frame.Select_AccountCode1),
            {frame.Select_AccountCode1}};
}

QList<TTarvaSearch*> AccountCriteria(const TAccountingCodes_Search_Frame& frame)
{
    return {frame.TarvaSearch_Total, frame.TarvaSearch_Assisstant, frame.TarvaSearch_Detail,
            frame.TarvaSearch_ExpenseCenter};
}

QList<TTarvaSearch*> AccountRangeCriteria(const TRange_AccCodes_Search_Frame& frame)
{
    return {frame.TarvaSearch_Range_Total, frame.TarvaSearch_Range_Assisstant, frame.TarvaSearch_Range_Detail,
            frame.TarvaSearch_Range_ExpCenter};
}

template <unsigned Bits> TLine SingleAccountLine(const TKinds& kinds)
{
    return AccountLine<TAccountingCodes_Search_Frame, Bits>(kinds, AccountCriteria, TReverseShown::Always);
}

template <unsigned Bits> TLine AccountRangeLine(const TKinds& kinds)
{
    using TFrame = TRange_AccCodes_Search_Frame;
    TLine line = AccountLine<TFrame, Bits>(kinds, AccountRangeCriteria, TReverseShown::Never);
    const TFrame& frame = *std::static_pointer_cast<TAccountForm<TFrame>>(line.Form)->Frame;
    line.Followers += Controls(*frame.Select_AccountCode2);
    line.Steady += QWidgetList{frame.Select_AccountCode2, frame.Label_TRVDEVX1, frame.Label_TRVDEVX2};
    return line;
}

using TMaker = TLine (*)(const TKinds& kinds);
constexpr unsigned AllLevels = 15;
constexpr unsigned MiddleLevels = 6;
constexpr std::pair<const char*, TMaker> Makers[] = {
    {"entity", EntityLine},
    {"entity range", EntityRangeLine},
    {"account", SingleAccountLine<AllLevels>},
    {"account, assistant and detail", SingleAccountLine<MiddleLevels>},
    {"account range", AccountRangeLine<AllLevels>},
    {"account range, assistant and detail", AccountRangeLine<MiddleLevels>}};

bool ShowsReverse(const TLine& line, int kind)
{
    return line.ReverseShown == TReverseShown::Always ||
           (line.ReverseShown == TReverseShown::ByKind && kind != DataSetKind);
}

} // namespace

/// Each filter frame with selectors, with each kind of item, ticked and cleared by the box and by its
/// caption, turned round by the "not" box and by its label.
class SelectorFilterMatrixTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCombination_data();
    void everyCombination();
    void choosingAnItemShowsTheReverseControlsByItsKind_data();
    void choosingAnItemShowsTheReverseControlsByItsKind();

private:
    static void CheckSwitched(const TLine& line, bool on);
    static void CheckReverseEnabled(const TLine& line, bool enabled);
    static void CheckReversed(const TLine& line, bool reversed);
    static void CheckReverseShown(const TLine& line, bool shown);
    static void TurnRound(const TLine& line, QWidget* turner);
};

void SelectorFilterMatrixTest::everyCombination_data()
{
    FilterMatrix::AddRows(Makers);
}

void SelectorFilterMatrixTest::CheckSwitched(const TLine& line, bool on)
{
    QCOMPARE(line.Check->Checked(), on);
    for (const TCriterion& criterion : line.Criteria)
        QVERIFY2(criterion.Search->Active() == (on && criterion.Switched),
                 qPrintable(criterion.Search->objectName()));
    QWidgetList followers = line.Followers;
    if (line.Combo)
        followers << line.Combo;
    for (const QWidget* const follower : followers)
        QVERIFY2(follower->isEnabled() == on, qPrintable(follower->objectName()));
    for (const QWidget* const steady : line.Steady + QWidgetList{line.Check, line.Caption})
        QVERIFY2(steady->isEnabled(), qPrintable(steady->objectName()));
    if (line.Combo && on)
        QVERIFY(line.Combo->hasFocus());
}

void SelectorFilterMatrixTest::CheckReverseEnabled(const TLine& line, bool enabled)
{
    QCOMPARE(line.Reverse->isEnabled(), enabled);
    QCOMPARE(line.ReverseLabel->isEnabled(), enabled);
}

void SelectorFilterMatrixTest::CheckReversed(const TLine& line, bool reversed)
{
    QCOMPARE(line.Reverse->Checked(), reversed);
    for (const TCriterion& criterion : line.Criteria)
        QVERIFY2(criterion.Search->Reverst() == (reversed && criterion.Reversible),
                 qPrintable(criterion.Search->objectName()));
}

void SelectorFilterMatrixTest::CheckReverseShown(const TLine& line, bool shown)
{
    QCOMPARE(line.Reverse->isVisible(), shown);
    QCOMPARE(line.ReverseLabel->isVisible(), shown);
}

/// Round, back, and round again.
void SelectorFilterMatrixTest::TurnRound(const TLine& line, QWidget* turner)
{
    for (const bool reversed : {true, false, true}) {
        FilterMatrix::Click(turner);
        CheckReversed(line, reversed);
    }
}

void SelectorFilterMatrixTest::everyCombination()
{
    QFETCH(int, frame);
    QFETCH(int, kind);
    QFETCH(bool, byLabel);
    QFETCH(bool, reverseByLabel);
    const TLine line = Makers[frame].second({kind});
    QVERIFY(Typing::ShowActive(line.Window));
    CheckReverseShown(line, ShowsReverse(line, kind));
    CheckSwitched(line, false);
    if (line.ReverseShown != TReverseShown::Never) // hidden ones need not be switched off yet
        CheckReverseEnabled(line, false);

    QWidget* const sender = byLabel ? static_cast<QWidget*>(line.Caption) : line.Check;
    QWidget* const turner = reverseByLabel ? static_cast<QWidget*>(line.ReverseLabel) : line.Reverse;
    if (ShowsReverse(line, kind))
        FilterMatrix::Click(turner); // is off with the filter
    CheckReversed(line, false);
    FilterMatrix::Click(sender);
    CheckSwitched(line, true);
    CheckReverseEnabled(line, true);
    CheckReverseShown(line, ShowsReverse(line, kind));
    CheckReversed(line, false);

    if (line.ReverseShown == TReverseShown::Never) { // an owner may show what the frame hides
        line.Reverse->show();
        line.ReverseLabel->show();
        QCoreApplication::processEvents();
    }
    const bool reversible = line.Reverse->isVisible();
    if (reversible)
        TurnRound(line, turner);
    FilterMatrix::Click(sender);
    CheckSwitched(line, false);
    CheckReverseEnabled(line, false);
    CheckReversed(line, reversible);
    CheckReverseShown(line, reversible);
}

void SelectorFilterMatrixTest::choosingAnItemShowsTheReverseControlsByItsKind_data()
{
    QTest::addColumn<int>("frame");
    QTest::newRow("entity") << 0;
    QTest::newRow("entity range") << 1;
}

/// Other kinds leave the controls as they are.
void SelectorFilterMatrixTest::choosingAnItemShowsTheReverseControlsByItsKind()
{
    QFETCH(int, frame);
    const TLine line = Makers[frame].second({DataSetKind, OtherKind, QueryKind, OtherKind, DataSetKind});
    const bool always = line.ReverseShown == TReverseShown::Always;
    QVERIFY(Typing::ShowActive(line.Window));
    FilterMatrix::Click(line.Check);
    int index = 0;
    for (const bool shown : {always, always, true, true, always}) {
        for (const TCriterion& criterion : line.Criteria)
            QCOMPARE(criterion.Search->ItemIndex(), index);
        CheckReverseShown(line, shown);
        Typing::Press(line.Combo, Qt::Key_Down);
        ++index;
    }
}

QTEST_MAIN(SelectorFilterMatrixTest)
#include "SelectorFilterMatrixTest.moc"
