#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

/// What the user asked for when starting the workbench. Empty texts mean that the option was not given.
struct TCommandLine
{
    QString Database;   ///< `sqlite:FILE` or `odbc:CONNECTION STRING`
    QString TourFolder; ///< play the guided tour and leave its screenshots here
    QString Scheme;     ///< `light` or `dark`
    QString LogFile;    ///< every statement goes here
    QString User;
    bool Help = false;
};

/// The command line cannot be understood; Message() is the Persian sentence that says why.
class EUsageError : public std::runtime_error
{
public:
    explicit EUsageError(const QString& message);
    ~EUsageError() override;
    QString Message() const { return message_; }

private:
    QString message_;
};

/// Reads the arguments without the program's name. Throws EUsageError.
TCommandLine ParseCommandLine(const QStringList& arguments);
/// What --help prints.
QString CommandLineHelp();
