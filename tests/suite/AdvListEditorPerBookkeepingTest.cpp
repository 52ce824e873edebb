#include "TokenForm.h"

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

QTEST_MAIN(AdvListEditorPerBookkeepingTest)
#include "AdvListEditorPerBookkeepingTest.moc"
