#include "ReportTable.h"

#include "ReportText.h"

namespace {

QString StatementOf(const TReportQuestion& question)
{
    QStringList fields;
    for (const TGridColumn& column : question.Columns)
        fields.append(column.FieldName);
    const QString direction = question.Order == Qt::DescendingOrder ? QStringLiteral(" DESC") : QString();
    const QString& key = question.Source.KeyField;
    const bool byKey = question.OrderField.isEmpty() || question.OrderField == key;
    QString text = QStringLiteral("SELECT TOP %1 ").arg(question.MaxRows) +
                   fields.join(QStringLiteral(", ")) + QStringLiteral(" FROM ") + question.Source.From;
    if (!question.Condition.isEmpty())
        text += QStringLiteral(" WHERE ") + question.Condition;
    text += QStringLiteral(" ORDER BY ");
    if (!byKey)
        text += question.OrderField + direction + QStringLiteral(", ");
    return text + key + direction;
}

QString CellText(const QVariant& value, const TGridColumn& column, bool gregorian)
{
    const QString text = ReportText::Cell(value, column.Kind, gregorian);
    return text.isEmpty() ? text : text.rightJustified(column.Digits, u'0');
}

} // namespace

TReportTable TReportTable::Read(TADOConnection& connection, const TReportQuestion& question)
{
    TReportTable table;
    table.Question = question;
    {
        const std::unique_ptr<IEngineRows> rows = connection.Run(StatementOf(question));
        while (rows->Next()) {
            QStringList cells;
            for (int column = 0; column < question.Columns.size(); ++column)
                cells.append(CellText(rows->Value(column), question.Columns.at(column), question.Gregorian));
            table.Rows.append(cells);
        }
    }
    table.Sum = TReportSum::Read(connection, question.Source.From, question.Condition);
    return table;
}

QString TReportTable::Note() const
{
    return ReportText::Shortened(static_cast<int>(Rows.size()), Sum.Count);
}
