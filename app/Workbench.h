#pragma once

#include "CommandLine.h"

#include <QString>
#include <stdexcept>

class THostApplication;
class TReferenceHost;

/// Exit codes of the workbench.
namespace ExitCode {
enum { Ok = 0, TourFailed = 1, BadUsage = 2, CannotOpen = 3 };
}

/// The program cannot go on; the message is the Persian sentence for the user.
class EStartError : public std::runtime_error
{
public:
    EStartError(int exitCode, const QString& message, const QString& details = {});
    ~EStartError() override;
    int ExitCode() const { return exitCode_; }
    QString Message() const { return message_; }
    QString Details() const { return details_; }

private:
    int exitCode_;
    QString message_;
    QString details_;
};

/// From the command line to the window: opens the database, signs the user in, shows the window or plays the
/// tour.
class TWorkbench
{
public:
    explicit TWorkbench(THostApplication& application) : application_(&application) {}

    /// Runs the program to its end and returns its exit code; start errors are told and become exit codes.
    int Run(const QStringList& arguments);

private:
    int Start(const TCommandLine& line);
    int ShowWindow(const TCommandLine& line, TReferenceHost& host, const QString& databaseName);

    THostApplication* application_;
};
