#include "Balloon.h"
#include "ActiveWindow.h"
#include "PersianText.h"
#include "TypedKeys.h"

#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QString Sentence = QStringLiteral("کد 12/3-A وجود ندارد؛ کد دیگری بنویسید.");

QWidget* BalloonOf(const QWidget& window)
{
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (child->isWindow() && child->isVisible() && child->windowType() == Qt::ToolTip)
            return child;
    }
    return nullptr;
}

} // namespace

class BalloonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itPointsAtItsControlAndLeavesTheFocus();
    void itStandsBelowWhereThereIsNoRoomAbove();
    void itStaysOnTheScreen();
    void onlyTheLastOneIsShown();
    void itGoesWhenTheUserTypesIntoTheControl();
    void itStaysWhileTheUserTypesElsewhere();
    void itGoesAfterItsTime();
    void itGoesWithItsControl();
    void itGoesWhenTheWindowMovesOrIsLeft();
    void aClickTakesItAway();
    void aHiddenControlHasNone();
    void codesInTheSentenceKeepTheirOrder();
    void itsGroundIsSilver();

private:
    std::unique_ptr<QWidget> window_;
    QLineEdit* edit_ = nullptr;
    QLineEdit* other_ = nullptr;
};

void BalloonTest::init()
{
    window_ = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(window_.get());
    edit_ = new QLineEdit;
    other_ = new QLineEdit;
    layout->addWidget(edit_);
    layout->addWidget(other_);
    edit_->setFocus();
    window_->setGeometry(200, 300, 300, 100);
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    QTRY_VERIFY(edit_->hasFocus());
}

void BalloonTest::cleanup()
{
    window_.reset();
    QCOMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::itPointsAtItsControlAndLeavesTheFocus()
{
    Balloon::Show(edit_, Sentence, 0, QStringLiteral("خطا"));
    QCOMPARE(Balloon::ShownText(), Sentence);
    QWidget* balloon = BalloonOf(*window_);
    QVERIFY(balloon);
    QTest::qWait(50);
    QVERIFY(edit_->hasFocus());
    QVERIFY(window_->isActiveWindow());
    const QRect control(edit_->mapToGlobal(QPoint(0, 0)), edit_->size());
    QCOMPARE(balloon->geometry().bottom() + 1, control.top());
    QVERIFY(balloon->geometry().left() < control.right() && balloon->geometry().right() > control.left());
    // The tip is the lowest point of the outline, over the control.
    const QRect tip =
        QRegion(balloon->mask() & QRect(0, balloon->height() - 3, balloon->width(), 3)).boundingRect();
    QVERIFY(!tip.isEmpty());
    QVERIFY(control.contains(balloon->mapToGlobal(tip.center()) + QPoint(0, 8)));
}

void BalloonTest::itStandsBelowWhereThereIsNoRoomAbove()
{
    window_->move(200, 0);
    QTRY_COMPARE(window_->pos().y(), 0);
    Balloon::Show(edit_, Sentence, 0);
    QWidget* balloon = BalloonOf(*window_);
    QVERIFY(balloon);
    QCOMPARE(balloon->geometry().top(), edit_->mapToGlobal(QPoint(0, edit_->height())).y());
}

void BalloonTest::itStaysOnTheScreen()
{
    window_->move(0, 300);
    QTRY_COMPARE(window_->pos().x(), 0);
    edit_->setMaximumWidth(30);
    QCoreApplication::processEvents();
    Balloon::Show(edit_, Sentence + Sentence + Sentence, 0);
    QWidget* balloon = BalloonOf(*window_);
    QVERIFY(balloon);
    QVERIFY(window_->screen()->availableGeometry().contains(balloon->geometry()));
}

void BalloonTest::onlyTheLastOneIsShown()
{
    Balloon::Show(edit_, Sentence, 0);
    Balloon::Show(other_, QStringLiteral("دوم"), 0);
    QCOMPARE(Balloon::ShownText(), QStringLiteral("دوم"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(BalloonOf(*window_));
    Balloon::Hide();
    QVERIFY(!BalloonOf(*window_));
}

void BalloonTest::itGoesWhenTheUserTypesIntoTheControl()
{
    Balloon::Show(edit_, Sentence, 0);
    QTest::keyClick(edit_, Qt::Key_Left);
    QCOMPARE(Balloon::ShownText(), Sentence);
    TypedKeys::Text(edit_, QStringLiteral("ا"));
    QCOMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::itStaysWhileTheUserTypesElsewhere()
{
    Balloon::Show(edit_, Sentence, 0);
    TypedKeys::Text(other_, QStringLiteral("a"));
    QCOMPARE(Balloon::ShownText(), Sentence);
}

void BalloonTest::itGoesAfterItsTime()
{
    Balloon::Show(edit_, Sentence, 30);
    QCOMPARE(Balloon::ShownText(), Sentence);
    QTRY_COMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::itGoesWithItsControl()
{
    Balloon::Show(edit_, Sentence, 0);
    edit_->hide();
    QCOMPARE(Balloon::ShownText(), QString());
    edit_->show();
    Balloon::Show(edit_, Sentence, 0);
    delete edit_;
    QCOMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::itGoesWhenTheWindowMovesOrIsLeft()
{
    Balloon::Show(edit_, Sentence, 0);
    window_->move(window_->pos() + QPoint(20, 20));
    QTRY_COMPARE(Balloon::ShownText(), QString());
    Balloon::Show(edit_, Sentence, 0);
    QWidget another;
    another.show();
    QVERIFY(ActiveWindow::Activate(&another));
    QTRY_COMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::aClickTakesItAway()
{
    Balloon::Show(edit_, Sentence, 0);
    QTest::mouseClick(BalloonOf(*window_), Qt::LeftButton);
    QCOMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::aHiddenControlHasNone()
{
    edit_->hide();
    Balloon::Show(edit_, Sentence, 0);
    Balloon::Show(nullptr, Sentence, 0);
    QCOMPARE(Balloon::ShownText(), QString());
}

void BalloonTest::codesInTheSentenceKeepTheirOrder()
{
    QCOMPARE(PersianText::WithIsolatedCodes(Sentence),
             QStringLiteral("کد \u206812/3-A\u2069 وجود ندارد؛ کد دیگری بنویسید."));
    QCOMPARE(PersianText::WithIsolatedCodes(QStringLiteral("از -5 تا 1,200.5.")),
             QStringLiteral("از \u2068-5\u2069 تا \u20681,200.5\u2069."));
    const QString isolated = QStringLiteral("کد \u2068A 1\u2069 هست");
    QCOMPARE(PersianText::WithIsolatedCodes(isolated), isolated);
}

void BalloonTest::itsGroundIsSilver()
{
    Balloon::Show(edit_, Sentence, 0);
    QWidget* balloon = BalloonOf(*window_);
    QVERIFY(balloon);
    QCOMPARE(balloon->grab().toImage().pixelColor(balloon->width() / 2, 3), QColor(0xC0, 0xC0, 0xC0));
}

QTEST_MAIN(BalloonTest)
#include "BalloonTest.moc"
