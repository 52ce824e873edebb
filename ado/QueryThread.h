#pragma once

#include "ADOConnection.h"

#include <deque>
#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>
#include <QTimer>
#include <QWaitCondition>

/// A thread with a connection of its own that works on the newest task only: a new task abandons the one at
/// work and replaces one that waits, and answers of those are dropped. Belongs to the thread that made it.
class ADO_EXPORT TQueryThread : public QThread
{
    Q_OBJECT

public:
    /// What a task found out, to be run in the owner's thread.
    using TAnswer = std::function<void()>;
    /// Runs in the thread; must not let an exception out.
    using TTask = std::function<TAnswer(TADOConnection& connection)>;

    /// Takes a connection that is not yet open; the first task opens it.
    explicit TQueryThread(std::unique_ptr<TADOConnection> connection, QObject* parent = nullptr);
    /// Abandons the work and waits until the thread has ended.
    ~TQueryThread() override;

    /// Gives the thread a task; returns at once.
    void Begin(TTask task);
    /// Drops the task that waits or is at work, and its answer; returns at once.
    void Abandon();
    /// A task is waiting or at work, or its answer has not been taken.
    bool IsBusy() const { return busy_; }
    /// The answer of the newest task, once; null when there is none yet.
    TAnswer TakeAnswer();
    /// Sleeps until there is an answer to take; false when none came in time or nothing is asked.
    bool WaitForAnswer(const QDeadlineTimer& deadline);

Q_SIGNALS:
    void answered(); ///< there may be an answer to take

protected:
    void run() override;

private:
    void Replace(TTask task);
    void CancelStale();
    bool WorksOnStale() const { return working_ != 0 && working_ != newest_; }
    void Work(const TTask& task, quint64 number);

    mutable QMutex mutex_;
    QWaitCondition asked_;
    QWaitCondition answeredCondition_;
    std::unique_ptr<TADOConnection> connection_;
    TTask task_;
    TAnswer answer_;
    quint64 newest_ = 0;
    quint64 working_ = 0; ///< number of the task at work; 0 for none
    bool ending_ = false;
    bool busy_ = false; ///< used by the owner's thread only
    QTimer cancelTimer_;
};
