#include "SqliteRows.h"

#include "ExactDecimal.h"
#include "SqliteValue.h"

#include <limits>
#include <utility>

TSqliteRows::TSqliteRows(TSqliteSession& session, const QString& text, const QVariantList& parameters)
    : session_(&session), text_(text)
{
    session_->OpenRows().Take(this, text_);
    session_->StatementStarts();
    running_ = true;
    try {
        statement_ = session_->Statements().Take(text_);
        handle_ = statement_->Handle;
        Start(parameters);
    } catch (...) {
        Close();
        throw;
    }
    if (columns_.isEmpty())
        Close();
}

TSqliteRows::~TSqliteRows()
{
    Close();
}

void TSqliteRows::Start(const QVariantList& parameters)
{
    BindSqliteParameters(handle_, parameters, text_);
    if (!statement_->ReadOnly)
        totalChangesBefore_ = sqlite3_total_changes64(session_->Handle());
    const bool hasRow = Step();
    if (statement_->WasReprepared()) {
        statement_->ReadColumns();
        session_->SchemaChanged();
    }
    if (hasRow)
        statement_->TypeExpressionsByCurrentRow();
    columns_ = statement_->Columns;
    if (!hasRow)
        Finish();
}

bool TSqliteRows::Step()
{
    const int code = sqlite3_step(handle_);
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    throw session_->Failure(code, text_);
}

bool TSqliteRows::Next()
{
    switch (state_) {
    case TState::Reading:
        break;
    case TState::FirstRowWaits:
        state_ = TState::Reading;
        return true;
    case TState::AtEnd:
        Close();
        return false;
    case TState::CutOff:
        throw TOpenRows::CutOff(text_);
    }
    bool hasRow = false;
    try {
        hasRow = Step();
        if (!hasRow)
            Finish();
    } catch (const EADOError&) {
        state_ = TState::AtEnd;
        Close();
        throw;
    }
    if (!hasRow)
        Close();
    return hasRow;
}

/// Nothing is left to read: SQLite's locks are let go without waiting for the caller to notice.
void TSqliteRows::Finish()
{
    sqlite3* database = session_->Handle();
    // SQLite keeps the count of the last write over statements that write no rows.
    if (!statement_->ReadOnly && sqlite3_total_changes64(database) != totalChangesBefore_)
        affectedRows_ = sqlite3_changes64(database);
    if (statement_->ChangesSchema)
        session_->SchemaChanged();
    state_ = TState::AtEnd;
    GiveStatement();
}

void TSqliteRows::GiveStatement()
{
    if (statement_ != nullptr)
        session_->Statements().Give(statement_);
    statement_ = nullptr;
    handle_ = nullptr;
    if (std::exchange(running_, false))
        session_->StatementEnds();
}

void TSqliteRows::Close()
{
    if (session_ == nullptr)
        return;
    GiveStatement();
    session_->OpenRows().Release(this);
    session_ = nullptr;
}

void TSqliteRows::ConnectionCloses()
{
    if (state_ != TState::AtEnd)
        state_ = TState::CutOff;
    statement_ = nullptr;
    handle_ = nullptr;
    session_ = nullptr;
}

bool TSqliteRows::IsNull(int column)
{
    return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

qint64 TSqliteRows::Int64(int column)
{
    return sqlite3_column_int64(handle_, column);
}

double TSqliteRows::Double(int column)
{
    return sqlite3_column_double(handle_, column);
}

QString TSqliteRows::Text(int column)
{
    QString text = SqliteColumnText(handle_, column);
    if (IsDecimalColumn(column) && !IsCanonicalDecimal(text))
        return CanonicalDecimal(text);
    return text;
}

void TSqliteRows::AppendText(int column, std::u16string& buffer)
{
    const std::size_t before = buffer.size();
    AppendSqliteColumnText(handle_, column, buffer);
    if (!IsDecimalColumn(column) ||
        IsCanonicalDecimal(QStringView(buffer).mid(static_cast<qsizetype>(before))))
        return;
    buffer.resize(before);
    IEngineRows::AppendText(column, buffer);
}

bool TSqliteRows::IsDecimalColumn(int column) const
{
    return column < columns_.size() && columns_.at(column).Type == TFieldType::ftBCD;
}

QByteArray TSqliteRows::Blob(int column)
{
    return SqliteColumnBlob(handle_, column);
}

QVariant TSqliteRows::Value(int column)
{
    const int storageClass = sqlite3_column_type(handle_, column);
    if (storageClass == SQLITE_NULL)
        return {};
    const TFieldType type = columns_.at(column).Type;
    switch (type) {
    case TFieldType::ftBoolean:
    case TFieldType::ftInteger:
    case TFieldType::ftLargeint:
        // A column may hold what its declaration does not foresee; it is shown rather than bent.
        return storageClass == SQLITE_INTEGER ? WholeNumber(column, type)
                                              : SqliteColumnVariant(handle_, column);
    case TFieldType::ftFloat:
        if (storageClass == SQLITE_INTEGER || storageClass == SQLITE_FLOAT)
            return Double(column);
        return SqliteColumnVariant(handle_, column);
    case TFieldType::ftBlob:
        return Blob(column);
    default:
        return Text(column);
    }
}

QVariant TSqliteRows::WholeNumber(int column, TFieldType type)
{
    const qint64 number = Int64(column);
    if (type == TFieldType::ftBoolean)
        return number != 0;
    const bool fitsInt =
        number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    if (type == TFieldType::ftInteger && fitsInt)
        return static_cast<int>(number);
    return number;
}
