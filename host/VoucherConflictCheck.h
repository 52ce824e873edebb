#pragma once

#include "HostExport.h"
#include "QueryThread.h"

#include <optional>
#include <QPointer>
#include <QVector>
#include <QWidget>

/// Looks for operations without vouchers in the background: on a thread of its own, with a connection of its
/// own. Its answer comes back through the event loop of the thread that owns it.
class HOST_EXPORT TVoucherConflictCheck : public QObject
{
    Q_OBJECT

public:
    /// `connection` must outlive the check.
    explicit TVoucherConflictCheck(TADOConnection& connection);
    /// Abandons a check at work and waits for its thread.
    ~TVoucherConflictCheck() override;

    /// What the last check has found; looks itself, and waits, where there was none yet.
    bool Conflicts();
    /// Checks, and afterwards shows or hides the control by the result. A control that has been destroyed
    /// meanwhile is forgotten; one whose check has failed stays as it is.
    void Start(QWidget* control);
    /// A check is waiting or at work.
    bool IsBusy() const { return thread_ != nullptr && thread_->IsBusy(); }

Q_SIGNALS:
    /// A check has come to its end; `conflicts` is what stands now.
    void finished(bool conflicts);

private:
    void TakeAnswer();
    void Settle(bool conflicts);
    void Fail(const QString& message);

    TADOConnection* connection_;
    std::unique_ptr<TQueryThread> thread_;
    QVector<QPointer<QWidget>> waiting_;
    std::optional<bool> conflicts_;
};
