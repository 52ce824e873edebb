#include "Balloon.h"
#include "TestCase.h"
#include "UniqueCodeForm.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QMenu>
#include <QSignalSpy>

namespace {

/// Pastes by the edit's own menu.
void PasteByMenu(QWidget* edit, const QString& text)
{
    QApplication::clipboard()->setText(text);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, edit->rect().center(),
                              edit->mapToGlobal(edit->rect().center()));
    QApplication::sendEvent(edit, &request);
    auto* const menu = edit->findChild<QMenu*>();
    QVERIFY(menu);
    for (QAction* action : menu->actions()) {
        if (action->text() == QStringLiteral("&چسباندن"))
            action->trigger();
    }
    menu->close();
}

} // namespace

class DetailUniqueCodeTypingTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTypedNumberIsLockedInPlaceOfTheOneBefore()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.Calls();
        form.Retype(QStringLiteral("12"));
        QCOMPARE(form.Calls(), QStringList());
        QTRY_VERIFY(form.Host.CommonLibrary.Held.contains(QStringLiteral("1270001:12")));
        QCOMPARE(form.Calls(), (QStringList{TUniqueCodeForm::Asked(QStringLiteral("12")),
                                            TUniqueCodeForm::Released(QStringLiteral("1000007")),
                                            TUniqueCodeForm::Taken(QStringLiteral("12"))}));
        QCOMPARE(form.Text(), QStringLiteral("12"));
    }

    void leavingLocksAtOnceAndCompletesTheNumber()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.Calls();
        form.Retype(QStringLiteral("12"));
        form.Leave();
        QVERIFY(form.Other->hasFocus());
        QCOMPARE(form.Text(), QStringLiteral("00000012"));
        QCOMPARE(form.Calls(), (QStringList{TUniqueCodeForm::Asked(QStringLiteral("12")),
                                            TUniqueCodeForm::Released(QStringLiteral("1000007")),
                                            TUniqueCodeForm::Taken(QStringLiteral("12"))}));
        QTest::qWait(400);
        QCOMPARE(form.Calls(), QStringList());
    }

    void aLoadedNumberIsCompletedWhenItIsLeft()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->FillUniqueCode(5);
        form.Calls();
        form.Leave();
        QCOMPARE(form.Text(), QStringLiteral("01000005"));
        QCOMPARE(form.Calls(), QStringList());
        QVERIFY(form.Frame->IsValidated());
    }

    void anEmptyNumberStaysEmptyWhenItIsLeft()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.Retype({});
        form.Leave();
        QCOMPARE(form.Text(), QString());
        QVERIFY(!form.Host.CommonLibrary.Held.contains(QStringLiteral("1270001:1000007")));
        QVERIFY(!form.Frame->IsValidated());
    }

    void aNumberLockedByAnotherIsToldOnceAndReverts()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.HoldByAnother(QStringLiteral("44"));
        form.Calls();
        form.Retype(QStringLiteral("44"));
        form.Leave();
        QCOMPARE(form.Text(), QStringLiteral("01000007"));
        QTest::qWait(400);
        QCOMPARE(form.Calls(), (QStringList{TUniqueCodeForm::Asked(QStringLiteral("44")),
                                            QStringLiteral("MSGInUse(کد تفصیلی یکتا)")}));
        QCOMPARE(form.Host.CommonLibrary.Held, QStringList{QStringLiteral("1270001:1000007")});
        QVERIFY(form.Frame->IsValidated());
    }

    void typingTheHeldNumberAgainTouchesNoLock()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->FillUniqueCode(5);
        form.Calls();
        form.Retype(QStringLiteral("01000005"));
        form.Leave();
        QCOMPARE(form.Calls(), QStringList());
        QVERIFY(form.Frame->IsValidated());
    }

    void aNumberThatWasOnlySetIsTakenWhenItIsTyped()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->SetUniqueCodeValue(12);
        form.Retype(QStringLiteral("12"));
        form.Leave();
        QCOMPARE(form.Calls(), (QStringList{TUniqueCodeForm::Asked(QStringLiteral("12")),
                                            TUniqueCodeForm::Released(QStringLiteral("12")),
                                            TUniqueCodeForm::Taken(QStringLiteral("12"))}));
    }

    void savingByAKeyBeforeTheValueIsToldLocksFirst()
    {
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.HoldByAnother(QStringLiteral("45"));
        form.Calls();
        form.Retype(QStringLiteral("44"));
        QVERIFY(form.Frame->IsValidated());
        QCOMPARE(form.Host.CommonLibrary.Held, QStringList{QStringLiteral("1270001:44")});
        form.Calls();
        form.Retype(QStringLiteral("45"));
        int told = 0;
        QVERIFY(!form.Frame->IsValidated([&told] { ++told; }));
        QCOMPARE(told, 1);
        QCOMPARE(form.Calls(), (QStringList{TUniqueCodeForm::Asked(QStringLiteral("45")),
                                            QStringLiteral("MSGInUse(کد تفصیلی یکتا)")}));
        QCOMPARE(form.Text(), QStringLiteral("00000044"));
    }

    void onlyBackspaceAndTheMainRowsDigitsEdit_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("character");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, int key, const QString& character, const QString& text,
                            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QTest::newRow(name) << key << character << modifiers << text;
        };
        const QString same = QStringLiteral("123");
        row("digit", Qt::Key_7, QStringLiteral("7"), QStringLiteral("1237"));
        row("Persian digit", 0x06F7, QStringLiteral("۷"), QStringLiteral("1237"));
        row("Arabic digit", 0x0667, QStringLiteral("٧"), QStringLiteral("1237"));
        row("Backspace", Qt::Key_Backspace, QStringLiteral("\b"), QStringLiteral("12"));
        row("keypad digit", Qt::Key_7, QStringLiteral("7"), same, Qt::KeypadModifier);
        row("Shift and a digit", Qt::Key_Exclam, QStringLiteral("!"), same, Qt::ShiftModifier);
        row("Latin letter", Qt::Key_A, QStringLiteral("a"), same);
        row("Persian letter", 0x06A9, QStringLiteral("ک"), same);
        row("blank", Qt::Key_Space, QStringLiteral(" "), same);
        row("minus", Qt::Key_Minus, QStringLiteral("-"), same);
        row("Delete", Qt::Key_Delete, {}, same);
        row("Ctrl+V", Qt::Key_V, QStringLiteral("\x16"), same, Qt::ControlModifier);
        row("Ctrl+X", Qt::Key_X, QStringLiteral("\x18"), same, Qt::ControlModifier);
    }

    void onlyBackspaceAndTheMainRowsDigitsEdit()
    {
        QFETCH(int, key);
        QFETCH(QString, character);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        const TUniqueCodeForm form;
        QVERIFY(form.Show());
        QApplication::clipboard()->setText(QStringLiteral("9"));
        form.Retype(QStringLiteral("123"));
        QTest::sendKeyEvent(QTest::Click, form.Edit(), static_cast<Qt::Key>(key), character, modifiers);
        QCOMPARE(form.Text(), text);
    }

    void theCaretKeysAreCancelled()
    {
        const TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Retype(QStringLiteral("123"));
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_Up}) {
            Typing::Press(form.Edit(), key);
            QCOMPARE(form.Edit()->CaretPos(), 3);
        }
    }

    void aNinthDigitIsNotTaken()
    {
        const TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Retype(QStringLiteral("123456789"));
        QCOMPARE(form.Text(), QStringLiteral("12345678"));
    }

    void theFormsKeysReachIt()
    {
        TUniqueCodeForm form;
        QDialog dialog;
        auto* const layout = new QVBoxLayout(&dialog);
        auto* const before = new QLineEdit(&dialog);
        layout->addWidget(before);
        layout->addWidget(form.Frame);
        auto* const save = new QPushButton(QStringLiteral("ذخیره"), &dialog);
        layout->addWidget(save);
        save->setDefault(true);
        const QSignalSpy saves(save, &QPushButton::clicked);
        QVERIFY(Typing::ShowActive(&dialog));
        form.Edit()->setFocus();
        Typing::Press(form.Edit(), Qt::Key_Tab);
        QVERIFY(save->hasFocus());
        Typing::Press(save, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(form.Edit()->hasFocus());
        Typing::Press(form.Edit(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(before->hasFocus());
        form.Edit()->setFocus();
        Typing::Press(form.Edit(), Qt::Key_Return);
        QCOMPARE(static_cast<int>(saves.count()), 1);
        Typing::Press(form.Edit(), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void theMnemonicBringsTheFocus()
    {
        const TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Other->setFocus();
        QTest::sendKeyEvent(QTest::Click, form.Form.get(), static_cast<Qt::Key>(0x06CC), QStringLiteral("ی"),
                            Qt::AltModifier);
        QTRY_VERIFY(form.Edit()->hasFocus());
    }

    void digitsOfAnyScriptArePasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("ASCII") << QStringLiteral("1000012");
        QTest::newRow("Persian") << QStringLiteral("۱۰۰۰۰۱۲");
        QTest::newRow("Arabic") << QStringLiteral("١٠٠٠٠١٢");
        QTest::newRow("between blanks") << QStringLiteral(" 1000012\n");
        QTest::newRow("a sentence with one number") << QStringLiteral("کد 1000012; DROP TABLE AccDetails");
    }

    void digitsOfAnyScriptArePasted()
    {
        QFETCH(QString, text);
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        PasteByMenu(form.Edit(), text);
        QCOMPARE(form.Text(), QStringLiteral("1000012"));
        QTRY_COMPARE(form.Host.CommonLibrary.Held, QStringList{QStringLiteral("1270001:1000012")});
    }

    void whatIsNoCodeIsNotPastedAndToldSo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("words") << QStringLiteral("کد");
        QTest::newRow("negative") << QStringLiteral("-5");
        QTest::newRow("decimals") << QStringLiteral("1.5");
        QTest::newRow("two numbers") << QStringLiteral("12 13");
        QTest::newRow("too long") << QStringLiteral("123456789");
    }

    void whatIsNoCodeIsNotPastedAndToldSo()
    {
        QFETCH(QString, text);
        TUniqueCodeForm form;
        QVERIFY(form.Show());
        form.Frame->InitUniqueCode();
        form.Retype({});
        form.Calls();
        PasteByMenu(form.Edit(), text);
        QVERIFY2(form.Text().isEmpty(), qPrintable(form.Text()));
        QVERIFY(!Balloon::ShownText().isEmpty());
        Balloon::Hide();
    }

    void anInputMethodBringsDigitsOnly()
    {
        const TUniqueCodeForm form;
        QVERIFY(form.Show());
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("۱الف'2"));
        QApplication::sendEvent(form.Edit(), &event);
        QCOMPARE(form.Text(), QStringLiteral("12"));
    }
};

QTEST_MAIN(DetailUniqueCodeTypingTest)
#include "DetailUniqueCodeTypingTest.moc"
