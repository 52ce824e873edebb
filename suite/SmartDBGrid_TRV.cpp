#include "SmartDBGrid_TRV.h"

#include "ControlDispatch.h"
#include "GridColumnModel.h"
#include "GridDelegate.h"
#include "GridMarks.h"
#include "Look.h"
#include "PagedDataSet.h"
#include "RelativeFonts.h"

#include <algorithm>
#include <array>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>

namespace {

constexpr int LeastWidth = 20;
constexpr int GreatestWidth = 2000;

/// While there are rows, the words that stand in for them are not seen.
void RepaintIfEmpty(const QTableView& grid)
{
    if (grid.model()->rowCount() == 0)
        grid.viewport()->update();
}

} // namespace

struct TSmartDBGrid_TRV::TPrivate
{
    TDataSet* DataSet() const
    {
        TDataSource* dataSource = source.DataSource();
        TDataSet* dataSet = dataSource != nullptr ? dataSource->DataSet() : nullptr;
        return dataSet != nullptr && dataSet->Active() ? dataSet : nullptr;
    }
    TPagedDataSet* Paged() const { return qobject_cast<TPagedDataSet*>(DataSet()); }

    TDataSetModel source;
    TGridColumnModel columns{&source};
    TGridMarks marks;
    bool multiSelect = false;
    QPointer<TPagedDataSet> followed;
    QString emptyText = QStringLiteral("ردیفی برای نمایش نیست.");
    QPoint scrollBefore; // of a reset
    bool applyingWidths = false;
    bool followingDataSet = false;
};

TSmartDBGrid_TRV::TSmartDBGrid_TRV(QWidget* parent) : QTableView(parent), d(std::make_unique<TPrivate>())
{
    setModel(&d->columns);
    setItemDelegate(new TGridDelegate(&d->columns, &d->marks, this));
    setFont(RelativeFonts::Small());
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(Look::GridRowHeight);
    verticalHeader()->setDefaultSectionSize(Look::GridRowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = horizontalHeader();
    header->setFont(RelativeFonts::SmallBold());
    header->setFixedHeight(Look::GridRowHeight);
    header->setMinimumSectionSize(LeastWidth);
    header->setHighlightSections(false);

    connect(header, &QHeaderView::sectionClicked, this, &TSmartDBGrid_TRV::SortByColumn);
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!d->applyingWidths && width > 0)
            d->columns.RememberWidth(column, width);
    });
    connect(&d->columns, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        d->scrollBefore = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    });
    connect(&d->columns, &QAbstractItemModel::modelReset, this, &TSmartDBGrid_TRV::FollowDataSet);
    connect(&d->columns, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first) {
        // The toolkit lays out later and then repaints everything; rows out of sight change nothing.
        const bool inSight = rowViewportPosition(first) < viewport()->height();
        viewport()->setAttribute(Qt::WA_UpdatesDisabled, !inSight);
        executeDelayedItemsLayout();
        viewport()->setAttribute(Qt::WA_UpdatesDisabled, false);
        ShowCurrentRow();
    });
    connect(&d->marks, &TGridMarks::changed, viewport(), qOverload<>(&QWidget::update));
    connect(&d->marks, &TGridMarks::changed, this, &TSmartDBGrid_TRV::marksChanged);
    connect(&d->marks, &TGridMarks::limited, this, &TSmartDBGrid_TRV::marksLimited);
}

TSmartDBGrid_TRV::~TSmartDBGrid_TRV()
{
    // The models go before the view does.
    setModel(nullptr);
}

void TSmartDBGrid_TRV::SetDataSource(TDataSource* source)
{
    if (TDataSource* before = DataSource())
        before->disconnect(this);
    if (source != nullptr)
        connect(source, &TDataSource::scrolled, this, &TSmartDBGrid_TRV::ShowCurrentRow);
    d->source.SetDataSource(source);
}

TDataSource* TSmartDBGrid_TRV::DataSource() const
{
    return d->source.DataSource();
}

void TSmartDBGrid_TRV::SetColumns(const QVector<TGridColumn>& columns)
{
    d->columns.SetColumns(columns);
}

QVector<TGridColumn> TSmartDBGrid_TRV::Columns() const
{
    return d->columns.Columns();
}

QString TSmartDBGrid_TRV::EmptyText() const
{
    return d->emptyText;
}

void TSmartDBGrid_TRV::SetEmptyText(const QString& text)
{
    d->emptyText = text;
    RepaintIfEmpty(*this);
}

QByteArray TSmartDBGrid_TRV::SaveLayout() const
{
    QJsonObject widths;
    for (const TGridColumn& column : d->columns.ShownColumns())
        widths.insert(column.FieldName, column.Width);
    return QJsonDocument(widths).toJson(QJsonDocument::Compact);
}

void TSmartDBGrid_TRV::RestoreLayout(const QByteArray& layout)
{
    const QJsonObject widths = QJsonDocument::fromJson(layout).object();
    for (auto entry = widths.constBegin(); entry != widths.constEnd(); ++entry) {
        const int column = d->columns.ColumnOfField(entry.key());
        const int width = entry.value().toInt();
        if (column >= 0 && width >= LeastWidth && width <= GreatestWidth)
            d->columns.RememberWidth(column, width);
    }
    ApplyColumns();
}

void TSmartDBGrid_TRV::keyboardSearch(const QString& /*search*/)
{
}

void TSmartDBGrid_TRV::FollowDataSet()
{
    TPagedDataSet* paged = d->Paged();
    if (d->followed != paged) {
        if (d->followed)
            d->followed->disconnect(this);
        d->followed = paged;
        if (paged != nullptr)
            connect(paged, &TPagedDataSet::busyChanged, this, [this] { RepaintIfEmpty(*this); });
    }
    d->marks.SetDataSet(paged);
    horizontalHeader()->setSectionsClickable(paged != nullptr);
    ApplyColumns();
    ShowSortMark();
    horizontalScrollBar()->setValue(d->scrollBefore.x());
    verticalScrollBar()->setValue(d->scrollBefore.y());
    ShowCurrentRow();
    viewport()->update();
}

void TSmartDBGrid_TRV::ApplyColumns()
{
    const QScopedValueRollback applying(d->applyingWidths, true);
    const QVector<TGridColumn>& columns = d->columns.ShownColumns();
    for (int column = 0; column < columns.size(); ++column) {
        setColumnWidth(column, columns[column].Width);
        setColumnHidden(column, !columns[column].Visible);
    }
    updateGeometries();
}

void TSmartDBGrid_TRV::ShowSortMark()
{
    const TPagedDataSet* paged = d->Paged();
    const int column = paged != nullptr ? d->columns.ColumnOfField(paged->OrderField()) : -1;
    horizontalHeader()->setSortIndicatorShown(column >= 0);
    if (column >= 0)
        horizontalHeader()->setSortIndicator(column, paged->Order());
}

void TSmartDBGrid_TRV::ShowCurrentRow()
{
    const TDataSet* dataSet = d->DataSet();
    const int row = dataSet != nullptr ? dataSet->RecNo() - 1 : -1;
    if (row < 0 || row >= d->columns.rowCount() || d->columns.columnCount() == 0)
        return;
    if (currentIndex().row() == row && selectionModel()->isRowSelected(row))
        return;
    const QScopedValueRollback following(d->followingDataSet, true);
    const int firstShown = horizontalHeader()->logicalIndexAt(isRightToLeft() ? viewport()->width() - 1 : 0);
    setCurrentIndex(
        d->columns.index(row, qMax(currentIndex().isValid() ? currentIndex().column() : firstShown, 0)));
}

void TSmartDBGrid_TRV::SortByColumn(int column)
{
    TPagedDataSet* paged = d->Paged();
    if (paged == nullptr)
        return;
    const bool again = d->columns.ColumnOfField(paged->OrderField()) == column;
    const bool turns = again && paged->Order() == Qt::AscendingOrder;
    d->columns.sort(column, turns ? Qt::DescendingOrder : Qt::AscendingOrder);
    ShowSortMark();
}

bool TSmartDBGrid_TRV::HandleOwnKey(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Copy)) {
        if (currentIndex().isValid())
            QGuiApplication::clipboard()->setText(d->columns.CopiedRow(currentIndex().row()));
        return true;
    }
    if (d->multiSelect && HandleMarkKey(event))
        return true;
    TDataSet* dataSet = d->DataSet();
    const Qt::KeyboardModifiers others = event.modifiers() & ~(Qt::ControlModifier | Qt::KeypadModifier);
    if (dataSet == nullptr || others != Qt::NoModifier)
        return false;
    if (event.key() == Qt::Key_Home)
        dataSet->First();
    else if (event.key() == Qt::Key_End)
        dataSet->Last();
    else
        return false;
    return true;
}

bool TSmartDBGrid_TRV::HandleMarkKey(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::SelectAll)) {
        d->marks.MarkAll();
        return true;
    }
    if (event.key() == Qt::Key_Space && (event.modifiers() & ~Qt::ControlModifier) == Qt::NoModifier) {
        d->marks.Toggle(currentIndex().row());
        return true;
    }
    return ExtendsMarks(event);
}

bool TSmartDBGrid_TRV::ExtendsMarks(const QKeyEvent& event)
{
    constexpr std::array movements{Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                   Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    if (std::find(movements.begin(), movements.end(), event.key()) == movements.end())
        return false;
    if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
        d->marks.SetAnchor(-1);
        return false;
    }
    const int before = currentIndex().row();
    if (!d->marks.HasAnchor())
        d->marks.SetAnchor(before);
    QKeyEvent plain(QEvent::KeyPress, event.key(), event.modifiers() & ~Qt::ShiftModifier);
    if (event.key() == Qt::Key_Home)
        setCurrentIndex(d->columns.index(0, currentIndex().column()));
    else if (event.key() == Qt::Key_End)
        setCurrentIndex(d->columns.index(d->columns.rowCount() - 1, currentIndex().column()));
    else
        QTableView::keyPressEvent(&plain);
    d->marks.ExtendTo(currentIndex().row());
    return true;
}

void TSmartDBGrid_TRV::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool marks = d->multiSelect && index.isValid() && event->button() == Qt::LeftButton;
    if (!marks) {
        QTableView::mousePressEvent(event);
        return;
    }
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        if (!d->marks.HasAnchor())
            d->marks.SetAnchor(currentIndex().row());
        setCurrentIndex(index);
        d->marks.ExtendTo(index.row());
    } else if (event->modifiers().testFlag(Qt::ControlModifier)) {
        setCurrentIndex(index);
        d->marks.Toggle(index.row());
    } else {
        QTableView::mousePressEvent(event);
        d->marks.Clear();
        d->marks.SetAnchor(index.row());
    }
}

bool TSmartDBGrid_TRV::MultiSelect() const
{
    return d->multiSelect;
}

void TSmartDBGrid_TRV::SetMultiSelect(bool on)
{
    d->multiSelect = on;
    if (!on)
        d->marks.Clear();
}

void TSmartDBGrid_TRV::SetReadKeys(TReadKeysEvent reader)
{
    d->marks.SetReader(std::move(reader));
}

int TSmartDBGrid_TRV::MarkLimit() const
{
    return d->marks.Limit();
}

void TSmartDBGrid_TRV::SetMarkLimit(int limit)
{
    d->marks.SetLimit(limit);
}

QStringList TSmartDBGrid_TRV::MarkedKeys() const
{
    return d->marks.Keys();
}

void TSmartDBGrid_TRV::SetMarkedKeys(const QStringList& keys)
{
    d->marks.SetKeys(keys);
}

bool TSmartDBGrid_TRV::IsMarked(int row) const
{
    return d->marks.IsMarked(row);
}

bool TSmartDBGrid_TRV::event(QEvent* event)
{
    return ControlDispatch::Event(this, *this, event) || QTableView::event(event);
}

void TSmartDBGrid_TRV::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        if (!HandleOwnKey(*own))
            QTableView::keyPressEvent(own);
    });
}

void TSmartDBGrid_TRV::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QTableView::keyReleaseEvent(own); });
}

void TSmartDBGrid_TRV::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    QWidget::update();
    ControlDispatch::FocusIn(this, *this, event);
}

void TSmartDBGrid_TRV::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    QWidget::update();
    ControlDispatch::FocusOut(this, *this, event);
}

void TSmartDBGrid_TRV::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton || !indexAt(event->position().toPoint()).isValid())
        return;
    // A copy, because the handler may replace itself or destroy the grid.
    if (const TNotifyEvent running = OnDblClick)
        running(this);
}

void TSmartDBGrid_TRV::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (d->columns.rowCount() > 0)
        return;
    const TPagedDataSet* paged = d->Paged();
    const bool reading = paged != nullptr && paged->Busy();
    QPainter painter(viewport());
    painter.setPen(Look::Color(Look::TRole::SecondaryText));
    const QRect area =
        viewport()->rect().adjusted(Look::GroupGap, Look::GroupGap, -Look::GroupGap, -Look::GroupGap);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextForceRightToLeft,
                     reading ? QStringLiteral("در حال خواندن…") : d->emptyText);
}

void TSmartDBGrid_TRV::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    TDataSet* dataSet = d->DataSet();
    if (current.isValid() && dataSet != nullptr && !d->followingDataSet)
        dataSet->SetRecNo(current.row() + 1);
}
