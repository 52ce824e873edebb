#include "AccountLine.h"
#include "TestCase.h"

#include <QDialog>
#include <QTimer>

/// Messages that stay open, and owners and hosts that do not wait.
class SelectAccountCodeMessagesTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

    /// Messages open a box over the form, and then give the control the focus, as hosts do.
    static void ShowBoxes(TAccountLine& line)
    {
        line.Host.Messages.WhileShown = [&line](QWidget* control) {
            QDialog box(line.Form.get());
            QTimer::singleShot(30, &box, &QDialog::accept);
            box.exec();
            line.Form->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(line.Form.get()));
            control->setFocus();
        };
    }

private Q_SLOTS:
    void aModalMessageIsShownOnceAndTheFocusComesBack_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::addColumn<QString>("text");
        QTest::newRow("total") << L::T << "005";
        QTest::newRow("assistant") << L::A << "005";
        QTest::newRow("detail") << L::D << "000005";
        QTest::newRow("expense center") << L::E << "0005";
    }
    void aModalMessageIsShownOnceAndTheFocusComesBack()
    {
        QFETCH(TCodeItem, level);
        QFETCH(QString, text);
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        ShowBoxes(line);
        QVERIFY(line.Start(level));
        Typing::Type(line.Box(level), QStringLiteral("5"));
        line.Leave();
        QTest::qWait(50);
        line.Form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(line.Form.get()));
        QCOMPARE(line.Messages().size(), 1);
        QCOMPARE(line.Box(level)->Text(), text);
        QVERIFY(line.Box(level)->hasFocus());
    }

    void theFormMayBeClosedWhileTheMessageIsOpen_data()
    {
        aModalMessageIsShownOnceAndTheFocusComesBack_data();
    }
    void theFormMayBeClosedWhileTheMessageIsOpen()
    {
        QFETCH(TCodeItem, level);
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        QVERIFY(line.Start(level));
        const QPointer<TSelect_AccountCode> frame(line.Frame);
        line.Host.Messages.WhileShown = [frame](QWidget*) { delete frame.data(); };
        line.Box(level)->SetText(QStringLiteral("5"));
        frame->RunExit(level, nullptr);
        QVERIFY(frame.isNull());
    }

    void aModalMessageLeavesNoBoxWithoutItsName()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        ShowBoxes(line);
        QVERIFY(line.Start(L::D));
        line.Enter(L::D, QStringLiteral("5"));
        QCOMPARE(line.Texts(), (QStringList{"007", "002", "000005", "مرکزهزينه"}));
        QVERIFY(line.Box(L::D)->hasFocus());
    }

    void severalUnknownCodesDoNotQuarrelOverTheFocus_data()
    {
        QTest::addColumn<TCodeItem>("from");
        QTest::addColumn<TCodeItem>("to");
        QTest::addColumn<QStringList>("boxes");
        const QString total = QStringLiteral("TotalCode_EDT");
        const QString assistant = QStringLiteral("AssistantCode_EDT");
        const QString detail = QStringLiteral("DetailCode_EDT");
        const QString center = QStringLiteral("ExpenseCenterCode_EDT");
        QTest::newRow("total to assistant") << L::T << L::A << QStringList{total};
        QTest::newRow("total to detail") << L::T << L::D << QStringList{total};
        QTest::newRow("total to center") << L::T << L::E << QStringList{total};
        QTest::newRow("assistant to total") << L::A << L::T << QStringList{assistant, center};
        QTest::newRow("assistant to detail") << L::A << L::D << QStringList{assistant, center};
        QTest::newRow("detail to total") << L::D << L::T << QStringList{detail};
        QTest::newRow("center to total") << L::E << L::T << QStringList{center};
    }
    void severalUnknownCodesDoNotQuarrelOverTheFocus()
    {
        QFETCH(TCodeItem, from);
        QFETCH(TCodeItem, to);
        QFETCH(QStringList, boxes);
        for (const bool modal : {false, true}) {
            TAccountLine line;
            if (modal)
                ShowBoxes(line);
            QVERIFY(line.Start(from));
            line.Box(L::T)->SetText(QStringLiteral("5"));
            line.Box(L::A)->SetText(QStringLiteral("5"));
            line.Box(L::D)->SetText(QStringLiteral("5"));
            line.Box(L::E)->SetText(QStringLiteral("5"));
            line.Box(to)->setFocus();
            QTest::qWait(20);
            QCOMPARE(line.Messages().size(), boxes.size());
            for (qsizetype index = 0; index < boxes.size(); ++index)
                QVERIFY2(line.Messages().at(index).contains(boxes.at(index)),
                         qPrintable(line.Messages().at(index)));
            // The host leaves the focus where its last message pointed.
            const QString last = modal ? boxes.last() : boxes.first();
            QCOMPARE(QApplication::focusWidget()->objectName(), last);
        }
    }

    void anUnknownCenterIsReportedOnceWhenTheTotalIsRetyped()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(90);
        line.Frame->SetAssistantCode(1);
        line.Box(L::E)->SetText(QStringLiteral("0005"));
        QVERIFY(line.Start());
        line.Enter(L::T, QStringLiteral("7"));
        QCOMPARE(line.Messages().size(), 1);
        QCOMPARE(line.Tables.Statements.count(QStringLiteral("SELECT dbo.GetExpCenterName(0005) AS Title")),
                 1);
        QVERIFY(line.Box(L::E)->hasFocus());
    }

    void theOwnersHandlerMayDestroyTheFrame_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::newRow("total") << L::T;
        QTest::newRow("assistant") << L::A;
        QTest::newRow("detail") << L::D;
        QTest::newRow("expense center") << L::E;
    }
    void theOwnersHandlerMayDestroyTheFrame()
    {
        QFETCH(TCodeItem, level);
        TAccountLine line;
        QVERIFY(line.Start(level));
        const QPointer<TSelect_AccountCode> frame(line.Frame);
        line.Frame->OnChange = [frame](QObject*) { delete frame.data(); };
        Typing::Type(line.Box(level), QStringLiteral("42"));
        frame->RunExit(level, nullptr);
        QVERIFY(frame.isNull());
    }
};

QTEST_MAIN(SelectAccountCodeMessagesTest)
#include "SelectAccountCodeMessagesTest.moc"
