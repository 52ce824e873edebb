#include "AdoError.h"
#include "CurrencyForm.h"
#include "Look.h"
#include "TestCase.h"

#include <QApplication>

namespace {

QString Dollar()
{
    return QStringLiteral("دلار-آمریکا");
}

} // namespace

class CurrencyFrameTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }

    void theControlsAreThoseOfTheForm()
    {
        const TCurrencyForm form;
        QCOMPARE(form.Frame->size(), QSize(564, 35));
        QCOMPARE(form.Frame->SmartLabel_TRV3->Caption(), QStringLiteral("نوع ارز :  "));
        QCOMPARE(form.Frame->SmartLabel_TRV2->Caption(), QStringLiteral("نرخ ارز :"));
        QCOMPARE(form.Frame->CurBAse_Lbl->Caption(), QStringLiteral("ریال"));
        QVERIFY(form.Frame->CurBAse_Lbl->isHidden());
        QVERIFY(!form.List()->isEditable());
        QCOMPARE(form.Rate()->EditType(), TSmartEdit_TRV::etCurrency);
        QVERIFY(form.Rate()->Calculator() && form.Rate()->MultiCurrency() && form.Rate()->ReverseCurrency());
        QCOMPARE(form.Rate()->MaxLength(), 19);
        QCOMPARE(form.Rate()->DelayTimeCount(), 300);
        QCOMPARE(form.RateText(), QStringLiteral("0"));
        QCOMPARE(form.Rate()->palette().color(QPalette::Base), Look::FromColorValue(16053492));
    }

    void fromTheRightComeTypeListRateAndEdit()
    {
        const TCurrencyForm form;
        form.Form->show();
        QCOMPARE(form.List()->width(), 120);
        const QList<const QWidget*> order{form.Frame->SmartLabel_TRV3, form.List(),
                                          form.Frame->SmartLabel_TRV2, form.Rate()};
        for (qsizetype i = 1; i < order.size(); ++i)
            QVERIFY(order.at(i)->geometry().right() < order.at(i - 1)->geometry().left());
    }

    void theListIsFilledOnceAndTheFirstCurrencySelected()
    {
        TCurrencyForm form;
        form.Form->show();
        const QString base = QStringLiteral("Select * from  AccCurrency where CurCode = 1");
        QCOMPARE(form.Database.Sent(),
                 (QStringList{base, base,
                              QStringLiteral(" Select *, a.CurTitle + '-' + a.CurCountry as CurTitleCountry  "
                                             "  from     AccCurrency  a  ")}));
        QCOMPARE(form.List()->Count(), 3);
        QCOMPARE(form.Frame->TitleCountry(), QStringLiteral("ریال-ایران"));
        QCOMPARE(form.Rate()->Precision(), 9);
        form.Form->hide();
        form.Form->show();
        QCOMPARE(form.Database.Sent(), QStringList());
    }

    void theBaseCurrencyHasTheRateOneAndADisabledEdit()
    {
        TCurrencyForm form;
        form.Form->show();
        QCOMPARE(form.Frame->GetCodeValue(), 1);
        QCOMPARE(form.Frame->GetBaseCurrCode(), 1);
        QVERIFY(form.Frame->GetPriceValue() == 1.0L);
        QVERIFY(!form.Rate()->isEnabled());
        QVERIFY(!form.Frame->InValid());
    }

    void choosingACurrencyShowsItsRateOfTheDay()
    {
        TCurrencyForm form;
        form.Frame->SetRateDate(QStringLiteral("1404/01/25"));
        QVERIFY(form.Show());
        form.Database.Sent();
        Typing::Press(form.List(), Qt::Key_Down);
        QCOMPARE(form.Frame->TitleCountry(), Dollar());
        QCOMPARE(form.Frame->GetCodeValue(), 2);
        QCOMPARE(form.Database.Sent(), QStringList{RateStatement(2, QStringLiteral("1404/01/25"))});
        QCOMPARE(form.Rate()->text(), QStringLiteral("481,000.5"));
        QVERIFY(form.Rate()->isEnabled());
        QVERIFY(form.Frame->GetPriceValue() == 481000.5L);
        QVERIFY(form.Rate()->toolTip().contains(Dollar()));
        QVERIFY(form.Rate()->toolTip().contains(QStringLiteral("481,000.5")));
        Typing::Press(form.List(), Qt::Key_Up);
        QCOMPARE(form.RateText(), QStringLiteral("1"));
        QVERIFY(!form.Rate()->isEnabled());
    }

    void withoutADateTodaysRateIsShown()
    {
        TCurrencyForm form;
        form.Frame->SetCodeValue(2);
        QCOMPARE(form.Database.Sent().constLast(),
                 RateStatement(2, form.Host.Clock.NowDate(QStringLiteral("/"))));
    }

    void twoRatesOfOneDayShowTheOneEnteredLast()
    {
        TCurrencyForm form;
        form.Frame->SetRateDate(QStringLiteral("1404/02/01"));
        form.Frame->SetCodeValue(2);
        QCOMPARE(form.RateText(), QStringLiteral("0.123456789"));
        QVERIFY(form.Frame->GetPriceValue() == 0.123456789L);
    }

    void theFirstCurrencysRateHasItsDecimals()
    {
        TCurrencyForm form;
        form.Database.Execute(QStringLiteral("DELETE FROM AccCurrency WHERE CurCode = 1"));
        form.Frame->SetRateDate(QStringLiteral("1404/02/01"));
        form.Form->show();
        QCOMPARE(form.Frame->TitleCountry(), Dollar());
        QCOMPARE(form.RateText(), QStringLiteral("0.123456789"));
    }

    void whatIsAskedBeforeTheFormIsShownIsAnsweredFromTheList()
    {
        TCurrencyForm form;
        form.Database.Execute(QStringLiteral("DELETE FROM AccCurrency WHERE CurCode = 1"));
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        QCOMPARE(form.Frame->GetCodeValue(), 2);
        QVERIFY(form.Frame->GetPriceValue() == 480000.0L);
        QCOMPARE(form.Frame->TitleCountry(), Dollar());
    }

    void theRateIsWrittenBeforeTheEditIsDisabledAndAfterItIsEnabled()
    {
        TCurrencyForm form;
        form.Form->show();
        QStringList states;
        form.Rate()->OnChange = [&](QObject*) {
            states << form.RateText() + (form.Rate()->isEnabled() ? u'+' : u'-');
        };
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        form.Frame->SetCodeValue(2);
        form.Frame->SetCodeValue(1);
        QCOMPARE(states, (QStringList{QStringLiteral("480000+"), QStringLiteral("1+")}));
    }

    void aCurrencyWithoutRateShowsZeroAndIsRefused()
    {
        TCurrencyForm form;
        form.Frame->SetRateDate(QStringLiteral("1404/02/01"));
        QVERIFY(form.Show());
        form.Frame->SetCodeValue(4);
        QCOMPARE(form.RateText(), QStringLiteral("0"));
        QVERIFY(form.Frame->GetPriceValue() == 0.0L);
        QVERIFY(form.Frame->InValid());
        QCOMPARE(form.Host.Log.Lines().constLast(),
                 QStringLiteral("MsgNotSelected(نرخ ارز, CurrencyRate_EDT, -)"));
        QVERIFY(form.Rate()->hasFocus());
        QCOMPARE(form.Frame->GetCurrRate(QStringLiteral("1404/02/01")), QStringLiteral("0"));
    }

    void aCodeBelowOneIsRefusedWithTheListAtFault()
    {
        TCurrencyForm form;
        form.Database.Execute(QStringLiteral(
            "INSERT INTO AccCurrency (CurCode, CurTitle, CurCountry) VALUES (0, N'هیچ', N'هیچ')"));
        QVERIFY(form.Show());
        form.List()->SetItemIndex(form.List()->findData(qint64{0}));
        form.Rate()->setFocus();
        QVERIFY(form.Frame->InValid());
        QCOMPARE(form.Host.Log.Lines().constLast(),
                 QStringLiteral("MsgNotSelected(توع ارز, CurrencyType_CMB, -)"));
        QVERIFY(form.List()->hasFocus());
    }

    void aHiddenFrameIsAlwaysValid()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Frame->SetCodeValue(4);
        form.Frame->hide();
        QVERIFY(!form.Frame->InValid());
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("MsgNotSelected")), 0);
        form.Frame->show();
        form.Form->hide(); // the frame is out of sight with its form and still counts
        QVERIFY(form.Frame->InValid());
    }

    void aNegativeRatePasses()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Frame->SetCodeValue(4);
        form.Frame->SetPriceValue(-5);
        QVERIFY(!form.Frame->InValid());
    }

    void codeZeroSelectsTheFirstCurrencyAndAnUnknownOneNone()
    {
        TCurrencyForm form;
        form.Frame->SetCodeValue(2);
        form.Frame->SetCodeValue(0);
        QCOMPARE(form.List()->ItemIndex(), 0);
        form.Frame->SetCodeValue(2);
        form.Frame->SetCodeValue(-3);
        QCOMPARE(form.List()->ItemIndex(), 0);
        form.Frame->SetCodeValue(77);
        QCOMPARE(form.List()->ItemIndex(), -1);
        QCOMPARE(form.Frame->GetCodeValue(), 1);
        QVERIFY(form.Frame->GetPriceValue() == 1.0L);
        QCOMPARE(form.Frame->TitleCountry(), QString());
    }

    void aListWithoutCurrenciesReadsAsTheBaseCurrency()
    {
        TCurrencyForm form;
        form.Database.Execute(QStringLiteral("DELETE FROM AccCurrency"));
        form.Form->show();
        form.Frame->SetCodeValue(0);
        QCOMPARE(form.List()->Count(), 0);
        QCOMPARE(form.Frame->GetCodeValue(), 1);
        QVERIFY(form.Frame->GetPriceValue() == 1.0L);
    }

    void selectingTheBaseCurrencyByItsProperty()
    {
        TCurrencyForm form;
        form.Frame->SetCodeValue(2);
        form.Frame->SetBaseCurrSelected(false);
        QCOMPARE(form.Frame->GetCodeValue(), 2);
        form.Frame->SetBaseCurrSelected(true);
        QVERIFY(form.Frame->BaseCurrSelected());
        QCOMPARE(form.Frame->GetCodeValue(), 1);
        QVERIFY(form.Frame->GetPriceValue() == 1.0L);
        QVERIFY(!form.Rate()->isEnabled());
    }

    void theSameDateTwiceReadsOnce()
    {
        TCurrencyForm form;
        form.Frame->SetCodeValue(2);
        form.Database.Sent();
        form.Frame->SetRateDate(QStringLiteral("1404/01/20"));
        form.Frame->SetRateDate(QStringLiteral("1404/01/20"));
        QCOMPARE(form.Database.Sent(), QStringList{RateStatement(2, QStringLiteral("1404/01/20"))});
        QCOMPARE(form.RateText(), QStringLiteral("481000.5"));
    }

    void theBaseCurrencyAsksForNoRateOfANewDate()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Database.Sent();
        form.Frame->SetRateDate(QStringLiteral("1404/01/20"));
        QCOMPARE(form.Database.Sent(), QStringList());
        QCOMPARE(form.RateText(), QStringLiteral("1"));
    }

    void aTypedRateSurvivesDatesUntilACurrencyIsSelected()
    {
        TCurrencyForm form;
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        QVERIFY(form.Show());
        Typing::Press(form.List(), Qt::Key_Down);
        form.TypeRate(QStringLiteral("۵۰۰۰۰۰٫۲۵"));
        Typing::Press(form.Rate(), Qt::Key_Tab);
        form.Database.Sent();
        form.Frame->SetRateDate(QStringLiteral("1404/01/20"));
        QCOMPARE(form.Database.Sent(), QStringList());
        QCOMPARE(form.RateText(), QStringLiteral("500000.25"));
        form.List()->setFocus();
        Typing::Press(form.List(), Qt::Key_Down);
        Typing::Press(form.List(), Qt::Key_Up);
        QCOMPARE(form.RateText(), QStringLiteral("481000.5"));
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        QCOMPARE(form.RateText(), QStringLiteral("480000"));
    }

    void aRateTypedJustNowSurvivesADate()
    {
        TCurrencyForm form;
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        QVERIFY(form.Show());
        form.Frame->SetCodeValue(2);
        form.TypeRate(QStringLiteral("7"));
        form.Frame->SetRateDate(QStringLiteral("1404/01/20"));
        QCOMPARE(form.RateText(), QStringLiteral("7"));
        // What is announced late must not count as typed for the next currency.
        form.Frame->SetCodeValue(1);
        form.Frame->SetCodeValue(2);
        QTest::qWait(form.Rate()->DelayTimeCount() + 100);
        form.Frame->SetRateDate(QStringLiteral("1404/01/05"));
        QCOMPARE(form.RateText(), QStringLiteral("480000"));
    }

    void aTypedRateIsExactToNineDecimals()
    {
        TCurrencyForm form;
        QVERIFY(form.Show());
        form.Frame->SetCodeValue(2);
        form.TypeRate(QStringLiteral("1234567890.123456789"));
        QCOMPARE(form.RateText(), QStringLiteral("1234567890.123456789"));
        QVERIFY(form.Frame->GetPriceValue() == 1234567890.123456789L);
        Typing::Type(form.Rate(), QStringLiteral("1")); // neither a twentieth digit nor a tenth decimal
        QCOMPARE(form.RateText(), QStringLiteral("1234567890.123456789"));
    }

    void settingARateKeepsAForeignZeroAndMakesTheBaseOne()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Frame->SetPriceValue(0);
        QCOMPARE(form.RateText(), QStringLiteral("1"));
        form.Frame->SetPriceValue(3);
        QCOMPARE(form.RateText(), QStringLiteral("3"));
        form.Frame->SetCodeValue(4);
        form.Form->setEnabled(false); // a form that is disabled for a while changes nothing
        form.Frame->SetPriceValue(0);
        QCOMPARE(form.RateText(), QStringLiteral("0"));
        form.Frame->SetPriceValue(42500.5L);
        QCOMPARE(form.RateText(), QStringLiteral("42500.5"));
        QVERIFY(form.Host.Log.Lines().contains(QStringLiteral("FloatToStr_TRV(42500.5)")));
    }

    void theAmountIsAlwaysZero()
    {
        const TCurrencyForm form;
        form.Frame->SetAmountValue(12);
        QVERIFY(form.Frame->GetAmountValue() == 0.0L);
    }

    void theBaseCountryIsReadAfresh()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Frame->SetBaseTitleCountry(QStringLiteral("جای دیگر"));
        form.Database.Sent();
        QCOMPARE(form.Frame->GetBaseTitleCountry(), QStringLiteral("ایران"));
        QCOMPARE(form.Database.Sent(),
                 QStringList{QStringLiteral("Select * from  AccCurrency where CurCode = 1")});
        QVERIFY(!form.Database.Query.Active());
    }

    void theRateQueryIsLeftOpen()
    {
        TCurrencyForm form;
        form.Frame->SetCodeValue(2);
        form.Frame->GetCurrRate(QStringLiteral("1404/01/20"));
        QVERIFY(form.Database.Query.Active());
        QCOMPARE(form.Database.Query.FieldByName(QStringLiteral("CrRateDate"))->AsString(),
                 QStringLiteral("1404/01/20"));
    }

    void databaseErrorsAreNotCaught()
    {
        TCurrencyForm form;
        form.Form->show();
        form.Database.Execute(QStringLiteral("DROP TABLE AccCrConvRate"));
        QVERIFY_THROWS_EXCEPTION(EADOError, form.Frame->SetCodeValue(2));
    }

    void leftoverHandlersDoWhatTheyDid()
    {
        const TCurrencyForm form;
        form.Frame->init();
        form.Frame->Currency9999Amount_EDTChange(nullptr);
        form.Frame->SmartEdit_TRV1Change(nullptr);
        QCOMPARE(form.Host.Log.Lines(), QStringList());
        form.Frame->SmartComboBox_TRV1Change(nullptr);
        QCOMPARE(form.Host.Log.Lines(),
                 QStringList{QStringLiteral("ShowMessage(TCurrency_FRAME.SmartComboBox_TRV1Change)")});
        QVERIFY(!blnFirst);
    }

    void theRateContrastsWithItsGround_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }

    void theRateContrastsWithItsGround()
    {
        QFETCH(const bool, dark);
        Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
        TCurrencyForm form;
        form.Form->show();
        for (const int code : {1, 2}) {
            form.Frame->SetCodeValue(code);
            for (const int rate : {7, -7}) {
                form.Frame->SetPriceValue(rate);
                const QPalette palette = form.Rate()->palette();
                QVERIFY(Look::Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)) >= 4.5);
            }
        }
        Look::SetScheme(Look::TScheme::Light);
    }
};

QTEST_MAIN(CurrencyFrameTest)
#include "CurrencyFrameTest.moc"
