#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <QElapsedTimer>
#include <QtGlobal>
#include <string>
#include <vector>

/// Of at least one value.
inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

inline double Milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Of all threads of the program since it began.
inline double ProcessorMilliseconds()
{
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

/// One way of doing the work that a comparison measures.
struct TContender
{
    std::string Name;
    /// Does the work once and returns a checksum, which must be equal for all contenders.
    std::function<qint64()> Work;
};

/// Takes processor time, which other programs disturb least. Runs the contenders in turn, so that a slow
/// moment of the machine strikes all of them, and prints the median, the fastest and the ratio of medians to
/// the first contender. False when the checksums differ.
inline bool Compare(const char* title, int repetitions, double unitsPerRun, const char* unit,
                    const std::vector<TContender>& contenders)
{
    std::vector<std::vector<double>> times(contenders.size());
    std::vector<qint64> checksums(contenders.size());
    for (int repetition = -1; repetition < repetitions; ++repetition) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            const std::clock_t start = std::clock();
            checksums[i] = contenders[i].Work();
            const double nanoseconds = static_cast<double>(std::clock() - start) * 1e9 / CLOCKS_PER_SEC;
            // The first round warms the caches.
            if (repetition >= 0)
                times[i].push_back(nanoseconds / unitsPerRun);
        }
    }
    std::printf("\n%s (median of %d, %s)\n", title, repetitions, unit);
    double reference = 0;
    bool equal = true;
    for (std::size_t i = 0; i < contenders.size(); ++i) {
        std::sort(times[i].begin(), times[i].end());
        const double median = times[i][times[i].size() / 2];
        if (i == 0)
            reference = median;
        equal = equal && checksums[i] == checksums[0];
        std::printf("  %-44s %12.1f   fastest %12.1f   ratio %5.2f\n", contenders[i].Name.c_str(), median,
                    times[i].front(), median / reference);
    }
    if (!equal)
        std::printf("  the contenders did not do the same work: the checksums differ\n");
    return equal;
}
