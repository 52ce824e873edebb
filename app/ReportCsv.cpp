#include "ReportCsv.h"

#include "GridCellText.h"

#include <QIODevice>
#include <QRegularExpression>
#include <stdexcept>

namespace {

constexpr int linesAtOnce = 500;

bool IsNumber(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^-?[0-9]+(\\.[0-9]+)?$"));
    return number.match(text).hasMatch();
}

/// Spreadsheets skip blanks and marks in front of the sign that begins a formula.
bool LooksLikeFormula(const QString& text)
{
    static const QRegularExpression formula(
        QStringLiteral(
            "^[\\s\\p{Cc}\\p{Cf}\\p{Z}]*[=+\\-@|\\x{FF1D}\\x{FF0B}\\x{FF0D}\\x{FF20}]|^[\\t\\r\\n]"),
        QRegularExpression::UseUnicodePropertiesOption);
    return formula.match(text).hasMatch();
}

void Put(QIODevice& device, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    if (device.write(bytes) != bytes.size())
        throw std::runtime_error(device.errorString().toStdString());
}

QString Line(const QStringList& cells)
{
    return cells.join(u',') + QStringLiteral("\r\n");
}

} // namespace

QString ReportCsv::Cell(const QString& text, TGridColumn::TKind kind)
{
    const bool isNumber = GridCellText::IsNumeric(kind) && IsNumber(text);
    QString cell = !isNumber && LooksLikeFormula(text) ? u'\'' + text : text;
    return u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

void ReportCsv::Write(QIODevice& device, const TReportTable& table)
{
    const QVector<TGridColumn>& columns = table.Question.Columns;
    QStringList cells;
    for (const TGridColumn& column : columns)
        cells.append(Cell(column.Title, TGridColumn::ckText));
    QString text = QChar(QChar::ByteOrderMark) + Line(cells);
    int lines = 0;
    for (const QStringList& row : table.Rows) {
        cells.clear();
        for (qsizetype column = 0; column < row.size(); ++column)
            cells.append(Cell(row.at(column), columns.at(column).Kind));
        text += Line(cells);
        if (++lines % linesAtOnce == 0) {
            Put(device, text);
            text.clear();
        }
    }
    if (!table.Note().isEmpty())
        text += Line({Cell(table.Note(), TGridColumn::ckText)});
    Put(device, text);
}
