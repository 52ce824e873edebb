#include "ActiveWindow.h"
#include "Ink.h"
#include "Look.h"
#include "SmartCheckBox_TRV.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace {

constexpr auto KeyNoon = static_cast<Qt::Key>(0x0646);

} // namespace

class SmartCheckBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void init();
    void cleanup() { window_.reset(); }
    void changeByCodeClicks();
    void sameStateAgainDoesNotClick();
    void spaceClicks();
    void mouseClicks();
    void mnemonicOfAPersianLetterClicksAtOnce();
    void mnemonicSharedByTwoBoxesOnlyMovesTheFocus();
    void clearedHandlerIsNotCalled();
    void enterAndExitFollowTheFocus();
    void swallowedKeyDoesNotToggle();
    void captionIsARightToLeftParagraph();
    void focusRingGoesAroundBoxAndCaption();

private:
    std::unique_ptr<QWidget> window_;
    TSmartCheckBox_TRV* box_ = nullptr;
    QLineEdit* edit_ = nullptr;
    int clicks_ = 0;
};

void SmartCheckBoxTest::init()
{
    window_ = std::make_unique<QWidget>();
    window_->resize(300, 100);
    edit_ = new QLineEdit(window_.get());
    edit_->setGeometry(10, 10, 200, 28);
    box_ = new TSmartCheckBox_TRV(window_.get());
    box_->setGeometry(10, 50, 200, 28);
    box_->setText(QStringLiteral("در جستجو &نباشد"));
    clicks_ = 0;
    box_->OnClick = [this](QObject* sender) {
        QCOMPARE(sender, box_);
        ++clicks_;
    };
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    edit_->setFocus();
}

void SmartCheckBoxTest::changeByCodeClicks()
{
    box_->SetChecked(true);
    QCOMPARE(clicks_, 1);
    box_->setChecked(false);
    QCOMPARE(clicks_, 2);
}

void SmartCheckBoxTest::sameStateAgainDoesNotClick()
{
    box_->SetChecked(false);
    QCOMPARE(clicks_, 0);
    box_->SetChecked(true);
    box_->SetChecked(true);
    QCOMPARE(clicks_, 1);
}

void SmartCheckBoxTest::spaceClicks()
{
    box_->setFocus();
    QTest::keyClick(box_, Qt::Key_Space);
    QCOMPARE(clicks_, 1);
    QVERIFY(box_->Checked());
}

void SmartCheckBoxTest::mouseClicks()
{
    // The caption at the right end belongs to the box.
    QTest::mouseClick(box_, Qt::LeftButton, {}, QPoint(box_->width() - 60, 14));
    QCOMPARE(clicks_, 1);
    QVERIFY(box_->Checked());
}

void SmartCheckBoxTest::mnemonicOfAPersianLetterClicksAtOnce()
{
    QTest::sendKeyEvent(QTest::Click, edit_, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks_, 1);
    QVERIFY(box_->Checked());
    QVERIFY(edit_->hasFocus());
}

void SmartCheckBoxTest::mnemonicSharedByTwoBoxesOnlyMovesTheFocus()
{
    TSmartCheckBox_TRV other(window_.get());
    other.setText(QStringLiteral("&نقدی"));
    other.show();
    QTest::sendKeyEvent(QTest::Click, edit_, KeyNoon, QString(), Qt::AltModifier);
    QVERIFY(box_->hasFocus() || other.hasFocus());
    QCOMPARE(clicks_, 0);
    QVERIFY(!other.Checked());
}

void SmartCheckBoxTest::clearedHandlerIsNotCalled()
{
    const TNotifyEvent saved = box_->OnClick;
    box_->OnClick = nullptr;
    box_->SetChecked(true);
    QCOMPARE(clicks_, 0);
    box_->OnClick = saved;
    box_->SetChecked(false);
    QCOMPARE(clicks_, 1);
}

void SmartCheckBoxTest::enterAndExitFollowTheFocus()
{
    QStringList log;
    box_->OnEnter = [&log](QObject*) { log += QStringLiteral("enter"); };
    box_->OnExit = [&log](QObject*) { log += QStringLiteral("exit"); };
    QTest::keyClick(edit_, Qt::Key_Tab);
    QTest::keyClick(box_, Qt::Key_Backtab);
    QCOMPARE(log.join(u' '), QStringLiteral("enter exit"));
    box_->OnExit = nullptr;
}

void SmartCheckBoxTest::swallowedKeyDoesNotToggle()
{
    box_->OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (key == VirtualKey::Space)
            key = 0;
    };
    box_->setFocus();
    QTest::keyClick(box_, Qt::Key_Space);
    QCOMPARE(clicks_, 0);
}

void SmartCheckBoxTest::captionIsARightToLeftParagraph()
{
    TSmartCheckBox_TRV box;
    box.setText(QStringLiteral("F10 جستجو :"));
    box.resize(box.sizeHint());
    const QImage image = box.grab().toImage();
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY2(runs.first().Width() <= 3, "the colon stands at the left end");
    QVERIFY2(runs.last().Width() >= 10, "the box stands at the right end");
}

void SmartCheckBoxTest::focusRingGoesAroundBoxAndCaption()
{
    const QColor accent = Look::Color(Look::TRole::Accent);
    QVERIFY(!Ink::Has(box_->grab().toImage(), accent, 2));
    box_->setFocus();
    const QImage image = box_->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() - 40, 3).name(), image.pixelColor(image.width() - 60, 3).name());
    QVERIFY(Ink::Has(image.copy(0, 0, image.width() / 2, image.height()), accent, 2));
    QVERIFY(Ink::Has(image.copy(image.width() - 4, 0, 4, image.height()), accent, 2));
}

QTEST_MAIN(SmartCheckBoxTest)
#include "SmartCheckBoxTest.moc"
