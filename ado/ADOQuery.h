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
    void Clear() { lines_.clear(); }
    void Add(const QString& line) { lines_.append(line); }
    void SetText(const QString& text) { lines_ = QStringList{text}; }
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

    void SetConnection(TADOConnection* connection);
    TADOConnection* Connection() const;

    TSqlText SQL;
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
    QVariant SourceValue(int sourceRow, int index) const;

    TNotifyEvent AfterOpen;

private:
    TADOConnection& LiveConnection() const;
    void CheckActive() const;
    void MoveTo(int row, bool bof, bool eof);
    int SourceRow(int row) const;

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(TLocateOptions)
