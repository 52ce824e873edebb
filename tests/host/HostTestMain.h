#pragma once

#include "HostApplication.h"
#include "Look.h"

#include <QTest>

/// Runs a test under the application object that it is about.
template <typename TTest> int RunUnderHostApplication(int argumentCount, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    THostApplication application(argumentCount, arguments);
    Look::Install(application, Look::TScheme::Light);
    TTest test;
    return QTest::qExec(&test, argumentCount, arguments);
}
