#include "SmartComboBox_TRV.h"

#include "ControlDispatch.h"
#include "PersianText.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleHints>
#include <QWheelEvent>

namespace {

/// A copy runs, because the handler may replace itself or destroy the combo.
void Raise(const TNotifyEvent& handler, QObject* sender)
{
    if (const TNotifyEvent running = handler)
        running(sender);
}

} // namespace

TSmartComboBox_TRV::TSmartComboBox_TRV(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, &TSmartComboBox_TRV::RaiseChosen);
}

TSmartComboBox_TRV::~TSmartComboBox_TRV() = default;

void TSmartComboBox_TRV::SetItemIndex(int index)
{
    setCurrentIndex(index >= 0 && index < count() ? index : -1);
}

void TSmartComboBox_TRV::Clear()
{
    clear();
}

void TSmartComboBox_TRV::AddItem(const QString& text, qint64 object)
{
    const int before = currentIndex();
    addItem(text, object);
    setCurrentIndex(before); // the toolkit selects the first entry by itself
}

qint64 TSmartComboBox_TRV::ItemObject(int index) const
{
    return itemData(index).toLongLong();
}

void TSmartComboBox_TRV::showPopup()
{
    indexBefore_ = currentIndex();
    if (std::exchange(listWantsFont_, false)) {
        QEvent fontChange(QEvent::FontChange);
        QComboBox::changeEvent(&fontChange);
    }
    const int scrollBar = count() > maxVisibleItems() ? view()->verticalScrollBar()->sizeHint().width() : 0;
    const int frame = 2 * view()->frameWidth();
    view()->setMinimumWidth(qMax(width(), view()->sizeHintForColumn(0) + scrollBar + frame));
    view()->window()->setLayoutDirection(layoutDirection());
    QComboBox::showPopup();
}

bool TSmartComboBox_TRV::event(QEvent* event)
{
    return ControlDispatch::Event(this, *this, event) || QComboBox::event(event);
}

void TSmartComboBox_TRV::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        indexBefore_ = currentIndex();
        if (!TypeAhead(*own))
            QComboBox::keyPressEvent(own);
    });
}

void TSmartComboBox_TRV::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QComboBox::keyReleaseEvent(own); });
}

void TSmartComboBox_TRV::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    ControlDispatch::FocusIn(this, *this, event);
}

void TSmartComboBox_TRV::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    // The open list holds the focus for its combo.
    if (!view()->isVisible())
        ControlDispatch::FocusOut(this, *this, event);
}

void TSmartComboBox_TRV::changeEvent(QEvent* event)
{
    if (event->type() != QEvent::FontChange || findChild<QAbstractItemView*>() != nullptr) {
        QComboBox::changeEvent(event);
        return;
    }
    // The toolkit would make the list to give it the font. What it has measured it forgets with a style, too.
    listWantsFont_ = true;
    QEvent styleChange(QEvent::StyleChange);
    QComboBox::changeEvent(&styleChange);
}

void TSmartComboBox_TRV::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    indexBefore_ = currentIndex();
    QComboBox::wheelEvent(event);
}

void TSmartComboBox_TRV::RaiseChosen(int index)
{
    const QPointer<TSmartComboBox_TRV> alive = this;
    const bool isAnother = index != std::exchange(indexBefore_, index);
    if (isAnother)
        Raise(OnChange, this);
    if (alive)
        Raise(OnSelect, this);
}

/// Chooses the entry that begins with what is typed, as a Persian reader compares.
bool TSmartComboBox_TRV::TypeAhead(const QKeyEvent& event)
{
    const bool isShortcut =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString text = PersianText::Fold(event.text());
    if (isShortcut || text.isEmpty() || !text.front().isPrint())
        return false;
    const int interval = QGuiApplication::styleHints()->keyboardInputInterval();
    if (!sinceTyped_.isValid() || sinceTyped_.hasExpired(interval))
        typed_.clear();
    if (typed_.isEmpty() && text == u' ')
        return false; // opens the list
    typed_ += text;
    sinceTyped_.start();
    // The same letter again goes on to the next entry.
    const bool repeats = typed_.count(typed_.front()) == typed_.size();
    const QString wanted = repeats ? typed_.left(1) : typed_;
    const int start = repeats ? currentIndex() + 1 : qMax(currentIndex(), 0);
    for (int step = 0; step < count(); ++step) {
        const int index = (start + step) % count();
        if (PersianText::Fold(itemText(index)).startsWith(wanted)) {
            setCurrentIndex(index);
            Q_EMIT activated(index);
            break;
        }
    }
    return true;
}
