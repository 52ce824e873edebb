#pragma once

#include "VoucherDraft.h"

#include <map>

class TADOConnection;

/// Reads accounts of the chart. What has been read is kept for as long as the book lives, so a book is made
/// for one piece of work and thrown away.
class TAccountBook
{
public:
    /// `connection` must outlive the book.
    explicit TAccountBook(TADOConnection& connection) : connection_(&connection) {}

    TAccountFacts Facts(const TAccountCode& account);

private:
    struct TTotal
    {
        bool IsKnown = false;
        QString Name;
        int DetailType = 0;
        bool HasAssistants = false;
    };
    struct TDetail
    {
        bool IsKnown = false;
        QString Name;
        bool IsActive = true;
    };

    const TTotal& Total(int code);
    QString AssistantName(int total, int code);
    const TDetail& Detail(int kind, int code);
    QString CenterTitle(int code);
    QString OneText(const QString& statement, const QVariantList& parameters);

    TADOConnection* connection_;
    std::map<int, TTotal> totals_;
    std::map<std::pair<int, int>, QString> assistants_;
    std::map<std::pair<int, int>, TDetail> details_;
    std::map<int, QString> centers_;
};
