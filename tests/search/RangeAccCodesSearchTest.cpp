#include "AccountForm.h"
#include "Range_AccCodes_Search_UNT.h"
#include "TestCase.h"

namespace {

using TForm = TAccountForm<TRange_AccCodes_Search_Frame>;
constexpr TCodeItem T = TCodeItem::ctTotal;
constexpr TCodeItem A = TCodeItem::ctAssistant;
constexpr TCodeItem D = TCodeItem::ctDetail;
constexpr TCodeItem E = TCodeItem::ctExpenseCenter;

QList<TTarvaSearch*> Criteria(const TForm& form)
{
    return {form.Frame->TarvaSearch_Range_Total, form.Frame->TarvaSearch_Range_Assisstant,
            form.Frame->TarvaSearch_Range_Detail, form.Frame->TarvaSearch_Range_ExpCenter};
}

QVariantList Values(const TForm& form, QVariant (TTarvaSearch::*value)() const)
{
    QVariantList values;
    for (const TTarvaSearch* const criterion : Criteria(form))
        values.append((criterion->*value)());
    return values;
}

QVariantList First(const TForm& form)
{
    return Values(form, &TTarvaSearch::Value1);
}

QVariantList Last(const TForm& form)
{
    return Values(form, &TTarvaSearch::Value2);
}

QVariant Text(const char* text)
{
    return QString::fromLatin1(text);
}

void EnterAllLevels(const TForm& form, const TSelect_AccountCode& selector)
{
    form.Enter(selector.TotalCode_EDT, QStringLiteral("7"));
    form.Enter(selector.AssistantCode_EDT, QStringLiteral("2"));
    form.Enter(selector.DetailCode_EDT, QStringLiteral("11"));
    form.Enter(selector.ExpenseCenterCode_EDT, QStringLiteral("42"));
}

/// Equal in value and in type.
bool Same(const QVariantList& actual, const QVariantList& expected)
{
    for (int index = 0; index < expected.size(); ++index) {
        if (actual.at(index) != expected.at(index) ||
            actual.at(index).typeId() != expected.at(index).typeId())
            return false;
    }
    return actual.size() == expected.size();
}

} // namespace

class RangeAccCodesSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCriteriaAreAsTheOwnersKnowThem()
    {
        const TForm form;
        CheckAccountCriteria(Criteria(form), TSearchType::stRangeDigit,
                             {"TarvaSearch_Range_Total", "TarvaSearch_Range_Assisstant",
                              "TarvaSearch_Range_Detail", "TarvaSearch_Range_ExpCenter"},
                             {"kol", "Moin", "Tafzili", "Tafsili2"});
    }

    void theCaptionsAreAsWritten()
    {
        const TForm form;
        QCOMPARE(form.Frame->AccCodes_CHK->text(), QStringLiteral("&ح"));
        QCOMPARE(form.Frame->AccCodes_Cap_LBL->Caption(), QStringLiteral("کد &حساب :"));
        QCOMPARE(form.Frame->AccCodes_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
        QCOMPARE(form.Frame->Label_TRVDEVX1->Caption(), QStringLiteral("از :"));
        QCOMPARE(form.Frame->Label_TRVDEVX2->Caption(), QStringLiteral("تا :"));
    }

    void initOpensAllBoundsAndHidesTheNotBox()
    {
        TForm form;
        QVERIFY(Typing::ShowActive(form.Form.get()));
        QVERIFY(!form.Frame->AccCodes_Reverst_CHK->isVisible());
        QVERIFY(!form.Frame->AccCodes_Reverst_LBL->isVisible());
        QVERIFY(!form.Frame->AccCodes_CHK->Checked());
        QVERIFY(Same(First(form), {Text("0"), Text("0"), Text("0"), 0}));
        QVERIFY(Same(Last(form), {Text("999"), Text("999"), 999999, 9999}));
        for (const TSelect_AccountCode* const selector :
             {form.Frame->Select_AccountCode1, form.Frame->Select_AccountCode2}) {
            QVERIFY(!selector->TotalCode_EDT->isEnabled());
            QVERIFY(!selector->Select_BTN->isEnabled());
            QVERIFY(selector->IsEmpty());
        }
    }

    void theFollowingLengthsGiveTheLargestCodes()
    {
        const TForm form;
        form.Frame->Select_AccountCode2->DetailCode_EDT->SetMaxLength(8);
        form.Frame->Select_AccountCode2->AssistantCode_EDT->SetMaxLength(2);
        form.Frame->Clear();
        QVERIFY(Same(Last(form), {Text("999"), Text("99"), 99999999, 9999}));
    }

    void checkingActivatesTheLevelsOfTheSetAndTheTotalInAnyCase_data() { AddLevelSets(); }
    void checkingActivatesTheLevelsOfTheSetAndTheTotalInAnyCase()
    {
        QFETCH(int, levels);
        TForm form(TCodeItems::FromBits(static_cast<unsigned>(levels)));
        QVERIFY(Typing::ShowActive(form.Form.get()));
        QCOMPARE(form.Frame->Select_AccountCode1->CodeItem().Bits(), quint8(levels));
        QCOMPARE(form.Frame->Select_AccountCode2->CodeItem().Bits(), quint8(levels));
        QTest::mouseClick(form.Frame->AccCodes_Cap_LBL, Qt::LeftButton);
        for (int level = 0; level < 4; ++level)
            QCOMPARE(Criteria(form).at(level)->Active(), level == 0 || (levels >> level & 1) == 1);
        QVERIFY(form.Frame->Select_AccountCode1->TotalCode_EDT->isEnabled());
        QVERIFY(form.Frame->Select_AccountCode2->TotalCode_EDT->isEnabled());
        QTest::mouseClick(form.Frame->AccCodes_CHK, Qt::LeftButton);
        for (const TTarvaSearch* const criterion : Criteria(form))
            QVERIFY(!criterion->Active());
    }

    void theNotBoxReversesAllFour()
    {
        const TForm form;
        CheckReversal(form.Frame->AccCodes_Reverst_CHK, Criteria(form));
    }

    void theFirstCodesAreTheTextsOfTheBoxes()
    {
        TForm form;
        QVERIFY(form.Start());
        const TSelect_AccountCode& from = *form.Frame->Select_AccountCode1;
        EnterAllLevels(form, from);
        QVERIFY(Same(First(form), {Text("7"), Text("002"), Text("000011"), 42}));
        QVERIFY(Same(Last(form), {Text("999"), Text("999"), 999999, 9999}));
        QCOMPARE(from.TotalCode_EDT->Text(), QStringLiteral("7"));
    }

    void theLastCodesAreTheTextsOfTheBoxes()
    {
        TForm form;
        QVERIFY(form.Start());
        EnterAllLevels(form, *form.Frame->Select_AccountCode2);
        QVERIFY(Same(Last(form), {Text("7"), Text("002"), Text("000011"), Text("0042")}));
        QVERIFY(Same(First(form), {Text("0"), Text("0"), Text("0"), 0}));
    }

    void anEmptiedLastLevelIsOpenAgain_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::addColumn<QVariant>("last");
        QTest::newRow("total") << T << Text("999");
        QTest::newRow("assistant") << A << Text("999");
        QTest::newRow("detail") << D << QVariant(999999);
        QTest::newRow("expense center") << E << QVariant(9999);
    }
    void anEmptiedLastLevelIsOpenAgain()
    {
        QFETCH(TCodeItem, level);
        QFETCH(QVariant, last);
        TForm form;
        QVERIFY(form.Start());
        TSmartEdit_TRV* const box = form.Frame->Select_AccountCode2->BoxOf(level);
        form.Enter(box, QStringLiteral("5"));
        box->setFocus();
        box->selectAll();
        Typing::Press(box, Qt::Key_Delete);
        form.Other->setFocus();
        const int index = static_cast<int>(level);
        QCOMPARE(Last(form).at(index), last);
        QCOMPARE(Last(form).at(index).typeId(), last.typeId());
    }

    void theExpenseCentersBoundsAreReadAsIntegers()
    {
        TForm form;
        QCOMPARE(form.Frame->GetExpenseCenterFromValue(), 0);
        QCOMPARE(form.Frame->GetExpenseCenterToValue(), 10000);
        QVERIFY(form.Start());
        QCOMPARE(form.Frame->GetExpenseCenterFromValue(), 0);
        QCOMPARE(form.Frame->GetExpenseCenterToValue(), 9999);
        form.Enter(form.Frame->Select_AccountCode1->ExpenseCenterCode_EDT, QStringLiteral("42"));
        form.Enter(form.Frame->Select_AccountCode2->ExpenseCenterCode_EDT, QStringLiteral("43"));
        QCOMPARE(form.Frame->GetExpenseCenterFromValue(), 42);
        QCOMPARE(form.Frame->GetExpenseCenterToValue(), 43);
        form.Frame->AccCodes_CHK->SetChecked(false);
        QCOMPARE(form.Frame->GetExpenseCenterFromValue(), 0);
        QCOMPARE(form.Frame->GetExpenseCenterToValue(), 10000);
    }

    void pickingFillsTheBoundsOfItsSide()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Host.Pickers.PickedAccount = {7, 2, 11};
        form.Host.Pickers.Picked = 42;
        const auto pick = [](TSmartEdit_TRV* box) {
            box->setFocus();
            Typing::Type(box, QStringLiteral("+"));
        };
        pick(form.Frame->Select_AccountCode1->TotalCode_EDT);
        QVERIFY(Same(First(form), {Text("007"), Text("002"), Text("000011"), 0}));
        pick(form.Frame->Select_AccountCode1->ExpenseCenterCode_EDT);
        QCOMPARE(First(form).at(3), QVariant(42));
        QVERIFY(Same(Last(form), {Text("999"), Text("999"), 999999, 9999}));
        pick(form.Frame->Select_AccountCode2->TotalCode_EDT);
        pick(form.Frame->Select_AccountCode2->ExpenseCenterCode_EDT);
        QVERIFY(Same(Last(form), {Text("007"), Text("002"), Text("000011"), Text("0042")}));
    }

    void clearEmptiesBothCodesAndOpensTheBounds()
    {
        TForm form;
        QVERIFY(form.Start());
        for (const TSelect_AccountCode* const selector :
             {form.Frame->Select_AccountCode1, form.Frame->Select_AccountCode2}) {
            form.Enter(selector->TotalCode_EDT, QStringLiteral("7"));
            form.Enter(selector->ExpenseCenterCode_EDT, QStringLiteral("42"));
        }
        form.Frame->Clear();
        QVERIFY(form.Frame->Select_AccountCode1->IsEmpty());
        QVERIFY(form.Frame->Select_AccountCode2->IsEmpty());
        QVERIFY(Same(First(form), {Text("0"), Text("0"), Text("0"), 0}));
        QVERIFY(Same(Last(form), {Text("999"), Text("999"), 999999, 9999}));
        QVERIFY(form.Frame->AccCodes_CHK->Checked());
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("MsgCodeNotAvailable")), 0);
    }

    void aTotalIsNeitherPaddedNorNamed()
    {
        TForm form;
        QVERIFY(form.Start());
        for (const TSelect_AccountCode* const selector :
             {form.Frame->Select_AccountCode1, form.Frame->Select_AccountCode2}) {
            form.Enter(selector->TotalCode_EDT, QStringLiteral("7"));
            QCOMPARE(selector->TotalCode_EDT->Text(), QStringLiteral("7"));
            QCOMPARE(selector->Name_LBL->Caption(), QString());
        }
        QVERIFY(form.Host.Log.Lines().isEmpty());
    }
};

QTEST_MAIN(RangeAccCodesSearchTest)
#include "RangeAccCodesSearchTest.moc"
