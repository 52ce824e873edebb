#include "ActiveWindow.h"
#include "Balloon.h"
#include "Look.h"
#include "SmartEdit_TRV.h"
#include "TypedKeys.h"

#include <QTest>
#include <QVBoxLayout>

namespace {

int CaretX(TSmartEdit_TRV& edit)
{
    // The line is laid out where it is painted.
    edit.grab();
    return edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
}

// Whether the colour is found in the rectangle, but for the blur of its edges.
bool Shows(const QImage& image, const QRect& rect, const QColor& color)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) +
                    qAbs(pixel.blue() - color.blue()) <
                24)
                return true;
        }
    }
    return false;
}

bool RingShows(TSmartEdit_TRV& edit, const QColor& color)
{
    return Shows(edit.grab().toImage(), QRect(0, edit.height() / 2, 3, 1), color);
}

bool TextShows(TSmartEdit_TRV& edit, const QColor& color)
{
    return Shows(edit.grab().toImage(), edit.rect().adjusted(6, 6, -6, -6), color);
}

} // namespace

class SmartEditLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everyEditStartsAtTheRight();
    void theFocusShowsAsARing();
    void anErrorShowsAsARingUntilTheUserTypes();
    void negativeAmountsHaveTheirOwnColour();
    void anOwnersColoursComeBackAfterANegativeAmount();
    void theSchemeReachesNegativeAmounts();
    void onALightGroundOfItsOwnANegativeAmountStaysReadable();
    void theEditIsAsHighAsEveryControl();

private:
    std::unique_ptr<QWidget> window_;
    TSmartEdit_TRV* edit_ = nullptr;
    TSmartEdit_TRV* other_ = nullptr;
};

void SmartEditLookTest::initTestCase()
{
    Look::Install(*qApp, Look::TScheme::Light);
}

void SmartEditLookTest::init()
{
    Look::SetScheme(Look::TScheme::Light);
    window_ = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(window_.get());
    edit_ = new TSmartEdit_TRV;
    other_ = new TSmartEdit_TRV;
    layout->addWidget(edit_);
    layout->addWidget(other_);
    other_->setFocus();
    window_->resize(240, 100);
    window_->move(200, 200);
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
}

void SmartEditLookTest::everyEditStartsAtTheRight()
{
    QVERIFY(CaretX(*edit_) > edit_->width() - 16);
    TypedKeys::Text(edit_, QStringLiteral("12"));
    QVERIFY(CaretX(*edit_) > edit_->width() - 16);
    edit_->Clear();
    TypedKeys::Text(edit_, QStringLiteral("پیچ و مهره"));
    QVERIFY(CaretX(*edit_) < edit_->width() - 16);
    QVERIFY(CaretX(*edit_) > edit_->width() / 2);
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetText(QStringLiteral("1234"));
    QVERIFY(CaretX(*edit_) > edit_->width() - 16);
}

void SmartEditLookTest::theFocusShowsAsARing()
{
    const QColor accent = Look::Color(Look::TRole::Accent);
    QVERIFY(!RingShows(*edit_, accent));
    edit_->setFocus();
    QTRY_VERIFY(edit_->hasFocus());
    QVERIFY(RingShows(*edit_, accent));
}

void SmartEditLookTest::anErrorShowsAsARingUntilTheUserTypes()
{
    const QColor wrong = Look::Color(Look::TRole::Wrong);
    edit_->ShowError(QStringLiteral("این کد وجود ندارد؛ کد دیگری بنویسید."));
    QVERIFY(RingShows(*edit_, wrong));
    TypedKeys::Text(edit_, QStringLiteral("1"));
    QVERIFY(!RingShows(*edit_, wrong));
}

void SmartEditLookTest::negativeAmountsHaveTheirOwnColour()
{
    const QColor wrong = Look::Color(Look::TRole::Wrong);
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetText(QStringLiteral("88888888"));
    QVERIFY(!TextShows(*edit_, wrong));
    TypedKeys::Text(edit_, QStringLiteral("-"));
    QVERIFY(TextShows(*edit_, wrong));
    TypedKeys::Text(edit_, QStringLiteral("-"));
    QVERIFY(!TextShows(*edit_, wrong));
    // A text is no amount.
    edit_->SetText(QStringLiteral("-5"));
    edit_->SetEditType(TSmartEdit_TRV::etString);
    QVERIFY(!TextShows(*edit_, wrong));
}

void SmartEditLookTest::anOwnersColoursComeBackAfterANegativeAmount()
{
    QPalette palette = edit_->palette();
    palette.setColor(QPalette::Base, Look::FromColorValue(16053492));
    palette.setColor(QPalette::Text, Qt::blue);
    edit_->setPalette(palette);
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetValue(-5);
    QCOMPARE(edit_->palette().color(QPalette::Base), QColor(0xF4, 0xF4, 0xF4));
    edit_->SetValue(5);
    QCOMPARE(edit_->palette().color(QPalette::Base), QColor(0xF4, 0xF4, 0xF4));
    QCOMPARE(edit_->palette().color(QPalette::Text), QColor(Qt::blue));
}

void SmartEditLookTest::onALightGroundOfItsOwnANegativeAmountStaysReadable()
{
    const QColor ground = Look::FromColorValue(16053492);
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    edit_->setPalette(palette);
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetValue(-5);
    Look::SetScheme(Look::TScheme::Dark);
    QCoreApplication::processEvents();
    QVERIFY(Look::Contrast(edit_->palette().color(QPalette::Text), ground) >= 4.5);
}

void SmartEditLookTest::theSchemeReachesNegativeAmounts()
{
    edit_->SetEditType(TSmartEdit_TRV::etCurrency);
    edit_->SetText(QStringLiteral("-88888888"));
    Look::SetScheme(Look::TScheme::Dark);
    QCoreApplication::processEvents();
    QVERIFY(TextShows(*edit_, Look::ColorOf(Look::TRole::Wrong, true)));
    edit_->SetText(QStringLiteral("88888888"));
    QVERIFY(TextShows(*edit_, Look::ColorOf(Look::TRole::Text, true)));
}

void SmartEditLookTest::theEditIsAsHighAsEveryControl()
{
    QVERIFY(edit_->sizeHint().height() >= Look::ControlHeight);
}

QTEST_MAIN(SmartEditLookTest)
#include "SmartEditLookTest.moc"
