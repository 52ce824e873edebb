#pragma once

#include "HostApplication.h"
#include "Look.h"
#include "SampleShop.h"

#include <QTest>

/// A shop whose windows a test opens.
class TShopFixture : public THostedShop
{
public:
    using THostedShop::THostedShop;

    /// Makes the window the active one and waits until it stays so: with no window manager the focus of the
    /// window before may still arrive behind that of this one.
    static void Activate(QWidget* window)
    {
        QVERIFY(QTest::qWaitForWindowExposed(window));
        constexpr int Attempts = 20;
        constexpr int SettlingTime = 50;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::qWait(SettlingTime);
            if (QApplication::activeWindow() == window)
                return;
        }
        QFAIL("the window does not stay active");
    }
};

/// Runs a test under the application object of the host. What is thrown out of an event is a failure of the
/// test that the test itself may expect.
template <typename TTest> int RunFormTest(int argumentCount, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    THostApplication application(argumentCount, arguments);
    Look::Install(application, Look::TScheme::Light);
    TTest test;
    return QTest::qExec(&test, argumentCount, arguments);
}
