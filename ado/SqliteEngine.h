#pragma once

#include "SqliteSession.h"

/// The embedded engine: SQLite behind the T-SQL dialect layer.
class TSqliteEngine final : public IEngine
{
public:
    /// Takes an open and checked session over.
    explicit TSqliteEngine(std::unique_ptr<TSqliteSession> session);
    ~TSqliteEngine() override;

    std::unique_ptr<IEngineRows> Execute(const QString& text, const QVariantList& parameters) override;
    void Begin() override;
    void Commit() override;
    void Rollback() override;
    bool InTransaction() const override;
    void Cancel() override;
    /// A file does not go away as a server does.
    bool IsDead() const override { return false; }
    void RegisterFunction(const QString& name, int argumentCount, TDatabaseFunction function) override;

private:
    std::unique_ptr<TSqliteSession> session_;
};
