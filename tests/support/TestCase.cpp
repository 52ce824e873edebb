#include "TestCase.h"

#include <QApplication>
#include <QRegularExpression>

namespace {

/// Set before main() makes the application, so that no test program can forget it.
[[maybe_unused]] const bool offscreenByDefault = [] {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qputenv("QT_QPA_PLATFORM", "offscreen");
}();

bool IsTransient(const QWidget* window)
{
    const Qt::WindowType type = window->windowType();
    return !window->isVisible() && (type == Qt::ToolTip || type == Qt::Popup);
}

} // namespace

QWidgetList TTestCase::Windows()
{
    QWidgetList windows;
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (!window->parentWidget() && !IsTransient(window))
            windows.append(window);
    }
    return windows;
}

void TTestCase::init()
{
    // What the platform says of every window with a least size and of every menu, and of scripts that no
    // installed font has.
    static const QRegularExpression unexpected(
        QStringLiteral("^(?!This plugin does not support |\\s*OpenType support missing)"));
    QTest::failOnWarning(unexpected);
    known_.clear();
    const QWidgetList windows = Windows();
    for (QWidget* window : windows)
        known_.append(window);
    Prepare();
}

void TTestCase::cleanup()
{
    Finish();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList windows = Windows();
    for (QWidget* window : windows) {
        if (!known_.contains(window))
            QFAIL(qPrintable(
                QStringLiteral("left behind: %1 %2")
                    .arg(QString::fromLatin1(window->metaObject()->className()), window->objectName())));
    }
}
