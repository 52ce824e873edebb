#include "AccountLine.h"
#include "TestCase.h"

namespace {

/// The Tab strokes that reach the application's controls: "down" and "up".
class TTabWatch : public QObject
{
public:
    TTabWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isPress = event->type() == QEvent::KeyPress;
        if (watched->isWidgetType() && (isPress || event->type() == QEvent::KeyRelease) &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab)
            Strokes.append(isPress ? QStringLiteral("down") : QStringLiteral("up"));
        return false;
    }
    QStringList Strokes;
};

} // namespace

class SelectAccountCodeAdvanceTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

private Q_SLOTS:
    void aFilledAccountBoxMovesOnByAFullStroke_data()
    {
        QTest::addColumn<TCodeItem>("level");
        QTest::addColumn<QString>("code");
        QTest::addColumn<TCodeItem>("next");
        QTest::newRow("total") << L::T << "007" << L::A;
        QTest::newRow("assistant") << L::A << "002" << L::D;
        QTest::newRow("detail") << L::D << "000011" << L::E;
        QTest::newRow("Persian digits") << L::T << QStringLiteral("۰۰۷") << L::A;
    }
    void aFilledAccountBoxMovesOnByAFullStroke()
    {
        QFETCH(TCodeItem, level);
        QFETCH(QString, code);
        QFETCH(TCodeItem, next);
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        if (level == L::D)
            line.Frame->SetAssistantCode(2);
        QVERIFY(line.Start(level));
        TTabWatch watch;
        Typing::Type(line.Box(level), code.chopped(1));
        QCoreApplication::processEvents();
        QVERIFY(line.Box(level)->hasFocus());
        Typing::Type(line.Box(level), code.right(1));
        QTRY_COMPARE(watch.Strokes, (QStringList{"down", "up"}));
        QVERIFY(line.Box(next)->hasFocus());
        QVERIFY(line.Messages().isEmpty());
    }

    void aFilledExpenseCenterMovesOnByAPressOnly()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        TTabWatch watch;
        Typing::Type(line.Box(L::E), QStringLiteral("1234"));
        QTRY_VERIFY(line.After->hasFocus());
        QTest::qWait(20);
        QCOMPARE(watch.Strokes, QStringList{"down"});
        QCOMPARE(line.Events, QStringList{"change"});
    }

    void theExitsPaddingDoesNotSkipTheNextControl()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        Typing::Type(line.Box(L::E), QStringLiteral("42"));
        TTabWatch watch;
        line.Leave();
        QTest::qWait(20);
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("0042"));
        QCOMPARE(watch.Strokes.count(QStringLiteral("down")), 1); // the user's own
        QVERIFY(line.After->hasFocus());
    }

    void theOwnersCodesMoveNobody()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Before->setFocus();
        TTabWatch watch;
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        line.Frame->SetDetailCode(11);
        line.Frame->SetExpCenterCode(1234);
        QTest::qWait(20);
        QVERIFY(watch.Strokes.isEmpty());
        QVERIFY(line.Before->hasFocus());
    }

    void anExpenseCenterThatIsWrittenIntoItsBoxMovesOnWhereverTheFocusIs()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Before->setFocus();
        TTabWatch watch;
        line.Box(L::E)->SetText(QStringLiteral("1234"));
        QTest::qWait(20);
        QCOMPARE(watch.Strokes, QStringList{"down"});
    }

    void textsThatBeginWithALetterDoNotMoveOn()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        TTabWatch watch;
        line.Box(L::T)->SetText(QStringLiteral("abc"));
        line.Box(L::E)->SetText(QStringLiteral("مرکز"));
        line.Box(L::E)->SetMaxLength(0);
        line.Box(L::E)->SetText(QString());
        QTest::qWait(20);
        QVERIFY(watch.Strokes.isEmpty());
    }

    void aCodeThatBeginsWithAMovesOn()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("A12"));
        QTRY_VERIFY(line.Box(L::A)->hasFocus());
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("کل"));
    }

    void anUnknownCodeThatMovedOnComesBack()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("555"));
        QTRY_COMPARE(line.Messages().size(), 1);
        QTest::qWait(20);
        QVERIFY(line.Box(L::T)->hasFocus());
        QCOMPARE(line.Messages().size(), 1);
    }

    void aBookkeeperTypesALineWithoutTab()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        for (const QChar digit : QStringLiteral("0070020000111234")) {
            Typing::Type(QApplication::focusWidget(), digit);
            QTest::qWait(5);
        }
        QTRY_VERIFY(line.After->hasFocus());
        QCOMPARE(line.Texts(), (QStringList{"007", "002", "000011", "1234"}));
        QVERIFY(line.Messages().isEmpty());
    }
};

QTEST_MAIN(SelectAccountCodeAdvanceTest)
#include "SelectAccountCodeAdvanceTest.moc"
