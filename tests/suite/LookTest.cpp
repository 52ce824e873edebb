#include "Look.h"
#include "Ink.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainterPath>
#include <QPushButton>
#include <QRawFont>
#include <QTest>

using Look::TRole;

namespace {

/// Begins with a Latin letter, as the label before the search field does.
const QString SearchCaption = QStringLiteral("F10  جستجو بر اساس :");

QImage Rendered(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The width of the first piece of ink, seen from the left.
int LeftmostRunWidth(const QImage& image)
{
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    return runs.isEmpty() ? 0 : runs.first().Width();
}

/// A colon is at most this wide in the product's font at 14 pixels; an F is wider.
constexpr int ColonWidth = 3;

} // namespace

class LookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void textsContrastWithTheirGrounds_data();
    void textsContrastWithTheirGrounds();
    void paletteFollowsTheTable_data();
    void paletteFollowsTheTable();
    void selectionStaysVisibleWithoutFocus();
    void digitOneIsDrawnByAnotherGlyphInEachFamily();
    void switchingTheDigitsChangesTheApplicationFont();
    void switchingTheSchemeRepaintsAtOnce();
    void applicationIsRightToLeft();
    void labelOfTheToolkitKeepsItsColonAtTheLeft();
    void captionsKeepTheirColonAtTheLeft_data();
    void captionsKeepTheirColonAtTheLeft();
    void menuItemKeepsItsColonAtTheLeft();
    void menuWordStaysJoinedAtItsMnemonic();
    void messageTextKeepsItsColonAtTheLeft();
    void focusedEditShowsTheRing();
    void readOnlyEditIsNoWhiteBox();
    void ringIsSeenOnTheBand();
    void standardButtonsArePersian();
    void editMenuIsPersian();
    void colorNamesAndNumbersAreUnderstood_data();
    void colorNamesAndNumbersAreUnderstood();
};

void LookTest::initTestCase()
{
    Look::Install(*qApp, Look::TScheme::Light);
}

void LookTest::cleanup()
{
    Look::SetScheme(Look::TScheme::Light);
    Look::SetDigits(Look::TDigits::Persian);
}

void LookTest::textsContrastWithTheirGrounds_data()
{
    QTest::addColumn<TRole>("text");
    QTest::addColumn<TRole>("ground");
    const QList<TRole> texts{TRole::Text,  TRole::SecondaryText, TRole::Accent,
                             TRole::Wrong, TRole::Warning,       TRole::Good};
    const QList<TRole> grounds{TRole::Window, TRole::Base, TRole::AlternateBase};
    for (const TRole text : texts) {
        for (const TRole ground : grounds)
            QTest::addRow("text %d on ground %d", int(text), int(ground)) << text << ground;
    }
    QTest::newRow("band") << TRole::BandText << TRole::Band;
    QTest::newRow("selection") << TRole::SelectionText << TRole::Selection;
    QTest::newRow("editor with the caret") << TRole::EditorActiveText << TRole::EditorActive;
    QTest::newRow("balloon") << TRole::BalloonText << TRole::Balloon;
}

void LookTest::textsContrastWithTheirGrounds()
{
    QFETCH(TRole, text);
    QFETCH(TRole, ground);
    for (const bool dark : {false, true}) {
        const double contrast = Look::Contrast(Look::ColorOf(text, dark), Look::ColorOf(ground, dark));
        QVERIFY2(contrast >= 4.5, qPrintable(QStringLiteral("%1 (dark: %2)").arg(contrast).arg(dark)));
    }
}

void LookTest::paletteFollowsTheTable_data()
{
    QTest::addColumn<QPalette::ColorRole>("inPalette");
    QTest::addColumn<QString>("light");
    QTest::addColumn<QString>("dark");
    QTest::newRow("window") << QPalette::Window << "#eef1f4"
                            << "#1f262d";
    QTest::newRow("text") << QPalette::WindowText << "#1d2733"
                          << "#e6ebf0";
    QTest::newRow("base") << QPalette::Base << "#ffffff"
                          << "#171c21";
    QTest::newRow("alternate") << QPalette::AlternateBase << "#f6f8fa"
                               << "#1c2228";
    QTest::newRow("accent") << QPalette::Link << "#1f6f8b"
                            << "#4aaccd";
    QTest::newRow("selection") << QPalette::Highlight << "#1f6f8b"
                               << "#1f6f8b";
    QTest::newRow("placeholder") << QPalette::PlaceholderText << "#5f6c7a"
                                 << "#9aa5b1";
}

void LookTest::paletteFollowsTheTable()
{
    QFETCH(QPalette::ColorRole, inPalette);
    QFETCH(QString, light);
    QFETCH(QString, dark);
    QCOMPARE(Look::Palette(false).color(inPalette).name(), light);
    QCOMPARE(Look::Palette(true).color(inPalette).name(), dark);
}

void LookTest::selectionStaysVisibleWithoutFocus()
{
    for (const bool dark : {false, true}) {
        const QPalette palette = Look::Palette(dark);
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Highlight),
                 palette.color(QPalette::Active, QPalette::Highlight));
    }
}

void LookTest::digitOneIsDrawnByAnotherGlyphInEachFamily()
{
    const QRawFont persian = QRawFont::fromFont(Look::BodyFont());
    QCOMPARE(persian.familyName(), QStringLiteral("Vazirmatn UI FD"));
    Look::SetDigits(Look::TDigits::Latin);
    const QRawFont latin = QRawFont::fromFont(Look::BodyFont());
    QCOMPARE(latin.familyName(), QStringLiteral("Vazirmatn UI"));
    const auto outline = [](const QRawFont& font, const QString& text) {
        return font.pathForGlyph(font.glyphIndexesForString(text).value(0));
    };
    QVERIFY(outline(persian, QStringLiteral("1")) != outline(latin, QStringLiteral("1")));
    QCOMPARE(outline(persian, QStringLiteral("4")), outline(persian, QStringLiteral("۴")));
    QVERIFY(outline(latin, QStringLiteral("4")) != outline(latin, QStringLiteral("۴")));
}

void LookTest::switchingTheDigitsChangesTheApplicationFont()
{
    QLabel label(QStringLiteral("1234567890"));
    label.show();
    const QImage persian = Rendered(label);
    Look::SetDigits(Look::TDigits::Latin);
    QTRY_COMPARE(label.font().family(), QStringLiteral("Vazirmatn UI"));
    QVERIFY(Rendered(label) != persian);
    Look::SetDigits(Look::TDigits::Persian);
    QTRY_COMPARE(Rendered(label), persian);
}

void LookTest::switchingTheSchemeRepaintsAtOnce()
{
    QLabel label(QStringLiteral("متن"));
    label.setAutoFillBackground(true);
    label.show();
    for (const auto scheme : {Look::TScheme::Dark, Look::TScheme::Light}) {
        Look::SetScheme(scheme);
        QCOMPARE(Look::IsDark(), scheme == Look::TScheme::Dark);
        QTRY_COMPARE(Ink::Ground(Rendered(label)), Look::Color(TRole::Window));
        QCOMPARE(Ink::Foreground(Rendered(label)), Look::Color(TRole::Text));
    }
}

void LookTest::applicationIsRightToLeft()
{
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QMenu menu;
    QCOMPARE(menu.layoutDirection(), Qt::RightToLeft);
}

void LookTest::labelOfTheToolkitKeepsItsColonAtTheLeft()
{
    QLabel label(SearchCaption);
    label.resize(label.sizeHint() + QSize(40, 0));
    const QImage image = Rendered(label);
    QVERIFY(LeftmostRunWidth(image) <= ColonWidth);
    QVERIFY2(Ink::Runs(image, Ink::Ground(image)).first().First > 30, "the text stands at the right");

    label.setLayoutDirection(Qt::LeftToRight);
    QVERIFY2(LeftmostRunWidth(Rendered(label)) > ColonWidth, "left to right the F stands there");
}

void LookTest::captionsKeepTheirColonAtTheLeft_data()
{
    QTest::addColumn<QWidget*>("widget");
    auto* checkBox = new QCheckBox(SearchCaption);
    auto* group = new QGroupBox(SearchCaption);
    group->setFlat(true);
    QTest::newRow("check box") << static_cast<QWidget*>(checkBox);
    QTest::newRow("group box") << static_cast<QWidget*>(group);
}

void LookTest::captionsKeepTheirColonAtTheLeft()
{
    QFETCH(QWidget*, widget);
    const std::unique_ptr<QWidget> owned(widget);
    owned->resize(owned->sizeHint().expandedTo({10, 20}));
    const QImage image = Rendered(*owned).copy(0, 0, owned->width(), 16);
    QVERIFY(LeftmostRunWidth(image) <= ColonWidth);
}

void LookTest::menuItemKeepsItsColonAtTheLeft()
{
    QMenu menu;
    menu.addAction(SearchCaption);
    menu.resize(menu.sizeHint());
    const QImage image = Rendered(menu);
    const QImage inside = image.copy(image.rect().adjusted(4, 4, -4, -4));
    QVERIFY(LeftmostRunWidth(inside) <= ColonWidth);
}

void LookTest::menuWordStaysJoinedAtItsMnemonic()
{
    const auto upperHalf = [](const QString& text) {
        QMenu menu;
        menu.addAction(text);
        menu.resize(menu.sizeHint().width(), menu.sizeHint().height());
        const QImage image = Rendered(menu);
        return image.copy(image.width() - 90, 0, 80, image.height() / 2);
    };
    QCOMPARE(upperHalf(QStringLiteral("&نباشد")), upperHalf(QStringLiteral("نباشد")));
    QVERIFY(upperHalf(QStringLiteral("نباشد")) != upperHalf(QStringLiteral("باشد")));
}

void LookTest::messageTextKeepsItsColonAtTheLeft()
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("پیام"), SearchCaption, QMessageBox::Ok);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    QVERIFY(label);
    QVERIFY(LeftmostRunWidth(Rendered(*label)) <= ColonWidth);
}

void LookTest::focusedEditShowsTheRing()
{
    QWidget window;
    QLineEdit edit(&window);
    QLineEdit other(&window);
    edit.setGeometry(10, 10, 120, Look::ControlHeight);
    other.setGeometry(10, 50, 120, Look::ControlHeight);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit.setFocus();
    const QColor accent = Look::Color(TRole::Accent);
    QTRY_COMPARE(Rendered(edit).pixelColor(60, 0), accent);
    QCOMPARE(Rendered(edit).pixelColor(60, 1), accent);
    QVERIFY(Rendered(other).pixelColor(60, 1) != accent);
}

void LookTest::readOnlyEditIsNoWhiteBox()
{
    constexpr QPoint middle(60, 14);
    for (const Look::TScheme scheme : {Look::TScheme::Light, Look::TScheme::Dark}) {
        Look::SetScheme(scheme);
        QLineEdit edit;
        edit.resize(120, Look::ControlHeight);
        QCOMPARE(Rendered(edit).pixelColor(middle), Look::Color(Look::TRole::Base));
        edit.setReadOnly(true);
        QCOMPARE(Rendered(edit).pixelColor(middle), Look::Color(Look::TRole::Window));
        // A ground that a form has given stays.
        QPalette palette = edit.palette();
        palette.setColor(QPalette::Base, Qt::yellow);
        edit.setPalette(palette);
        QCOMPARE(Rendered(edit).pixelColor(middle), QColor(Qt::yellow));
    }
}

void LookTest::ringIsSeenOnTheBand()
{
    for (const bool dark : {false, true}) {
        Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
        QPalette band = Look::Palette(dark);
        band.setColor(QPalette::Window, Look::Color(TRole::Band));
        band.setColor(QPalette::WindowText, Look::Color(TRole::BandText));
        QVERIFY(Look::Contrast(Look::RingColor(band), Look::Color(TRole::Band)) >= 3);
        QCOMPARE(Look::RingColor(Look::Palette(dark)), Look::Color(TRole::Accent));
    }
}

void LookTest::standardButtonsArePersian()
{
    const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Yes |
                               QDialogButtonBox::No);
    QCOMPARE(box.button(QDialogButtonBox::Ok)->text(), QStringLiteral("تأیید"));
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("انصراف"));
    QCOMPARE(box.button(QDialogButtonBox::Yes)->text(), QStringLiteral("&بله"));
    QCOMPARE(box.button(QDialogButtonBox::No)->text(), QStringLiteral("&خیر"));
}

void LookTest::editMenuIsPersian()
{
    QLineEdit edit;
    const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator())
            QVERIFY2(action->text().section(u'\t', 0, 0).isRightToLeft(), qPrintable(action->text()));
    }
}

void LookTest::colorNamesAndNumbersAreUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("red") << "clRed" << QColor(255, 0, 0);
    QTest::newRow("blue in small letters") << "clblue" << QColor(0, 0, 255);
    QTest::newRow("silver") << "clSilver" << QColor(192, 192, 192);
    QTest::newRow("maroon") << "clMaroon" << QColor(128, 0, 0);
    QTest::newRow("teal") << "clTeal" << QColor(0, 128, 128);
    QTest::newRow("olive") << "clOlive" << QColor(128, 128, 0);
    QTest::newRow("navy") << "clNavy" << QColor(0, 0, 128);
    QTest::newRow("aqua") << "clAqua" << QColor(0, 255, 255);
    QTest::newRow("yellow as a number") << "65535" << QColor(255, 255, 0);
    QTest::newRow("hexadecimal") << "$00FF8000" << QColor(0, 128, 255);
    QTest::newRow("blanks around") << " clLime " << QColor(0, 255, 0);
    QTest::newRow("no colour") << "clUgly" << QColor();
    QTest::newRow("empty") << "" << QColor();
    QTest::newRow("beyond 24 bits") << "$01000000" << QColor();
    QTest::newRow("negative") << "-1" << QColor();
}

void LookTest::colorNamesAndNumbersAreUnderstood()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    QCOMPARE(Look::StringToColor(text), color);
}

QTEST_MAIN(LookTest)
#include "LookTest.moc"
