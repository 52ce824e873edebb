// What it costs to make each of the frames, beside the plain widgets of the toolkit that it has, laid out by
// hand, in the same run; and the memory that a frame takes.

#include "BareTwin.h"
#include "BenchProgram.h"
#include "DatabaseFile.h"
#include "GalleryEntry.h"
#include "Measure.h"
#include "ReferenceHost.h"

#include <memory>
#include <QApplication>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

constexpr int Rounds = 45;
constexpr int FramesPerRound = 40;

using TWidgets = std::vector<std::unique_ptr<QWidget>>;

struct TCost
{
    double Microseconds = 0; ///< of the processor, for each
    double Kilobytes = 0;    ///< of the heap, for each; 0 where the platform does not tell
};

double HeapKilobytes()
{
#if defined(__GLIBC__)
    return static_cast<double>(mallinfo2().uordblks) / 1024;
#else
    return 0;
#endif
}

TCost CostOfRound(const std::function<QWidget*()>& make)
{
    TWidgets widgets;
    widgets.reserve(FramesPerRound);
    const double heap = HeapKilobytes();
    const std::clock_t start = std::clock();
    for (int count = 0; count < FramesPerRound; ++count)
        widgets.emplace_back(make());
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    return {seconds * 1e6 / FramesPerRound, (HeapKilobytes() - heap) / FramesPerRound};
}

void Measure(const TGalleryEntry& entry)
{
    const std::unique_ptr<QWidget> model(entry.Make(nullptr));
    const TBareTwin twin(*model);
    std::vector<double> bareTimes;
    std::vector<double> frameTimes;
    TCost bare;
    TCost frame;
    for (int round = -1; round < Rounds; ++round) {
        bare = CostOfRound([&twin] { return twin.Make(); });
        frame = CostOfRound([&entry] { return entry.Make(nullptr); });
        // The first round warms the caches.
        if (round < 0)
            continue;
        bareTimes.push_back(bare.Microseconds);
        frameTimes.push_back(frame.Microseconds);
    }
    const double bareTime = Median(bareTimes);
    const double frameTime = Median(frameTimes);
    std::printf("| %-30s | %4d | %8.0f | %8.0f | %5.2f | %7.1f | %7.1f |\n", qUtf8Printable(entry.Unit),
                twin.ControlCount(), bareTime, frameTime, frameTime / bareTime, bare.Kilobytes,
                frame.Kilobytes);
    std::fflush(stdout);
}

void Run()
{
    const QTemporaryDir folder;
    TADOConnection connection;
    TDatabaseOptions options;
    options.Size = TSampleSize::Small();
    OpenDatabase(connection, QStringLiteral("sqlite::memory:"), options);
    THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    const TReferenceHost host(connection, settings);
    std::printf(
        "microseconds of the processor and kilobytes of the heap for each, medians of %d rounds of %d\n\n",
        Rounds, FramesPerRound);
    std::printf(
        "| unit | widgets | bare | frame | ratio | bare kB | frame kB |\n|---|---|---|---|---|---|---|\n");
    for (const TGalleryEntry& entry : GalleryEntries::All())
        Measure(entry);
}

} // namespace

int main(int argc, char** argv)
{
    const TBenchPlatform platform;
    QApplication application(argc, argv);
    Look::Install(application, Look::TScheme::Light);
    RunBench(Run);
    return 0;
}
