// How long the user waits for a filtered list: from the criterion being written until the first page is
// painted, beside SQLite's own C interface running the same statement, in the same run.

#include "BenchProgram.h"
#include "DataSource.h"
#include "FilterWindow.h"
#include "Measure.h"
#include "PagedDataSet.h"
#include "ProcessMemory.h"
#include "RawPage.h"
#include "SampleData.h"
#include "TarvaSearchManager.h"

#include <cstdio>
#include <QElapsedTimer>
#include <QFileInfo>

namespace {

struct TCase
{
    const char* Name;
    QString Value;
    QString OrderField;
};

struct TTimes
{
    std::vector<double> Raw, Answered, Painted;  ///< milliseconds
    std::vector<double> RawProcessor, Processor; ///< milliseconds of the processor
};

void Report(const TCase& filter, const TTimes& times, int rows)
{
    const double raw = Median(times.Raw);
    const double painted = Median(times.Painted);
    const double rawProcessor = Median(times.RawProcessor);
    const double processor = Median(times.Processor);
    std::printf("%-28s %7d %10.2f %10.2f %10.2f %8.2f %9.2f | %9.2f %9.2f %8.2f\n", filter.Name, rows, raw,
                Median(times.Answered), painted, painted / raw, painted - raw, rawProcessor, processor,
                processor / rawProcessor);
}

/// The list, its criterion and its window, as an application has them.
class TLiveFilter
{
public:
    explicit TLiveFilter(TADOConnection& connection);

    void Show(const QString& orderField);
    /// Writes the value and waits until the rows that answer it are painted; the times of both moments.
    void Filter(const QString& value, double* answered, double* painted);
    int ShownRows() { return list_.RecordCount(); }
    void WaitForCount();

private:
    void ProcessUntil(const bool& done);

    TPagedDataSet list_;
    TDataSource source_;
    TTarvaSearch criterion_;
    TTarvaSearchManager manager_;
    TFilterWindow window_;
};

TLiveFilter::TLiveFilter(TADOConnection& connection) : window_(source_)
{
    list_.SetConnection(&connection);
    list_.SetSource({{QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Barcode"),
                      QStringLiteral("UnitName"), QStringLiteral("Price"), QStringLiteral("Stock")},
                     QStringLiteral("dbo.kala"),
                     QStringLiteral("Code")});
    source_.SetDataSet(&list_);
    TSearchItem& name = criterion_.SearchItems.Add();
    name.FiledName = QStringLiteral("Name");
    name.FoldedName = QStringLiteral("SearchName");
    name.FilterType = TSearchFilterType::iftQuery;
    criterion_.SetItemIndex(0);
    criterion_.SetActive(true);
    manager_.Add(&criterion_);
    manager_.SetDataSet(&list_);
    QObject::connect(&list_, &TPagedDataSet::failed, [](const QString& message, const QString& words) {
        qFatal("%s %s", qUtf8Printable(message), qUtf8Printable(words));
    });
}

void TLiveFilter::Show(const QString& orderField)
{
    list_.SetOrder(orderField, Qt::AscendingOrder);
    list_.Open();
    window_.show();
    WaitForCount();
}

void TLiveFilter::ProcessUntil(const bool& done)
{
    while (!done)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void TLiveFilter::WaitForCount()
{
    while (list_.Busy())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void TLiveFilter::Filter(const QString& value, double* answered, double* painted)
{
    QElapsedTimer timer;
    bool done = false;
    const auto arrival = QObject::connect(&list_, &TDataSet::dataChanged,
                                          [answered, clock = &timer] { *answered = Milliseconds(*clock); });
    window_.OnPainted = [&] {
        if (*answered > 0 && !done) {
            *painted = Milliseconds(timer);
            done = true;
        }
    };
    *answered = 0;
    timer.start();
    criterion_.SetValue1(value);
    ProcessUntil(done);
    window_.OnPainted = {};
    QObject::disconnect(arrival);
}

/// The page along the order that a list is sorted by. The list sends others at the same time, from a thread
/// of its own: they look for keys, or gather the keys before they sort.
bool IsPageAlongTheOrder(const QString& statement)
{
    return statement.startsWith(QStringLiteral("SELECT TOP 100 Code, Name, ")) &&
           !statement.contains(QStringLiteral(" IN (SELECT "));
}

/// The text of the first page's statement that filtering by a value sends.
QString PageStatement(TADOConnection& connection, TLiveFilter& filter, const QString& value)
{
    QString statement;
    connection.OnWillExecute = [&statement](TADOConnection*, const QString& text) {
        if (statement.isEmpty() && IsPageAlongTheOrder(text))
            statement = text;
    };
    double answered = 0;
    double painted = 0;
    filter.Filter(value, &answered, &painted);
    filter.WaitForCount();
    QCoreApplication::processEvents();
    connection.OnWillExecute = {};
    return statement;
}

void Measure(TADOConnection& connection, const QString& file, TLiveFilter& filter, const TCase& condition,
             int rounds)
{
    const QString other = QStringLiteral("برنج");
    double ignored = 0;
    TRawPage raw(file, PageStatement(connection, filter, condition.Value));
    const int rows = raw.Read();
    TTimes times;
    for (int round = 0; round < rounds; ++round) {
        filter.Filter(other, &ignored, &ignored);
        filter.WaitForCount();
        const double before = ProcessorMilliseconds();
        QElapsedTimer timer;
        timer.start();
        raw.Read();
        times.Raw.push_back(Milliseconds(timer));
        const double between = ProcessorMilliseconds();
        times.RawProcessor.push_back(between - before);
        double answered = 0;
        double painted = 0;
        filter.Filter(condition.Value, &answered, &painted);
        times.Processor.push_back(ProcessorMilliseconds() - between);
        times.Answered.push_back(answered);
        times.Painted.push_back(painted);
        filter.WaitForCount();
    }
    if (filter.ShownRows() < rows)
        qFatal("The list shows %d rows where SQLite found at least %d.", filter.ShownRows(), rows);
    Report(condition, times, filter.ShownRows());
}

void MakeDatabase(const QString& file, int goods)
{
    TADOConnection connection;
    TEngineOptions options;
    options.CreateMissing = true;
    connection.SetOptions(options);
    connection.SetConnectionString(QStringLiteral("sqlite:") + file);
    connection.Open();
    TSampleSize size = TSampleSize::Small();
    size.Goods = goods;
    std::printf("Making %s with %d goods ...\n", qUtf8Printable(file), goods);
    CreateSampleDatabase(connection, size);
}

void MeasureAll(const QString& file, int rounds)
{
    const TCase cases[] = {
        {"frequent match, by key", QStringLiteral("روغن"), QStringLiteral("Code")},
        {"rare match, by key", QStringLiteral("محافظ برق کولر زاگرس مدل 107"), QStringLiteral("Code")},
        {"no match, by key", QStringLiteral("هیچ چیز"), QStringLiteral("Code")},
        {"first rows match, by name", QStringLiteral("آب"), QStringLiteral("Name")},
        {"early match, by name", QStringLiteral("آچار"), QStringLiteral("Name")},
        {"frequent match, by name", QStringLiteral("روغن"), QStringLiteral("Name")},
        {"rare match, by name", QStringLiteral("محافظ برق کولر زاگرس مدل 107"), QStringLiteral("Name")},
        {"no match, by name", QStringLiteral("هیچ چیز"), QStringLiteral("Name")},
    };
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite:") + file);
    connection.Open();
    const qint64 before = ProcessMemory::Resident();
    std::printf("%-28s %7s %10s %10s %10s %8s %9s | %9s %9s %8s\n", "condition", "rows", "raw ms",
                "answer ms", "painted ms", "ratio", "more ms", "raw cpu", "cpu", "ratio");
    TLiveFilter filter(connection);
    for (const TCase& condition : cases) {
        filter.Show(condition.OrderField);
        Measure(connection, file, filter, condition, rounds);
    }
    std::printf("resident memory: %.1f MiB before the list, %.1f MiB now, %.1f MiB at its peak\n",
                ProcessMemory::MiB(before), ProcessMemory::MiB(ProcessMemory::Resident()),
                ProcessMemory::MiB(ProcessMemory::Peak()));
}

void Run(const TBenchOptions& options)
{
    if (QFileInfo::exists(options.File)) {
        MeasureAll(options.File, options.Rounds);
        return;
    }
    MakeDatabase(options.File, options.Rows);
    std::printf("Made; resident memory peaked meanwhile, so run again for the figures.\n");
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int rounds = 15;
    return BenchMain<QApplication>(
        argc, argv,
        {QStringLiteral("live_filter.db"), QStringLiteral("goods"), QStringLiteral("Goods"), 1000000, rounds},
        Run);
}
