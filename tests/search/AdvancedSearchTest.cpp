#include "ADVSearch_UNT.h"
#include "FilterForm.h"
#include "SmartButton_TRV.h"

class AdvancedSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned();
    void theControlsStandFromRightToLeft();
    void theKeysTickTheBoxAndLeaveItTicked();
    void theButtonTicksTheBox();
    void theUserTogglesTheBoxItself();
    void theMnemonicTogglesTheBox();
    void theOwnersHandlerIsKeptAndNeverCalled();
    void theClickOfTheBoxIsTheOwners();
};

void AdvancedSearchTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TADVSearch_Fram frame;
    QCOMPARE(frame.size(), QSize(220, 46));
    QCOMPARE(frame.ADVsearch_LBL->Caption(), QStringLiteral("ج&ستجوی پیشرفته "));
    QCOMPARE(frame.ADVSearch_CHK->text(), QStringLiteral("&س"));
    QVERIFY(!frame.ADVSearch_CHK->Checked());
    const TSmartButton_TRV& button = *frame.ADVSearch_BTN;
    QCOMPARE(button.text(), QStringLiteral(" Ctrl+F10"));
    QCOMPARE(button.ShortCut(), 16505);
    QCOMPARE(button.ButtonKind(), TSmartButton_TRV::bkStandard);
    QCOMPARE(button.ButtonType(), TSmartButton_TRV::btNone);
    QVERIFY(button.AutoWidth());
    QVERIFY(button.Down());
    QCOMPARE(button.Margin(), 5);
    QVERIFY(!button.icon().isNull());
}

void AdvancedSearchTest::theControlsStandFromRightToLeft()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    const QList<QWidget*> order{form.Frame->ADVsearch_LBL, form.Frame->ADVSearch_CHK,
                                form.Frame->ADVSearch_BTN};
    for (qsizetype index = 1; index < order.size(); ++index)
        QVERIFY(order[index]->geometry().right() < order[index - 1]->geometry().left());
    for (const QWidget* control : order)
        QVERIFY(form.Frame->rect().contains(control->geometry()));
}

void AdvancedSearchTest::theKeysTickTheBoxAndLeaveItTicked()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    form.Other->setFocus();
    Typing::Press(form.Other, Qt::Key_F10, Qt::ControlModifier);
    QVERIFY(form.Frame->ADVSearch_CHK->Checked());
    Typing::Press(form.Other, Qt::Key_F10, Qt::ControlModifier);
    QVERIFY(form.Frame->ADVSearch_CHK->Checked());
}

void AdvancedSearchTest::theButtonTicksTheBox()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVSearch_BTN);
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVSearch_BTN);
    QVERIFY(form.Frame->ADVSearch_CHK->Checked());
}

void AdvancedSearchTest::theUserTogglesTheBoxItself()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVSearch_CHK);
    QVERIFY(form.Frame->ADVSearch_CHK->Checked());
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVsearch_LBL);
    QVERIFY(!form.Frame->ADVSearch_CHK->Checked());
}

void AdvancedSearchTest::theMnemonicTogglesTheBox()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    QTest::sendKeyEvent(QTest::Click, form.Other, static_cast<Qt::Key>(0x0633), QStringLiteral("س"),
                        Qt::AltModifier);
    QVERIFY(form.Frame->ADVSearch_CHK->Checked());
}

void AdvancedSearchTest::theOwnersHandlerIsKeptAndNeverCalled()
{
    const TFilterForm<TADVSearch_Fram> form;
    int called = 0;
    form.Frame->SetBTN_Click([&](QObject*) { ++called; });
    QVERIFY(form.Show());
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVSearch_BTN);
    QCOMPARE(called, 0);
    QVERIFY(form.Frame->BTN_Click());
    form.Frame->BTN_Click()(form.Frame);
    QCOMPARE(called, 1);
}

void AdvancedSearchTest::theClickOfTheBoxIsTheOwners()
{
    const TFilterForm<TADVSearch_Fram> form;
    QVERIFY(form.Show());
    QList<bool> states;
    form.Frame->ADVSearch_CHK->OnClick = [&](QObject*) { states << form.Frame->ADVSearch_CHK->Checked(); };
    Typing::Press(form.Other, Qt::Key_F10, Qt::ControlModifier);
    Typing::Press(form.Other, Qt::Key_F10, Qt::ControlModifier);
    TFilterForm<TADVSearch_Fram>::Click(form.Frame->ADVSearch_CHK);
    QCOMPARE(states, (QList<bool>{true, false}));
}

QTEST_MAIN(AdvancedSearchTest)
#include "AdvancedSearchTest.moc"
