#include "ActiveWindow.h"
#include "Ink.h"
#include "Look.h"
#include "SmartButton_TRV.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

class SmartButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void init();
    void cleanup() { window_.reset(); }
    void mouseEnterAndSpaceClick();
    void shortCutCodeClicks_data();
    void shortCutCodeClicks();
    void shortCutOfADisabledButtonDoesNothing();
    void shortCutCodeZeroRemovesTheShortCut();
    void clickByCodeClicksOnlyWhenEnabled();
    void typeGivesCaptionAndIcon();
    void typeKeepsAnOwnCaption();
    void autoWidthFollowsTheCaption();
    void captionFitsIntoTheHint_data();
    void captionFitsIntoTheHint();
    void downIsPaintedPressedIn();
    void marginPlacesTheCaptionAtTheRightEdge();
    void arrowPartAtTheLeftOpensTheMenu();
    void restOfADropDownButtonClicks();
    void keysOpenTheMenu();
    void captionIsARightToLeftParagraph();

private:
    std::unique_ptr<QWidget> window_;
    TSmartButton_TRV* button_ = nullptr;
    QLineEdit* edit_ = nullptr;
    int clicks_ = 0;
};

void SmartButtonTest::init()
{
    window_ = std::make_unique<QWidget>();
    window_->resize(400, 300);
    edit_ = new QLineEdit(window_.get());
    edit_->setGeometry(10, 10, 200, 28);
    button_ = new TSmartButton_TRV(window_.get());
    button_->setText(QStringLiteral("جستجو"));
    button_->setGeometry(100, 50, 140, 28);
    clicks_ = 0;
    button_->OnClick = [this](QObject* sender) {
        QCOMPARE(sender, button_);
        ++clicks_;
    };
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    edit_->setFocus();
}

void SmartButtonTest::mouseEnterAndSpaceClick()
{
    QTest::mouseClick(button_, Qt::LeftButton);
    QCOMPARE(clicks_, 1);
    button_->setFocus();
    QTest::keyClick(button_, Qt::Key_Return);
    QCOMPARE(clicks_, 2);
    QTest::keyClick(button_, Qt::Key_Space);
    QCOMPARE(clicks_, 3);
}

void SmartButtonTest::shortCutCodeClicks_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Ctrl+F10") << 16505 << int(Qt::Key_F10) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("F2") << 113 << int(Qt::Key_F2) << Qt::KeyboardModifiers();
    QTest::newRow("Shift+Ctrl+A") << 8192 + 16384 + 65 << int(Qt::Key_A)
                                  << (Qt::ShiftModifier | Qt::ControlModifier);
    QTest::newRow("Alt+Insert") << 32768 + 45 << int(Qt::Key_Insert)
                                << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Ctrl+5") << 16384 + 53 << int(Qt::Key_5) << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void SmartButtonTest::shortCutCodeClicks()
{
    QFETCH(int, code);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    button_->SetShortCut(code);
    QCOMPARE(button_->ShortCut(), code);
    QTest::keyClick(edit_, static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(clicks_, 1);
    QVERIFY(edit_->hasFocus());
}

void SmartButtonTest::shortCutOfADisabledButtonDoesNothing()
{
    button_->SetShortCut(16505);
    button_->setEnabled(false);
    QTest::keyClick(edit_, Qt::Key_F10, Qt::ControlModifier);
    QCOMPARE(clicks_, 0);
}

void SmartButtonTest::shortCutCodeZeroRemovesTheShortCut()
{
    button_->SetShortCut(16505);
    button_->SetShortCut(0);
    QTest::keyClick(edit_, Qt::Key_F10, Qt::ControlModifier);
    QCOMPARE(clicks_, 0);
}

void SmartButtonTest::clickByCodeClicksOnlyWhenEnabled()
{
    button_->Click();
    QCOMPARE(clicks_, 1);
    button_->setEnabled(false);
    button_->Click();
    QCOMPARE(clicks_, 1);
}

void SmartButtonTest::typeGivesCaptionAndIcon()
{
    TSmartButton_TRV button;
    button.SetButtonType(TSmartButton_TRV::btOk);
    QCOMPARE(button.text(), QStringLiteral("تأیید"));
    button.SetButtonType(TSmartButton_TRV::btCancel);
    QCOMPARE(button.text(), QStringLiteral("انصراف"));
    button.setText(QString());
    button.resize(60, 28);
    const QImage crossOnly = button.grab().toImage();
    QVERIFY2(crossOnly.pixelColor(30, 14).lightness() < 128, "the cross stands in the middle");
}

void SmartButtonTest::typeKeepsAnOwnCaption()
{
    button_->SetButtonType(TSmartButton_TRV::btDelete);
    QCOMPARE(button_->text(), QStringLiteral("جستجو"));
}

void SmartButtonTest::autoWidthFollowsTheCaption()
{
    button_->SetAutoWidth(true);
    const int width = button_->width();
    QCOMPARE(width, button_->sizeHint().width());
    button_->setText(QStringLiteral("جستجوی پیشرفته در همهٔ سندها"));
    QVERIFY(button_->width() > width);
    QCOMPARE(button_->height(), 28);
    button_->SetAutoWidth(false);
    button_->resize(300, 28);
    button_->setText(QStringLiteral("ب"));
    QCOMPARE(button_->width(), 300);
}

void SmartButtonTest::captionFitsIntoTheHint_data()
{
    QTest::addColumn<int>("type");
    for (int type = TSmartButton_TRV::btOk; type <= TSmartButton_TRV::btDelete; ++type)
        QTest::addRow("type %d", type) << type;
}

void SmartButtonTest::captionFitsIntoTheHint()
{
    QFETCH(int, type);
    TSmartButton_TRV button;
    button.SetButtonType(static_cast<TSmartButton_TRV::TButtonType>(type));
    const auto pieces = [&button](int extraWidth) {
        button.resize(button.sizeHint() + QSize(extraWidth, 0));
        const QImage image = button.grab().toImage();
        const QImage inner = image.copy(image.rect().adjusted(4, 6, -4, -6));
        return Ink::Runs(inner, Ink::Ground(inner)).size();
    };
    QCOMPARE(pieces(0), pieces(60));
}

void SmartButtonTest::downIsPaintedPressedIn()
{
    const QImage up = button_->grab().toImage();
    button_->SetDown(true);
    QVERIFY(button_->Down());
    const QImage down = button_->grab().toImage();
    QVERIFY(down.pixelColor(10, 14).lightness() < up.pixelColor(10, 14).lightness());
    button_->SetDown(false);
    QCOMPARE(button_->grab().toImage(), up);
}

void SmartButtonTest::marginPlacesTheCaptionAtTheRightEdge()
{
    button_->SetMargin(5);
    const QImage image = button_->grab().toImage();
    const QRect inner = image.rect().adjusted(3, 5, -3, -5);
    const auto runs = Ink::Runs(image.copy(inner), Ink::Ground(image));
    const int gap = inner.width() - 1 - runs.last().Last;
    QVERIFY2(gap >= 0 && gap <= 5, qPrintable(QString::number(gap)));
}

void SmartButtonTest::arrowPartAtTheLeftOpensTheMenu()
{
    QMenu menu;
    menu.addAction(QStringLiteral("ویرایش"));
    button_->SetButtonKind(TSmartButton_TRV::bkDropDown);
    button_->SetDropDownMenu(&menu);
    QTest::mouseClick(button_, Qt::LeftButton, {}, QPoint(6, 14));
    QTRY_VERIFY(menu.isVisible());
    QCOMPARE(clicks_, 0);
    const QRect button(button_->mapToGlobal(QPoint()), button_->size());
    QCOMPARE(menu.geometry().right(), button.right());
    QCOMPARE(menu.geometry().top(), button.bottom() + 1);
    menu.close();
}

void SmartButtonTest::restOfADropDownButtonClicks()
{
    QMenu menu;
    menu.addAction(QStringLiteral("ویرایش"));
    button_->SetButtonKind(TSmartButton_TRV::bkDropDown);
    button_->SetDropDownMenu(&menu);
    QTest::mouseClick(button_, Qt::LeftButton, {}, QPoint(button_->width() - 6, 14));
    QCOMPARE(clicks_, 1);
    QVERIFY(!menu.isVisible());
}

void SmartButtonTest::keysOpenTheMenu()
{
    QMenu menu;
    menu.addAction(QStringLiteral("ویرایش"));
    button_->SetDropDownMenu(&menu);
    button_->setFocus();
    QTest::keyClick(button_, Qt::Key_F4);
    QVERIFY2(!menu.isVisible(), "a standard button has no menu part");
    button_->SetButtonKind(TSmartButton_TRV::bkDropDown);
    QTest::keyClick(button_, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QCOMPARE(clicks_, 0);
}

void SmartButtonTest::captionIsARightToLeftParagraph()
{
    button_->setText(QStringLiteral("F10 جستجو :"));
    const QImage image = button_->grab().toImage();
    const QImage inner = image.copy(image.rect().adjusted(4, 6, -4, -6));
    QVERIFY(Ink::Runs(inner, Ink::Ground(inner)).first().Width() <= 3);
}

QTEST_MAIN(SmartButtonTest)
#include "SmartButtonTest.moc"
