#include "RowStore.h"

#include <QScopeGuard>

namespace {

constexpr std::size_t KeptCells = 256;
constexpr std::size_t KeptCharacters = 4096;

} // namespace

void TRowStore::Read(IEngineRows& rows)
{
    Clear();
    auto forgetUnfinished = qScopeGuard([this] { Clear(); });
    columns_ = rows.Columns();
    const int columnCount = static_cast<int>(columns_.size());
    while (rows.Next()) {
        for (int column = 0; column < columnCount; ++column)
            AppendCell(rows, column);
        ++rowCount_;
    }
    forgetUnfinished.dismiss();
}

void TRowStore::Clear()
{
    // Not clear(), which would allocate a list anew beside the engine's shared one.
    columns_ = {};
    rowCount_ = 0;
    // Small results come one after another; the memory of a large one is given back.
    if (cells_.capacity() > KeptCells || texts_.capacity() > KeptCharacters ||
        bytes_.capacity() > KeptCharacters) {
        cells_ = {};
        texts_ = {};
        bytes_ = {};
    }
    cells_.clear();
    texts_.clear();
    bytes_.clear();
}

void TRowStore::AppendCell(IEngineRows& rows, int column)
{
    switch (columns_.at(column).Type) {
    case TFieldType::ftBCD:
    case TFieldType::ftDate:
    case TFieldType::ftDateTime:
    case TFieldType::ftWideString:
    case TFieldType::ftWideMemo:
        AppendColumnText(rows, column);
        break;
    default:
        AppendVariant(rows.Value(column));
    }
}

void TRowStore::AppendColumnText(IEngineRows& rows, int column)
{
    TCell& cell = cells_.emplace_back();
    if (rows.IsNull(column))
        return;
    const std::size_t begin = texts_.size();
    rows.AppendText(column, texts_);
    cell = TextCell(begin);
}

/// For what has been put behind the texts.
TRowStore::TCell TRowStore::TextCell(std::size_t begin) const
{
    TCell cell;
    cell.Kind = TKind::Text;
    cell.Length = static_cast<quint32>(texts_.size() - begin);
    cell.Number = static_cast<qint64>(begin);
    return cell;
}

void TRowStore::AppendNumber(TKind kind, qint64 number)
{
    TCell cell;
    cell.Kind = kind;
    cell.Number = number;
    cells_.push_back(cell);
}

void TRowStore::AppendVariant(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        cells_.emplace_back();
        break;
    case QMetaType::Bool:
        AppendNumber(TKind::Boolean, value.toBool() ? 1 : 0);
        break;
    case QMetaType::Int:
        AppendNumber(TKind::Integer, value.toInt());
        break;
    case QMetaType::LongLong:
        AppendNumber(TKind::Largeint, value.toLongLong());
        break;
    case QMetaType::Double: {
        AppendNumber(TKind::Float, 0);
        cells_.back().Real = value.toDouble();
        break;
    }
    case QMetaType::QByteArray: {
        const QByteArray blob = value.toByteArray();
        AppendNumber(TKind::Blob, static_cast<qint64>(bytes_.size()));
        cells_.back().Length = static_cast<quint32>(blob.size());
        bytes_.append(blob.constData(), static_cast<std::size_t>(blob.size()));
        break;
    }
    default: {
        const QString text = value.toString();
        const std::size_t begin = texts_.size();
        texts_.append(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
        cells_.push_back(TextCell(begin));
    }
    }
}

const TRowStore::TCell* TRowStore::Cell(int row, int column) const
{
    if (row < 0 || row >= rowCount_ || column < 0 || column >= columns_.size())
        return nullptr;
    const std::size_t index = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_.size()) +
                              static_cast<std::size_t>(column);
    return &cells_[index];
}

QStringView TRowStore::TextOf(const TCell& cell) const
{
    return {texts_.data() + cell.Number, static_cast<qsizetype>(cell.Length)};
}

QStringView TRowStore::Text(int row, int column) const
{
    const TCell* const cell = Cell(row, column);
    return cell != nullptr && cell->Kind == TKind::Text ? TextOf(*cell) : QStringView();
}

QVariant TRowStore::Value(int row, int column) const
{
    const TCell* const place = Cell(row, column);
    if (place == nullptr)
        return {};
    const TCell& cell = *place;
    switch (cell.Kind) {
    case TKind::Boolean:
        return cell.Number != 0;
    case TKind::Integer:
        return static_cast<int>(cell.Number);
    case TKind::Largeint:
        return cell.Number;
    case TKind::Float:
        return cell.Real;
    case TKind::Text:
        return TextOf(cell).toString();
    case TKind::Blob:
        return QByteArray(bytes_.data() + cell.Number, cell.Length);
    case TKind::Null:
        break;
    }
    return {};
}
