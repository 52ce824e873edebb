#include "RandomReportPanel.h"

#include "HostServices.h"
#include "VoucherReport.h"

/// Panels filled at random, each compared with the lines that a loop over the data in memory finds.
/// BASEFRAME_REPORT_PANELS in the environment is how many panels are tried.
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
        WriteFractions();
        MoveClock();
        panel_ = std::make_unique<TReportFilterPanel>();
        panel_->AddTo(manager_);
        ReadNames();
        for (const TPlainLine& line : qAsConst(shop_->Lines))
            rows_.emplace_back(line, static_cast<int>(names_.indexOf(line.KolName)));
        random_ = std::make_unique<TRandomReportPanel>(*panel_, rows_, names_, clock_);
    }
    void cleanupTestCase()
    {
        random_.reset();
        panel_.reset();
        RemoveHost();
        shop_.reset();
    }

    void everyPanelFindsTheLinesThatFit()
    {
        QVERIFY(rows_.size() >= FewestRows);
        QVERIFY(std::any_of(rows_.begin(), rows_.end(),
                            [](const TReportRow& row) { return row.Debit == 123456789012345678; }));
        bool isNumber = false;
        const int asked = qEnvironmentVariableIntValue("BASEFRAME_REPORT_PANELS", &isNumber);
        const int panels = isNumber && asked > 0 ? asked : Panels;
        int narrowed = 0;
        for (int number = 0; number < panels; ++number) {
            random_->Fill();
            const std::vector<int> found = FoundIds();
            const std::vector<const TReportRow*>& fitting = random_->Fitting();
            const bool same = std::equal(found.begin(), found.end(), fitting.begin(), fitting.end(),
                                         [](int id, const TReportRow* row) { return id == row->Id; });
            QVERIFY2(same, qPrintable(QStringLiteral("panel %1, %2 lines for %3: %4")
                                          .arg(number)
                                          .arg(found.size())
                                          .arg(fitting.size())
                                          .arg(manager_.Condition())));
            narrowed += !fitting.empty() && fitting.size() < rows_.size() ? 1 : 0;
        }
        QCOMPARE(shop_->Told, QStringList());
        // The panels are no trivial ones.
        QVERIFY2(narrowed > panels / 3, qPrintable(QString::number(narrowed)));
    }

private:
    static constexpr int VouchersPerYear = 4400;
    static constexpr size_t FewestRows = 50000;
    static constexpr int Panels = 2000;

    /// Amounts next to whole numbers, with more digits than a double has.
    void WriteFractions()
    {
        const QString update =
            QStringLiteral("UPDATE dbo.Sanad_Detail SET %1 = ? WHERE %1 > 0 AND Id % 40 = %2");
        const QStringList amounts = {QStringLiteral("12345678901234.5678"), QStringLiteral("5000000.0001"),
                                     QStringLiteral("4999999.9999")};
        for (int place = 0; place < amounts.size(); ++place) {
            for (const QString& column : {QStringLiteral("Bed"), QStringLiteral("Bes")})
                shop_->Connection.Execute(QString(update)
                                              .replace(QStringLiteral("%1"), column)
                                              .replace(QStringLiteral("%2"), QString::number(place)),
                                          {amounts.at(place)});
        }
        shop_->ReadLines();
    }
    /// The periods of the panel count from the day of the test's own clock.
    void MoveClock()
    {
        THostServices& host = Host();
        services_ = std::make_unique<THostServices>(
            THostServices{host.DM, host.Settings, host.CommonLibrary, host.Accounting, host.Pickers,
                          host.Libraries, host.Messages, host.Pictures, clock_});
        RemoveHost();
        InstallHost(*services_);
    }
    void ReadNames()
    {
        const std::unique_ptr<IEngineRows> rows =
            shop_->Connection.Run(QStringLiteral("SELECT Name FROM dbo.AccTotals ORDER BY Name"));
        while (rows->Next())
            names_.append(rows->Text(0));
    }
    std::vector<int> FoundIds()
    {
        QString text = QStringLiteral("SELECT Id FROM ") + VoucherReport::Source().From;
        const QString condition = manager_.Condition();
        if (!condition.isEmpty())
            text += QStringLiteral(" WHERE ") + condition;
        const std::unique_ptr<IEngineRows> rows =
            shop_->Connection.Run(text + QStringLiteral(" ORDER BY Id"));
        std::vector<int> ids;
        while (rows->Next())
            ids.push_back(static_cast<int>(rows->Int64(0)));
        return ids;
    }

    TMovableClock clock_;
    std::unique_ptr<THostServices> services_;
    std::unique_ptr<TReportFixture> shop_;
    std::unique_ptr<TReportFilterPanel> panel_;
    TTarvaSearchManager manager_;
    QStringList names_;
    std::vector<TReportRow> rows_;
    std::unique_ptr<TRandomReportPanel> random_;
};

int main(int argc, char** argv)
{
    return RunFormTest<ReportRandomTest>(argc, argv);
}

#include "ReportRandomTest.moc"
