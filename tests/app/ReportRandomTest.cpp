#include "ReportFixture.h"

#include "AccountingCodes_Search_UNT.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReportSums.h"
#include "Select_AccountCode_UNT.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartFaDate.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"
#include "VoucherReport.h"

#include <QRandomGenerator>

/// Panels filled at random, each compared with the lines that a loop over the data in memory finds.
class ReportRandomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TSampleSize size = TSampleSize::Small();
        size.VouchersPerYear = VouchersPerYear;
        size.FiscalYears = 4;
        shop_ = std::make_unique<TReportFixture>(size);
        panel_ = std::make_unique<TReportFilterPanel>();
        panel_->AddTo(manager_);
        for (const TPlainLine& line : qAsConst(shop_->Lines))
            debits_.append(TDecimal(line.Debit));
    }
    void cleanupTestCase()
    {
        panel_.reset();
        shop_.reset();
    }

    void everyPanelFindsTheLinesThatFit()
    {
        QVERIFY(shop_->Lines.size() >= 3000);
        int narrowed = 0;
        for (int number = 0; number < Panels; ++number) {
            const TReportFixture::TPredicate fits = FillPanel();
            const TReportSum found =
                TReportSum::Read(shop_->Connection, VoucherReport::Source().From, manager_.Condition());
            qint64 count = 0;
            TDecimal debit;
            for (qsizetype line = 0; line < shop_->Lines.size(); ++line) {
                if (!fits(shop_->Lines.at(line)))
                    continue;
                ++count;
                debit = debit + debits_.at(line);
            }
            const QString told = QStringLiteral("panel %1: %2").arg(number).arg(manager_.Condition());
            QVERIFY2(found.Count == count, qPrintable(told));
            QVERIFY2(TDecimal(found.Debit).ToString() == debit.ToString(), qPrintable(told));
            narrowed += count > 0 && count < shop_->Lines.size() ? 1 : 0;
        }
        // The panels are no trivial ones.
        QVERIFY2(narrowed > Panels / 4, qPrintable(QString::number(narrowed)));
    }

private:
    static constexpr int VouchersPerYear = 300;
    static constexpr int Panels = 2000;
    using TPredicate = TReportFixture::TPredicate;

    bool Chance(int outOf) { return random_.bounded(outOf) == 0; }
    const TPlainLine& AnyLine() { return shop_->Lines.at(random_.bounded(int(shop_->Lines.size()))); }

    /// Clears the panel and fills up to nine filters; returns what they mean together.
    TPredicate FillPanel()
    {
        panel_->Clear();
        QVector<TPredicate> all;
        if (Chance(2))
            all.append(FillDate());
        if (Chance(3))
            all.append(FillTime());
        if (Chance(3))
            all.append(FillCost());
        if (Chance(3))
            all.append(FillDigit());
        if (Chance(3))
            all.append(FillCode());
        if (Chance(4))
            all.append(FillAccount());
        if (Chance(4))
            all.append(FillAccounts());
        if (Chance(4))
            all.append(FillEntities());
        if (Chance(3))
            all.append(FillTab());
        return [all](const TPlainLine& line) {
            return std::all_of(all.begin(), all.end(),
                               [&line](const TPredicate& fits) { return fits(line); });
        };
    }

    template <typename TFits> static TPredicate Reversed(bool reversed, TFits fits)
    {
        return [reversed, fits](const TPlainLine& line) { return fits(line) != reversed; };
    }

    TPredicate FillDate()
    {
        TRange_Date_Search_Frame& frame = *panel_->Date;
        const QString from = AnyLine().Date;
        const QString to = Chance(2) ? AnyLine().Date : QString();
        frame.RangeDate_CHK->SetChecked(true);
        frame.SetFromDate(from);
        frame.SetToDate(to);
        const bool reversed = Chance(4);
        frame.RangeDate_Reverst_CHK->SetChecked(reversed);
        return Reversed(reversed, [from, to](const TPlainLine& line) {
            return line.Date >= from && (to.isEmpty() || line.Date <= to);
        });
    }
    TPredicate FillTime()
    {
        TRange_Date_Search_Frame& frame = *panel_->Time;
        const QString day = AnyLine().RegisteredAt.left(10);
        frame.RangeDate_CHK->SetChecked(true);
        frame.SetToDate(TFaDate::CreateByGregorianDate(day).ToDateString());
        // The last minute of the day belongs to it.
        return [day](const TPlainLine& line) { return line.RegisteredAt.left(10) <= day; };
    }
    TPredicate FillCost()
    {
        TRange_Cost_Search_Frame& frame = *panel_->Cost;
        const bool credit = Chance(2);
        const qint64 from = 1000 * qint64(random_.bounded(100000));
        const qint64 to = Chance(2) ? from + 1000 * qint64(random_.bounded(500000)) : 0;
        frame.RangeCost_CMB->SetItemIndex(credit ? 1 : 0);
        frame.RangeCost_From_EDT->SetText(QString::number(from));
        frame.RangeCost_To_EDT->SetText(QString::number(to));
        frame.RangeCost_CHK->SetChecked(true);
        return [=](const TPlainLine& line) {
            const double amount = (credit ? line.Credit : line.Debit).toDouble();
            return amount >= double(from) && (to == 0 || amount <= double(to));
        };
    }
    TPredicate FillDigit()
    {
        TRange_Digit_Search_Frame& frame = *panel_->Digit;
        const int from = AnyLine().Number;
        const int to = Chance(2) ? AnyLine().Number : 0;
        frame.RangeDigit_From_EDT->SetText(QString::number(from));
        frame.RangeDigit_To_EDT->SetText(QString::number(to));
        frame.SetActive(true);
        const bool reversed = Chance(4);
        frame.RangeDigit_Reverst_CHK->SetChecked(reversed);
        return Reversed(reversed, [=](const TPlainLine& line) {
            return line.Number >= from && (to == 0 || line.Number <= to);
        });
    }
    TPredicate FillCode()
    {
        const auto code = [](const TPlainLine& line) { return line.Kol * 1000 + line.Moin; };
        const int from = code(AnyLine());
        const int to = code(AnyLine());
        panel_->Code->initControl(true, 0, QString::number(from), QString::number(to));
        return [=](const TPlainLine& line) { return code(line) >= from && code(line) <= to; };
    }
    TPredicate FillAccount()
    {
        const TPlainLine wanted = AnyLine();
        const bool reversed = Chance(4);
        panel_->Account->SetActive(true);
        panel_->Account->SetSearchTotalValue(wanted.Kol);
        panel_->Account->AccCodes_Reverst_CHK->SetChecked(reversed);
        return Reversed(reversed, [wanted](const TPlainLine& line) { return line.Kol == wanted.Kol; });
    }
    TPredicate FillAccounts()
    {
        const int from = AnyLine().Kol;
        const int to = AnyLine().Kol;
        const auto write = [](TSelect_AccountCode* selector, int code) {
            selector->WriteText(TCodeItem::ctTotal, QString::number(code));
            selector->TotalCode_EDT->OnExit(selector->TotalCode_EDT);
        };
        panel_->Accounts->AccCodes_CHK->SetChecked(true);
        write(panel_->Accounts->Select_AccountCode1, from);
        write(panel_->Accounts->Select_AccountCode2, to);
        return [=](const TPlainLine& line) {
            return line.Kol >= from && line.Kol <= to && line.Tafzili <= 999999 && line.Tafsili2 <= 9999;
        };
    }
    TPredicate FillEntities()
    {
        constexpr int Persons = 1;
        int code = 0;
        while (code == 0) {
            const TPlainLine& line = AnyLine();
            code = line.DetailType == Persons ? line.Tafzili : 0;
        }
        panel_->Entities->SetActive(true);
        panel_->Entities->SetSearchValue1(code);
        const bool reversed = Chance(4);
        panel_->Entities->SelectEntity_Reverst_CHK->SetChecked(reversed);
        return Reversed(reversed, [code](const TPlainLine& line) {
            return line.DetailType == Persons && line.Tafzili >= code;
        });
    }
    TPredicate FillTab()
    {
        const bool confirmed = Chance(2);
        panel_->Tabs->Search_TBC->SetTabIndex(confirmed ? 1 : 2);
        panel_->Tabs->Search_TBCChange(panel_->Tabs->Search_TBC);
        return [confirmed](const TPlainLine& line) { return line.Confirmed == confirmed; };
    }

    QRandomGenerator random_{14030101};
    std::unique_ptr<TReportFixture> shop_;
    std::unique_ptr<TReportFilterPanel> panel_;
    TTarvaSearchManager manager_;
    QVector<TDecimal> debits_;
};

int main(int argc, char** argv)
{
    return RunFormTest<ReportRandomTest>(argc, argv);
}

#include "ReportRandomTest.moc"
