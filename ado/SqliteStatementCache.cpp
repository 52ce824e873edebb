#include "SqliteStatementCache.h"

#include <algorithm>

namespace {

constexpr qsizetype MostCharacters = 1'000'000;

} // namespace

TSqliteStatementCache::TSqliteStatementCache(int capacity, TPrepare prepare)
    : capacity_(static_cast<std::size_t>(capacity)), prepare_(std::move(prepare))
{
}

TSqliteStatement* TSqliteStatementCache::Take(const QString& text)
{
    const auto found = kept_.find(text);
    if (found != kept_.end() && found->second->InUse)
        return Lend(prepare_(text));
    TSqliteStatement* statement = nullptr;
    if (found != kept_.end()) {
        statement = found->second.get();
    } else {
        std::unique_ptr<TSqliteStatement> prepared = prepare_(text);
        if (!MakeRoom(text.size()))
            return Lend(std::move(prepared));
        statement = prepared.get();
        statement->Kept = true;
        characters_ += text.size();
        kept_.emplace(text, std::move(prepared));
    }
    statement->InUse = true;
    statement->LastUse = ++uses_;
    return statement;
}

TSqliteStatement* TSqliteStatementCache::Lend(std::unique_ptr<TSqliteStatement> statement)
{
    statement->InUse = true;
    lent_.push_back(std::move(statement));
    return lent_.back().get();
}

void TSqliteStatementCache::Give(TSqliteStatement* statement)
{
    sqlite3_reset(statement->Handle);
    if (statement->Kept) {
        if (statement->ParameterCount > 0)
            sqlite3_clear_bindings(statement->Handle);
        statement->InUse = false;
        return;
    }
    std::erase_if(lent_, [statement](const auto& lent) { return lent.get() == statement; });
}

bool TSqliteStatementCache::MakeRoom(qsizetype characters)
{
    if (characters > MostCharacters)
        return false;
    bool isRoom = true;
    while (isRoom && (kept_.size() >= capacity_ || characters_ + characters > MostCharacters))
        isRoom = EvictOldest();
    return isRoom;
}

bool TSqliteStatementCache::EvictOldest()
{
    auto oldest = kept_.end();
    for (auto candidate = kept_.begin(); candidate != kept_.end(); ++candidate) {
        const bool older = oldest == kept_.end() || candidate->second->LastUse < oldest->second->LastUse;
        if (!candidate->second->InUse && older)
            oldest = candidate;
    }
    if (oldest == kept_.end())
        return false;
    characters_ -= oldest->first.size();
    kept_.erase(oldest);
    return true;
}

void TSqliteStatementCache::Clear()
{
    for (auto& [text, statement] : kept_) {
        if (statement->InUse) {
            statement->Kept = false;
            lent_.push_back(std::move(statement));
        }
    }
    kept_.clear();
    characters_ = 0;
}
