#include "AdvListAccessible.h"
#include "TokenForm.h"

#include <QLabel>

namespace {

/// What a screen reader is told, as "event child".
QStringList& Told()
{
    static QStringList told;
    return told;
}

void Record(const QAccessibleEvent& event)
{
    Told() << QStringLiteral("%1 %2").arg(event.type(), 0, 16).arg(event.child());
}

QString Event(QAccessible::Event type, int child)
{
    return QStringLiteral("%1 %2").arg(type, 0, 16).arg(child);
}

} // namespace

class AdvListEditorPerAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theEditorIsAListOfItemsAndABoxForTyping();
    void theBoxHasTheEditorsName();
    void theNameMayComeFromALabel();
    void itemsSayWhereTheyAre();
    void itemsAreFoundByPoint();
    void stateTellsSelectedDisabledAndScrolledOut();
    void itemsCanBeChosenAndRemoved();
    void itemsOfAReadOnlyEditorCanOnlyBeChosen();
    void theCaretsWayIsTold();
    void changesOfTheItemsAreTold();
    void whatStoodForItemsGoesWithTheirChange();
    void theInterfacesGoWithTheEditor();
};

void AdvListEditorPerAccessibilityTest::initTestCase()
{
    // The toolkit passes events on only where a reader's bus has been found.
    TAdvListAccessible::SetListener(Record);
}

void AdvListEditorPerAccessibilityTest::cleanupTestCase()
{
    TAdvListAccessible::SetListener(nullptr);
}

void AdvListEditorPerAccessibilityTest::theEditorIsAListOfItemsAndABoxForTyping()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان"));
    form.editor.setAccessibleName(QStringLiteral("برچسب‌ها"));
    form.editor.SetEditText(QStringLiteral("شیر"));
    QVERIFY(form.Show());
    QAccessibleInterface* list = form.Accessible();
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->text(QAccessible::Name), QStringLiteral("برچسب‌ها"));
    QCOMPARE(list->text(QAccessible::Value), QStringLiteral("آب، نان"));
    QCOMPARE(list->childCount(), 3);
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(list->indexOfChild(list->child(index)), index);
        QCOMPARE(list->child(index)->parent(), list);
    }
    QCOMPARE(list->child(1)->role(), QAccessible::ListItem);
    QCOMPARE(list->child(1)->text(QAccessible::Name), QStringLiteral("نان"));
    QCOMPARE(list->child(2)->role(), QAccessible::EditableText);
    QCOMPARE(list->child(2)->text(QAccessible::Value), QStringLiteral("شیر"));
    QCOMPARE(list->focusChild(), list->child(2));
    QVERIFY(!list->child(3));
    QVERIFY(!list->child(-1));
}

void AdvListEditorPerAccessibilityTest::theBoxHasTheEditorsName()
{
    TTokenForm form;
    form.editor.setAccessibleName(QStringLiteral("دسته"));
    QCOMPARE(form.Accessible()->child(0)->text(QAccessible::Name), QStringLiteral("دسته"));
}

void AdvListEditorPerAccessibilityTest::theNameMayComeFromALabel()
{
    TTokenForm form;
    QLabel label(QStringLiteral("&دسته :"), &form.window);
    label.setBuddy(&form.editor);
    QCOMPARE(form.Accessible()->text(QAccessible::Name), QStringLiteral("دسته :"));
    QCOMPARE(form.Accessible()->child(0)->text(QAccessible::Name), QStringLiteral("دسته :"));
}

void AdvListEditorPerAccessibilityTest::itemsSayWhereTheyAre()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    const QRect editor(form.editor.mapToGlobal(QPoint(0, 0)), form.editor.size());
    const QRect first = form.Accessible()->child(0)->rect();
    const QRect second = form.Accessible()->child(1)->rect();
    QVERIFY(editor.contains(first) && editor.contains(second));
    QVERIFY(first.left() > second.right());
}

void AdvListEditorPerAccessibilityTest::itemsAreFoundByPoint()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    QAccessibleInterface* list = form.Accessible();
    const QPoint onSecond = list->child(1)->rect().center();
    QCOMPARE(list->childAt(onSecond.x(), onSecond.y()), list->child(1));
    const QPoint onBox = list->child(2)->rect().center();
    QCOMPARE(list->childAt(onBox.x(), onBox.y()), list->child(2));
    QVERIFY(!list->childAt(onBox.x(), onBox.y() + 1000));
}

void AdvListEditorPerAccessibilityTest::stateTellsSelectedDisabledAndScrolledOut()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("بلندترین_نام ").repeated(20)));
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    QAccessibleInterface* list = form.Accessible();
    QVERIFY(list->child(19)->state().selected);
    QVERIFY(!list->child(18)->state().selected);
    QVERIFY(!list->child(19)->state().offscreen);
    QVERIFY(list->child(0)->state().offscreen);
    QVERIFY(!list->child(0)->state().disabled);
    form.editor.setEnabled(false);
    QVERIFY(list->child(0)->state().disabled);
}

void AdvListEditorPerAccessibilityTest::itemsCanBeChosenAndRemoved()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان نمک"));
    QVERIFY(form.ShowWith(form.editor));
    QList<int> ups;
    form.editor.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) { ups << key; };
    QAccessibleActionInterface* item = form.Accessible()->child(1)->actionInterface();
    QVERIFY(item);
    QCOMPARE(item->localizedActionName(QAccessibleActionInterface::pressAction()), QStringLiteral("حذف"));
    item->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(form.Selected(), QList<int>({1}));
    item->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(form.Row(), QStringLiteral("آب نمک"));
    QCOMPARE(ups, QList<int>({VirtualKey::Delete}));
}

void AdvListEditorPerAccessibilityTest::itemsOfAReadOnlyEditorCanOnlyBeChosen()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب"));
    form.editor.SetReadOnly(true);
    QAccessibleActionInterface* item = form.Accessible()->child(0)->actionInterface();
    QCOMPARE(item->actionNames(), QStringList(QAccessibleActionInterface::setFocusAction()));
    item->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(form.Row(), QStringLiteral("آب"));
}

void AdvListEditorPerAccessibilityTest::theCaretsWayIsTold()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    Told().clear();
    form.Stroke(Qt::Key_Right);
    QCOMPARE(Told(), QStringList(Event(QAccessible::Focus, 0)));
    Told().clear();
    form.Stroke(Qt::Key_Right);
    QCOMPARE(Told(), QStringList(Event(QAccessible::Focus, 2)));
    Told().clear();
    form.Stroke(Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(Told().contains(Event(QAccessible::SelectionWithin, -1)));
    QVERIFY(Told().contains(Event(QAccessible::Focus, 0)));
}

void AdvListEditorPerAccessibilityTest::changesOfTheItemsAreTold()
{
    TTokenForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    Told().clear();
    form.editor.Values().SetDisplayText(1, QStringLiteral("نان تازه"));
    QCOMPARE(Told(), QStringList(Event(QAccessible::NameChanged, 1)));
    Told().clear();
    form.editor.Values().AddPair(QStringLiteral("نمک"), {});
    QCOMPARE(Told(), QStringList(Event(QAccessible::ObjectReorder, -1)));
    Told().clear();
    form.Stroke(Qt::Key_Backspace);
    QVERIFY(Told().contains(Event(QAccessible::ObjectReorder, -1)));
    QVERIFY(Told().contains(Event(QAccessible::Focus, 1)));
}

void AdvListEditorPerAccessibilityTest::whatStoodForItemsGoesWithTheirChange()
{
    TTokenForm form;
    form.Fill(QStringLiteral("آب نان"));
    const QAccessible::Id known = QAccessible::uniqueId(form.Accessible()->child(0));
    form.editor.Values().Clear();
    QVERIFY(!QAccessible::accessibleInterface(known));
}

void AdvListEditorPerAccessibilityTest::theInterfacesGoWithTheEditor()
{
    auto editor = std::make_unique<TAdvListEditorPer>();
    editor->Values().AddPair(QStringLiteral("آب"), {});
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(editor.get());
    const QAccessible::Id item = QAccessible::uniqueId(list->child(0));
    const QAccessible::Id box = QAccessible::uniqueId(list->child(1));
    editor.reset();
    QVERIFY(!QAccessible::accessibleInterface(item));
    QVERIFY(!QAccessible::accessibleInterface(box));
}

QTEST_MAIN(AdvListEditorPerAccessibilityTest)
#include "AdvListEditorPerAccessibilityTest.moc"
