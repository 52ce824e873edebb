#include "AccountForm.h"
#include "AccountingCodes_Search_UNT.h"
#include "TestCase.h"

namespace {

using TForm = TAccountForm<TAccountingCodes_Search_Frame>;
constexpr TCodeItem T = TCodeItem::ctTotal;
constexpr TCodeItem E = TCodeItem::ctExpenseCenter;

QList<TTarvaSearch*> Criteria(const TForm& form)
{
    return {form.Frame->TarvaSearch_Total, form.Frame->TarvaSearch_Assisstant, form.Frame->TarvaSearch_Detail,
            form.Frame->TarvaSearch_ExpenseCenter};
}

/// Which of the four are switched on, as bits.
int ActiveOnes(const TForm& form)
{
    int bits = 0;
    const QList<TTarvaSearch*> criteria = Criteria(form);
    for (int level = 0; level < criteria.size(); ++level)
        bits |= criteria.at(level)->Active() ? 1 << level : 0;
    return bits;
}

QVariantList Values(const TForm& form)
{
    QVariantList values;
    for (const TTarvaSearch* const criterion : Criteria(form))
        values.append(criterion->Value1());
    return values;
}

} // namespace

class AccountingCodesSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCriteriaAreAsTheOwnersKnowThem()
    {
        const TForm form;
        CheckAccountCriteria(Criteria(form), TSearchType::stGeneral,
                             {"TarvaSearch_Total", "TarvaSearch_Assisstant", "TarvaSearch_Detail",
                              "TarvaSearch_ExpenseCenter"},
                             {"kol", "Moin", "Tafsili", "Tafsili2"});
    }

    void theCaptionsAreAsWritten()
    {
        const TForm form;
        QCOMPARE(form.Frame->AccCodes_CHK->text(), QStringLiteral("&ح"));
        QCOMPARE(form.Frame->AccCodes_Cap_LBL->Caption(), QStringLiteral("کد &حساب :"));
        QCOMPARE(form.Frame->AccCodes_Reverst_LBL->Caption(), QStringLiteral("در جستجو نباشد"));
    }

    void initLeavesEverythingOff()
    {
        TForm form({T, E});
        QVERIFY(form.Start());
        form.Frame->init();
        QVERIFY(!form.Frame->GetActive());
        QCOMPARE(ActiveOnes(form), 0);
        QVERIFY(!form.Frame->Select_AccountCode1->TotalCode_EDT->isEnabled());
        QVERIFY(!form.Frame->Select_AccountCode1->Select_BTN->isEnabled());
        QVERIFY(!form.Frame->AccCodes_Reverst_CHK->isEnabled());
        QVERIFY(!form.Frame->AccCodes_Reverst_LBL->isEnabled());
        QVERIFY(form.Frame->AccCodes_Reverst_CHK->isVisible());
        QVERIFY(!form.Frame->Select_AccountCode1->DetailCode_EDT->isVisible());
        QCOMPARE(form.Frame->CodeItems(), (TCodeItems{T, E}));
        QCOMPARE(form.Frame->Select_AccountCode1->CodeItem(), (TCodeItems{T, E}));
    }

    void checkingActivatesTheLevelsOfTheSetAndTheTotalInAnyCase_data() { AddLevelSets(); }
    void checkingActivatesTheLevelsOfTheSetAndTheTotalInAnyCase()
    {
        QFETCH(int, levels);
        TForm form(TCodeItems::FromBits(static_cast<unsigned>(levels)));
        QVERIFY(Typing::ShowActive(form.Form.get()));
        QTest::mouseClick(form.Frame->AccCodes_CHK, Qt::LeftButton);
        QVERIFY(form.Frame->GetActive());
        QCOMPARE(ActiveOnes(form), levels | 1);
        QVERIFY(form.Frame->Select_AccountCode1->TotalCode_EDT->isEnabled());
        QVERIFY(form.Frame->AccCodes_Reverst_CHK->isEnabled());
        QTest::mouseClick(form.Frame->AccCodes_CHK, Qt::LeftButton);
        QCOMPARE(ActiveOnes(form), 0);
        QVERIFY(!form.Frame->Select_AccountCode1->TotalCode_EDT->isEnabled());
    }

    void theLabelsToggleTheirBoxes()
    {
        TForm form;
        QVERIFY(Typing::ShowActive(form.Form.get()));
        QTest::mouseClick(form.Frame->AccCodes_Cap_LBL, Qt::LeftButton);
        QVERIFY(form.Frame->GetActive());
        QCOMPARE(ActiveOnes(form), 15);
        QTest::mouseClick(form.Frame->AccCodes_Reverst_LBL, Qt::LeftButton);
        QVERIFY(form.Frame->AccCodes_Reverst_CHK->Checked());
        for (const TTarvaSearch* const criterion : Criteria(form))
            QVERIFY(criterion->Reverst());
        QTest::mouseClick(form.Frame->AccCodes_Reverst_CHK, Qt::LeftButton);
        for (const TTarvaSearch* const criterion : Criteria(form))
            QVERIFY(!criterion->Reverst());
        QTest::sendKeyEvent(QTest::Click, form.Other, static_cast<Qt::Key>(u'ح'), QStringLiteral("ح"),
                            Qt::AltModifier);
        QVERIFY(!form.Frame->GetActive());
    }

    void setActiveFollowsTheCheckBox()
    {
        const TForm form;
        form.Frame->SetActive(true);
        QVERIFY(form.Frame->AccCodes_CHK->Checked());
        QCOMPARE(ActiveOnes(form), 15);
    }

    void aTotalIsNeitherPaddedNorNamed()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Enter(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("7"));
        QCOMPARE(form.Frame->Select_AccountCode1->TotalCode_EDT->Text(), QStringLiteral("7"));
        QCOMPARE(form.Frame->Select_AccountCode1->Name_LBL->Caption(), QString());
        QCOMPARE(form.Frame->TarvaSearch_Total->Value1(), QVariant(7));
        QVERIFY(form.Host.Log.Lines().isEmpty());
    }

    void aTotalClearsNothingBelow()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Enter(form.Frame->Select_AccountCode1->AssistantCode_EDT, QStringLiteral("2"));
        form.Enter(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("7"));
        QCOMPARE(form.Frame->Select_AccountCode1->GetAssistantCode(), 2);
    }

    void anEmptyTotalShowsItsNameAgain()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Enter(form.Frame->Select_AccountCode1->TotalCode_EDT, QString());
        QCOMPARE(form.Frame->Select_AccountCode1->TotalCode_EDT->Text(), QStringLiteral("کل"));
        QCOMPARE(form.Frame->TarvaSearch_Total->Value1(), QVariant(0));
    }

    void theOtherLevelsArePaddedNamedAndCopied()
    {
        TForm form;
        QVERIFY(form.Start());
        const TSelect_AccountCode& selector = *form.Frame->Select_AccountCode1;
        form.Enter(selector.AssistantCode_EDT, QStringLiteral("2"));
        form.Enter(selector.DetailCode_EDT, QStringLiteral("11"));
        form.Enter(selector.ExpenseCenterCode_EDT, QStringLiteral("42"));
        QCOMPARE(selector.AssistantCode_EDT->Text(), QStringLiteral("002"));
        QCOMPARE(selector.DetailCode_EDT->Text(), QStringLiteral("000011"));
        QCOMPARE(selector.ExpenseCenterCode_EDT->Text(), QStringLiteral("0042"));
        QCOMPARE(Values(form), (QVariantList{QVariant(), 2, 11, 42}));
        QVERIFY(selector.Name_LBL->Caption().contains(QStringLiteral("[کارگاه]")));
        form.Enter(selector.DetailCode_EDT, QStringLiteral("0"));
        QCOMPARE(form.Frame->TarvaSearch_Detail->Value1(), QVariant(0));
    }

    void valuesAreReadAsLongIntegers()
    {
        TForm form;
        QVERIFY(form.Start());
        QCOMPARE(form.Frame->GetSearchTotalValue(), QVariant(qint64{0}));
        form.Enter(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("7"));
        QCOMPARE(form.Frame->GetSearchTotalValue().toLongLong(), 7);
        const TAccountingCodes_Search_Frame& frame = *form.Frame;
        for (const QVariant& value : {frame.GetSearchTotalValue(), frame.GetSearchAssistantValue(),
                                      frame.GetSearchDetailValue(), frame.GetSearchExpenseCenterValue()})
            QCOMPARE(value.typeId(), static_cast<int>(QMetaType::LongLong));
    }

    void valuesAreWrittenAsIntegers()
    {
        TForm form;
        QVERIFY(form.Start());
        const auto areIntegers = [&form] {
            const QVariantList values = Values(form);
            return std::all_of(values.begin(), values.end(),
                               [](const QVariant& value) { return value.typeId() == QMetaType::Int; });
        };
        form.Frame->SetSearchTotalValue(7);
        form.Frame->SetSearchAssistantValue(2);
        form.Frame->SetSearchDetailValue(11);
        form.Frame->SetSearchExpenseCenterValue(QVariant());
        QCOMPARE(Values(form), (QVariantList{7, 2, 11, 0}));
        QVERIFY(areIntegers());
        form.Host.Pickers.PickedAccount = {7, 2, 12};
        form.Frame->Select_AccountCode1->TotalCode_EDT->setFocus();
        Typing::Type(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("+"));
        QCOMPARE(Values(form).mid(0, 3), (QVariantList{7, 2, 12}));
        QVERIFY(areIntegers());
    }

    void theOwnersValuesRunTheExits()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Frame->SetSearchTotalValue(7);
        form.Frame->SetSearchAssistantValue(QStringLiteral("2"));
        form.Frame->SetSearchDetailValue(11);
        form.Frame->SetSearchExpenseCenterValue(1234);
        QTest::qWait(20);
        const TSelect_AccountCode& selector = *form.Frame->Select_AccountCode1;
        QCOMPARE(selector.TotalCode_EDT->Text(), QStringLiteral("7"));
        QCOMPARE(selector.TotalCode_EDT->font().pointSize(), 11);
        QCOMPARE(selector.AssistantCode_EDT->Text(), QStringLiteral("002"));
        QCOMPARE(selector.DetailCode_EDT->Text(), QStringLiteral("000011"));
        QCOMPARE(selector.ExpenseCenterCode_EDT->Text(), QStringLiteral("1234"));
        QCOMPARE(form.Frame->GetSearchTotalValue().toInt(), 7);
        QCOMPARE(form.Frame->GetSearchAssistantValue().toInt(), 2);
        QCOMPARE(form.Frame->GetSearchDetailValue().toInt(), 11);
        QCOMPARE(form.Frame->GetSearchExpenseCenterValue().toInt(), 1234);
        QVERIFY(form.Other->hasFocus());
        form.Frame->SetSearchDetailValue(100000.0);
        QCOMPARE(selector.DetailCode_EDT->Text(), QStringLiteral("100000"));
        QCOMPARE(form.Frame->GetSearchDetailValue().toInt(), 100000);
        form.Frame->SetSearchDetailValue(QVariant());
        QCOMPARE(form.Frame->GetSearchDetailValue().toInt(), 0);
        QCOMPARE(selector.DetailCode_EDT->Text(), QStringLiteral("تفصيلي"));
    }

    void pickingAnAccountFillsThreeCriteria()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Host.Pickers.PickedAccount = {7, 2, 11};
        form.Frame->Select_AccountCode1->TotalCode_EDT->setFocus();
        Typing::Type(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("+"));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Select_AccountCodes")), 1);
        QCOMPARE(Values(form).mid(0, 3), (QVariantList{7, 2, 11}));
        QVERIFY(!Values(form).at(3).isValid());
    }

    void pickingAnExpenseCenterFillsItsCriterion()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Host.Pickers.Picked = 42;
        form.Frame->Select_AccountCode1->ExpenseCenterCode_EDT->setFocus();
        QTest::mouseClick(form.Frame->Select_AccountCode1->Select_BTN, Qt::LeftButton, {},
                          QPoint(form.Frame->Select_AccountCode1->Select_BTN->width() - 5, 14));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Select_Entity")), 1);
        QCOMPARE(form.Frame->GetSearchExpenseCenterValue().toInt(), 42);
    }

    void aKeyThatIsNoCodeIsRefused()
    {
        TForm form;
        QVERIFY(form.Start());
        form.Frame->Select_AccountCode1->TotalCode_EDT->setFocus();
        Typing::Type(form.Frame->Select_AccountCode1->TotalCode_EDT, QStringLiteral("-x.7"));
        QCOMPARE(form.Frame->Select_AccountCode1->TotalCode_EDT->Text(), QStringLiteral("7"));
    }
};

QTEST_MAIN(AccountingCodesSearchTest)
#include "AccountingCodesSearchTest.moc"
