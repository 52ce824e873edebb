#include "AdvListCompletion.h"

#include "AdvListEditorPer.h"
#include "Look.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QStyledItemDelegate>

namespace {

constexpr int MostRows = 8;
constexpr int LeastWidth = 60 * Look::Unit;
constexpr int EntryHeight = Look::ControlHeight;
constexpr int EntryPictureSide = 4 * Look::Unit;

/// One line of a height, whatever the font.
class TEntryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), EntryHeight};
    }
};

} // namespace

class TAdvListCompletion::TModel : public QAbstractListModel
{
public:
    TModel(const TAdvListValues& entries, QObject* parent) : QAbstractListModel(parent), entries_(entries) {}

    void Reset(const QVector<int>& shown, const QVector<QImage>& images)
    {
        beginResetModel();
        shown_ = shown;
        images_ = images;
        endResetModel();
    }
    int Entry(const QModelIndex& index) const { return index.isValid() ? shown_.at(index.row()) : -1; }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(shown_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const int entry = Entry(index);
        if (entry < 0 || entry >= entries_.Count())
            return {};
        if (role == Qt::DisplayRole)
            return entries_[entry].DisplayText;
        const int image = entries_[entry].ImageIndex;
        if (role == Qt::DecorationRole && image >= 0 && image < images_.size())
            return QIcon(QPixmap::fromImage(images_.at(image)));
        return {};
    }

private:
    const TAdvListValues& entries_;
    QVector<int> shown_;
    QVector<QImage> images_;
};

TAdvListCompletion::TAdvListCompletion(TAdvListEditorPer* editor, const TAdvListValues& entries)
    : QListView(editor), editor_(editor), model_(new TModel(entries, this))
{
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(int{QFrame::StyledPanel} | int{QFrame::Plain});
    setAccessibleName(QStringLiteral("پیشنهادها"));
    setModel(model_);
    setItemDelegate(new TEntryDelegate(this));
    setUniformItemSizes(true);
    setIconSize({EntryPictureSide, EntryPictureSide});
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

TAdvListCompletion::~TAdvListCompletion()
{
    Watch(false);
}

void TAdvListCompletion::Offer(const QVector<int>& entries, const QVector<QImage>& images)
{
    model_->Reset(entries, images);
    if (entries.isEmpty()) {
        hide();
        return;
    }
    setLayoutDirection(editor_->layoutDirection());
    Place();
    show();
    Watch(true);
}

int TAdvListCompletion::Entry() const
{
    return isVisible() ? model_->Entry(currentIndex()) : -1;
}

bool TAdvListCompletion::TakeKey(int key)
{
    const int now = currentIndex().row();
    const int last = model_->rowCount() - 1;
    int row = 0;
    switch (key) {
    case Qt::Key_Up:
        row = now - 1;
        break;
    case Qt::Key_Down:
        row = now + 1;
        break;
    case Qt::Key_PageUp:
        row = qMax(0, now - MostRows + 1);
        break;
    case Qt::Key_PageDown:
        row = now + MostRows - 1;
        break;
    default:
        return false;
    }
    setCurrentIndex(row < 0 ? QModelIndex() : model_->index(qMin(row, last), 0));
    if (row < 0)
        clearSelection();
    return true;
}

void TAdvListCompletion::Place()
{
    const QRect edit(editor_->mapToGlobal(QPoint(0, 0)), editor_->size());
    const QRect screen = editor_->screen()->availableGeometry();
    const int rows = qMin(MostRows, model_->rowCount());
    const QSize size(qMax(edit.width(), LeastWidth), rows * EntryHeight + 2 * frameWidth());
    const bool below =
        edit.bottom() + 1 + size.height() <= screen.bottom() || edit.top() - size.height() < screen.top();
    // Its entries begin where the row of the editor begins.
    const bool fromRight = editor_->layoutDirection() == Qt::RightToLeft;
    const int left = fromRight ? edit.right() + 1 - size.width() : edit.left();
    const int last = qMax(screen.left(), screen.right() + 1 - size.width());
    setGeometry(
        {{qBound(screen.left(), left, last), below ? edit.bottom() + 1 : edit.top() - size.height()}, size});
}

void TAdvListCompletion::Watch(bool on)
{
    if (on == watching_ || !qApp)
        return;
    watching_ = on;
    if (on)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

bool TAdvListCompletion::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() == this)
        return QListView::eventFilter(watched, event);
    const bool carriesEditor = widget == editor_ || widget->isAncestorOf(editor_);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (carriesEditor)
            Place();
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        if (carriesEditor)
            hide();
        break;
    case QEvent::MouseButtonPress:
        hide();
        break;
    default:
        break;
    }
    return QListView::eventFilter(watched, event);
}

void TAdvListCompletion::mouseReleaseEvent(QMouseEvent* event)
{
    const int entry = model_->Entry(indexAt(event->position().toPoint()));
    QListView::mouseReleaseEvent(event);
    // Later, because what is raised then may destroy the editor and this list with it.
    if (entry >= 0 && event->button() == Qt::LeftButton)
        QMetaObject::invokeMethod(
            editor_,
            [this, entry] {
                if (OnChosen)
                    OnChosen(entry);
            },
            Qt::QueuedConnection);
}

void TAdvListCompletion::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    Watch(false);
    setCurrentIndex({});
    clearSelection();
}
