#include "TokenForm.h"

#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QRandomGenerator>

namespace {

/// A token editor as the simplest model: the items, the caret and the other end of the selection.
struct TModelRow
{
    QStringList Items;
    int Caret = 0;
    int Anchor = 0;

    int Count() const { return static_cast<int>(Items.size()); }
    void Go(int place, bool selecting)
    {
        Caret = qBound(0, place, Count());
        if (!selecting)
            Anchor = Caret;
    }
    void Remove(int first, int last)
    {
        Items.remove(first, last - first);
        Go(first, false);
    }
    void Arrow(bool forward, bool selecting)
    {
        if (Caret != Anchor && !selecting)
            Go(forward ? qMax(Anchor, Caret) : qMin(Anchor, Caret), false);
        else
            Go(Caret + (forward ? 1 : -1), selecting);
    }
    void Erase(bool back)
    {
        if (Caret != Anchor)
            Remove(qMin(Anchor, Caret), qMax(Anchor, Caret));
        else if (back ? Caret > 0 : Caret < Count())
            Remove(back ? Caret - 1 : Caret, back ? Caret : Caret + 1);
    }
    QList<int> Selected() const
    {
        QList<int> selected;
        for (int index = qMin(Anchor, Caret); index < qMax(Anchor, Caret); ++index)
            selected << index;
        return selected;
    }
};

/// An editor whose handler destroys it.
struct TDoomed
{
    QWidget window;
    QPointer<TAdvListEditorPer> editor = new TAdvListEditorPer(&window);

    TDoomed()
    {
        editor->setGeometry(0, 0, 400, 28);
        for (const char* name : {"آب", "نان", "نمک"})
            editor->Values().AddPair(QString::fromUtf8(name), {});
        editor->Lookup().AddPair(QStringLiteral("شیر"), {});
        editor->SetFreeItems(true);
        editor->CorrectEditPos();
        window.resize(400, 60);
        editor->setFocus();
    }
    bool Show()
    {
        window.show();
        return ActiveWindow::Activate(&window) && QTest::qWaitFor([this] { return editor->hasFocus(); });
    }
    std::function<void()> End()
    {
        return [this] { delete editor.data(); };
    }
};

} // namespace

class AdvListEditorPerHostileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fiveThousandKeysKeepTheModelsRow();
    void aMegabyteOfTextIsPastedUpToTheLimit();
    void aMegabyteOfNamesIsPastedUpToTheLimit();
    void tenThousandItemsAreWalkedAndRemoved();
    void namesOfAnyScriptAndSignAreKept();
    void itemsRemovedInsideEveryHandler();
    void keyHandlersMayDestroyTheEditor();
    void theEditDoneHandlerMayDestroyTheEditor_data();
    void theEditDoneHandlerMayDestroyTheEditor();
    void mouseHandlersMayDestroyTheEditor();
    void lookupChangedWhileItIsOffered();
    void aHandlerMayReplaceItself();
};

void AdvListEditorPerHostileTest::fiveThousandKeysKeepTheModelsRow()
{
    TTokenForm form;
    QVERIFY(form.Show());
    TModelRow model;
    QRandomGenerator random(4711);
    for (int step = 0; step < 5000; ++step) {
        const bool selecting = random.bounded(3) == 0;
        const Qt::KeyboardModifiers shift = selecting ? Qt::ShiftModifier : Qt::NoModifier;
        switch (random.bounded(9)) {
        case 0:
        case 1: {
            const QString name = QString::number(step);
            form.editor.Values().Insert(model.Caret, {name, name, -1});
            model.Items.insert(model.Caret, name);
            form.editor.CorrectEditPos();
            model.Go(model.Count(), false);
            break;
        }
        case 2:
        case 3:
            form.Stroke(Qt::Key_Left, shift);
            model.Arrow(true, selecting);
            break;
        case 4:
        case 5:
            form.Stroke(Qt::Key_Right, shift);
            model.Arrow(false, selecting);
            break;
        case 6:
            form.Stroke(Qt::Key_Home, shift);
            model.Go(0, selecting);
            break;
        case 7:
            form.Stroke(Qt::Key_Backspace);
            model.Erase(true);
            break;
        default:
            form.Stroke(Qt::Key_Delete);
            model.Erase(false);
            break;
        }
        QCOMPARE(form.Row(), model.Items.join(u' '));
        QCOMPARE(form.Selected(), model.Selected());
        QCOMPARE(form.Place(), model.Caret);
        QCOMPARE(form.editor.CurrentIndex() < 0, model.Items.isEmpty());
    }
}

void AdvListEditorPerHostileTest::aMegabyteOfTextIsPastedUpToTheLimit()
{
    TTokenForm form;
    QVERIFY(form.Show());
    QApplication::clipboard()->setText(QStringLiteral("نوشته ").repeated(170000));
    form.Stroke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.editor.EditText().size(), form.editor.MaxLength());
    QVERIFY(form.editor.grab().width() > 0);
}

void AdvListEditorPerHostileTest::aMegabyteOfNamesIsPastedUpToTheLimit()
{
    TTokenForm form;
    form.editor.SetFreeItems(true);
    QVERIFY(form.Show());
    QApplication::clipboard()->setText(QStringLiteral("نان;آب\n").repeated(150000));
    form.Stroke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.editor.Values().Count(), 10000);
    QCOMPARE(form.editor.Values()[9999].DisplayText, QStringLiteral("آب"));
    QVERIFY(form.editor.EditText().startsWith(QStringLiteral("نان;آب;نان")));
    QCOMPARE(form.editor.EditText().size(), form.editor.MaxLength());
}

void AdvListEditorPerHostileTest::tenThousandItemsAreWalkedAndRemoved()
{
    for (const int lines : {1, 3}) {
        TTokenForm form;
        form.editor.SetMaxLines(lines);
        QVERIFY(form.Show());
        for (int item = 0; item < 10000; ++item)
            form.editor.Values().AddPair(QStringLiteral("برچسب %1").arg(item), QString::number(item));
        QCOMPARE(form.editor.CurrentIndex(), 9999);
        form.Strokes(Qt::Key_Right, 50);
        form.Strokes(Qt::Key_Backspace, 50);
        QCOMPARE(form.editor.Values().Count(), 9950);
        QCOMPARE(form.editor.RemovedIndex(), 9900);
        form.Stroke(Qt::Key_Home);
        QVERIFY(form.editor.rect().intersects(form.Bubble(0)));
        form.Stroke(Qt::Key_End, Qt::ShiftModifier);
        form.Stroke(Qt::Key_Delete);
        QVERIFY(form.editor.Values().IsEmpty());
        QCOMPARE(form.editor.SnapshotCount(), 9950);
    }
}

void AdvListEditorPerHostileTest::namesOfAnyScriptAndSignAreKept()
{
    const QStringList names{QStringLiteral("O'Brien \"x\""),
                            QStringLiteral("الف, ب"),
                            QStringLiteral("50%_]["),
                            QStringLiteral("👨‍👩‍👧😀"),
                            QStringLiteral("\u202Eabc\u202C\u200F"),
                            QStringLiteral("ش").repeated(50),
                            QStringLiteral("<b>&amp;"),
                            QString(),
                            QStringLiteral(" "),
                            QStringLiteral("a\0b"),
                            QString(QChar(0xD83D))};
    TTokenForm form;
    for (const QString& name : names)
        form.editor.Values().AddPair(name, name);
    form.editor.SetMaxLines(6);
    QVERIFY(form.Show());
    QVERIFY(form.editor.grab().width() > 0);
    for (qsizetype index = names.size() - 1; index >= 0; --index) {
        QCOMPARE(form.editor.Values()[static_cast<int>(index)].DisplayText, names.at(index));
        form.Stroke(Qt::Key_Backspace);
        QCOMPARE(form.editor.RemovedItem(), names.at(index) + u',' + names.at(index));
    }
}

void AdvListEditorPerHostileTest::itemsRemovedInsideEveryHandler()
{
    TTokenForm form;
    form.editor.SetFreeItems(true);
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    const auto clear = [&] { form.editor.Values().Clear(); };
    form.editor.OnKeyDown = [&](QObject*, quint16&, Qt::KeyboardModifiers) { clear(); };
    form.Stroke(Qt::Key_Backspace);
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, QPoint(10, 14));
    form.editor.OnKeyDown = nullptr;
    form.Fill(QStringLiteral("آب نان نمک"));
    form.editor.OnMouseDown = [&](QObject*, Qt::MouseButton, Qt::KeyboardModifiers, int, int) { clear(); };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(2).center());
    QCOMPARE(form.Row(), QString());
    form.editor.OnMouseDown = nullptr;
    form.Fill(QStringLiteral("آب نان نمک"));
    form.editor.OnKeyDown = [&](QObject*, quint16&, Qt::KeyboardModifiers) { clear(); };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(form.Row(), QString());
    form.editor.OnKeyDown = nullptr;
    form.editor.OnValueEditDone = [&](QObject*, int, QString&) { clear(); };
    form.Type(QStringLiteral("شیر;"));
    QCOMPARE(form.Row(), QString());
    QObject::connect(&form.editor, &TAdvListEditorPer::valuesChanged, &form.editor, [&] {
        if (form.editor.Values().Count() > 2)
            form.editor.Values().DeleteRange(0, 2);
    });
    form.editor.OnValueEditDone = nullptr;
    form.Type(QStringLiteral("یک;دو;سه;"));
    QCOMPARE(form.Row(), QStringLiteral("سه"));
    QCOMPARE(form.Place(), 1);
}

void AdvListEditorPerHostileTest::keyHandlersMayDestroyTheEditor()
{
    for (const int key : {int{Qt::Key_Backspace}, int{Qt::Key_Tab}, int{Qt::Key_Return}, int{Qt::Key_X}}) {
        for (int when = 0; when < 3; ++when) {
            TDoomed doomed;
            QVERIFY(doomed.Show());
            doomed.editor->SetEditText(QStringLiteral("ش"));
            const auto end = doomed.End();
            const TKeyEvent ends = [end](QObject*, quint16&, Qt::KeyboardModifiers) { end(); };
            if (when == 0)
                doomed.editor->OnKeyDown = ends;
            else if (when == 1)
                doomed.editor->OnKeyUp = ends;
            else
                doomed.editor->OnKeyPress = [end](QObject*, QChar&) { end(); };
            QPointer<QWidget> focus = QApplication::focusWidget();
            QTest::keyPress(focus.data(), static_cast<Qt::Key>(key));
            if (focus && QApplication::focusWidget() == focus)
                QTest::keyRelease(focus.data(), static_cast<Qt::Key>(key));
            QVERIFY(!doomed.editor);
        }
    }
}

void AdvListEditorPerHostileTest::theEditDoneHandlerMayDestroyTheEditor_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"separator", "paste", "enter", "click", "input method"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void AdvListEditorPerHostileTest::theEditDoneHandlerMayDestroyTheEditor()
{
    QFETCH(QString, way);
    TDoomed doomed;
    QVERIFY(doomed.Show());
    const auto end = doomed.End();
    doomed.editor->OnValueEditDone = [end](QObject*, int, QString&) { end(); };
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (way == u"separator") {
        TypedKeys::Stroke(focus, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QTest::keyPress(focus.data(), Qt::Key_Semicolon);
    } else if (way == u"paste") {
        QApplication::clipboard()->setText(QStringLiteral("یک;دو"));
        QTest::keyPress(focus.data(), Qt::Key_V, Qt::ControlModifier);
    } else if (way == u"input method") {
        QInputMethodEvent committed;
        committed.setCommitString(QStringLiteral("شیر;"));
        QApplication::sendEvent(focus, &committed);
    } else {
        TypedKeys::Text(focus, QStringLiteral("ش"));
        auto* list = doomed.editor->findChild<QListView*>();
        QVERIFY(list && list->isVisible());
        if (way == u"enter") {
            QTest::keyClick(focus.data(), Qt::Key_Down);
            QTest::keyPress(focus.data(), Qt::Key_Return);
        } else {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        }
    }
    QTRY_VERIFY(!doomed.editor);
}

void AdvListEditorPerHostileTest::mouseHandlersMayDestroyTheEditor()
{
    const auto markOf = [](TAdvListEditorPer* editor) {
        const QRect bubble = QAccessible::queryAccessibleInterface(editor)->child(1)->rect();
        return editor->mapFromGlobal(bubble.topLeft()) + QPoint(11, bubble.height() / 2);
    };
    for (int when = 0; when < 4; ++when) {
        TDoomed doomed;
        QVERIFY(doomed.Show());
        const auto end = doomed.End();
        const TKeyEvent ends = [end](QObject*, quint16&, Qt::KeyboardModifiers) { end(); };
        QWidget* receiver = doomed.editor;
        QPoint point = markOf(doomed.editor);
        if (when == 0) {
            doomed.editor->OnKeyDown = ends;
        } else if (when == 1) {
            doomed.editor->OnKeyUp = ends;
        } else {
            doomed.editor->OnMouseDown = [end](QObject*, Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
                end();
            };
            if (when == 2)
                receiver = doomed.editor->focusProxy();
            point = when == 2 ? QPoint(5, 5) : point + QPoint(25, 0);
        }
        const QPointer<QWidget> alive = receiver;
        QTest::mousePress(receiver, Qt::LeftButton, Qt::NoModifier, point);
        if (alive)
            QTest::mouseRelease(receiver, Qt::LeftButton, Qt::NoModifier, point);
        QVERIFY(!doomed.editor);
    }
}

void AdvListEditorPerHostileTest::lookupChangedWhileItIsOffered()
{
    TTokenForm form;
    for (int entry = 0; entry < 20; ++entry)
        form.editor.Lookup().AddPair(QStringLiteral("نان %1").arg(entry), {});
    QVERIFY(form.Show());
    form.Type(QStringLiteral("ن"));
    form.Strokes(Qt::Key_Down, 15);
    form.editor.Lookup().Clear();
    form.Stroke(Qt::Key_Return);
    QVERIFY(form.editor.Values().IsEmpty());
    form.editor.Lookup().AddPair(QStringLiteral("نمک"), {});
    form.Type(QStringLiteral("م"));
    auto* list = form.editor.findChild<QListView*>();
    QVERIFY(list && list->isVisible());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    form.editor.Lookup().Clear();
    QCoreApplication::processEvents();
    QVERIFY(form.editor.Values().IsEmpty());
}

void AdvListEditorPerHostileTest::aHandlerMayReplaceItself()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    int calls = 0;
    form.editor.OnKeyUp = [&](QObject*, quint16&, Qt::KeyboardModifiers) {
        ++calls;
        form.editor.OnKeyUp = nullptr;
    };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(0));
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(0));
    QCOMPARE(calls, 1);
    QCOMPARE(form.Row(), QString());
}

QTEST_MAIN(AdvListEditorPerHostileTest)
#include "AdvListEditorPerHostileTest.moc"
