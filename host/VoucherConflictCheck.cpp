#include "VoucherConflictCheck.h"

#include "AutoVouchers.h"

TVoucherConflictCheck::TVoucherConflictCheck(TADOConnection& connection) : connection_(&connection)
{
}

TVoucherConflictCheck::~TVoucherConflictCheck() = default;

bool TVoucherConflictCheck::Conflicts()
{
    if (!conflicts_)
        conflicts_ = TAutoVouchers::AnyMissing(*connection_);
    return *conflicts_;
}

void TVoucherConflictCheck::Start(QWidget* control)
{
    if (control != nullptr)
        waiting_.append(control);
    if (thread_ == nullptr) {
        thread_ = std::make_unique<TQueryThread>(connection_->Clone());
        connect(thread_.get(), &TQueryThread::answered, this, &TVoucherConflictCheck::TakeAnswer);
    }
    // A check at work may have looked before what the caller has just written: it is abandoned, and those who
    // wait for it get the new answer.
    thread_->Begin([this](TADOConnection& connection) -> TQueryThread::TAnswer {
        try {
            if (connection.IsLost())
                connection.Reopen();
            else
                connection.Open();
            return [this, conflicts = TAutoVouchers::AnyMissing(connection)] { Settle(conflicts); };
        } catch (const EADOError& error) {
            return [this, message = error.Message()] { Fail(message); };
        }
    });
}

void TVoucherConflictCheck::TakeAnswer()
{
    if (const TQueryThread::TAnswer answer = thread_->TakeAnswer())
        answer();
}

void TVoucherConflictCheck::Settle(bool conflicts)
{
    conflicts_ = conflicts;
    const auto waiting = std::exchange(waiting_, {});
    for (const QPointer<QWidget>& control : waiting) {
        if (control)
            control->setVisible(conflicts);
    }
    Q_EMIT finished(conflicts);
}

void TVoucherConflictCheck::Fail(const QString& message)
{
    // Nobody has asked for this check by hand: the user meets the error where he next uses the connection.
    qWarning("Operations without vouchers were not looked for: %s", qPrintable(message));
    waiting_.clear();
    Q_EMIT finished(conflicts_.value_or(false));
}
