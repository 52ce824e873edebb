#include "ReportSums.h"

#include "BackgroundTask.h"

TReportSum TReportSum::Read(TADOConnection& connection, const QString& from, const QString& condition)
{
    // Wider than the columns: on the server the sum of a money column overflows as money.
    const QString sum = QStringLiteral("ISNULL(SUM(CAST(%1 AS decimal(38, 4))), 0)");
    QString text =
        QStringLiteral("SELECT COUNT(*), ") + sum.arg(u"Bed") + QStringLiteral(", ") + sum.arg(u"Bes");
    text += QStringLiteral(" FROM ") + from;
    if (!condition.isEmpty())
        text += QStringLiteral(" WHERE ") + condition;
    TReportSum result;
    const std::unique_ptr<IEngineRows> rows = connection.Run(text);
    if (rows->Next()) {
        result.Count = rows->Value(0).toLongLong();
        result.Debit = rows->Value(1).toString();
        result.Credit = rows->Value(2).toString();
    }
    return result;
}

TReportSums::TReportSums(TADOConnection& connection, const QString& from, QObject* parent)
    : QObject(parent), connection_(&connection), from_(from)
{
}

TReportSums::~TReportSums() = default;

bool TReportSums::IsBusy() const
{
    return thread_ && thread_->IsBusy();
}

void TReportSums::Ask(const QString& condition, bool reopen)
{
    if (!thread_) {
        thread_ = std::make_unique<TQueryThread>(connection_->Clone());
        connect(thread_.get(), &TQueryThread::answered, this, [this] {
            if (const TQueryThread::TAnswer answer = thread_->TakeAnswer())
                answer();
        });
    }
    const auto work = [this, from = from_, condition](TADOConnection& connection) -> TQueryThread::TAnswer {
        return [this, condition, sum = TReportSum::Read(connection, from, condition)] {
            Q_EMIT summed(condition, sum);
        };
    };
    thread_->Begin(BackgroundTask::Guarded(
        work, [this](const QString& /*message*/, const QString& /*details*/) { Q_EMIT failed(); }, reopen));
    Q_EMIT asked();
}
