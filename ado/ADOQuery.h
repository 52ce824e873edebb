#pragma once

#include "ADOConnection.h"
#include "DataSet.h"

#include <memory>
#include <QPointer>
#include <QStringList>

/// The lines of a statement. A text set whole stands as it is; lines added are joined by CR LF.
class ADO_EXPORT TSqlText
{
public:
    void Clear() { lines_.clear(); }                                  ///< no text
    void Add(const QString& line) { lines_.append(line); }            ///< one more line at the end
    void SetText(const QString& text) { lines_ = QStringList{text}; } ///< in place of all lines
    /// The statement as it is sent.
    QString Text() const { return lines_.size() == 1 ? lines_.front() : lines_.join(QStringLiteral("\r\n")); }

private:
    QStringList lines_;
};

/// How Locate compares texts.
enum class TLocateOption { loCaseInsensitive = 1, loPartialKey = 2 };
Q_DECLARE_FLAGS(TLocateOptions, TLocateOption)

/// A client-side static cursor: Open() reads the whole result, forward-only, and closes the statement.
/// For results of human size; large lists use TPagedDataSet.
class ADO_EXPORT TADOQuery : public TDataSet
{
    Q_OBJECT

public:
    explicit TADOQuery(QObject* parent = nullptr);
    ~TADOQuery() override;

    void SetConnection(TADOConnection* connection); ///< not owned; null for none
    TADOConnection* Connection() const;

    TSqlText SQL;            ///< one T-SQL statement; a change takes effect at the next opening
    QVariantList Parameters; ///< values of the text's `?` marks

    bool Active() const override;
    void Open() override; ///< an open query stays as it is; closes first when you changed SQL
    void Close() override;
    void Requery(); ///< closes and opens, and stays on the same row number as far as there is one
    /// For statements without rows; returns the rows written.
    qint64 ExecSQL();

    bool IsEmpty() override;
    int RecordCount() override;
    int FieldCount() const override;
    TField* Field(int index) override;
    TField* FindField(const QString& name) override;
    bool Bof() const override;
    bool Eof() const override;
    void First() override;
    void Prior() override;
    void Next() override;
    void Last() override;
    int RecNo() const override;
    void SetRecNo(int recNo) override;
    QVariant FieldValue(int index) const override;
    QVariant ValueAt(int row, int index) const override;
    /// The same for texts without a copy, until the query is closed or opened again; a null view for NULL and
    /// for what is no text.
    QStringView TextAt(int row, int index) const;

    /// Moves to the first row whose fields (";" between names) have the values; stays and returns false
    /// otherwise.
    bool Locate(const QString& keyFields, const QVariantList& values, TLocateOptions options = {});

    /// Shows only the rows that the predicate lets through; it reads fields by ValueAt of the unfiltered row
    /// it is handed. Null shows all. Takes effect at once and keeps the current row where it stays visible.
    using TRowFilter = std::function<bool(const TADOQuery& query, int sourceRow)>;
    void SetRowFilter(TRowFilter filter);
    QVariant SourceValue(int sourceRow, int index) const; ///< of an unfiltered row, counted from 0

    TNotifyEvent AfterOpen; ///< after each opening, the first row being the current one

private:
    TADOConnection& LiveConnection() const;
    void CheckActive() const;
    void MoveTo(int row, bool bof, bool eof);
    int SourceRow(int row) const;

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(TLocateOptions)
