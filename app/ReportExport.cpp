#include "ReportExport.h"

#include "BackgroundTask.h"
#include "DisplayText.h"
#include "PersianText.h"
#include "ReportCsv.h"
#include "ReportPdf.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Returns why the file was not written; empty where it was.
QString Written(const TReportTable& table, TReportExport::TFormat format, const QString& fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    try {
        if (format == TReportExport::TFormat::Pdf)
            ReportPdf::Write(file, table);
        else
            ReportCsv::Write(file, table);
    } catch (const std::runtime_error& error) {
        file.cancelWriting();
        return QString::fromUtf8(error.what());
    }
    return file.commit() ? QString() : file.errorString();
}

QString Sentence(const TReportTable& table, const QString& fileName)
{
    const QString rows =
        table.Note().isEmpty() ? DisplayText::RowCount(static_cast<int>(table.Rows.size())) : table.Note();
    return QStringLiteral("%1 در %2 ذخیره شد.")
        .arg(rows, PersianText::Isolated(QFileInfo(fileName).fileName()));
}

} // namespace

TReportExport::TReportExport(TADOConnection& connection, QObject* parent)
    : QObject(parent), connection_(&connection)
{
}

TReportExport::~TReportExport() = default;

bool TReportExport::IsBusy() const
{
    return !waiting_.empty();
}

void TReportExport::Save(const TReportQuestion& question, TFormat format, const QString& fileName)
{
    const auto work = [this, question, format,
                       fileName](TADOConnection& connection) -> TQueryThread::TAnswer {
        const TReportTable table = TReportTable::Read(connection, question);
        const QString problem = Written(table, format, fileName);
        if (problem.isEmpty())
            return [this, sentence = Sentence(table, fileName)] { Q_EMIT saved(sentence); };
        return [this, fileName, problem] {
            const QString name = PersianText::Isolated(fileName);
            Q_EMIT failed(QStringLiteral("پروندهٔ %1 نوشته نشد. جای دیگری را برگزینید یا دسترسی به آن را "
                                         "بررسی کنید.")
                              .arg(name),
                          problem);
        };
    };
    waiting_.push_back(BackgroundTask::Guarded(
        work, [this](const QString& message, const QString& details) { Q_EMIT failed(message, details); },
        true));
    if (waiting_.size() == 1)
        BeginNext();
    Q_EMIT begun();
}

void TReportExport::BeginNext()
{
    if (!thread_) {
        thread_ = std::make_unique<TQueryThread>(connection_->Clone());
        connect(thread_.get(), &TQueryThread::answered, this, &TReportExport::Finish);
    }
    thread_->Begin(waiting_.front());
}

void TReportExport::Finish()
{
    const TQueryThread::TAnswer answer = thread_->TakeAnswer();
    if (!answer)
        return;
    waiting_.pop_front();
    if (!waiting_.empty())
        BeginNext();
    answer();
}
