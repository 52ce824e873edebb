#include "Monkey.h"

#include <ctime>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr int longestText = 12;

/// Of the calling thread where the system tells it, so that a busy machine does not look like a hang.
double ProcessorMilliseconds()
{
#ifdef CLOCK_THREAD_CPUTIME_ID
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
#else
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
#endif
}

constexpr Qt::Key specialKeys[] = {
    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape,   Qt::Key_Up,
    Qt::Key_Down,   Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Home,  Qt::Key_End,      Qt::Key_PageUp,
    Qt::Key_Delete, Qt::Key_Space,   Qt::Key_Plus,   Qt::Key_Minus, Qt::Key_PageDown, Qt::Key_Backspace,
    Qt::Key_F2,     Qt::Key_F4,      Qt::Key_F5,     Qt::Key_F6,    Qt::Key_F10,      Qt::Key_Insert,
    Qt::Key_A,      Qt::Key_C,       Qt::Key_X,      Qt::Key_Z,     Qt::Key_T,        Qt::Key_Asterisk,
};
constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier,  Qt::NoModifier,    Qt::NoModifier,
                                               Qt::NoModifier,  Qt::ShiftModifier, Qt::ControlModifier,
                                               Qt::AltModifier, Qt::KeypadModifier};

} // namespace

TMonkey::TMonkey(QWidget& window, quint32 seed) : window_(&window), random_(seed)
{
}

TMonkey::~TMonkey() = default;

void TMonkey::Run(int events)
{
    events_ = events;
    sent_ = 0;
    lastTurn_ = ProcessorMilliseconds();
    QTimer::singleShot(0, this, &TMonkey::Step);
    loop_.exec();
}

// What is done may open a dialog with an event loop of its own, in which the next steps come.
void TMonkey::Step()
{
    NoteGap();
    if (sent_ == events_ && !CloseWhatIsOpen()) {
        loop_.quit();
        return;
    }
    QTimer::singleShot(0, this, &TMonkey::Step);
    if (sent_ == events_)
        return;
    if (BeforeEvent)
        BeforeEvent(sent_);
    ++sent_;
    Act();
}

void TMonkey::NoteGap()
{
    const double now = ProcessorMilliseconds();
    if (now - lastTurn_ > longestGap_) {
        longestGap_ = now - lastTurn_;
        slowest_ = doing_;
    }
    lastTurn_ = now;
}

bool TMonkey::CloseWhatIsOpen()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return true;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr)
        return false;
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->reject();
    else
        modal->close();
    return true;
}

QWidget* TMonkey::Target() const
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return window_;
}

QWidget* TMonkey::Focus() const
{
    QWidget* target = Target();
    // After a change of windows nothing has the focus for a while; keys go where it was.
    QWidget* focus =
        QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : target->focusWidget();
    return focus != nullptr && (focus == target || target->isAncestorOf(focus)) ? focus : target;
}

QWidget* TMonkey::AnyChild(bool focusable)
{
    QWidget* target = Target();
    QWidget* favourite = target == window_ && Favourite ? Favourite() : nullptr;
    if (favourite != nullptr && random_.Number(5) != 0)
        target = favourite;
    QWidgetList children{target};
    for (QWidget* child : target->findChildren<QWidget*>()) {
        if (child->isVisible() && !child->isWindow() &&
            (!focusable || (child->focusPolicy() != Qt::NoFocus && child->isEnabled())))
            children.append(child);
    }
    return children.at(random_.Number(static_cast<int>(children.size())));
}

void TMonkey::Act()
{
    if (auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
        files->reject();
        return;
    }
    struct TAction
    {
        int Weight;
        const char* Name;
        void (TMonkey::*Do)();
    };
    static constexpr TAction actions[] = {
        {30, "typing", &TMonkey::TypeText},    {30, "key", &TMonkey::PressKey},
        {20, "click", &TMonkey::Click},        {3, "drag", &TMonkey::DragMouse},
        {3, "wheel", &TMonkey::Wheel},         {5, "paste", &TMonkey::Paste},
        {3, "resize", &TMonkey::Resize},       {4, "focus", &TMonkey::MoveFocus},
        {2, "window", &TMonkey::ChangeWindow},
    };
    int choice = random_.Number(100);
    for (const TAction& action : actions) {
        choice -= action.Weight;
        if (choice >= 0)
            continue;
        const QWidget* focus = Focus();
        doing_ = QStringLiteral("%1 %2 %3")
                     .arg(QString::fromLatin1(action.Name),
                          QString::fromLatin1(focus->metaObject()->className()), focus->objectName());
        (this->*action.Do)();
        return;
    }
}

void TMonkey::TypeText()
{
    const QString text = random_.Number(8) == 0 ? random_.Unicode(1) : random_.Mixed(2);
    if (text.isEmpty())
        return;
    QTest::sendKeyEvent(QTest::Click, Focus(), Qt::Key_unknown, text, Qt::NoModifier);
}

void TMonkey::PressKey()
{
    const Qt::Key key = specialKeys[random_.Number(static_cast<int>(std::size(specialKeys)))];
    const Qt::KeyboardModifiers held = modifiers[random_.Number(static_cast<int>(std::size(modifiers)))];
    QTest::keyClick(Focus(), key, held);
}

void TMonkey::Click()
{
    const QPointer<QWidget> widget(AnyChild(false));
    if (widget->width() <= 0 || widget->height() <= 0)
        return;
    const QPoint place(random_.Number(widget->width()), random_.Number(widget->height()));
    const Qt::MouseButton button = random_.Number(6) == 0 ? Qt::RightButton : Qt::LeftButton;
    if (button == Qt::RightButton) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
    } else if (random_.Number(6) == 0) {
        QTest::mouseDClick(widget, button, Qt::NoModifier, place);
    } else {
        QTest::mouseClick(widget, button, Qt::NoModifier, place);
    }
}

void TMonkey::DragMouse()
{
    const QPointer<QWidget> widget(AnyChild(false));
    const auto somewhere = [this, &widget] {
        return QPoint(random_.Number(qMax(1, widget->width())), random_.Number(qMax(1, widget->height())));
    };
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, somewhere());
    if (widget)
        QTest::mouseMove(widget, somewhere());
    if (widget)
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, somewhere());
}

void TMonkey::Wheel()
{
    QWidget* widget = AnyChild(false);
    const QPointF place(widget->rect().center());
    const int step = random_.Number(2) == 0 ? 120 : -120;
    QWheelEvent event(place, widget->mapToGlobal(place), {}, QPoint(0, step), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void TMonkey::Paste()
{
    QGuiApplication::clipboard()->setText(random_.Number(4) == 0 ? random_.Unicode(longestText)
                                                                 : random_.Mixed(longestText));
    QTest::keyClick(Focus(), Qt::Key_V, Qt::ControlModifier);
}

void TMonkey::Resize()
{
    Target()->resize(200 + random_.Number(1400), 120 + random_.Number(900));
}

void TMonkey::MoveFocus()
{
    AnyChild(true)->setFocus(static_cast<Qt::FocusReason>(random_.Number(Qt::OtherFocusReason + 1)));
}

void TMonkey::ChangeWindow()
{
    switch (random_.Number(4)) {
    case 0:
        window_->hide();
        window_->show();
        break;
    case 1:
        window_->showMinimized();
        window_->showNormal();
        break;
    case 2: {
        QEvent deactivated(QEvent::WindowDeactivate);
        QApplication::sendEvent(window_, &deactivated);
        break;
    }
    default:
        break;
    }
    window_->activateWindow();
}
