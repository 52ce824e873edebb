#include "BackgroundTask.h"

#include "AdoError.h"

TQueryThread::TTask BackgroundTask::Guarded(TQueryThread::TTask work, TFailure fail, bool reopen)
{
    return [work = std::move(work), fail = std::move(fail),
            reopen](TADOConnection& connection) -> TQueryThread::TAnswer {
        try {
            if (connection.IsLost() && reopen)
                connection.Reopen();
            else if (!connection.IsLost())
                connection.Open();
            return work(connection);
        } catch (const EADOError& error) {
            return [fail, message = error.Message(), details = error.ServerMessage()] {
                fail(message, details);
            };
        } catch (const std::exception& exception) {
            // A thread must not end by what runs out of memory or of disk.
            return [fail, details = QString::fromLocal8Bit(exception.what())] {
                fail(QStringLiteral("کار ناتمام ماند."), details);
            };
        }
    };
}
