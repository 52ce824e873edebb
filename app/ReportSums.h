#pragma once

#include "QueryThread.h"

#include <memory>
#include <QObject>
#include <QString>

/// Number of lines and exact totals of a whole result, as plain decimal texts.
struct TReportSum
{
    qint64 Count = 0;
    QString Debit = QStringLiteral("0");
    QString Credit = QStringLiteral("0");

    static TReportSum Read(TADOConnection& connection, const QString& from, const QString& condition);
};

/// Adds up the lines of the report on a thread and a connection of its own: nothing waits for it, and a new
/// question abandons the one under way.
class TReportSums : public QObject
{
    Q_OBJECT

public:
    /// The connection must outlive this object; it is cloned.
    TReportSums(TADOConnection& connection, const QString& from, QObject* parent = nullptr);
    ~TReportSums() override;

    /// Returns at once; an answer follows unless another question does. `reopen` allows to open a lost
    /// connection again.
    void Ask(const QString& condition, bool reopen = false);
    bool IsBusy() const;

Q_SIGNALS:
    void asked();
    void summed(const QString& condition, const TReportSum& sum);
    void failed();

private:
    TADOConnection* connection_;
    QString from_;
    std::unique_ptr<TQueryThread> thread_;
};
