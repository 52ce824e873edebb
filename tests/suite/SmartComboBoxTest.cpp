#include "ActiveWindow.h"
#include "Ink.h"
#include "Look.h"
#include "SmartComboBox_TRV.h"
#include "TypedKeys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

class SmartComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void init();
    void cleanup() { window_.reset(); }
    void addingEntriesSelectsNone();
    void entriesCarryTheirNumbers();
    void writingTheIndexRaisesNothing();
    void indexOutOfRangeSelectsNone();
    void arrowKeysRaiseChangeThenSelect();
    void arrowKeyAtTheEndRaisesNothing();
    void wheelWithFocusChooses();
    void wheelWithoutFocusIsLeftToThePage();
    void typingChoosesAsAPersianReaderCompares();
    void keysOpenTheList_data();
    void keysOpenTheList();
    void mouseChoosesFromTheList();
    void choosingTheSameAgainSelectsWithoutChange();
    void escapeClosesTheListUnchanged();
    void listStaysReadableAndRightToLeft();
    void enterAndExitIgnoreTheList();
    void swallowedKeyDoesNotChoose();

private:
    void Wheel(int notches);

    std::unique_ptr<QWidget> window_;
    TSmartComboBox_TRV* combo_ = nullptr;
    QLineEdit* edit_ = nullptr;
    QStringList log_;
};

void SmartComboBoxTest::init()
{
    window_ = std::make_unique<QWidget>();
    window_->resize(300, 300);
    edit_ = new QLineEdit(window_.get());
    edit_->setGeometry(10, 10, 200, 28);
    combo_ = new TSmartComboBox_TRV(window_.get());
    combo_->setGeometry(100, 50, 121, 28);
    combo_->AddItem(QStringLiteral("نام کالا"), 5);
    combo_->AddItem(QStringLiteral("كد کالا"), 7); // with the Arabic kaf
    combo_->AddItem(QStringLiteral("بارکد"), 5'000'000'000);
    combo_->AddItem(QStringLiteral("F10 واحد :"));
    log_.clear();
    combo_->OnChange = [this](QObject*) { log_ += QStringLiteral("change %1").arg(combo_->ItemIndex()); };
    combo_->OnSelect = [this](QObject*) { log_ += QStringLiteral("select %1").arg(combo_->ItemIndex()); };
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    edit_->setFocus();
}

void SmartComboBoxTest::Wheel(int notches)
{
    const QPointF center(60, 14);
    QWheelEvent event(center, combo_->mapToGlobal(center), {}, QPoint(0, 120 * notches), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo_, &event);
}

void SmartComboBoxTest::addingEntriesSelectsNone()
{
    QCOMPARE(combo_->Count(), 4);
    QCOMPARE(combo_->ItemIndex(), -1);
    combo_->Clear();
    QCOMPARE(combo_->Count(), 0);
    QCOMPARE(combo_->ItemIndex(), -1);
    QVERIFY(log_.isEmpty());
}

void SmartComboBoxTest::entriesCarryTheirNumbers()
{
    QCOMPARE(combo_->ItemObject(1), 7);
    QCOMPARE(combo_->ItemObject(2), 5'000'000'000);
    QCOMPARE(combo_->ItemObject(3), 0);
    QCOMPARE(combo_->ItemObject(99), 0);
    QCOMPARE(combo_->ItemText(2), QStringLiteral("بارکد"));
}

void SmartComboBoxTest::writingTheIndexRaisesNothing()
{
    combo_->SetItemIndex(2);
    combo_->setCurrentIndex(1);
    QCOMPARE(combo_->ItemIndex(), 1);
    QVERIFY(log_.isEmpty());
}

void SmartComboBoxTest::indexOutOfRangeSelectsNone()
{
    combo_->SetItemIndex(1);
    combo_->SetItemIndex(4);
    QCOMPARE(combo_->ItemIndex(), -1);
    combo_->SetItemIndex(-7);
    QCOMPARE(combo_->ItemIndex(), -1);
}

void SmartComboBoxTest::arrowKeysRaiseChangeThenSelect()
{
    combo_->SetItemIndex(0);
    combo_->setFocus();
    QTest::keyClick(combo_, Qt::Key_Down);
    QCOMPARE(log_, QStringList({QStringLiteral("change 1"), QStringLiteral("select 1")}));
    QTest::keyClick(combo_, Qt::Key_Up);
    QCOMPARE(log_.mid(2), QStringList({QStringLiteral("change 0"), QStringLiteral("select 0")}));
}

void SmartComboBoxTest::arrowKeyAtTheEndRaisesNothing()
{
    combo_->SetItemIndex(3);
    combo_->setFocus();
    QTest::keyClick(combo_, Qt::Key_Down);
    QCOMPARE(combo_->ItemIndex(), 3);
    QVERIFY(log_.isEmpty());
}

void SmartComboBoxTest::wheelWithFocusChooses()
{
    combo_->SetItemIndex(0);
    combo_->setFocus();
    Wheel(-1);
    QCOMPARE(log_, QStringList({QStringLiteral("change 1"), QStringLiteral("select 1")}));
}

void SmartComboBoxTest::wheelWithoutFocusIsLeftToThePage()
{
    combo_->SetItemIndex(0);
    Wheel(-1);
    QCOMPARE(combo_->ItemIndex(), 0);
    QVERIFY(log_.isEmpty());
}

void SmartComboBoxTest::typingChoosesAsAPersianReaderCompares()
{
    combo_->setFocus();
    TypedKeys::Text(combo_, QStringLiteral("ک"));
    QCOMPARE(combo_->ItemIndex(), 1);
    TypedKeys::Text(combo_, QStringLiteral("د ک"));
    QCOMPARE(combo_->ItemIndex(), 1);
    QCOMPARE(log_.filter(QStringLiteral("change")).size(), 1);
}

void SmartComboBoxTest::keysOpenTheList_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void SmartComboBoxTest::keysOpenTheList()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    combo_->SetItemIndex(0);
    combo_->setFocus();
    QTest::keyClick(combo_, static_cast<Qt::Key>(key), modifiers);
    QTRY_VERIFY(combo_->view()->isVisible());
    QTest::keyClick(combo_->view(), Qt::Key_Down);
    QVERIFY2(log_.isEmpty(), "moving in the open list chooses nothing yet");
    QTest::keyClick(combo_->view(), Qt::Key_Return);
    QTRY_VERIFY(!combo_->view()->isVisible());
    QCOMPARE(log_, QStringList({QStringLiteral("change 1"), QStringLiteral("select 1")}));
}

void SmartComboBoxTest::mouseChoosesFromTheList()
{
    combo_->SetItemIndex(0);
    QTest::mouseClick(combo_, Qt::LeftButton);
    QTRY_VERIFY(combo_->view()->isVisible());
    QTest::qWait(QApplication::doubleClickInterval() +
                 50); // the list ignores the release of the opening click
    const QRect entry = combo_->view()->visualRect(combo_->model()->index(2, 0));
    QTest::mouseMove(combo_->view()->viewport(), entry.center());
    QTest::mouseClick(combo_->view()->viewport(), Qt::LeftButton, {}, entry.center());
    QTRY_COMPARE(log_, QStringList({QStringLiteral("change 2"), QStringLiteral("select 2")}));
}

void SmartComboBoxTest::choosingTheSameAgainSelectsWithoutChange()
{
    combo_->setFocus();
    combo_->SetItemIndex(1);
    QTest::keyClick(combo_, Qt::Key_F4);
    QTRY_VERIFY(combo_->view()->isVisible());
    QTest::keyClick(combo_->view(), Qt::Key_Return);
    QCOMPARE(log_, QStringList({QStringLiteral("select 1")}));
}

void SmartComboBoxTest::escapeClosesTheListUnchanged()
{
    combo_->setFocus();
    combo_->SetItemIndex(1);
    QTest::keyClick(combo_, Qt::Key_F4);
    QTRY_VERIFY(combo_->view()->isVisible());
    QTest::keyClick(combo_->view(), Qt::Key_Down);
    QTest::keyClick(combo_->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo_->view()->isVisible());
    QCOMPARE(combo_->ItemIndex(), 1);
    QVERIFY(log_.isEmpty());
}

void SmartComboBoxTest::listStaysReadableAndRightToLeft()
{
    combo_->AddItem(
        QStringLiteral("F10 نام بسیار بلند کالا که در جعبه جا نمی‌شود :"));
    combo_->showPopup();
    QTRY_VERIFY(combo_->view()->isVisible());
    QCOMPARE(combo_->view()->layoutDirection(), Qt::RightToLeft);
    QVERIFY(combo_->view()->viewport()->width() >= combo_->view()->sizeHintForColumn(0));
    const QRect entry = combo_->view()->visualRect(combo_->model()->index(3, 0));
    const QImage image = combo_->view()->viewport()->grab(entry).toImage();
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY2(runs.first().Width() <= 3, "the colon stands at the left end");
    QVERIFY2(runs.last().Last > image.width() - 12, "the entry stands at the right end");
    combo_->hidePopup();
}

void SmartComboBoxTest::enterAndExitIgnoreTheList()
{
    QStringList log;
    combo_->OnEnter = [&log](QObject*) { log += QStringLiteral("enter"); };
    combo_->OnExit = [&log](QObject*) { log += QStringLiteral("exit"); };
    combo_->setFocus();
    QTest::keyClick(combo_, Qt::Key_F4);
    QTRY_VERIFY(combo_->view()->isVisible());
    QTest::keyClick(combo_->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo_->view()->isVisible());
    QCOMPARE(log, QStringList({QStringLiteral("enter")}));
    edit_->setFocus();
    QCOMPARE(log, QStringList({QStringLiteral("enter"), QStringLiteral("exit")}));
    combo_->OnExit = nullptr;
}

void SmartComboBoxTest::swallowedKeyDoesNotChoose()
{
    combo_->OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) { key = 0; };
    combo_->SetItemIndex(0);
    combo_->setFocus();
    QTest::keyClick(combo_, Qt::Key_Down);
    QCOMPARE(combo_->ItemIndex(), 0);
    QVERIFY(log_.isEmpty());
}

QTEST_MAIN(SmartComboBoxTest)
#include "SmartComboBoxTest.moc"
