#pragma once

#include "AdoError.h"

#include <QTest>

/// The error that `work` throws; a test that expects one fails without it.
template <typename TWork> EADOError ErrorOf(TWork work)
{
    try {
        work();
    } catch (const EADOError& error) {
        return error;
    }
    QTest::qFail("no EADOError was thrown", __FILE__, __LINE__);
    return {TAdoErrorKind::Other, QStringLiteral("no error")};
}
