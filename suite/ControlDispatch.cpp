#include "ControlDispatch.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace {

// The window remembers which of its controls was entered: the focus may move to another one while the window
// is not the active one, and then no focus event tells the first that it was left.
constexpr char EnteredControl[] = "_trvEnteredControl";

QWidget* Entered(const QWidget* window)
{
    return qobject_cast<QWidget*>(window->property(EnteredControl).value<QPointer<QObject>>().data());
}

void SetEntered(QWidget* window, QWidget* control)
{
    window->setProperty(EnteredControl, QVariant::fromValue(QPointer<QObject>(control)));
}

// A dialog that is closed and shown again enters its control anew.
void ForgetWithHiddenWindow(QWidget* control, const QEvent* event)
{
    QWidget* window = control->window();
    if (event->type() == QEvent::Hide && !event->spontaneous() && !window->isVisible() &&
        Entered(window) == control)
        SetEntered(window, nullptr);
}

bool IsTab(const QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

bool RaiseKeyEvent(const TKeyEvent& handler, QWidget* control, const QKeyEvent* event)
{
    quint16 key = VirtualKeyOf(*event);
    if (!handler || key == 0)
        return true;
    // A copy, because the handler may replace or clear itself.
    const TKeyEvent running = handler;
    running(control, key, event->modifiers());
    return key != 0;
}

QChar RaiseKeyPress(const TKeyPressEvent& handler, QWidget* control, QChar character)
{
    // A copy, because the handler may replace or clear itself.
    if (const TKeyPressEvent running = handler)
        running(control, character);
    return character;
}

// A key may give several characters: the lam-alef key of Arabic layouts, a character beyond the first plane.
QString RaiseKeyPresses(const TControlEvents& events, QWidget* control, const QString& text)
{
    const QPointer<QWidget> alive = control;
    QString left;
    for (const QChar character : text) {
        const QChar answer = RaiseKeyPress(events.OnKeyPress, control, character);
        if (!alive)
            return {};
        if (!answer.isNull())
            left += answer;
    }
    return left;
}

void Raise(const TNotifyEvent& handler, QWidget* control)
{
    if (const TNotifyEvent running = handler)
        running(control);
}

void LeaveForgottenControl(QWidget* forgotten)
{
    if (const auto* events = dynamic_cast<TControlEvents*>(forgotten))
        Raise(events->OnExit, forgotten);
}

} // namespace

void ControlDispatch::KeyPress(QWidget* control, TControlEvents& events, QKeyEvent* event,
                               const TOwnHandling& own)
{
    const QPointer<QWidget> alive = control;
    event->accept();
    if (!RaiseKeyEvent(events.OnKeyDown, control, event) || !alive)
        return;
    const QChar character = CharacterOf(*event);
    if (!events.OnKeyPress || character.isNull()) {
        own(event);
        return;
    }
    const bool printable =
        !event->text().isEmpty() && event->text().front() == character && character >= u' ';
    const QString text = printable ? event->text() : QString(character);
    const QString left = RaiseKeyPresses(events, control, text);
    if (!alive || left.isEmpty())
        return;
    if (left == text) {
        own(event);
        return;
    }
    QKeyEvent changed(QEvent::KeyPress, left.front().toUpper().unicode(), Qt::NoModifier, left);
    own(&changed);
    event->setAccepted(changed.isAccepted());
}

QString ControlDispatch::Characters(QWidget* control, const TControlEvents& events, const QString& text)
{
    return events.OnKeyPress ? RaiseKeyPresses(events, control, text) : text;
}

void ControlDispatch::KeyRelease(QWidget* control, TControlEvents& events, QKeyEvent* event,
                                 const TOwnHandling& own)
{
    const QPointer<QWidget> alive = control;
    event->accept();
    if (!event->isAutoRepeat() && (!RaiseKeyEvent(events.OnKeyUp, control, event) || !alive))
        return;
    own(event);
}

bool ControlDispatch::Event(QWidget* control, TControlEvents& events, QEvent* event)
{
    ForgetWithHiddenWindow(control, event);
    if (!IsTab(event))
        return false;
    const QPointer<QWidget> alive = control;
    bool passes = RaiseKeyEvent(events.OnKeyDown, control, static_cast<QKeyEvent*>(event));
    if (alive && passes && events.OnKeyPress)
        passes = !RaiseKeyPress(events.OnKeyPress, control, QChar(9)).isNull();
    if (alive && passes)
        return false;
    event->accept();
    return true;
}

void ControlDispatch::FocusIn(QWidget* control, TControlEvents& events, const QFocusEvent*)
{
    QWidget* before = Entered(control->window());
    if (before == control)
        return;
    const QPointer<QWidget> alive = control;
    SetEntered(control->window(), control);
    if (before)
        LeaveForgottenControl(before);
    if (alive)
        Raise(events.OnEnter, control);
}

void ControlDispatch::FocusOut(QWidget* control, TControlEvents& events, const QFocusEvent* event)
{
    if (!MovesBetweenControls(event) || Entered(control->window()) != control)
        return;
    SetEntered(control->window(), nullptr);
    Raise(events.OnExit, control);
}

bool ControlDispatch::MovesBetweenControls(const QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}
