#include "SearchBar.h"
#include "TestCase.h"

#include <algorithm>
#include <ctime>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>

class GeneralSearchTypingTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typingQuicklyAppliesTheValueOnce()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        QElapsedTimer sinceLastKey;
        Typing::Type(bar.Edit(), QStringLiteral("ab"));
        sinceLastKey.start();
        Typing::Type(bar.Edit(), QStringLiteral("c"));
        QVERIFY(!bar.Frame->Filter_is_done());
        QTRY_VERIFY(bar.Frame->Filter_is_done());
        QVERIFY2(sinceLastKey.elapsed() >= 400, qPrintable(QString::number(sinceLastKey.elapsed())));
        QCOMPARE(bar.Applied, QVariantList{QStringLiteral("abc")});
        QTest::qWait(50);
        QCOMPARE(bar.Applied.size(), 1);
    }

    void keysDuringTheWaitPutItOff()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        int delay = 0;
        int early = 0;
        for (const QChar character : QStringLiteral("شیر")) {
            delay += 250;
            QTimer::singleShot(delay, bar.Form.get(), [&bar, &early, character] {
                early += static_cast<int>(bar.Applied.size());
                Typing::Type(bar.Edit(), character);
                early += bar.Frame->Filter_is_done() ? 1 : 0;
            });
        }
        QTRY_COMPARE(bar.Applied, QVariantList{QStringLiteral("شیر")});
        QCOMPARE(early, 0);
        QVERIFY(bar.Frame->Filter_is_done());
    }

    void thePauseIsMeasuredByTheHostsClock()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Host.Clock.Stop();
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        QTimer::singleShot(450, [&bar] {
            QVERIFY(bar.Applied.isEmpty());
            bar.Host.Clock.Advance(399);
        });
        QTimer::singleShot(550, [&bar] {
            QVERIFY(bar.Applied.isEmpty());
            bar.Host.Clock.Advance(1);
        });
        QTRY_COMPARE(bar.Applied.size(), 1);
    }

    void thePauseIsRightWhenTheTickWraps()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Host.Clock.SetTickCount(0xFFFFFFFFU - 100);
        QElapsedTimer timer;
        timer.start();
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        QVERIFY(timer.elapsed() >= 400);
        QVERIFY(timer.elapsed() < 2000);
    }

    void enterAppliesAtOnce()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Host.Clock.Stop();
        Typing::Type(bar.Edit(), QStringLiteral("abc"));
        QTest::keyClick(bar.Edit(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(bar.Applied, QVariantList{QStringLiteral("abc")});
        QVERIFY(bar.Frame->Filter_is_done());
    }

    void enterDuringTheWaitEndsItAtOnce()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        bar.Host.Clock.Stop();
        bool wasAppliedBefore = true;
        QTimer::singleShot(100, [&] {
            wasAppliedBefore = !bar.Applied.isEmpty();
            QTest::keyClick(bar.Edit(), Qt::Key_Enter);
        });
        Typing::Type(bar.Edit(), QStringLiteral("abc"));
        QTRY_COMPARE(bar.Applied, QVariantList{QStringLiteral("abc")});
        QVERIFY(!wasAppliedBefore);
    }

    void leadingBlanksAreRemovedAndOthersStay()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        Typing::Type(bar.Edit(), QStringLiteral("  a b "));
        QTRY_COMPARE(bar.Applied, QVariantList{QStringLiteral("a b ")});
    }

    void aMoneyValueArrivesAsFloatingPoint()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(1));
        QCOMPARE(bar.Edit(), bar.Frame->SearchCost_EDT);
        Typing::Type(bar.Edit(), QStringLiteral("۱۲۵۰"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        QCOMPARE(bar.Applied.first().typeId(), static_cast<int>(QMetaType::Double));
        QCOMPARE(bar.Applied.first().toDouble(), 1250.0);
        QVERIFY(bar.Frame->Search_Reverst_CHK->isEnabled());
    }

    void aMoneyValueOfZeroWritesTheTextZero()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(1));
        Typing::Type(bar.Edit(), QStringLiteral("5"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        Typing::Press(bar.Edit(), Qt::Key_Backspace);
        QTRY_COMPARE(bar.Applied.size(), 2);
        QCOMPARE(bar.Applied.last().typeId(), static_cast<int>(QMetaType::QString));
        QCOMPARE(bar.Applied.last().toString(), QStringLiteral("0"));
        QVERIFY(!bar.Frame->Search_Reverst_CHK->isEnabled());
    }

    void aDigitValueArrivesAsFloatingPoint()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(2));
        QCOMPARE(bar.Edit(), bar.Frame->SearchDigit_EDT);
        Typing::Type(bar.Edit(), QStringLiteral("42"));
        QTRY_COMPARE(bar.Applied, QVariantList{42.0});
        QCOMPARE(bar.Applied.first().typeId(), static_cast<int>(QMetaType::Double));
        QVERIFY(bar.Frame->Search_Reverst_LBL->isEnabled());
    }

    void aDigitValueOfZeroWritesAnEmptyText()
    {
        TSearchBar bar;
        QVERIFY(bar.Start(2));
        Typing::Type(bar.Edit(), QStringLiteral("7"));
        QTRY_COMPARE(bar.Applied.size(), 1);
        Typing::Press(bar.Edit(), Qt::Key_Backspace);
        QTRY_COMPARE(bar.Applied.size(), 2);
        QCOMPARE(bar.Applied.last().typeId(), static_cast<int>(QMetaType::QString));
        QCOMPARE(bar.Applied.last().toString(), QString());
        QVERIFY(!bar.Frame->Search_Reverst_LBL->isEnabled());
    }

    void theCaretStaysWhereTheUserLeftIt()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        Typing::Type(bar.Edit(), QStringLiteral("abcd"));
        Typing::Press(bar.Edit(), Qt::Key_Home);
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        const int caret = bar.Edit()->CaretPos();
        QTRY_COMPARE(bar.Applied, QVariantList{QStringLiteral("xabcd")});
        QCOMPARE(bar.Edit()->CaretPos(), caret);
    }

    void theWaitSleeps()
    {
#ifdef Q_OS_UNIX
        TSearchBar bar;
        QVERIFY(bar.Start());
        QTest::qWait(50);
        const auto processorTime = [] {
            timespec time{};
            clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
            return static_cast<double>(time.tv_sec) * 1000.0 + static_cast<double>(time.tv_nsec) / 1e6;
        };
        QElapsedTimer wall;
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        wall.start();
        const double before = processorTime();
        QCoreApplication::sendPostedEvents(bar.Frame, TGeneral_Search_Frame::EditChangeMessage);
        const double used = processorTime() - before;
        QCOMPARE(bar.Applied.size(), 1);
        QVERIFY(wall.elapsed() >= 390);
        const double share = used / static_cast<double>(wall.elapsed());
        QVERIFY2(share < 0.25, qPrintable(QString::number(share)));
#else
        QSKIP(
            "The processor time of a process is asked for by clock_gettime, which only POSIX systems have.");
#endif
    }

    void aHeldKeyDoesNotPileUpWaits()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        int deepest = 0;
        QObject counter;
        for (int count = 0; count < 300; ++count) {
            QTimer::singleShot(count, &counter, [&] {
                Typing::Type(bar.Edit(), QStringLiteral("a"));
                deepest = std::max(deepest, QThread::currentThread()->loopLevel());
            });
        }
        QTRY_COMPARE(bar.Applied, QVariantList{QString(300, u'a')});
        QVERIFY2(deepest <= 2, qPrintable(QString::number(deepest)));
    }

    void theFrameMayBeDestroyedDuringTheWait()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        QPointer<TGeneral_Search_Frame> frame(bar.Frame);
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        QTimer::singleShot(100, bar.Form.get(), [&bar] { delete bar.Frame; });
        QTest::qWait(600);
        QVERIFY(!frame);
        QVERIFY(bar.Applied.isEmpty());
    }

    void theFormMayBeClosedAndDestroyedDuringTheWait()
    {
        TSearchBar bar;
        QVERIFY(bar.Start());
        QPointer<TGeneral_Search_Frame> frame(bar.Frame);
        Typing::Type(bar.Edit(), QStringLiteral("x"));
        QTimer::singleShot(100, [&bar] { bar.Form.reset(); });
        QTest::qWait(600);
        QVERIFY(!frame);
    }
};

QTEST_MAIN(GeneralSearchTypingTest)
#include "GeneralSearchTypingTest.moc"
