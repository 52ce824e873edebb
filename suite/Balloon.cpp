#include "Balloon.h"

#include "BalloonWindow.h"

#include <QPointer>

namespace {

QPointer<TBalloonWindow>& Shown()
{
    static QPointer<TBalloonWindow> window;
    return window;
}

} // namespace

void Balloon::Show(QWidget* control, const QString& text, int milliseconds, const QString& title)
{
    Hide();
    if (!control || text.isEmpty() || !control->isVisible())
        return;
    Shown() = new TBalloonWindow(control, text, title);
    Shown()->Appear(milliseconds);
}

void Balloon::Hide()
{
    if (TBalloonWindow* window = Shown()) {
        Shown().clear();
        window->hide();
        // It may be hidden by an event of its own.
        window->deleteLater();
    }
}

QString Balloon::ShownText()
{
    return Shown() ? Shown()->Text() : QString();
}
