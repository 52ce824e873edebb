#pragma once

#include "SqliteStatement.h"

#include <functional>
#include <unordered_map>
#include <vector>

/// Prepared statements by the text they were prepared from, the longest unused one leaving first. A statement
/// in use is never handed out twice: a second user gets one of his own. The texts are bounded together too: a
/// statement on 100,000 keys takes some ten megabytes.
class TSqliteStatementCache
{
public:
    /// Prepares a text; throws EADOError.
    using TPrepare = std::function<std::unique_ptr<TSqliteStatement>(const QString& text)>;

    TSqliteStatementCache(int capacity, TPrepare prepare);

    TSqliteStatement* Take(const QString& text);
    /// Resets the statement, clears its parameters and keeps or drops it.
    void Give(TSqliteStatement* statement);
    /// Forgets every statement; those in use are dropped when they are given back.
    void Clear();

private:
    TSqliteStatement* Lend(std::unique_ptr<TSqliteStatement> statement);
    /// False where there is none to be had.
    bool MakeRoom(qsizetype characters);
    bool EvictOldest();

    std::size_t capacity_;
    qsizetype characters_ = 0; ///< of the kept texts
    TPrepare prepare_;
    quint64 uses_ = 0;
    std::unordered_map<QString, std::unique_ptr<TSqliteStatement>> kept_;
    std::vector<std::unique_ptr<TSqliteStatement>> lent_;
};
