#include "AdvListEditorPer.h"

#include "AdvListAccessible.h"
#include "AdvListEditorPrivate.h"
#include "ControlDispatch.h"
#include "Look.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <QWheelEvent>

TAdvListEditorPer::TPrivate::TPrivate(TAdvListEditorPer* owner) : editor(owner), line(new TAdvListLine(owner))
{
    values.SetObserver(
        [this](TAdvListValues::TChange change, int index, int count) { ItemsChanged(change, index, count); });
    lookup.SetObserver([this](TAdvListValues::TChange, int, int) {
        matches.Forget();
        HideCompletion();
    });
    QObject::connect(line, &QLineEdit::textEdited, owner, [this] { TextTyped(); });
    QObject::connect(line, &QLineEdit::textChanged, owner, [this] {
        Invalidate();
        Q_EMIT editor->editTextChanged();
    });
}

void TAdvListEditorPer::TPrivate::ItemsChanged(TAdvListValues::TChange change, int index, int count)
{
    using TChange = TAdvListValues::TChange;
    const bool caretLast = change == TChange::Added && caret == values.Count() - count;
    if (change == TChange::Added)
        widths.insert(index, count, -1);
    else if (change == TChange::Removed)
        widths.remove(index, count);
    else
        std::fill_n(widths.begin() + index, count, -1);
    if (change == TChange::Added && (index < caret || caretLast))
        caret += count;
    else if (change == TChange::Removed && index < caret)
        caret = qMax(index, caret - count);
    ++revision;
    anchor = caret;
    press = {};
    hotMark = -1;
    ShowPlaceholder();
    Invalidate();
    TellItems(change, index);
    if (change == TChange::Removed)
        TellFocus();
    Q_EMIT editor->valuesChanged();
}

TAdvListEditorPer::TAdvListEditorPer(QWidget* parent) : QWidget(parent), d(std::make_unique<TPrivate>(this))
{
    TAdvListAccessible::Install();
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(d->line);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMouseTracking(true);
    setCursor(Qt::IBeamCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    d->ShowColors();
}

TAdvListEditorPer::~TAdvListEditorPer()
{
    // While what they ask for is still there.
    delete d->completion;
    delete d->line;
}

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
    d->HideCompletion();
    d->line->setText(text);
}

void TAdvListEditorPer::clear()
{
    d->HideCompletion();
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
    d->pictures.clear();
    d->widths.fill(-1);
    d->Invalidate();
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
    d->ShowPlaceholder();
}

bool TAdvListEditorPer::ReadOnly() const
{
    return d->readOnly;
}

void TAdvListEditorPer::SetReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
    d->line->setReadOnly(readOnly);
    d->widths.fill(-1);
    d->HideCompletion();
    d->Invalidate();
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
    d->widths.fill(-1);
    d->Invalidate();
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
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(d->maxLines > 1);
    setSizePolicy(policy);
    updateGeometry();
    d->Invalidate();
}

QSize TAdvListEditorPer::sizeHint() const
{
    return {60 * Look::Unit, d->HeightOf(d->lines)};
}

QSize TAdvListEditorPer::minimumSizeHint() const
{
    return {15 * Look::Unit, Look::ControlHeight};
}

bool TAdvListEditorPer::hasHeightForWidth() const
{
    return d->maxLines > 1;
}

int TAdvListEditorPer::heightForWidth(int width) const
{
    if (d->maxLines == 1)
        return d->HeightOf(1);
    d->Measure();
    TAdvListLayout layout;
    layout.Arrange(d->Row(width - (this->width() - d->Inner().width())));
    return d->HeightOf(layout.LineCount());
}

bool TAdvListEditorPer::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        d->BeginStroke(*static_cast<QKeyEvent*>(event));
    else if (event->type() == QEvent::KeyRelease)
        d->EndStroke(*static_cast<QKeyEvent*>(event));
    if (ControlDispatch::Event(this, *this, event))
        return true;
    switch (event->type()) {
    case QEvent::LayoutRequest:
        d->Arrange();
        return true;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool leaves = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        return (leaves && d->LeaveByTab(*key)) || QWidget::event(event);
    }
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = d->ToolTipAt(help->pos());
        QToolTip::showText(help->globalPos(), text.isEmpty() ? toolTip() : text.toHtmlEscaped(), this);
        return true;
    }
    default:
        return QWidget::event(event);
    }
}

void TAdvListEditorPer::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        const QPointer<TAdvListEditorPer> alive = this;
        if (!d->HandleKey(own) && alive)
            own->ignore();
    });
}

void TAdvListEditorPer::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event, [](QKeyEvent*) {});
}

void TAdvListEditorPer::inputMethodEvent(QInputMethodEvent* event)
{
    event->accept();
    d->Compose(event);
}

QVariant TAdvListEditorPer::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return d->line->inputMethodQuery(query);
}

void TAdvListEditorPer::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    d->Press(*event);
}

void TAdvListEditorPer::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (event->buttons() & Qt::LeftButton)
        d->Drag(event->position().toPoint());
    else
        d->Hover(event->position().toPoint());
}

void TAdvListEditorPer::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    d->Release(*event);
}

void TAdvListEditorPer::wheelEvent(QWheelEvent* event)
{
    const bool wraps = d->maxLines > 1;
    const QPoint before = d->scroll;
    const QPoint turned = event->angleDelta();
    const int distance = -(turned.y() != 0 ? turned.y() : turned.x()) / 3;
    d->Arrange();
    d->ScrollBy(wraps ? QPoint(0, distance) : QPoint(distance, 0));
    // What cannot be scrolled any further belongs to the form.
    event->setAccepted(d->scroll != before);
}

void TAdvListEditorPer::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    d->hotMark = -1;
    update();
}

void TAdvListEditorPer::contextMenuEvent(QContextMenuEvent* event)
{
    d->ShowMenu(event->globalPos());
}

void TAdvListEditorPer::resizeEvent(QResizeEvent*)
{
    d->Invalidate();
    if (isVisible())
        d->Arrange();
}

void TAdvListEditorPer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->widths.fill(-1);
        d->Invalidate();
        break;
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
        d->HideCompletion();
        d->ShowColors();
        break;
    case QEvent::LayoutDirectionChange:
        d->Invalidate();
        break;
    default:
        break;
    }
}

void TAdvListEditorPer::paintEvent(QPaintEvent*)
{
    d->Arrange();
    QPainter painter(this);
    d->Paint(painter);
}
