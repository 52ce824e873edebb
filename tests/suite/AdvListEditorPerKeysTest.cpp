#include "TokenForm.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QPushButton>

class AdvListEditorPerKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leftGoesForwardFromRightToLeft();
    void theArrowsAreTheOtherWayRoundFromLeftToRight();
    void theArrowsGoThroughTheTextBeforeTheyLeaveIt();
    void theArrowsLeaveATextOfAnyScript_data();
    void theArrowsLeaveATextOfAnyScript();
    void homeAndEndGoToTheTextsEndsThenToTheRows();
    void controlHomeAndEndGoToTheRowsEndsAtOnce();
    void backspaceAtTheTextsStartRemovesTheBubbleBefore();
    void deleteAtTheTextsEndRemovesTheBubbleBehind();
    void aHeldBackspaceStopsWhereTheTextEnds();
    void shiftAndArrowsSelectAndDeleteRemovesThem();
    void anArrowWithoutShiftLeavesTheSelectionAtItsEnd();
    void controlASelectsItemsAndText();
    void typingOverSelectedBubblesRemovesNone();
    void copiedBubblesAreTheirTextsWithTheSeparator();
    void cutBubblesAreRemovedAsByDelete();
    void typedTextStaysAsItWasTyped();
    void undoIsForTheTypedTextAlone();
    void anInputMethodsTextIsTyped();
    void enterWithATextStaysInTheEditorAndWithoutGoesToTheWindow();
    void tabWithATextIsReleasedInTheEditorBeforeTheFocusGoes();
    void aReadOnlyEditorCanBeWalkedAndCopiedButNotChanged();
    void aDisabledEditorHasNoStateFlag();
    void aSwallowedKeyDoesNothing();
    void keysSentToTheEditorItselfAreTaken();
};

void AdvListEditorPerKeysTest::leftGoesForwardFromRightToLeft()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    QCOMPARE(form.Place(), 3);
    form.Stroke(Qt::Key_Left);
    QCOMPARE(form.Place(), 3);
    form.Strokes(Qt::Key_Right, 2);
    QCOMPARE(form.Place(), 1);
    form.Stroke(Qt::Key_Left);
    QCOMPARE(form.Place(), 2);
    form.Strokes(Qt::Key_Right, 5);
    QCOMPARE(form.Place(), 0);
}

void AdvListEditorPerKeysTest::theArrowsAreTheOtherWayRoundFromLeftToRight()
{
    TTokenForm form;
    form.editor.SetRightToLeft(false);
    QVERIFY(form.Show(QStringLiteral("a b c")));
    form.Strokes(Qt::Key_Left, 2);
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QStringLiteral("b c"));
    form.Stroke(Qt::Key_Right);
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QStringLiteral("c"));
}

void AdvListEditorPerKeysTest::theArrowsGoThroughTheTextBeforeTheyLeaveIt()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شیر"));
    form.Strokes(Qt::Key_Right, 3);
    QCOMPARE(form.Place(), 2);
    form.Stroke(Qt::Key_Right);
    QCOMPARE(form.Place(), 1);
    QCOMPARE(form.editor.EditText(), QStringLiteral("شیر"));
    form.Strokes(Qt::Key_Left, 3);
    QCOMPARE(form.Place(), 1);
    form.Stroke(Qt::Key_Left);
    QCOMPARE(form.Place(), 2);
}

void AdvListEditorPerKeysTest::theArrowsLeaveATextOfAnyScript_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Latin") << QStringLiteral("abc");
    QTest::newRow("digits") << QStringLiteral("۱۲۳/45");
    QTest::newRow("mixed") << QStringLiteral("شیر abc ۱۲ نان");
    QTest::newRow("Latin ends") << QStringLiteral("ab شیر cd");
    QTest::newRow("joiners") << QStringLiteral("می‌خک👨‍👩‍👧لا");
    QTest::newRow("marks") << QStringLiteral("\u202Eabc\u202C\u200F");
    QTest::newRow("blanks") << QStringLiteral("   ");
}

void AdvListEditorPerKeysTest::theArrowsLeaveATextOfAnyScript()
{
    QFETCH(QString, text);
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان"));
    form.editor.SetEditText(text);
    QVERIFY(form.Show());
    const int enough = static_cast<int>(text.size()) + 5;
    form.Strokes(Qt::Key_Right, enough);
    QCOMPARE(form.Place(), 0);
    form.Strokes(Qt::Key_Left, enough);
    QCOMPARE(form.Place(), 2);
    QCOMPARE(form.editor.EditText(), text);
}

void AdvListEditorPerKeysTest::homeAndEndGoToTheTextsEndsThenToTheRows()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شیر"));
    form.Stroke(Qt::Key_Home);
    QCOMPARE(form.Place(), 2);
    form.Stroke(Qt::Key_Home);
    QCOMPARE(form.Place(), 0);
    form.Stroke(Qt::Key_End);
    QCOMPARE(form.Place(), 0);
    form.Stroke(Qt::Key_End);
    QCOMPARE(form.Place(), 2);
}

void AdvListEditorPerKeysTest::controlHomeAndEndGoToTheRowsEndsAtOnce()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شیر"));
    form.Stroke(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(form.Place(), 0);
    form.Stroke(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(form.Place(), 2);
}

void AdvListEditorPerKeysTest::backspaceAtTheTextsStartRemovesTheBubbleBefore()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شی"));
    form.Strokes(Qt::Key_Backspace, 2);
    QCOMPARE(form.editor.EditText(), QString());
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    form.Type(QStringLiteral("ش"));
    form.Stroke(Qt::Key_Home);
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QStringLiteral("آب"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("ش"));
}

void AdvListEditorPerKeysTest::deleteAtTheTextsEndRemovesTheBubbleBehind()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    form.Stroke(Qt::Key_Delete);
    QCOMPARE(form.Row(), QStringLiteral("آب نان نمک"));
    form.Strokes(Qt::Key_Right, 2);
    form.Stroke(Qt::Key_Delete);
    QCOMPARE(form.Row(), QStringLiteral("آب نمک"));
    QCOMPARE(form.Place(), 1);
}

void AdvListEditorPerKeysTest::aHeldBackspaceStopsWhereTheTextEnds()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شی"));
    const auto press = [](bool repeats) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"), repeats);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    press(false);
    for (int repeat = 0; repeat < 5; ++repeat)
        press(true);
    QCOMPARE(form.editor.EditText(), QString());
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    press(false);
    press(true);
    QCOMPARE(form.Row(), QString());
}

void AdvListEditorPerKeysTest::shiftAndArrowsSelectAndDeleteRemovesThem()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک شکر")));
    form.Stroke(Qt::Key_Right);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(form.Selected(), QList<int>({1, 2}));
    form.Stroke(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(form.Selected(), QList<int>({2}));
    form.Stroke(Qt::Key_Home, Qt::ShiftModifier);
    QCOMPARE(form.Selected(), QList<int>({0, 1, 2}));
    form.Stroke(Qt::Key_Delete);
    QCOMPARE(form.Row(), QStringLiteral("شکر"));
    QCOMPARE(form.editor.RemovedItem(), QStringLiteral("آب,1"));
    QCOMPARE(form.editor.RemovedIndex(), 0);
    QCOMPARE(form.editor.SnapshotCount(), 4);
}

void AdvListEditorPerKeysTest::anArrowWithoutShiftLeavesTheSelectionAtItsEnd()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک شکر")));
    form.Stroke(Qt::Key_Right);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    form.Stroke(Qt::Key_Left);
    QCOMPARE(form.Selected(), QList<int>());
    QCOMPARE(form.Place(), 3);
}

void AdvListEditorPerKeysTest::controlASelectsItemsAndText()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("شیر"));
    form.Stroke(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(form.Selected(), QList<int>({0, 1}));
    form.Stroke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("آب;نان;شیر"));
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QString());
    QCOMPARE(form.editor.EditText(), QString());
}

void AdvListEditorPerKeysTest::typingOverSelectedBubblesRemovesNone()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Stroke(Qt::Key_A, Qt::ControlModifier);
    form.Type(QStringLiteral("ش"));
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("ش"));
    QCOMPARE(form.Selected(), QList<int>());
}

void AdvListEditorPerKeysTest::copiedBubblesAreTheirTextsWithTheSeparator()
{
    TTokenForm form;
    form.editor.SetSeparator(u'|');
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    form.Stroke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("نان|نمک"));
    QCOMPARE(form.Row(), QStringLiteral("آب نان نمک"));
}

void AdvListEditorPerKeysTest::cutBubblesAreRemovedAsByDelete()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    QStringList told;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        told << QStringLiteral("%1 %2 %3").arg(key).arg(form.editor.SnapshotCount()).arg(form.Row());
    };
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    told.clear();
    form.Stroke(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("نمک"));
    QCOMPARE(told.value(0), QStringLiteral("46 3 آب نان"));
    QCOMPARE(told.value(1), QStringLiteral("88 3 آب نان"));
}

void AdvListEditorPerKeysTest::typedTextStaysAsItWasTyped()
{
    TTokenForm form;
    QVERIFY(form.Show());
    const QString text = QStringLiteral("  ۱۲٣ كالاي A'%]\u200C،\u200F ");
    form.Type(text);
    form.Stroke(0, Qt::NoModifier, QStringLiteral("😀"));
    QCOMPARE(form.editor.EditText(), text + QStringLiteral("😀"));
}

void AdvListEditorPerKeysTest::undoIsForTheTypedTextAlone()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.Type(QStringLiteral("نمک"));
    form.Stroke(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.editor.EditText(), QString());
    form.Stroke(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    form.Stroke(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(form.editor.EditText(), QStringLiteral("نمک"));
    // What an owner has cleared, such as a name that was not found, can be had back.
    form.editor.clear();
    form.Stroke(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.editor.EditText(), QStringLiteral("نمک"));
    form.Stroke(Qt::Key_Z, Qt::ControlModifier);
    form.Stroke(Qt::Key_Backspace);
    form.Stroke(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.Row(), QStringLiteral("آب"));
    QCOMPARE(form.editor.EditText(), QString());
}

void AdvListEditorPerKeysTest::anInputMethodsTextIsTyped()
{
    TTokenForm form;
    form.editor.Lookup().AddPair(QStringLiteral("شیر"), QStringLiteral("9"));
    QVERIFY(form.Show());
    QString pressed;
    form.editor.OnKeyPress = [&](QObject*, QChar& key) { pressed += key; };
    QInputMethodEvent composing(QStringLiteral("شی"), {});
    QApplication::sendEvent(QApplication::focusWidget(), &composing);
    QCOMPARE(form.editor.EditText(), QString());
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("شیر"));
    QApplication::sendEvent(QApplication::focusWidget(), &committed);
    QCOMPARE(form.editor.EditText(), QStringLiteral("شیر"));
    QCOMPARE(pressed, QStringLiteral("شیر"));
    QInputMethodEvent separator;
    separator.setCommitString(QStringLiteral(";"));
    QApplication::sendEvent(QApplication::focusWidget(), &separator);
    QCOMPARE(form.editor.EditText(), QString());
    QCOMPARE(form.editor.Values().Last().Value, QStringLiteral("9"));
}

void AdvListEditorPerKeysTest::enterWithATextStaysInTheEditorAndWithoutGoesToTheWindow()
{
    TTokenForm form;
    QVERIFY(form.Show());
    QList<int> enters;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Enter)
            enters << static_cast<int>(form.editor.EditText().size());
    };
    const auto press = [](QWidget* receiver) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QApplication::sendEvent(receiver, &event);
        return event.isAccepted();
    };
    QVERIFY(!press(&form.editor));
    form.Type(QStringLiteral("شیر"));
    QVERIFY(press(&form.editor));
    QCOMPARE(form.editor.EditText(), QStringLiteral("شیر"));
    QTest::keyRelease(&form.editor, Qt::Key_Return);
    QCOMPARE(enters, QList<int>({3}));
}

void AdvListEditorPerKeysTest::tabWithATextIsReleasedInTheEditorBeforeTheFocusGoes()
{
    TTokenForm form;
    QVERIFY(form.Show());
    QStringList told;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Tab)
            told << QStringLiteral("up ") + form.editor.EditText();
    };
    form.editor.OnExit = [&](QObject*) { told << QStringLiteral("exit"); };
    form.Type(QStringLiteral("شیر"));
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(form.other.hasFocus());
    QCOMPARE(told, QStringList({QStringLiteral("up شیر"), QStringLiteral("exit")}));
    form.editor.clear();
    form.editor.setFocus();
    told.clear();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(told, QStringList(QStringLiteral("exit")));
}

void AdvListEditorPerKeysTest::aReadOnlyEditorCanBeWalkedAndCopiedButNotChanged()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان"));
    form.editor.SetReadOnly(true);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ش"));
    form.Stroke(Qt::Key_Backspace);
    form.Stroke(Qt::Key_A, Qt::ControlModifier);
    form.Stroke(Qt::Key_X, Qt::ControlModifier);
    form.Stroke(Qt::Key_Delete);
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    QCOMPARE(form.editor.EditText(), QString());
    form.Stroke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("آب;نان"));
    form.editor.Getvalue();
    QVERIFY(!form.editor.StateFlag());
    form.editor.SetReadOnly(false);
    form.editor.Getvalue();
    QVERIFY(form.editor.StateFlag());
}

void AdvListEditorPerKeysTest::aDisabledEditorHasNoStateFlag()
{
    TTokenForm form;
    QVERIFY(form.editor.StateFlag());
    form.editor.setEnabled(false);
    form.editor.Getvalue();
    QVERIFY(!form.editor.StateFlag());
}

void AdvListEditorPerKeysTest::aSwallowedKeyDoesNothing()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.editor.OnKeyPress = [](QObject*, QChar& key) {
        if (key == u'+')
            key = QChar();
    };
    form.editor.OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Back)
            key = 0;
    };
    form.Type(QStringLiteral("ا+ب"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("اب"));
    form.editor.clear();
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
}

void AdvListEditorPerKeysTest::keysSentToTheEditorItselfAreTaken()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان"));
    QTest::keyClick(&form.editor, Qt::Key_Backspace);
    QTest::keyClicks(&form.editor, QStringLiteral("xyz"));
    QCOMPARE(form.Row(), QStringLiteral("آب"));
    QCOMPARE(form.editor.EditText(), QStringLiteral("xyz"));
}

QTEST_MAIN(AdvListEditorPerKeysTest)
#include "AdvListEditorPerKeysTest.moc"
