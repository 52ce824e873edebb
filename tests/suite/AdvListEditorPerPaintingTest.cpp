#include "Ink.h"
#include "Look.h"
#include "TokenForm.h"

#include <QApplication>

namespace {

const QColor Red(0xd0, 0x20, 0x20);
const QColor Blue(0x20, 0x40, 0xd0);

QImage Disc(const QColor& color, int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

struct TPaintedForm : TTokenForm
{
    QImage Grab() { return editor.grab().toImage(); }
    QImage GrabBubble(int index) { return Grab().copy(Bubble(index)); }
};

QRect PlaceOf(const QImage& image, const QColor& color)
{
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

} // namespace

class AdvListEditorPerPaintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void bubblesFollowTheReadingDirection();
    void picturesAreScaledDownAndStandBeforeTheText();
    void anIndexWithoutAPictureShowsNone();
    void aDisabledEditorShowsItsPicturesFaintly();
    void textsCanBeReadOnEveryGround_data();
    void textsCanBeReadOnEveryGround();
    void theSchemeMayChangeWhileItIsShown();
    void theFocusIsSeen();
    void selectedBubblesTakeTheSelectionsColour();
    void aLongNameIsElidedWithinItsBubble();
    void whatIsScrolledOutFadesAway();
    void aWrappedEditorGrowsUpToItsLines();
    void aTallEditorCentresItsLine();
    void aTextOfAnyScriptBeginsBehindTheBubbles_data();
    void aTextOfAnyScriptBeginsBehindTheBubbles();
    void anEmptyEditorShowsItsPlaceholder();
    void theMarkUnderTheMouseIsSeen();
    void aReadOnlyEditorShowsItsCaret();
};

void AdvListEditorPerPaintingTest::initTestCase()
{
    Look::Install(*qApp, Look::TScheme::Light);
}

void AdvListEditorPerPaintingTest::cleanup()
{
    Look::SetScheme(Look::TScheme::Light);
}

void AdvListEditorPerPaintingTest::bubblesFollowTheReadingDirection()
{
    TPaintedForm form;
    form.editor.SetImages({Disc(Red, 12), Disc(Blue, 12)});
    form.editor.Values().AddPair(QStringLiteral("آب"), {}, 0);
    form.editor.Values().AddPair(QStringLiteral("نان"), {}, 1);
    QVERIFY(form.Show());
    const QRect red = PlaceOf(form.Grab(), Red);
    const QRect blue = PlaceOf(form.Grab(), Blue);
    QVERIFY(red.isValid() && blue.isValid());
    QVERIFY(red.left() > blue.right());
    QVERIFY(red.right() > form.editor.width() - 25);
    form.editor.SetRightToLeft(false);
    QVERIFY(PlaceOf(form.Grab(), Red).right() < PlaceOf(form.Grab(), Blue).left());
    QVERIFY(PlaceOf(form.Grab(), Red).left() < 25);
}

void AdvListEditorPerPaintingTest::picturesAreScaledDownAndStandBeforeTheText()
{
    TPaintedForm form;
    form.editor.SetImages({Disc(Red, 64)});
    form.editor.Values().AddPair(QStringLiteral("آب"), {}, 0);
    QVERIFY(form.Show());
    const QRect picture = PlaceOf(form.Grab(), Red);
    QCOMPARE(picture.size(), QSize(16, 16));
    QVERIFY(form.Bubble(0).contains(picture));
    QVERIFY(picture.center().x() > form.Bubble(0).center().x());
    const int width = form.Bubble(0).width();
    form.editor.Values().SetImageIndex(0, -1);
    QVERIFY(form.Bubble(0).width() < width);
}

void AdvListEditorPerPaintingTest::anIndexWithoutAPictureShowsNone()
{
    TPaintedForm form;
    form.editor.SetImages({Disc(Red, 12), QImage()});
    for (const int image : {-1, -7, 1, 2, 100000})
        form.editor.Values().AddPair(QStringLiteral("آب"), {}, image);
    QVERIFY(form.Show());
    QVERIFY(!PlaceOf(form.Grab(), Red).isValid());
}

void AdvListEditorPerPaintingTest::aDisabledEditorShowsItsPicturesFaintly()
{
    TPaintedForm form;
    form.editor.SetImages({Disc(Red, 16)});
    form.editor.Values().AddPair(QStringLiteral("آب"), {}, 0);
    QVERIFY(form.Show());
    QVERIFY(PlaceOf(form.Grab(), Red).isValid());
    form.editor.setEnabled(false);
    QVERIFY(!PlaceOf(form.Grab(), Red).isValid());
}

void AdvListEditorPerPaintingTest::textsCanBeReadOnEveryGround_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<uint>("ground");
    QTest::addColumn<QColor>("shown");
    for (const bool dark : {false, true}) {
        const char* scheme = dark ? "dark" : "light";
        QTest::addRow("white, %s", scheme) << dark << 0xffffffU << Look::ColorOf(Look::TRole::Base, dark);
        QTest::addRow("yellow, %s", scheme) << dark << 65535U << QColor(0xff, 0xff, 0);
        QTest::addRow("navy, %s", scheme) << dark << 0x800000U << QColor(0, 0, 0x80);
    }
}

void AdvListEditorPerPaintingTest::textsCanBeReadOnEveryGround()
{
    QFETCH(bool, dark);
    QFETCH(uint, ground);
    QFETCH(QColor, shown);
    Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
    TPaintedForm form;
    form.editor.SetColor(ground);
    form.editor.SetCloseMarks(false);
    form.Fill(QStringLiteral("مشتری‌ویژه"));
    form.editor.SetEditText(QStringLiteral("نوشته"));
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    QCOMPARE(form.editor.Color(), ground);
    QVERIFY(Ink::Has(form.Grab(), shown, 0));
    const QColor outline = form.GrabBubble(0).pixelColor(form.Bubble(0).width() / 2, 1);
    QVERIFY(Look::Contrast(outline, shown) >= 1.8);
    const QImage bubble = form.GrabBubble(0).copy(3, 4, form.Bubble(0).width() - 6, 16);
    QVERIFY(Look::Contrast(Ink::Ground(bubble), Ink::Foreground(bubble)) >= 4.5);
    const QImage box = form.Grab().copy(form.editor.focusProxy()->geometry().adjusted(0, 3, 0, -3));
    QCOMPARE(Ink::Ground(box), shown);
    QVERIFY(Look::Contrast(Ink::Ground(box), Ink::Foreground(box)) >= 4.5);
}

void AdvListEditorPerPaintingTest::theSchemeMayChangeWhileItIsShown()
{
    TPaintedForm form;
    form.Fill(QStringLiteral("آب"));
    form.editor.SetEditText(QStringLiteral("نوشته"));
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    for (const bool dark : {true, false}) {
        Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
        QCoreApplication::processEvents();
        const QImage box = form.Grab().copy(form.editor.focusProxy()->geometry().adjusted(0, 3, 0, -3));
        QCOMPARE(Ink::Ground(box), Look::ColorOf(Look::TRole::Base, dark));
        QVERIFY(Look::Contrast(Ink::Ground(box), Ink::Foreground(box)) >= 4.5);
    }
}

void AdvListEditorPerPaintingTest::theFocusIsSeen()
{
    TPaintedForm form;
    QVERIFY(form.Show());
    const QColor accent = Look::Color(Look::TRole::Accent);
    const QPoint onRing(form.editor.width() / 2, 0);
    QCOMPARE(form.Grab().pixelColor(onRing), accent);
    form.other.setFocus();
    QVERIFY(form.Grab().pixelColor(onRing) != accent);
}

void AdvListEditorPerPaintingTest::selectedBubblesTakeTheSelectionsColour()
{
    TPaintedForm form;
    QVERIFY(form.Show(QStringLiteral("آب نان")));
    const QColor selection = Look::Color(Look::TRole::Selection);
    QVERIFY(Ink::Ground(form.GrabBubble(1)) != selection);
    form.Stroke(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(Ink::Ground(form.GrabBubble(1)), selection);
    QVERIFY(Ink::Ground(form.GrabBubble(0)) != selection);
}

void AdvListEditorPerPaintingTest::aLongNameIsElidedWithinItsBubble()
{
    TPaintedForm form;
    form.editor.Values().AddPair(QStringLiteral("کالای شکستنی بسیار بلند ").repeated(500), {});
    form.editor.Values().AddPair(QStringLiteral("نامی\nدر دو خط"), {});
    QVERIFY(form.Show());
    QVERIFY(form.Bubble(0).width() <= 240);
    QVERIFY(form.Bubble(0).width() > 200);
    form.window.resize(160, 80);
    QCoreApplication::processEvents();
    QVERIFY(form.Bubble(0).width() <= form.editor.width());
    QVERIFY(form.Bubble(1).height() <= form.editor.height());
}

void AdvListEditorPerPaintingTest::whatIsScrolledOutFadesAway()
{
    TPaintedForm form;
    form.editor.SetImages({Disc(Red, 16)});
    for (int item = 0; item < 40; ++item)
        form.editor.Values().AddPair(QString(), {}, 0);
    form.editor.SetCloseMarks(false);
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    const QImage image = form.Grab();
    const QColor base = Look::Color(Look::TRole::Base);
    const int right = form.editor.width() - 6;
    QVERIFY(Look::Contrast(image.pixelColor(right, 14), base) < 1.5);
    QVERIFY(PlaceOf(image, Red).isValid());
}

void AdvListEditorPerPaintingTest::aWrappedEditorGrowsUpToItsLines()
{
    TPaintedForm form;
    form.editor.SetMaxLines(3);
    QVERIFY(form.editor.hasHeightForWidth());
    form.Fill(QStringLiteral("یک"));
    form.window.resize(300, 80);
    QVERIFY(form.Show());
    QCOMPARE(form.editor.height(), Look::ControlHeight);
    form.Fill(QStringLiteral("بلندترین_نام ").repeated(4));
    QTRY_COMPARE(form.editor.height(), Look::ControlHeight + 24);
    QVERIFY(form.Bubble(3).top() > form.Bubble(0).bottom());
    form.Fill(QStringLiteral("بلندترین_نام ").repeated(30));
    QTRY_COMPARE(form.editor.height(), Look::ControlHeight + 48);
    QVERIFY(form.editor.rect().contains(form.Bubble(29)));
    QVERIFY(form.Bubble(0).bottom() < 0);
    form.Stroke(Qt::Key_Home);
    QVERIFY(form.editor.rect().contains(form.Bubble(0)));
}

void AdvListEditorPerPaintingTest::aTallEditorCentresItsLine()
{
    TPaintedForm form;
    form.editor.setFixedHeight(38);
    QVERIFY(form.Show(QStringLiteral("آب")));
    QVERIFY(qAbs(form.Bubble(0).center().y() - 18) <= 1);
}

void AdvListEditorPerPaintingTest::aTextOfAnyScriptBeginsBehindTheBubbles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("rightToLeft");
    for (const bool rightToLeft : {true, false}) {
        const char* direction = rightToLeft ? "from right to left" : "from left to right";
        QTest::addRow("Persian, %s", direction) << QStringLiteral("نان") << rightToLeft;
        QTest::addRow("Latin, %s", direction) << QStringLiteral("abc") << rightToLeft;
        QTest::addRow("digits, %s", direction) << QStringLiteral("123") << rightToLeft;
    }
}

void AdvListEditorPerPaintingTest::aTextOfAnyScriptBeginsBehindTheBubbles()
{
    QFETCH(QString, text);
    QFETCH(bool, rightToLeft);
    TPaintedForm form;
    form.editor.SetRightToLeft(rightToLeft);
    form.Fill(QStringLiteral("آب"));
    form.editor.SetEditText(text);
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    form.Place();
    const QRect box = form.editor.focusProxy()->geometry();
    const QVector<Ink::TRun> runs =
        Ink::Runs(form.Grab().copy(box.adjusted(0, 3, 0, -3)), Look::Color(Look::TRole::Base));
    QVERIFY(!runs.isEmpty());
    QVERIFY(rightToLeft ? runs.last().Last > box.width() - 12 : runs.first().First < 12);
}

void AdvListEditorPerPaintingTest::anEmptyEditorShowsItsPlaceholder()
{
    TPaintedForm form;
    form.editor.SetPlaceholderText(QStringLiteral("برچسب را بنویسید"));
    form.other.setFocus();
    QVERIFY(form.ShowWith(form.other));
    const auto inner = [&] { return form.Grab().copy(form.editor.rect().adjusted(4, 4, -4, -4)); };
    QVERIFY(Ink::Runs(inner(), Look::Color(Look::TRole::Base)).size() > 1);
    form.editor.Values().AddPair(QStringLiteral("آب"), {});
    form.editor.Values().Clear();
    QVERIFY(Ink::Runs(inner(), Look::Color(Look::TRole::Base)).size() > 1);
    form.editor.SetPlaceholderText({});
    QVERIFY(Ink::Runs(inner(), Look::Color(Look::TRole::Base)).isEmpty());
}

void AdvListEditorPerPaintingTest::theMarkUnderTheMouseIsSeen()
{
    TPaintedForm form;
    QVERIFY(form.Show(QStringLiteral("آب")));
    const QColor wrong = Look::ColorOf(Look::TRole::Wrong, false);
    QVERIFY(!Ink::Has(form.GrabBubble(0), wrong, 4));
    QMouseEvent move(QEvent::MouseMove, form.Mark(0), form.editor.mapToGlobal(form.Mark(0)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&form.editor, &move);
    QVERIFY(Ink::Has(form.GrabBubble(0), wrong, 4));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&form.editor, &leave);
    QVERIFY(!Ink::Has(form.GrabBubble(0), wrong, 4));
}

void AdvListEditorPerPaintingTest::aReadOnlyEditorShowsItsCaret()
{
    TPaintedForm form;
    form.Fill(QStringLiteral("آب نان"));
    form.editor.SetReadOnly(true);
    QVERIFY(form.Show());
    form.Stroke(Qt::Key_Right);
    const int gap = (form.Bubble(0).left() + form.Bubble(1).right()) / 2;
    const QImage image = form.Grab().copy(gap - 1, 8, 4, 12);
    QVERIFY(Ink::Has(image, Look::Color(Look::TRole::Text), 4));
}

QTEST_MAIN(AdvListEditorPerPaintingTest)
#include "AdvListEditorPerPaintingTest.moc"
