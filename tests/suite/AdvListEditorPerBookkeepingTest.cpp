#include "TokenForm.h"

#include <QApplication>
#include <QClipboard>

namespace {

/// What an owner reads of the editor in OnKeyUp.
struct TSeen
{
    int Count = -1;
    int Items = -1;
    QString Removed;
    int RemovedIndex = -2;
    int Current = -2;
};

struct TBookkeepingForm : TTokenForm
{
    TSeen seen;

    explicit TBookkeepingForm(const QString& words)
    {
        Fill(words);
        editor.OnKeyUp = [this](QObject*, quint16&, Qt::KeyboardModifiers) {
            seen = {editor.SnapshotCount(), editor.Values().Count(), editor.RemovedItem(),
                    editor.RemovedIndex(), editor.CurrentIndex()};
        };
    }
};

} // namespace

class AdvListEditorPerBookkeepingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backspaceRemovesTheBubbleBeforeTheCaretAndTellsIt();
    void removingTheOnlyBubbleLeavesARemovedButNoCurrentItem();
    void aKeyOnAnEmptyEditorHasNeitherARemovedNorACurrentItem();
    void theLoopOfAPathCutsItBackAtTheRemovedBubble_data();
    void theLoopOfAPathCutsItBackAtTheRemovedBubble();
    void aKeyThatRemovesNothingHasTheItemBeforeTheCaret();
    void theCountIsTakenBeforeTheKeyIsHandled();
    void aHeldKeyTellsTheFirstOfAllBubblesThatItRemoved();
    void overlappingKeysKeepTheirOwnCounts();
    void aKeyPressedElsewhereHasRemovedNothing();
    void shiftAndDeleteIsOneStrokeOfDelete();
    void theLoopOfAPathWorksForTheCloseMarkToo();
    void aCloseMarkLeavesTheCaretWhereItIs();
    void theSelectionTextIsTheValuesBetweenCommas();
    void theKeysOfRecordsAreLeftToTheHost();
    void correctingTheCaretPutsItBehindAllAndKeepsTheText();
    void aCaretBehindAllStaysThereWhenItemsAreAdded();
    void theCaretKeepsItsPlaceAmongItemsThatChange();
};

void AdvListEditorPerBookkeepingTest::backspaceRemovesTheBubbleBeforeTheCaretAndTellsIt()
{
    TBookkeepingForm form(QStringLiteral("کالا خوراکی لبنیات"));
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.seen.Count, 3);
    QCOMPARE(form.seen.Items, 2);
    QCOMPARE(form.seen.Removed, QStringLiteral("لبنیات,3"));
    QCOMPARE(form.seen.RemovedIndex, 2);
    QCOMPARE(form.seen.Current, 1);
}

void AdvListEditorPerBookkeepingTest::removingTheOnlyBubbleLeavesARemovedButNoCurrentItem()
{
    TBookkeepingForm form(QStringLiteral("کالا"));
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.seen.Removed, QStringLiteral("کالا,1"));
    QCOMPARE(form.seen.Current, -1);
}

void AdvListEditorPerBookkeepingTest::aKeyOnAnEmptyEditorHasNeitherARemovedNorACurrentItem()
{
    TBookkeepingForm form({});
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.seen.Count, 0);
    QVERIFY(form.seen.Removed.isEmpty());
    QCOMPARE(form.seen.RemovedIndex, -1);
    QCOMPARE(form.seen.Current, -1);
}

void AdvListEditorPerBookkeepingTest::theLoopOfAPathCutsItBackAtTheRemovedBubble_data()
{
    QTest::addColumn<int>("removed");
    for (int removed = 0; removed < 5; ++removed)
        QTest::addRow("bubble %d of 5", removed) << removed;
}

void AdvListEditorPerBookkeepingTest::theLoopOfAPathCutsItBackAtTheRemovedBubble()
{
    QFETCH(int, removed);
    TBookkeepingForm form(QStringLiteral("a b c d e"));
    QVERIFY(form.Show());
    for (int step = 4; step > removed; --step)
        form.Stroke(Qt::Key_Right);
    int rounds = 0;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key != VirtualKey::Back)
            return;
        while (form.editor.RemovedIndex() >= 0 && form.editor.CurrentIndex() == form.editor.RemovedIndex() &&
               ++rounds < 10) {
            form.editor.Values().Delete(form.editor.RemovedIndex());
            form.editor.CorrectEditPos();
        }
    };
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.Row(), QStringLiteral("a b c d e").left(qMax(0, 2 * removed - 1)));
    QCOMPARE(rounds, 4 - removed);
}

void AdvListEditorPerBookkeepingTest::aKeyThatRemovesNothingHasTheItemBeforeTheCaret()
{
    TBookkeepingForm form(QStringLiteral("a b c"));
    QVERIFY(form.Show());
    form.Type(QStringLiteral("x"));
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.seen.Removed, QString());
    QCOMPARE(form.seen.RemovedIndex, -1);
    QCOMPARE(form.seen.Current, 2);
    form.Strokes(Qt::Key_Right, 2);
    QCOMPARE(form.seen.Current, 0);
    form.Stroke(Qt::Key_Right);
    QCOMPARE(form.seen.Current, 0);
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(form.seen.Items, 3);
    QCOMPARE(form.seen.Removed, QString());
    QCOMPARE(form.seen.Current, 0);
}

void AdvListEditorPerBookkeepingTest::theCountIsTakenBeforeTheKeyIsHandled()
{
    TBookkeepingForm form(QStringLiteral("a b c"));
    QVERIFY(form.Show());
    int atKeyDown = -1;
    form.editor.OnKeyDown = [&](QObject*, quint16&, Qt::KeyboardModifiers) {
        atKeyDown = form.editor.SnapshotCount();
        form.editor.Values().AddPair(QStringLiteral("d"), {});
    };
    form.Stroke(Qt::Key_Backspace);
    QCOMPARE(atKeyDown, 3);
    QCOMPARE(form.seen.Count, 3);
    QCOMPARE(form.seen.Removed, QStringLiteral("d,"));
}

void AdvListEditorPerBookkeepingTest::aHeldKeyTellsTheFirstOfAllBubblesThatItRemoved()
{
    for (const int key : {int{Qt::Key_Backspace}, int{Qt::Key_Delete}}) {
        TBookkeepingForm form(QStringLiteral("a b c d e"));
        QVERIFY(form.Show());
        form.Strokes(Qt::Key_Right, key == Qt::Key_Delete ? 4 : 1);
        for (int press = 0; press < 3; ++press) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, press > 0);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        }
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &release);
        QCOMPARE(form.Row(), QStringLiteral("a e"));
        QCOMPARE(form.seen.Count, 5);
        QCOMPARE(form.seen.Removed, QStringLiteral("b,2"));
        QCOMPARE(form.seen.RemovedIndex, 1);
        QCOMPARE(form.seen.Current, 1);
    }
}

void AdvListEditorPerBookkeepingTest::overlappingKeysKeepTheirOwnCounts()
{
    TBookkeepingForm form(QStringLiteral("a b c"));
    QVERIFY(form.Show());
    QWidget* focus = QApplication::focusWidget();
    QTest::keyPress(focus, Qt::Key_Backspace);
    QTest::keyPress(focus, Qt::Key_X);
    QTest::keyRelease(focus, Qt::Key_Backspace);
    QCOMPARE(form.seen.Count, 3);
    QCOMPARE(form.seen.Items, 2);
    QCOMPARE(form.seen.Removed, QStringLiteral("c,3"));
    QTest::keyRelease(focus, Qt::Key_X);
    QCOMPARE(form.seen.Count, 2);
    QCOMPARE(form.seen.Removed, QString());
}

void AdvListEditorPerBookkeepingTest::aKeyPressedElsewhereHasRemovedNothing()
{
    TBookkeepingForm form(QStringLiteral("a b c"));
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Backspace);
    QTest::keyPress(&form.other, Qt::Key_Delete);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Delete);
    QCOMPARE(form.seen.Count, 2);
    QCOMPARE(form.seen.RemovedIndex, -1);
    QCOMPARE(form.seen.Removed, QString());
}

void AdvListEditorPerBookkeepingTest::shiftAndDeleteIsOneStrokeOfDelete()
{
    TBookkeepingForm form(QStringLiteral("a b c"));
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    int ups = 0;
    const TKeyEvent look = form.editor.OnKeyUp;
    form.editor.OnKeyUp = [&](QObject* sender, quint16& key, Qt::KeyboardModifiers shift) {
        ++ups;
        look(sender, key, shift);
    };
    form.Stroke(Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("c"));
    QCOMPARE(form.Row(), QStringLiteral("a b"));
    QCOMPARE(form.seen.Removed, QStringLiteral("c,3"));
    QCOMPARE(ups, 1);
    form.Stroke(Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(form.Row(), QStringLiteral("a b"));
}

void AdvListEditorPerBookkeepingTest::theLoopOfAPathWorksForTheCloseMarkToo()
{
    TBookkeepingForm form(QStringLiteral("a b c d"));
    QVERIFY(form.Show());
    form.editor.OnKeyUp = [&](QObject*, quint16&, Qt::KeyboardModifiers) {
        while (form.editor.RemovedIndex() >= 0 && form.editor.CurrentIndex() == form.editor.RemovedIndex()) {
            form.editor.Values().Delete(form.editor.RemovedIndex());
            form.editor.CorrectEditPos();
        }
    };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(form.Row(), QStringLiteral("a"));
}

void AdvListEditorPerBookkeepingTest::aCloseMarkLeavesTheCaretWhereItIs()
{
    TBookkeepingForm form(QStringLiteral("a b c d"));
    QVERIFY(form.Show());
    form.Type(QStringLiteral("x"));
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(0));
    QCOMPARE(form.Row(), QStringLiteral("b c d"));
    QCOMPARE(form.Place(), 3);
}

void AdvListEditorPerBookkeepingTest::theSelectionTextIsTheValuesBetweenCommas()
{
    TTokenForm form;
    form.editor.KeyList = QStringLiteral("old");
    form.editor.Update_selectedItems();
    QCOMPARE(form.editor.KeyList, QString());
    form.Fill(QStringLiteral("a b c"));
    form.editor.Values().AddPair(QStringLiteral("d"), {});
    form.editor.Update_selectedItems();
    QCOMPARE(form.editor.KeyList, QStringLiteral(",1,2,3,"));
}

void AdvListEditorPerBookkeepingTest::theKeysOfRecordsAreLeftToTheHost()
{
    TTokenForm form;
    form.Fill(QStringLiteral("a b"));
    form.editor.TableName = QStringLiteral("dbo.kala");
    form.editor.KeyList = QStringLiteral("(10,11)");
    form.editor.Update_selectedItems();
    QCOMPARE(form.editor.KeyList, QStringLiteral("(10,11)"));
}

void AdvListEditorPerBookkeepingTest::correctingTheCaretPutsItBehindAllAndKeepsTheText()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("a b c")));
    form.editor.SetEditText(QStringLiteral("x"));
    form.Stroke(Qt::Key_Home, Qt::ControlModifier);
    form.Stroke(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    form.editor.CorrectEditPos();
    QCOMPARE(form.Place(), 3);
    QCOMPARE(form.Selected(), QList<int>());
    QCOMPARE(form.editor.EditText(), QStringLiteral("x"));
    form.editor.clear();
    QCOMPARE(form.editor.EditText(), QString());
    QCOMPARE(form.Row(), QStringLiteral("a b c"));
}

void AdvListEditorPerBookkeepingTest::aCaretBehindAllStaysThereWhenItemsAreAdded()
{
    TTokenForm form;
    QVERIFY(form.Show());
    form.editor.Values().AddPair(QStringLiteral("a"), {});
    form.editor.Values().AddPair(QStringLiteral("b"), {});
    QCOMPARE(form.Place(), 2);
    form.Stroke(Qt::Key_Right);
    form.editor.Values().AddPair(QStringLiteral("c"), {});
    QCOMPARE(form.Place(), 1);
}

void AdvListEditorPerBookkeepingTest::theCaretKeepsItsPlaceAmongItemsThatChange()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("a b c d")));
    form.Stroke(Qt::Key_Right);
    form.editor.Values().Delete(0);
    QCOMPARE(form.Place(), 2);
    form.editor.Values().Insert(0, {QStringLiteral("e"), {}, -1});
    QCOMPARE(form.Place(), 3);
    form.editor.Values().DeleteRange(1, 4);
    QCOMPARE(form.Row(), QStringLiteral("e"));
    QCOMPARE(form.Place(), 1);
}

QTEST_MAIN(AdvListEditorPerBookkeepingTest)
#include "AdvListEditorPerBookkeepingTest.moc"
