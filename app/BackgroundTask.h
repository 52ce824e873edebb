#pragma once

#include "QueryThread.h"

/// Tasks of a thread with a connection of its own.
namespace BackgroundTask {

/// What is called in the owner's thread when a task fails: a sentence for the user and technical words.
using TFailure = std::function<void(const QString& message, const QString& details)>;

/// The task with its connection opened before it and with everything that it throws turned into an answer
/// that calls `fail`. `reopen` allows to open a lost connection again.
TQueryThread::TTask Guarded(TQueryThread::TTask work, TFailure fail, bool reopen);

} // namespace BackgroundTask
