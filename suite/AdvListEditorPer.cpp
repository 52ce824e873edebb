#include "AdvListEditorPer.h"

#include "AdvListEditorPrivate.h"
#include "ControlDispatch.h"
#include "Look.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int WidestBubble = 60 * Look::Unit;
constexpr int BubblePadding = 2 * Look::Unit;
constexpr int FrameWidth = Look::RingWidth;
constexpr quint32 White = 0xffffff;

} // namespace

TAdvListEditorPer::TPrivate::TPrivate(TAdvListEditorPer* owner) : editor(owner), line(new TAdvListLine(owner))
{
    const auto observe = [this](TAdvListValues::TChange change, int index, int count) {
        ItemsChanged(change, index, count);
    };
    values.SetObserver(observe);
    QObject::connect(line, &QLineEdit::textChanged, owner, [this] {
        Invalidate();
        Q_EMIT editor->editTextChanged();
    });
}

void TAdvListEditorPer::TPrivate::ItemsChanged(TAdvListValues::TChange change, int index, int count)
{
    const bool caretLast = change == TAdvListValues::TChange::Added && caret == values.Count() - count;
    switch (change) {
    case TAdvListValues::TChange::Added:
        widths.insert(index, count, -1);
        if (index < caret || caretLast)
            caret += count;
        break;
    case TAdvListValues::TChange::Removed:
        widths.remove(index, count);
        if (index < caret)
            caret = qMax(index, caret - count);
        break;
    case TAdvListValues::TChange::Changed:
        std::fill_n(widths.begin() + index, count, -1);
        break;
    }
    anchor = caret;
    Invalidate();
    Q_EMIT editor->valuesChanged();
}

void TAdvListEditorPer::TPrivate::Invalidate()
{
    if (arranged && editor->isVisible())
        QCoreApplication::postEvent(editor, new QEvent(QEvent::LayoutRequest));
    arranged = false;
    editor->update();
}

QRect TAdvListEditorPer::TPrivate::Inner() const
{
    return editor->rect().adjusted(2 * FrameWidth, FrameWidth, -2 * FrameWidth, -FrameWidth);
}

int TAdvListEditorPer::TPrivate::BubbleWidth(int index)
{
    int& width = widths[index];
    if (width < 0)
        width = qMin(WidestBubble,
                     editor->fontMetrics().horizontalAdvance(values[index].DisplayText) + 2 * BubblePadding);
    return width;
}

void TAdvListEditorPer::TPrivate::Arrange()
{
    if (arranged)
        return;
    arranged = true;
    for (int index = 0; index < values.Count(); ++index)
        BubbleWidth(index);
    TAdvListLayout::TRow row;
    row.Widths = widths;
    row.Place = caret;
    row.BoxWidth = line->NeededWidth();
    row.BoxFills = true;
    row.LineWidth = Inner().width();
    row.LineHeight = Look::ControlHeight - 2 * FrameWidth;
    row.Spacing = Look::Unit;
    row.Wraps = maxLines > 1;
    layout.Arrange(row);
    ScrollToBox();
    line->setGeometry(OnScreen(layout.Box()));
}

void TAdvListEditorPer::TPrivate::ScrollToBox()
{
    const QRect box = layout.Box();
    const QSize room = Inner().size();
    const int right = qMin(box.right() + 1, box.left() + room.width());
    scroll.setX(qBound(0, qMax(scroll.x(), right - room.width()), box.left()));
    scroll.setY(qBound(0, qMax(scroll.y(), box.bottom() + 1 - room.height()), box.top()));
}

QRect TAdvListEditorPer::TPrivate::OnScreen(const QRect& reading) const
{
    const QRect inner = Inner();
    const QRect shown = reading.translated(inner.topLeft() - scroll);
    return QStyle::visualRect(editor->layoutDirection(), inner, shown);
}

QPoint TAdvListEditorPer::TPrivate::Reading(const QPoint& point) const
{
    const QRect inner = Inner();
    return QStyle::visualPos(editor->layoutDirection(), inner, point) - inner.topLeft() + scroll;
}

void TAdvListEditorPer::TPrivate::ShowColors()
{
    editor->update();
}

TAdvListEditorPer::TAdvListEditorPer(QWidget* parent) : QWidget(parent), d(std::make_unique<TPrivate>(this))
{
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(d->line);
    setAttribute(Qt::WA_InputMethodEnabled);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

TAdvListEditorPer::~TAdvListEditorPer() = default;

TAdvListValues& TAdvListEditorPer::Values()
{
    return d->values;
}

const TAdvListValues& TAdvListEditorPer::Values() const
{
    return d->values;
}

TAdvListValues& TAdvListEditorPer::Lookup()
{
    return d->lookup;
}

const TAdvListValues& TAdvListEditorPer::Lookup() const
{
    return d->lookup;
}

QString TAdvListEditorPer::EditText() const
{
    return d->line->text();
}

void TAdvListEditorPer::SetEditText(const QString& text)
{
    d->line->setText(text);
}

void TAdvListEditorPer::clear()
{
    d->line->clear();
}

void TAdvListEditorPer::Getvalue()
{
    d->stateFlag = d->CanChange();
}

bool TAdvListEditorPer::StateFlag() const
{
    return d->stateFlag;
}

void TAdvListEditorPer::CorrectEditPos()
{
    d->MoveCaret(d->values.Count(), false);
}

void TAdvListEditorPer::Update_selectedItems()
{
    if (!TableName.isEmpty())
        return;
    QString keys;
    for (int index = 0; index < d->values.Count(); ++index) {
        if (const QString& value = d->values[index].Value; !value.isEmpty())
            keys += value + u',';
    }
    KeyList = keys.isEmpty() ? keys : u',' + keys;
}

int TAdvListEditorPer::SnapshotCount() const
{
    return d->stroke.Count;
}

QString TAdvListEditorPer::RemovedItem() const
{
    return d->stroke.RemovedItem;
}

int TAdvListEditorPer::RemovedIndex() const
{
    return d->stroke.RemovedIndex;
}

int TAdvListEditorPer::CurrentIndex() const
{
    const int place = d->stroke.RemovedIndex >= 0 ? d->stroke.RemovedIndex : qMax(0, d->caret - 1);
    return qMin(place, d->values.Count() - 1);
}

void TAdvListEditorPer::SetRightToLeft(bool on)
{
    setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
}

void TAdvListEditorPer::SetImages(const QVector<QImage>& images)
{
    d->images = images;
    update();
}

const QVector<QImage>& TAdvListEditorPer::Images() const
{
    return d->images;
}

void TAdvListEditorPer::SetColor(quint32 color)
{
    d->color = color;
    d->ShowColors();
}

quint32 TAdvListEditorPer::Color() const
{
    return d->color;
}

void TAdvListEditorPer::SetSeparator(QChar separator)
{
    d->separator = separator;
}

QChar TAdvListEditorPer::Separator() const
{
    return d->separator;
}

void TAdvListEditorPer::SetPopupMenu(QMenu* menu)
{
    d->popupMenu = menu;
}

QMenu* TAdvListEditorPer::PopupMenu() const
{
    return d->popupMenu;
}

QString TAdvListEditorPer::PlaceholderText() const
{
    return d->placeholder;
}

void TAdvListEditorPer::SetPlaceholderText(const QString& text)
{
    d->placeholder = text;
    update();
}

bool TAdvListEditorPer::ReadOnly() const
{
    return d->readOnly;
}

void TAdvListEditorPer::SetReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
    d->line->setReadOnly(readOnly);
}

bool TAdvListEditorPer::FreeItems() const
{
    return d->freeItems;
}

void TAdvListEditorPer::SetFreeItems(bool on)
{
    d->freeItems = on;
}

bool TAdvListEditorPer::AllowReorder() const
{
    return d->allowReorder;
}

void TAdvListEditorPer::SetAllowReorder(bool on)
{
    d->allowReorder = on;
}

bool TAdvListEditorPer::CloseMarks() const
{
    return d->closeMarks;
}

void TAdvListEditorPer::SetCloseMarks(bool on)
{
    d->closeMarks = on;
}

int TAdvListEditorPer::MaxLength() const
{
    return d->line->maxLength();
}

void TAdvListEditorPer::SetMaxLength(int length)
{
    d->line->setMaxLength(length);
}

int TAdvListEditorPer::MaxLines() const
{
    return d->maxLines;
}

void TAdvListEditorPer::SetMaxLines(int lines)
{
    d->maxLines = qMax(1, lines);
    d->Invalidate();
}

QSize TAdvListEditorPer::sizeHint() const
{
    return {60 * Look::Unit, Look::ControlHeight};
}

QSize TAdvListEditorPer::minimumSizeHint() const
{
    return {15 * Look::Unit, Look::ControlHeight};
}

bool TAdvListEditorPer::hasHeightForWidth() const
{
    return d->maxLines > 1;
}

int TAdvListEditorPer::heightForWidth(int) const
{
    return Look::ControlHeight;
}

bool TAdvListEditorPer::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        d->BeginStroke(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyRelease)
        d->EndStroke(*static_cast<QKeyEvent*>(event));
    if (ControlDispatch::Event(this, *this, event))
        return true;
    if (event->type() == QEvent::LayoutRequest)
        d->Arrange();
    return QWidget::event(event);
}

void TAdvListEditorPer::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        if (!d->HandleKey(own) && !d->line->TakeKey(own))
            QWidget::keyPressEvent(own);
    });
}

void TAdvListEditorPer::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event, [](QKeyEvent*) {});
}

void TAdvListEditorPer::inputMethodEvent(QInputMethodEvent* event)
{
    d->line->TakeInputMethod(event);
}

QVariant TAdvListEditorPer::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return d->line->inputMethodQuery(query);
}

void TAdvListEditorPer::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
}

void TAdvListEditorPer::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
}

void TAdvListEditorPer::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
}

void TAdvListEditorPer::wheelEvent(QWheelEvent* event)
{
    QWidget::wheelEvent(event);
}

void TAdvListEditorPer::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
}

void TAdvListEditorPer::contextMenuEvent(QContextMenuEvent* event)
{
    if (d->popupMenu)
        d->popupMenu->popup(event->globalPos());
}

void TAdvListEditorPer::resizeEvent(QResizeEvent*)
{
    d->Invalidate();
    d->Arrange();
}

void TAdvListEditorPer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    d->Invalidate();
}

void TAdvListEditorPer::paintEvent(QPaintEvent*)
{
    d->Arrange();
    QPainter painter(this);
    painter.fillRect(rect(),
                     d->color == White ? palette().color(QPalette::Base) : Look::FromColorValue(d->color));
    const auto [first, last] = d->layout.Within({d->scroll, d->Inner().size()});
    for (int index = first; index < last; ++index) {
        const QRect bubble = d->OnScreen(d->layout.Bubble(index)).adjusted(0, 2, 0, -2);
        painter.drawRoundedRect(bubble, Look::Unit, Look::Unit);
        painter.drawText(bubble, Qt::AlignCenter, d->values[index].DisplayText);
    }
}
