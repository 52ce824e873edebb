#include "EntityLine.h"
#include "TestCase.h"

#include <QAbstractButton>
#include <QDialog>
#include <QTimer>
#include <stdexcept>

namespace {

const QString LibraryName = QStringLiteral("ExpenseCenter_TRV.dll");

QPointer<TSelect_Entity_Frame> FrameToDestroy;

int DestroyTheFrame(const char16_t* /*parameters*/)
{
    delete FrameToDestroy;
    return 5;
}

int PickNothing(const char16_t* /*parameters*/)
{
    return 0;
}

template <typename TFunction> QFunctionPointer Exported(TFunction* function)
{
    return reinterpret_cast<QFunctionPointer>(function);
}

/// Counts the Tab presses that reach a control.
class TTabCounter : public QObject
{
public:
    int Presses = 0;
    int Releases = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
        if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab)
            ++(event->type() == QEvent::KeyPress ? Presses : Releases);
        return false;
    }
};

} // namespace

class SelectEntityPickTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theListIsOpenedByMouseAndKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("held");
        QTest::newRow("mouse") << 0 << Qt::KeyboardModifiers();
        QTest::newRow("+ of the keypad") << int(Qt::Key_Plus) << Qt::KeyboardModifiers(Qt::KeypadModifier);
        QTest::newRow("+") << int(Qt::Key_Plus) << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
        QTest::newRow("Alt and Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
    }

    void theListIsOpenedByMouseAndKeys()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, held);
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        Typing::Type(line.Frame->Code_EDT, QStringLiteral("3"));
        if (key == 0)
            QTest::mouseClick(line.Frame->Code_EDT->findChild<QAbstractButton*>(), Qt::LeftButton);
        else
            Typing::Press(line.Frame->Code_EDT, static_cast<Qt::Key>(key), held);
        QCOMPARE(line.CallsOf(QStringLiteral("Select_Entity")),
                 QStringList{QStringLiteral("Select_Entity(101, 3#LC#, 0)")});
        QCOMPARE(line.Code(), QStringLiteral("41"));
        QCOMPARE(line.Name(), QStringLiteral("رضایی"));
        QVERIFY(line.After->hasFocus());
    }

    void thePickIsValidatedAndThenTheBoxIsLeft()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        // Once by the pick, once because the focus leaves the box.
        const QString raised = QStringLiteral("41/رضایی");
        QCOMPARE(line.Raised, (QStringList{raised, raised}));
        QCOMPARE(line.CallsOf(QStringLiteral("LookupDBs")).size(), 2);
    }

    void aClickOnTheButtonFromElsewhereMovesOnFromTheBox()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        line.Before->setFocus();
        line.Host.Pickers.WhilePicking = [&line] { QVERIFY(line.Frame->Code_EDT->hasFocus()); };
        QTest::mouseClick(line.Frame->Code_EDT->findChild<QAbstractButton*>(), Qt::LeftButton);
        QVERIFY(line.After->hasFocus());
    }

    void aCancelledPickChangesNothing()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        QVERIFY(line.Start());
        line.Frame->SetCodeValue(5);
        line.Raised.clear();
        line.Host.Log.Clear();
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_Entity(101, 5#LC#, 0)")});
        QCOMPARE(line.Code(), QStringLiteral("5"));
        QCOMPARE(line.Name(), QStringLiteral("رضایی"));
        QVERIFY(line.Raised.isEmpty());
        QVERIFY(line.Frame->Code_EDT->hasFocus());
    }

    void aPickedCodeThatDoesNotExistIsEmptied()
    {
        TEntityLine line;
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(line.CallsOf(QStringLiteral("LookupDBs")).size(), 1);
        QCOMPARE(line.Code() + line.Name(), QString());
        // What is raised is the empty box that is left.
        QCOMPARE(line.Raised, QStringList{QStringLiteral("/")});
        QVERIFY(line.After->hasFocus());
    }

    void aListThatIsOpenedIsNoExit()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        Typing::Type(line.Frame->Code_EDT, QStringLiteral("6"));
        line.Host.Pickers.WhilePicking = [&line] {
            QDialog list(line.Form.get());
            QTimer::singleShot(50, &list, [&list] {
                QApplication::setActiveWindow(&list);
                QTest::qWait(50);
                list.accept();
            });
            list.exec();
            QCOMPARE(line.CallsOf(QStringLiteral("LookupDBs")).size(), 0);
            QCOMPARE(line.Code(), QStringLiteral("6"));
        };
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(line.Code(), QStringLiteral("41"));
        QApplication::setActiveWindow(line.Form.get());
        QTRY_VERIFY(line.After->hasFocus());
    }

    void aPickInAHiddenFormMovesOnWhenTheFrameIsShown()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        line.Frame->Code_EDTPropertiesButtonClick(nullptr);
        QCOMPARE(line.Raised, QStringList{QStringLiteral("41/رضایی")});
        TTabCounter tabs;
        line.Frame->Code_EDT->installEventFilter(&tabs);
        line.Frame->Code_EDT->setFocus();
        QVERIFY(Typing::ShowActive(line.Form.get()));
        QTRY_COMPARE(tabs.Presses, 1);
        QVERIFY(line.After->hasFocus());
        QTest::qWait(20);
        QCOMPARE(tabs.Presses, 1);
        QCOMPARE(tabs.Releases, 0);
    }

    void theTabIsRepeatedAtEachShowingUntilTheNextPick()
    {
        TEntityLine line;
        line.Host.Pickers.Picked = 41;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Frame->Code_EDTPropertiesButtonClick(nullptr);
        TTabCounter tabs;
        qApp->installEventFilter(&tabs);
        QVERIFY(Typing::ShowActive(line.Form.get()));
        const auto showAgain = [&line] {
            line.Frame->hide();
            line.Before->setFocus();
            line.Frame->show();
            QTest::qWait(20);
        };
        QTest::qWait(20);
        tabs.Presses = 0;
        showAgain();
        QVERIFY(tabs.Presses > 0);
        line.Host.Pickers.Picked = 0;
        line.Frame->Code_EDTPropertiesButtonClick(nullptr);
        tabs.Presses = 0;
        showAgain();
        QCOMPARE(tabs.Presses, 0);
    }

    void withoutThePickOfAHiddenFormShowingMovesNoFocus()
    {
        TEntityLine line;
        line.Frame->Code_EDTPropertiesButtonClick(nullptr);
        line.Before->setFocus();
        QVERIFY(Typing::ShowActive(line.Form.get()));
        QTest::qWait(20);
        QVERIFY(line.Before->hasFocus());
    }

    void theLibraryOfExpenseCentersMayBeMissing()
    {
        TEntityLine line;
        line.SetType(TEntityType::etExpenseCenters);
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(
            line.Host.Log.Lines(),
            (QStringList{
                QStringLiteral("Tarva_LoadLibrary(ExpenseCenter_TRV.dll)"),
                QStringLiteral("ShowMessage(\"ExpenseCenter_TRV.dll\" DLL File not found / not loaded)")}));
        QVERIFY(line.Frame->Code_EDT->hasFocus());
        QVERIFY(line.Raised.isEmpty());
    }

    void theLibraryOfExpenseCentersMayLackItsFunction()
    {
        TEntityLine line;
        line.SetType(TEntityType::etExpenseCenters);
        line.Host.Libraries.Loadable[LibraryName] = 7;
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(
            line.Host.Log.Lines(),
            (QStringList{QStringLiteral("Tarva_LoadLibrary(ExpenseCenter_TRV.dll)"),
                         QStringLiteral("FindFunction(7, Select_ExpenseCenter)"),
                         QStringLiteral("ShowMessage(\"Select_ExpenseCenter\" Method not found in the DLL)"),
                         QStringLiteral("Tarva_FreeLibrary(ExpenseCenter_TRV.dll, 7)")}));
        QVERIFY(line.Frame->Code_EDT->hasFocus());
    }

    void aCancelledListOfExpenseCentersGivesTheLibraryBack()
    {
        TEntityLine line;
        line.SetType(TEntityType::etExpenseCenters);
        line.Host.Libraries.Loadable[LibraryName] = 7;
        line.Host.Libraries.Functions["Select_ExpenseCenter"] = Exported(&PickNothing);
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QCOMPARE(line.Host.Log.CountOf(QStringLiteral("Tarva_FreeLibrary")), 1);
        QCOMPARE(line.Host.Log.CountOf(QStringLiteral("ShowMessage")), 0);
        QVERIFY(line.Raised.isEmpty());
    }

    void theFrameMayBeDestroyedWhileTheListIsOpen_data()
    {
        QTest::addColumn<bool>("byLibrary");
        QTest::addColumn<int>("picked");
        QTest::newRow("list, picked") << false << 5;
        QTest::newRow("list, cancelled") << false << 0;
        QTest::newRow("library") << true << 5;
    }

    void theFrameMayBeDestroyedWhileTheListIsOpen()
    {
        QFETCH(bool, byLibrary);
        QFETCH(int, picked);
        TEntityLine line;
        FrameToDestroy = line.Frame;
        line.SetType(byLibrary ? TEntityType::etExpenseCenters : TEntityType::etPersonals);
        line.Host.Libraries.Loadable[LibraryName] = 7;
        line.Host.Libraries.Functions["Select_ExpenseCenter"] = Exported(&DestroyTheFrame);
        line.Host.Pickers.Picked = picked;
        line.Host.Pickers.WhilePicking = [] { delete FrameToDestroy; };
        QVERIFY(line.Start());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QVERIFY(!FrameToDestroy);
        QCOMPARE(line.Host.Log.CountOf(QStringLiteral("Tarva_FreeLibrary")), byLibrary ? 1 : 0);
        QCOMPARE(line.Host.Log.CountOf(QStringLiteral("LookupDBs")), 0);
        QVERIFY(line.Raised.isEmpty());
    }

    void theFrameMayBeDestroyedByTheEventOfAPick()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("41"), QStringLiteral("رضایی"));
        line.Host.Pickers.Picked = 41;
        QVERIFY(line.Start());
        const QPointer<TSelect_Entity_Frame> frame = line.Frame;
        line.Frame->SetOnCodeChanged([](QObject* sender) { delete sender; });
        Typing::Press(line.Frame->Code_EDT, Qt::Key_F4);
        QVERIFY(!frame);
    }

    void anErrorOfTheHostReachesItsHandlingAndChangesNothing()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        line.Frame->SetCodeValue(5);
        line.Raised.clear();
        line.Host.Pickers.WhilePicking = [] { throw std::runtime_error("connection lost"); };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, line.Frame->Code_EDTPropertiesButtonClick(nullptr));
        QCOMPARE(line.Code(), QStringLiteral("5"));
        QCOMPARE(line.Name(), QStringLiteral("رضایی"));
        QVERIFY(line.Raised.isEmpty());
    }
};

QTEST_MAIN(SelectEntityPickTest)
#include "SelectEntityPickTest.moc"
