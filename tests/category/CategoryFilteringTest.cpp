#include "Category_SearchWithManager_UNT.h"
#include "CategoryForm.h"
#include "SmartButton_TRV.h"
#include "TestCase.h"
#include "ToolkitLeaks.h"

#include <QCursor>
#include <QtTest>

using namespace CategoryTexts;

/// The filter frame as the user works with it, by mouse and keyboard.
class CategoryFilteringTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aClickInTheMenuPublishesBetweenCommas();
    void aCaptionThatStandsAlreadyPublishesNothing();
    void theButtonOpensTheMenuAtThePointer();
    void aClickInTheEditorOpensTheMenuAtThePointer();
    void plusOpensTheMenuAndTypesNothing();
    void plusOfTheKeypadClearsTheTypedText();
    void comingInPutsTheCaretBehindTheBubbles();
    void enterGoesDownToAShownNameOfTheMenu();
    void enterWithoutBubblesPublishesTheEmptyText();
    void enterPublishesThePathThatStands();
    void backspaceOverTheOnlyBubbleKeepsTheMenu();
    void backspaceOverTheLastBubbleOffersItsChildren();
    void deleteCutsThePathBackAndPublishesTwice();
    void backspaceWithoutBubblesOffersTheTopLevel();
    void backspaceInTheTypedTextPublishesThePath();
    void aNameCompletedAtTheEndPublishesTheBareValue();
    void aMenuWithoutEntriesDoesNotOpen();
    void theRightButtonOpensTheMenuToo();
    void aCircleInTheTreeLeavesAFrameThatWorks();
    void eachKeySettlesTheTypedText();

private:
    using TForm = TCategoryForm<TCategorysearchframe>;

    void Prepare() override
    {
        form_ = std::make_unique<TForm>();
        form_->Host.Settings.User.Code = 9;
        form_->Frame->open(1);
        QVERIFY(form_->Start());
        Criterion().SetActive(false);
        values_.clear();
        connect(&Criterion(), &TTarvaSearch::changed, this,
                [this] { values_.append(Criterion().Value1().toString()); });
    }
    void Finish() override { form_.reset(); }
    TTarvaSearch& Criterion() { return *form_->Frame->TarvaSearch1; }
    void ShowPath(int code)
    {
        form_->Frame->create_bubble(code, 1);
        form_->Editor().CorrectEditPos();
        form_->Forget();
    }
    QStringList Sent() const { return form_->Tables.Statements; }

    std::unique_ptr<TForm> form_;
    QStringList values_; ///< of the criterion, one after the other
};

void CategoryFilteringTest::aClickInTheMenuPublishesBetweenCommas()
{
    QVERIFY(form_->Choose(QStringLiteral("کالا")));
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral(",1,")));
    QVERIFY(Criterion().Active());
    QVERIFY(form_->Choose(QStringLiteral("رنگ")));
    QCOMPARE(values_, QStringList({",1,", ",3,"}));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "رنگ|3|1"}));
}

void CategoryFilteringTest::aCaptionThatStandsAlreadyPublishesNothing()
{
    ShowPath(2);
    form_->Frame->Runfirst();
    form_->Forget();
    QVERIFY(form_->Choose(QStringLiteral("کالا")));
    QCOMPARE(values_, QStringList());
    QVERIFY(!Criterion().Active());
    QCOMPARE(Sent(), QStringList());
}

void CategoryFilteringTest::theButtonOpensTheMenuAtThePointer()
{
    QCursor::setPos(form_->Form->mapToGlobal(QPoint(300, 70)));
    const QPoint pointer = QCursor::pos();
    QTest::mouseClick(form_->Frame->select_BTN, Qt::LeftButton);
    QVERIFY(form_->Menu().isVisible());
    QCOMPARE(form_->Menu().y(), pointer.y());
    QVERIFY(qAbs(form_->Menu().geometry().center().x() - pointer.x()) <= 1);
    QCOMPARE(Sent(), QStringList());
    TForm::Press(Qt::Key_Escape);
}

void CategoryFilteringTest::aClickInTheEditorOpensTheMenuAtThePointer()
{
    QCursor::setPos(form_->Editor().mapToGlobal(QPoint(40, 12)));
    const QPoint pointer = QCursor::pos();
    QTest::mouseClick(&form_->Editor(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 12));
    QVERIFY(form_->Menu().isVisible());
    QCOMPARE(form_->Menu().y(), pointer.y());
    TForm::Press(Qt::Key_Escape);
}

void CategoryFilteringTest::plusOpensTheMenuAndTypesNothing()
{
    TForm::Type(QStringLiteral("چ"));
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Plus, QStringLiteral("+"),
                        Qt::ShiftModifier);
    QVERIFY(form_->Menu().isVisible());
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("چ"));
    TForm::Press(Qt::Key_Escape);
}

void CategoryFilteringTest::plusOfTheKeypadClearsTheTypedText()
{
    TForm::Type(QStringLiteral("چک"));
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Plus, QStringLiteral("+"),
                        Qt::KeypadModifier);
    QCOMPARE(form_->Editor().EditText(), QString());
    // It is a "+" too.
    QVERIFY(form_->Menu().isVisible());
    TForm::Press(Qt::Key_Escape);
}

void CategoryFilteringTest::comingInPutsTheCaretBehindTheBubbles()
{
    ShowPath(7);
    TForm::Press(Qt::Key_Right);
    TForm::Press(Qt::Key_Right);
    form_->After->setFocus();
    QCOMPARE(form_->Editor().Color(), 0xFFFFFFU);
    form_->Editor().setFocus();
    QCOMPARE(form_->Editor().Color(), 65535U);
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1"}));
}

void CategoryFilteringTest::enterGoesDownToAShownNameOfTheMenu()
{
    form_->Editor().Values().AddPair(QStringLiteral("کالا"), QString(), 0);
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(),
             QStringList(CategoryTexts::Named("'کالا'")) + Path({1}) + Menu(1, "(2,3)") + Menu(1, "(2,3)"));
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral(",1,")));
    QVERIFY(Criterion().Active());
}

void CategoryFilteringTest::enterWithoutBubblesPublishesTheEmptyText()
{
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(Criterion().Active());
}

void CategoryFilteringTest::enterPublishesThePathThatStands()
{
    ShowPath(7);
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral(",7,")));
    QVERIFY(Criterion().Active());
    // A name that is not in the menu, and has no id.
    form_->Editor().Values().AddPair(QStringLiteral("رنگ"), QString(), 1);
    TForm::Press(Qt::Key_Return);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral(",,")));
}

void CategoryFilteringTest::backspaceOverTheOnlyBubbleKeepsTheMenu()
{
    ShowPath(1);
    Criterion().SetValue1(QStringLiteral(",1,"));
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"ابزار|2|1", "رنگ|3|1"}));
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(Criterion().Active());
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
}

void CategoryFilteringTest::backspaceOverTheLastBubbleOffersItsChildren()
{
    ShowPath(7);
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(Sent(), QStringList("select * from category where id = 7") + Menu(7, "(12)"));
    QCOMPARE(form_->Bubbles(), QStringList({"کالا|1|0", "ابزار|2|1"}));
    QCOMPARE(form_->Offered(), QStringList("چکش چوبی|12|7"));
    QCOMPARE(values_, QStringList(",2,"));
    QVERIFY(Criterion().Active());
}

void CategoryFilteringTest::deleteCutsThePathBackAndPublishesTwice()
{
    ShowPath(12);
    for (int step = 0; step < 3; ++step)
        TForm::Press(Qt::Key_Right);
    TForm::Press(Qt::Key_Delete);
    QCOMPARE(Sent(), QStringList("select * from category where id = 2") + Menu(2, "(7,8)"));
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
    // Before the rest is cut off, and after it.
    QCOMPARE(values_, QStringList({",12,", ",1,"}));
}

void CategoryFilteringTest::backspaceWithoutBubblesOffersTheTopLevel()
{
    form_->Frame->createmenuItemByCode(2);
    Criterion().SetValue1(QStringLiteral("2"));
    form_->Forget();
    TForm::Press(Qt::Key_Delete);
    QCOMPARE(Sent(), Menu(0, "(1,4)"));
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(Criterion().Active());
}

void CategoryFilteringTest::backspaceInTheTypedTextPublishesThePath()
{
    ShowPath(7);
    TForm::Type(QStringLiteral("می"));
    QCOMPARE(values_, QStringList());
    TForm::Press(Qt::Key_Backspace);
    QCOMPARE(form_->Bubbles().size(), 3);
    QCOMPARE(values_, QStringList(",7,"));
    QCOMPARE(Sent(), QStringList());
}

void CategoryFilteringTest::aNameCompletedAtTheEndPublishesTheBareValue()
{
    ShowPath(2);
    Criterion().SetValue1(QStringLiteral(",2,"));
    TAdvListEditorPer& editor = form_->Editor();
    QString text = QStringLiteral("چکش");
    editor.Values().AddPair(text, QString(), 2);
    editor.OnValueEditDone(&editor, 2, text);
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(!Criterion().Active());
    editor.Values().Delete(2);
    editor.OnValueEditDone(&editor, 1, text);
    QCOMPARE(Sent(), QStringList(CategoryTexts::Named("'چکش'")) + Path({7, 2, 1}) + Menu(7, "(12)") +
                         Menu(7, "(12)") + Menu(7, "(12)"));
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral("7")));
    QVERIFY(!Criterion().Active());
}

void CategoryFilteringTest::aMenuWithoutEntriesDoesNotOpen()
{
    ShowPath(4);
    TForm::Type(QStringLiteral("+"));
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    const QPoint place(40, 12);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, place, form_->Editor().mapToGlobal(place));
    QApplication::sendEvent(&form_->Editor(), &request);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    TForm::Type(QStringLiteral("م"));
    QCOMPARE(form_->Editor().EditText(), QStringLiteral("م"));
}

void CategoryFilteringTest::theRightButtonOpensTheMenuToo()
{
    const QPoint place(40, 12);
    QCursor::setPos(form_->Editor().mapToGlobal(place));
    QTest::mouseClick(&form_->Editor(), Qt::RightButton, Qt::NoModifier, place);
    QVERIFY(form_->Menu().isVisible());
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, form_->Editor().mapToGlobal(place));
    QApplication::sendEvent(&form_->Editor(), &request);
    QVERIFY(form_->Menu().isVisible());
    Typing::Press(&form_->Menu(), Qt::Key_Down);
    Typing::Press(&form_->Menu(), Qt::Key_Return);
    QCOMPARE(form_->Bubbles(), QStringList("کالا|1|0"));
    QVERIFY(!form_->Menu().isVisible());
}

void CategoryFilteringTest::aCircleInTheTreeLeavesAFrameThatWorks()
{
    ShowPath(4);
    form_->Frame->createmenuItemByCode(2);
    form_->Tables.Execute(QStringLiteral("UPDATE category SET parent_code = 7 WHERE id = 1"));
    {
        const TToolkitLeaks leaks;
        QVERIFY_THROWS_EXCEPTION(EADOError, form_->Choose(QStringLiteral("چکش")));
    }
    QCOMPARE(form_->Bubbles(), QStringList("خدمات|4|0"));
    QCOMPARE(values_, QStringList());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    form_->Tables.Execute(QStringLiteral("UPDATE category SET parent_code = 0 WHERE id = 1"));
    QVERIFY(form_->Choose(QStringLiteral("چکش")));
    QCOMPARE(form_->Bubbles().size(), 3);
    QCOMPARE(values_, QStringList(",7,"));
}

void CategoryFilteringTest::eachKeySettlesTheTypedText()
{
    form_->Editor().SetReadOnly(true);
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_A);
    QVERIFY(!form_->Editor().StateFlag());
    form_->Editor().SetReadOnly(false);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_A);
    QVERIFY(form_->Editor().StateFlag());
}

QTEST_MAIN(CategoryFilteringTest)
#include "CategoryFilteringTest.moc"
