#include "ActiveWindow.h"
#include "CalculatorPopup.h"
#include "SmartEdit_TRV.h"
#include "TypedKeys.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

class SmartEditCalculatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void f4OpensTheCalculatorOnlyWhereItIsOn();
    void enterTakesTheResultAndTellsIt();
    void escapeKeepsTheOldValue();
    void theButtonAtTheLeftEndOpensIt();
    void keysCanBeClicked();
    void aResultThatDoesNotFitIsRefusedAndKept_data();
    void aResultThatDoesNotFitIsRefusedAndKept();
    void theResultIsRoundedToTheEditsDecimals();
    void openingRaisesNeitherExitNorValue();
    void theResultCanBeUndone();

private:
    TCalculatorPopup* Open();

    QWidget window_;
    QVBoxLayout layout_{&window_};
    TSmartEdit_TRV* edit_ = nullptr;
};

void SmartEditCalculatorTest::init()
{
    delete edit_;
    edit_ = new TSmartEdit_TRV;
    layout_.addWidget(edit_);
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetCalculator(true);
    edit_->SetText(QStringLiteral("1200"));
    edit_->SetDelayTimeCount(1);
    edit_->setFocus();
    window_.resize(260, 60);
    window_.show();
    QVERIFY(ActiveWindow::Activate(&window_));
    QTRY_VERIFY(edit_->hasFocus());
}

TCalculatorPopup* SmartEditCalculatorTest::Open()
{
    QTest::keyClick(edit_, Qt::Key_F4);
    return edit_->findChild<TCalculatorPopup*>();
}

void SmartEditCalculatorTest::f4OpensTheCalculatorOnlyWhereItIsOn()
{
    edit_->SetCalculator(false);
    QVERIFY(!Open());
    edit_->SetCalculator(true);
    edit_->setReadOnly(true);
    QVERIFY(!Open());
    edit_->setReadOnly(false);
    TCalculatorPopup* popup = Open();
    QVERIFY(popup && popup->isVisible());
    QCOMPARE(popup->findChild<QLabel*>(QStringLiteral("Number"))->text(), QStringLiteral("1,200"));
    popup->close();
}

void SmartEditCalculatorTest::enterTakesTheResultAndTellsIt()
{
    QSignalSpy announced(edit_, &TSmartEdit_TRV::editValueChanged);
    int changes = 0;
    edit_->OnChange = [&](QObject*) { ++changes; };
    QPointer<TCalculatorPopup> popup = Open();
    QVERIFY(popup);
    TypedKeys::Text(popup, QStringLiteral("+۵۰×2"));
    QTest::keyClick(popup, Qt::Key_Return);
    QCOMPARE(edit_->text(), QStringLiteral("2,500"));
    QCOMPARE(changes, 1);
    QTRY_COMPARE(announced.size(), 1);
    QTRY_VERIFY(!popup);
    QTRY_VERIFY(edit_->hasFocus());
}

void SmartEditCalculatorTest::escapeKeepsTheOldValue()
{
    QPointer<TCalculatorPopup> popup = Open();
    TypedKeys::Text(popup, QStringLiteral("+50="));
    QTest::keyClick(popup, Qt::Key_Escape);
    QCOMPARE(edit_->text(), QStringLiteral("1,200"));
    QTRY_VERIFY(!popup);
}

void SmartEditCalculatorTest::theButtonAtTheLeftEndOpensIt()
{
    auto* button = edit_->findChild<QToolButton*>();
    QVERIFY(button && button->isVisible());
    edit_->setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(button->geometry().center().x() < edit_->width() / 2);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(edit_->findChild<TCalculatorPopup*>());
    edit_->SetEditType(TSmartEdit_TRV::etString);
    QVERIFY(!edit_->findChild<QToolButton*>() || !edit_->findChild<QToolButton*>()->isVisible());
}

void SmartEditCalculatorTest::keysCanBeClicked()
{
    QPointer<TCalculatorPopup> popup = Open();
    const auto click = [&popup](const QString& caption) {
        for (QPushButton* key : popup->findChildren<QPushButton*>()) {
            if (key->text() == caption) {
                QTest::mouseClick(key, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable(caption));
    };
    for (const QString& caption :
         {QStringLiteral("پاک"), QStringLiteral("8"), QStringLiteral("÷"), QStringLiteral("3"),
          QStringLiteral("⌫"), QStringLiteral("4"), QStringLiteral("="), QStringLiteral("±")})
        click(caption);
    QCOMPARE(popup->findChild<QLabel*>(QStringLiteral("Number"))->text(), QStringLiteral("-2"));
    click(QStringLiteral("تأیید"));
    QCOMPARE(edit_->Text(), QStringLiteral("-2"));
}

void SmartEditCalculatorTest::aResultThatDoesNotFitIsRefusedAndKept_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("too long") << QStringLiteral("*1000");
    QTest::newRow("out of bounds") << QStringLiteral("5000");
    QTest::newRow("no result") << QStringLiteral("/0");
}

void SmartEditCalculatorTest::aResultThatDoesNotFitIsRefusedAndKept()
{
    QFETCH(QString, keys);
    edit_->SetMaxLength(5);
    edit_->SetMaxValue(4000);
    QPointer<TCalculatorPopup> popup = Open();
    TypedKeys::Text(popup, keys);
    QTest::keyClick(popup, Qt::Key_Enter);
    QVERIFY(popup && popup->isVisible());
    const QList<QLabel*> lines = popup->findChildren<QLabel*>();
    QVERIFY(
        std::any_of(lines.begin(), lines.end(), [](QLabel* line) { return line->text().contains(u'؛'); }));
    QTest::keyClick(popup, Qt::Key_Escape);
    QCOMPARE(edit_->text(), QStringLiteral("1,200"));
}

void SmartEditCalculatorTest::theResultIsRoundedToTheEditsDecimals()
{
    edit_->SetPrecision(2);
    QPointer<TCalculatorPopup> popup = Open();
    TypedKeys::Text(popup, QStringLiteral("2/3"));
    QTest::keyClick(popup, Qt::Key_Enter);
    QCOMPARE(edit_->Text(), QStringLiteral("0.67"));
}

void SmartEditCalculatorTest::openingRaisesNeitherExitNorValue()
{
    QStringList log;
    edit_->OnExit = [&](QObject*) { log << QStringLiteral("exit"); };
    edit_->OnEnter = [&](QObject*) { log << QStringLiteral("enter"); };
    edit_->OnEditValueChange = [&](QObject*) { log << QStringLiteral("value"); };
    QPointer<TCalculatorPopup> popup = Open();
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    QTest::keyClick(popup, Qt::Key_Escape);
    QTRY_VERIFY(!popup);
    QTRY_VERIFY(edit_->hasFocus());
    QCOMPARE(log, QStringList());
}

void SmartEditCalculatorTest::theResultCanBeUndone()
{
    QPointer<TCalculatorPopup> popup = Open();
    TypedKeys::Text(popup, QStringLiteral("7"));
    QTest::keyClick(popup, Qt::Key_Enter);
    QCOMPARE(edit_->Text(), QStringLiteral("7"));
    QTest::keyClick(edit_, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit_->Text(), QStringLiteral("1200"));
}

QTEST_MAIN(SmartEditCalculatorTest)
#include "SmartEditCalculatorTest.moc"
