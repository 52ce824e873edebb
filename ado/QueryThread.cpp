#include "QueryThread.h"

namespace {
constexpr int cancelInterval = 20; // milliseconds
}

TQueryThread::TQueryThread(std::unique_ptr<TADOConnection> connection, QObject* parent)
    : QThread(parent), connection_(std::move(connection))
{
    connection_->moveToThread(this);
    cancelTimer_.setInterval(cancelInterval);
    connect(&cancelTimer_, &QTimer::timeout, this, &TQueryThread::CancelStale);
}

TQueryThread::~TQueryThread()
{
    {
        const QMutexLocker lock(&mutex_);
        ending_ = true;
    }
    Replace({});
    while (!wait(QDeadlineTimer(cancelInterval)))
        CancelStale();
}

void TQueryThread::Begin(TTask task)
{
    busy_ = true;
    Replace(std::move(task));
    if (!isRunning())
        start();
}

void TQueryThread::Abandon()
{
    busy_ = false;
    Replace({});
}

void TQueryThread::Replace(TTask task)
{
    {
        const QMutexLocker lock(&mutex_);
        ++newest_;
        task_ = std::move(task);
        answer_ = {};
        asked_.wakeAll();
    }
    CancelStale();
}

// A cancellation that comes between two statements of a task, or before its first one has begun, has no
// effect; it is therefore repeated as long as the thread works on a task that nobody waits for. The lock
// keeps it from hitting a newer task.
void TQueryThread::CancelStale()
{
    const QMutexLocker lock(&mutex_);
    if (!WorksOnStale()) {
        cancelTimer_.stop();
        return;
    }
    connection_->Cancel();
    if (!cancelTimer_.isActive())
        cancelTimer_.start();
}

TQueryThread::TAnswer TQueryThread::TakeAnswer()
{
    const QMutexLocker lock(&mutex_);
    TAnswer answer;
    answer.swap(answer_);
    if (answer)
        busy_ = false;
    return answer;
}

bool TQueryThread::WaitForAnswer(const QDeadlineTimer& deadline)
{
    while (busy_) {
        CancelStale();
        const QMutexLocker lock(&mutex_);
        if (answer_)
            return true;
        if (deadline.hasExpired())
            return false;
        const qint64 remaining = deadline.isForever() ? cancelInterval : deadline.remainingTime();
        answeredCondition_.wait(&mutex_, QDeadlineTimer(qMin<qint64>(remaining, cancelInterval)));
    }
    return false;
}

void TQueryThread::run()
{
    QMutexLocker lock(&mutex_);
    while (!ending_) {
        if (!task_) {
            asked_.wait(&mutex_);
            continue;
        }
        TTask task;
        task.swap(task_);
        working_ = newest_;
        const quint64 number = working_;
        lock.unlock();
        Work(task, number);
        lock.relock();
        working_ = 0;
    }
    connection_.reset();
}

void TQueryThread::Work(const TTask& task, quint64 number)
{
    TAnswer answer = task(*connection_);
    {
        const QMutexLocker lock(&mutex_);
        working_ = 0;
        if (number != newest_)
            return;
        answer_ = std::move(answer);
        answeredCondition_.wakeAll();
    }
    Q_EMIT answered();
}
