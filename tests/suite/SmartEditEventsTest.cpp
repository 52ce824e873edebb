#include "ActiveWindow.h"
#include "Balloon.h"
#include "SmartEdit_TRV.h"
#include "TypedKeys.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

constexpr int LongDelay = 60000;

struct TForm
{
    QWidget window;
    QVBoxLayout layout{&window};
    TSmartEdit_TRV edit;
    TSmartEdit_TRV other;
    QStringList log;

    TForm()
    {
        layout.addWidget(&edit);
        layout.addWidget(&other);
        edit.OnChange = [this](QObject*) { log << QStringLiteral("change ") + edit.Text(); };
        edit.OnEditValueChange = [this](QObject*) { log << QStringLiteral("value ") + edit.Text(); };
        edit.OnExit = [this](QObject*) { log << QStringLiteral("exit"); };
        edit.setFocus();
        window.show();
    }

    bool Ready()
    {
        return ActiveWindow::Activate(&window) && QTest::qWaitFor([this] { return edit.hasFocus(); });
    }
};

} // namespace

class SmartEditEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChangeOfTheTextIsRaisedOnce();
    void groupingIsNoChangeOfTheText();
    void whatTheProgramWritesIsRaisedAsAChangeOnly();
    void keyDownAndKeyPressComeBeforeTheText();
    void swallowedKeysAreNotTyped();
    void typingQuicklyAnnouncesTheValueOnce();
    void theDelayRunsFromTheLastChange();
    void leavingAnnouncesTheValueAtOnceAndBeforeExit();
    void aValueThatIsDueIsAnnouncedWhenItIsAskedFor();
    void leavingUnchangedAnnouncesNothing();
    void anotherWindowOrAMenuDoesNotAnnounce();
    void leavingCompletesWhatIsHalfTyped_data();
    void leavingCompletesWhatIsHalfTyped();
    void leavingBringsTheValueBackIntoTheBounds();
    void aChangeHandlerMayWriteTheText();
    void aChangeHandlerMayDestroyTheEdit();
    void numbersAreSelectedWhenTabEntersThem();
    void anErrorStaysUntilTheUserTypes();
};

void SmartEditEventsTest::everyChangeOfTheTextIsRaisedOnce()
{
    TForm form;
    TypedKeys::Script(&form.edit, QStringLiteral("ab<"));
    form.edit.selectAll();
    TypedKeys::Script(&form.edit, QStringLiteral("x"));
    form.edit.SetText(QStringLiteral("yz"));
    form.edit.SetText(QStringLiteral("yz"));
    form.edit.Clear();
    QGuiApplication::clipboard()->setText(QStringLiteral("۱\n۲"));
    QTest::keyClick(&form.edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.log,
             QStringList({QStringLiteral("change a"), QStringLiteral("change ab"), QStringLiteral("change a"),
                          QStringLiteral("change x"), QStringLiteral("change yz"), QStringLiteral("change "),
                          QStringLiteral("change 1 2")}));
}

void SmartEditEventsTest::groupingIsNoChangeOfTheText()
{
    TForm form;
    form.edit.SetEditType(TSmartEdit_TRV::etCurrency);
    form.edit.SetPrecision(2);
    form.log.clear();
    TypedKeys::Text(&form.edit, QStringLiteral("1234.5"));
    QCOMPARE(form.log, QStringList({QStringLiteral("change 1"), QStringLiteral("change 12"),
                                    QStringLiteral("change 123"), QStringLiteral("change 1234"),
                                    QStringLiteral("change 1234.5")}));
}

void SmartEditEventsTest::whatTheProgramWritesIsRaisedAsAChangeOnly()
{
    TForm form;
    form.edit.SetDelayTimeCount(1);
    form.edit.SetEditType(TSmartEdit_TRV::etCurrency);
    form.log.clear();
    form.edit.SetValue(42500);
    form.edit.SetText(QStringLiteral("1"));
    form.edit.QLineEdit::setText(QStringLiteral("۱۲۳۴"));
    QTest::qWait(40);
    QCOMPARE(form.log, QStringList({QStringLiteral("change 42500"), QStringLiteral("change 1"),
                                    QStringLiteral("change 1234")}));
    QCOMPARE(form.edit.text(), QStringLiteral("1,234"));
}

void SmartEditEventsTest::keyDownAndKeyPressComeBeforeTheText()
{
    TForm form;
    form.edit.OnKeyDown = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        form.log << QStringLiteral("down %1").arg(key);
    };
    form.edit.OnKeyPress = [&](QObject*, QChar& key) {
        form.log << QStringLiteral("press %1").arg(key.unicode());
    };
    form.edit.OnKeyUp = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        form.log << QStringLiteral("up %1").arg(key);
    };
    TypedKeys::Stroke(&form.edit, Qt::Key_7, Qt::KeypadModifier, QStringLiteral("7"));
    TypedKeys::Stroke(&form.edit, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCOMPARE(form.log,
             QStringList({QStringLiteral("down 103"), QStringLiteral("press 55"), QStringLiteral("change 7"),
                          QStringLiteral("up 103"), QStringLiteral("down 13"), QStringLiteral("press 13"),
                          QStringLiteral("up 13")}));
}

void SmartEditEventsTest::swallowedKeysAreNotTyped()
{
    TForm form;
    form.edit.SetEditType(TSmartEdit_TRV::etNumeric);
    form.edit.OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key >= VirtualKey::Numpad0 && key <= VirtualKey::Numpad9)
            key = 0;
    };
    form.edit.OnKeyPress = [](QObject*, QChar& key) {
        if (key == u'۵' || key.unicode() == VirtualKey::Back)
            key = QChar();
    };
    TypedKeys::Stroke(&form.edit, Qt::Key_1, Qt::KeypadModifier, QStringLiteral("1"));
    TypedKeys::Script(&form.edit, QStringLiteral("۲۵۳<"));
    QCOMPARE(form.edit.Text(), QStringLiteral("23"));
}

void SmartEditEventsTest::typingQuicklyAnnouncesTheValueOnce()
{
    TForm form;
    form.edit.SetDelayTimeCount(50);
    QSignalSpy announced(&form.edit, &TSmartEdit_TRV::editValueChanged);
    TypedKeys::Text(&form.edit, QStringLiteral("abc"));
    QVERIFY(announced.isEmpty());
    QTRY_COMPARE(announced.size(), 1);
    QCOMPARE(form.log.last(), QStringLiteral("value abc"));
    QTest::qWait(150);
    QCOMPARE(announced.size(), 1);
}

void SmartEditEventsTest::theDelayRunsFromTheLastChange()
{
    TForm form;
    QCOMPARE(form.edit.DelayTimeCount(), 300);
    form.edit.SetDelayTimeCount(200);
    QSignalSpy announced(&form.edit, &TSmartEdit_TRV::editValueChanged);
    QElapsedTimer sinceLast;
    for (const QChar character : QStringLiteral("abc")) {
        QTest::qWait(20);
        TypedKeys::Text(&form.edit, QString(character));
        sinceLast.start();
    }
    QVERIFY(announced.wait());
    QVERIFY2(sinceLast.elapsed() >= 190, qPrintable(QString::number(sinceLast.elapsed())));
    QCOMPARE(announced.size(), 1);
}

void SmartEditEventsTest::leavingAnnouncesTheValueAtOnceAndBeforeExit()
{
    TForm form;
    QVERIFY(form.Ready());
    form.edit.SetDelayTimeCount(LongDelay);
    TypedKeys::Text(&form.edit, QStringLiteral("a"));
    QTest::keyClick(&form.edit, Qt::Key_Tab);
    QCOMPARE(form.log,
             QStringList({QStringLiteral("change a"), QStringLiteral("value a"), QStringLiteral("exit")}));
}

void SmartEditEventsTest::aValueThatIsDueIsAnnouncedWhenItIsAskedFor()
{
    TForm form;
    form.edit.AnnouncePendingValue();
    TypedKeys::Script(&form.edit, QStringLiteral("a"));
    form.edit.AnnouncePendingValue();
    form.edit.AnnouncePendingValue();
    QCOMPARE(form.log, QStringList({QStringLiteral("change a"), QStringLiteral("value a")}));
}

void SmartEditEventsTest::leavingUnchangedAnnouncesNothing()
{
    TForm form;
    QVERIFY(form.Ready());
    form.edit.SetText(QStringLiteral("by the program"));
    form.log.clear();
    QTest::keyClick(&form.edit, Qt::Key_Tab);
    QCOMPARE(form.log, QStringList({QStringLiteral("exit")}));
}

void SmartEditEventsTest::anotherWindowOrAMenuDoesNotAnnounce()
{
    TForm form;
    QVERIFY(form.Ready());
    form.edit.SetDelayTimeCount(LongDelay);
    TypedKeys::Text(&form.edit, QStringLiteral("a"));
    QMenu menu;
    menu.addAction(QStringLiteral("رونوشت"));
    menu.popup(form.window.mapToGlobal(QPoint(5, 5)));
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QWidget other;
    other.show();
    QVERIFY(ActiveWindow::Activate(&other));
    QTRY_VERIFY(!form.window.isActiveWindow());
    QCOMPARE(form.log, QStringList({QStringLiteral("change a")}));
}

void SmartEditEventsTest::leavingCompletesWhatIsHalfTyped_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("display");
    QTest::newRow("point") << QStringLiteral("12.") << QStringLiteral("12");
    QTest::newRow("minus") << QStringLiteral("-") << QStringLiteral("0");
    QTest::newRow("leading zeros") << QStringLiteral("1005{{{{<") << QStringLiteral("5");
    QTest::newRow("decimals as typed") << QStringLiteral("1.50") << QStringLiteral("1.50");
}

void SmartEditEventsTest::leavingCompletesWhatIsHalfTyped()
{
    QFETCH(QString, script);
    TForm form;
    QVERIFY(form.Ready());
    form.edit.SetEditType(TSmartEdit_TRV::etCurrency);
    form.edit.SetPrecision(2);
    TypedKeys::Script(&form.edit, script);
    form.other.setFocus();
    QTEST(form.edit.text(), "display");
}

void SmartEditEventsTest::leavingBringsTheValueBackIntoTheBounds()
{
    TForm form;
    QVERIFY(form.Ready());
    form.edit.SetEditType(TSmartEdit_TRV::etNumeric);
    form.edit.SetMinValue(100);
    form.edit.SetMaxValue(500);
    form.edit.SetDelayTimeCount(LongDelay);
    form.log.clear();
    TypedKeys::Text(&form.edit, QStringLiteral("7"));
    form.other.setFocus();
    QCOMPARE(form.edit.Text(), QStringLiteral("100"));
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("100")));
    QCOMPARE(form.log, QStringList({QStringLiteral("change 7"), QStringLiteral("change 100"),
                                    QStringLiteral("value 100"), QStringLiteral("exit")}));
}

void SmartEditEventsTest::aChangeHandlerMayWriteTheText()
{
    TForm form;
    int changes = 0;
    form.edit.OnChange = [&](QObject*) {
        ++changes;
        form.edit.SetText(form.edit.Text().trimmed());
    };
    TypedKeys::Text(&form.edit, QStringLiteral("a "));
    QCOMPARE(form.edit.Text(), QStringLiteral("a"));
    QCOMPARE(changes, 3);
}

void SmartEditEventsTest::aChangeHandlerMayDestroyTheEdit()
{
    for (const auto type : {TSmartEdit_TRV::etString, TSmartEdit_TRV::etCurrency}) {
        QWidget window;
        auto* edit = new TSmartEdit_TRV(&window);
        const QPointer<TSmartEdit_TRV> alive = edit;
        edit->SetEditType(type);
        edit->OnChange = [edit](QObject*) { edit->deleteLater(); };
        TypedKeys::Text(edit, QStringLiteral("12"));
        QTRY_VERIFY(!alive);
    }
}

void SmartEditEventsTest::numbersAreSelectedWhenTabEntersThem()
{
    TForm form;
    QVERIFY(form.Ready());
    form.other.SetEditType(TSmartEdit_TRV::etCurrency);
    form.other.SetText(QStringLiteral("1234"));
    QTest::keyClick(&form.edit, Qt::Key_Tab);
    QCOMPARE(form.other.selectedText(), QStringLiteral("1,234"));
    TypedKeys::Text(&form.other, QStringLiteral("5"));
    QCOMPARE(form.other.Text(), QStringLiteral("5"));
}

void SmartEditEventsTest::anErrorStaysUntilTheUserTypes()
{
    TForm form;
    QVERIFY(form.Ready());
    const QString sentence = QStringLiteral("این کد وجود ندارد؛ کد دیگری بنویسید.");
    form.edit.ShowError(sentence);
    QVERIFY(form.edit.HasError());
    QCOMPARE(Balloon::ShownText(), sentence);
    QCOMPARE(form.edit.accessibleDescription(), sentence);
    form.other.setFocus();
    form.edit.setFocus();
    form.edit.SetText(QStringLiteral("12"));
    QVERIFY(form.edit.HasError());
    TypedKeys::Text(&form.edit, QStringLiteral("3"));
    QVERIFY(!form.edit.HasError());
    QCOMPARE(Balloon::ShownText(), QString());
    QCOMPARE(form.edit.accessibleDescription(), QString());
}

QTEST_MAIN(SmartEditEventsTest)
#include "SmartEditEventsTest.moc"
