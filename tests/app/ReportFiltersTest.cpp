#include "ReportFixture.h"

#include "AccountingCodes_Search_UNT.h"
#include "DateRange_Display_UNT.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartFaDate.h"
#include "SmartMaskEdit_TRV.h"
#include "SmartTime_TRV.h"
#include "StoredDateCriterion.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"

namespace {

constexpr int Persons = 1;
constexpr int Banks = 2;

} // namespace

class ReportFiltersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TReportFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->Told.clear();
        filters_ = &shop_->OpenReport().Filters();
        filters_->ShowAdvanced(true);
    }
    void cleanup()
    {
        QCOMPARE(shop_->Told, QStringList());
        shop_->Form.reset();
    }

    void nothingFiltersAtFirst()
    {
        shop_->ExpectAll();
        QCOMPARE(shop_->Words(), QStringLiteral("همهٔ ردیف‌های اسناد"));
        QVERIFY(shop_->Report->Totals().BalanceText().contains(QStringLiteral("تراز")));
    }

    void datesAreTypedInTheSolarCalendar()
    {
        const QString from = Middle().Date;
        SwitchOn(filters_->Date->RangeDate_CHK);
        TypeInto(filters_->Date->RangeDate_From_EDT, from);
        shop_->Expect([from](const TPlainLine& line) { return line.Date >= from; });
        QVERIFY2(shop_->Words().contains(Persian(from)), qPrintable(shop_->Words()));
        TypeInto(filters_->Date->RangeDate_To_EDT, from);
        shop_->Expect([from](const TPlainLine& line) { return line.Date == from; });
        Toggle(filters_->Date->RangeDate_Reverst_CHK);
        shop_->Expect([from](const TPlainLine& line) { return line.Date != from; });
        Toggle(filters_->Date->RangeDate_CHK);
        shop_->ExpectAll();
    }

    void theTimeOfRegistrationCountsToTheMinute()
    {
        const QString moment = Middle().RegisteredAt;
        const TFaDate day = TFaDate::CreateByGregorianDate(moment.left(10));
        SwitchOn(filters_->Time->RangeDate_CHK);
        QVERIFY(filters_->Time->RangeTime_From_EDT->isVisible());
        TypeInto(filters_->Time->RangeDate_From_EDT, day.ToDateString());
        TypeInto(filters_->Time->RangeTime_From_EDT, moment.mid(11, 5));
        shop_->Expect([moment](const TPlainLine& line) { return line.RegisteredAt >= moment.left(16); });
        const QString words = shop_->Words();
        QVERIFY2(words.contains(Persian(day.ToDateString())), qPrintable(words));
        QVERIFY2(words.contains(Persian(moment.mid(11, 5))), qPrintable(words));
    }

    void amountsAreBounded()
    {
        const QString amount = LargeDebit().section(u'.', 0, 0);
        SwitchOn(filters_->Cost->RangeCost_CHK);
        TypeInto(filters_->Cost->RangeCost_From_EDT, amount);
        const double bound = amount.toDouble();
        shop_->Expect([bound](const TPlainLine& line) { return line.Debit.toDouble() >= bound; });
        TypeInto(filters_->Cost->RangeCost_To_EDT, amount);
        shop_->Expect([bound](const TPlainLine& line) { return line.Debit.toDouble() == bound; });
    }

    void numbersAreBounded()
    {
        const int number = Middle().Number;
        SwitchOn(filters_->Digit->RangeDigit_CHK);
        TypeInto(filters_->Digit->RangeDigit_From_EDT, QString::number(number));
        shop_->Expect([number](const TPlainLine& line) { return line.Number >= number; });
        TypeInto(filters_->Digit->RangeDigit_To_EDT, QString::number(number));
        shop_->Expect([number](const TPlainLine& line) { return line.Number == number; });
        Choose(filters_->Digit->RangeDigit_CMB, 1);
        TypeInto(filters_->Digit->RangeDigit_From_EDT, QStringLiteral("2"));
        TypeInto(filters_->Digit->RangeDigit_To_EDT, QStringLiteral("0"));
        shop_->Expect([](const TPlainLine& line) { return line.RowNo >= 2; });
    }

    void codesAreCompletedAndBounded()
    {
        const auto code = [](const TPlainLine& line) { return line.Kol * 1000 + line.Moin; };
        const int from = code(Middle());
        SwitchOn(filters_->Code->RangeString_CHK);
        TypeInto(filters_->Code->RangeString_From_EDT, QString::number(from));
        TypeInto(filters_->Code->RangeString_To_EDT, QStringLiteral("999999"));
        Leave();
        shop_->Expect([=](const TPlainLine& line) { return code(line) >= from; });
        TypeInto(filters_->Code->RangeString_To_EDT, QString::number(from));
        Leave();
        shop_->Expect([=](const TPlainLine& line) { return code(line) == from; });
    }

    void oneAccountIsFollowedThroughItsLevels()
    {
        const TPlainLine line = FirstOf(Persons);
        TSelect_AccountCode& selector = *filters_->Account->Select_AccountCode1;
        SwitchOn(filters_->Account->AccCodes_CHK);
        TypeInto(selector.TotalCode_EDT, QString::number(line.Kol));
        Leave();
        shop_->Expect([line](const TPlainLine& other) { return other.Kol == line.Kol; });
        TypeInto(selector.AssistantCode_EDT, QString::number(line.Moin));
        TypeInto(selector.DetailCode_EDT, QString::number(line.Tafzili));
        Leave();
        shop_->Expect([line](const TPlainLine& other) {
            return other.Kol == line.Kol && other.Moin == line.Moin && other.Tafzili == line.Tafzili;
        });
    }

    void aRangeOfAccountsIsOpenAboveWhereNothingIsTyped()
    {
        const int kol = Middle().Kol;
        SwitchOn(filters_->Accounts->AccCodes_CHK);
        TypeInto(filters_->Accounts->Select_AccountCode1->TotalCode_EDT, QString::number(kol));
        Leave();
        const auto fits = [](const TPlainLine& line) { return line.Tafzili <= 999999; };
        shop_->Expect([=](const TPlainLine& line) { return line.Kol >= kol && fits(line); });
        TypeInto(filters_->Accounts->Select_AccountCode2->TotalCode_EDT, QString::number(kol));
        Leave();
        shop_->Expect([=](const TPlainLine& line) { return line.Kol == kol && fits(line); });
    }

    void aPersonIsNotTakenForABankOfTheSameCode()
    {
        const int code = FirstOf(Persons).Tafzili;
        const auto isHim = [code](const TPlainLine& line) {
            return line.DetailType == Persons && line.Tafzili == code;
        };
        SwitchOn(filters_->Entity->SelectEntity_CHK);
        TypeInto(filters_->Entity->TSelect_Entity_Frame1->Code_EDT, QString::number(code));
        Leave();
        shop_->Expect(isHim);
        Toggle(filters_->Entity->SelectEntity_Reverst_CHK);
        shop_->Expect([=](const TPlainLine& line) { return !isHim(line); });
    }

    void aRangeOfBanksIsBounded()
    {
        const int code = FirstOf(Banks).Tafzili;
        QCOMPARE(FirstOf(Banks).KolName, QStringLiteral("موجودی نزد بانک‌ها"));
        SwitchOn(filters_->Entities->SelectEntity_CHK);
        Choose(filters_->Entities->SelectEntity_CMB, 1);
        TypeInto(filters_->Entities->Select_Entity_Frame1->Code_EDT, QString::number(code));
        TypeInto(filters_->Entities->Select_Entity_Frame2->Code_EDT, QString::number(code));
        Leave();
        shop_->Expect(
            [code](const TPlainLine& line) { return line.DetailType == Banks && line.Tafzili == code; });
    }

    void tabsShowTheStates()
    {
        TTabControl* tabs = filters_->Tabs->Search_TBC;
        tabs->setFocus();
        shop_->Press(Qt::Key_Left);
        shop_->Expect([](const TPlainLine& line) { return line.Confirmed; });
        QCOMPARE(shop_->Words(), QStringLiteral("سند تأیید شده باشد"));
        shop_->Press(Qt::Key_Left);
        shop_->Expect([](const TPlainLine& line) { return !line.Confirmed; });
        QCOMPARE(shop_->Words(), QStringLiteral("سند تأیید نشده باشد"));
        shop_->Press(Qt::Key_Right);
        shop_->Press(Qt::Key_Right);
        shop_->ExpectAll();
    }

    void severalFiltersHoldTogether()
    {
        const TPlainLine line = FirstOf(Persons);
        SwitchOn(filters_->Account->AccCodes_CHK);
        TypeInto(filters_->Account->Select_AccountCode1->TotalCode_EDT, QString::number(line.Kol));
        SwitchOn(filters_->Date->RangeDate_CHK);
        TypeInto(filters_->Date->RangeDate_To_EDT, line.Date);
        shop_->Expect(
            [line](const TPlainLine& other) { return other.Kol == line.Kol && other.Date <= line.Date; });
        QVERIFY(shop_->Words().contains(QStringLiteral(" و ")));
    }

    void escapeClearsEveryFilter()
    {
        SwitchOn(filters_->Digit->RangeDigit_CHK);
        TypeInto(filters_->Digit->RangeDigit_From_EDT, QString::number(Middle().Number));
        SwitchOn(filters_->Date->RangeDate_CHK);
        TypeInto(filters_->Date->RangeDate_From_EDT, Middle().Date);
        shop_->Press(Qt::Key_Escape);
        shop_->ExpectAll();
        QVERIFY(!filters_->Digit->RangeDigit_CHK->Checked());
        QCOMPARE(filters_->Digit->RangeDigit_From_EDT->Text(), QStringLiteral("0"));
        QVERIFY(filters_->Date->RangeDate_From_EDT->Text().isEmpty());
        QVERIFY(filters_->Period->RangeDate_CMB->hasFocus());
    }

    void datesOfEitherCalendarComeInTheStoredForm_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("stored");
        QTest::newRow("Gregorian") << QStringLiteral("2024/03/20") << QStringLiteral("1403/01/01");
        QTest::newRow("solar") << QStringLiteral("1403/01/01") << QStringLiteral("1403/01/01");
        QTest::newRow("end of a month") << QStringLiteral("1403/1/31") << QStringLiteral("1403/01/31");
        QTest::newRow("open below") << QStringLiteral("0000/00/00") << QStringLiteral("0000/00/00");
        QTest::newRow("open above") << QStringLiteral("9999/99/99") << QStringLiteral("9999/99/99");
        QTest::newRow("none") << QString() << QString();
        QTest::newRow("no date") << QStringLiteral("x'; --") << QStringLiteral("x'; --");
    }
    void datesOfEitherCalendarComeInTheStoredForm()
    {
        QFETCH(QString, date);
        QTEST(TStoredDateCriterion::StoredForm(date), "stored");
    }

private:
    const TPlainLine& Middle() const { return shop_->Lines.at(shop_->Lines.size() / 2); }
    TPlainLine FirstOf(int kind) const
    {
        const auto lines = shop_->Matching(
            [kind](const TPlainLine& line) { return line.DetailType == kind && line.Tafzili != 0; });
        return lines.value(0);
    }
    QString LargeDebit() const
    {
        QStringList debits;
        for (const TPlainLine& line : shop_->Matching([](const TPlainLine& each) {
                 return each.Debit.toDouble() > 0 && !each.Debit.contains(u'.');
             }))
            debits.append(line.Debit);
        std::sort(debits.begin(), debits.end(), [](const QString& left, const QString& right) {
            return left.toDouble() < right.toDouble();
        });
        return debits.value(debits.size() / 2);
    }
    static QString Persian(const QString& text)
    {
        QString digits = text;
        for (QChar& character : digits) {
            if (character >= u'0' && character <= u'9')
                character = QChar(character.unicode() - u'0' + u'۰');
        }
        return digits;
    }

    void Toggle(QWidget* box) const
    {
        box->setFocus();
        QVERIFY(box->hasFocus());
        shop_->Press(Qt::Key_Space);
    }
    void SwitchOn(TSmartCheckBox_TRV* box) const
    {
        QVERIFY(!box->Checked());
        Toggle(box);
        QVERIFY(box->Checked());
    }
    void Choose(TSmartComboBox_TRV* box, int index) const
    {
        box->setFocus();
        while (box->ItemIndex() < index)
            shop_->Press(Qt::Key_Down);
        QCOMPARE(box->ItemIndex(), index);
    }
    void TypeInto(QWidget* edit, const QString& text) const
    {
        edit->setFocus();
        QVERIFY(edit->hasFocus());
        shop_->Press(Qt::Key_A, Qt::ControlModifier);
        shop_->Type(text);
    }
    void Leave() const { shop_->Report->Grid().setFocus(); }

    std::unique_ptr<TReportFixture> shop_;
    TReportFilterPanel* filters_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<ReportFiltersTest>(argc, argv);
}

#include "ReportFiltersTest.moc"
