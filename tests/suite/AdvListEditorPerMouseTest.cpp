#include "TokenForm.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QToolTip>
#include <QWheelEvent>

namespace {

void DragFrom(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 4; ++step) {
        const QPoint point = from + (to - from) * step / 4;
        QMouseEvent move(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace

class AdvListEditorPerMouseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsABubbleAndPutsTheCaretBehindIt();
    void shiftAndClickSelectsUpToABubble();
    void draggingSelectsTheBubblesPassed();
    void aClickOnTheCloseMarkRemovesAsDeleteDoes();
    void aCloseMarkLeftBeforeTheReleaseRemovesNothing();
    void aSwallowedDeleteKeepsTheBubbleOfItsMark();
    void aReadOnlyEditorHasNoCloseMarks();
    void everyPressIsToldInTheEditorsPixels();
    void thePressOnACloseMarkBelongsToTheMark();
    void aBubbleIsDraggedToAnotherPlaceOnlyWhereThatIsOn();
    void escapeEndsADrag();
    void removingItemsEndsADrag();
    void theRightButtonOpensTheOwnersMenu();
    void theEditorsOwnMenuRemovesSelectedBubbles();
    void theWheelScrollsARowThatIsTooLong();
    void aLongNameIsShownWholeInATooltip();
    void theMiddleButtonOfAFormWithoutSelectionDoesNothing();
};

void AdvListEditorPerMouseTest::aClickSelectsABubbleAndPutsTheCaretBehindIt()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان نمک"));
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(1).center());
    QVERIFY(form.editor.hasFocus());
    QCOMPARE(form.Selected(), QList<int>({1}));
    QCOMPARE(form.Place(), 2);
    form.Stroke(Qt::Key_Delete);
    QCOMPARE(form.Row(), QStringLiteral("آب نمک"));
}

void AdvListEditorPerMouseTest::shiftAndClickSelectsUpToABubble()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک شکر")));
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(1).center());
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::ShiftModifier, form.Bubble(3).center());
    QCOMPARE(form.Selected(), QList<int>({1, 2, 3}));
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::ShiftModifier, form.Bubble(0).center());
    QCOMPARE(form.Selected(), QList<int>({0}));
}

void AdvListEditorPerMouseTest::draggingSelectsTheBubblesPassed()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک شکر")));
    DragFrom(&form.editor, form.Bubble(0).center(), form.Bubble(2).center() - QPoint(10, 0));
    QCOMPARE(form.Selected(), QList<int>({0, 1, 2}));
    QCOMPARE(form.Row(), QStringLiteral("آب نان نمک شکر"));
    DragFrom(&form.editor, form.Bubble(3).center(), form.Bubble(2).center() + QPoint(10, 0));
    QCOMPARE(form.Selected(), QList<int>({2, 3}));
}

void AdvListEditorPerMouseTest::aClickOnTheCloseMarkRemovesAsDeleteDoes()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    QStringList told;
    form.editor.OnKeyDown = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        told << QStringLiteral("down %1 %2").arg(key).arg(form.Row());
    };
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        told << QStringLiteral("up %1 %2").arg(key).arg(form.Row());
    };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(told, QStringList({QStringLiteral("down 46 آب نان نمک"), QStringLiteral("up 46 آب نمک")}));
    QCOMPARE(form.editor.SnapshotCount(), 3);
    QCOMPARE(form.editor.RemovedItem(), QStringLiteral("نان,2"));
    QCOMPARE(form.editor.RemovedIndex(), 1);
    QCOMPARE(form.editor.CurrentIndex(), 1);
}

void AdvListEditorPerMouseTest::aCloseMarkLeftBeforeTheReleaseRemovesNothing()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    QTest::mousePress(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QTest::mouseRelease(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(2));
    QCOMPARE(form.Row(), QStringLiteral("آب نان نمک"));
}

void AdvListEditorPerMouseTest::aSwallowedDeleteKeepsTheBubbleOfItsMark()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    form.editor.OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) { key = 0; };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
}

void AdvListEditorPerMouseTest::aReadOnlyEditorHasNoCloseMarks()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    const int width = form.Bubble(0).width();
    form.editor.SetReadOnly(true);
    QVERIFY(form.Bubble(0).width() < width);
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    form.editor.SetReadOnly(false);
    form.editor.SetCloseMarks(false);
    QVERIFY(form.Bubble(0).width() < width);
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(1));
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
}

void AdvListEditorPerMouseTest::everyPressIsToldInTheEditorsPixels()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    QList<QPoint> points;
    QList<Qt::MouseButton> buttons;
    form.editor.OnMouseDown = [&](QObject* sender, Qt::MouseButton button, Qt::KeyboardModifiers, int x,
                                  int y) {
        QCOMPARE(sender, &form.editor);
        points << QPoint(x, y);
        buttons << button;
    };
    const QPoint onBubble = form.Bubble(0).center();
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, onBubble);
    QWidget* box = form.editor.focusProxy();
    form.editor.CorrectEditPos();
    form.Place();
    QTest::mouseClick(box, Qt::RightButton, Qt::NoModifier, QPoint(7, 5));
    QCOMPARE(points, QList<QPoint>({onBubble, box->geometry().topLeft() + QPoint(7, 5)}));
    QCOMPARE(buttons, QList<Qt::MouseButton>({Qt::LeftButton, Qt::RightButton}));
}

void AdvListEditorPerMouseTest::thePressOnACloseMarkBelongsToTheMark()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    int presses = 0;
    form.editor.OnMouseDown = [&](QObject*, Qt::MouseButton, Qt::KeyboardModifiers, int, int) { ++presses; };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Mark(0));
    QCOMPARE(presses, 0);
    QCOMPARE(form.Row(), QStringLiteral("نان"));
}

void AdvListEditorPerMouseTest::aBubbleIsDraggedToAnotherPlaceOnlyWhereThatIsOn()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک شکر")));
    form.editor.SetAllowReorder(true);
    DragFrom(&form.editor, form.Bubble(0).center(), form.Bubble(2).center() - QPoint(10, 0));
    QCOMPARE(form.Row(), QStringLiteral("نان نمک آب شکر"));
    QCOMPARE(form.editor.Values()[2].Value, QStringLiteral("1"));
    DragFrom(&form.editor, form.Bubble(3).center(), QPoint(form.editor.width() - 2, 14));
    QCOMPARE(form.Row(), QStringLiteral("شکر نان نمک آب"));
    form.editor.SetReadOnly(true);
    DragFrom(&form.editor, form.Bubble(0).center(), form.Bubble(2).center());
    QCOMPARE(form.Row(), QStringLiteral("شکر نان نمک آب"));
}

void AdvListEditorPerMouseTest::escapeEndsADrag()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    form.editor.SetAllowReorder(true);
    QTest::mousePress(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(0).center());
    const QPoint target = form.Bubble(2).center() - QPoint(10, 0);
    QMouseEvent move(QEvent::MouseMove, target, form.editor.mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&form.editor, &move);
    form.Stroke(Qt::Key_Escape);
    QTest::mouseRelease(&form.editor, Qt::LeftButton, Qt::NoModifier, target);
    QCOMPARE(form.Row(), QStringLiteral("آب نان نمک"));
}

void AdvListEditorPerMouseTest::removingItemsEndsADrag()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    form.editor.SetAllowReorder(true);
    QTest::mousePress(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(2).center());
    const QPoint target = form.Bubble(0).center() + QPoint(10, 0);
    QMouseEvent move(QEvent::MouseMove, target, form.editor.mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&form.editor, &move);
    form.editor.Values().Clear();
    form.editor.grab();
    QTest::mouseRelease(&form.editor, Qt::LeftButton, Qt::NoModifier, target);
    QCOMPARE(form.Row(), QString());
}

void AdvListEditorPerMouseTest::theRightButtonOpensTheOwnersMenu()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب")));
    QMenu menu;
    menu.addAction(QStringLiteral("کالا"));
    form.editor.SetPopupMenu(&menu);
    for (QWidget* receiver : {static_cast<QWidget*>(&form.editor), form.editor.focusProxy()}) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), receiver->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(receiver, &asked);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
    }
    QCOMPARE(form.editor.PopupMenu(), &menu);
}

void AdvListEditorPerMouseTest::theEditorsOwnMenuRemovesSelectedBubbles()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان نمک")));
    QList<int> ups;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) { ups << key; };
    QTest::mouseClick(&form.editor, Qt::LeftButton, Qt::NoModifier, form.Bubble(1).center());
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), form.editor.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&form.editor, &asked);
    QMenu* menu = nullptr;
    QTRY_VERIFY((menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())));
    QStringList enabled;
    QAction* remove = nullptr;
    for (QAction* action : menu->actions()) {
        if (action->isEnabled() && !action->isSeparator())
            enabled << action->text().remove(u'&');
        if (action->text() == u"&حذف")
            remove = action;
    }
    QVERIFY(enabled.contains(QStringLiteral("بریدن")) && enabled.contains(QStringLiteral("رونوشت")));
    QVERIFY(enabled.contains(QStringLiteral("انتخاب همه")));
    QVERIFY(remove);
    remove->trigger();
    menu->close();
    QCOMPARE(form.Row(), QStringLiteral("آب نمک"));
    QCOMPARE(ups, QList<int>({VirtualKey::Delete}));
}

void AdvListEditorPerMouseTest::theWheelScrollsARowThatIsTooLong()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("بلندترین_نام ").repeated(20)));
    const int before = form.Bubble(0).left();
    QVERIFY(before >= form.editor.width());
    const auto turn = [&](int delta) {
        QWheelEvent wheel(QPointF(20, 14), form.editor.mapToGlobal(QPointF(20, 14)), QPoint(),
                          QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&form.editor, &wheel);
        return wheel.isAccepted();
    };
    QVERIFY(turn(120));
    QVERIFY(form.Bubble(0).left() < before);
    for (int turns = 0; turns < 200; ++turns)
        turn(120);
    QVERIFY(form.editor.rect().contains(form.Bubble(0)));
    QVERIFY(!turn(120));
}

void AdvListEditorPerMouseTest::aLongNameIsShownWholeInATooltip()
{
    TTokenForm form;
    const QString name = QStringLiteral("نامی <b>بسیار</b> بلند ").repeated(4);
    form.editor.Values().AddPair(QStringLiteral("آب"), {});
    form.editor.Values().AddPair(name, {});
    QVERIFY(form.Show());
    const auto ask = [&](const QPoint& point) {
        QHelpEvent help(QEvent::ToolTip, point, form.editor.mapToGlobal(point));
        QApplication::sendEvent(&form.editor, &help);
        return QToolTip::text();
    };
    QCOMPARE(ask(form.Bubble(0).center()), QString());
    QCOMPARE(ask(form.Bubble(1).center()), name.toHtmlEscaped());
    QCOMPARE(ask(form.Mark(0)), QStringLiteral("حذف"));
    QToolTip::hideText();
}

void AdvListEditorPerMouseTest::theMiddleButtonOfAFormWithoutSelectionDoesNothing()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    QTest::mouseClick(&form.editor, Qt::MiddleButton, Qt::NoModifier, form.Bubble(0).center());
    QCOMPARE(form.Row(), QStringLiteral("آب نان"));
    QCOMPARE(form.Selected(), QList<int>());
}

QTEST_MAIN(AdvListEditorPerMouseTest)
#include "AdvListEditorPerMouseTest.moc"
