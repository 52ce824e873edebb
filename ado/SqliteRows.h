#pragma once

#include "SqliteSession.h"

/// The rows of one statement. Its first row is read while it is made, so that errors arise there and the
/// columns that are expressions get the type of their first value; a statement without rows has then run to
/// its end.
class TSqliteRows final : public IOpenRows
{
public:
    TSqliteRows(TSqliteSession& session, const QString& text, const QVariantList& parameters);
    ~TSqliteRows() override;

    const QVector<TColumnInfo>& Columns() const override { return columns_; }
    bool Next() override;
    bool IsNull(int column) override;
    qint64 Int64(int column) override;
    double Double(int column) override;
    QString Text(int column) override;
    void AppendText(int column, std::u16string& buffer) override;
    QByteArray Blob(int column) override;
    QVariant Value(int column) override;
    qint64 AffectedRows() override { return affectedRows_; }

    void ConnectionCloses() override;

private:
    enum class TState { FirstRowWaits, Reading, AtEnd, CutOff };

    void Start(const QVariantList& parameters);
    bool Step();
    void Finish();
    void GiveStatement();
    void Close();
    bool IsDecimalColumn(int column) const;
    QVariant WholeNumber(int column, TFieldType type);

    TSqliteSession* session_; ///< null once the rows are closed
    QString text_;
    TSqliteStatement* statement_ = nullptr;
    sqlite3_stmt* handle_ = nullptr; ///< null when released: SQLite then reads every column as NULL
    QVector<TColumnInfo> columns_;
    qint64 affectedRows_ = 0;
    qint64 totalChangesBefore_ = 0;
    TState state_ = TState::FirstRowWaits;
    bool running_ = false; ///< between StatementStarts() and StatementEnds()
};
