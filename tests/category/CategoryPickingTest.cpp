#include "Category_Search_UNT.h"
#include "CategoryForm.h"
#include "SmartButton_TRV.h"
#include "TestCase.h"

#include <QListView>
#include <QtTest>

using namespace CategoryTexts;

/// The frame as the user works with it, by mouse and keyboard.
class CategoryPickingTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorIsYellowWhileItHasTheFocus();
    void theMnemonicOfTheLabelLeadsToTheEditor();
    void eachClickInTheMenuGoesOneLevelDeeper();
    void aCaptionThatStandsAlreadyChangesNothing();
    void aClickInTheEditorOpensTheMenuAtThePlaceInsideTheEditor();
    void plusTypesNothingAndClicksTheButton();
    void aTypedNameIsChosenByEnter();
    void anUnknownNameStaysAsTyped();
    void enterRebuildsThePathFromTheLastBubble();
    void enterWithoutAnythingAsksNothing();
    void aCompletedNameIsChosen();
    void aCompletedNameThatIsGoneLeavesTheMenu();
    void backspaceOverTheOnlyBubbleOffersTheTopLevel();
    void backspaceOverTheLastBubbleOffersItsSiblings();
    void deleteCutsThePathBackAtTheRemovedBubble_data();
    void deleteCutsThePathBackAtTheRemovedBubble();
    void backspaceWithoutBubblesOffersTheTopLevel();
    void backspaceInTheTypedTextLeavesThePath();
    void aRemovedCategoryThatIsGoneOffersTheTopLevel();
    void otherKeysAskNothing();
    void theReleaseOfAKeySettlesTheTypedText();
    void openingPutsTheCaretBehindTheBubbles();

private:
    using TForm = TCategoryForm<TCategory_frame>;

    void Prepare() override
    {
        form_ = std::make_unique<TForm>();
        form_->Frame->open(true);
        QVERIFY(form_->Start());
    }
    void Finish() override { form_.reset(); }
    void ShowPath(int code)
    {
        form_->Frame->create_bubble(code, 1);
        form_->Editor().CorrectEditPos();
        form_->Forget();
    }
    QStringList Sent() const { return form_->Tables.Statements; }

    std::unique_ptr<TForm> form_;
};

void CategoryPickingTest::theEditorIsYellowWhileItHasTheFocus()
{
    QCOMPARE(form_->Editor().Color(), 65535U);
    TForm::Press(Qt::Key_Tab);
    QVERIFY(form_->Frame->Select_btn->hasFocus());
    QCOMPARE(form_->Editor().Color(), 0xFFFFFFU);
    TForm::Press(Qt::Key_Backtab);
    QVERIFY(form_->HasFocus());
    QCOMPARE(form_->Editor().Color(), 65535U);
}

void CategoryPickingTest::theMnemonicOfTheLabelLeadsToTheEditor()
{
    form_->After->setFocus();
    QTest::sendKeyEvent(QTest::Click, form_->After, Qt::Key(u'د'), QStringLiteral("د"), Qt::AltModifier);
    QTRY_VERIFY(form_->HasFocus());
}

void CategoryPickingTest::eachClickInTheMenuGoesOneLevelDeeper()
{
    QVERIFY(form_->Choose(QStringLiteral("کالا")));
    QCOMPARE(Sent(), Path({1}) + Menu(1, "(2,3)") + Menu(1, "(2,3)"));
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
    QCOMPARE(form_->Editor().KeyList, QStringLiteral(",1,"));
    QVERIFY(form_->Choose(QStringLiteral("ابزار")));
    form_->Forget();
    QVERIFY(form_->Choose(QStringLiteral("چکش")));
    QCOMPARE(Sent(), Path({7, 2, 1}) + Menu(7, "(12)") + Menu(7, "(12)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2"}));
    QCOMPARE(form_->Editor().KeyList, QStringLiteral(",1,2,7,"));
    QVERIFY(form_->Choose(QStringLiteral("چکش چوبی")));
    QCOMPARE(form_->Offered(), QStringList());
    QVERIFY(!form_->Choose(QStringLiteral("چکش")));
}

void CategoryPickingTest::aCaptionThatStandsAlreadyChangesNothing()
{
    ShowPath(2);
    form_->Frame->Runfirst();
    form_->Forget();
    QVERIFY(form_->Choose(QStringLiteral("کالا")));
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1"}));
    form_->Frame->POP_click(nullptr);
    form_->Frame->POP_click(form_->After);
    QCOMPARE(Sent(), QStringList());
}

void CategoryPickingTest::aClickInTheEditorOpensTheMenuAtThePlaceInsideTheEditor()
{
    form_->Form->move(400, 300);
    QPoint asked(-1, -1);
    const auto handler = form_->Editor().OnMouseDown;
    form_->Editor().OnMouseDown = [&](QObject* sender, Qt::MouseButton button, Qt::KeyboardModifiers shift,
                                      int x, int y) {
        asked = QPoint(x, y);
        handler(sender, button, shift, x, y);
    };
    QTest::mouseClick(&form_->Editor(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 12));
    QVERIFY(form_->Menu().isVisible());
    QCOMPARE(asked, QPoint(40, 12));
    QVERIFY2(form_->Menu().y() < 40, qPrintable(QString::number(form_->Menu().y())));
    QVERIFY(form_->Menu().x() < form_->Editor().mapToGlobal(QPoint()).x());
    TForm::Press(Qt::Key_Escape);
}

void CategoryPickingTest::plusTypesNothingAndClicksTheButton()
{
    int clicks = 0;
    form_->Frame->Select_btn->OnClick = [&clicks](QObject*) { ++clicks; };
    TForm::Type(QStringLiteral("چ+ک"));
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("چک"));
    QCOMPARE(clicks, 1);
    form_->Frame->Select_btn->OnClick = nullptr;
    TForm::Type(QStringLiteral("+"));
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("چک"));
    QCOMPARE(Sent(), QStringList());
}

void CategoryPickingTest::aTypedNameIsChosenByEnter()
{
    TForm::Type(QStringLiteral("رنگ"));
    QCOMPARE(Sent(), QStringList());
    TForm::Press(Qt::Key_Escape);
    TForm::Press(Qt::Key_Return);
    const QStringList drawn =
        QStringList(CategoryTexts::Named("'رنگ'")) + Path({3, 1}) + Menu(3, "(9)") + Menu(3, "(9)");
    QCOMPARE(Sent(), drawn + drawn);
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "رنگ|3|1"}));
    QCOMPARE(form_->Offered(), QStringList());
    QCOMPARE(form_->Editor().EditText(), QString());
}

void CategoryPickingTest::anUnknownNameStaysAsTyped()
{
    TForm::Type(QStringLiteral("میخ"));
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("میخ"));
    QCOMPARE(form_->Bubbles(), QStringList());
}

void CategoryPickingTest::enterRebuildsThePathFromTheLastBubble()
{
    form_->Editor().Values().AddPair(QStringLiteral("چکش"), QString(), 3);
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(), QStringList(CategoryTexts::Named("'چکش'")) + Path({7, 2, 1}) + Menu(7, "(12)") +
                         Menu(7, "(12)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2"}));
}

void CategoryPickingTest::enterWithoutAnythingAsksNothing()
{
    TForm::Press(Qt::Key_Return);
    TForm::Press(Qt::Key_Enter);
    QCOMPARE(Sent(), QStringList());
}

void CategoryPickingTest::aCompletedNameIsChosen()
{
    TForm::Type(QStringLiteral("چکش چ"));
    QVERIFY(form_->Editor().findChild<QListView*>()->isVisible());
    TForm::Press(Qt::Key_Down);
    TForm::Press(Qt::Key_Return);
    const QStringList drawn = QStringList(CategoryTexts::Named("'چکش چوبی'")) + Path({12, 7, 2, 1}) +
                              Menu(12, "(-1)") + Menu(12, "(-1)");
    // The item that was made, then Enter's own look at the last bubble.
    QCOMPARE(Sent(), drawn + Menu(12, "(-1)") + drawn);
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2", "چکش چوبی|12|7"}));
    QCOMPARE(form_->Editor().EditText(), QString());
}

void CategoryPickingTest::aCompletedNameThatIsGoneLeavesTheMenu()
{
    ShowPath(2);
    form_->Tables.Execute(QStringLiteral("DELETE FROM category WHERE id = 12"));
    TForm::Type(QStringLiteral("چکش چوبی;"));
    QCOMPARE(Sent(), QStringList(CategoryTexts::Named("'چکش چوبی'")));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1", "چکش چوبی||7"}));
    QCOMPARE(form_->Offered(), QStringList({"چکش|7|2", "استاد'کار|8|2"}));
    QCOMPARE(form_->Frame->ChosenCategory(), 0);
}

void CategoryPickingTest::backspaceOverTheOnlyBubbleOffersTheTopLevel()
{
    ShowPath(1);
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(Sent(), QStringList("select * from category where id=1") + Menu(0, "(1,4)"));
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
}

void CategoryPickingTest::backspaceOverTheLastBubbleOffersItsSiblings()
{
    ShowPath(7);
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(Sent(), QStringList("select * from category where id=7") + Menu(2, "(7,8)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1"}));
    QCOMPARE(form_->Offered(), QStringList({"چکش|7|2", "استاد'کار|8|2"}));
}

void CategoryPickingTest::deleteCutsThePathBackAtTheRemovedBubble_data()
{
    QTest::addColumn<int>("stepsBack");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("the first") << 4 << QStringList()
                               << QStringList("select * from category where id=1") + Menu(0, "(1,4)");
    QTest::newRow("the second") << 3 << QStringList("کالا|1|0")
                                << QStringList("select * from category where id=2") + Menu(1, "(2,3)");
    QTest::newRow("the third") << 2 << QStringList({"کالا|1|0", "ابزار|2|1"})
                               << QStringList("select * from category where id=7") + Menu(2, "(7,8)");
    QTest::newRow("the last") << 1 << QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2"})
                              << QStringList("select * from category where id=12") + Menu(7, "(12)");
}

void CategoryPickingTest::deleteCutsThePathBackAtTheRemovedBubble()
{
    QFETCH(int, stepsBack);
    QFETCH(QStringList, left);
    QFETCH(QStringList, sent);
    ShowPath(12);
    for (int step = 0; step < stepsBack; ++step)
        TForm::Press(Qt::Key_Right);
    TForm::Press(Qt::Key_Delete);
    QCOMPARE(Sent(), sent);
    QCOMPARE(form_->Bubbles(), left);
}

void CategoryPickingTest::backspaceWithoutBubblesOffersTheTopLevel()
{
    form_->Frame->createmenuItemByCode(2);
    form_->Forget();
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(Sent(), Menu(0, "(1,4)"));
    form_->Forget();
    TForm::Press(Qt::Key_Delete);
    QCOMPARE(Sent(), Menu(0, "(1,4)"));
}

void CategoryPickingTest::backspaceInTheTypedTextLeavesThePath()
{
    ShowPath(7);
    TForm::Type(QStringLiteral("می"));
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("م"));
    QCOMPARE(form_->Bubbles().size(), 3);
    QCOMPARE(Sent(), QStringList());
}

void CategoryPickingTest::aRemovedCategoryThatIsGoneOffersTheTopLevel()
{
    ShowPath(8);
    form_->Tables.Execute(QStringLiteral("DELETE FROM category WHERE id = 8"));
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(Sent(), QStringList("select * from category where id=8") + Menu(0, "(1,4)"));
}

void CategoryPickingTest::otherKeysAskNothing()
{
    ShowPath(7);
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_F5, Qt::Key_Shift})
        TForm::Press(key);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(form_->Bubbles().size(), 3);
}

void CategoryPickingTest::theReleaseOfAKeySettlesTheTypedText()
{
    form_->Editor().SetReadOnly(true);
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_A);
    QVERIFY(form_->Editor().StateFlag());
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_A);
    QVERIFY(!form_->Editor().StateFlag());
}

void CategoryPickingTest::openingPutsTheCaretBehindTheBubbles()
{
    ShowPath(2);
    TForm::Press(Qt::Key_Home);
    form_->Frame->open(false);
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
}

QTEST_MAIN(CategoryPickingTest)
#include "CategoryPickingTest.moc"
