#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

/// The real workbench, run off-screen with a home of its own, so that it neither sees nor changes the user's
/// files.
class TWorkbenchProcess
{
public:
    /// Runs it to its end, or kills it after the time (exit code -1).
    int Run(const QStringList& arguments, int milliseconds = 60000)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const QString& name :
             {QStringLiteral("HOME"), QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("XDG_DATA_HOME"),
              QStringLiteral("XDG_CACHE_HOME"), QStringLiteral("XDG_RUNTIME_DIR")})
            environment.insert(name, Home.path());
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/" WORKBENCH_PROGRAM),
                      arguments);
        const bool ended = process.waitForFinished(milliseconds);
        if (!ended)
            process.kill();
        process.waitForFinished();
        Output = QString::fromUtf8(process.readAllStandardOutput());
        Errors = QString::fromUtf8(process.readAllStandardError());
        return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QString File(const QString& name) const { return Home.filePath(name); }
    QString Database(const QString& name) const { return QStringLiteral("sqlite:") + File(name); }

    QTemporaryDir Home;
    QString Output;
    QString Errors;
};
