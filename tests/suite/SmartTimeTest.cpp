#include "Balloon.h"
#include "DateForm.h"
#include "SmartTime_TRV.h"

class SmartTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingCompletesTheText_data();
    void typingCompletesTheText();
    void aDigitOutsideItsLimitsIsRefusedVisibly_data();
    void aDigitOutsideItsLimitsIsRefusedVisibly();
    void leavingCompletesWhatIsHalfTyped_data();
    void leavingCompletesWhatIsHalfTyped();
    void arrowsStepTheSectionOfTheCaret_data();
    void arrowsStepTheSectionOfTheCaret();
    void timesArePasted_data();
    void timesArePasted();
    void textsOfTheProgramAreShown();
    void theValueIsAnnouncedOnce();
};

void SmartTimeTest::typingCompletesTheText_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits alone") << "1430"
                                  << "14:30";
    QTest::newRow("Persian digits") << "۱۴۳۰"
                                    << "14:30";
    QTest::newRow("with a colon") << "14:30"
                                  << "14:30";
    QTest::newRow("an hour of one digit") << "930"
                                          << "09:30";
    QTest::newRow("closed by a colon") << "2:5"
                                       << "02:5";
    QTest::newRow("a minute of one digit") << "237"
                                           << "23:07";
    QTest::newRow("midnight") << "0000"
                              << "00:00";
}

void SmartTimeTest::typingCompletesTheText()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    TEditForm<TSmartTime_TRV> form;
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->Text(), text);
    QVERIFY(!form.Edit->HasError());
}

void SmartTimeTest::aDigitOutsideItsLimitsIsRefusedVisibly_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");
    QTest::newRow("hour 24") << "24"
                             << "2"
                             << "ساعت از 0 تا 23";
    QTest::newRow("hour 24 typed over another") << "1430{{{{{24"
                                                << "2"
                                                << "ساعت از 0 تا 23";
}

void SmartTimeTest::aDigitOutsideItsLimitsIsRefusedVisibly()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(QString, word);
    TEditForm<TSmartTime_TRV> form;
    QVERIFY(form.Show());
    form.Type(keys);
    QVERIFY(form.Edit->Text().startsWith(text));
    QVERIFY(form.Edit->HasError());
    QVERIFY(Balloon::ShownText().contains(word));
}

void SmartTimeTest::leavingCompletesWhatIsHalfTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("error");
    QTest::newRow("minute") << "14:5"
                            << "14:05"
                            << "14:05" << false;
    QTest::newRow("hour alone") << "14"
                                << "14:"
                                << "" << true;
    QTest::newRow("nothing") << ""
                             << ""
                             << "" << false;
}

void SmartTimeTest::leavingCompletesWhatIsHalfTyped()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(QString, value);
    QFETCH(bool, error);
    TEditForm<TSmartTime_TRV> form;
    QVERIFY(form.Show());
    form.Type(keys);
    form.Other->setFocus();
    QCOMPARE(form.Edit->Text(), text);
    QCOMPARE(form.Edit->GetText(), value);
    QCOMPARE(form.Edit->HasError(), error);
}

void SmartTimeTest::arrowsStepTheSectionOfTheCaret_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("minute up") << "14:59" << 5 << int(Qt::Key_Up) << "15:00";
    QTest::newRow("minute down") << "00:00" << 4 << int(Qt::Key_Down) << "23:59";
    QTest::newRow("hour up") << "23:10" << 1 << int(Qt::Key_Up) << "00:10";
    QTest::newRow("hour down") << "00:10" << 0 << int(Qt::Key_Minus) << "23:10";
    QTest::newRow("plus") << "00:10" << 5 << int(Qt::Key_Plus) << "00:11";
}

void SmartTimeTest::arrowsStepTheSectionOfTheCaret()
{
    QFETCH(QString, start);
    QFETCH(int, caret);
    QFETCH(int, key);
    QFETCH(QString, text);
    TEditForm<TSmartTime_TRV> form;
    QVERIFY(form.Show());
    form.Edit->SetText(start);
    form.Edit->setCursorPosition(caret);
    form.Press(key);
    QCOMPARE(form.Edit->Text(), text);
}

void SmartTimeTest::timesArePasted_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("text");
    QTest::newRow("as it is") << "14:30"
                              << "14:30";
    QTest::newRow("Persian") << "۱۴:۳۰"
                             << "14:30";
    QTest::newRow("with seconds") << "14:30:59"
                                  << "14:30";
    QTest::newRow("with a point") << "9.05"
                                  << "09:05";
    QTest::newRow("digits") << "1430"
                            << "14:30";
    QTest::newRow("in words") << "ساعت 14:30 "
                              << "14:30";
    QTest::newRow("no time") << "25:30"
                             << "08:00";
    QTest::newRow("no number") << "ظهر"
                               << "08:00";
}

void SmartTimeTest::timesArePasted()
{
    QFETCH(QString, clipboard);
    QFETCH(QString, text);
    TEditForm<TSmartTime_TRV> form;
    form.Edit->SetText(QStringLiteral("08:00"));
    QVERIFY(form.Show());
    form.Paste(clipboard);
    QCOMPARE(form.Edit->Text(), text);
    QCOMPARE(form.Edit->HasError(), text == QStringLiteral("08:00"));
}

void SmartTimeTest::textsOfTheProgramAreShown()
{
    TEditForm<TSmartTime_TRV> form;
    QCOMPARE(form.Edit->MaxLength(), 5);
    form.Edit->SetText(QStringLiteral("23:59"));
    QCOMPARE(form.Edit->GetText(), QStringLiteral("23:59"));
    form.Edit->SetText(QStringLiteral("25:00"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("25:00"));
    QCOMPARE(form.Edit->GetText(), QString());
    QVERIFY(form.Edit->HasError());
    form.Edit->Init();
    QCOMPARE(form.Edit->GetText(), QString());
    QVERIFY(!form.Edit->HasError());
    QCOMPARE(form.Announced, 0);
}

void SmartTimeTest::theValueIsAnnouncedOnce()
{
    TEditForm<TSmartTime_TRV> form;
    form.Edit->SetDelayTimeCount(50);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1430"));
    QTRY_COMPARE(form.Announced, 1);
    form.Other->setFocus();
    QCOMPARE(form.Announced, 1);
}

QTEST_MAIN(SmartTimeTest)
#include "SmartTimeTest.moc"
