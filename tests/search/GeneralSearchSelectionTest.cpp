#include "ADOQuery.h"
#include "SearchBar.h"
#include "TestCase.h"

#include <QTimer>

namespace {

/// A search bar over a list of three rows of which the condition keeps those whose F contains what is typed.
struct TListForm : TSearchBar
{
    TADOConnection Connection;
    TADOQuery Rows;
    int Selections = 0;

    TListForm()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Rows.SetConnection(&Connection);
        Rows.SQL.SetText(
            QStringLiteral("SELECT N'شیر' AS F UNION ALL SELECT N'پنیر' UNION ALL SELECT N'نان'"));
        Rows.Open();
        Manager.Add(Criterion());
        Manager.SetDataSet(&Rows);
        Frame->doselection = [this] { ++Selections; };
    }
};

void PressMnemonic(const TListForm& list)
{
    QTest::sendKeyEvent(QTest::Click, list.Frame->Search_EDT, static_cast<Qt::Key>(u'ن'), QStringLiteral("ن"),
                        Qt::AltModifier);
}

} // namespace

class GeneralSearchSelectionTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enterFiltersAndPicksTheFoundRow()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("شير"));
        int rowsAtSelection = 0;
        list.Frame->doselection = [&] { rowsAtSelection = list.Rows.RecordCount(); };
        Typing::Press(list.Edit(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(rowsAtSelection, 1);
        QCOMPARE(list.Rows.FieldByName(QStringLiteral("F"))->AsString(), QStringLiteral("شیر"));
    }

    void enterPicksNothingWhereNothingIsFound()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("موز"));
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTRY_VERIFY(list.Frame->Filter_is_done());
        QVERIFY(list.Rows.IsEmpty());
        QCOMPARE(list.Selections, 0);
    }

    void typingAloneFiltersAndPicksNothing()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("نیر"));
        QTRY_COMPARE(list.Rows.RecordCount(), 1);
        QTRY_VERIFY(list.Frame->Filter_is_done());
        QCOMPARE(list.Selections, 0);
    }

    void theNextEnterPicksAgain()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("نان"));
        QTRY_VERIFY(list.Frame->Filter_is_done());
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTRY_COMPARE(list.Selections, 1);
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTRY_COMPARE(list.Selections, 2);
        QCOMPARE(list.Applied.size(), 1);
    }

    void withoutManagerOrDataSetNothingIsPicked()
    {
        TListForm list;
        QVERIFY(list.Start());
        list.Manager.SetDataSet(static_cast<TADOQuery*>(nullptr));
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTest::qWait(20);
        list.Frame->Refrenc_SearchManager = nullptr;
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTest::qWait(20);
        QCOMPARE(list.Selections, 0);
    }

    void theCaretIsWhereItWasAfterTheSelection()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("نا"));
        list.Edit()->SetCaretPos(1);
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTRY_COMPARE(list.Selections, 1);
        QCOMPARE(list.Edit()->CaretPos(), 1);
    }

    void theFrameMayBeDestroyedByTheSelection()
    {
        TListForm list;
        QVERIFY(list.Start());
        list.Frame->doselection = [&list] {
            ++list.Selections;
            list.Form.reset();
        };
        Typing::Type(list.Edit(), QStringLiteral("نان"));
        QTest::sendKeyEvent(QTest::Press, list.Edit(), Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
        QTRY_COMPARE(list.Selections, 1);
        QVERIFY(!list.Form);
    }

    void aSelectionThatOpensADialogKeepsTheBarAlive()
    {
        TListForm list;
        QVERIFY(list.Start());
        list.Frame->doselection = [&list] {
            ++list.Selections;
            QEventLoop dialog;
            QTimer::singleShot(0, &dialog, [&list] { Typing::Type(list.Edit(), QStringLiteral("x")); });
            QTimer::singleShot(600, &dialog, &QEventLoop::quit);
            dialog.exec();
        };
        Typing::Type(list.Edit(), QStringLiteral("نان"));
        Typing::Press(list.Edit(), Qt::Key_Return);
        QTRY_COMPARE(list.Applied.size(), 2);
        QCOMPARE(list.Selections, 1);
        QCOMPARE(list.Applied.last().toString().size(), 4);
    }

    void arrowsAndEnterHandTheFocusToTheFollowingControl_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Up") << static_cast<int>(Qt::Key_Up);
        QTest::newRow("Down") << static_cast<int>(Qt::Key_Down);
    }
    void arrowsAndEnterHandTheFocusToTheFollowingControl()
    {
        QFETCH(int, key);
        TListForm list;
        list.Criterion()->SetFollowControl(list.Other);
        QVERIFY(list.Start());
        list.Host.Clock.Stop();
        QTimer::singleShot(50, list.Form.get(), [&list, key] {
            Typing::Press(list.Frame->Search_EDT, static_cast<Qt::Key>(key));
        });
        Typing::Type(list.Edit(), QStringLiteral("نان"));
        QTRY_COMPARE(list.Selections, 1);
        QCOMPARE(QApplication::focusWidget(), list.Other);
        QCOMPARE(list.Applied, QVariantList{QStringLiteral("نان")});
    }

    void theFrameMayBeDestroyedAsTheFocusMovesOn()
    {
        TListForm list;
        list.Criterion()->SetFollowControl(list.Other);
        QVERIFY(list.Start());
        const QPointer<TGeneral_Search_Frame> frame = list.Frame;
        list.Frame->Search_EDT->OnExit = [&list](QObject*) { delete list.Frame; };
        Typing::Press(list.Edit(), Qt::Key_Down);
        QVERIFY(!frame);
        QCOMPARE(QApplication::focusWidget(), list.Other);
    }

    void otherKeysKeepTheFocus()
    {
        TListForm list;
        list.Criterion()->SetFollowControl(list.Other);
        QVERIFY(list.Start());
        Typing::Press(list.Edit(), Qt::Key_Left);
        Typing::Press(list.Edit(), Qt::Key_F5);
        QCOMPARE(QApplication::focusWidget(), list.Frame->Search_EDT);
    }

    void aTextOfOnlyBlanksIsClearedByTheNextKey()
    {
        TListForm list;
        list.Criterion()->SetFollowControl(list.Other);
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("  "));
        QCOMPARE(list.Edit()->Text(), QStringLiteral(" "));
        Typing::Press(list.Edit(), Qt::Key_Left);
        QCOMPARE(list.Edit()->Text(), QString());
        QTRY_VERIFY(list.Frame->Filter_is_done());
        QVERIFY(!list.Frame->Search_Reverst_CHK->isEnabled());
        QVERIFY(list.Criterion()->Value1().toString().isEmpty());
    }

    void theNotBoxTurnsTheConditionRound()
    {
        TListForm list;
        QVERIFY(list.Start());
        Typing::Type(list.Edit(), QStringLiteral("نیر"));
        QTRY_COMPARE(list.Rows.RecordCount(), 1);
        QTRY_VERIFY(list.Frame->Search_Reverst_CHK->isEnabled());
        QTest::mouseClick(list.Frame->Search_Reverst_CHK, Qt::LeftButton);
        QVERIFY(list.Criterion()->Reverst());
        QTRY_COMPARE(list.Rows.RecordCount(), 2);
        QTest::mouseClick(list.Frame->Search_Reverst_LBL, Qt::LeftButton);
        QVERIFY(!list.Frame->Search_Reverst_CHK->Checked());
        QVERIFY(!list.Criterion()->Reverst());
        QTRY_COMPARE(list.Rows.RecordCount(), 1);
    }

    void itsMnemonicTurnsItOnce()
    {
        TListForm list;
        QVERIFY(list.Start());
        list.Frame->ReverstSearchEnabled(true);
        PressMnemonic(list);
        QVERIFY(list.Frame->Search_Reverst_CHK->Checked());
        QVERIFY(list.Criterion()->Reverst());
        PressMnemonic(list);
        QVERIFY(!list.Criterion()->Reverst());
    }

    void aDisabledNotBoxDoesNothing()
    {
        TListForm list;
        QVERIFY(list.Start());
        QTest::mouseClick(list.Frame->Search_Reverst_LBL, Qt::LeftButton);
        QTest::mouseClick(list.Frame->Search_Reverst_CHK, Qt::LeftButton);
        PressMnemonic(list);
        QVERIFY(!list.Criterion()->Reverst());
    }
};

QTEST_MAIN(GeneralSearchSelectionTest)
#include "GeneralSearchSelectionTest.moc"
