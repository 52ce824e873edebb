#include "ActiveWindow.h"
#include "Ink.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartCheckBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "TypedKeys.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

using Look::TRole;

namespace {

constexpr int ColonWidth = 3;
constexpr auto KeyNoon = static_cast<Qt::Key>(0x0646);

QImage Rendered(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

struct TClickCounter
{
    int count = 0;
    QObject* lastSender = nullptr;
    TNotifyEvent Handler()
    {
        return [this](QObject* sender) {
            ++count;
            lastSender = sender;
        };
    }
};

} // namespace

class SmartLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void cleanup() { Look::SetScheme(Look::TScheme::Light); }
    void captionThatBeginsWithALatinLetterEndsAtTheLeft();
    void colonInFrontOfTheCaptionStandsAtItsLeft();
    void captionStandsAtTheRightEnd();
    void mnemonicIsUnderlinedAndItsMarkHidden();
    void captionThatDoesNotFitEndsInAnEllipsisAtTheLeft();
    void hintHoldsTheWholeCaption();
    void mnemonicFocusesTheControl();
    void mnemonicOfAPersianLetterClicksALabelWithoutControl();
    void mnemonicFollowsTheCaption();
    void mnemonicOfADisabledLabelDoesNothing();
    void mnemonicSharedWithTheBoxBesideItTogglesOnce();
    void mnemonicOfALabelWithoutHandlerReachesTheBoxBesideIt();
    void aLabelThatShowsDataTakesNoMnemonic();
    void aLabelThatShowsDataPaintsTheWholeText();
    void numbersInANameKeepTheirOrder();
    void fileNamesThatEndInANumberKeepTheirExtensionBehindIt_data();
    void fileNamesThatEndInANumberKeepTheirExtensionBehindIt();
    void mouseClicksInsideOnly();
    void handlerMayDestroyTheLabel();
    void textContrastsWithItsGround_data();
    void textContrastsWithItsGround();
    void bevelsFrameThePanel();
};

void SmartLabelTest::captionThatBeginsWithALatinLetterEndsAtTheLeft()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral("F10  جستجو بر اساس :"));
    label.resize(label.sizeHint());
    for (const Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        label.setLayoutDirection(direction);
        const QImage image = Rendered(label);
        QVERIFY(Ink::Runs(image, Ink::Ground(image)).first().Width() <= ColonWidth);
    }
    QCOMPARE(label.Caption(), QStringLiteral("F10  جستجو بر اساس :"));
}

void SmartLabelTest::colonInFrontOfTheCaptionStandsAtItsLeft()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral(": نام"));
    label.adjustSize();
    for (const Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        label.setLayoutDirection(direction);
        const QImage image = Rendered(label);
        QVERIFY(Ink::Runs(image, Ink::Ground(image)).first().Width() <= ColonWidth);
    }
    QCOMPARE(label.Caption(), QStringLiteral(": نام"));
}

void SmartLabelTest::captionStandsAtTheRightEnd()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral("کالا"));
    label.resize(200, 28);
    const QImage image = Rendered(label);
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY(runs.first().First > 150);
    QVERIFY(runs.last().Last > 190);
}

void SmartLabelTest::mnemonicIsUnderlinedAndItsMarkHidden()
{
    TSmartLabel_TRV plain;
    plain.SetCaption(QStringLiteral("نباشد"));
    TSmartLabel_TRV marked;
    marked.SetCaption(QStringLiteral("&نباشد"));
    QCOMPARE(marked.sizeHint(), plain.sizeHint());
    plain.resize(plain.sizeHint());
    marked.resize(marked.sizeHint());
    const QImage without = Rendered(plain);
    const QImage with = Rendered(marked);
    QVERIFY(without != with);
    // Only the line under the letters differs.
    const int half = without.height() / 2;
    QCOMPARE(with.copy(0, 0, with.width(), half), without.copy(0, 0, without.width(), half));
}

void SmartLabelTest::captionThatDoesNotFitEndsInAnEllipsisAtTheLeft()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral("نام کامل کالا و خدمات"));
    label.resize(label.sizeHint().width() - 40, label.sizeHint().height());
    const QImage image = Rendered(label);
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY(runs.size() >= 4);
    for (int dot = 0; dot < 3; ++dot)
        QVERIFY(runs[dot].Width() <= ColonWidth);
}

void SmartLabelTest::hintHoldsTheWholeCaption()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral("F10  جستجو بر اساس :"));
    label.resize(label.sizeHint());
    const QImage exact = Rendered(label);
    label.resize(label.sizeHint() + QSize(60, 0));
    const QImage wide = Rendered(label);
    QCOMPARE(Ink::Runs(exact, Ink::Ground(exact)).size(), Ink::Runs(wide, Ink::Ground(wide)).size());
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
}

void SmartLabelTest::mnemonicFocusesTheControl()
{
    QWidget window;
    QLineEdit first(&window);
    QLineEdit second(&window);
    TSmartLabel_TRV label(&window);
    label.SetCaption(QStringLiteral("&نام"));
    label.SetFocusControl(&second);
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    first.setFocus();
    QTest::sendKeyEvent(QTest::Click, &first, KeyNoon, QString(), Qt::AltModifier);
    QVERIFY(second.hasFocus());
    QCOMPARE(clicks.count, 0);
    QCOMPARE(label.FocusControl(), &second);

    first.setFocus();
    second.setEnabled(false);
    QTest::sendKeyEvent(QTest::Click, &first, KeyNoon, QString(), Qt::AltModifier);
    QVERIFY(first.hasFocus());
}

void SmartLabelTest::mnemonicOfAPersianLetterClicksALabelWithoutControl()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartLabel_TRV label(&window);
    label.SetCaption(QStringLiteral("در جستجو &نباشد"));
    QCOMPARE(label.FocusControl(), nullptr);
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    edit.setFocus();
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks.count, 1);
    QCOMPARE(clicks.lastSender, &label);
    QVERIFY(edit.hasFocus());
    TypedKeys::Stroke(&edit, KeyNoon, Qt::NoModifier, QStringLiteral("ن"));
    QCOMPARE(clicks.count, 1);
}

void SmartLabelTest::mnemonicFollowsTheCaption()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartLabel_TRV label(&window);
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    label.SetCaption(QStringLiteral("&نام"));
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks.count, 1);
    label.Clear();
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks.count, 1);
}

void SmartLabelTest::mnemonicOfADisabledLabelDoesNothing()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartLabel_TRV label(&window);
    label.SetCaption(QStringLiteral("&نام"));
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    label.setEnabled(false);
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.count, 0);
}

void SmartLabelTest::mnemonicSharedWithTheBoxBesideItTogglesOnce()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartCheckBox_TRV box(&window);
    box.setText(QStringLiteral("&ن"));
    TSmartLabel_TRV label(&window);
    label.SetCaption(QStringLiteral("در جستجو &نباشد"));
    label.OnClick = [&box](QObject*) { box.SetChecked(!box.Checked()); };
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    edit.setFocus();
    for (const bool expected : {true, false, true, false}) {
        QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
        QCOMPARE(box.Checked(), expected);
        QVERIFY(edit.hasFocus());
    }
}

void SmartLabelTest::mnemonicOfALabelWithoutHandlerReachesTheBoxBesideIt()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartLabel_TRV label(&window);
    label.SetCaption(QStringLiteral("ج&ستجوی پیشرفته "));
    TSmartCheckBox_TRV box(&window);
    box.setText(QStringLiteral("&س"));
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    constexpr auto KeySeen = static_cast<Qt::Key>(0x0633);
    for (const bool expected : {true, false, true}) {
        QTest::sendKeyEvent(QTest::Click, &edit, KeySeen, QString(), Qt::AltModifier);
        QCOMPARE(box.Checked(), expected);
    }
}

void SmartLabelTest::aLabelThatShowsDataTakesNoMnemonic()
{
    QWidget window;
    QLineEdit edit(&window);
    TSmartLabel_TRV label(&window);
    label.SetShowAccelChar(false);
    label.SetCaption(QStringLiteral("مهر &نو"));
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    window.show();
    QVERIFY(ActiveWindow::Activate(&window));
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks.count, 0);
    label.SetShowAccelChar(true);
    label.SetCaption(QStringLiteral("مهر و &نو"));
    QTest::sendKeyEvent(QTest::Click, &edit, KeyNoon, QString(), Qt::AltModifier);
    QCOMPARE(clicks.count, 1);
}

void SmartLabelTest::aLabelThatShowsDataPaintsTheWholeText()
{
    TSmartLabel_TRV label;
    label.SetCaption(QStringLiteral("A&B"));
    const int withoutMark = label.sizeHint().width();
    label.SetShowAccelChar(false);
    const int mark = label.fontMetrics().horizontalAdvance(QStringLiteral("&"));
    QVERIFY(qAbs(label.sizeHint().width() - withoutMark - mark) <= 1);
}

void SmartLabelTest::numbersInANameKeepTheirOrder()
{
    const auto isolated = [](const QString& name) { return PersianText::WithIsolatedNumbers(name); };
    QCOMPARE(isolated(QStringLiteral("ونک - 0104-556677/2")),
             QStringLiteral("ونک - \u20680104-556677/2\u2069"));
    QCOMPARE(isolated(QStringLiteral("ملت ۱۲/۳ و 5")), QStringLiteral("ملت \u2068۱۲/۳\u2069 و 5"));
    QCOMPARE(isolated(QStringLiteral("Ahmad Trading Co")), QStringLiteral("Ahmad Trading Co"));
    QCOMPARE(isolated(QStringLiteral("مدل A12-3 و 12-3B")), QStringLiteral("مدل A12-3 و 12-3B"));
    QCOMPARE(isolated(QStringLiteral("\u2068A 12-3\u2069")), QStringLiteral("\u2068A 12-3\u2069"));
}

void SmartLabelTest::fileNamesThatEndInANumberKeepTheirExtensionBehindIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("painted");
    QTest::newRow("behind words") << QStringLiteral("عکس 2.jpg") << QStringLiteral("عکس \u20682.jpg\u2069");
    QTest::newRow("Persian digits") << QStringLiteral("عکس۱۲.png") << QStringLiteral("عکس\u2068۱۲.png\u2069");
    QTest::newRow("a date") << QStringLiteral("فاکتور_1403-05-12.jpg")
                            << QStringLiteral("فاکتور_\u20681403-05-12.jpg\u2069");
    QTest::newRow("nothing but a number") << QStringLiteral("20.jpg") << QStringLiteral("\u206820.jpg\u2069");
    QTest::newRow("a number in front as well")
        << QStringLiteral("ونک 12/3 - 4.jpg") << QStringLiteral("ونک \u206812/3\u2069 - \u20684.jpg\u2069");
    QTest::newRow("words only") << QStringLiteral("چای.jpg") << QStringLiteral("چای.jpg");
    QTest::newRow("another script") << QStringLiteral("IMG 20.jpg") << QStringLiteral("IMG 20.jpg");
    QTest::newRow("in brackets") << QStringLiteral("عکس (2).jpg") << QStringLiteral("عکس (2).jpg");
}

void SmartLabelTest::fileNamesThatEndInANumberKeepTheirExtensionBehindIt()
{
    QFETCH(const QString, name);
    QTEST(PersianText::WithIsolatedNumbers(name), "painted");
}

void SmartLabelTest::mouseClicksInsideOnly()
{
    QWidget window;
    window.resize(300, 100);
    TSmartLabel_TRV label(&window);
    label.setGeometry(100, 20, 100, 28);
    label.SetCaption(QStringLiteral("نام"));
    TClickCounter clicks;
    label.OnClick = clicks.Handler();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.count, 1);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(-40, 5));
    QCOMPARE(clicks.count, 1);
}

void SmartLabelTest::handlerMayDestroyTheLabel()
{
    QWidget window;
    QPointer<TSmartLabel_TRV> label = new TSmartLabel_TRV(&window);
    label->SetCaption(QStringLiteral("نام"));
    label->OnClick = [&label](QObject*) { label->deleteLater(); };
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(label.data(), Qt::LeftButton);
    QTRY_VERIFY(label.isNull());
}

void SmartLabelTest::textContrastsWithItsGround_data()
{
    QTest::addColumn<int>("ground");
    QTest::addColumn<bool>("dark");
    for (const bool dark : {false, true}) {
        for (const auto ground : {TSmartPanel_TRV::gWindow, TSmartPanel_TRV::gBand, TSmartPanel_TRV::gBase})
            QTest::addRow("ground %d dark %d", int(ground), int(dark)) << int(ground) << dark;
    }
}

void SmartLabelTest::textContrastsWithItsGround()
{
    QFETCH(int, ground);
    QFETCH(bool, dark);
    Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
    TSmartPanel_TRV panel;
    panel.SetGround(static_cast<TSmartPanel_TRV::TGround>(ground));
    panel.resize(300, 40);
    TSmartLabel_TRV label(&panel);
    label.SetCaption(QStringLiteral("مممممم"));
    label.setGeometry(180, 5, 100, 28);
    TSmartCheckBox_TRV box(&panel);
    box.setText(QStringLiteral("مممممم"));
    box.setGeometry(20, 5, 120, 28);
    const QImage image = Rendered(panel);
    for (const QWidget* text : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&box)}) {
        const QImage part = image.copy(text->geometry());
        const QColor expected[] = {Look::Color(TRole::Window), Look::Color(TRole::Band),
                                   Look::Color(TRole::Base)};
        QCOMPARE(Ink::Ground(part), expected[ground]);
        const double contrast = Look::Contrast(Ink::Foreground(part), Ink::Ground(part));
        QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    }
    TSmartLabel_TRV onBand;
    onBand.SetOnBand(true);
    QPalette bandPalette;
    bandPalette.setColor(QPalette::Window, Look::Color(TRole::Band));
    onBand.setPalette(bandPalette);
    onBand.setAutoFillBackground(true);
    onBand.SetCaption(QStringLiteral("مممممم"));
    QCOMPARE(Ink::Foreground(Rendered(onBand)), Look::Color(TRole::BandText));
}

void SmartLabelTest::bevelsFrameThePanel()
{
    TSmartPanel_TRV panel;
    panel.resize(60, 40);
    const QImage none = Rendered(panel);
    QCOMPARE(Ink::Runs(none, Look::Color(TRole::Window)).size(), 0);
    QCOMPARE(panel.contentsRect(), panel.rect());
    panel.SetBevel(TSmartPanel_TRV::bvLowered);
    const QImage lowered = Rendered(panel);
    panel.SetBevel(TSmartPanel_TRV::bvRaised);
    const QImage raised = Rendered(panel);
    QVERIFY(lowered != none);
    QVERIFY(lowered != raised);
    QCOMPARE(panel.contentsRect(), panel.rect().adjusted(1, 1, -1, -1));
}

QTEST_MAIN(SmartLabelTest)
#include "SmartLabelTest.moc"
