#include "ATImageBox.h"
#include "ActiveWindow.h"
#include "Ink.h"
#include "Look.h"

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

/// Left half red, right half blue.
QImage TwoHalves(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width() / 2, size.height(), Qt::blue);
    return image;
}

struct TBox
{
    QWidget window;
    TATImageBox* box = new TATImageBox(&window);
    QPushButton* other = new QPushButton(&window);

    TBox()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(box);
        layout->addWidget(other);
        box->setFixedSize(400, 300);
        box->SetPicture(TwoHalves({800, 400}));
        box->UpdateImageInfo();
    }
    bool Show()
    {
        window.show();
        box->setFocus();
        return ActiveWindow::Activate(&window);
    }
    /// The point of the picture that is shown at a point of the box.
    QPointF At(const QPointF& point) const { return (point - box->PictureRect().topLeft()) / box->Zoom(); }
    void Wheel(const QPointF& at, int notches) const
    {
        QWheelEvent event(at, box->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
    }
    QColor Painted(const QPoint& at) const { return box->grab().toImage().pixelColor(at); }
};

bool IsNear(const QPointF& first, const QPointF& second)
{
    return (first - second).manhattanLength() < 0.01;
}

} // namespace

class ATImageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void cleanup() { Look::SetScheme(Look::TScheme::Light); }
    void aPictureIsFittedInTheMiddle();
    void aSmallPictureFillsTheAreaToo();
    void anotherPictureKeepsTheZoomUntilItsMeasuresAreTaken();
    void withoutPictureNothingHappens();
    void theWheelZoomsAroundThePointer();
    void plusAndMinusZoomAroundTheMiddle_data();
    void plusAndMinusZoomAroundTheMiddle();
    void zoomStaysBetweenFittedAndItsBound();
    void draggingMovesThePictureWithAHand();
    void aFittedPictureIsNotDragged();
    void thePictureLeavesNoGapWhenMoved();
    void arrowsMoveALargePictureAndAreLeftToTheFormOtherwise();
    void aDoubleClickAndZeroFitAgain();
    void aFittedPictureStaysFittedWhenTheAreaChanges();
    void tabLeavesTheBox();
    void theHandlersOfControlsAreRaised();
    void focusIsSeen_data();
    void focusIsSeen();
    void assistiveToolsKnowItAsAPicture();
    void aHugePictureIsZoomedAndPaintedInParts();
};

void ATImageBoxTest::aPictureIsFittedInTheMiddle()
{
    const TBox form;
    QCOMPARE(form.box->Zoom(), 0.5);
    QCOMPARE(form.box->PictureRect(), QRectF(0, 50, 400, 200));
    QVERIFY(form.box->IsFitted());
    QCOMPARE(form.Painted({100, 150}), QColor(Qt::red));
    QCOMPARE(form.Painted({300, 150}), QColor(Qt::blue));
    QCOMPARE(form.Painted({200, 20}), Look::Color(Look::TRole::Base));
}

void ATImageBoxTest::aSmallPictureFillsTheAreaToo()
{
    const TBox form;
    form.box->SetPicture(TwoHalves({20, 20}));
    form.box->UpdateImageInfo();
    QCOMPARE(form.box->PictureRect(), QRectF(50, 0, 300, 300));
    QCOMPARE(form.Painted({60, 150}), QColor(Qt::red));
}

void ATImageBoxTest::anotherPictureKeepsTheZoomUntilItsMeasuresAreTaken()
{
    const TBox form;
    form.box->ZoomAround({200, 150}, 2);
    form.box->SetPicture(TwoHalves({1000, 1000}));
    QCOMPARE(form.box->Zoom(), 2.0);
    form.box->UpdateImageInfo();
    QCOMPARE(form.box->Zoom(), 0.3);
    QVERIFY(form.box->IsFitted());
}

void ATImageBoxTest::withoutPictureNothingHappens()
{
    const TBox form;
    form.box->Clear();
    form.box->UpdateImageInfo();
    form.Wheel({10, 10}, 1);
    QTest::keyClick(form.box, Qt::Key_Plus);
    QTest::keyClick(form.box, Qt::Key_0);
    QTest::mousePress(form.box, Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(form.box, {50, 50});
    QTest::mouseRelease(form.box, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(form.box->Zoom(), 1.0);
    QCOMPARE(form.box->PictureRect(), QRectF());
    QCOMPARE(form.Painted({200, 150}), Look::Color(Look::TRole::Base));
}

void ATImageBoxTest::theWheelZoomsAroundThePointer()
{
    const TBox form;
    const QSignalSpy zoomed(form.box, &TATImageBox::zoomChanged);
    form.box->ZoomAround({200, 150}, 1);
    const QPointF pointer(120, 90);
    const QPointF before = form.At(pointer);
    form.Wheel(pointer, 2);
    QCOMPARE(form.box->Zoom(), 1.5625);
    QVERIFY(IsNear(form.At(pointer), before));
    form.Wheel(pointer, -1);
    QCOMPARE(form.box->Zoom(), 1.25);
    QVERIFY(IsNear(form.At(pointer), before));
    QCOMPARE(zoomed.count(), 3);
}

void ATImageBoxTest::plusAndMinusZoomAroundTheMiddle_data()
{
    QTest::addColumn<int>("in");
    QTest::addColumn<int>("out");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("main row") << int{Qt::Key_Plus} << int{Qt::Key_Minus} << int{Qt::ShiftModifier};
    QTest::newRow("unshifted") << int{Qt::Key_Equal} << int{Qt::Key_Minus} << int{Qt::NoModifier};
    QTest::newRow("keypad") << int{Qt::Key_Plus} << int{Qt::Key_Minus} << int{Qt::KeypadModifier};
}

void ATImageBoxTest::plusAndMinusZoomAroundTheMiddle()
{
    QFETCH(const int, in);
    QFETCH(const int, out);
    QFETCH(const int, modifiers);
    const TBox form;
    form.box->ZoomAround({200, 150}, 1);
    const QPointF middle = QRectF(form.box->rect()).center();
    const QPointF before = form.At(middle);
    QTest::keyClick(form.box, static_cast<Qt::Key>(in), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(form.box->Zoom(), 1.25);
    QVERIFY(IsNear(form.At(middle), before));
    QTest::keyClick(form.box, static_cast<Qt::Key>(out), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(form.box->Zoom(), 1.0);
    QTest::keyClick(form.box, Qt::Key_Plus, Qt::ControlModifier); // belongs to the form
    QCOMPARE(form.box->Zoom(), 1.0);
}

void ATImageBoxTest::zoomStaysBetweenFittedAndItsBound()
{
    const TBox form;
    form.Wheel({200, 150}, 100);
    QCOMPARE(form.box->Zoom(), TATImageBox::MostZoom);
    form.Wheel({200, 150}, -200);
    QCOMPARE(form.box->Zoom(), 0.5);
    QVERIFY(form.box->IsFitted());
}

void ATImageBoxTest::draggingMovesThePictureWithAHand()
{
    const TBox form;
    form.box->ZoomAround({200, 150}, 2);
    QCOMPARE(form.box->cursor().shape(), Qt::OpenHandCursor);
    const QPointF before = form.box->PictureRect().topLeft();
    QTest::mousePress(form.box, Qt::LeftButton, {}, {200, 150});
    QCOMPARE(form.box->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseMove(form.box, {230, 130});
    QVERIFY(IsNear(form.box->PictureRect().topLeft(), before + QPointF(30, -20)));
    QTest::mouseRelease(form.box, Qt::LeftButton, {}, {230, 130});
    QCOMPARE(form.box->cursor().shape(), Qt::OpenHandCursor);
    QTest::mouseMove(form.box, {100, 100});
    QVERIFY(IsNear(form.box->PictureRect().topLeft(), before + QPointF(30, -20)));
}

void ATImageBoxTest::aFittedPictureIsNotDragged()
{
    const TBox form;
    QCOMPARE(form.box->cursor().shape(), Qt::ArrowCursor);
    QTest::mousePress(form.box, Qt::LeftButton, {}, {200, 150});
    QTest::mouseMove(form.box, {230, 130});
    QTest::mouseRelease(form.box, Qt::LeftButton, {}, {230, 130});
    QCOMPARE(form.box->PictureRect(), QRectF(0, 50, 400, 200));
}

void ATImageBoxTest::thePictureLeavesNoGapWhenMoved()
{
    const TBox form;
    form.box->ZoomAround({200, 150}, 1);
    QTest::mousePress(form.box, Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(form.box, {390, 290});
    QCOMPARE(form.box->PictureRect(), QRectF(0, 0, 800, 400));
    QTest::mouseMove(form.box, {-2000, -2000});
    QCOMPARE(form.box->PictureRect(), QRectF(-400, -100, 800, 400));
    QTest::mouseRelease(form.box, Qt::LeftButton, {}, {10, 10});
}

void ATImageBoxTest::arrowsMoveALargePictureAndAreLeftToTheFormOtherwise()
{
    const TBox form;
    QKeyEvent fittedArrow(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
    QApplication::sendEvent(form.box, &fittedArrow);
    QVERIFY(!fittedArrow.isAccepted());
    form.box->ZoomAround({200, 150}, 1);
    const QPointF before = form.box->PictureRect().topLeft();
    QTest::keyClick(form.box, Qt::Key_Left);
    QTest::keyClick(form.box, Qt::Key_Up);
    QVERIFY(IsNear(form.box->PictureRect().topLeft(), before + QPointF(32, 32)));
    QTest::keyClick(form.box, Qt::Key_Right);
    QTest::keyClick(form.box, Qt::Key_Down);
    QVERIFY(IsNear(form.box->PictureRect().topLeft(), before));
}

void ATImageBoxTest::aDoubleClickAndZeroFitAgain()
{
    const TBox form;
    form.box->ZoomAround({200, 150}, 3);
    QTest::mouseDClick(form.box, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(form.box->Zoom(), 0.5);
    form.box->ZoomAround({200, 150}, 3);
    QTest::keyClick(form.box, Qt::Key_0);
    QCOMPARE(form.box->Zoom(), 0.5);
}

void ATImageBoxTest::aFittedPictureStaysFittedWhenTheAreaChanges()
{
    TBox form;
    QVERIFY(form.Show());
    form.box->setFixedSize(200, 300);
    QTRY_COMPARE(form.box->Zoom(), 0.25);
    form.box->ZoomAround({100, 150}, 1);
    form.box->setFixedSize(300, 300);
    QTRY_COMPARE(form.box->width(), 300);
    QCOMPARE(form.box->Zoom(), 1.0);
    form.box->setFixedSize(1000, 800); // larger than the picture at this zoom
    QTRY_COMPARE(form.box->Zoom(), 1.25);
    QVERIFY(form.box->IsFitted());
}

void ATImageBoxTest::tabLeavesTheBox()
{
    TBox form;
    QVERIFY(form.Show());
    QTest::keyClick(form.box, Qt::Key_Tab);
    QVERIFY(form.other->hasFocus());
    QTest::keyClick(form.other, Qt::Key_Backtab);
    QVERIFY(form.box->hasFocus());
}

void ATImageBoxTest::theHandlersOfControlsAreRaised()
{
    TBox form;
    QStringList log;
    form.box->OnEnter = [&](QObject*) { log << QStringLiteral("enter"); };
    form.box->OnExit = [&](QObject*) { log << QStringLiteral("exit"); };
    form.box->OnKeyDown = [&](QObject*, quint16& key, Qt::KeyboardModifiers) {
        log << QStringLiteral("down %1").arg(key);
        key = 0;
    };
    QVERIFY(form.Show());
    QTest::keyClick(form.box, Qt::Key_0);
    form.other->setFocus();
    QCOMPARE(log, (QStringList{QStringLiteral("enter"), QStringLiteral("down 48"), QStringLiteral("exit")}));
}

void ATImageBoxTest::focusIsSeen_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void ATImageBoxTest::focusIsSeen()
{
    QFETCH(const bool, dark);
    Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
    TBox form;
    QVERIFY(form.Show());
    const QColor ring = Look::Color(Look::TRole::Accent);
    QVERIFY(Ink::Has(form.box->grab().toImage(), ring));
    QCOMPARE(form.Painted({200, 20}), Look::Color(Look::TRole::Base));
    form.other->setFocus();
    QVERIFY(!Ink::Has(form.box->grab().toImage(), ring));
}

void ATImageBoxTest::assistiveToolsKnowItAsAPicture()
{
    const TBox form;
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(form.box);
    QVERIFY(accessible != nullptr);
    QCOMPARE(accessible->role(), QAccessible::Graphic);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("عکس"));
}

void ATImageBoxTest::aHugePictureIsZoomedAndPaintedInParts()
{
    const TBox form;
    form.box->SetPicture(TwoHalves({4096, 4096}));
    form.box->UpdateImageInfo();
    for (int notch = 0; notch < 30; ++notch) {
        form.Wheel({340, 150}, 1);
        QCOMPARE(form.Painted({340, 150}), QColor(Qt::blue));
    }
    QCOMPARE(form.box->Zoom(), TATImageBox::MostZoom);
}

QTEST_MAIN(ATImageBoxTest)
#include "ATImageBoxTest.moc"
