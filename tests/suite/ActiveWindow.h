#pragma once

#include <QTest>
#include <QWidget>

/// Activation that also works on an X server without a window manager, where nobody activates a new window by
/// itself and only a window on the screen can be given the focus.
namespace ActiveWindow {

inline bool Activate(QWidget* window)
{
    if (!QTest::qWaitForWindowExposed(window))
        return false;
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

} // namespace ActiveWindow
