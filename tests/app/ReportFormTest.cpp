#include "ReportFixture.h"

#include "AccountingCodes_Search_UNT.h"
#include "ADVSearch_UNT.h"
#include "DateRange_Display_UNT.h"
#include "MainWindow.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReportText.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartMaskEdit_TRV.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"
#include "VoucherForm.h"

#include <QDir>

class ReportFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TReportFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->Settings.SetValue(QStringLiteral("Reports/VoucherLines/Filters"), QString());
        filters_ = &shop_->OpenReport().Filters();
    }
    void cleanup()
    {
        shop_->Connection.OnWillExecute = nullptr;
        shop_->Form.reset();
    }

    void theSwitchShowsAndHidesTheFilters()
    {
        QVERIFY(!filters_->AdvancedIsShown());
        shop_->Press(Qt::Key_F10, Qt::ControlModifier);
        QVERIFY(filters_->AdvancedIsShown());
        QVERIFY(filters_->Date->RangeDate_CHK->hasFocus());
        shop_->Press(Qt::Key_F10, Qt::ControlModifier);
        QVERIFY(filters_->AdvancedIsShown());
        filters_->Advanced->ADVSearch_CHK->setFocus();
        shop_->Press(Qt::Key_Space);
        QVERIFY(!filters_->AdvancedIsShown());
    }

    void someLinesStayInSightOnALowScreen()
    {
        shop_->Form->resize(1000, 540);
        filters_->ShowAdvanced(true);
        shop_->Settle();
        const auto* grid = shop_->Form->findChild<TSmartDBGrid_TRV*>();
        QVERIFY(grid->viewport()->height() >= 4 * Look::GridRowHeight);
        QCOMPARE(shop_->Form->height(), 540);
        // What has scrolled out of sight comes back with the focus.
        auto* last = filters_->Entities->SelectEntity_CHK;
        QVERIFY(last->visibleRegion().isEmpty());
        last->setFocus(Qt::ShortcutFocusReason);
        QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
    }

    void eachFilterHasALetterOfItsOwn()
    {
        filters_->ShowAdvanced(true);
        const QVector<QPair<char16_t, TSmartCheckBox_TRV*>> letters{
            {u'ت', filters_->Date->RangeDate_CHK},       {u'ث', filters_->Time->RangeDate_CHK},
            {u'غ', filters_->Cost->RangeCost_CHK},       {u'ش', filters_->Digit->RangeDigit_CHK},
            {u'ک', filters_->Code->RangeString_CHK},     {u'ح', filters_->Account->AccCodes_CHK},
            {u'ب', filters_->Accounts->AccCodes_CHK},    {u'ل', filters_->Entity->SelectEntity_CHK},
            {u'ی', filters_->Entities->SelectEntity_CHK}};
        for (const auto& [letter, box] : letters) {
            PressLetter(letter);
            QVERIFY2(box->Checked(), qPrintable(QString(QChar(letter))));
        }
        for (const auto& [letter, box] : letters) {
            PressLetter(letter);
            QVERIFY2(!box->Checked(), qPrintable(QString(QChar(letter))));
        }
        PressLetter(u'س');
        QVERIFY(filters_->Advanced->ADVSearch_CHK->Checked());
    }

    void thePeriodIsChosenByKeyboard()
    {
        shop_->Press(Qt::Key_F10);
        QVERIFY(filters_->Period->RangeDate_CMB->hasFocus());
        const QString all = shop_->Words();
        shop_->Press(Qt::Key_Up); // the week
        shop_->Settle();
        const QString week = shop_->Words();
        shop_->Press(Qt::Key_Up); // the month
        shop_->Settle();
        const QString month = shop_->Words();
        QVERIFY(week != all && month != all && week != month);
        shop_->Press(Qt::Key_Down);
        shop_->Settle();
        QCOMPARE(shop_->Words(), week);
        shop_->Press(Qt::Key_Down);
        shop_->ExpectAll();
    }

    void thePeriodCoversTheSameDaysInBothCalendars()
    {
        filters_->Period->RangeDate_CMB->setFocus();
        shop_->Press(Qt::Key_Home); // the last thirty days
        const QString solar = shop_->Report->Manager().Condition();
        QVERIFY2(solar.startsWith(QStringLiteral("[VoucherDate] >= N'14")), qPrintable(solar));
        shop_->Settings.SetGregorian(true);
        filters_->Period->SetRangeValue();
        const QString gregorian = shop_->Report->Manager().Condition();
        shop_->Settings.SetGregorian(false);
        QCOMPARE(gregorian, solar);
    }

    void theFiltersAreKept()
    {
        const QString from = shop_->Lines.at(shop_->Lines.size() / 2).Date;
        const int person = Person();
        filters_->ShowAdvanced(true);
        Toggle(filters_->Date->RangeDate_CHK);
        TypeInto(filters_->Date->RangeDate_From_EDT, from);
        Toggle(filters_->Digit->RangeDigit_CHK);
        TypeInto(filters_->Digit->RangeDigit_From_EDT, QStringLiteral("3"));
        Toggle(filters_->Digit->RangeDigit_Reverst_CHK);
        Toggle(filters_->Entity->SelectEntity_CHK);
        TypeInto(filters_->Entity->TSelect_Entity_Frame1->Code_EDT, QString::number(person));
        Toggle(filters_->Entity->SelectEntity_Reverst_CHK);
        filters_->Tabs->Search_TBC->setFocus();
        shop_->Press(Qt::Key_Left);
        shop_->Settle();
        const QString condition = shop_->Report->Manager().Condition();
        const QString words = shop_->Words();
        QVERIFY(condition.count(QStringLiteral(" AND ")) >= 3);
        filters_ = &shop_->Reopen().Filters();
        QCOMPARE(shop_->Report->Manager().Condition(), condition);
        QCOMPARE(shop_->Words(), words);
        QCOMPARE(filters_->Date->RangeDate_From_EDT->Text(), from);
        QCOMPARE(filters_->Tabs->Search_TBC->TabIndex(), 1);
    }

    void codesAndAmountsAreKeptToo()
    {
        filters_->ShowAdvanced(true);
        Toggle(filters_->Account->AccCodes_CHK);
        TypeInto(filters_->Account->Select_AccountCode1->TotalCode_EDT, QStringLiteral("104"));
        Toggle(filters_->Accounts->AccCodes_CHK);
        TypeInto(filters_->Accounts->Select_AccountCode1->TotalCode_EDT, QStringLiteral("101"));
        Toggle(filters_->Code->RangeString_CHK);
        TypeInto(filters_->Code->RangeString_From_EDT, QStringLiteral("12345"));
        Toggle(filters_->Cost->RangeCost_CHK);
        TypeInto(filters_->Cost->RangeCost_To_EDT, QStringLiteral("123456789"));
        Toggle(filters_->Entities->SelectEntity_CHK);
        TypeInto(filters_->Entities->Select_Entity_Frame1->Code_EDT, QString::number(Person()));
        shop_->Report->Grid().setFocus();
        shop_->Settle();
        const QString condition = shop_->Report->Manager().Condition();
        for (const char* piece :
             {"[kol] = 104", "[kol] >= 101", "N'012345'", "[Bed] <= 123456789", "[PersonCode] >= "})
            QVERIFY2(condition.contains(QLatin1String(piece)), qPrintable(condition));
        shop_->Reopen();
        QCOMPARE(shop_->Report->Manager().Condition(), condition);
    }

    void theHostsCalendarIsShown()
    {
        shop_->Form.reset();
        shop_->Settings.SetGregorian(true);
        filters_ = &shop_->OpenReport().Filters();
        filters_->ShowAdvanced(true);
        Toggle(filters_->Date->RangeDate_CHK);
        TypeInto(filters_->Date->RangeDate_From_EDT, QStringLiteral("1402/02/01"));
        shop_->Settle();
        const QString words = shop_->Words();
        const QImage gregorian = shop_->Report->Grid().viewport()->grab().toImage();
        shop_->Settings.SetGregorian(false);
        QVERIFY2(words.contains(QStringLiteral("۲۰۲۳/۰۴/۲۱")), qPrintable(words));
        QVERIFY(shop_->Report->Manager().Condition().contains(QStringLiteral("N'1402/02/01'")));
        filters_ = &shop_->Reopen().Filters();
        QVERIFY2(shop_->Words().contains(QStringLiteral("۱۴۰۲/۰۲/۰۱")), qPrintable(shop_->Words()));
        filters_->ShowAdvanced(true);
        shop_->Settle();
        QVERIFY(shop_->Report->Grid().viewport()->grab().toImage() != gregorian);
    }

    void spoiltSettingsAreLeftOut_data()
    {
        QTest::addColumn<QString>("state");
        QTest::newRow("no JSON") << QStringLiteral("{\"date\":");
        QTest::newRow("other kinds") << QStringLiteral("{\"date\":7,\"period\":\"x\",\"tab\":99,\"number\":"
                                                       "{\"field\":50,\"values\":[1,2,3]}}");
        QTest::newRow("hostile") << QStringLiteral(
            "{\"code\":{\"on\":true,\"field\":1,\"values\":[\"'; DELETE FROM dbo.Sanad; --\",\"\"]}}");
    }
    void spoiltSettingsAreLeftOut()
    {
        QFETCH(QString, state);
        shop_->Form.reset();
        shop_->Settings.SetValue(QStringLiteral("Reports/VoucherLines/Filters"), state);
        shop_->OpenReport();
        QVERIFY(shop_->Report->DataSet().CountIsExact());
        QCOMPARE(shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail")),
                 QString::number(shop_->Lines.size()));
    }

    void hostileTextStaysAText()
    {
        filters_->ShowAdvanced(true);
        Toggle(filters_->Code->RangeString_CHK);
        shop_->Press(Qt::Key_Down); // the field without a length
        TypeInto(filters_->Code->RangeString_From_EDT, QStringLiteral("'; DELETE FROM dbo.Sanad_Detail; --"));
        shop_->Report->Grid().setFocus();
        shop_->Settle();
        const QString condition = shop_->Report->Manager().Condition();
        QVERIFY2(condition.contains(QStringLiteral("N'''; DELETE")), qPrintable(condition));
        QCOMPARE(shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail")),
                 QString::number(shop_->Lines.size()));
    }

    void f5ReadsWhatOthersHaveWritten()
    {
        const QString before = shop_->Report->Totals().DebitText();
        TADOQuery query;
        query.SetConnection(&shop_->Connection);
        const QString change = QStringLiteral("UPDATE dbo.Sanad_Detail SET Bed = Bed %1 0.25 WHERE Id = 1");
        query.SQL.SetText(change.arg(QChar(u'+')));
        query.ExecSQL();
        shop_->Press(Qt::Key_F5);
        shop_->Settle();
        const QString after = shop_->Report->Totals().DebitText();
        query.SQL.SetText(change.arg(QChar(u'-')));
        query.ExecSQL();
        QCOMPARE(TReportFixture::Digits(after), TReportFixture::Digits(before) + QStringLiteral(".25"));
    }

    void onlyTheNewestQuestionIsAnswered()
    {
        filters_->ShowAdvanced(true);
        Toggle(filters_->Digit->RangeDigit_CHK);
        for (const int number : {1, 2, 3, 4, 5}) {
            filters_->Digit->SetSearchValue1(number);
            shop_->Report->Manager().Flush();
        }
        shop_->Expect([](const TPlainLine& line) { return line.Number >= 5; });
    }

    void closingDoesNotWaitForWhatIsUnderWay()
    {
        const QString file = shop_->Folder.filePath(QStringLiteral("closing.csv"));
        for (int round = 0; round < 10; ++round) {
            auto& report = shop_->Open<TReportForm>();
            report.AskFileName = [&file](const QString&, const QString&) { return file; };
            report.Filters().Digit->SetActive(true);
            report.Filters().Digit->SetSearchValue1(round + 1);
            if (round % 3 > 0)
                report.Manager().Flush();
            report.Refresh();
            if (round % 2 == 0)
                report.SaveCsv();
            if (round % 3 == 2)
                QTest::qWait(round);
            report.SaveState();
            shop_->Form.reset();
        }
        filters_ = &shop_->OpenReport().Filters();
        QCOMPARE(filters_->Digit->RangeDigit_From_EDT->Text(), QStringLiteral("10"));
        shop_->Expect([](const TPlainLine& line) { return line.Number >= 10; });
        QCOMPARE(shop_->Told, QStringList());
        // Nothing half written stays behind.
        QVERIFY(QDir(shop_->Folder.path()).entryList({QStringLiteral("closing.csv.*")}).isEmpty());
    }

    void aKeptEntityThatIsGoneFiltersNothing()
    {
        shop_->Form.reset();
        shop_->Settings.SetValue(QStringLiteral("Reports/VoucherLines/Filters"),
                                 QStringLiteral("{\"entity\":{\"on\":true,\"values\":[\"987654\"]}}"));
        shop_->OpenReport();
        shop_->ExpectAll();
        QCOMPARE(shop_->Told, QStringList());
    }

    void enterOpensTheVoucherOfTheLine()
    {
        shop_->Form.reset();
        TMainWindow window(shop_->Host, QStringLiteral("shop.db"));
        window.show();
        shop_->Activate(&window);
        auto* report = qobject_cast<TReportForm*>(window.OpenPage(QStringLiteral("VoucherLines")));
        QVERIFY(report != nullptr);
        QVERIFY(report->DataSet().WaitForFirstPage());
        report->Grid().setFocus();
        report->DataSet().SetRecNo(5);
        const TPlainLine& line = shop_->Lines.at(4);
        QTest::keyClick(&report->Grid(), Qt::Key_Return);
        auto* voucher = qobject_cast<TVoucherForm*>(window.CurrentPage());
        QVERIFY(voucher != nullptr);
        QCOMPARE(voucher->Draft().Head.FiscalYear, line.FiscalYear);
        QCOMPARE(voucher->Draft().Head.Number, line.Number);
    }

    void theWordsHaveTheDatesOfTheHostsCalendar()
    {
        QCOMPARE(ReportText::Date(QStringLiteral("1403/01/01"), false), QStringLiteral("1403/01/01"));
        QCOMPARE(ReportText::Date(QStringLiteral("1403/01/01"), true), QStringLiteral("2024/03/20"));
        QCOMPARE(ReportText::Date(QStringLiteral("2024-03-20T10:11:12"), false),
                 QStringLiteral("1403/01/01 10:11"));
        QCOMPARE(ReportText::Date(QStringLiteral("2024/03/20-08:00"), true),
                 QStringLiteral("2024/03/20 08:00"));
        QCOMPARE(ReportText::Date(QStringLiteral("=1+1"), true), QStringLiteral("=1+1"));
    }

private:
    int Person() const
    {
        for (const TPlainLine& line : shop_->Lines) {
            if (line.DetailType == 1 && line.Tafzili != 0)
                return line.Tafzili;
        }
        return 0;
    }
    void PressLetter(char16_t letter) const
    {
        QTest::sendKeyEvent(QTest::Click, shop_->Focus(), static_cast<Qt::Key>(letter),
                            QString(QChar(letter)), Qt::AltModifier);
        QCoreApplication::processEvents();
    }
    void Toggle(QWidget* box) const
    {
        box->setFocus();
        QVERIFY(box->hasFocus());
        shop_->Press(Qt::Key_Space);
    }
    void TypeInto(QWidget* edit, const QString& text) const
    {
        edit->setFocus();
        QVERIFY(edit->hasFocus());
        shop_->Press(Qt::Key_A, Qt::ControlModifier);
        shop_->Type(text);
    }

    std::unique_ptr<TReportFixture> shop_;
    TReportFilterPanel* filters_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<ReportFormTest>(argc, argv);
}

#include "ReportFormTest.moc"
