#include "ActiveWindow.h"
#include "ControlDispatch.h"
#include "TypedKeys.h"

#include <memory>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QVBoxLayout>

namespace {

class TProbe : public QLineEdit, public TControlEvents
{
public:
    explicit TProbe(QWidget* parent = nullptr) : QLineEdit(parent) {}

protected:
    bool event(QEvent* event) override
    {
        return ControlDispatch::Event(this, *this, event) || QLineEdit::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        ControlDispatch::KeyPress(this, *this, event,
                                  [this](QKeyEvent* own) { QLineEdit::keyPressEvent(own); });
    }
    void keyReleaseEvent(QKeyEvent* event) override
    {
        ControlDispatch::KeyRelease(this, *this, event,
                                    [this](QKeyEvent* own) { QLineEdit::keyReleaseEvent(own); });
    }
    void focusInEvent(QFocusEvent* event) override
    {
        QLineEdit::focusInEvent(event);
        ControlDispatch::FocusIn(this, *this, event);
    }
    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        ControlDispatch::FocusOut(this, *this, event);
    }
};

struct TForm
{
    QWidget window;
    QVBoxLayout layout{&window};
    TProbe first;
    TProbe second;
    QStringList log;

    TForm()
    {
        layout.addWidget(&first);
        layout.addWidget(&second);
        Record(first, QStringLiteral("first"));
        Record(second, QStringLiteral("second"));
        first.setFocus();
        window.show();
    }

    void Record(TProbe& probe, const QString& name)
    {
        probe.OnEnter = [this, name](QObject*) { log << name + QStringLiteral(" entered"); };
        probe.OnExit = [this, name](QObject*) { log << name + QStringLiteral(" left"); };
    }

    bool Ready()
    {
        return ActiveWindow::Activate(&window) && QTest::qWaitFor([this] { return first.hasFocus(); });
    }
};

} // namespace

class ControlEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void virtualKeysTellTheKeypadFromTheMainRow_data();
    void virtualKeysTellTheKeypadFromTheMainRow();
    void charactersAreThoseOfTheKeyboard_data();
    void charactersAreThoseOfTheKeyboard();
    void keyDownComesBeforeKeyPressBeforeTheControl();
    void aSwallowedKeyDownStopsEverythingAfterIt();
    void aSwallowedCharacterIsNotTyped();
    void aReplacedCharacterIsTypedInItsPlace();
    void aLigatureKeyRaisesEachOfItsCharacters();
    void tabIsRaisedAndCanBeSwallowed();
    void releasedKeysAreRaisedAndRepeatedOnesAreNot();
    void enterAndExitFollowTheFocusBetweenControls();
    void windowsPopupsAndMenusRaiseNeitherEnterNorExit();
    void focusThatMovesInAnInactiveWindowLeavesTheFirstControl();
    void aHiddenControlIsLeft();
    void aHandlerMayDestroyItsControl();
    void aPostedTabStrokeMovesTheFocusAndIsReleasedThere();
    void aPostedTabPressHasNoRelease();
    void canFocusAsksTheWholeWayUpToTheWindow();
};

void ControlEventsTest::virtualKeysTellTheKeypadFromTheMainRow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("keypad");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    const auto row = [](const char* name, int key, bool keypad, const QString& text, int code) {
        QTest::newRow(name) << key << keypad << text << code;
    };
    row("enter", Qt::Key_Return, false, QStringLiteral("\r"), 13);
    row("keypad enter", Qt::Key_Enter, true, QStringLiteral("\r"), 13);
    row("tab", Qt::Key_Tab, false, QStringLiteral("\t"), 9);
    row("shift tab", Qt::Key_Backtab, false, QString(), 9);
    row("backspace", Qt::Key_Backspace, false, QStringLiteral("\b"), 8);
    row("delete", Qt::Key_Delete, false, QString(), 46);
    row("up", Qt::Key_Up, false, QString(), 38);
    row("down", Qt::Key_Down, false, QString(), 40);
    row("keypad plus", Qt::Key_Plus, true, QStringLiteral("+"), 107);
    row("main plus", Qt::Key_Plus, false, QStringLiteral("+"), 187);
    row("keypad 5", Qt::Key_5, true, QStringLiteral("5"), 101);
    row("main 5", Qt::Key_5, false, QStringLiteral("5"), 53);
    row("Persian 5", 0x06F5, false, QStringLiteral("۵"), 53);
    row("Arabic-Indic 5", 0x0665, false, QStringLiteral("٥"), 53);
    row("Persian keypad 5", 0x06F5, true, QStringLiteral("۵"), 101);
    row("keypad minus", Qt::Key_Minus, true, QStringLiteral("-"), 109);
    row("keypad point", Qt::Key_Period, true, QStringLiteral("."), 110);
    row("keypad slash", Qt::Key_Slash, true, QStringLiteral("/"), 111);
    row("keypad star", Qt::Key_Asterisk, true, QStringLiteral("*"), 106);
    row("keypad arrow", Qt::Key_Up, true, QString(), 38);
    row("F4", Qt::Key_F4, false, QString(), 115);
    row("A", Qt::Key_A, false, QStringLiteral("a"), 65);
    row("exclamation mark", Qt::Key_Exclam, false, QStringLiteral("!"), 49);
    row("Persian letter", 0x0634, false, QStringLiteral("ش"), 231);
    row("none", Qt::Key_unknown, false, QString(), 0);
}

void ControlEventsTest::virtualKeysTellTheKeypadFromTheMainRow()
{
    QFETCH(int, key);
    QFETCH(bool, keypad);
    QFETCH(QString, text);
    const QKeyEvent event(QEvent::KeyPress, key, keypad ? Qt::KeypadModifier : Qt::NoModifier, text);
    QTEST(int(VirtualKeyOf(event)), "code");
}

void ControlEventsTest::charactersAreThoseOfTheKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("character");
    QTest::newRow("enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << QString() << 13;
    QTest::newRow("escape") << int(Qt::Key_Escape) << 0 << QString() << 27;
    QTest::newRow("backspace") << int(Qt::Key_Backspace) << 0 << QStringLiteral("\b") << 8;
    QTest::newRow("tab") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier) << QString() << 9;
    QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << QStringLiteral("\x7f") << 0;
    QTest::newRow("letter") << int(Qt::Key_A) << 0 << QStringLiteral("a") << int('a');
    QTest::newRow("Persian letter") << 0x0634 << 0 << QStringLiteral("ش") << 0x0634;
    QTest::newRow("paste") << int(Qt::Key_V) << int(Qt::ControlModifier) << QStringLiteral("v") << 22;
    QTest::newRow("mnemonic") << int(Qt::Key_V) << int(Qt::AltModifier) << QStringLiteral("v") << 0;
    QTest::newRow("AltGr") << int(Qt::Key_At) << int(Qt::ControlModifier | Qt::AltModifier)
                           << QStringLiteral("@") << int('@');
    QTest::newRow("arrow") << int(Qt::Key_Left) << 0 << QString() << 0;
}

void ControlEventsTest::charactersAreThoseOfTheKeyboard()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
    QTEST(int(CharacterOf(event).unicode()), "character");
}

void ControlEventsTest::keyDownComesBeforeKeyPressBeforeTheControl()
{
    TForm form;
    QStringList order;
    form.first.OnKeyDown = [&](QObject* sender, quint16& key, Qt::KeyboardModifiers shift) {
        QCOMPARE(sender, &form.first);
        QCOMPARE(shift, Qt::KeyboardModifiers(Qt::ShiftModifier));
        order << QStringLiteral("down %1").arg(key);
    };
    form.first.OnKeyPress = [&](QObject*, QChar& key) { order << QStringLiteral("press ") + key; };
    QObject::connect(&form.first, &QLineEdit::textChanged, &form.first,
                     [&](const QString& text) { order << QStringLiteral("text ") + text; });
    TypedKeys::Stroke(&form.first, Qt::Key_B, Qt::ShiftModifier, QStringLiteral("B"));
    QCOMPARE(order,
             QStringList({QStringLiteral("down 66"), QStringLiteral("press B"), QStringLiteral("text B")}));
}

void ControlEventsTest::aSwallowedKeyDownStopsEverythingAfterIt()
{
    TForm form;
    int presses = 0;
    form.first.OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) { key = 0; };
    form.first.OnKeyPress = [&](QObject*, QChar&) { ++presses; };
    TypedKeys::Text(&form.first, QStringLiteral("aش"));
    QCOMPARE(presses, 0);
    QCOMPARE(form.first.text(), QString());
}

void ControlEventsTest::aSwallowedCharacterIsNotTyped()
{
    TForm form;
    form.first.OnKeyPress = [](QObject*, QChar& key) {
        if (key == u'b')
            key = QChar();
    };
    TypedKeys::Text(&form.first, QStringLiteral("abc"));
    QCOMPARE(form.first.text(), QStringLiteral("ac"));
}

void ControlEventsTest::aReplacedCharacterIsTypedInItsPlace()
{
    TForm form;
    form.first.OnKeyPress = [](QObject*, QChar& key) {
        if (key == u'\u064A')
            key = u'\u06CC';
    };
    TypedKeys::Text(&form.first, QStringLiteral("س\u064A"));
    QCOMPARE(form.first.text(), QStringLiteral("س\u06CC"));
}

void ControlEventsTest::aLigatureKeyRaisesEachOfItsCharacters()
{
    TForm form;
    QString seen;
    form.first.OnKeyPress = [&](QObject*, QChar& key) { seen += key; };
    TypedKeys::Stroke(&form.first, 0, Qt::NoModifier, QStringLiteral("لا"));
    QCOMPARE(seen, QStringLiteral("لا"));
    QCOMPARE(form.first.text(), QStringLiteral("لا"));
}

void ControlEventsTest::tabIsRaisedAndCanBeSwallowed()
{
    TForm form;
    QVERIFY(form.Ready());
    QList<int> keys;
    bool swallow = true;
    form.first.OnKeyDown = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        keys << key;
        if (swallow)
            key = 0;
    };
    form.first.OnKeyPress = [&](QObject*, QChar& key) { keys << key.unicode(); };
    QTest::keyClick(&form.first, Qt::Key_Tab);
    QVERIFY(form.first.hasFocus());
    QCOMPARE(keys, QList<int>({9}));
    swallow = false;
    QTest::keyClick(&form.first, Qt::Key_Tab);
    QVERIFY(form.second.hasFocus());
    QCOMPARE(keys, QList<int>({9, 9, 9}));
}

void ControlEventsTest::releasedKeysAreRaisedAndRepeatedOnesAreNot()
{
    TForm form;
    QList<int> keys;
    form.first.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) { keys << key; };
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"), true);
    QApplication::sendEvent(&form.first, &repeated);
    QTest::keyRelease(&form.first, Qt::Key_Down);
    QCOMPARE(keys, QList<int>({40}));
}

void ControlEventsTest::enterAndExitFollowTheFocusBetweenControls()
{
    TForm form;
    QVERIFY(form.Ready());
    form.log.clear();
    QTest::keyClick(&form.first, Qt::Key_Tab);
    QCOMPARE(form.log, QStringList({QStringLiteral("first left"), QStringLiteral("second entered")}));
    form.first.setFocus();
    QCOMPARE(form.log.mid(2), QStringList({QStringLiteral("second left"), QStringLiteral("first entered")}));
}

void ControlEventsTest::windowsPopupsAndMenusRaiseNeitherEnterNorExit()
{
    TForm form;
    QVERIFY(form.Ready());
    QCOMPARE(form.log, QStringList({QStringLiteral("first entered")}));
    QMenu menu;
    menu.addAction(QStringLiteral("رونوشت"));
    menu.popup(form.window.mapToGlobal(QPoint(5, 5)));
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QTRY_VERIFY(form.first.hasFocus());

    QWidget other;
    other.setFocusPolicy(Qt::StrongFocus);
    other.setFocus();
    other.show();
    QVERIFY(ActiveWindow::Activate(&other));
    QTRY_VERIFY(!form.first.hasFocus());
    other.close();
    QVERIFY(form.Ready());

    for (const Qt::FocusReason reason : {Qt::MenuBarFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&form.first, &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&form.first, &in);
    }
    QCOMPARE(form.log, QStringList({QStringLiteral("first entered")}));
}

void ControlEventsTest::focusThatMovesInAnInactiveWindowLeavesTheFirstControl()
{
    TForm form;
    QVERIFY(form.Ready());
    QWidget other;
    other.show();
    QVERIFY(ActiveWindow::Activate(&other));
    QTRY_VERIFY(!form.window.isActiveWindow());
    form.log.clear();
    form.second.setFocus();
    other.close();
    QVERIFY(ActiveWindow::Activate(&form.window));
    QTRY_VERIFY(form.second.hasFocus());
    QCOMPARE(form.log, QStringList({QStringLiteral("first left"), QStringLiteral("second entered")}));
}

void ControlEventsTest::aHiddenControlIsLeft()
{
    TForm form;
    QVERIFY(form.Ready());
    form.log.clear();
    form.first.hide();
    QCOMPARE(form.log, QStringList({QStringLiteral("first left"), QStringLiteral("second entered")}));
}

void ControlEventsTest::aHandlerMayDestroyItsControl()
{
    QWidget window;
    for (int when = 0; when < 4; ++when) {
        auto* probe = new TProbe(&window);
        const QPointer<TProbe> alive = probe;
        const auto destroy = [probe] { delete probe; };
        if (when == 0)
            probe->OnKeyDown = [destroy](QObject*, quint16&, Qt::KeyboardModifiers) { destroy(); };
        else if (when == 1)
            probe->OnKeyPress = [destroy](QObject*, QChar&) { destroy(); };
        else if (when == 2)
            probe->OnKeyDown = [destroy](QObject*, quint16&, Qt::KeyboardModifiers) { destroy(); };
        else
            probe->OnKeyUp = [destroy](QObject*, quint16&, Qt::KeyboardModifiers) { destroy(); };
        if (when == 3)
            QTest::keyRelease(probe, Qt::Key_A);
        else
            QTest::keyPress(probe, when == 2 ? Qt::Key_Tab : Qt::Key_A);
        QVERIFY(!alive);
    }
}

void ControlEventsTest::aPostedTabStrokeMovesTheFocusAndIsReleasedThere()
{
    TForm form;
    QVERIFY(form.Ready());
    QStringList keys;
    form.first.OnKeyDown = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        keys << QStringLiteral("down %1").arg(key);
    };
    form.first.OnKeyUp = [&](QObject*, quint16&, Qt::KeyboardModifiers) { keys << QStringLiteral("wrong"); };
    form.second.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        keys << QStringLiteral("up %1").arg(key);
    };
    PostTabStroke();
    QVERIFY(keys.isEmpty());
    QTRY_COMPARE(keys, QStringList({QStringLiteral("down 9"), QStringLiteral("up 9")}));
    QVERIFY(form.second.hasFocus());
}

void ControlEventsTest::aPostedTabPressHasNoRelease()
{
    TForm form;
    QVERIFY(form.Ready());
    int releases = 0;
    form.second.OnKeyUp = [&](QObject*, quint16&, Qt::KeyboardModifiers) { ++releases; };
    PostTabDown();
    QTRY_VERIFY(form.second.hasFocus());
    QCoreApplication::processEvents();
    QCOMPARE(releases, 0);
}

void ControlEventsTest::canFocusAsksTheWholeWayUpToTheWindow()
{
    TForm form;
    QWidget pane(&form.window);
    QLineEdit edit(&pane);
    QVERIFY(!CanFocus(nullptr));
    QVERIFY(!CanFocus(&edit));
    pane.show();
    QVERIFY(CanFocus(&edit));
    pane.setEnabled(false);
    QVERIFY(!CanFocus(&edit));
    pane.setEnabled(true);
    edit.setFocusPolicy(Qt::NoFocus);
    QVERIFY(!CanFocus(&edit));
    edit.setFocusPolicy(Qt::StrongFocus);
    form.window.hide();
    QVERIFY(!CanFocus(&edit));
}

QTEST_MAIN(ControlEventsTest)
#include "ControlEventsTest.moc"
