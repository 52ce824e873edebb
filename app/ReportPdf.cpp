#include "ReportPdf.h"

#include "Decimal.h"
#include "DisplayText.h"
#include "GridCellText.h"
#include "Look.h"
#include "PersianText.h"

#include <QIODevice>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

namespace {

// Millimetres and points of print.
constexpr int resolution = 300;
constexpr qreal margin = 10;
constexpr qreal rowHeight = 6;
constexpr qreal titleHeight = 8;
constexpr qreal cellPadding = 1;
constexpr qreal cellPoints = 7.5;
constexpr qreal titlePoints = 12;

/// Part of the page's width that the condition has beside a note.
constexpr qreal conditionShare = 0.7;

constexpr int paragraph = Qt::TextForceRightToLeft | Qt::TextSingleLine;
constexpr int wrapped = Qt::TextForceRightToLeft | Qt::TextWordWrap;

qreal Dots(qreal millimetres)
{
    constexpr qreal MillimetresPerInch = 25.4;
    return millimetres * resolution / MillimetresPerInch;
}

QFont FontOf(qreal points, bool bold = false)
{
    QFont font = Look::BodyFont();
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

int Aligned(Qt::Alignment alignment)
{
    return static_cast<int>(alignment | Qt::AlignVCenter | Qt::AlignAbsolute);
}

/// Paints one report; a page at a time, so that its length does not matter.
class TPrinting
{
public:
    TPrinting(QPdfWriter& writer, const TReportTable& table) : writer_(writer), table_(table)
    {
        page_ = QRectF(0, 0, writer.width(), writer.height());
        qreal total = 0;
        for (const TGridColumn& column : table.Question.Columns)
            total += column.Width;
        for (const TGridColumn& column : table.Question.Columns)
            widths_.append(total > 0 ? column.Width * page_.width() / total : 0);
        MeasureHeader();
    }

    void Print()
    {
        if (!painter_.begin(&writer_))
            throw std::runtime_error("the file cannot be written");
        const int perPage = RowsPerPage();
        const int rows = static_cast<int>(table_.Rows.size());
        pages_ = qMax(1, (rows + perPage - 1) / perPage);
        for (int number = 0; number < pages_; ++number) {
            if (number > 0 && !writer_.newPage())
                throw std::runtime_error("the file cannot be written");
            PrintPage(number, number * perPage, qMin(rows, (number + 1) * perPage));
        }
        if (!painter_.end())
            throw std::runtime_error("the file cannot be written");
    }

private:
    /// The condition takes as many lines as it needs, up to half of the page.
    void MeasureHeader()
    {
        const qreal width = page_.width() * (table_.Note().isEmpty() ? 1 : conditionShare);
        const QRectF room(0, 0, width, page_.height() / 2);
        const QFontMetricsF metrics(FontOf(cellPoints), &writer_);
        const qreal height = qMin(metrics.boundingRect(room, wrapped, Words()).height(), room.height());
        words_ = QRectF(page_.width() - width, Dots(titleHeight), width, qMax(height, Dots(titleHeight)));
    }

    /// Beside the column titles every page keeps a line free, on the last one for the totals.
    int RowsPerPage() const
    {
        const qreal room = page_.height() - words_.bottom() - Dots(2 * rowHeight);
        return qMax(1, static_cast<int>(room / Dots(rowHeight)));
    }

    void PrintPage(int number, int first, int end)
    {
        PrintHeader(number);
        qreal top = words_.bottom();
        PrintTitles(top);
        for (int row = first; row < end; ++row) {
            top += Dots(rowHeight);
            PrintRow(row, top);
        }
        if (number == pages_ - 1)
            PrintTotals(top + Dots(rowHeight));
    }

    void PrintHeader(int number)
    {
        const QRectF line(0, 0, page_.width(), Dots(titleHeight));
        const QString place = QStringLiteral("صفحهٔ %1 از %2").arg(number + 1).arg(pages_);
        painter_.setPen(Qt::black);
        PrintText(line, table_.Question.Title, FontOf(titlePoints, true), Qt::AlignRight);
        PrintText(line, place, FontOf(cellPoints), Qt::AlignLeft);
        PrintText(line, table_.Question.Today, FontOf(cellPoints), Qt::AlignHCenter);
        const QRectF second = line.translated(0, line.height());
        PrintText(second, table_.Note(), FontOf(cellPoints, true), Qt::AlignLeft);
        painter_.setFont(FontOf(cellPoints));
        painter_.drawText(words_, Aligned(Qt::AlignRight) | wrapped, Words());
    }

    QString Words() const
    {
        const QString& words = table_.Question.ConditionInWords;
        return words.isEmpty() ? QStringLiteral("همهٔ ردیف‌ها") : words;
    }

    void PrintText(const QRectF& area, const QString& text, const QFont& font, Qt::Alignment alignment)
    {
        painter_.setFont(font);
        painter_.drawText(area, Aligned(alignment) | paragraph, text);
    }

    template <typename TCell> void PrintCells(qreal top, const QFont& font, TCell cell)
    {
        qreal right = page_.width();
        painter_.setFont(font);
        const QFontMetricsF metrics(font, &writer_);
        for (qsizetype column = 0; column < widths_.size(); ++column) {
            const qreal width = widths_.at(column);
            const QRectF area(right - width, top, width, Dots(rowHeight));
            const QRectF inner = area.adjusted(Dots(cellPadding), 0, -Dots(cellPadding), 0);
            painter_.setPen(QPen(Qt::gray, 1));
            painter_.drawRect(area);
            painter_.setPen(Qt::black);
            cell(column, inner, metrics);
            right -= width;
        }
    }

    void PrintTitles(qreal top)
    {
        painter_.fillRect(QRectF(0, top, page_.width(), Dots(rowHeight)), QColor(230, 236, 240));
        PrintCells(top, FontOf(cellPoints, true),
                   [this](qsizetype column, const QRectF& area, const QFontMetricsF& metrics) {
                       const QString title = metrics.elidedText(table_.Question.Columns.at(column).Title,
                                                                Qt::ElideRight, area.width());
                       painter_.drawText(area, Aligned(Qt::AlignRight) | paragraph, title);
                   });
    }

    void PrintRow(int row, qreal top)
    {
        PrintCells(top, FontOf(cellPoints),
                   [this, row](qsizetype column, const QRectF& area, const QFontMetricsF& metrics) {
                       const auto kind = table_.Question.Columns.at(column).Kind;
                       const bool numeric = GridCellText::IsNumeric(kind);
                       QString text = table_.Rows.at(row).at(column);
                       if (kind == TGridColumn::ckMoney)
                           text = DisplayText::Grouped(text);
                       const int flags = numeric ? Qt::TextForceLeftToRight | Qt::TextSingleLine : paragraph;
                       painter_.drawText(area, Aligned(Qt::AlignRight) | flags,
                                         metrics.elidedText(text, Qt::ElideRight, area.width()));
                   });
    }

    void PrintTotals(qreal top)
    {
        const auto amount = [](const QString& number) {
            return PersianText::Isolated(DisplayText::Grouped(TDecimal(number).ToString()));
        };
        const QString text = QStringLiteral("جمع همهٔ %1 ردیف — بدهکار: %2 — بستانکار: %3")
                                 .arg(DisplayText::Grouped(QString::number(table_.Sum.Count)),
                                      amount(table_.Sum.Debit), amount(table_.Sum.Credit));
        PrintText(QRectF(0, top, page_.width(), Dots(rowHeight)), text, FontOf(cellPoints, true),
                  Qt::AlignRight);
    }

    QPdfWriter& writer_;
    const TReportTable& table_;
    QPainter painter_;
    QRectF page_;
    QRectF words_; ///< place of the condition
    QVector<qreal> widths_;
    int pages_ = 1;
};

} // namespace

void ReportPdf::Write(QIODevice& device, const TReportTable& table)
{
    QPdfWriter writer(&device);
    writer.setResolution(resolution);
    writer.setTitle(table.Question.Title);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    TPrinting(writer, table).Print();
}
