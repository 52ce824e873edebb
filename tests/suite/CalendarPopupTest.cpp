#include "CalendarPopup.h"
#include "DateForm.h"
#include "Ink.h"
#include "MonthPage.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

QPointer<TCalendarPopup> Opened()
{
    return qobject_cast<TCalendarPopup*>(QApplication::activePopupWidget());
}

} // namespace

class CalendarPopupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theKeysMoveTheMark_data();
    void theKeysMoveTheMark();
    void enterTakesTheMarkedDay();
    void escapeLeavesTheEditAsItWas();
    void aClickTakesTheDay();
    void theButtonsTurnThePages();
    void theWheelTurnsThePages();
    void todayIsTakenByItsButton();
    void anEmptyEditOpensAtToday();
    void gregorianMonthsReadInPersian();
    void saturdayStandsFirstAndAtTheRight();
    void fridaysStandInTheColourOfHolidays();
    void theButtonOfTheEditOpensThePage();
    void theOtherCalendarIsTold();
    void handlersMayDestroyTheEdit();
};

void CalendarPopupTest::theKeysMoveTheMark_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    const int none = Qt::NoModifier;
    const int control = Qt::ControlModifier;
    QTest::newRow("left is the next day") << int(Qt::Key_Left) << none << "1403/07/01";
    QTest::newRow("right is the day before") << int(Qt::Key_Right) << none << "1403/06/30";
    QTest::newRow("up") << int(Qt::Key_Up) << none << "1403/06/24";
    QTest::newRow("down") << int(Qt::Key_Down) << none << "1403/07/07";
    QTest::newRow("page up") << int(Qt::Key_PageUp) << none << "1403/05/31";
    QTest::newRow("page down") << int(Qt::Key_PageDown) << none << "1403/07/30";
    QTest::newRow("year back") << int(Qt::Key_PageUp) << control << "1402/06/31";
    QTest::newRow("year on") << int(Qt::Key_PageDown) << control << "1404/06/31";
    QTest::newRow("first of the month") << int(Qt::Key_Home) << none << "1403/06/01";
    QTest::newRow("last of the month") << int(Qt::Key_End) << none << "1403/06/31";
    QTest::newRow("today") << int(Qt::Key_T) << none << "1403/07/02";
    QTest::newRow("another key") << int(Qt::Key_X) << none << "1403/06/31";
}

void CalendarPopupTest::theKeysMoveTheMark()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/06/31"));
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    const QPointer<TCalendarPopup> popup = Opened();
    QVERIFY(popup);
    TypedKeys::Stroke(popup, key, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/06/31"));
    TypedKeys::Stroke(popup, Qt::Key_Return);
    QCOMPARE(form.Edit->Text(), text);
}

void CalendarPopupTest::enterTakesTheMarkedDay()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_Down, Qt::AltModifier);
    const QPointer<TCalendarPopup> popup = Opened();
    QVERIFY(popup);
    TypedKeys::Stroke(popup, Qt::Key_Left);
    TypedKeys::Stroke(popup, Qt::Key_Return);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/03"));
    QTRY_VERIFY(!popup);
    QTRY_COMPARE(form.Announced, 1);
}

void CalendarPopupTest::escapeLeavesTheEditAsItWas()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("140307"));
    form.Press(Qt::Key_F4);
    const QPointer<TCalendarPopup> popup = Opened();
    QVERIFY(popup);
    TypedKeys::Stroke(popup, Qt::Key_Left);
    TypedKeys::Stroke(popup, Qt::Key_Escape);
    QTRY_VERIFY(!popup);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/"));
}

void CalendarPopupTest::aClickTakesTheDay()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    TMonthPage* page = Opened()->Page();
    const QRect cell = page->RectOf(QDate(2024, 10, 1));
    QVERIFY(cell.isValid());
    QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, cell.center());
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/10"));
}

void CalendarPopupTest::theButtonsTurnThePages()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    TMonthPage* page = Opened()->Page();
    const QList<std::pair<QString, QString>> steps = {
        {"ماه بعد", "آبان 1403"}, {"سال بعد", "آبان 1404"}, {"ماه پیش", "مهر 1404"}, {"سال پیش", "مهر 1403"}};
    for (const auto& [name, title] : steps) {
        for (QToolButton* button : Opened()->findChildren<QToolButton*>()) {
            if (button->accessibleName() == name)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(page->Title(), title);
    }
    const auto buttons = Opened()->findChildren<QToolButton*>();
    QVERIFY(buttons.front()->x() > buttons.back()->x());
}

void CalendarPopupTest::theWheelTurnsThePages()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    TMonthPage* page = Opened()->Page();
    QWheelEvent down(QPointF(10, 10), QPointF(10, 10), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(Opened(), &down);
    QCOMPARE(page->Title(), QStringLiteral("آبان 1403"));
}

void CalendarPopupTest::todayIsTakenByItsButton()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1390/01/01"));
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    QTest::mouseClick(Opened()->findChild<QPushButton*>(), Qt::LeftButton);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
}

void CalendarPopupTest::anEmptyEditOpensAtToday()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    QCOMPARE(Opened()->Page()->Marked(), form.Today);
    QCOMPARE(Opened()->Page()->Title(), QStringLiteral("مهر 1403"));
}

void CalendarPopupTest::gregorianMonthsReadInPersian()
{
    TDateForm form(TSmartDateEdit_TRV::ctGregorian);
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    const QPointer<TCalendarPopup> popup = Opened();
    QCOMPARE(popup->Page()->Title(), QStringLiteral("سپتامبر 2024"));
    TypedKeys::Stroke(popup, Qt::Key_End);
    TypedKeys::Stroke(popup, Qt::Key_Return);
    QCOMPARE(form.Edit->Text(), QStringLiteral("2024/09/30"));
}

void CalendarPopupTest::saturdayStandsFirstAndAtTheRight()
{
    TMonthPage page(TCalendarKind(), QDate(), nullptr);
    page.resize(page.sizeHint());
    page.Mark(QDate(2024, 9, 23));
    const QRect saturday = page.RectOf(QDate(2024, 9, 28));
    QCOMPARE(saturday.right(), page.width() - 1);
    const QRect friday = page.RectOf(QDate(2024, 9, 27));
    QCOMPARE(friday.left(), 0);
    QVERIFY(saturday.top() > friday.top());
    QCOMPARE(page.DateAt(saturday.center()), QDate(2024, 9, 28));
    QVERIFY(!page.DateAt(QPoint(5, 5)).isValid());
    QVERIFY(page.RectOf(QDate(2025, 1, 1)).isNull());
}

void CalendarPopupTest::fridaysStandInTheColourOfHolidays()
{
    TMonthPage page(TCalendarKind(), QDate(), nullptr);
    page.resize(page.sizeHint());
    page.Mark(QDate(2024, 9, 23));
    const QImage picture = page.grab().toImage();
    const QColor wrong = Look::Color(Look::TRole::Wrong);
    QVERIFY(Ink::Has(picture.copy(page.RectOf(QDate(2024, 9, 27))), wrong));
    QVERIFY(!Ink::Has(picture.copy(page.RectOf(QDate(2024, 9, 26))), wrong));
    QVERIFY(!Ink::Has(picture.copy(page.RectOf(QDate(2024, 9, 28))), wrong));
}

void CalendarPopupTest::theButtonOfTheEditOpensThePage()
{
    TDateForm form;
    form.Edit->SetCalendarButton(true);
    QVERIFY(form.Show());
    auto* button = form.Edit->findChild<QToolButton*>();
    QVERIFY(button);
    QVERIFY(button->geometry().center().x() < form.Edit->width() / 4);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(Opened());
}

void CalendarPopupTest::theOtherCalendarIsTold()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    QStringList texts;
    for (const QLabel* label : Opened()->findChildren<QLabel*>())
        texts << label->text();
    QVERIFY(texts.contains(QStringLiteral("دوشنبه 23 سپتامبر 2024")));
}

void CalendarPopupTest::handlersMayDestroyTheEdit()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_F4);
    const QPointer<TCalendarPopup> popup = Opened();
    form.Edit->OnChange = [&](QObject*) { delete std::exchange(form.Edit, nullptr); };
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(popup, &enter);
    QVERIFY(!popup);
    QVERIFY(form.Edit == nullptr);
}

QTEST_MAIN(CalendarPopupTest)
#include "CalendarPopupTest.moc"
