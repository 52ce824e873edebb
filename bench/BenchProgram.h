#pragma once

#include "Look.h"

#include <functional>
#include <QApplication>
#include <QTemporaryDir>

/// What a program that measures windows on a kept database is told.
struct TBenchOptions
{
    QString File;   ///< absolute path of the database
    int Rows = 0;   ///< of a database that is made anew
    int Rounds = 0; ///< measurements per condition
};

/// What holds where the command line says nothing, and what its rows are called.
struct TBenchDefaults
{
    QString File;
    QString RowsOption;
    QString RowsMeaning;
    int Rows = 1000000;
    int Rounds = 0;
};

/// The platform of a program that measures windows, to be there before its application: off the screen, and
/// with a folder for what runs.
class TBenchPlatform
{
public:
    TBenchPlatform();

private:
    QTemporaryDir runtimeFolder_;
};

TBenchOptions ReadBenchOptions(const QCoreApplication& application, const TBenchDefaults& defaults);
/// Ends the program with its message when data access fails.
void RunBench(const std::function<void()>& run);

/// The main function of such a program.
template <typename TApplication>
int BenchMain(int argc, char** argv, const TBenchDefaults& defaults,
              const std::function<void(const TBenchOptions& options)>& run)
{
    const TBenchPlatform platform;
    TApplication application(argc, argv);
    Look::Install(application, Look::TScheme::Light);
    const TBenchOptions options = ReadBenchOptions(application, defaults);
    RunBench([&run, &options] { run(options); });
    return 0;
}
