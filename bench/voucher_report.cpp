// How long the user waits for the report of voucher lines: from the last key of a filter until the first page
// is painted and until the totals are seen, beside SQLite's own C interface running the same statements, in
// the same run. And how long typing has to wait for anything.

#include "AccountingCodes_Search_UNT.h"
#include "ADOQuery.h"
#include "BenchProgram.h"
#include "DatabaseFile.h"
#include "HostApplication.h"
#include "Measure.h"
#include "PagedDataSet.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "RawPage.h"
#include "ReferenceHost.h"
#include "ReportFilterPanel.h"
#include "ReportTyping.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartEdit_TRV.h"

#include <cstdio>
#include <QFileInfo>
#include <QTemporaryDir>
#include <thread>

namespace {

struct TTimes
{
    std::vector<double> Asked, RawPage, Page, RawTotals, RawBeside, Totals; ///< milliseconds
    std::vector<double> RawProcessor, Processor; ///< milliseconds of the processor, for page and totals
};

struct TStatements
{
    QString Page, Totals;
};

QString OneValue(TADOConnection& connection, const QString& statement)
{
    TADOQuery query;
    query.SetConnection(&connection);
    query.SQL.SetText(statement);
    query.Open();
    return query.IsEmpty() ? QString() : query.Field(0)->AsString();
}

QVector<TTypedFilter> Filters(TReportFilterPanel& panel, TADOConnection& connection)
{
    const QString person = OneValue(
        connection, QStringLiteral("SELECT TOP 1 Tafzili FROM dbo.Sanad_Detail WHERE Kol = 104 ORDER BY Id"));
    return {
        {"no filter", nullptr, {}},
        {"date range",
         panel.Date->RangeDate_CHK,
         {{panel.Date->RangeDate_From_EDT, QStringLiteral("1403/06/01")},
          {panel.Date->RangeDate_To_EDT, QStringLiteral("1403/06/31")}}},
        {"amount range",
         panel.Cost->RangeCost_CHK,
         {{panel.Cost->RangeCost_From_EDT, QStringLiteral("5000000")},
          {panel.Cost->RangeCost_To_EDT, QStringLiteral("20000000")}}},
        {"account",
         panel.Account->AccCodes_CHK,
         {{panel.Account->Select_AccountCode1->TotalCode_EDT, QStringLiteral("601")}},
         true},
        {"entity",
         panel.Entity->SelectEntity_CHK,
         {{panel.Entity->TSelect_Entity_Frame1->Code_EDT, person}},
         true},
    };
}

/// What the report sends when the filter is typed.
TStatements StatementsOf(TADOConnection& connection, TReportTyping& report, const TTypedFilter& filter)
{
    TStatements statements;
    connection.OnWillExecute = [&statements](TADOConnection*, const QString& text) {
        // The box alone may have changed the condition, so the last ones count; later pages go on from a key
        // that is a parameter.
        if (text.startsWith(QStringLiteral("SELECT TOP 100 ")) && !text.contains(u'?'))
            statements.Page = text;
        else if (text.contains(QStringLiteral("SUM(CAST(")))
            statements.Totals = text;
    };
    report.Apply(filter);
    connection.OnWillExecute = {};
    return statements;
}

double TimeOf(TRawPage& statement)
{
    QElapsedTimer timer;
    timer.start();
    statement.Read();
    return Milliseconds(timer);
}

/// The totals while another thread reads the page, as the report does.
double TimeBeside(TRawPage& totals, TRawPage& page)
{
    std::thread other([&page] { page.Read(); });
    const double time = TimeOf(totals);
    other.join();
    return time;
}

void Report(const TTypedFilter& filter, const TTimes& times, int rows)
{
    const double rawPage = Median(times.RawPage);
    const double page = Median(times.Page);
    const double rawTotals = Median(times.RawTotals);
    const double totals = Median(times.Totals);
    const double rawBeside = Median(times.RawBeside);
    const double rawProcessor = Median(times.RawProcessor);
    const double processor = Median(times.Processor);
    std::printf("%-14s %7d %6.1f | %8.2f %8.2f %6.2f %6.2f | %8.1f %8.1f %8.1f %6.2f %6.2f | %8.1f %8.1f "
                "%6.2f\n",
                filter.Name, rows, Median(times.Asked), rawPage, page, page / rawPage, page - rawPage,
                rawTotals, rawBeside, totals, totals / rawTotals, totals / rawBeside, rawProcessor, processor,
                processor / rawProcessor);
}

void MeasureRound(TReportTyping& report, const TTypedFilter& filter, TRawPage& page, TRawPage& totals,
                  TTimes& times)
{
    const double before = ProcessorMilliseconds();
    times.RawPage.push_back(TimeOf(page));
    times.RawTotals.push_back(TimeOf(totals));
    times.RawProcessor.push_back(ProcessorMilliseconds() - before);
    times.RawBeside.push_back(TimeBeside(totals, page));
    const TReportMoments moments = report.Apply(filter);
    times.Asked.push_back(moments.Asked);
    times.Page.push_back(moments.Painted - moments.Asked);
    times.Totals.push_back(moments.Totals - moments.Asked);
    times.Processor.push_back(moments.Processor);
}

void Measure(TADOConnection& connection, const TBenchOptions& options, TReportTyping& report,
             const QVector<TTypedFilter>& filters, const TTypedFilter& filter)
{
    // Another one, for Escape to take off.
    const bool clears = filter.Switch == nullptr;
    if (clears)
        report.Apply(filters.last());
    const TStatements statements = StatementsOf(connection, report, filter);
    TRawPage page(options.File, statements.Page);
    TRawPage totals(options.File, statements.Totals);
    const int rows = report.Form().DataSet().RecordCount();
    if (page.Read() != qMin(rows, 100))
        qFatal("The report shows %d lines, SQLite finds others.", rows);
    TTimes times;
    for (int round = 0; round < options.Rounds; ++round) {
        report.Clear();
        if (clears)
            report.Apply(filters.last());
        MeasureRound(report, filter, page, totals, times);
    }
    Report(filter, times, rows);
    report.Clear();
}

void MeasureTyping(TReportTyping& report, const TReportFilterPanel& panel)
{
    const TTypedFilter filter{
        "", panel.Cost->RangeCost_CHK, {{panel.Cost->RangeCost_From_EDT, QStringLiteral("10")}}};
    QVector<Qt::Key> keys;
    for (int key = 0; key < 20; ++key)
        keys.append(key < 10 ? static_cast<Qt::Key>(Qt::Key_0 + key) : Qt::Key_Backspace);
    const double atRest = report.GapAtRest(static_cast<int>(keys.size()));
    const TTypingResult typed = report.TypeOn(filter, keys);
    std::printf("20 keys, each after the one before was asked for: %d questions, %d answered with totals, "
                "%d abandoned\n",
                typed.Questions, typed.Answers, typed.Questions - typed.Answers);
    std::printf(
        "totals %.1f ms after the last question; longest gap of the event loop %.1f ms, at rest %.1f ms\n",
        typed.Totals, typed.LongestGap, atRest);
    report.Clear();
}

void Open(TADOConnection& connection, const QString& file, int lines)
{
    constexpr double linesPerVoucher = 3.57;
    TDatabaseOptions options;
    options.Size.VouchersPerYear = static_cast<int>(lines / linesPerVoucher / options.Size.FiscalYears);
    if (!QFileInfo::exists(file))
        std::printf("Making %s with about %d voucher lines ...\n", qUtf8Printable(file), lines);
    OpenDatabase(connection, QStringLiteral("sqlite:") + file, options);
}

void Run(const TBenchOptions& options)
{
    TADOConnection connection;
    Open(connection, options.File, options.Rows);
    const QTemporaryDir folder;
    THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    settings.SetUserInfo({1, QStringLiteral("مدیر")});
    TReferenceHost host(connection, settings);
    TReportTyping report(host);
    const QVector<TTypedFilter> filters = Filters(report.Form().Filters(), connection);
    std::printf("%-14s %7s %6s | %8s %8s %6s %6s | %8s %8s %8s %6s %6s | %8s %8s %6s\n", "condition", "lines",
                "asked", "raw page", "painted", "ratio", "more", "raw sum", "2 thread", "totals", "alone",
                "beside", "raw cpu", "cpu", "ratio");
    for (const TTypedFilter& filter : filters)
        Measure(connection, options, report, filters, filter);
    MeasureTyping(report, report.Form().Filters());
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int rounds = 7;
    return BenchMain<THostApplication>(argc, argv,
                                       {QStringLiteral("voucher_report.db"), QStringLiteral("lines"),
                                        QStringLiteral("Voucher lines, about,"), 1000000, rounds},
                                       Run);
}
