#pragma once

#include "ReportTable.h"

#include <deque>
#include <memory>
#include <QObject>

/// Saves a report into a file, on a thread and a connection of its own. A file that was there is replaced
/// when the new one is complete, and stays as it is otherwise.
class TReportExport : public QObject
{
    Q_OBJECT

public:
    enum class TFormat { Pdf, Csv };

    /// The connection must outlive this object; it is cloned.
    explicit TReportExport(TADOConnection& connection, QObject* parent = nullptr);
    /// Abandons the reading; waits for what is being written.
    ~TReportExport() override;

    /// Returns at once. Files are written one after the other.
    void Save(const TReportQuestion& question, TFormat format, const QString& fileName);
    bool IsBusy() const;

Q_SIGNALS:
    void begun();
    /// `sentence` says what has been saved, and how many of how many rows.
    void saved(const QString& sentence);
    void failed(const QString& message, const QString& details);

private:
    void BeginNext();
    void Finish();

    TADOConnection* connection_;
    std::unique_ptr<TQueryThread> thread_;
    std::deque<TQueryThread::TTask> waiting_; ///< the first one is under way
};
