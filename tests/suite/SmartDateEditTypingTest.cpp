#include "Balloon.h"
#include "DateForm.h"
#include "SmartFaDate.h"

#include <QRandomGenerator>
#include <QRegularExpression>

class SmartDateEditTypingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingCompletesTheText_data();
    void typingCompletesTheText();
    void leavingCompletesWhatIsHalfTyped_data();
    void leavingCompletesWhatIsHalfTyped();
    void aDigitOutsideItsLimitsIsRefusedVisibly_data();
    void aDigitOutsideItsLimitsIsRefusedVisibly();
    void aDayThatDoesNotExistStaysAndIsMarked_data();
    void aDayThatDoesNotExistStaysAndIsMarked();
    void whatIsHalfTypedIsSaidWhenTheEditIsLeft();
    void deletingWorksAcrossSeparators_data();
    void deletingWorksAcrossSeparators();
    void everyStepIsUndoneAndRedone();
    void theYearsOfOpenBoundsFillTheBound();
    void datesArePasted_data();
    void datesArePasted();
    void whatIsNoDateIsNotPasted_data();
    void whatIsNoDateIsNotPasted();
    void cuttingTakesTheSelectionAlong();
    void aReadOnlyEditTakesNothing();
    void charactersOfAnInputMethodAreTyped();
    void hostileKeysLeaveADateOrABeginningOfOne();
};

void SmartDateEditTypingTest::typingCompletesTheText_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits alone") << "14030702"
                                  << "1403/07/02";
    QTest::newRow("Persian digits") << "۱۴۰۳۰۷۰۲"
                                    << "1403/07/02";
    QTest::newRow("Arabic digits") << "١٤٠٣٠٧٠٢"
                                   << "1403/07/02";
    QTest::newRow("with separators") << "1403/07/02"
                                     << "1403/07/02";
    QTest::newRow("with other separators") << "1403-7.2"
                                           << "1403/07/2";
    QTest::newRow("a digit that can only stand alone") << "1403745"
                                                       << "1403/07/04";
    QTest::newRow("the year by its end") << "03/7/5"
                                         << "1403/07/05";
    QTest::newRow("the year of the century before") << "98/7/5"
                                                    << "1398/07/05";
    QTest::newRow("half a date") << "14030"
                                 << "1403/0";
    QTest::newRow("separators do not double") << "1403//7//4"
                                              << "1403/07/04";
    QTest::newRow("letters are no dates") << "1403ab0702"
                                          << "1403/07/02";
    QTest::newRow("more digits find no room") << "140307029"
                                              << "1403/07/02";
    QTest::newRow("the end of a leap year") << "14031230"
                                            << "1403/12/30";
    QTest::newRow("typed over") << "14030702{{{{{9"
                                << "1403/09/02";
    QTest::newRow("typed over from the start of a section") << "14030715{{3"
                                                            << "1403/07/3";
}

void SmartDateEditTypingTest::typingCompletesTheText()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->Text(), text);
    QCOMPARE(form.Edit->text(), text);
    QVERIFY(!form.Edit->HasError());
}

void SmartDateEditTypingTest::leavingCompletesWhatIsHalfTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("day") << "1403/7/2"
                         << "1403/07/02";
    QTest::newRow("year") << "4/"
                          << "1404/";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("a lonely zero stays") << "1403/07/0"
                                         << "1403/07/0";
}

void SmartDateEditTypingTest::leavingCompletesWhatIsHalfTyped()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(keys);
    form.Other->setFocus();
    QCOMPARE(form.Edit->Text(), text);
}

void SmartDateEditTypingTest::aDigitOutsideItsLimitsIsRefusedVisibly_data()
{
    QTest::addColumn<bool>("gregorian");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");
    QTest::newRow("month 13") << false << "140313"
                              << "1403/1"
                              << "ماه از 1 تا 12";
    QTest::newRow("month 00") << false << "140300"
                              << "1403/0"
                              << "ماه از 1 تا 12";
    QTest::newRow("month 0") << false << "14030/"
                             << "1403/0"
                             << "ماه از 1 تا 12";
    QTest::newRow("day 32") << false << "14030732"
                            << "1403/07/3"
                            << "روز از 1 تا 31";
    QTest::newRow("day 00") << false << "14030700"
                            << "1403/07/0"
                            << "روز از 1 تا 31";
    QTest::newRow("Gregorian year") << false << "2024"
                                    << "202"
                                    << "سال شمسی از 1200 تا 1599";
    QTest::newRow("solar year") << true << "1403"
                                << "140"
                                << "سال میلادی از 1753 تا 2399";
}

void SmartDateEditTypingTest::aDigitOutsideItsLimitsIsRefusedVisibly()
{
    QFETCH(bool, gregorian);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(QString, word);
    TDateForm form(gregorian ? TSmartDateEdit_TRV::ctGregorian : TSmartDateEdit_TRV::ctSolar);
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->Text(), text);
    QVERIFY(form.Edit->HasError());
    QVERIFY2(Balloon::ShownText().contains(word), qPrintable(Balloon::ShownText()));
    form.Type(QStringLiteral("<"));
    QVERIFY(!form.Edit->HasError());
    QCOMPARE(Balloon::ShownText(), QString());
}

void SmartDateEditTypingTest::aDayThatDoesNotExistStaysAndIsMarked_data()
{
    QTest::addColumn<bool>("gregorian");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("31 Mehr") << false << "14030731"
                             << "1403/07/31"
                             << "ماه مهر سال 1403 تا روز 30 دارد؛ روز را درست کنید.";
    QTest::newRow("30 Esfand") << false << "14041230"
                               << "1404/12/30"
                               << "ماه اسفند سال 1404 تا روز 29 دارد؛ روز را درست کنید.";
    QTest::newRow("29 February") << true << "20230229"
                                 << "2023/02/29"
                                 << "ماه فوریه سال 2023 تا روز 28 دارد؛ روز را درست کنید.";
}

void SmartDateEditTypingTest::aDayThatDoesNotExistStaysAndIsMarked()
{
    QFETCH(bool, gregorian);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(QString, sentence);
    TDateForm form(gregorian ? TSmartDateEdit_TRV::ctGregorian : TSmartDateEdit_TRV::ctSolar);
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->Text(), text);
    QVERIFY(form.Edit->HasError());
    QCOMPARE(Balloon::ShownText(), sentence);
    QCOMPARE(form.Edit->GetValue(), QString());
    form.Other->setFocus();
    QCOMPARE(form.Edit->Text(), text);
    QVERIFY(form.Edit->HasError());
    QVERIFY(form.Other->hasFocus());
    form.Edit->setFocus();
    form.Press(Qt::Key_End);
    form.Type(QStringLiteral("<<15"));
    QVERIFY(!form.Edit->HasError());
    QVERIFY(!form.Edit->GetValue().isEmpty());
}

void SmartDateEditTypingTest::whatIsHalfTypedIsSaidWhenTheEditIsLeft()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("140307"));
    QVERIFY(!form.Edit->HasError());
    form.Other->setFocus();
    QVERIFY(form.Edit->HasError());
    QCOMPARE(Balloon::ShownText(), QStringLiteral("تاریخ کامل نیست؛ سال و ماه و روز را بنویسید."));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/"));
    QCOMPARE(form.Edit->GetValue(), QString());
}

void SmartDateEditTypingTest::deletingWorksAcrossSeparators_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("the last digit") << "14030702<"
                                    << "1403/07/0";
    QTest::newRow("the separator goes with its digit") << "1403<"
                                                       << "140";
    QTest::newRow("back to nothing") << "1403<<<<"
                                     << "";
    QTest::newRow("beyond the start") << "14<<<<"
                                      << "";
    QTest::newRow("in the middle") << "14030702{{{<"
                                   << "1403/0/02";
    QTest::newRow("forward over a separator") << "14030702{{{{{{>"
                                              << "1403/7/02";
    QTest::newRow("forward at the end") << "14030702>"
                                        << "1403/07/02";
    QTest::newRow("a section that was emptied is typed anew") << "14030702{{{<<11"
                                                              << "1403/11/02";
}

void SmartDateEditTypingTest::deletingWorksAcrossSeparators()
{
    typingCompletesTheText();
}

void SmartDateEditTypingTest::everyStepIsUndoneAndRedone()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1403"));
    form.Press(Qt::Key_T);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
    form.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/"));
    form.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.Edit->Text(), QStringLiteral("140"));
    form.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    form.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
}

void SmartDateEditTypingTest::theYearsOfOpenBoundsFillTheBound()
{
    TDateForm form;
    form.Edit->SetCalendarResultType(TSmartDateEdit_TRV::ctGregorian);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("9999"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("9999/99/99"));
    QCOMPARE(form.Edit->GetValue(), QStringLiteral("9999/99/99"));
    form.Edit->selectAll();
    form.Type(QStringLiteral("0000"));
    QCOMPARE(form.Edit->GetValue(), QStringLiteral("0000/00/00"));
    QVERIFY(!form.Edit->HasError());
    form.Type(QStringLiteral("<<<<"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("0000/"));
}

void SmartDateEditTypingTest::datesArePasted_data()
{
    QTest::addColumn<QString>("clipboard");
    for (const char* text :
         {"1403/07/02", "1403-7-2", "۱۴۰۳.۰۷.۰۲", "02/07/1403", "14030702", " 1403 07 02\n", "2024/09/23",
          "2024-09-23", "23.09.2024", "تاریخ سند: ۱۴۰۳/۷/۲"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void SmartDateEditTypingTest::datesArePasted()
{
    QFETCH(QString, clipboard);
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1399"));
    form.Paste(clipboard);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
    QVERIFY(!form.Edit->HasError());
}

void SmartDateEditTypingTest::whatIsNoDateIsNotPasted_data()
{
    QTest::addColumn<QString>("clipboard");
    for (const char* text : {"1404/12/30", "1403/07", "سلام", "12345", "0622/03/22", "1403/07/02 1403/07/03"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void SmartDateEditTypingTest::whatIsNoDateIsNotPasted()
{
    QFETCH(QString, clipboard);
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("13990101"));
    form.Paste(clipboard);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1399/01/01"));
    QVERIFY(form.Edit->HasError());
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("چسبانده")));
    QCOMPARE(form.Edit->GetValue(), QStringLiteral("1399/01/01"));
}

void SmartDateEditTypingTest::cuttingTakesTheSelectionAlong()
{
    TDateForm form;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("14030702"));
    form.Edit->setSelection(5, 2);
    form.Press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403//02"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("07"));
    form.Type(QStringLiteral("8"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/08/02"));
}

void SmartDateEditTypingTest::aReadOnlyEditTakesNothing()
{
    TDateForm form;
    form.Edit->SetText(QStringLiteral("1403/07/02"));
    form.Edit->setReadOnly(true);
    QVERIFY(form.Show());
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_T);
    form.Press(Qt::Key_F4);
    form.Type(QStringLiteral("<5"));
    form.Paste(QStringLiteral("1400/01/01"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
    QVERIFY(!form.Edit->HasError());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void SmartDateEditTypingTest::charactersOfAnInputMethodAreTyped()
{
    TDateForm form;
    QVERIFY(form.Show());
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("۱۴۰۳۰۷۰۲"));
    QApplication::sendEvent(form.Edit, &event);
    QCOMPARE(form.Edit->Text(), QStringLiteral("1403/07/02"));
}

void SmartDateEditTypingTest::hostileKeysLeaveADateOrABeginningOfOne()
{
    static const QRegularExpression shape(QStringLiteral("^(\\d{0,4}(/\\d{0,2}(/\\d{0,2})?)?)?$"));
    const QString signs = QStringLiteral("0123456789۰۹٣/-+. <>{}<tف'ب\u200F%");
    QRandomGenerator random(1403);
    TDateForm form;
    QVERIFY(form.Show());
    for (int step = 0; step < 4000; ++step) {
        if (random.bounded(20) == 0)
            form.Edit->setSelection(random.bounded(8), random.bounded(8));
        form.Type(QString(signs.at(random.bounded(static_cast<int>(signs.size())))));
        QVERIFY2(shape.match(form.Edit->Text()).hasMatch(), qPrintable(form.Edit->Text()));
        QCOMPARE(form.Edit->text(), form.Edit->Text());
        const QString value = form.Edit->GetValue();
        QVERIFY2(value.isEmpty() || TFaDate::CreateByPersianDate(value).IsValid() ||
                     value == QStringLiteral("0000/00/00") || value == QStringLiteral("9999/99/99"),
                 qPrintable(value));
    }
    for (int step = 0; step < 5000; ++step)
        form.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.Edit->Text(), QString());
}

QTEST_MAIN(SmartDateEditTypingTest)
#include "SmartDateEditTypingTest.moc"
