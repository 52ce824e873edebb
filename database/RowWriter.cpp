#include "RowWriter.h"

#include "ADOConnection.h"

namespace {

/// Below the least number of parameters that an engine takes, and long enough that the rows count and not the
/// call.
constexpr qsizetype ParametersPerStatement = 400;

} // namespace

TRowWriter::TRowWriter(TADOConnection& connection, const QString& table, const QStringList& columns)
    : connection_(connection), table_(table), columns_(columns),
      rowsPerStatement_(qMax<qsizetype>(1, ParametersPerStatement / columns.size())),
      fullStatement_(Statement(rowsPerStatement_))
{
    values_.reserve(rowsPerStatement_ * columns.size());
}

void TRowWriter::Add(const QVariantList& values)
{
    Q_ASSERT(values.size() == columns_.size());
    values_ += values;
    if (values_.size() == rowsPerStatement_ * columns_.size()) {
        connection_.Execute(fullStatement_, values_);
        values_.resize(0);
    }
}

void TRowWriter::Flush()
{
    if (values_.isEmpty())
        return;
    connection_.Execute(Statement(values_.size() / columns_.size()), values_);
    values_.resize(0);
}

QString TRowWriter::Statement(qsizetype rows) const
{
    const QString row =
        u'(' + QStringList(columns_.size(), QStringLiteral("?")).join(QStringLiteral(", ")) + u')';
    return QStringLiteral("INSERT INTO %1 ([%2]) VALUES %3")
        .arg(table_, columns_.join(QStringLiteral("], [")),
             QStringList(rows, row).join(QStringLiteral(", ")));
}
