#include "Balloon.h"
#include "DateForm.h"

class SmartDateEditEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormDescriptionSetsTheProperties();
    void theValueIsHandedOutInTheResultCalendar_data();
    void theValueIsHandedOutInTheResultCalendar();
    void everyChangeOfTheTextIsRaisedOnce();
    void theValueIsAnnouncedOnceAfterTheLastChange();
    void leavingAnnouncesTheValueAtOnceAndBeforeExit();
    void whatIsHalfTypedWaits();
    void emptyingTheEditIsAValueToo();
    void whatTheProgramWritesIsRaisedAsAChangeOnly();
    void aDateThatBecomesWrongIsAnnouncedAsNoneWhenLeft();
    void textsOfTheProgramAreShown_data();
    void textsOfTheProgramAreShown();
    void initEmptiesTheEdit();
    void arrowsStepTheSectionOfTheCaret_data();
    void arrowsStepTheSectionOfTheCaret();
    void steppingStopsAtTheYearsOfTheEdit();
    void todayComesFromTheGivenClock();
    void changingTheCalendarKeepsTheDay();
    void theHintTellsTheDayInBothCalendars();
    void handlersMayDestroyTheEdit();
    void aChangeHandlerMayDestroyTheEditWhileItSteps();
    void enterAndExitFollowTheFocus();
};

void SmartDateEditEventsTest::theFormDescriptionSetsTheProperties()
{
    TSmartDateEdit_TRV edit;
    QCOMPARE(edit.MaxLength(), 10);
    QCOMPARE(edit.CalendarType(), TSmartDateEdit_TRV::ctSolar);
    QVERIFY(edit.setProperty("CalendarType", QStringLiteral("ctGregorian")));
    QVERIFY(edit.setProperty("CalendarResultType", QStringLiteral("ctGregorian")));
    QVERIFY(edit.setProperty("CalendarButton", true));
    QCOMPARE(edit.CalendarType(), TSmartDateEdit_TRV::ctGregorian);
    QCOMPARE(edit.CalendarResultType(), TSmartDateEdit_TRV::ctGregorian);
    QVERIFY(edit.CalendarButton());
    edit.SetCalendarButton(false);
    QVERIFY(!edit.CalendarButton());
    QVERIFY(edit.CanTakeFocus());
}

void SmartDateEditEventsTest::theValueIsHandedOutInTheResultCalendar_data()
{
    using TType = TSmartDateEdit_TRV::TCalendarType;
    QTest::addColumn<TType>("type");
    QTest::addColumn<TType>("result");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("value");
    const TType solar = TSmartDateEdit_TRV::ctSolar;
    const TType gregorian = TSmartDateEdit_TRV::ctGregorian;
    QTest::newRow("solar") << solar << solar << "14030101"
                           << "1403/01/01";
    QTest::newRow("solar as Gregorian") << solar << gregorian << "14030101"
                                        << "2024/03/20";
    QTest::newRow("Gregorian as solar") << gregorian << solar << "20240320"
                                        << "1403/01/01";
    QTest::newRow("Gregorian") << gregorian << gregorian << "20240320"
                               << "2024/03/20";
    QTest::newRow("half typed") << solar << gregorian << "140301"
                                << "";
    QTest::newRow("nothing") << solar << gregorian << ""
                             << "";
    QTest::newRow("completed without leaving") << solar << gregorian << "1403/1/1"
                                               << "2024/03/20";
}

void SmartDateEditEventsTest::theValueIsHandedOutInTheResultCalendar()
{
    using TType = TSmartDateEdit_TRV::TCalendarType;
    QFETCH(TType, type);
    QFETCH(TType, result);
    QFETCH(QString, keys);
    QFETCH(QString, value);
    TDateForm form(type);
    form.Edit->SetCalendarResultType(result);
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->GetValue(), value);
}

void SmartDateEditEventsTest::everyChangeOfTheTextIsRaisedOnce()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1403/7"));
    QCOMPARE(form.Changes, (QStringList{"1", "14", "140", "1403/", "1403/07/"}));
}

void SmartDateEditEventsTest::theValueIsAnnouncedOnceAfterTheLastChange()
{
    TDateForm form;
    form.Edit->SetDelayTimeCount(200);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("14030702"));
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_Up);
    QCOMPARE(form.Announced, 0);
    QTRY_COMPARE(form.Announced, 1);
    QTest::qWait(250);
    QCOMPARE(form.Announced, 1);
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_Down);
    QTest::qWait(250);
    QCOMPARE(form.Announced, 1);
}

void SmartDateEditEventsTest::leavingAnnouncesTheValueAtOnceAndBeforeExit()
{
    TDateForm form;
    QStringList order;
    form.Edit->OnEditValueChange = [&](QObject*) { order << form.Edit->GetValue(); };
    form.Edit->OnExit = [&](QObject*) { order << QStringLiteral("exit"); };
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1403/7/2"));
    form.Other->setFocus();
    QCOMPARE(order, (QStringList{"1403/07/02", "exit"}));
    form.Edit->setFocus();
    form.Other->setFocus();
    QCOMPARE(order, (QStringList{"1403/07/02", "exit", "exit"}));
}

void SmartDateEditEventsTest::whatIsHalfTypedWaits()
{
    TDateForm form;
    form.Edit->SetDelayTimeCount(50);
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QVERIFY(form.Show());
    form.Press(Qt::Key_End);
    form.Type(QStringLiteral("<"));
    QTest::qWait(120);
    QCOMPARE(form.Announced, 0);
    form.Type(QStringLiteral("3"));
    QTRY_COMPARE(form.Announced, 1);
    QCOMPARE(form.Edit->GetValue(), QStringLiteral("1403/07/03"));
}

void SmartDateEditEventsTest::emptyingTheEditIsAValueToo()
{
    TDateForm form;
    form.Edit->SetDelayTimeCount(50);
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QVERIFY(form.Show());
    form.Edit->selectAll();
    form.Type(QStringLiteral("<"));
    QCOMPARE(form.Edit->Text(), QString());
    QTRY_COMPARE(form.Announced, 1);
    form.Other->setFocus();
    QVERIFY(!form.Edit->HasError());
    QCOMPARE(form.Announced, 1);
}

void SmartDateEditEventsTest::whatTheProgramWritesIsRaisedAsAChangeOnly()
{
    TDateForm form;
    form.Edit->SetDelayTimeCount(0);
    QVERIFY(form.Show());
    form.Edit->SetText(QStringLiteral("1403/7/2"));
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QTest::qWait(50);
    form.Other->setFocus();
    QCOMPARE(form.Changes, (QStringList{"1403/07/02"}));
    QCOMPARE(form.Announced, 0);
}

void SmartDateEditEventsTest::aDateThatBecomesWrongIsAnnouncedAsNoneWhenLeft()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QVERIFY(form.Show());
    form.Press(Qt::Key_End);
    form.Type(QStringLiteral("<<"));
    form.Other->setFocus();
    QCOMPARE(form.Announced, 1);
    QCOMPARE(form.Edit->GetValue(), QString());
    QVERIFY(form.Edit->HasError());
}

void SmartDateEditEventsTest::textsOfTheProgramAreShown_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::newRow("date") << "1403/07/02"
                          << "1403/07/02"
                          << "1403/07/02";
    QTest::newRow("unpadded") << "1403/7/2"
                              << "1403/07/02"
                              << "1403/07/02";
    QTest::newRow("what the other calendar gave") << "2024/09/23"
                                                  << "1403/07/02"
                                                  << "1403/07/02";
    QTest::newRow("ISO") << "2024-09-23"
                         << "1403/07/02"
                         << "1403/07/02";
    QTest::newRow("lowest bound") << "0000/00/00"
                                  << "0000/00/00"
                                  << "0000/00/00";
    QTest::newRow("highest bound") << "9999/99/99"
                                   << "9999/99/99"
                                   << "9999/99/99";
    QTest::newRow("no such day") << "1404/12/30"
                                 << "1404/12/30"
                                 << "";
    QTest::newRow("no such month") << "1404/13/30"
                                   << "1404/13/30"
                                   << "";
    QTest::newRow("no date at all") << "نامعلوم"
                                    << "نامعلوم"
                                    << "";
}

void SmartDateEditEventsTest::textsOfTheProgramAreShown()
{
    QFETCH(QString, given);
    QFETCH(QString, text);
    QFETCH(QString, value);
    TDateForm form;
    form.Edit->SetText(given);
    QCOMPARE(form.Edit->Text(), text);
    QCOMPARE(form.Edit->text(), text);
    QCOMPARE(form.Edit->GetValue(), value);
    QCOMPARE(form.Edit->HasError(), value.isEmpty());
    QVERIFY(form.Show());
    form.Edit->selectAll();
    form.Type(QStringLiteral("1"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1"));
    QVERIFY(!form.Edit->HasError());
}

void SmartDateEditEventsTest::initEmptiesTheEdit()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1404/12/30"));
    QVERIFY(form.Edit->HasError());
    form.Edit->Init();
    QCOMPARE(form.Edit->Text(), QString());
    QCOMPARE(form.Edit->GetValue(), QString());
    QVERIFY(!form.Edit->HasError());
    QCOMPARE(form.Announced, 0);
}

void SmartDateEditEventsTest::arrowsStepTheSectionOfTheCaret_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    const int none = Qt::NoModifier;
    const int control = Qt::ControlModifier;
    QTest::newRow("day up") << "1403/06/31" << 10 << int(Qt::Key_Up) << none << "1403/07/01";
    QTest::newRow("day down") << "1404/01/01" << 9 << int(Qt::Key_Down) << none << "1403/12/30";
    QTest::newRow("month up keeps the last day")
        << "1403/06/31" << 6 << int(Qt::Key_Up) << none << "1403/07/30";
    QTest::newRow("month down over the year")
        << "1403/01/31" << 5 << int(Qt::Key_Down) << none << "1402/12/29";
    QTest::newRow("year up from a leap day") << "1403/12/30" << 2 << int(Qt::Key_Up) << none << "1404/12/29";
    QTest::newRow("plus") << "1403/07/02" << 10 << int(Qt::Key_Plus) << none << "1403/07/03";
    QTest::newRow("minus") << "1403/07/02" << 10 << int(Qt::Key_Minus) << none << "1403/07/01";
    QTest::newRow("page down") << "1403/07/02" << 0 << int(Qt::Key_PageDown) << none << "1403/08/02";
    QTest::newRow("page up") << "1403/07/02" << 0 << int(Qt::Key_PageUp) << none << "1403/06/02";
    QTest::newRow("a year back") << "1403/12/30" << 0 << int(Qt::Key_PageUp) << control << "1402/12/29";
    QTest::newRow("a year on") << "1403/07/02" << 0 << int(Qt::Key_PageDown) << control << "1404/07/02";
    QTest::newRow("empty begins with today") << "" << 0 << int(Qt::Key_Up) << none << "1403/07/02";
    QTest::newRow("half typed stays") << "1403/0" << 6 << int(Qt::Key_Up) << none << "1403/0";
    QTest::newRow("a bound stays") << "9999/99/99" << 10 << int(Qt::Key_Up) << none << "9999/99/99";
}

void SmartDateEditEventsTest::arrowsStepTheSectionOfTheCaret()
{
    QFETCH(QString, start);
    QFETCH(int, caret);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    TDateForm form;
    QVERIFY(form.Show());
    form.Edit->SetText(start);
    form.Edit->setCursorPosition(caret);
    TypedKeys::Stroke(form.Edit, key, Qt::KeyboardModifiers(modifiers),
                      key < Qt::Key_Escape ? QString(QChar(key)) : QString());
    QCOMPARE(form.Edit->Text(), text);
}

void SmartDateEditEventsTest::steppingStopsAtTheYearsOfTheEdit()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Edit->SetText(QStringLiteral("1599/12/29"));
    form.Press(Qt::Key_PageDown);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1599/12/29"));
    form.Edit->SetText(QStringLiteral("1200/01/01"));
    form.Press(Qt::Key_PageUp);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1200/01/01"));
}

void SmartDateEditEventsTest::todayComesFromTheGivenClock()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Press(Qt::Key_T);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
    form.Today = QDate(2025, 3, 20);
    TypedKeys::Stroke(form.Edit, 0x0641, Qt::NoModifier, QStringLiteral("ف"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/12/30"));
    QTRY_COMPARE(form.Announced, 1);
}

void SmartDateEditEventsTest::changingTheCalendarKeepsTheDay()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    form.Edit->SetCalendarType(TSmartDateEdit_TRV::ctGregorian);
    QCOMPARE(form.Edit->Text(), QStringLiteral("2024/09/23"));
    QCOMPARE(form.Edit->GetValue(), QStringLiteral("1403/07/02"));
    form.Edit->SetCalendarType(TSmartDateEdit_TRV::ctSolar);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
}

void SmartDateEditEventsTest::theHintTellsTheDayInBothCalendars()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QCOMPARE(form.Edit->toolTip(), QStringLiteral("دوشنبه 2 مهر 1403 – دوشنبه 23 سپتامبر 2024"));
    form.Edit->Init();
    QCOMPARE(form.Edit->toolTip(), QString());
}

void SmartDateEditEventsTest::handlersMayDestroyTheEdit()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Edit->OnEditValueChange = [&](QObject*) { delete std::exchange(form.Edit, nullptr); };
    form.Type(QStringLiteral("1403/7/2"));
    form.Other->setFocus();
    QVERIFY(form.Edit == nullptr);
    QVERIFY(form.Other->hasFocus());
}

void SmartDateEditEventsTest::aChangeHandlerMayDestroyTheEditWhileItSteps()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    QVERIFY(form.Show());
    form.Edit->OnChange = [&](QObject*) { delete std::exchange(form.Edit, nullptr); };
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(form.Edit, &up);
    QVERIFY(form.Edit == nullptr);
}

void SmartDateEditEventsTest::enterAndExitFollowTheFocus()
{
    TDateForm form;
    QStringList order;
    form.Edit->OnEnter = [&](QObject*) { order << QStringLiteral("enter"); };
    form.Edit->OnExit = [&](QObject*) { order << QStringLiteral("exit"); };
    QVERIFY(form.Show());
    TypedKeys::Stroke(form.Edit, Qt::Key_F4);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    QApplication::activePopupWidget()->close();
    form.Other->setFocus();
    QCOMPARE(order, (QStringList{"enter", "exit"}));
}

QTEST_MAIN(SmartDateEditEventsTest)
#include "SmartDateEditEventsTest.moc"
