#pragma once

#include "Engine.h"

#include <string>
#include <vector>

/// The rows of a result, kept compactly: sixteen bytes for each value, texts and bytes end to end beside
/// them.
class TRowStore
{
public:
    /// Reads the rows to their end.
    void Read(IEngineRows& rows);
    void Clear();

    const QVector<TColumnInfo>& Columns() const { return columns_; }
    int RowCount() const { return rowCount_; }
    /// Invalid for NULL, and outside of the rows and columns.
    QVariant Value(int row, int column) const;
    /// A text without a copy, until the rows are cleared; a null view where the value is none.
    QStringView Text(int row, int column) const;

private:
    enum class TKind : quint32 { Null, Boolean, Integer, Largeint, Float, Text, Blob };
    struct TCell
    {
        TKind Kind = TKind::Null;
        quint32 Length = 0; ///< characters of a text, bytes of a blob
        union {
            qint64 Number = 0; ///< or where a text or blob begins
            double Real;
        };
    };

    const TCell* Cell(int row, int column) const; ///< null outside of the rows and columns
    QStringView TextOf(const TCell& cell) const;
    void AppendCell(IEngineRows& rows, int column);
    void AppendColumnText(IEngineRows& rows, int column);
    TCell TextCell(std::size_t begin) const;
    void AppendVariant(const QVariant& value);
    void AppendNumber(TKind kind, qint64 number);

    QVector<TColumnInfo> columns_;
    int rowCount_ = 0;
    std::vector<TCell> cells_;
    std::u16string texts_;
    std::string bytes_;
};
