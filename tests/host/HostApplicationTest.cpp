#include "HostTestMain.h"
#include "ModalBox.h"

#include "ADOConnection.h"
#include "AdoError.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <stdexcept>
#include <thread>

namespace {

THostApplication& Application()
{
    return static_cast<THostApplication&>(*qApp);
}

EADOError DatabaseError()
{
    return {TAdoErrorKind::Constraint,
            QStringLiteral("این کد پیش‌تر ثبت شده است."),
            QStringLiteral("INSERT INTO dbo.kala"),
            QStringLiteral("UNIQUE constraint failed"),
            QStringLiteral("23000"),
            2627};
}

class TFailingPainter : public QWidget
{
protected:
    void paintEvent(QPaintEvent* /*event*/) override { throw DatabaseError(); }
};

} // namespace

class HostApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reports_.clear();
        Application().SetErrorDisplay([this](const TErrorReport& report) { reports_.append(report); });
    }

    void cleanup() { Application().SetErrorDisplay({}); }

    void anErrorInASlotIsShownAndTheProgramGoesOn()
    {
        QPushButton button(QStringLiteral("ثبت"));
        int clicks = 0;
        connect(&button, &QPushButton::clicked, this, [&clicks] {
            ++clicks;
            throw DatabaseError();
        });
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_COMPARE(reports_.size(), 1);
        QCOMPARE(reports_.constFirst().Text,
                 QStringLiteral("این کد پیش‌تر ثبت شده است."));
        QVERIFY(reports_.constFirst().Details.contains(QStringLiteral("UNIQUE constraint failed")));
        QVERIFY(reports_.constFirst().Details.contains(QStringLiteral("INSERT INTO dbo.kala")));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_COMPARE(reports_.size(), 2);
        QCOMPARE(clicks, 2);
    }

    void errorsOfTimersAndPostedCallsAreShownToo()
    {
        QTimer::singleShot(0, this, [] { throw std::logic_error("LookupDBs"); });
        QTRY_COMPARE(reports_.size(), 1);
        QVERIFY(reports_.constFirst().Details.contains(QStringLiteral("LookupDBs")));
        QMetaObject::invokeMethod(
            this, [] { throw 5; }, Qt::QueuedConnection);
        QTRY_COMPARE(reports_.size(), 2);
        QVERIFY(!reports_.constLast().Text.isEmpty());
    }

    void aCancelledStatementIsNoError()
    {
        QTimer::singleShot(0, this,
                           [] { throw EADOError(TAdoErrorKind::Cancelled, QStringLiteral("لغو شد")); });
        QTest::qWait(50);
        QCOMPARE(reports_.size(), 0);
    }

    void anErrorOfAWorkerIsShownOnTheUserInterfaceThread()
    {
        std::thread::id shownOn;
        Application().SetErrorDisplay(
            [&shownOn](const TErrorReport& /*report*/) { shownOn = std::this_thread::get_id(); });
        std::thread worker([] { Application().Report({QStringLiteral("خواندن صفحه نشد")}); });
        worker.join();
        QTRY_VERIFY(shownOn == std::this_thread::get_id());
    }

    void errorsWhileOneIsShownWaitTheirTurnAndDoNotRecurse()
    {
        int depth = 0;
        int deepest = 0;
        QStringList texts;
        Application().SetErrorDisplay([&](const TErrorReport& report) {
            deepest = qMax(deepest, ++depth);
            texts.append(report.Text);
            if (texts.size() == 1) {
                Application().Report({QStringLiteral("دوم")});
                Application().Report({QStringLiteral("نخست")});
                Application().Report({QStringLiteral("دوم")});
            }
            QTest::qWait(20);
            --depth;
        });
        Application().Report({QStringLiteral("نخست")});
        QTRY_COMPARE(texts, (QStringList{QStringLiteral("نخست"), QStringLiteral("دوم")}));
        QTest::qWait(50);
        QCOMPARE(texts.size(), 2);
        QCOMPARE(deepest, 1);
    }

    void aWidgetThatFailsToPaintDoesNotFloodTheUser()
    {
        TFailingPainter painter;
        painter.show();
        QVERIFY(QTest::qWaitForWindowExposed(&painter));
        for (int i = 0; i < 20; ++i) {
            painter.repaint();
            QTest::qWait(5);
        }
        QCOMPARE(reports_.size(), 1);
    }

    void theBoxGivesTheFocusBackAndHidesTheTechnicalWords()
    {
        Application().SetErrorDisplay({});
        QLineEdit edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        edit.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&edit));
        edit.setFocus();
        bool detailsShown = true;
        ModalBox::TAnswer answer([&detailsShown](TMessageDialog& box) {
            detailsShown = box.findChild<QPlainTextEdit*>()->isVisible();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        QTimer::singleShot(0, &edit, [] { throw std::runtime_error("technical words"); });
        QTRY_COMPARE(answer.Boxes(), 1);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(!detailsShown);
        edit.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&edit));
        QCOMPARE(QApplication::focusWidget(), &edit);
    }

    void aLostConnectionIsOpenedAgainOnTheUsersWordOnly_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("reopened");
        QTest::newRow("Enter opens it") << static_cast<int>(Qt::Key_Return) << true;
        QTest::newRow("Escape leaves it") << static_cast<int>(Qt::Key_Escape) << false;
    }

    void aLostConnectionIsOpenedAgainOnTheUsersWordOnly()
    {
        QFETCH(int, key);
        QFETCH(bool, reopened);
        Application().SetErrorDisplay({});
        TADOConnection connection;
        connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Application().SetConnection(&connection);
        QSignalSpy spy(&Application(), &THostApplication::connectionReopened);
        ModalBox::TAnswer answer(ModalBox::Key(static_cast<Qt::Key>(key)));
        const QString sentence = QStringLiteral("ارتباط با پایگاه داده قطع شد. %1").arg(key);
        // The statement that failed tells it too; the user is asked once.
        QTimer::singleShot(0, &connection, [&connection, sentence] {
            Q_EMIT connection.connectionLost(sentence);
            throw EADOError(TAdoErrorKind::ConnectionLost, sentence);
        });
        QTRY_COMPARE(answer.Boxes(), 1);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
        QTest::qWait(50);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY(answer.Texts.constFirst().startsWith(sentence));
        QCOMPARE(connection.Connected(), reopened);
        QCOMPARE(spy.count(), reopened ? 1 : 0);
        Application().SetConnection(nullptr);
        // Until a loss counts as a new one.
        QTest::qWait(2100);
    }

private:
    QVector<TErrorReport> reports_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<HostApplicationTest>(argc, argv);
}
#include "HostApplicationTest.moc"
