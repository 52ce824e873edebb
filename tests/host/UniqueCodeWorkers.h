#pragma once

#include "SharedDatabase.h"

#include <QProcess>

/// Another user in a program of his own.
class TUniqueCodeWorker
{
public:
    TUniqueCodeWorker(const QString& work, const TSharedDatabase& database, int user, int number)
    {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/" UNIQUE_CODE_WORKER),
                       {work, database.ConnectionString(), QString::number(user), QString::number(number)});
    }
    TUniqueCodeWorker(const TUniqueCodeWorker&) = delete;
    TUniqueCodeWorker& operator=(const TUniqueCodeWorker&) = delete;
    ~TUniqueCodeWorker() { Kill(); }

    /// The number that it holds; 0 where it does not come to show one.
    int HeldNumber()
    {
        return process_.waitForReadyRead(LongestWait) ? process_.readLine().trimmed().toInt() : 0;
    }
    /// Without a chance to release anything.
    void Kill()
    {
        process_.kill();
        process_.waitForFinished();
    }
    /// The numbers of the accounts that it has made; empty where it has failed.
    QVector<int> FinishedNumbers()
    {
        if (!process_.waitForFinished(LongestWait) || process_.exitStatus() != QProcess::NormalExit ||
            process_.exitCode() != 0)
            return {};
        QVector<int> numbers;
        for (const QByteArray& line : process_.readAllStandardOutput().trimmed().split('\n'))
            numbers.append(line.trimmed().toInt());
        return numbers;
    }

private:
    static constexpr int LongestWait = 120000;

    QProcess process_;
};
