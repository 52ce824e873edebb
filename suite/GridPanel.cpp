#include "GridPanel.h"

#include <numeric>
#include <QEvent>
#include <QStringList>
#include <QStyle>
#include <QVariant>
#include <stdexcept>

namespace {

constexpr char ColumnProperty[] = "GridColumn";
constexpr char RowProperty[] = "GridRow";
constexpr QChar Separator = u';';

QVector<int> SharesOf(const QString& percents)
{
    QVector<int> shares;
    for (const QString& part : percents.split(Separator)) {
        const int share = part.trimmed().toInt();
        if (share <= 0)
            throw std::invalid_argument("TGridPanel: not a list of percents: " + percents.toStdString());
        shares.append(share);
    }
    return shares;
}

QString PercentText(const QVector<int>& shares)
{
    QStringList parts;
    for (const int share : shares)
        parts.append(QString::number(share));
    return parts.join(Separator);
}

int Total(const QVector<int>& shares)
{
    return std::accumulate(shares.begin(), shares.end(), 0);
}

/// Where part `index` begins in a length that is shared without the gaps.
int Begin(const QVector<int>& shares, int index, int length)
{
    const int before = std::accumulate(shares.begin(), shares.begin() + index, 0);
    return qRound(static_cast<double>(length) * before / Total(shares));
}

/// The length without gaps in which part `index` has at least `wanted`.
int LengthFor(const QVector<int>& shares, int index, int wanted)
{
    return (wanted * Total(shares) + shares.at(index) - 1) / shares.at(index);
}

struct TCell
{
    QWidget* Control;
    int Column;
    int Row;
};

QVector<TCell> CellsOf(const QWidget& panel, qsizetype columns, qsizetype rows)
{
    QVector<TCell> cells;
    const auto children = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        const QVariant column = child->property(ColumnProperty);
        const QVariant row = child->property(RowProperty);
        const bool placed = column.isValid() && row.isValid() && column.toInt() >= 0 && row.toInt() >= 0;
        if (placed && column.toInt() < columns && row.toInt() < rows)
            cells.append({child, column.toInt(), row.toInt()});
    }
    return cells;
}

} // namespace

TGridPanel::TGridPanel(QWidget* parent) : QWidget(parent)
{
}

TGridPanel::~TGridPanel() = default;

QString TGridPanel::Columns() const
{
    return PercentText(columns_);
}

void TGridPanel::SetColumns(const QString& percents)
{
    columns_ = SharesOf(percents);
    Arrange();
}

QString TGridPanel::Rows() const
{
    return PercentText(rows_);
}

void TGridPanel::SetRows(const QString& percents)
{
    rows_ = SharesOf(percents);
    Arrange();
}

void TGridPanel::SetGap(int pixels)
{
    gap_ = qMax(0, pixels);
    Arrange();
}

void TGridPanel::Place(QWidget* control, int column, int row)
{
    if (control->parentWidget() != this)
        control->setParent(this);
    control->setProperty(ColumnProperty, column);
    control->setProperty(RowProperty, row);
    Arrange();
}

QWidget* TGridPanel::ControlAt(int column, int row) const
{
    for (const TCell& cell : CellsOf(*this, columns_.size(), rows_.size())) {
        if (cell.Column == column && cell.Row == row)
            return cell.Control;
    }
    return nullptr;
}

QRect TGridPanel::CellRect(int column, int row) const
{
    const QRect area = contentsRect();
    const int width = area.width() - gap_ * static_cast<int>(columns_.size() - 1);
    const int height = area.height() - gap_ * static_cast<int>(rows_.size() - 1);
    const int left = Begin(columns_, column, width);
    const int top = Begin(rows_, row, height);
    const QRect cell(area.left() + left + gap_ * column, area.top() + top + gap_ * row,
                     Begin(columns_, column + 1, width) - left, Begin(rows_, row + 1, height) - top);
    return QStyle::visualRect(layoutDirection(), area, cell);
}

QSize TGridPanel::sizeHint() const
{
    return RoomFor([](const QWidget& control) { return control.sizeHint(); });
}

QSize TGridPanel::minimumSizeHint() const
{
    return RoomFor([](const QWidget& control) { return control.minimumSizeHint(); });
}

QSize TGridPanel::RoomFor(TSizeOf sizeOf) const
{
    QSize room(0, 0);
    for (const TCell& cell : CellsOf(*this, columns_.size(), rows_.size())) {
        if (cell.Control->isHidden())
            continue;
        const QSize wanted = sizeOf(*cell.Control).expandedTo(cell.Control->minimumSize());
        room = room.expandedTo(
            {LengthFor(columns_, cell.Column, wanted.width()), LengthFor(rows_, cell.Row, wanted.height())});
    }
    const QMargins margins = contentsMargins();
    return room + QSize(gap_ * static_cast<int>(columns_.size() - 1) + margins.left() + margins.right(),
                        gap_ * static_cast<int>(rows_.size() - 1) + margins.top() + margins.bottom());
}

bool TGridPanel::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish)
        Arrange();
    return QWidget::event(event);
}

void TGridPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange();
}

void TGridPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Arrange();
}

void TGridPanel::Arrange()
{
    for (const TCell& cell : CellsOf(*this, columns_.size(), rows_.size()))
        cell.Control->setGeometry(CellRect(cell.Column, cell.Row));
    updateGeometry();
}
